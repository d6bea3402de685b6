#include "lib/math/geometry/Circle.h"

#include "lib/math/geometry/Circumference.h"
#include "lib/math/geometry/Line.h"
#include "lib/math/geometry/Triangle.h"
#include "tests/AssertionRecorder.h"
#include "tests/GeometryFixtures.h"

#include <gtest/gtest.h>

#include <random>
#include <type_traits>

namespace {

using namespace geom;
using fixtures::BitsOf;
using fixtures::CircleOf;
using fixtures::LineOf;
using fixtures::SegmentOf;
using fixtures::Up;
using Texts = std::vector<std::string>;

const Circle k_Five = CircleOf("0,0 r5");

void ExpectChord(const CircleLineResult& result, const Segment& expected, double tolerance = 0) {
    EXPECT_EQ(result.m_Success, 1U);
    EXPECT_TRUE(result.m_Segment.IsEqualTo(expected, tolerance))
        << testing::PrintToString(result.m_Segment) << " instead of " << testing::PrintToString(expected);
}

void ExpectNoChord(const CircleLineResult& result) {
    EXPECT_EQ(result.m_Success, 0U);
    EXPECT_EQ(result.m_Segment, Segment());
}

TEST(CircleTest, IsACentreAndARadius) {
    static_assert(sizeof(Circle) == 3 * sizeof(double) && std::is_trivially_copyable_v<Circle>);
    EXPECT_EQ(CircleOf("1,2 r3").GetCenter(), Point(1, 2));
    EXPECT_EQ(CircleOf("1,2 r3").GetRadius(), Unit(3));
    const Circle copy(Circumference({1, 2}, 3));
    EXPECT_EQ(copy.GetCenter(), Point(1, 2));
    EXPECT_EQ(copy.GetRadius(), Unit(3));
}

TEST(CircleTest, ANegativeRadiusIsReportedAndKept) {
    const AssertionRecorder recorder;
    EXPECT_EQ(Circle({1, 2}, -3).GetRadius(), Unit(-3));
    EXPECT_EQ(recorder.Take(), Texts{"m_Radius >= k_Unit_0, Circle.h"});
}

TEST(CircleTest, FromADiameter) {
    const Circle circle(SegmentOf("1,1 7,9"));
    EXPECT_EQ(circle.GetCenter(), Point(4, 5));
    EXPECT_EQ(circle.GetRadius(), Unit(5));
    EXPECT_EQ(Circle(fixtures::k_PointLikeSegment).GetRadius(), Unit(0));
}

TEST(CircleTest, ThroughThreePoints) {
    const Circle circle(Triangle({5, 0}, {0, 5}, {-3, -4}));
    EXPECT_TRUE(circle.GetCenter().IsEqualTo({0, 0}, 1e-14));
    EXPECT_NEAR(double(circle.GetRadius()), 5, 1e-14);
}

TEST(CircleTest, ThroughThreePointsIsComputedInAFixedOrder) {
    // From a transcription of the formulas into another language.
    const Circle circle(Triangle({0.3, 1.9}, {4.1, 0.7}, {2.2, 5.3}));
    EXPECT_EQ(BitsOf(circle.GetCenter()), BitsOf(Point(0x1.566216a2c3195p+1, 0x1.66e147ae147aep+1)));
    EXPECT_EQ(BitsOf(double(circle.GetRadius())), BitsOf(0x1.4540061036555p+1));
}

TEST(CircleTest, ThroughCollinearPointsStandsOverTheLongestSide) {
    const Circle circle(Triangle({0, 0}, {10, 0}, {4, 0}));
    EXPECT_EQ(circle.GetCenter(), Point(5, 0));
    EXPECT_EQ(circle.GetRadius(), Unit(5));
}

TEST(CircleTest, ADiameterThatIsNoNumberIsNotReported) {
    // The report is for negative radii; a NaN is neither above nor below 0.
    const AssertionRecorder recorder;
    EXPECT_TRUE(std::isnan(double(Circle(Segment({0, 0}, {fixtures::k_NaN, 0})).GetRadius())));
    EXPECT_TRUE(recorder.Take().empty());
}

TEST(CircleTest, RangesBoxAndEpsilon) {
    const Circle circle = CircleOf("1,-20 r3");
    EXPECT_EQ(circle.GetXRange(), Box::Range(-2, 4));
    EXPECT_EQ(circle.GetYRange(), Box::Range(-23, -17));
    EXPECT_EQ(circle.GetBox(), Box(-2, -23, 4, -17));
    EXPECT_EQ(circle.GetEpsilon(), Unit(23).GetEpsilon());
}

TEST(CircleTest, IsPointUpToAnAccuracy) {
    Point center;
    EXPECT_TRUE(CircleOf("1,2 r3").IsPoint(3, &center));
    EXPECT_EQ(center, Point(1, 2));
    EXPECT_FALSE(k_Five.IsPoint(3, &center));
    EXPECT_EQ(center, Point(1, 2));
    EXPECT_TRUE(CircleOf("1,2 r0").IsPoint(0));
}

TEST(CircleTest, PointsOfTheOutline) {
    EXPECT_EQ(CircleOf("1,2 r3").GetPointAt(k_North), Point(1, 5));
    EXPECT_EQ(CircleOf("1,2 r3").GetPointAt(k_West), Point(-2, 2));
}

TEST(CircleTest, NearestPoint) {
    EXPECT_EQ(k_Five.GetNearestPoint({6, 8}), Point(3, 4));
    EXPECT_EQ(k_Five.GetNearestPoint({0, -0.1}), Point(0, -5));
    EXPECT_EQ(CircleOf("1,2 r3").GetNearestPoint({1, 2}), Point(4, 2));
    EXPECT_EQ(CircleOf("1,2 r0").GetNearestPoint({9, 9}), Point(1, 2));
}

TEST(CircleTest, SignedDistanceIsNegativeInside) {
    EXPECT_EQ(k_Five.GetSignedDistance({6, 8}), Unit(5));
    EXPECT_EQ(k_Five.GetSignedDistance({0, 1}), Unit(-4));
    EXPECT_EQ(k_Five.GetSignedDistance({3, 4}), Unit(0));
}

TEST(CircleTest, DiscsMeetWhenTheyTouchOrHoldEachOther) {
    EXPECT_TRUE(k_Five.IntersectsDisc(CircleOf("8,0 r3"), 0));
    EXPECT_FALSE(k_Five.IntersectsDisc(CircleOf("8.5,0 r3"), 0));
    EXPECT_TRUE(k_Five.IntersectsDisc(CircleOf("8.5,0 r3"), 0.5));
    EXPECT_TRUE(k_Five.IntersectsDisc(CircleOf("1,0 r1"), 0));
}

TEST(CircleTest, IntersectsALine) {
    EXPECT_TRUE(k_Five.IntersectsLine(LineOf("0,5 1,5"), 0));
    EXPECT_FALSE(k_Five.IntersectsLine(Line({0, Up(5)}, {1, Up(5)}), 0));
    EXPECT_TRUE(k_Five.IntersectsLine(LineOf("0,-6 1,-6"), 1));
}

TEST(CircleTest, ChordOfASteepLineFollowsItsDirection) {
    ExpectChord(k_Five.GetIntersection(LineOf("3,0 3,1"), 0), SegmentOf("3,-4 3,4"));
    ExpectChord(k_Five.GetIntersection(LineOf("3,1 3,0"), 0), SegmentOf("3,4 3,-4"));
    ExpectChord(CircleOf("10,20 r5").GetIntersection(LineOf("13,0 13,1"), 0), SegmentOf("13,16 13,24"));
}

TEST(CircleTest, ChordOfAFlatLineFollowsItsDirection) {
    ExpectChord(k_Five.GetIntersection(LineOf("0,3 1,3"), 0), SegmentOf("-4,3 4,3"));
    ExpectChord(k_Five.GetIntersection(LineOf("1,3 0,3"), 0), SegmentOf("4,3 -4,3"));
    ExpectChord(CircleOf("10,20 r5").GetIntersection(LineOf("0,23 1,23"), 0), SegmentOf("6,23 14,23"));
}

TEST(CircleTest, ChordIsComputedInAFixedOrder) {
    const Circle circle = CircleOf("1.3,2.7 r2.9");
    const Segment steep = circle.GetIntersection(LineOf("1.7,-3.1 2.3,9.7"), 0).m_Segment;
    EXPECT_EQ(BitsOf(steep.GetStart()), BitsOf(Point(0x1.d69ad25eaf98ap+0, -0x1.3262afcf33d70p-3)));
    EXPECT_EQ(BitsOf(steep.GetEnd()), BitsOf(Point(0x1.0d1ed9eae96f0p+1, 0x1.5f26f252427dcp+2)));
    const Segment flat = circle.GetIntersection(LineOf("0.1,0.2 7.3,2.9"), 0).m_Segment;
    EXPECT_EQ(BitsOf(flat.GetStart()), BitsOf(Point(-0x1.f7856d0d46a20p-5, 0x1.1d984a938e2c0p-3)));
    EXPECT_EQ(BitsOf(flat.GetEnd()), BitsOf(Point(0x1.009a2d3816580p+2, 0x1.aa80dd6dbb1d7p+0)));
}

TEST(CircleTest, ATangentHasEqualEndsAtTheFootOfTheCentre) {
    ExpectChord(k_Five.GetIntersection(LineOf("5,0 5,1"), 0), SegmentOf("5,0 5,0"));
    ExpectChord(k_Five.GetIntersection(LineOf("0,-5 1,-5"), 0), SegmentOf("0,-5 0,-5"));
}

TEST(CircleTest, ATangentWithinTheAccuracyHasEqualEndsAtTheFootOfTheCentre) {
    ExpectChord(k_Five.GetIntersection(LineOf("5.5,0 5.5,1"), 1), SegmentOf("5.5,0 5.5,0"));
    ExpectChord(k_Five.GetIntersection(LineOf("0,5.5 1,5.5"), 1), SegmentOf("0,5.5 0,5.5"));
}

TEST(CircleTest, TheFootOnASlopedTangentIsTheProjectionItself) {
    const Line tangent = LineOf("5.5,0 5.6,7");
    const Segment foot = k_Five.GetIntersection(tangent, 1).m_Segment;
    EXPECT_EQ(BitsOf(foot.GetStart()), BitsOf(tangent.GetProjection({0, 0})));
    EXPECT_EQ(BitsOf(foot.GetEnd()), BitsOf(tangent.GetProjection({0, 0})));
}

TEST(CircleTest, ALineJustInsideGivesItsChordWhateverTheAccuracy) {
    ExpectChord(k_Five.GetIntersection(LineOf("4,0 4,1"), 2), SegmentOf("4,-3 4,3"));
}

TEST(CircleTest, ALineOutsideGivesNothing) {
    ExpectNoChord(k_Five.GetIntersection(LineOf("6.5,0 6.5,1"), 1));
    ExpectNoChord(k_Five.GetIntersection(LineOf("0,7 1,7"), 1));
}

TEST(CircleTest, ALineThatIsNoNumberGivesNothing) {
    const AssertionRecorder recorder; // such a line is reported where it is made
    const Line noLine({fixtures::k_NaN, 0}, {1, 1});
    ExpectNoChord(k_Five.GetIntersection(noLine, 0));
    ExpectNoChord(Circle({0, 0}, 2e302).GetIntersection(noLine, 0));
}

TEST(CircleTest, ARadiusOfZeroGivesOnePointOnALineThroughTheCentre) {
    ExpectChord(CircleOf("3,2 r0").GetIntersection(LineOf("3,0 3,1"), 0), SegmentOf("3,2 3,2"));
    ExpectChord(CircleOf("3,2 r0").GetIntersection(LineOf("0,2 1,2"), 0), SegmentOf("3,2 3,2"));
    ExpectNoChord(CircleOf("3,2 r0").GetIntersection(LineOf("4,0 4,1"), 0));
}

TEST(CircleTest, ARadiusOfZeroMeetsHalfWayToALineWithinTheAccuracy) {
    ExpectChord(CircleOf("3,2 r0").GetIntersection(LineOf("4,0 4,1"), 1), SegmentOf("3.5,2 3.5,2"));
}

TEST(CircleTest, ANegativeAccuracyIsReported) {
    const AssertionRecorder recorder;
    k_Five.GetIntersection(LineOf("3,0 3,1"), -1);
    EXPECT_EQ(recorder.Take(), Texts{"accuracy >= 0, Circle"});
}

TEST(CircleTest, ChordsLieOnBothAndFollowTheLine) {
    const AssertionRecorder recorder;
    std::mt19937 random(5);
    std::uniform_real_distribution<double> number(-10, 10);
    int cuts = 0;
    for (int i = 0; i < 2000; ++i) {
        const Circle circle({number(random), number(random)}, std::abs(number(random)));
        const Line line(Point(number(random), number(random)), Point(number(random), number(random)));
        const CircleLineResult result = circle.GetIntersection(line, 0);
        const double distance = double(line.GetSignedDistance(circle.GetCenter()).GetAbs());
        ASSERT_EQ(result.m_Success != 0, distance <= double(circle.GetRadius()));
        if (result.m_Success == 0)
            continue;
        ++cuts;
        for (const Point end : {result.m_Segment.GetStart(), result.m_Segment.GetEnd()}) {
            EXPECT_NEAR(double(line.GetSignedDistance(end)), 0, 1e-12);
            EXPECT_NEAR(double(circle.GetSignedDistance(end)), 0, 1e-12);
        }
        EXPECT_GE(result.m_Segment.GetVector().GetScalarProductWith(line.GetDirection()), k_NullArea);
    }
    EXPECT_GT(cuts, 500);
    EXPECT_TRUE(recorder.Take().empty());
}

TEST(CircleTest, RadicalPointOfCirclesThatCross) {
    EXPECT_EQ(k_Five.GetRadicalPoint(CircleOf("6,0 r5")), Point(3, 0));
    // (36 + 25 - 13) / 6 / 2 = 4: the outlines cross at (4, 3) and (4, -3).
    const Point point = k_Five.GetRadicalPoint(Circle({6, 0}, std::sqrt(13)));
    EXPECT_NEAR(double(point.GetX()), 4, 1e-14);
    EXPECT_EQ(point.GetY(), Unit(0));
}

TEST(CircleTest, RadicalPointOfCirclesApart) {
    EXPECT_EQ(CircleOf("0,0 r1").GetRadicalPoint(CircleOf("0,10 r1")), Point(0, 5));
}

TEST(CircleTest, RadicalPointIsComputedInAFixedOrder) {
    const Point point = CircleOf("0.3,1.9 r3.1").GetRadicalPoint(CircleOf("4.1,0.7 r2.3"));
    EXPECT_EQ(BitsOf(point), BitsOf(Point(0x1.5bc29c90f58dcp+1, 0x1.2303bd73f10a2p+0)));
}

TEST(CircleTest, RadicalPointOfConcentricCirclesIsTheCentre) {
    EXPECT_EQ(k_Five.GetRadicalPoint(CircleOf("0,0 r3")), Point(0, 0));
}

TEST(CircleTest, RadicalPointOfACircleInAnotherLiesBehindTheSmallerCentre) {
    // From the larger centre (0, 0) past the smaller one (2, 0) by (1 / 4) of their distance.
    EXPECT_EQ(CircleOf("0,0 r8").GetRadicalPoint(CircleOf("2,0 r2")), Point(2.5, 0));
    EXPECT_EQ(CircleOf("2,0 r2").GetRadicalPoint(CircleOf("0,0 r8")), Point(2.5, 0));
}

TEST(CircleTest, CentresWhoseDistanceSquareVanishesAreReported) {
    const AssertionRecorder recorder;
    EXPECT_EQ(CircleOf("0,0 r1").GetRadicalPoint(CircleOf("1e-200,0 r1")), Point(0, 0));
    EXPECT_EQ(recorder.Take(), Texts{"center_dist_square != k_Area_0, Circle"});
}

} // namespace
