#include "lib/utils/Arena.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <memory_resource>
#include <vector>

TEST(ArenaTest, PiecesAreAlignedAndDoNotOverlap) {
    base::Arena arena;
    struct Piece {
        unsigned char* m_Begin;
        size_t m_Size;
    };
    std::vector<Piece> pieces;
    for (size_t i = 0; i < 3000; ++i) {
        const size_t size = i * 37 % 5000 + 1;
        const size_t alignment = size_t{1} << (i % 7);
        auto* piece = static_cast<unsigned char*>(arena.allocate(size, alignment));
        EXPECT_EQ(reinterpret_cast<uintptr_t>(piece) % alignment, 0U);
        std::memset(piece, static_cast<int>(i % 251), size);
        pieces.push_back({piece, size});
    }
    for (size_t i = 0; i < pieces.size(); ++i) {
        const auto mark = static_cast<unsigned char>(i % 251);
        EXPECT_TRUE(std::all_of(pieces[i].m_Begin, pieces[i].m_Begin + pieces[i].m_Size, [mark](unsigned char byte) {
            return byte == mark;
        })) << i;
    }
}

TEST(ArenaTest, APieceThatExceedsEveryBlockIsServed) {
    base::Arena arena;
    constexpr size_t k_Size = size_t{9} * 1024 * 1024;
    auto* large = static_cast<char*>(arena.allocate(k_Size, 8));
    large[0] = large[k_Size - 1] = 'x';
    auto* next = static_cast<char*>(arena.allocate(100, 8));
    next[99] = 'y';
    EXPECT_EQ(large[k_Size - 1], 'x');
}

TEST(ArenaTest, PiecesOfOneKindLieBehindEachOther) {
    base::Arena arena;
    auto* first = static_cast<char*>(arena.allocate(64, 8));
    EXPECT_EQ(arena.allocate(64, 8), first + 64);
    arena.deallocate(first, 64, 8);
    EXPECT_EQ(arena.allocate(8, 8), first + 128);
}

TEST(ArenaTest, ListsTakeTheirMemoryFromIt) {
    base::Arena arena;
    std::pmr::vector<int> numbers(&arena);
    for (int i = 0; i < 100'000; ++i)
        numbers.push_back(i);
    EXPECT_EQ(numbers[99'999], 99'999);
    base::Arena other;
    EXPECT_TRUE(arena.is_equal(arena));
    EXPECT_FALSE(arena.is_equal(other));
}
