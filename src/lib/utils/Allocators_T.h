#ifndef QRL_LIB_UTILS_ALLOCATORS_T_H
#define QRL_LIB_UTILS_ALLOCATORS_T_H

#include "lib/utils/Assert.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <new>
#include <utility>

namespace base {

/// Hands out memory for objects of one type from arrays of doubling size: many objects cost a few heap requests and lie
/// close together.
///
/// A slot never moves while it is in use. Returned slots are reused, the last one first, before new ones are carved.
/// The arrays are given back when the allocator dies; every object must have been returned by then.
template <class T>
class BlockAllocator_T {
public:
    /// `initialBlockSize` is the number of slots of the first array, which is made when it is needed.
    explicit BlockAllocator_T(std::uint32_t initialBlockSize) : m_InitialBlockSize(initialBlockSize) {}
    /// Slots that are still in use are reported; their memory goes all the same, their objects aren't destroyed.
    ~BlockAllocator_T();
    BlockAllocator_T(const BlockAllocator_T&) = delete;
    BlockAllocator_T& operator=(const BlockAllocator_T&) = delete;
    BlockAllocator_T(BlockAllocator_T&&) = delete;
    BlockAllocator_T& operator=(BlockAllocator_T&&) = delete;

    /// The sum of all array sizes.
    std::uint32_t GetTotalSlots() const { return m_TotalSlots; }
    /// The slots handed out and not returned.
    std::uint32_t GetUsedBlocks() const { return m_UsedBlocks; }
    /// The slots returned and not handed out again.
    std::uint64_t GetFreeCount() const { return m_FreeCount; }

    /// Memory for one object, which the caller constructs there. Throws std::bad_alloc when there is none.
    void* Allocate();
    /// Destroys the object and takes its slot back. Null is reported and ignored.
    void Deallocate(T* obj);

private:
    struct FreeSlot {
        FreeSlot* m_Next;
    };
    struct alignas(T) alignas(FreeSlot) Slot {
        std::byte m_Bytes[std::max(sizeof(T), sizeof(FreeSlot))];
    };
    struct Block {
        Block* m_Next; ///< the older one
        std::uint32_t m_Used;
        std::uint32_t m_Capacity;
        Slot* m_Data;
    };
    static_assert(alignof(Slot) <= __STDCPP_DEFAULT_NEW_ALIGNMENT__);

    void* TakeFree();
    void* TakeFromArray();
    void AddBlock();
    static std::size_t GetArrayBytes(std::uint32_t capacity);

    Block* m_FirstBlock = nullptr;  ///< the newest
    FreeSlot* m_FreeList = nullptr; ///< the last one returned; each holds a pointer to the one before
    std::uint64_t m_FreeCount = 0;
    std::uint32_t m_InitialBlockSize;
    std::uint32_t m_TotalSlots = 0;
    std::uint32_t m_UsedBlocks = 0;
};

template <class T>
BlockAllocator_T<T>::~BlockAllocator_T() {
    QRL_ASSERT("Allocators_T", "m_UsedBlocks == 0", m_UsedBlocks == 0);
    while (m_FirstBlock) {
        ::operator delete(m_FirstBlock->m_Data);
        delete std::exchange(m_FirstBlock, m_FirstBlock->m_Next);
    }
}

template <class T>
void* BlockAllocator_T<T>::Allocate() {
    void* slot = m_FreeList ? TakeFree() : TakeFromArray();
    ++m_UsedBlocks;
    return slot;
}

template <class T>
void BlockAllocator_T<T>::Deallocate(T* obj) {
    QRL_ASSERT("Allocators_T", "obj", obj);
    if (!obj)
        return;
    obj->~T();
    QRL_ASSERT("Allocators_T", "m_UsedBlocks >= 1", m_UsedBlocks >= 1);
    --m_UsedBlocks;
    m_FreeList = ::new (static_cast<void*>(obj)) FreeSlot{m_FreeList};
    ++m_FreeCount;
}

template <class T>
void* BlockAllocator_T<T>::TakeFree() {
    --m_FreeCount;
    return std::exchange(m_FreeList, m_FreeList->m_Next);
}

template <class T>
void* BlockAllocator_T<T>::TakeFromArray() {
    if (!m_FirstBlock || m_FirstBlock->m_Used == m_FirstBlock->m_Capacity)
        AddBlock();
    Block& block = *m_FirstBlock;
    const bool from_array = block.m_Used != block.m_Capacity;
    QRL_ASSERT("Allocators_T", "from_array", from_array);
    if (!from_array)
        throw std::bad_alloc();
    return block.m_Data + block.m_Used++;
}

template <class T>
void BlockAllocator_T<T>::AddBlock() {
    const std::uint32_t capacity = m_FirstBlock ? m_FirstBlock->m_Capacity * 2 : m_InitialBlockSize;
    auto block = std::make_unique<Block>(Block{m_FirstBlock, 0, capacity, nullptr});
    block->m_Data = static_cast<Slot*>(::operator new(GetArrayBytes(capacity)));
    m_TotalSlots += capacity;
    m_FirstBlock = block.release();
}

/// A product beyond the address space becomes the largest request, which fails, instead of wrapping to a small one.
template <class T>
std::size_t BlockAllocator_T<T>::GetArrayBytes(std::uint32_t capacity) {
    constexpr std::size_t k_Largest = std::numeric_limits<std::size_t>::max();
    return capacity > k_Largest / sizeof(Slot) ? k_Largest : capacity * sizeof(Slot);
}

} // namespace base

#endif
