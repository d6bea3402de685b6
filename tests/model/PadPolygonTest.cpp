#include "model/PadPolygon.h"
#include "lib/math/geometry/Box.h"
#include "model/PadRectangle.h"

#include <gtest/gtest.h>

namespace {

geom::Polygon Square(double side) { return geom::Polygon(geom::Box(geom::k_Origin, side), 0); }

} // namespace

TEST(PadPolygonTest, HoldsWhatItIsGiven) {
    const PadPolygon pad(Square(2.0), PadPolygon::k_Kind, "poly");
    EXPECT_TRUE(pad.GetPolygon() == Square(2.0));
    EXPECT_EQ(pad.kind, 2U);
    EXPECT_EQ(pad.GetName(), AString("poly"));
    EXPECT_TRUE(pad.IsPolygon());
    EXPECT_FALSE(pad.IsMultiLoop());
}

TEST(PadPolygonTest, IsEqualWhenTheOutlinesAre) {
    const PadPolygon pad(Square(2.0), 2, "a");
    EXPECT_TRUE(pad.IsEqual(pad));
    EXPECT_TRUE(pad.IsEqual(PadPolygon(Square(2.0), 2, "b")));
    EXPECT_FALSE(pad.IsEqual(PadPolygon(Square(3.0), 2, "a")));
    EXPECT_FALSE(pad.IsEqual(PadRectangle(2.0, 2.0, 0.0, 2, "a")));
}

TEST(PadPolygonTest, AnOutlineIsNotEqualToNone) {
    const PadPolygon pad(Square(2.0), 2, "a");
    const PadPolygon empty(geom::Polygon(), 2, "a");
    EXPECT_FALSE(pad.IsEqual(empty));
    EXPECT_FALSE(empty.IsEqual(pad));
}
