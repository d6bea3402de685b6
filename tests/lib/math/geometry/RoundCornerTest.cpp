#include "lib/math/geometry/RoundCorner.h"

#include "lib/math/geometry/Line.h"
#include "lib/math/geometry/Triangle.h"

#include "tests/AssertionRecorder.h"
#include "tests/GeometryFixtures.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

namespace {

using namespace geom;
using fixtures::ArcOf;
using fixtures::SegmentOf;

constexpr double k_Tolerance = 1e-14;
const double k_Quarter = 1 - std::sqrt(0.5); // the height of a quarter of a circle of radius 1

void ExpectNear(Point point, double x, double y) {
    EXPECT_NEAR(double(point.GetX()), x, k_Tolerance);
    EXPECT_NEAR(double(point.GetY()), y, k_Tolerance);
}

void ExpectNothing(const ArcResult& result) {
    EXPECT_EQ(result.m_Success, 0U);
    EXPECT_EQ(result.m_Arc, Arc());
}

/// A rounding must lie on its circle and run on without a kink from where it begins to where it ends.
void ExpectRounding(const ArcResult& result, Direction direction, double radius, Point center) {
    ASSERT_EQ(result.m_Success, 1U);
    EXPECT_EQ(result.m_Arc.GetDirection(), direction);
    EXPECT_NEAR(double(result.m_Arc.GetRadius()), radius, k_Tolerance);
    ExpectNear(result.m_Arc.GetCenter(), double(center.GetX()), double(center.GetY()));
}

// Two straight pieces

TEST(RoundCornerTest, SquareCornerEndsOneRadiusFromTheCornerAndBulgesTowardIt) {
    const ArcResult left = GetRoundCorner(Point(0, 0), Point(10, 0), Point(10, 10), 1, k_ShortWay);
    EXPECT_EQ(left.m_Success, 1U);
    EXPECT_EQ(left.m_Arc, Arc({9, 0}, {10, 1}, -k_Quarter));
    const ArcResult right = GetRoundCorner(Point(0, 0), Point(10, 0), Point(10, -10), 1, k_ShortWay);
    EXPECT_EQ(right.m_Success, 1U);
    EXPECT_EQ(right.m_Arc, Arc({9, 0}, {10, -1}, k_Quarter));
}

TEST(RoundCornerTest, SlopedCornerIsTouchedOnBothSides) {
    // Both sides rise 3 in 4 from the corner at (0, 0). A circle of radius 4 in between stands 5 above it.
    const ArcResult rounded = GetRoundCorner(Point(-8, 6), Point(0, 0), Point(8, 6), 4, k_ShortWay);
    ExpectRounding(rounded, k_CCW, 4, Point(0, 5));
    ExpectNear(rounded.m_Arc.GetStart(), -2.4, 1.8);
    ExpectNear(rounded.m_Arc.GetEnd(), 2.4, 1.8);
}

TEST(RoundCornerTest, LongWayGoesRoundTheRestOfTheCircle) {
    const ArcResult rounded = GetRoundCorner(Point(0, 0), Point(10, 0), Point(10, 10), 1, k_LongWay);
    EXPECT_EQ(rounded.m_Arc, Arc({9, 0}, {10, 1}, 1 + std::sqrt(0.5)));
}

TEST(RoundCornerTest, CollinearPointsGivePointLikeArcAtTheCorner) {
    const ArcResult onward = GetRoundCorner(Point(0, 0), Point(5, 5), Point(9, 9), 1, k_ShortWay);
    EXPECT_EQ(onward.m_Success, 1U);
    EXPECT_EQ(onward.m_Arc, ArcOf("5,5 5,5"));
    const ArcResult backward = GetRoundCorner(Point(0, 0), Point(5, 5), Point(1, 1), 1, k_ShortWay);
    EXPECT_EQ(backward.m_Success, 1U);
    EXPECT_EQ(backward.m_Arc, ArcOf("5,5 5,5"));
}

TEST(RoundCornerTest, RadiusTooBigForThePiecesFails) {
    EXPECT_EQ(GetRoundCorner(Point(0, 0), Point(10, 0), Point(10, 20), 10, k_ShortWay).m_Success, 1U);
    ExpectNothing(GetRoundCorner(Point(0, 0), Point(10, 0), Point(10, 20), 11, k_ShortWay)); // the first is too short
    ExpectNothing(GetRoundCorner(Point(0, 0), Point(20, 0), Point(20, 10), 11, k_ShortWay)); // the second is
}

TEST(RoundCornerTest, CornerThatIsStraightButForRoundingStaysSharp) {
    // Not collinear, but the lines through both sides have the same normal to the last bit: they meet nowhere.
    const Point a(0, 0);
    const Point b(0.1, 7 * 0.1);
    const Point c(0.1 * 5, 7 * 0.1 * 5);
    ASSERT_FALSE(Triangle(a, b, c).IsCollinear());
    ASSERT_EQ(Line(a, b).GetNormal(), Line(b, c).GetNormal());
    const AssertionRecorder recorder;
    ExpectNothing(GetRoundCorner(a, b, c, 0.1, k_ShortWay));
}

// An arc and a segment

/// A quarter of the circle of radius 5 about the origin, which arrives at (5, 0) going up.
const Arc k_QuarterUp(Segment({0, -5}, {5, 0}), k_CCW, k_Origin);

TEST(RoundCornerTest, SegmentThatLeavesOutwardIsRoundedOutsideOfTheCircle) {
    // 7, 2.4 and 5 + 2.4 make a right angle.
    const ArcResult rounded = GetRoundCorner(k_QuarterUp, SegmentOf("5,0 15,0"), 2.4, k_ShortWay);
    ExpectRounding(rounded, k_CW, 2.4, Point(7, -2.4));
    ExpectNear(rounded.m_Arc.GetStart(), 7 * 5 / 7.4, -2.4 * 5 / 7.4);
    ExpectNear(rounded.m_Arc.GetEnd(), 7, 0);
}

TEST(RoundCornerTest, SegmentThatLeavesInwardIsRoundedInsideOfTheCircle) {
    // 3, 1.6 and 5 - 1.6 make a right angle.
    const ArcResult rounded = GetRoundCorner(k_QuarterUp, SegmentOf("5,0 -4,0"), 1.6, k_ShortWay);
    ExpectRounding(rounded, k_CCW, 1.6, Point(3, -1.6));
    ExpectNear(rounded.m_Arc.GetStart(), 3 * 5 / 3.4, -1.6 * 5 / 3.4);
    ExpectNear(rounded.m_Arc.GetEnd(), 3, 0);
}

TEST(RoundCornerTest, ArcTheOtherWayRoundIsRoundedInTheOtherSense) {
    const Arc down(Segment({0, 5}, {5, 0}), k_CW, k_Origin);
    ExpectRounding(GetRoundCorner(down, SegmentOf("5,0 15,0"), 2.4, k_ShortWay), k_CCW, 2.4, Point(7, 2.4));
    ExpectRounding(GetRoundCorner(down, SegmentOf("5,0 -4,0"), 1.6, k_ShortWay), k_CW, 1.6, Point(3, 1.6));
}

TEST(RoundCornerTest, LongWayIsIgnoredBesideACurvedPiece) {
    const Segment outward = SegmentOf("5,0 15,0");
    EXPECT_EQ(GetRoundCorner(k_QuarterUp, outward, 2.4, k_LongWay).m_Arc,
        GetRoundCorner(k_QuarterUp, outward, 2.4, k_ShortWay).m_Arc);
}

TEST(RoundCornerTest, StraightArcIsRoundedLikeAPolyline) {
    EXPECT_EQ(GetRoundCorner(ArcOf("0,0 10,0"), SegmentOf("10,0 10,10"), 1, k_ShortWay).m_Arc,
        Arc({9, 0}, {10, 1}, -k_Quarter));
    EXPECT_EQ(GetRoundCorner(ArcOf("0,0 10,0"), SegmentOf("10,0 10,10"), 1, k_LongWay).m_Arc,
        Arc({9, 0}, {10, 1}, 1 + std::sqrt(0.5)));
}

TEST(RoundCornerTest, RadiusTooBigBesideACurvedPieceFails) {
    const Arc shortArc(Segment({4, -3}, {5, 0}), k_CCW, k_Origin);
    // The circle touches the arc's circle ahead of the arc's start.
    EXPECT_EQ(GetRoundCorner(k_QuarterUp, SegmentOf("5,0 -4,0"), 2.4, k_ShortWay).m_Success, 1U);
    ExpectNothing(GetRoundCorner(shortArc, SegmentOf("5,0 -4,0"), 2.4, k_ShortWay));
    // It touches the line behind the segment's end.
    ExpectNothing(GetRoundCorner(k_QuarterUp, SegmentOf("5,0 6.5,0"), 2.4, k_ShortWay));
    // There is none.
    ExpectNothing(GetRoundCorner(k_QuarterUp, SegmentOf("5,0 -4,0"), 3, k_ShortWay));
}

TEST(RoundCornerTest, PointLikeSegmentTakesNoRounding) {
    ExpectNothing(GetRoundCorner(k_QuarterUp, SegmentOf("5,0 5,0"), 1, k_ShortWay));
    const AssertionRecorder recorder;
    const ArcResult sharp = GetRoundCorner(k_QuarterUp, SegmentOf("5,0 5,0"), 0, k_ShortWay);
    EXPECT_EQ(sharp.m_Success, 1U);
    EXPECT_EQ(sharp.m_Arc, ArcOf("5,0 5,0"));
    EXPECT_THAT(recorder.Take(), testing::ElementsAre("radius > 0, RoundCorner"));
}

TEST(RoundCornerTest, PiecesThatDoNotMeetAreReportedAndTheCornerIsTheArcsEnd) {
    const AssertionRecorder recorder;
    const ArcResult rounded = GetRoundCorner(ArcOf("0,0 10,0"), SegmentOf("10,5 10,10"), 1, k_ShortWay);
    EXPECT_EQ(rounded.m_Arc, Arc({9, 0}, {10, 1}, -k_Quarter));
    EXPECT_THAT(recorder.Take(), testing::ElementsAre("arc.GetEnd() == segment.GetStart(), RoundCorner"));
}

// Two arcs

TEST(RoundCornerTest, SegmentAheadOfAnArcIsRoundedAsTheReverse) {
    const Arc quarterDown = k_QuarterUp.GetReversed();
    const ArcResult rounded = GetRoundCorner(ArcOf("15,0 5,0"), quarterDown, 2.4, k_ShortWay, false);
    const ArcResult mirrored = GetRoundCorner(k_QuarterUp, SegmentOf("5,0 15,0"), 2.4, k_ShortWay);
    EXPECT_EQ(rounded.m_Success, 1U);
    EXPECT_EQ(rounded.m_Arc, mirrored.m_Arc.GetReversed());
    ExpectNothing(GetRoundCorner(ArcOf("6.5,0 5,0"), quarterDown, 2.4, k_ShortWay, false));
}

TEST(RoundCornerTest, ArcAheadOfASegmentIsRoundedAsSuch) {
    EXPECT_EQ(GetRoundCorner(k_QuarterUp, ArcOf("5,0 15,0"), 2.4, k_ShortWay, false).m_Arc,
        GetRoundCorner(k_QuarterUp, SegmentOf("5,0 15,0"), 2.4, k_ShortWay).m_Arc);
    EXPECT_EQ(GetRoundCorner(ArcOf("0,0 10,0"), ArcOf("10,0 10,10"), 1, k_ShortWay, true).m_Arc,
        Arc({9, 0}, {10, 1}, -k_Quarter));
}

// Circles of radius 5 about (-3, 0) and (3, 0), which cross at (0, 4).
const Point k_LeftCenter(-3, 0);
const Point k_RightCenter(3, 0);

/// Up the right side of the left circle and down the left side of the right one: the upper tip of a lens.
const Arc k_LensUp(Segment({2, 0}, {0, 4}), k_CCW, k_LeftCenter);
const Arc k_LensDown(Segment({0, 4}, {-2, 0}), k_CCW, k_RightCenter);
/// Over the left circle and over the right one: the valley between two hills.
const Arc k_LeftHill(Segment({-3, 5}, {0, 4}), k_CW, k_LeftCenter);
const Arc k_RightHill(Segment({0, 4}, {3, 5}), k_CW, k_RightCenter);

TEST(RoundCornerTest, TipOfALensIsRoundedInsideOfBothCircles) {
    // 3, 1.25 and 5 - 1.75 make a right angle.
    const ArcResult rounded = GetRoundCorner(k_LensUp, k_LensDown, 1.75, k_ShortWay, false);
    ExpectRounding(rounded, k_CCW, 1.75, Point(0, 1.25));
    ExpectNear(rounded.m_Arc.GetStart(), -3 + 3 * 5 / 3.25, 1.25 * 5 / 3.25);
    ExpectNear(rounded.m_Arc.GetEnd(), 3 - 3 * 5 / 3.25, 1.25 * 5 / 3.25);
}

TEST(RoundCornerTest, ValleyIsRoundedOutsideOfBothCircles) {
    // 3, 5.625 and 5 + 1.375 make a right angle.
    const ArcResult rounded = GetRoundCorner(k_LeftHill, k_RightHill, 1.375, k_ShortWay, false);
    ExpectRounding(rounded, k_CCW, 1.375, Point(0, 5.625));
    ExpectNear(rounded.m_Arc.GetStart(), -3 + 3 * 5 / 6.375, 5.625 * 5 / 6.375);
    ExpectNear(rounded.m_Arc.GetEnd(), 3 - 3 * 5 / 6.375, 5.625 * 5 / 6.375);
}

TEST(RoundCornerTest, CornerOutOfOneCircleAndIntoTheOther) {
    // 5.6 from the left centre and 4.4 from the right one.
    const double y = std::sqrt(4.4 * 4.4 - 4);
    ExpectRounding(GetRoundCorner(k_LensUp, k_RightHill, 0.6, k_ShortWay, false), k_CW, 0.6, Point(1, y));
    ExpectRounding(GetRoundCorner(k_LeftHill, k_LensDown, 0.6, k_ShortWay, false), k_CW, 0.6, Point(-1, y));
}

TEST(RoundCornerTest, LongWayBetweenArcsIsTheComplement) {
    const Arc rounding = GetRoundCorner(k_LensUp, k_LensDown, 1.75, k_ShortWay, false).m_Arc;
    const ArcResult rest = GetRoundCorner(k_LensUp, k_LensDown, 1.75, k_LongWay, false);
    EXPECT_EQ(rest.m_Success, 1U);
    EXPECT_EQ(rest.m_Arc, rounding.GetComplement());
    EXPECT_EQ(rest.m_Arc.GetStart(), rounding.GetEnd());
}

TEST(RoundCornerTest, RadiusTooBigForTheArcsFails) {
    ExpectNothing(GetRoundCorner(k_LensUp, k_LensDown, 2.5, k_ShortWay, false)); // wider than the lens
    const Arc shortUp(Segment({1, 3}, {0, 4}), k_CCW, k_LeftCenter);
    const Arc shortDown(Segment({0, 4}, {-1, 3}), k_CCW, k_RightCenter);
    ExpectNothing(GetRoundCorner(shortUp, k_LensDown, 1.75, k_ShortWay, false));
    ExpectNothing(GetRoundCorner(k_LensUp, shortDown, 1.75, k_ShortWay, false));
}

TEST(RoundCornerTest, OtherSidesAreTriedOnlyWhenAllowed) {
    // All but a sliver of both circles, so that a circle of radius 6 touches them from outside, at the top.
    const Point leftStart = k_LeftCenter + Vector(5 * 8 / 17.0, 5 * 15 / 17.0);
    const Point rightEnd = k_RightCenter + Vector(-5 * 8 / 17.0, 5 * 15 / 17.0);
    const Arc around(Segment(leftStart, {0, 4}), k_CCW, k_LeftCenter);
    const Arc aroundToo(Segment({0, 4}, rightEnd), k_CCW, k_RightCenter);
    ExpectNothing(GetRoundCorner(around, aroundToo, 6, k_ShortWay, false));
    const ArcResult rounded = GetRoundCorner(around, aroundToo, 6, k_ShortWay, true);
    ASSERT_EQ(rounded.m_Success, 1U);
    EXPECT_EQ(rounded.m_Arc.GetDirection(), k_CW);
    EXPECT_NEAR(double(rounded.m_Arc.GetRadius()), 6, 1e-13);
    EXPECT_NEAR(double(rounded.m_Arc.GetCenter().GetX()), 0, 1e-13);
    EXPECT_NEAR(double(rounded.m_Arc.GetCenter().GetY()), std::sqrt(11 * 11 - 9), 1e-13);
}

TEST(RoundCornerTest, CornerOnTheLineOfCentersTakesTheSideOfTheFirstArc) {
    // The lower halves of two circles that touch at the origin: the way goes up to there and down again. Radii 2, 3 and
    // 0.5 put the centre 2.5 and 3.5 from theirs.
    const Arc up = ArcOf("-4,0 0,0 h-2");
    const Arc down = ArcOf("0,0 6,0 h-3");
    ExpectRounding(GetRoundCorner(up, down, 0.5, k_ShortWay, true), k_CW, 0.5, Point(-0.1, -std::sqrt(2.64)));
    const Arc upperUp = ArcOf("-4,0 0,0 h2");
    const Arc upperDown = ArcOf("0,0 6,0 h3");
    ExpectRounding(GetRoundCorner(upperUp, upperDown, 0.5, k_ShortWay, true), k_CCW, 0.5, Point(-0.1, std::sqrt(2.64)));
}

TEST(RoundCornerTest, ArcsThatDoNotMeetAreReported) {
    const AssertionRecorder recorder;
    (void)GetRoundCorner(ArcOf("0,0 10,0"), ArcOf("10,5 10,10"), 1, k_ShortWay, false);
    EXPECT_THAT(recorder.Take(), testing::Contains("a1.GetEnd() == a2.GetStart(), RoundCorner"));
}

} // namespace
