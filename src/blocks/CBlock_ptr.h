#ifndef QRL_BLOCKS_CBLOCK_PTR_H
#define QRL_BLOCKS_CBLOCK_PTR_H

#include "blocks/CStreamio_object.h"

#include <utility>

namespace io {

/// A counted reference to an object of the tree, or to nothing. The last one that goes deletes the object.
template <class T>
class CBlock_ptr {
public:
    CBlock_ptr() = default;
    /// Shares `item`, which stands on the heap.
    explicit CBlock_ptr(T* item) : m_Item(item) {
        if (m_Item != nullptr)
            m_Item->AddReference();
    }
    CBlock_ptr(const CBlock_ptr& other) : CBlock_ptr(other.m_Item) {}
    CBlock_ptr(CBlock_ptr&& other) noexcept : m_Item(std::exchange(other.m_Item, nullptr)) {}
    /// The same object as another class of the tree; nothing when it isn't one.
    template <class Other>
    explicit CBlock_ptr(const CBlock_ptr<Other>& other)
        : CBlock_ptr(dynamic_cast<T*>(const_cast<Other*>(other.Item()))) {}
    CBlock_ptr& operator=(const CBlock_ptr& other) {
        CBlock_ptr share(other);
        std::swap(m_Item, share.m_Item);
        return *this;
    }
    CBlock_ptr& operator=(CBlock_ptr&& other) noexcept {
        std::swap(m_Item, other.m_Item);
        return *this;
    }
    ~CBlock_ptr() { CStreamio_object::Release(m_Item); }

    T* Item() { return m_Item; }
    const T* Item() const { return m_Item; }
    T* operator->() { return m_Item; }
    const T* operator->() const { return m_Item; }

private:
    T* m_Item = nullptr;
};

/// A counted owner of a freshly made `T` of a name. Appended to a block or func it stands there by reference: what is
/// put into it afterwards is seen there.
template <class T>
class CBlock_owner {
public:
    explicit CBlock_owner(const AString& name) : m_Object(new T(name)) {}

    T& operator*() { return *m_Object.Item(); }
    const T& operator*() const { return *m_Object.Item(); }
    const CBlock_ptr<T>& GetPtr() const { return m_Object; }

private:
    CBlock_ptr<T> m_Object;
};

} // namespace io

#endif
