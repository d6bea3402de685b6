#include "lib/utils/LargeMemory.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <new>
#include <sys/mman.h>
#include <utility>

namespace base {

namespace {

constexpr size_t k_HugePage = size_t{2} * 1024 * 1024;

size_t ToPages(size_t size) { return (size + k_HugePage - 1) / k_HugePage * k_HugePage; }

/// A piece that was given back and waits for its next use. It describes itself, so that giving back never fails.
struct Kept {
    Kept* m_Next;
    size_t m_Size;
};

Kept* kept = nullptr;

void Keep(void* memory, size_t pages) { kept = new (memory) Kept{kept, pages}; }

/// Takes the piece or the end of a larger one. Null when none is large enough.
void* TakeKept(size_t pages) {
    for (Kept** link = &kept; *link != nullptr; link = &(*link)->m_Next) {
        Kept* piece = *link;
        if (piece->m_Size < pages)
            continue;
        piece->m_Size -= pages;
        if (piece->m_Size == 0)
            *link = piece->m_Next;
        return reinterpret_cast<char*>(piece) + piece->m_Size;
    }
    return nullptr;
}

/// Gives everything that waits back to the system.
void DropKept() {
    while (kept != nullptr) {
        Kept* piece = std::exchange(kept, kept->m_Next);
        munmap(piece, piece->m_Size);
    }
}

/// Asks for one huge page more, and gives back what lies outside of the whole huge pages within.
void* MapPages(size_t size) {
    const size_t pages = ToPages(size);
    void* mapped =
        mmap(nullptr, pages + k_HugePage, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (mapped == MAP_FAILED)
        return nullptr;
    char* first = static_cast<char*>(mapped);
    const size_t head = (k_HugePage - reinterpret_cast<uintptr_t>(first) % k_HugePage) % k_HugePage;
    if (head != 0)
        munmap(first, head);
    munmap(first + head + pages, k_HugePage - head);
    madvise(first + head, pages, MADV_HUGEPAGE);
    return first + head;
}

void* TryAllocate(size_t size) {
    if (size < k_LargeSize)
        return std::malloc(size);
    if (void* piece = TakeKept(ToPages(size)))
        return piece;
    if (void* piece = MapPages(size))
        return piece;
    DropKept();
    return MapPages(size);
}

void* TryRemapPages(void* memory, size_t oldSize, size_t newSize) {
    void* resized = mremap(memory, ToPages(oldSize), ToPages(newSize), MREMAP_MAYMOVE);
    if (resized == MAP_FAILED)
        return nullptr;
    madvise(resized, ToPages(newSize), MADV_HUGEPAGE);
    return resized;
}

/// Like operator new, leaves it to the program first what becomes of a run that has no memory.
void* Checked(void* memory) {
    if (memory != nullptr)
        return memory;
    if (const std::new_handler handler = std::get_new_handler(); handler != nullptr)
        handler();
    throw std::bad_alloc();
}

} // namespace

void* AllocateLarge(size_t size) { return Checked(TryAllocate(size)); }

void* ResizeLarge(void* memory, size_t oldSize, size_t newSize) {
    return Checked(TryResizeLarge(memory, oldSize, newSize));
}

void* TryResizeLarge(void* memory, size_t oldSize, size_t newSize) noexcept {
    if (memory == nullptr)
        return TryAllocate(newSize);
    const bool wasLarge = oldSize >= k_LargeSize;
    const bool isLarge = newSize >= k_LargeSize;
    if (wasLarge && isLarge)
        return TryRemapPages(memory, oldSize, newSize);
    if (!wasLarge && !isLarge)
        return std::realloc(memory, newSize);
    void* moved = TryAllocate(newSize);
    if (moved == nullptr)
        return nullptr;
    std::memcpy(moved, memory, std::min(oldSize, newSize));
    FreeLarge(memory, oldSize);
    return moved;
}

void FreeLarge(void* memory, size_t size) noexcept {
    if (size >= k_LargeSize)
        Keep(memory, ToPages(size));
    else
        std::free(memory);
}

} // namespace base
