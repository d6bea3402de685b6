#include "model/LoopPolygon.h"
#include "lib/math/geometry/Box.h"
#include "model/PadCircle.h"
#include "model/PadMultiLoop.h"
#include "model/PadObround.h"
#include "model/PadPolygon.h"
#include "model/PadRectangle.h"
#include "model/PadRoundThermal.h"

#include <gtest/gtest.h>

namespace {

constexpr double k_Accuracy = 1e-12;

/// The box of the one outline that the shape has as a loop.
geom::Box LoopBox(const BasePad& shape) {
    std::vector<geom::Polygon> polygons;
    EXPECT_TRUE(AddLoopPolygon_G(shape, polygons));
    EXPECT_EQ(polygons.size(), 1U);
    return polygons.front().GetBox();
}

} // namespace

TEST(LoopPolygonTest, PolygonIsTakenAsItIs) {
    const geom::Polygon polygon(geom::Box(1, 2, 3, 5), 0);
    std::vector<geom::Polygon> polygons;
    EXPECT_TRUE(AddLoopPolygon_G(PadPolygon(polygon, 2, "a"), polygons));
    ASSERT_EQ(polygons.size(), 1U);
    EXPECT_TRUE(polygons[0] == polygon);
}

TEST(LoopPolygonTest, CircleIsAtTheOrigin) {
    const PadCircle pad(3.0, 0, "a");
    EXPECT_TRUE(LoopBox(pad).IsEqualTo(geom::Box(-1.5, -1.5, 1.5, 1.5), k_Accuracy));
}

TEST(LoopPolygonTest, RectangleIsTurnedAboutThePadsOrigin) {
    PadRectangle pad(4.0, 2.0, 90.0, 1, "a");
    pad.offsetX = 10.0; // x from 8 to 12 becomes y, y from -1 to 1 becomes x
    EXPECT_EQ(LoopBox(pad), geom::Box(-1, 8, 1, 12));
}

TEST(LoopPolygonTest, ObroundIsABoxAtTheOriginWhateverItsOffset) {
    PadObround pad(4.0, 2.0, 1.0, 3, "a");
    pad.offsetX = 10.0;
    EXPECT_EQ(LoopBox(pad), geom::Box(-2, -1, 2, 1));
}

TEST(LoopPolygonTest, ThermalIsDropped) {
    std::vector<geom::Polygon> polygons(1);
    EXPECT_FALSE(AddLoopPolygon_G(PadRoundThermal(2.0, 1.0, 4, 0.1, 0.0, "a"), polygons));
    EXPECT_EQ(polygons.size(), 1U);
}
