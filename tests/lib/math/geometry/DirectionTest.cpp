#include "lib/math/geometry/Direction.h"

#include <gtest/gtest.h>

namespace {

using namespace geom;

TEST(DirectionTest, ValuesAreThoseThatCallersPassAsNumbers) {
    EXPECT_EQ(unsigned(k_CCW), 0U);
    EXPECT_EQ(unsigned(k_CW), 1U);
    EXPECT_EQ(unsigned(k_NoDirection), 2U);
    EXPECT_EQ(unsigned(k_Open), 0U);
    EXPECT_EQ(unsigned(k_Closed), 1U);
}

TEST(DirectionTest, OppositeOfARotationIsTheOtherOne) {
    EXPECT_EQ(GetOppositeDirection(k_CCW), k_CW);
    EXPECT_EQ(GetOppositeDirection(k_CW), k_CCW);
}

TEST(DirectionTest, WhatIsNoRotationIsItsOwnOpposite) {
    EXPECT_EQ(GetOppositeDirection(k_NoDirection), k_NoDirection);
    EXPECT_EQ(unsigned(GetOppositeDirection(Direction(3))), 3U);
}

} // namespace
