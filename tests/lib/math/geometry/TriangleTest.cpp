#include "lib/math/geometry/Triangle.h"

#include "tests/GeometryFixtures.h"

#include <gtest/gtest.h>

namespace {

using namespace geom;

constexpr Triangle k_Left({0, 0}, {4, 0}, {0, 3});
constexpr Triangle k_Right({0, 0}, {0, 3}, {4, 0});
constexpr Triangle k_Flat({0, 0}, {10, 0}, {4, 0});

TEST(TriangleTest, DirectionFollowsTheOrderOfThePoints) {
    EXPECT_EQ(k_Left.GetDirection(), k_CCW);
    EXPECT_EQ(k_Right.GetDirection(), k_CW);
    EXPECT_EQ(k_Left.GetP1(), Point(0, 0));
    EXPECT_EQ(k_Left.GetP2(), Point(4, 0));
    EXPECT_EQ(k_Left.GetP3(), Point(0, 3));
}

TEST(TriangleTest, CollinearPointsHaveNoDirection) {
    EXPECT_EQ(k_Flat.GetDirection(), k_NoDirection);
    EXPECT_TRUE(k_Flat.IsCollinear());
    EXPECT_TRUE(Triangle({1, 1}, {1, 1}, {5, 7}).IsCollinear());
    EXPECT_FALSE(k_Left.IsCollinear());
}

TEST(TriangleTest, DirectionHasNoTolerance) {
    EXPECT_EQ(Triangle({0, 0}, {1, 0}, {2, DBL_TRUE_MIN}).GetDirection(), k_CCW);
    EXPECT_EQ(Triangle({0, 0}, {1, 0}, {2, -DBL_TRUE_MIN}).GetDirection(), k_CW);
}

TEST(TriangleTest, WhatIsNoNumberHasNoDirection) {
    EXPECT_EQ(Triangle({0, 0}, {1, 0}, {2, fixtures::k_NaN}).GetDirection(), k_NoDirection);
}

TEST(TriangleTest, AreaIsSignedByDirection) {
    EXPECT_EQ(k_Left.GetSignedArea(), Area(6));
    EXPECT_EQ(k_Right.GetSignedArea(), Area(-6));
    EXPECT_EQ(k_Right.GetArea(), Area(6));
}

TEST(TriangleTest, DegenerateComparesTheHeightOverTheLongestSide) {
    // 3-4-5: the height over the hypotenuse is 2.4.
    Segment longest;
    EXPECT_TRUE(k_Left.IsDegenerate(2.4000000000000004, &longest));
    EXPECT_EQ(longest, Segment({4, 0}, {0, 3}));
    EXPECT_FALSE(k_Left.IsDegenerate(2.3999));
    EXPECT_TRUE(k_Flat.IsDegenerate(0));
}

TEST(TriangleTest, LongestSideIsOnlyGivenOnSuccess) {
    Segment longest({7, 7}, {8, 8});
    EXPECT_FALSE(k_Left.IsDegenerate(1, &longest));
    EXPECT_EQ(longest, Segment({7, 7}, {8, 8}));
}

TEST(TriangleTest, OfEquallyLongSidesTheFirstIsTaken) {
    Segment longest;
    EXPECT_TRUE(Triangle({0, 0}, {10, 0}, {0, 0}).IsDegenerate(0, &longest));
    EXPECT_EQ(longest, Segment({0, 0}, {10, 0}));
    EXPECT_TRUE(Triangle({4, 0}, {0, 0}, {10, 0}).IsDegenerate(0, &longest));
    EXPECT_EQ(longest, Segment({0, 0}, {10, 0}));
    EXPECT_TRUE(Triangle({0, 0}, {4, 0}, {10, 0}).IsDegenerate(0, &longest));
    EXPECT_EQ(longest, Segment({10, 0}, {0, 0}));
}

} // namespace
