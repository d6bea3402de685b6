#include "lib/utils/Modulo.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

TEST(ModuloTest, BringsAValueIntoTheRangeFromZeroToTheModulus) {
    EXPECT_EQ(base::GetModulo_T(7.5, 2.0), 1.5);
    EXPECT_EQ(base::GetModulo_T(-0.5, 2.0), 1.5);
    EXPECT_EQ(base::GetModulo_T(-4.0, 2.0), 0.0);
    EXPECT_EQ(base::GetModulo_T(2.0, 2.0), 0.0);
}

TEST(ModuloTest, AResultThatRoundsToTheModulusIsZero) { EXPECT_EQ(base::GetModulo_T(-1e-20, 6.283185307179586), 0.0); }

TEST(ModuloTest, WhatHasNoRemainderIsNotANumber) {
    EXPECT_TRUE(std::isnan(base::GetModulo_T(std::numeric_limits<double>::infinity(), 2.0)));
    EXPECT_TRUE(std::isnan(base::GetModulo_T(1.0, 0.0)));
}

TEST(AbsTest, NegativeZeroStaysNegative) {
    EXPECT_TRUE(std::signbit(base::GetAbsOf_T(-0.0)));
    EXPECT_EQ(base::GetAbsOf_T(-2.5), 2.5);
    EXPECT_EQ(base::GetAbsOf_T(2.5), 2.5);
}

} // namespace
