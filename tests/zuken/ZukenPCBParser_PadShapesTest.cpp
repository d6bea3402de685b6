#include "model/PadCircle.h"
#include "model/PadPolygon.h"
#include "model/PadRectangle.h"
#include "model/PadRoundThermal.h"
#include "tests/AssertionRecorder.h"
#include "tests/BoardText.h"

#include <gmock/gmock.h>

#include <limits>
#include <stdexcept>

namespace {

using testing::ElementsAre;
using testing::SizeIs;

/// What `shape` makes of a pad; `unit` is that of its file.
std::unique_ptr<BasePad> ShapeOf(const std::string& shape, const char* unit = "MM") {
    ZukenPCBParser parser{io::CBlock(), io::CBlock()};
    parser.ReadUnits(ListOf(std::string("(header (unit ") + unit + "))"));
    io::CBlock_func list = ListOf(shape);
    return parser.ReadPadShape(list, "p");
}

/// The same for a shape that has to become a `Pad`.
template <class Pad>
std::unique_ptr<Pad> ShapeOf_T(const std::string& shape, const char* unit = "MM") {
    std::unique_ptr<BasePad> pad = ShapeOf(shape, unit);
    if (dynamic_cast<Pad*>(pad.get()) == nullptr)
        throw std::runtime_error("another pad, or none, of " + shape);
    return std::unique_ptr<Pad>(dynamic_cast<Pad*>(pad.release()));
}

/// Compares boxes up to the rounding of a few additions.
void ExpectBox(const geom::Box& expected, const geom::Box& actual) {
    EXPECT_TRUE(expected.IsEqualTo(actual, 1e-12))
        << double(actual.GetXRange().GetMin()) << " to " << double(actual.GetXRange().GetMax()) << ", "
        << double(actual.GetYRange().GetMin()) << " to " << double(actual.GetYRange().GetMax());
}

void ExpectSize(double width, double height, const PadRectangle& pad) {
    EXPECT_EQ(width, pad.width);
    EXPECT_EQ(height, pad.height);
    EXPECT_EQ(0.0, pad.angle);
    EXPECT_EQ(0.0, pad.offsetX);
    EXPECT_EQ(0.0, pad.offsetY);
}

} // namespace

TEST(ZukenPCBParser_PadShapesTest, EveryShapeBearsTheNameAndItsKind) {
    const struct {
        const char* m_Shape;
        uint32_t m_Kind;
    } k_Rows[] = {
        {"(circle 1)", 0},
        {"(oblong (width 1) (pt 0 0) (pt 2 0))", 2},
        {"(line (vertex (pt 0 0 (width 1)) (pt 2 0)))", 1},
        {"(rectangle (width 1) (height 2))", 1},
        {"(rectangle (width 3) (height 4) (outlineWidth 1))", 2},
        {"(surface (vertex (pt 0 0) (pt 1 0) (pt 1 1)))", 2},
        {"(roundThermal (out 1))", 6},
    };
    for (const auto& row : k_Rows) {
        const auto pad = ShapeOf(row.m_Shape);
        ASSERT_NE(nullptr, pad) << row.m_Shape;
        EXPECT_EQ("p", pad->GetName().QRL_ANSI()) << row.m_Shape;
        EXPECT_EQ(row.m_Kind, pad->kind) << row.m_Shape;
    }
}

TEST(ZukenPCBParser_PadShapesTest, UnknownShapeIsNone) { EXPECT_EQ(nullptr, ShapeOf("(hexagon 1)")); }

TEST(ZukenPCBParser_PadShapesTest, KeywordsMatchInAnyCase) {
    EXPECT_TRUE(ShapeOf("(circle 1)")->IsCircle());
    EXPECT_TRUE(ShapeOf("(CIRCLE 1)")->IsCircle());
    EXPECT_TRUE(ShapeOf("(OBLONG (WIDTH 1) (PT 0 0) (PT 2 0))")->IsPolygon());
    EXPECT_TRUE(ShapeOf("(Line (VERTEX (Pt 0 0 (Width 1)) (PT 2 0)))")->IsRectangle());
    EXPECT_TRUE(ShapeOf("(RECTANGLE (WIDTH 1))")->IsRectangle());
    EXPECT_TRUE(ShapeOf("(Surface (vertex (pt 0 0)))")->IsPolygon());
    EXPECT_TRUE(ShapeOf("(ROUNDTHERMAL)")->IsRoundThermal());
}

TEST(ZukenPCBParser_PadShapesTest, CircleStandsOnTheOriginWhateverItsPoint) {
    const auto pad = ShapeOf_T<PadCircle>("(circle 1.5 (pt 7 8))");
    EXPECT_EQ(3.0, pad->diameter);
    EXPECT_EQ(0.0, pad->offsetX);
    EXPECT_EQ(0.0, pad->offsetY);
}

TEST(ZukenPCBParser_PadShapesTest, CircleIsScaled) {
    EXPECT_DOUBLE_EQ(1.6, ShapeOf_T<PadCircle>("(circle 80000)", "DBUNIT")->diameter);
}

TEST(ZukenPCBParser_PadShapesTest, CircleWithoutANumberHasNoDiameter) {
    EXPECT_EQ(0.0, ShapeOf_T<PadCircle>("(circle)")->diameter);
    EXPECT_EQ(0.0, ShapeOf_T<PadCircle>("(circle (pt 0 0) 5)")->diameter);
    EXPECT_EQ(0.0, ShapeOf_T<PadCircle>("(circle word)")->diameter);
}

TEST(ZukenPCBParser_PadShapesTest, OblongIsAStrokeWithRoundEndsWhereItsPointsAre) {
    const auto pad = ShapeOf_T<PadPolygon>("(oblong (pt 10 5) (width 2) (pt 14 5))");
    ExpectBox({9, 4, 15, 6}, pad->polygon.GetBox());
    EXPECT_NEAR(8 + geom::k_Pi, double(pad->polygon.GetArea()), 1e-12);
    EXPECT_EQ(0.0, pad->offsetX);
}

TEST(ZukenPCBParser_PadShapesTest, LastPointOfAnOblongCounts) {
    ExpectBox({-1, -1, 5, 1},
        ShapeOf_T<PadPolygon>("(oblong (width 2) (pt 0 0) (pt 9 9) 3 (arc 8) (pt 4 0))")->polygon.GetBox());
}

TEST(ZukenPCBParser_PadShapesTest, OblongOfOnePointEndsAtTheOrigin) {
    ExpectBox({-1, -1, 5, 1}, ShapeOf_T<PadPolygon>("(oblong (width 2) (pt 4 0))")->polygon.GetBox());
}

TEST(ZukenPCBParser_PadShapesTest, OblongIsScaled) {
    const auto pad = ShapeOf_T<PadPolygon>("(oblong (width 200000) (pt 0 0) (pt 400000 0))", "DBUNIT");
    ExpectBox({-1, -1, 5, 1}, pad->polygon.GetBox());
}

TEST(ZukenPCBParser_PadShapesTest, OblongWithoutAPointIsReportedAndADiscOfTheWholeWidth) {
    const AssertionRecorder recorder;
    const auto pad = ShapeOf_T<PadPolygon>("(oblong (width 2))");
    EXPECT_THAT(AssertionRecorder::Take(), ElementsAre("!center_segment.IsPoint(0, NULL), Segment"));
    EXPECT_EQ(geom::Box(-2, -2, 2, 2), pad->polygon.GetBox());
}

TEST(ZukenPCBParser_PadShapesTest, OblongOfTwoEqualPointsIsADiscThere) {
    const AssertionRecorder recorder;
    const auto pad = ShapeOf_T<PadPolygon>("(oblong (width 2) (pt 10 10) (pt 10 10))");
    EXPECT_THAT(AssertionRecorder::Take(), SizeIs(1));
    EXPECT_EQ(geom::Box(8, 8, 12, 12), pad->polygon.GetBox());
}

TEST(ZukenPCBParser_PadShapesTest, LineBecomesABoxByItsRise) {
    ExpectSize(10, 2, *ShapeOf_T<PadRectangle>("(line (vertex (pt 0 0 (width 2)) (pt 10 0)))"));
    ExpectSize(2, 10, *ShapeOf_T<PadRectangle>("(line (vertex (pt 0 0 (width 2)) (pt 0 10)))"));
    ExpectSize(2, 4, *ShapeOf_T<PadRectangle>("(line (vertex (pt 0 0 (width 2)) (pt 3 4)))"));
}

TEST(ZukenPCBParser_PadShapesTest, LineDropsItsPosition) {
    ExpectSize(10, 2, *ShapeOf_T<PadRectangle>("(line (vertex (pt 70 80 (width 2)) (pt 60 80)))"));
}

TEST(ZukenPCBParser_PadShapesTest, PenShapeChangesNothing) {
    for (const char* pen :
        {"", "(penShape)", "(penShape SQUARE)", "(penShape RECTANGLE)", "(penShape CIRCLE)", "(penShape 7)"}) {
        SCOPED_TRACE(pen);
        ExpectSize(
            10, 2, *ShapeOf_T<PadRectangle>(std::string("(line ") + pen + "(vertex (pt 0 0 (width 2)) (pt 10 0)))"));
    }
}

TEST(ZukenPCBParser_PadShapesTest, LineWithoutLengthOrPenIsNoShape) {
    EXPECT_EQ(nullptr, ShapeOf("(line (vertex (pt 5 5 (width 2)) (pt 5 5)))"));
    EXPECT_EQ(nullptr, ShapeOf("(line (vertex (pt 0 0 (width 0)) (pt 10 0)))"));
    EXPECT_EQ(nullptr, ShapeOf("(line (vertex (pt 0 0) (pt 0 10)))"));
    EXPECT_EQ(nullptr, ShapeOf("(line)"));
}

TEST(ZukenPCBParser_PadShapesTest, LineHasToExceedTheSmallestSize) {
    EXPECT_EQ(nullptr, ShapeOf("(line (vertex (pt 0 0 (width 2.220446049250313e-16)) (pt 10 0)))"));
    EXPECT_NE(nullptr, ShapeOf("(line (vertex (pt 0 0 (width 2.220446049250314e-16)) (pt 10 0)))"));
    EXPECT_EQ(nullptr, ShapeOf("(line (vertex (pt 0 0 (width -2)) (pt 10 0)))"));
}

TEST(ZukenPCBParser_PadShapesTest, PlainRectangleKeepsItsPlaceAndAngle) {
    const auto pad = ShapeOf_T<PadRectangle>("(rectangle (pt 1.5 -2) (width 4) (height 3) (rAngle 30))");
    EXPECT_EQ(4.0, pad->width);
    EXPECT_EQ(3.0, pad->height);
    EXPECT_EQ(30.0, pad->angle);
    EXPECT_EQ(1.5, pad->offsetX);
    EXPECT_EQ(-2.0, pad->offsetY);
}

TEST(ZukenPCBParser_PadShapesTest, RectanglesLengthsAreScaledAndItsAngleIsNot) {
    const auto pad =
        ShapeOf_T<PadRectangle>("(rectangle (pt 100000 200000) (width 300000) (height 400000) (rAngle 45))", "DBUNIT");
    EXPECT_DOUBLE_EQ(3.0, pad->width);
    EXPECT_DOUBLE_EQ(4.0, pad->height);
    EXPECT_EQ(45.0, pad->angle);
    EXPECT_DOUBLE_EQ(1.0, pad->offsetX);
    EXPECT_DOUBLE_EQ(2.0, pad->offsetY);
}

TEST(ZukenPCBParser_PadShapesTest, RectangleWithoutASideHasSizeZeroAtItsPlace) {
    const auto noWidth = ShapeOf_T<PadRectangle>("(rectangle (pt 1 2) (height 3))");
    EXPECT_EQ(0.0, noWidth->width);
    EXPECT_EQ(3.0, noWidth->height);
    EXPECT_EQ(1.0, noWidth->offsetX);
    EXPECT_EQ(2.0, noWidth->offsetY);
    EXPECT_EQ(0.0, ShapeOf_T<PadRectangle>("(rectangle (pt 1 2) (width 3))")->height);
}

TEST(ZukenPCBParser_PadShapesTest, RectangleWithAnOutlineOfExactlyTheToleranceStaysPlain) {
    EXPECT_TRUE(ShapeOf("(rectangle (width 4) (height 3) (outlineWidth 1e-8))")->IsRectangle());
    EXPECT_TRUE(ShapeOf("(rectangle (width 4) (height 3) (outlineWidth -1))")->IsRectangle());
    EXPECT_TRUE(ShapeOf("(rectangle (width 4) (height 3) (outlineWidth 1.1e-8))")->IsPolygon());
}

TEST(ZukenPCBParser_PadShapesTest, RoundedRectangleIsReducedInHeightOnlyAndStandsOnTheOrigin) {
    const auto pad = ShapeOf_T<PadPolygon>("(rectangle (pt 50 60) (width 4) (height 3) (outlineWidth 0.5))");
    ExpectBox({-2, -1.25, 2, 1.25}, pad->polygon.GetBox());
    EXPECT_EQ(0.0, pad->offsetX);
    EXPECT_EQ(0.0, pad->offsetY);
}

TEST(ZukenPCBParser_PadShapesTest, CornersOfARoundedRectangleHaveTheRadiusOfItsOutline) {
    const auto pad = ShapeOf_T<PadPolygon>("(rectangle (width 4) (height 3) (outlineWidth 0.5))");
    // Each corner loses a square of the radius and keeps a quarter of a disc of it.
    const double expected = 4 * 2.5 - (4 - geom::k_Pi) * 0.5 * 0.5;
    EXPECT_NEAR(expected, double(pad->polygon.GetArea()), 1e-12);
}

TEST(ZukenPCBParser_PadShapesTest, CornersWithoutRoomTakeHalfTheRadius) {
    // The half of a side of 1.6 - 1 has no room for a radius of 1, but for one of 0.5 neither: the corners stay sharp.
    const auto sharp = ShapeOf_T<PadPolygon>("(rectangle (width 4) (height 1.6) (outlineWidth 1))");
    EXPECT_NEAR(4 * 0.6, double(sharp->polygon.GetArea()), 1e-12);
    // The half of 2.2 - 1 has room for 0.5.
    const auto rounded = ShapeOf_T<PadPolygon>("(rectangle (width 4) (height 2.2) (outlineWidth 1))");
    EXPECT_NEAR(4 * 1.2 - (4 - geom::k_Pi) * 0.5 * 0.5, double(rounded->polygon.GetArea()), 1e-12);
}

TEST(ZukenPCBParser_PadShapesTest, RoundedRectangleIsTurned) {
    const auto pad = ShapeOf_T<PadPolygon>("(rectangle (width 4) (height 3) (rAngle 90) (outlineWidth 0.5))");
    ExpectBox({-1.25, -2, 1.25, 2}, pad->polygon.GetBox());
}

TEST(ZukenPCBParser_PadShapesTest, RoundedRectangleIsScaled) {
    const auto pad = ShapeOf_T<PadPolygon>("(rectangle (width 400000) (height 300000) (outlineWidth 50000))", "DBUNIT");
    ExpectBox({-2, -1.25, 2, 1.25}, pad->polygon.GetBox());
}

TEST(ZukenPCBParser_PadShapesTest, SurfaceIsTheOutlineOfItsVertex) {
    const auto pad = ShapeOf_T<PadPolygon>("(surface (vertex (pt 0 0) (pt 0 2) (pt 3 2) (pt 3 0)))");
    EXPECT_EQ(geom::Box(0, 0, 3, 2), pad->polygon.GetBox());
    EXPECT_EQ(geom::Area(6), pad->polygon.GetArea()) << "counter-clockwise";
    EXPECT_EQ(0.0, pad->offsetX);
}

TEST(ZukenPCBParser_PadShapesTest, SurfaceIsScaled) {
    const auto pad = ShapeOf_T<PadPolygon>("(surface (vertex (pt 0 0) (pt 300000 0) (pt 300000 200000)))", "DBUNIT");
    ExpectBox({0, 0, 3, 2}, pad->polygon.GetBox());
}

TEST(ZukenPCBParser_PadShapesTest, SurfaceWithoutAVertexIsThePointAtTheOrigin) {
    const auto pad = ShapeOf_T<PadPolygon>("(surface)");
    EXPECT_EQ(geom::Box(geom::k_Origin), pad->polygon.GetBox());
    EXPECT_THAT(pad->polygon.GetArcs(), SizeIs(1));
}

TEST(ZukenPCBParser_PadShapesTest, ThermalKeepsItsNumbers) {
    const auto pad = ShapeOf_T<PadRoundThermal>("(roundThermal (pt 9 9) (out 2) (in 1.5) (nBridge 4)"
                                                " (BridgeWidth 0.5) (BridgeAngle 45))");
    EXPECT_EQ(2.0, pad->outerRadius);
    EXPECT_EQ(1.5, pad->innerRadius);
    EXPECT_EQ(4, pad->bridgeCount);
    EXPECT_EQ(0.5, pad->bridgeWidth);
    EXPECT_EQ(45.0, pad->bridgeAngle);
}

TEST(ZukenPCBParser_PadShapesTest, OnlyTheLengthsOfAThermalAreScaled) {
    const auto pad = ShapeOf_T<PadRoundThermal>(
        "(roundThermal (out 200000) (in 150000) (nBridge 4) (bridgeWidth 50000) (bridgeAngle 45))", "DBUNIT");
    EXPECT_DOUBLE_EQ(2.0, pad->outerRadius);
    EXPECT_DOUBLE_EQ(1.5, pad->innerRadius);
    EXPECT_EQ(4, pad->bridgeCount);
    EXPECT_DOUBLE_EQ(0.5, pad->bridgeWidth);
    EXPECT_EQ(45.0, pad->bridgeAngle);
}

TEST(ZukenPCBParser_PadShapesTest, CountOfBridgesIsCutTowardZeroAndToWhatFits) {
    const struct {
        const char* m_Text;
        int32_t m_Count;
    } k_Rows[] = {
        {"3.9", 3},
        {"-3.9", -3},
        {"0.9", 0},
        {"2147483647", 2147483647},
        {"1e10", std::numeric_limits<int32_t>::max()},
        {"-1e10", std::numeric_limits<int32_t>::min()},
        {"many", 0},
    };
    for (const auto& row : k_Rows)
        EXPECT_EQ(row.m_Count,
            ShapeOf_T<PadRoundThermal>(std::string("(roundThermal (nBridge ") + row.m_Text + "))")->bridgeCount)
            << row.m_Text;
}
