#include "lib/utils/Arena.h"

#include "lib/utils/LargeMemory.h"

#include <algorithm>
#include <memory>
#include <new>

namespace base {

namespace {

constexpr size_t k_FirstSize = size_t{16} * 1024;

} // namespace

Arena::~Arena() {
    while (m_Blocks != nullptr) {
        Block* block = m_Blocks;
        m_Blocks = block->m_Next;
        FreeLarge(block, block->m_Size);
    }
}

void* Arena::do_allocate(size_t size, size_t alignment) {
    void* piece = m_At;
    if (std::align(alignment, size, piece, m_Left) == nullptr) {
        AddBlock(size + alignment);
        piece = m_At;
        std::align(alignment, size, piece, m_Left);
    }
    m_At = static_cast<std::byte*>(piece) + size;
    m_Left -= size;
    return piece;
}

void Arena::AddBlock(size_t needed) {
    m_NextSize = std::clamp(m_NextSize * 2, k_FirstSize, k_LargeSize);
    const size_t size = std::max(m_NextSize, sizeof(Block) + needed);
    m_Blocks = new (AllocateLarge(size)) Block{m_Blocks, size};
    m_At = reinterpret_cast<std::byte*>(m_Blocks + 1);
    m_Left = size - sizeof(Block);
}

} // namespace base
