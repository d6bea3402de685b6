#include "lib/math/geometry/Arc.h"

#include "lib/math/geometry/Rotation.h"
#include "lib/math/geometry/Transformation.h"
#include "tests/AssertionRecorder.h"
#include "tests/GeometryFixtures.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

namespace {

using namespace geom;
using fixtures::ArcOf;
using fixtures::CircumferenceOf;
using fixtures::SegmentOf;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr double k_Tolerance = 1e-14;

void ExpectNear(Point point, double x, double y) {
    EXPECT_NEAR(double(point.GetX()), x, k_Tolerance);
    EXPECT_NEAR(double(point.GetY()), y, k_Tolerance);
}

double DegreesOf(Azimuth azimuth) { return azimuth.GetAngle().GetValue(k_Degrees); }

// Construction

TEST(ArcTest, DefaultIsPointAtOrigin) {
    const Arc arc;
    EXPECT_EQ(arc.GetStart(), k_Origin);
    EXPECT_EQ(arc.GetEnd(), k_Origin);
    EXPECT_EQ(arc.GetHeight(), k_NullUnit);
    EXPECT_EQ(arc.GetCenterAzimuth(), k_Azimuth_0);
}

TEST(ArcTest, SegmentBecomesStraightPiece) {
    const Arc arc(SegmentOf("1,2 3,4"));
    EXPECT_EQ(arc.GetStartEndSegment(), SegmentOf("1,2 3,4"));
    EXPECT_EQ(arc.GetHeight(), k_NullUnit);
    EXPECT_EQ(arc.GetCenterAzimuth(), k_Azimuth_0);
}

TEST(ArcTest, CircumferenceBecomesFullCircleFromItsAzimuth) {
    const Arc arc(CircumferenceOf("0,0 r1"), k_Azimuth_0, k_CCW);
    EXPECT_EQ(arc.GetStart(), Point(1, 0));
    EXPECT_EQ(arc.GetEnd(), Point(1, 0));
    EXPECT_EQ(arc.GetHeight(), -2);
    EXPECT_EQ(arc.GetCenterAzimuth(), k_Azimuth_180);
}

TEST(ArcTest, ClockwiseFullCircleHasPositiveHeight) {
    const Arc arc(CircumferenceOf("5,5 r3"), k_Azimuth_90, k_CW);
    EXPECT_EQ(arc.GetStart(), Point(5, 8));
    EXPECT_EQ(arc.GetHeight(), 6);
    EXPECT_EQ(arc.GetCenterAzimuth(), k_Azimuth_270);
}

TEST(ArcTest, CircumferenceOfRadiusZeroBecomesPointAtItsCenter) {
    EXPECT_EQ(Arc(CircumferenceOf("5,6 r0"), k_Azimuth_90, k_CW), ArcOf("5,6 5,6"));
}

TEST(ArcTest, FullCircleWithoutSenseIsReportedAndClockwise) {
    const AssertionRecorder recorder;
    EXPECT_EQ(Arc(CircumferenceOf("0,0 r1"), k_Azimuth_0, k_NoDirection).GetHeight(), 2);
    EXPECT_THAT(recorder.Take(), ElementsAre("cw_ccw == k_CCW || cw_ccw == k_CW, Arc"));
}

TEST(ArcTest, ThreePointsGiveTheArcThroughTheSecond) {
    const Arc half(Point(0, 0), Point(1, 1), Point(2, 0));
    EXPECT_EQ(half.GetStartEndSegment(), SegmentOf("0,0 2,0"));
    EXPECT_EQ(half.GetHeight(), 1);
    const Arc otherHalf(Point(0, 0), Point(1, -1), Point(2, 0));
    EXPECT_EQ(otherHalf.GetHeight(), -1);
    const Arc big(Point(-3, 4), Point(0, -5), Point(3, 4));
    EXPECT_NEAR(double(big.GetHeight()), -9, k_Tolerance);
}

TEST(ArcTest, ThreeCollinearPointsGiveStraightPiece) {
    EXPECT_EQ(Arc(Point(0, 0), Point(1, 1), Point(5, 5)), ArcOf("0,0 5,5"));
    EXPECT_EQ(Arc(Point(0, 0), Point(9, 9), Point(5, 5)), ArcOf("0,0 5,5"));
}

struct CenterCase {
    const char* m_Name;
    Point m_Center;
    Direction m_Direction;
    double m_Height;
};

// Chord of 6 on a circle of radius 5: the centre is 4 away, the heights are 5 - 4 and 5 + 4.
TEST(ArcTest, CenterAndSenseGiveTheHeight) {
    const CenterCase cases[] = {
        {"left, counter-clockwise", {0, 4}, k_CCW, -1},
        {"left, clockwise", {0, 4}, k_CW, 9},
        {"right, counter-clockwise", {0, -4}, k_CCW, -9},
        {"right, clockwise", {0, -4}, k_CW, 1},
        {"on the chord, counter-clockwise", {0, 0}, k_CCW, -3},
        {"on the chord, clockwise", {0, 0}, k_CW, 3},
    };
    for (const CenterCase& c : cases) {
        SCOPED_TRACE(c.m_Name);
        EXPECT_EQ(Arc(SegmentOf("-3,0 3,0"), c.m_Direction, c.m_Center), Arc({-3, 0}, {3, 0}, c.m_Height));
    }
}

TEST(ArcTest, ArcAroundCenterWithoutSenseIsReported) {
    const AssertionRecorder recorder;
    EXPECT_EQ(Arc(SegmentOf("-3,0 3,0"), k_NoDirection, Point(0, -4)).GetHeight(), 1);
    EXPECT_THAT(recorder.Take(), ElementsAre("cw_ccw == k_CW || cw_ccw == k_CCW, Arc"));
}

TEST(ArcTest, UnequalDistancesOfTheEndsTakeTheirMean) {
    const AssertionRecorder recorder;
    // Distances 0.5 and 1.5: the radius is 1, and the centre lies a quarter of the chord off its bisector.
    EXPECT_EQ(Arc(SegmentOf("0,0 2,0"), k_CW, Point(0.5, 0)).GetHeight(), 1);
    EXPECT_THAT(recorder.Take(), IsEmpty());
}

TEST(ArcTest, CenterTooFarOffTheBisectorIsReported) {
    const AssertionRecorder recorder;
    // 0.35 of the chord off the bisector.
    EXPECT_EQ(Arc(SegmentOf("0,0 2,0"), k_CW, Point(0.3, 0)).GetHeight(), 1);
    EXPECT_THAT(recorder.Take(), ElementsAre("ratio < 0.333, Arc"));
}

TEST(ArcTest, FarCenterMayLieOffTheBisector) {
    const AssertionRecorder recorder;
    // 0.4 of the chord off the bisector both times. From far away the distances of the ends differ by less than ten
    // digits show.
    (void)Arc(SegmentOf("0,0 1,0"), k_CW, Point(0.9, 1e6));
    EXPECT_THAT(recorder.Take(), IsEmpty());
    (void)Arc(SegmentOf("0,0 1,0"), k_CW, Point(0.9, 10));
    EXPECT_THAT(recorder.Take(), ElementsAre("ratio < 0.333, Arc"));
}

TEST(ArcTest, RadiusIsNeverBelowHalfTheChord) {
    // The half diagonal of the square of 3 rounds down: its square is less than a quarter of the chord's.
    const double halfDiagonal = std::sqrt(4.5);
    ASSERT_LT(halfDiagonal * halfDiagonal, 4.5);
    const Arc arc(SegmentOf("0,0 3,3"), k_CCW, Point(1.5, 1.5));
    EXPECT_EQ(arc.GetHeight(), -halfDiagonal);
}

TEST(ArcTest, EqualEndsAroundCenterGiveReportedFullCircle) {
    const AssertionRecorder recorder;
    EXPECT_EQ(Arc(SegmentOf("1,0 1,0"), k_CCW, k_Origin), ArcOf("1,0 1,0 h-2 a180"));
    EXPECT_EQ(Arc(SegmentOf("1,0 1,0"), k_CW, k_Origin), ArcOf("1,0 1,0 h2 a180"));
    const char* report = "!\"We haven't expected full circles here in the past - code untested\", Arc";
    EXPECT_THAT(recorder.Take(), ElementsAre(report, report));
}

TEST(ArcTest, EqualEndsAroundThemselvesGiveReportedPoint) {
    const AssertionRecorder recorder;
    EXPECT_EQ(Arc(SegmentOf("1,0 1,0"), k_CW, Point(1, 0)), ArcOf("1,0 1,0"));
    EXPECT_THAT(
        recorder.Take(), ElementsAre("!\"We haven't expected full circles here in the past - code untested\", Arc"));
}

// Kinds

TEST(ArcTest, StraightWithinAccuracyGivesItsChord) {
    Segment chord;
    EXPECT_FALSE(ArcOf("0,0 2,0 h-0.5").IsSegment(0.25, &chord));
    EXPECT_EQ(chord, Segment());
    EXPECT_TRUE(ArcOf("0,0 2,0 h-0.5").IsSegment(0.5, &chord));
    EXPECT_EQ(chord, SegmentOf("0,0 2,0"));
    EXPECT_TRUE(ArcOf("0,0 2,0").IsSegment(0));
    EXPECT_FALSE(Arc({0, 0}, {2, 0}, 5e-324).IsSegment(0));
}

TEST(ArcTest, PointWithinAccuracyGivesItsStart) {
    Point point;
    EXPECT_FALSE(ArcOf("1,2 1,2.5").IsPoint(0.25, &point));
    EXPECT_FALSE(ArcOf("1,2 1,2 h1 a0").IsPoint(0.25, &point));
    EXPECT_EQ(point, k_Origin);
    EXPECT_TRUE(ArcOf("1,2 1.5,2.5 h0.5").IsPoint(0.5, &point));
    EXPECT_EQ(point, Point(1, 2));
    EXPECT_TRUE(ArcOf("1,2 1,2").IsPoint(0));
}

TEST(ArcTest, PointCountsAsCircleButNotAsFullOne) {
    Circumference circumference(Point(9, 9), 9);
    EXPECT_TRUE(ArcOf("1,2 1,2").IsCircle(&circumference));
    EXPECT_EQ(circumference.GetCenter(), Point(1, 2));
    EXPECT_EQ(circumference.GetRadius(), 0);
    EXPECT_FALSE(ArcOf("1,2 1,2").IsFullCircle());
}

TEST(ArcTest, FullCircleGivesItsCircumference) {
    Circumference circumference(Point(9, 9), 9);
    EXPECT_TRUE(ArcOf("1,2 1,2 h-2 a90").IsFullCircle(&circumference));
    EXPECT_EQ(circumference.GetCenter(), Point(1, 3));
    EXPECT_EQ(circumference.GetRadius(), 1);
    EXPECT_FALSE(ArcOf("1,2 1,3 h-2").IsFullCircle(&circumference));
    EXPECT_FALSE(ArcOf("1,2 1,3 h-2").IsCircle());
}

TEST(ArcTest, ClockwiseHalfCircleBulgesToTheLeft) {
    const Arc arc(Point(0, 0), Point(2, 0), 1);
    EXPECT_EQ(arc.GetRadius(), 1);
    EXPECT_EQ(arc.GetCenter(), Point(1, 0));
    EXPECT_EQ(arc.GetMidPoint(), Point(1, 1));
    EXPECT_EQ(arc.GetSweep(), -k_Angle_180);
    EXPECT_EQ(arc.GetDirection(), k_CW);
}

TEST(ArcTest, CounterClockwiseHalfCircleBulgesToTheRight) {
    const Arc arc(Point(0, 0), Point(2, 0), -1);
    EXPECT_EQ(arc.GetMidPoint(), Point(1, -1));
    EXPECT_EQ(arc.GetSweep(), k_Angle_180);
    EXPECT_EQ(arc.GetDirection(), k_CCW);
    EXPECT_TRUE(arc.IsCCW());
}

TEST(ArcTest, HalfCircleIsNotBig) {
    EXPECT_FALSE(ArcOf("0,0 2,0 h1").IsBig());
    EXPECT_FALSE(ArcOf("0,0 2,0 h-1").IsBig());
    EXPECT_FALSE(Arc({0, 0}, {2, 0}, fixtures::Down(1)).IsBig());
}

TEST(ArcTest, HeightAboveHalfTheChordIsBigWithMoreThanHalfATurn) {
    for (const double height : {1.25, -1.25, 100.0, -100.0}) {
        const Arc arc(Point(0, 0), Point(2, 0), height);
        EXPECT_TRUE(arc.IsBig());
        EXPECT_GT(arc.GetSweep().GetAbs(), k_Angle_180);
        EXPECT_EQ(arc.GetSweep() > k_Angle_0, height < 0);
    }
    EXPECT_TRUE(Arc({0, 0}, {2, 0}, fixtures::Up(1)).IsBig());
}

TEST(ArcTest, StraightPieceHasNoSense) {
    EXPECT_EQ(ArcOf("0,0 2,0").GetDirection(), k_NoDirection);
    const AssertionRecorder recorder;
    EXPECT_FALSE(ArcOf("0,0 2,0").IsCCW());
    EXPECT_THAT(recorder.Take(), ElementsAre("m_Height != k_Unit_0, Arc.h"));
}

TEST(ArcTest, EqualityComparesAllSixNumbers) {
    const Arc arc = ArcOf("1,2 3,4 h5");
    EXPECT_EQ(arc, ArcOf("1,2 3,4 h5"));
    EXPECT_NE(arc, ArcOf("0,2 3,4 h5"));
    EXPECT_NE(arc, ArcOf("1,0 3,4 h5"));
    EXPECT_NE(arc, ArcOf("1,2 0,4 h5"));
    EXPECT_NE(arc, ArcOf("1,2 3,0 h5"));
    EXPECT_NE(arc, ArcOf("1,2 3,4 h-5"));
    EXPECT_NE(ArcOf("1,2 1,2 h5 a0"), ArcOf("1,2 1,2 h5 a90"));
}

// Circle, sweep, radials

TEST(ArcTest, CenterAndRadiusFollowFromChordAndHeight) {
    // (6^2 / 4 + 1) / 2 = 5 and (6^2 / 36 + 9) / 2 = 5
    const struct {
        const char* m_Arc;
        double m_CenterY;
    } cases[] = {{"-3,4 3,4 h1", 0}, {"-3,4 3,4 h-1", 8}, {"-3,4 3,4 h9", 8}, {"-3,4 3,4 h-9", 0}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.m_Arc);
        const Circumference circumference = ArcOf(c.m_Arc).GetCircumference();
        ExpectNear(circumference.GetCenter(), 0, c.m_CenterY);
        EXPECT_EQ(circumference.GetRadius(), 5);
        EXPECT_EQ(ArcOf(c.m_Arc).GetRadius(), 5);
    }
}

TEST(ArcTest, FullCircleHasHalfItsHeightAsRadius) {
    EXPECT_EQ(ArcOf("1,0 1,0 h-2 a180").GetRadius(), 1);
    EXPECT_EQ(ArcOf("1,0 1,0 h-2 a180").GetCenter(), k_Origin);
    EXPECT_EQ(ArcOf("1,0 1,0").GetRadius(), 0);
    EXPECT_EQ(ArcOf("1,0 1,0").GetCenter(), Point(1, 0));
}

TEST(ArcTest, StraightPieceHasNoCircle) {
    const AssertionRecorder recorder;
    EXPECT_FALSE(std::isfinite(double(ArcOf("0,0 2,0").GetRadius())));
    EXPECT_THAT(recorder.Take(), ElementsAre("height > 0, Arc"));
    EXPECT_FALSE(std::isfinite(double(ArcOf("0,0 2,0").GetCircumference().GetRadius())));
    EXPECT_THAT(recorder.Take(), ElementsAre("m_Height != k_NullUnit, Arc"));
}

TEST(ArcTest, SweepHasTheSizeOfItsPartOfTheTurn) {
    const double quarter = 1 - std::sqrt(0.5);
    const double atThirdSide = std::atan2(3, 4); // half the angle under which a chord of 6 is seen from 4 away
    EXPECT_EQ(ArcOf("0,0 2,0").GetSweep(), k_Angle_0);
    EXPECT_NEAR(Arc({1, 0}, {0, 1}, -quarter).GetSweep().GetValue(k_Degrees), 90, 1e-12);
    EXPECT_NEAR(Arc({1, 0}, {0, 1}, quarter).GetSweep().GetValue(k_Degrees), -90, 1e-12);
    EXPECT_NEAR(ArcOf("-3,4 3,4 h1").GetSweep().GetValue(k_Radians), -2 * atThirdSide, k_Tolerance);
    EXPECT_NEAR(ArcOf("-3,4 3,4 h9").GetSweep().GetValue(k_Radians), 2 * atThirdSide - k_TwoPi, k_Tolerance);
    EXPECT_NEAR(ArcOf("-3,4 3,4 h-9").GetSweep().GetValue(k_Radians), k_TwoPi - 2 * atThirdSide, k_Tolerance);
    EXPECT_EQ(ArcOf("1,0 1,0 h-2 a180").GetSweep(), k_Angle_360);
    EXPECT_EQ(ArcOf("1,0 1,0 h2 a180").GetSweep(), -k_Angle_360);
}

TEST(ArcTest, SweepOfAnArcThatIsAllButACircleStaysBelowAFullTurn) {
    const Arc arc({2, 0}, {fixtures::Up(2), 0}, 2);
    EXPECT_NEAR(arc.GetSweep().GetValue(k_Radians), -k_TwoPi, 1e-7);
}

TEST(ArcTest, SectorAreaHasTheSignOfTheSweep) {
    EXPECT_EQ(ArcOf("3,4 3,4").GetSectorArea(), k_NullArea);
    EXPECT_EQ(ArcOf("0,0 2,0").GetSectorArea(), k_InfiniteArea);
    EXPECT_NEAR(double(ArcOf("0,0 2,0 h1").GetSectorArea()), -k_Pi / 2, k_Tolerance);
    EXPECT_NEAR(double(ArcOf("0,0 2,0 h-1").GetSectorArea()), k_Pi / 2, k_Tolerance);
    EXPECT_NEAR(double(ArcOf("2,0 2,0 h-4 a180").GetSectorArea()), k_Pi * 4, k_Tolerance);
}

TEST(ArcTest, RadialsPointFromTheCenterToTheEnds) {
    EXPECT_EQ(ArcOf("0,0 2,0 h1").GetStartRadial(), k_West);
    EXPECT_EQ(ArcOf("0,0 2,0 h1").GetEndRadial(), k_East);
    EXPECT_EQ(ArcOf("5,3 5,3 h4 a90").GetStartRadial(), k_South);
    EXPECT_EQ(ArcOf("5,3 5,3 h4 a90").GetEndRadial(), k_South);
}

TEST(ArcTest, RadialsOfStraightPieceAreReported) {
    const AssertionRecorder recorder;
    (void)ArcOf("0,0 2,0").GetStartRadial();
    EXPECT_THAT(recorder.Take(), testing::Contains("!IsSegment(0, NULL), Arc"));
    (void)ArcOf("0,0 2,0").GetEndRadial();
    EXPECT_THAT(recorder.Take(), testing::Contains("!IsSegment(0, NULL), Arc"));
}

TEST(ArcTest, TangentsPointAlongTheWay) {
    EXPECT_EQ(ArcOf("0,0 2,0").GetStartTangent(), k_East);
    EXPECT_EQ(ArcOf("0,0 0,-2").GetEndTangent(), k_South);
    EXPECT_DOUBLE_EQ(DegreesOf(ArcOf("0,0 2,0 h1").GetStartTangent()), 90);
    EXPECT_DOUBLE_EQ(DegreesOf(ArcOf("0,0 2,0 h1").GetEndTangent()), 270);
    EXPECT_DOUBLE_EQ(DegreesOf(ArcOf("0,0 2,0 h-1").GetStartTangent()), 270);
    EXPECT_DOUBLE_EQ(DegreesOf(ArcOf("0,0 2,0 h-1").GetEndTangent()), 90);
    EXPECT_DOUBLE_EQ(DegreesOf(ArcOf("5,3 5,3 h-4 a180").GetStartTangent()), 90);
}

TEST(ArcTest, TangentOfPointIsReported) {
    const AssertionRecorder recorder;
    EXPECT_EQ(ArcOf("3,4 3,4").GetStartTangent(), k_Azimuth_0);
    EXPECT_THAT(recorder.Take(), testing::Contains("!IsNull(), Vector"));
}

// Derived arcs

TEST(ArcTest, ReversedTravelsTheSameWayBack) { EXPECT_EQ(ArcOf("1,2 3,4 h5").GetReversed(), ArcOf("3,4 1,2 h-5")); }

TEST(ArcTest, ReversedFullCircleKeepsItsCenterAzimuth) {
    const Arc reversed = ArcOf("1,0 1,0 h-2 a180").GetReversed();
    EXPECT_EQ(reversed.GetCenterAzimuth(), k_Azimuth_180);
    EXPECT_EQ(reversed, ArcOf("1,0 1,0 h2 a180"));
}

TEST(ArcTest, MirrorTurnsClockwiseIntoCounterClockwise) {
    const Arc mirrored = ArcOf("0,0 2,0 h1").GetTransformed(Transformation(k_Azimuth_0));
    EXPECT_EQ(mirrored, ArcOf("0,0 2,0 h-1"));
    EXPECT_EQ(mirrored.GetDirection(), k_CCW);
}

TEST(ArcTest, MirroredFullCircleMirrorsItsCenter) {
    EXPECT_EQ(ArcOf("5,3 5,3 h-4 a90").GetTransformed(Transformation(k_Azimuth_0)), ArcOf("5,-3 5,-3 h4 a270"));
}

TEST(ArcTest, TranslationMovesTheEndsOnly) {
    EXPECT_EQ(ArcOf("1,2 3,4 h5").GetTransformed(Transformation(Vector(10, 20))), ArcOf("11,22 13,24 h5"));
    EXPECT_EQ(ArcOf("1,2 1,2 h4 a90").GetTransformed(Transformation(Vector(10, 20))), ArcOf("11,22 11,22 h4 a90"));
}

TEST(ArcTest, RotationTurnsTheEndsAndTheCenterOfAFullCircle) {
    const Rotation quarter(k_Origin, k_Angle_90);
    EXPECT_EQ(ArcOf("1,2 3,4 h5").GetRotated(quarter), ArcOf("-2,1 -4,3 h5"));
    EXPECT_EQ(ArcOf("1,0 1,0 h-2 a90").GetRotated(quarter), ArcOf("0,1 0,1 h-2 a180"));
    EXPECT_EQ(ArcOf("1,0 1,0").GetRotated(quarter), ArcOf("0,1 0,1"));
}

TEST(ArcTest, ComplementOfHalfCircleHasTheSameHeight) {
    EXPECT_EQ(ArcOf("0,0 2,0 h1").GetComplement(), ArcOf("2,0 0,0 h1"));
    EXPECT_EQ(ArcOf("0,0 2,0 h-1").GetComplement(), ArcOf("2,0 0,0 h-1"));
}

TEST(ArcTest, ComplementIsTheRestOfTheCircle) {
    EXPECT_EQ(ArcOf("-3,4 3,4 h1").GetComplement(), ArcOf("3,4 -3,4 h9"));
    EXPECT_EQ(ArcOf("-3,4 3,4 h-9").GetComplement(), ArcOf("3,4 -3,4 h-1"));
    EXPECT_EQ(ArcOf("5,3 5,3 h4 a90").GetComplement(), ArcOf("5,3 5,3"));
}

TEST(ArcTest, ComplementOfStraightPieceIsReported) {
    const AssertionRecorder recorder;
    (void)ArcOf("0,0 2,0").GetComplement();
    EXPECT_THAT(recorder.Take(), ElementsAre("!IsSegment(0, NULL), Arc"));
}

TEST(ArcTest, OtherStartKeepsEndAndHeight) {
    EXPECT_EQ(ArcOf("0,0 2,0 h1").GetWithStart(Point(0, 0.5)), ArcOf("0,0.5 2,0 h1"));
}

TEST(ArcTest, OtherStartMovesFullCircleAsAWhole) {
    EXPECT_EQ(ArcOf("1,0 1,0 h2 a180").GetWithStart(Point(1, 0.5)), ArcOf("1,0.5 1,0.5 h2 a180"));
}

} // namespace
