#ifndef QRL_LIB_UTILS_REFCOUNTER_T_H
#define QRL_LIB_UTILS_REFCOUNTER_T_H

#include "lib/utils/Assert.h"
#include "lib/utils/MRefCount.h"

#include <new>
#include <utility>

namespace base {

/// A handle on an object that other handles may share; the last one deletes it. Null holds nothing.
///
/// A copy costs one increment. The count stands in a heap block of its own, so that T needs to know nothing of it.
/// Copy-on-write is a step that the owner asks for: MakeUnique ahead of a change. For one thread only.
template <class T>
class RefCounter_T {
public:
    /// Null.
    RefCounter_T() = default;
    /// Takes ownership of `data`, which may be null. Where there is no memory left for the count it stays without one:
    /// the object is then never deleted, and copies, IsUnique, MakeUnique and the end of the handle report it.
    explicit RefCounter_T(T* data) : m_DataPtr(data), m_CounterPtr(NewCounterFor(data)) {}
    RefCounter_T(const RefCounter_T& other);
    RefCounter_T(RefCounter_T&& other) noexcept;
    /// Both assignments do nothing when the two handles share their object already.
    RefCounter_T& operator=(const RefCounter_T& other); // NOLINT(bugprone-unhandled-self-assignment)
    RefCounter_T& operator=(RefCounter_T&& other) noexcept;
    ~RefCounter_T();

    // A null handle is reported; the pointer is then null.
    T* operator->() { return GetChecked(); }
    const T* operator->() const { return GetChecked(); }
    /// Not for a null handle, which is reported.
    T& operator*() { return *GetChecked(); }
    const T& operator*() const { return *GetChecked(); }

    bool IsNull() const { return !m_DataPtr; }
    /// Whether no other handle shares the object; true for null.
    bool IsUnique() const;

    /// Gives this handle an object of its own, a copy of the shared one; the other handles keep that one. Does nothing
    /// when IsUnique.
    void MakeUnique();

private:
    T* GetChecked() const;
    void CheckPair() const;
    void Share() const;
    void Release();
    static MRefCount* NewCounterFor(const T* data) { return data ? new (std::nothrow) MRefCount : nullptr; }

    T* m_DataPtr = nullptr;
    MRefCount* m_CounterPtr = nullptr;
};

template <class T>
RefCounter_T<T>::RefCounter_T(const RefCounter_T& other)
    : m_DataPtr(other.m_DataPtr), m_CounterPtr(other.m_CounterPtr) {
    Share();
}

template <class T>
RefCounter_T<T>::RefCounter_T(RefCounter_T&& other) noexcept
    : m_DataPtr(std::exchange(other.m_DataPtr, nullptr)), m_CounterPtr(std::exchange(other.m_CounterPtr, nullptr)) {}

template <class T>
RefCounter_T<T>& RefCounter_T<T>::operator=(const RefCounter_T& other) {
    // Covers self-assignment.
    if (m_DataPtr == other.m_DataPtr)
        return *this;
    // Shared first: the release may delete an object that `other` is a part of.
    RefCounter_T share(other);
    std::swap(m_DataPtr, share.m_DataPtr);
    std::swap(m_CounterPtr, share.m_CounterPtr);
    return *this;
}

template <class T>
RefCounter_T<T>& RefCounter_T<T>::operator=(RefCounter_T&& other) noexcept {
    if (m_DataPtr == other.m_DataPtr)
        return *this;
    RefCounter_T share(std::move(other));
    std::swap(m_DataPtr, share.m_DataPtr);
    std::swap(m_CounterPtr, share.m_CounterPtr);
    return *this;
}

template <class T>
RefCounter_T<T>::~RefCounter_T() {
    if (m_DataPtr)
        Release();
}

template <class T>
bool RefCounter_T<T>::IsUnique() const {
    CheckPair();
    return !m_CounterPtr || m_CounterPtr->IsOne();
}

template <class T>
void RefCounter_T<T>::MakeUnique() {
    if (IsUnique())
        return;
    RefCounter_T clone(new T(std::as_const(*m_DataPtr)));
    std::swap(m_DataPtr, clone.m_DataPtr);
    std::swap(m_CounterPtr, clone.m_CounterPtr);
}

template <class T>
T* RefCounter_T<T>::GetChecked() const {
    QRL_ASSERT("RefCounter_T", "m_DataPtr", m_DataPtr);
    return m_DataPtr;
}

template <class T>
void RefCounter_T<T>::CheckPair() const {
    QRL_ASSERT("RefCounter_T", "!m_DataPtr == !m_CounterPtr", !m_DataPtr == !m_CounterPtr);
}

template <class T>
void RefCounter_T<T>::Share() const {
    CheckPair();
    if (m_CounterPtr)
        m_CounterPtr->Increment();
}

template <class T>
void RefCounter_T<T>::Release() {
    QRL_ASSERT("RefCounter_T", "m_DataPtr && m_CounterPtr && *m_CounterPtr > 0",
        m_DataPtr && m_CounterPtr && m_CounterPtr->IsPositive());
    if (!m_CounterPtr || !m_CounterPtr->Decrement())
        return;
    delete std::exchange(m_DataPtr, nullptr);
    delete std::exchange(m_CounterPtr, nullptr);
}

} // namespace base

#endif
