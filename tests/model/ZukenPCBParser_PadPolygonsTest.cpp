#include "lib/math/geometry/Box.h"
#include "model/PadCircle.h"
#include "model/PadMultiLoop.h"
#include "model/PadObround.h"
#include "model/PadPolygon.h"
#include "model/PadRectangle.h"
#include "model/PadRoundThermal.h"
#include "model/ZukenPCBParser.h"
#include "tests/AssertionRecorder.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr double k_Accuracy = 1e-12;

/// The box of the one outline that the pad has.
geom::Box BoxOf(const BasePad& pad) {
    std::vector<geom::Polygon> polygons;
    EXPECT_EQ(ZukenPCBParser::GetPadPolygons(pad, polygons), 1);
    return polygons.empty() ? geom::Box() : polygons.front().GetBox();
}

} // namespace

TEST(ZukenPCBParser_PadPolygonsTest, PolygonIsTakenAsItIs) {
    EXPECT_EQ(BoxOf(PadPolygon(geom::Polygon(geom::Box(1, 2, 3, 5), 0), 2, "a")), geom::Box(1, 2, 3, 5));
}

TEST(ZukenPCBParser_PadPolygonsTest, CircleIsAtTheOrigin) {
    EXPECT_TRUE(BoxOf(PadCircle(3.0, 0, "a")).IsEqualTo(geom::Box(-1.5, -1.5, 1.5, 1.5), k_Accuracy));
}

TEST(ZukenPCBParser_PadPolygonsTest, CircleIgnoresOffsets) {
    PadCircle pad(3.0, 0, "a");
    pad.offsetX = 10.0;
    EXPECT_TRUE(BoxOf(pad).IsEqualTo(geom::Box(-1.5, -1.5, 1.5, 1.5), k_Accuracy));
}

TEST(ZukenPCBParser_PadPolygonsTest, ANegativeDiameterIsReportedAndGoesOn) {
    const AssertionRecorder recorder;
    std::vector<geom::Polygon> polygons;
    EXPECT_EQ(ZukenPCBParser::GetPadPolygons(PadCircle(-3.0, 0, "a"), polygons), 1);
    EXPECT_THAT(AssertionRecorder::Take(), testing::Contains("m_Radius >= k_Unit_0, Circle.h"));
}

TEST(ZukenPCBParser_PadPolygonsTest, TurnedRectangleIsNotTurned) {
    PadRectangle pad(4.0, 2.0, 90.0, 1, "a");
    pad.offsetX = 10.0;
    pad.offsetY = 1.0;
    EXPECT_EQ(BoxOf(pad), geom::Box(8, 0, 12, 2));
}

TEST(ZukenPCBParser_PadPolygonsTest, ObroundHasSquareCornersAtItsOffset) {
    PadObround pad(4.0, 2.0, 1.0, 3, "a");
    pad.offsetX = 10.0;
    std::vector<geom::Polygon> polygons;
    ZukenPCBParser::GetPadPolygons(pad, polygons);
    ASSERT_EQ(polygons.size(), 1U);
    EXPECT_EQ(polygons[0].GetArcs().size(), 4U);
    EXPECT_EQ(polygons[0].GetBox(), geom::Box(8, -1, 12, 1));
}

TEST(ZukenPCBParser_PadPolygonsTest, AllLoopsAreAppendedInOrder) {
    const geom::Polygon first(geom::Box(geom::k_Origin, 2), 0);
    const geom::Polygon second(geom::Box(geom::k_Origin, 1), 0);
    std::vector<geom::Polygon> polygons(1);
    EXPECT_EQ(ZukenPCBParser::GetPadPolygons(PadMultiLoop({first, second}, 7, "a"), polygons), 3);
    ASSERT_EQ(polygons.size(), 3U);
    EXPECT_TRUE(polygons[1] == first);
    EXPECT_TRUE(polygons[2] == second);
}

TEST(ZukenPCBParser_PadPolygonsTest, ThermalIsReportedAndAddsNothing) {
    const AssertionRecorder recorder;
    std::vector<geom::Polygon> polygons(2);
    EXPECT_EQ(ZukenPCBParser::GetPadPolygons(PadRoundThermal(2.0, 1.0, 4, 0.1, 0.0, "a"), polygons), 2);
    EXPECT_EQ(polygons.size(), 2U);
    EXPECT_THAT(AssertionRecorder::Take(), ElementsAre("0, ZukenPCBParser"));
}
