#include "lib/utils/HashFactor.h"

#include <gtest/gtest.h>

#include <bit>
#include <set>

namespace base {
namespace {

TEST(HashFactorTest, IsOddSoThatNoTwoKeysHaveOneProduct) { EXPECT_EQ(1U, k_HashFactor % 2); }

TEST(HashFactorTest, IsLargeEnoughToReachTheUpperBits) { EXPECT_GT(std::bit_width(k_HashFactor), 32); }

TEST(HashFactorTest, KeysThatFallTogetherUnderOneFactorAreSpread) {
    // Multiples of the inverse of 2^64 over the golden ratio: under that factor their products are 0, 1, 2, ... and
    // share their upper half.
    constexpr uint64_t k_Golden = 0x9E3779B97F4A7C15;
    uint64_t inverse = 1;
    for (int i = 0; i < 6; ++i)
        inverse *= 2 - k_Golden * inverse;
    ASSERT_EQ(1U, k_Golden * inverse);
    std::set<uint64_t> places;
    for (uint64_t i = 0; i < 1000; ++i)
        places.insert(i * inverse * k_HashFactor >> 32);
    EXPECT_GT(places.size(), 100U);
}

TEST(NumberHashTest, NumbersWithOneRemainderAreSpread) {
    // A container of the standard library with some ten thousand entries has 13,597 places for them, for instance.
    constexpr int k_Places = 13597;
    std::set<size_t> places;
    for (int i = -500; i < 500; ++i)
        places.insert(NumberHash()(i * k_Places) % k_Places);
    EXPECT_GT(places.size(), 100U);
}

} // namespace
} // namespace base
