#include "lib/utils/LargeMemory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>
#include <string>
#include <vector>

namespace base {
namespace {

constexpr size_t k_Small = 1000;
constexpr size_t k_Large = k_LargeSize + 1000;
constexpr size_t k_Larger = 5 * k_LargeSize;
constexpr size_t k_BeyondAllMemory = size_t{1} << 60U;

/// A piece of memory that is given back at the end.
struct Piece {
    explicit Piece(size_t size) : m_Memory(AllocateLarge(size)), m_Size(size) {}
    Piece(const Piece&) = delete;
    Piece& operator=(const Piece&) = delete;
    ~Piece() { FreeLarge(m_Memory, m_Size); }

    void Resize(size_t size) {
        m_Memory = ResizeLarge(m_Memory, m_Size, size);
        m_Size = size;
    }
    char& At(size_t index) const { return static_cast<char*>(m_Memory)[index]; }

    void* m_Memory;
    size_t m_Size;
};

int g_Calls = 0;

/// Counts the calls of the handler for missing memory for a scope.
class HandlerScope {
public:
    HandlerScope() : m_Before(std::set_new_handler([] { ++g_Calls; })) { g_Calls = 0; }
    ~HandlerScope() { std::set_new_handler(m_Before); }
    HandlerScope(const HandlerScope&) = delete;
    HandlerScope& operator=(const HandlerScope&) = delete;

private:
    std::new_handler m_Before;
};

struct SizeChange {
    const char* m_Name;
    size_t m_From;
    size_t m_To;
};

class LargeMemoryResizeTest : public testing::TestWithParam<SizeChange> {};

TEST_P(LargeMemoryResizeTest, KeepsTheBytesThatBothSizesHave) {
    const auto& [name, from, to] = GetParam();
    const size_t kept = std::min(from, to);
    Piece piece(from);
    for (size_t i = 0; i < kept; ++i)
        piece.At(i) = static_cast<char>(i % 251);
    piece.Resize(to);
    piece.At(to - 1) = 'z';
    for (size_t i = 0; i + 1 < kept; ++i)
        ASSERT_EQ(piece.At(i), static_cast<char>(i % 251)) << i;
    EXPECT_EQ(piece.At(to - 1), 'z');
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(All, LargeMemoryResizeTest, testing::Values(
    SizeChange{"SmallGrows",        k_Small,         2 * k_Small},
    SizeChange{"SmallShrinks",      2 * k_Small,     k_Small},
    SizeChange{"SmallBecomesLarge", k_Small,         k_Large},
    SizeChange{"LargeBecomesSmall", k_Large,         k_Small},
    SizeChange{"LargeGrows",        k_Large,         k_Larger},
    SizeChange{"LargeShrinks",      k_Larger,        k_Large},
    SizeChange{"JustBecomesLarge",  k_LargeSize - 1, k_LargeSize}),
    [](const auto& test) { return std::string(test.param.m_Name); });
// clang-format on

TEST(LargeMemoryTest, EveryByteOfAPieceCanBeWritten) {
    for (const size_t size : {size_t{1}, k_Small, k_LargeSize - 1, k_LargeSize, k_Large}) {
        const Piece piece(size);
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(piece.m_Memory) % alignof(std::max_align_t), 0U) << size;
        for (size_t i = 0; i < size; ++i)
            piece.At(i) = 'x';
        EXPECT_EQ(piece.At(size - 1), 'x') << size;
    }
}

TEST(LargeMemoryTest, ResizingNothingGivesANewPiece) {
    for (const size_t size : {k_Small, k_Large}) {
        void* memory = ResizeLarge(nullptr, 0, size);
        ASSERT_NE(memory, nullptr);
        static_cast<char*>(memory)[size - 1] = 'x';
        FreeLarge(memory, size);
    }
}

TEST(LargeMemoryTest, WhatIsGivenBackIsHandedOutAgain) {
    void* first = AllocateLarge(k_Large);
    FreeLarge(first, k_Large);
    void* second = AllocateLarge(k_Large);
    EXPECT_EQ(second, first);
    FreeLarge(second, k_Large);
}

TEST(LargeMemoryTest, PartsOfAPieceThatWasGivenBackDoNotOverlap) {
    FreeLarge(AllocateLarge(k_Larger), k_Larger);
    std::vector<std::unique_ptr<Piece>> parts;
    for (char mark = 'a'; mark < 'h'; ++mark) {
        parts.push_back(std::make_unique<Piece>(k_LargeSize));
        std::fill_n(&parts.back()->At(0), k_LargeSize, mark);
    }
    for (size_t i = 0; i < parts.size(); ++i) {
        const char* bytes = &parts[i]->At(0);
        const auto mark = static_cast<char>('a' + i);
        EXPECT_TRUE(std::all_of(bytes, bytes + k_LargeSize, [mark](char byte) { return byte == mark; })) << i;
    }
}

TEST(LargeMemoryTest, FreeingNothingIsIgnored) { FreeLarge(nullptr, 0); }

TEST(LargeMemoryTest, WhatTheSystemDoesNotHaveThrows) {
    EXPECT_THROW(AllocateLarge(k_BeyondAllMemory), std::bad_alloc);
    EXPECT_EQ(TryResizeLarge(nullptr, 0, k_BeyondAllMemory), nullptr);
}

TEST(LargeMemoryTest, APieceThatCannotGrowStaysAsItWas) {
    for (const size_t size : {k_Small, k_Large}) {
        const Piece piece(size);
        piece.At(size - 1) = 'x';
        EXPECT_THROW(ResizeLarge(piece.m_Memory, size, k_BeyondAllMemory), std::bad_alloc) << size;
        EXPECT_EQ(TryResizeLarge(piece.m_Memory, size, k_BeyondAllMemory), nullptr) << size;
        EXPECT_EQ(piece.At(size - 1), 'x') << size;
    }
}

TEST(LargeMemoryTest, TheHandlerForMissingMemoryIsCalledAheadOfTheException) {
    const HandlerScope scope;
    EXPECT_THROW(AllocateLarge(k_BeyondAllMemory), std::bad_alloc);
    EXPECT_EQ(g_Calls, 1);
    EXPECT_THROW(ResizeLarge(nullptr, 0, k_BeyondAllMemory), std::bad_alloc);
    EXPECT_EQ(g_Calls, 2);
}

TEST(LargeMemoryTest, ATryDoesNotCallTheHandler) {
    const HandlerScope scope;
    EXPECT_EQ(TryResizeLarge(nullptr, 0, k_BeyondAllMemory), nullptr);
    EXPECT_EQ(g_Calls, 0);
}

} // namespace
} // namespace base
