#include "model/PadRoundThermal.h"
#include "model/PadCircle.h"

#include <gtest/gtest.h>

TEST(PadRoundThermalTest, HoldsWhatItIsGiven) {
    const PadRoundThermal pad(2.0, 1.5, 4, 0.25, 45.0, "thermal");
    EXPECT_EQ(pad.outerRadius, 2.0);
    EXPECT_EQ(pad.innerRadius, 1.5);
    EXPECT_EQ(pad.bridgeCount, 4);
    EXPECT_EQ(pad.bridgeWidth, 0.25);
    EXPECT_EQ(pad.bridgeAngle, 45.0);
    EXPECT_EQ(pad.kind, 6U);
    EXPECT_EQ(pad.GetName(), AString("thermal"));
    EXPECT_TRUE(pad.IsRoundThermal());
    EXPECT_FALSE(pad.IsCircle());
}

TEST(PadRoundThermalTest, IsEqualWhenAllNumbersAre) {
    const PadRoundThermal pad(2.0, 1.5, 4, 0.25, 45.0, "a");
    EXPECT_TRUE(pad.IsEqual(PadRoundThermal(2.0, 1.5, 4, 0.25, 45.0, "b")));
    EXPECT_FALSE(pad.IsEqual(PadRoundThermal(2.5, 1.5, 4, 0.25, 45.0, "a")));
    EXPECT_FALSE(pad.IsEqual(PadRoundThermal(2.0, 1.0, 4, 0.25, 45.0, "a")));
    EXPECT_FALSE(pad.IsEqual(PadRoundThermal(2.0, 1.5, 2, 0.25, 45.0, "a")));
    EXPECT_FALSE(pad.IsEqual(PadRoundThermal(2.0, 1.5, 4, 0.5, 45.0, "a")));
    EXPECT_FALSE(pad.IsEqual(PadRoundThermal(2.0, 1.5, 4, 0.25, 0.0, "a")));
    EXPECT_FALSE(pad.IsEqual(PadCircle(4.0, 6, "a")));
}
