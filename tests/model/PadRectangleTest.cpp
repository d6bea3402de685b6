#include "model/PadRectangle.h"
#include "model/PadCircle.h"

#include <gtest/gtest.h>

TEST(PadRectangleTest, HoldsWhatItIsGiven) {
    const PadRectangle pad(4.0, 2.0, 30.0, PadRectangle::k_Kind, "rect");
    EXPECT_EQ(pad.width, 4.0);
    EXPECT_EQ(pad.height, 2.0);
    EXPECT_EQ(pad.angle, 30.0);
    EXPECT_EQ(pad.kind, 1U);
    EXPECT_EQ(pad.GetName(), AString("rect"));
    EXPECT_TRUE(pad.IsRectangle());
    EXPECT_FALSE(pad.IsObround());
}

TEST(PadRectangleTest, AngleAndOffsetsDoNotTellPadsApart) {
    const PadRectangle pad(4.0, 2.0, 0.0, 1, "a");
    PadRectangle other(4.0, 2.0, 45.0, 1, "b");
    other.offsetX = 1.0;
    other.offsetY = -1.0;
    EXPECT_TRUE(pad.IsEqual(other));
}

TEST(PadRectangleTest, SizesTellPadsApart) {
    const PadRectangle pad(4.0, 2.0, 0.0, 1, "a");
    EXPECT_FALSE(pad.IsEqual(PadRectangle(4.5, 2.0, 0.0, 1, "a")));
    EXPECT_FALSE(pad.IsEqual(PadRectangle(4.0, 2.5, 0.0, 1, "a")));
    EXPECT_FALSE(pad.IsEqual(PadCircle(4.0, 1, "a")));
}
