#ifndef QRL_LIB_UTILS_LARGEMEMORY_H
#define QRL_LIB_UTILS_LARGEMEMORY_H

#include <cstddef>

namespace base {

// Memory in one piece for data of any size, which moves when it grows: the text of a file, the nodes of a tree.
//
// From `k_LargeSize` on it comes from the system itself, in huge pages where there are any: touching a small page for
// the first time costs as much as reading the text that goes into it. What is never touched costs nothing, so a large
// piece can be asked for on a guess. What was given back is handed out again before more is asked for. `std::bad_alloc`
// when there is no memory. Not for use by several threads.

inline constexpr size_t k_LargeSize = size_t{4} * 1024 * 1024;

/// `size` bytes of undefined content, aligned for any type.
void* AllocateLarge(size_t size);
/// The same bytes in a piece of `newSize` bytes; `memory` is gone. On failure throws and leaves `memory` as it was.
/// Null is a piece of no bytes. `newSize` is above 0.
void* ResizeLarge(void* memory, size_t oldSize, size_t newSize);
/// The same, with null in place of an exception: for a size that is a guess.
void* TryResizeLarge(void* memory, size_t oldSize, size_t newSize) noexcept;
/// Gives back a piece of `size` bytes. Null is ignored.
void FreeLarge(void* memory, size_t size) noexcept;

} // namespace base

#endif
