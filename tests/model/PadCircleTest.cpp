#include "model/PadCircle.h"
#include "model/PadRectangle.h"

#include <gtest/gtest.h>

TEST(PadCircleTest, HoldsWhatItIsGiven) {
    const PadCircle pad(1.5, PadCircle::k_Kind, "round");
    EXPECT_EQ(pad.diameter, 1.5);
    EXPECT_EQ(pad.kind, 0U);
    EXPECT_EQ(pad.GetName(), AString("round"));
    EXPECT_EQ(pad.offsetX, 0.0);
    EXPECT_EQ(pad.offsetY, 0.0);
}

TEST(PadCircleTest, IsEqualToACircleOfTheSameDiameter) {
    const PadCircle pad(1.5, 0, "a");
    PadCircle other(1.5, 5, "b");
    other.offsetX = 3.0;
    EXPECT_TRUE(pad.IsEqual(other));
    EXPECT_FALSE(pad.IsEqual(PadCircle(1.5000000000000002, 0, "a")));
}

TEST(PadCircleTest, IsNoOtherFigure) {
    const PadCircle pad(1.5, 0, "a");
    EXPECT_TRUE(pad.IsCircle());
    EXPECT_FALSE(pad.IsUndefined());
    EXPECT_FALSE(pad.IsObround());
    EXPECT_FALSE(pad.IsRectangle());
    EXPECT_FALSE(pad.IsPolygon());
    EXPECT_FALSE(pad.IsRoundThermal());
    EXPECT_FALSE(pad.IsMultiLoop());
    EXPECT_FALSE(pad.IsEqual(PadRectangle(1.5, 1.5, 0.0, 0, "a")));
}
