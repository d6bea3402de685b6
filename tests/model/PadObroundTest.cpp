#include "model/PadObround.h"
#include "model/PadRectangle.h"

#include <gtest/gtest.h>

namespace {

constexpr double k_Accuracy = 1e-12;

} // namespace

TEST(PadObroundTest, HoldsWhatItIsGiven) {
    const PadObround pad(4.0, 2.0, 0.5, 3, "obround");
    EXPECT_EQ(pad.width, 4.0);
    EXPECT_EQ(pad.height, 2.0);
    EXPECT_EQ(pad.cornerRadius, 0.5);
    EXPECT_EQ(pad.kind, 3U);
    EXPECT_EQ(pad.GetName(), AString("obround"));
    EXPECT_TRUE(pad.IsObround());
    EXPECT_FALSE(pad.IsRectangle());
}

TEST(PadObroundTest, IsEqualWhenAllSizesAre) {
    const PadObround pad(4.0, 2.0, 0.5, 3, "a");
    EXPECT_TRUE(pad.IsEqual(PadObround(4.0, 2.0, 0.5, 4, "b")));
    EXPECT_FALSE(pad.IsEqual(PadObround(4.5, 2.0, 0.5, 3, "a")));
    EXPECT_FALSE(pad.IsEqual(PadObround(4.0, 2.5, 0.5, 3, "a")));
    EXPECT_FALSE(pad.IsEqual(PadObround(4.0, 2.0, 0.25, 3, "a")));
    EXPECT_FALSE(pad.IsEqual(PadRectangle(4.0, 2.0, 0.0, 3, "a")));
}

TEST(PadObroundTest, OutlineHasFourSidesAndFourRoundCorners) {
    const geom::Polygon outline = PadObround(10.0, 4.0, 1.0, 3, "a").GetOutline();
    const std::vector<geom::Arc> pieces = outline.GetArcs();
    ASSERT_EQ(pieces.size(), 8U);
    EXPECT_EQ(pieces[0].GetStart(), geom::Point(5, 1)); // the corner's lower end: 1 below the top at 2
    EXPECT_EQ(pieces[0].GetEnd(), geom::Point(4, 2));
    EXPECT_TRUE(outline.GetBox().IsEqualTo(geom::Box(-5, -2, 5, 2), k_Accuracy));
}

TEST(PadObroundTest, CornerRadiusAboveHalfTheShorterSideGrowsALine) {
    // What is left of 10 by 4 is the line from (-3, 0) to (3, 0), which grows by the whole radius of 3, not by 2.
    const geom::Polygon outline = PadObround(10.0, 4.0, 3.0, 3, "a").GetOutline();
    EXPECT_EQ(outline.GetArcs().size(), 4U);
    EXPECT_TRUE(outline.GetBox().IsEqualTo(geom::Box(-6, -3, 6, 3), k_Accuracy));
}

TEST(PadObroundTest, CornerRadiusAboveHalfOfASquareGrowsAPoint) {
    const geom::Polygon outline = PadObround(4.0, 4.0, 3.0, 3, "a").GetOutline();
    EXPECT_EQ(outline.GetArcs().size(), 1U);
    EXPECT_TRUE(outline.GetBox().IsEqualTo(geom::Box(-3, -3, 3, 3), k_Accuracy));
}
