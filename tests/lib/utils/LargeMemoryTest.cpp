#include "lib/utils/LargeMemory.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

namespace {

constexpr size_t k_Piece = size_t{6} * 1024 * 1024;

/// Fills a piece with a mark of its own.
void* MakeMarked(size_t size, char mark) {
    void* memory = base::AllocateLarge(size);
    std::memset(memory, mark, size);
    return memory;
}

bool HasMark(const void* memory, size_t size, char mark) {
    const auto* bytes = static_cast<const char*>(memory);
    return bytes[0] == mark && std::memcmp(bytes, bytes + 1, size - 1) == 0;
}

} // namespace

TEST(LargeMemoryTest, WhatIsGivenBackIsHandedOutAgain) {
    void* first = base::AllocateLarge(k_Piece);
    base::FreeLarge(first, k_Piece);
    void* second = base::AllocateLarge(k_Piece);
    EXPECT_EQ(second, first);
    base::FreeLarge(second, k_Piece);
}

TEST(LargeMemoryTest, PartsOfAPieceThatWasGivenBackDoNotOverlap) {
    void* whole = base::AllocateLarge(4 * k_Piece);
    base::FreeLarge(whole, 4 * k_Piece);
    std::vector<void*> parts;
    for (char mark = 'a'; mark < 'g'; ++mark)
        parts.push_back(MakeMarked(k_Piece, mark));
    for (size_t i = 0; i < parts.size(); ++i) {
        EXPECT_TRUE(HasMark(parts[i], k_Piece, static_cast<char>('a' + i))) << i;
        base::FreeLarge(parts[i], k_Piece);
    }
}

TEST(LargeMemoryTest, ContentsStayWhileAPieceGrowsAndShrinks) {
    std::vector<size_t> sizes = {100, 1000, k_Piece, 5 * k_Piece, 2 * k_Piece, 500, 10};
    void* memory = MakeMarked(sizes[0], 'x');
    for (size_t i = 1; i < sizes.size(); ++i) {
        memory = base::ResizeLarge(memory, sizes[i - 1], sizes[i]);
        EXPECT_TRUE(HasMark(memory, std::min(sizes[i - 1], sizes[i]), 'x')) << sizes[i];
        std::memset(memory, 'x', sizes[i]);
    }
    base::FreeLarge(memory, sizes.back());
}

TEST(LargeMemoryTest, AGuessThatIsTooLargeGivesNull) {
    constexpr size_t k_TooLarge = size_t{1} << 62;
    EXPECT_EQ(base::TryResizeLarge(nullptr, 0, k_TooLarge), nullptr);
    EXPECT_THROW(base::AllocateLarge(k_TooLarge), std::bad_alloc);
}

TEST(LargeMemoryTest, NothingIsGivenBackForNull) { base::FreeLarge(nullptr, 0); }
