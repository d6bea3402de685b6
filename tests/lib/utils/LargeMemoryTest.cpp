#include "lib/utils/LargeMemory.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <new>

namespace base {
namespace {

constexpr size_t k_TooLarge = size_t{1} << 60;

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

TEST(LargeMemoryTest, WithoutMemoryThereIsAnException) { EXPECT_THROW(AllocateLarge(k_TooLarge), std::bad_alloc); }

TEST(LargeMemoryTest, TheHandlerForMissingMemoryIsCalledAheadOfTheException) {
    const HandlerScope scope;
    EXPECT_THROW(AllocateLarge(k_TooLarge), std::bad_alloc);
    EXPECT_EQ(g_Calls, 1);
    EXPECT_THROW(ResizeLarge(nullptr, 0, k_TooLarge), std::bad_alloc);
    EXPECT_EQ(g_Calls, 2);
}

TEST(LargeMemoryTest, ATryDoesNotCallTheHandler) {
    const HandlerScope scope;
    EXPECT_EQ(TryResizeLarge(nullptr, 0, k_TooLarge), nullptr);
    EXPECT_EQ(g_Calls, 0);
}

TEST(LargeMemoryTest, WhatCannotGrowStaysAsItWas) {
    for (const size_t size : {size_t{16}, k_LargeSize}) {
        auto* memory = static_cast<char*>(AllocateLarge(size));
        memory[size - 1] = 'x';
        EXPECT_THROW(ResizeLarge(memory, size, k_TooLarge), std::bad_alloc);
        EXPECT_EQ(memory[size - 1], 'x');
        FreeLarge(memory, size);
    }
}

} // namespace
} // namespace base
