#ifndef QRL_LIB_UTILS_MREFCOUNT_H
#define QRL_LIB_UTILS_MREFCOUNT_H

#include <cstdint>

namespace base {
template <class T>
class RefCounter_T;
}

/// The number of handles that hold a shared object of the kernel; 1 from the start.
///
/// Only the handles count, so nobody else can. Counting is `const`: who holds an object that it may not change holds it
/// all the same. A plain number, for use on one thread.
class MRefCount {
    template <class T>
    friend class base::RefCounter_T;

    bool IsOne() const { return m_RefCount == 1; }
    bool IsPositive() const { return m_RefCount > 0; }
    void Increment() const { ++m_RefCount; }
    /// Counts one handle less, and tells whether it was the last one.
    bool Decrement() const { return --m_RefCount == 0; }

    mutable std::uint32_t m_RefCount = 1;
};

#endif
