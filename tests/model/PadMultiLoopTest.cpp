#include "model/PadMultiLoop.h"
#include "lib/math/geometry/Box.h"

#include <gtest/gtest.h>

namespace {

geom::Polygon Square(double side) { return geom::Polygon(geom::Box(geom::k_Origin, side), 0); }

} // namespace

TEST(PadMultiLoopTest, HoldsWhatItIsGiven) {
    const PadMultiLoop pad({Square(2.0), Square(1.0)}, PadMultiLoop::k_Kind, "loops");
    EXPECT_EQ(pad.kind, 7U);
    EXPECT_EQ(pad.GetName(), AString("loops"));
    EXPECT_TRUE(pad.IsMultiLoop());
    EXPECT_FALSE(pad.IsPolygon());
}

TEST(PadMultiLoopTest, GetPolygonsReplacesWhatWasThere) {
    const PadMultiLoop pad({Square(2.0), Square(1.0)}, 7, "loops");
    std::vector<geom::Polygon> polygons = {Square(5.0)};
    EXPECT_EQ(pad.GetPolygons(polygons), 2);
    ASSERT_EQ(polygons.size(), 2U);
    EXPECT_TRUE(polygons[0] == Square(2.0));
    EXPECT_TRUE(polygons[1] == Square(1.0));
}

TEST(PadMultiLoopTest, IsNotEqualEvenToItself) {
    const PadMultiLoop pad({Square(2.0)}, 7, "loops");
    EXPECT_FALSE(pad.IsEqual(pad));
    EXPECT_FALSE(pad.IsEqual(PadMultiLoop({Square(2.0)}, 7, "loops")));
}
