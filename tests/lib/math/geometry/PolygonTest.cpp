#include "lib/math/geometry/Polygon.h"

#include "lib/math/geometry/Rotation.h"
#include "lib/math/geometry/Transformation.h"
#include "tests/AssertionRecorder.h"
#include "tests/GeometryFixtures.h"

#include <gmock/gmock.h>

#include <cmath>
#include <type_traits>
#include <vector>

namespace {

using namespace geom;
using fixtures::ArcOf;
using fixtures::ArcsOf;
using fixtures::CircleOf;
using fixtures::k_SquareBox;
using fixtures::SegmentOf;
using testing::ElementsAre;
using Arcs = std::vector<Arc>;
using Points = std::vector<Point>;

/// Whether the ends match exactly, all round.
bool IsExactlyClosed(const Polygon& polygon) {
    const Arcs arcs = polygon.GetArcs();
    for (std::size_t i = 0; i < arcs.size(); ++i) {
        if (arcs[i].GetEnd() != arcs[(i + 1) % arcs.size()].GetStart())
            return false;
    }
    return true;
}

TEST(PolygonTest, IsAPolyArcAndNoMore) {
    EXPECT_EQ(sizeof(Polygon), sizeof(PolyArc));
    EXPECT_TRUE((std::is_base_of_v<PolyArc, Polygon>));
}

TEST(PolygonTest, DefaultIsClosedAndEmpty) {
    EXPECT_TRUE(Polygon().empty());
    EXPECT_EQ(Polygon().GetOpenClosed(), k_Closed);
    EXPECT_EQ(Polygon().GetBox(), k_EmptyBox);
}

TEST(PolygonTest, EveryConstructorCloses) {
    for (const Polygon& polygon : {Polygon(ArcsOf("0,0 1,0 0,1 0,0"), false), Polygon(Points{{0, 0}, {1, 0}}, false),
             Polygon(CircleOf("0,0 r1")), Polygon(k_SquareBox, 0), Polygon(k_SquareBox, 1), Polygon(k_EmptyBox, 1),
             Polygon(SegmentOf("0,0 1,0"), 0), Polygon(SegmentOf("0,0 1,0"), 1)})
        EXPECT_EQ(polygon.GetOpenClosed(), k_Closed);
}

TEST(PolygonTest, ClockwiseArcsComeBackReversedAndOthersAsTheyAre) {
    const Arcs clockwise = ArcsOf("0,0 0,1 1,0 0,0");
    EXPECT_EQ(Polygon(clockwise, true).GetArcs(), ArcsOf("0,0 1,0 0,1 0,0"));
    EXPECT_EQ(Polygon(clockwise, false).GetArcs(), clockwise);
    const Arcs counterClockwise = ArcsOf("0,0 1,0 0,1 0,0");
    EXPECT_EQ(Polygon(counterClockwise, true).GetArcs(), counterClockwise);
}

TEST(PolygonTest, OutlineWithoutAreaIsLeftAlone) {
    const Arcs thereAndBack = ArcsOf("0,0 1,0 0,0");
    EXPECT_EQ(Polygon(thereAndBack, true).GetArcs(), thereAndBack);
}

TEST(PolygonTest, VerticesAreOrientedAfterClosing) {
    EXPECT_EQ(Polygon(Points{{0, 0}, {0, 1}, {1, 0}}, true).GetArcs(), ArcsOf("0,0 1,0 0,1 0,0"));
    EXPECT_EQ(Polygon(Points{{0, 0}, {0, 1}, {1, 0}}, false).GetArcs(), ArcsOf("0,0 0,1 1,0 0,0"));
}

TEST(PolygonTest, NoArcsToOrientAreReported) {
    const AssertionRecorder assertions;
    EXPECT_TRUE(Polygon(Arcs(), true).empty());
    EXPECT_THAT(AssertionRecorder::Take(), ElementsAre("!empty(), PolyArc"));
    EXPECT_TRUE(Polygon(Arcs(), false).empty());
    EXPECT_THAT(AssertionRecorder::Take(), testing::IsEmpty());
}

TEST(PolygonTest, CircleIsOneArcFromItsRightmostPoint) {
    EXPECT_THAT(Polygon(CircleOf("1,2 r3")).GetArcs(), ElementsAre(ArcOf("4,2 4,2 h-6 a180")));
    EXPECT_DOUBLE_EQ(double(Polygon(CircleOf("1,2 r3")).GetArea()), 9 * k_Pi);
}

TEST(PolygonTest, CircleOfNoRadiusIsAPoint) {
    EXPECT_THAT(Polygon(CircleOf("1,2 r0")).GetArcs(), ElementsAre(ArcOf("1,2 1,2")));
}

TEST(PolygonTest, BoxHasFourSidesFromTheTopOneGoingLeft) {
    EXPECT_EQ(Polygon(k_SquareBox, 0).GetArcs(), ArcsOf("10,10 0,10 0,0 10,0 10,10"));
    EXPECT_EQ(Polygon(k_SquareBox, 0).GetArea(), Area(100));
}

TEST(PolygonTest, ExpandedBoxHasRoundCorners) {
    const Polygon polygon(k_SquareBox, 1);
    const Arcs arcs = polygon.GetArcs();
    const double h = -(1 - std::sqrt(0.5));
    const Arcs expected = {
        Arc({11, 10}, {10, 11}, h),
        ArcOf("10,11 0,11"),
        Arc({0, 11}, {-1, 10}, h),
        ArcOf("-1,10 -1,0"),
        Arc({-1, 0}, {0, -1}, h),
        ArcOf("0,-1 10,-1"),
        Arc({10, -1}, {11, 0}, h),
        ArcOf("11,0 11,10"),
    };
    ASSERT_EQ(arcs.size(), expected.size());
    for (std::size_t i = 0; i < arcs.size(); ++i) {
        EXPECT_EQ(arcs[i].GetStartEndSegment(), expected[i].GetStartEndSegment());
        EXPECT_DOUBLE_EQ(double(arcs[i].GetHeight()), double(expected[i].GetHeight()));
    }
    EXPECT_TRUE(arcs[0].IsCCW());
    EXPECT_NEAR(double(polygon.GetArea()), 100 + 40 + k_Pi, 1e-12);
    EXPECT_TRUE(IsExactlyClosed(polygon));
}

TEST(PolygonTest, CornersTakeTheirCentersFromTheBox) {
    for (const Arc& arc : Polygon(fixtures::k_TallBox, 3)) {
        if (arc.IsSegment(k_Unit_0))
            continue;
        EXPECT_NEAR(double(arc.GetRadius()), 3, 1e-14);
        EXPECT_TRUE(fixtures::k_TallBox.IntersectsPoint(arc.GetCenter(), 1e-13));
    }
}

TEST(PolygonTest, EmptyBoxGivesNoArcs) {
    EXPECT_TRUE(Polygon(k_EmptyBox, 0).empty());
    EXPECT_TRUE(Polygon(k_EmptyBox, 1).empty());
}

TEST(PolygonTest, BoxOfNoWidthIsAnObroundAlongItsDiagonal) {
    const Polygon polygon(Box(0, 0, 0, 10), 1);
    EXPECT_EQ(polygon, Polygon(SegmentOf("0,0 0,10"), 2));
    EXPECT_EQ(polygon.GetBox(), Box(-1, -1, 1, 11));
    EXPECT_NEAR(double(polygon.GetArea()), 20 + k_Pi, 1e-13);
}

TEST(PolygonTest, BoxThatIsAPointIsACircleOrAPoint) {
    EXPECT_EQ(Polygon(Box(3, 4, 3, 4), 2), Polygon(CircleOf("3,4 r2")));
    EXPECT_THAT(Polygon(Box(3, 4, 3, 4), 0).GetArcs(), ElementsAre(ArcOf("3,4 3,4")));
}

TEST(PolygonTest, SegmentOfNoWidthDoublesBack) {
    EXPECT_EQ(Polygon(SegmentOf("0,0 10,0"), 0).GetArcs(), ArcsOf("0,0 10,0 0,0"));
}

TEST(PolygonTest, SegmentIsAnObroundFromTheLeftOfItsStart) {
    const Polygon polygon(SegmentOf("0,0 10,0"), 2);
    EXPECT_THAT(polygon.GetArcs(),
        ElementsAre(ArcOf("0,1 0,-1 h-1"), ArcOf("0,-1 10,-1"), ArcOf("10,-1 10,1 h-1"), ArcOf("10,1 0,1")));
    EXPECT_EQ(polygon.GetStart(), Point(0, 1));
    EXPECT_EQ(polygon.begin()->GetMidPoint(), Point(-1, 0));
    EXPECT_NEAR(double(polygon.GetArea()), 20 + k_Pi, 1e-13);
}

TEST(PolygonTest, SlopedSegmentKeepsItsEndsExact) {
    const Polygon polygon(SegmentOf("0.1,0.2 7.3,-4.9"), 0.7);
    EXPECT_TRUE(IsExactlyClosed(polygon));
    const double length = std::hypot(7.2, 5.1);
    EXPECT_NEAR(double(polygon.GetArea()), length * 0.7 + k_Pi * 0.35 * 0.35, 1e-12);
}

TEST(PolygonTest, PointLikeSegmentIsACircle) {
    EXPECT_EQ(Polygon(SegmentOf("3,4 3,4"), 2), Polygon(CircleOf("3,4 r1")));
}

TEST(PolygonTest, NegativeWidthIsReported) {
    const AssertionRecorder assertions;
    // The normal points to the other side, so the outline runs clockwise about the right of the segment's start.
    EXPECT_THAT(Polygon(SegmentOf("0,0 10,0"), -2).GetArcs(),
        ElementsAre(ArcOf("0,-1 0,1 h1"), ArcOf("0,1 10,1"), ArcOf("10,1 10,-1 h1"), ArcOf("10,-1 0,-1")));
    EXPECT_THAT(AssertionRecorder::Take(), ElementsAre("width > k_NullUnit, Polygon"));
}

TEST(PolygonTest, IsCircleFillsTheDisc) {
    Circle circle = CircleOf("0,0 r0");
    EXPECT_TRUE(Polygon(CircleOf("1,2 r3")).IsCircle(k_Unit_0, &circle));
    EXPECT_EQ(circle.GetCenter(), Point(1, 2));
    EXPECT_EQ(circle.GetRadius(), Unit(3));
}

TEST(PolygonTest, IsCircleLeavesTheDiscAloneWhereThereIsNone) {
    Circle circle = CircleOf("7,7 r7");
    EXPECT_FALSE(Polygon(k_SquareBox, 0).IsCircle(k_Unit_0, &circle));
    EXPECT_FALSE(Polygon().IsCircle(k_Unit_0, &circle));
    EXPECT_EQ(circle.GetCenter(), Point(7, 7));
    EXPECT_EQ(circle.GetRadius(), Unit(7));
}

TEST(PolygonTest, IsCircleWithoutADiscAnswersAllTheSame) {
    Circle* const none = nullptr;
    EXPECT_TRUE(Polygon(CircleOf("1,2 r3")).IsCircle(k_Unit_0, none));
    EXPECT_TRUE(Polygon(CircleOf("1,2 r3")).IsCircle(k_Unit_0));
    EXPECT_FALSE(Polygon(k_SquareBox, 0).IsCircle(k_Unit_0, none));
    EXPECT_FALSE(Polygon().IsCircle(k_Unit_0, none));
}

TEST(PolygonTest, ChangesGivePolygons) {
    const Polygon box(k_SquareBox, 0);
    const Polygon moved = box.GetTransformed(Transformation(Vector(1, 2)));
    EXPECT_EQ(moved.GetBox(), Box(1, 2, 11, 12));
    const Polygon turned = box.GetRotated(Rotation(k_Origin, k_Angle_90));
    EXPECT_EQ(turned.GetBox(), Box(-10, 0, 0, 10));
    const Polygon reversed = box.GetReversed();
    EXPECT_EQ(reversed.GetArea(), Area(-100));
}

TEST(PolygonTest, AssignmentToItselfDoesNothing) {
    Polygon polygon(k_SquareBox, 0);
    const Polygon& same = polygon;
    polygon = same;
    EXPECT_EQ(polygon.GetArcCount(), 4U);
}

} // namespace
