#include "lib/math/geometry/Arc.h"
#include "lib/math/geometry/Circumference.h"
#include "lib/math/geometry/Line.h"

#include "tests/AssertionRecorder.h"
#include "tests/GeometryFixtures.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

namespace {

using namespace geom;
using fixtures::ArcOf;
using fixtures::CircumferenceOf;
using fixtures::LineOf;

constexpr double k_Tolerance = 1e-14;

void ExpectPoint(const PointResult& result, double x, double y) {
    ASSERT_EQ(result.m_Success, 1U);
    EXPECT_NEAR(double(result.m_Point.GetX()), x, k_Tolerance);
    EXPECT_NEAR(double(result.m_Point.GetY()), y, k_Tolerance);
}

void ExpectNothing(const PointResult& result) {
    EXPECT_EQ(result.m_Success, 0U);
    EXPECT_EQ(result.m_Point, k_Origin);
}

void ExpectNothing(const ArcPairResult& result) {
    EXPECT_EQ(result.m_Success1, 0U);
    EXPECT_EQ(result.m_Arc1, Arc());
    EXPECT_EQ(result.m_Success2, 0U);
    EXPECT_EQ(result.m_Arc2, Arc());
}

// What two outlines share

TEST(CircumferenceTest, EqualCircumferencesShareOneFullCircle) {
    const Circumference circumference = CircumferenceOf("0,0 r5");
    const ArcPairResult shared = circumference.GetIntersections(circumference, 0);
    EXPECT_EQ(shared.m_Success1, 1U);
    EXPECT_EQ(shared.m_Arc1, ArcOf("5,0 5,0 h-10 a180"));
    EXPECT_EQ(shared.m_Success2, 0U);
}

TEST(CircumferenceTest, CircumferencesEqualWithinAccuracyShareTheirMean) {
    const ArcPairResult shared = CircumferenceOf("0,0 r5").GetIntersections(CircumferenceOf("0.5,0 r5.5"), 2);
    EXPECT_EQ(shared.m_Success1, 1U);
    EXPECT_EQ(shared.m_Arc1, ArcOf("5.5,0 5.5,0 h-10.5 a180"));
    EXPECT_EQ(shared.m_Success2, 0U);
}

TEST(CircumferenceTest, ConcentricCircumferencesShareNothing) {
    ExpectNothing(CircumferenceOf("1,2 r5").GetIntersections(CircumferenceOf("1,2 r6"), 0));
    // Near each other, but not near enough to be one.
    ExpectNothing(CircumferenceOf("1,2 r5").GetIntersections(CircumferenceOf("1,2 r6"), 1.5));
}

TEST(CircumferenceTest, CrossingCircumferencesShareTwoPointsTheRightOneFirst) {
    const ArcPairResult shared = CircumferenceOf("0,0 r5").GetIntersections(CircumferenceOf("6,0 r5"), 0);
    EXPECT_EQ(shared.m_Success1, 1U);
    EXPECT_EQ(shared.m_Arc1, ArcOf("3,-4 3,-4"));
    EXPECT_EQ(shared.m_Success2, 1U);
    EXPECT_EQ(shared.m_Arc2, ArcOf("3,4 3,4"));
}

TEST(CircumferenceTest, TouchingCircumferencesShareOnePoint) {
    const ArcPairResult shared = CircumferenceOf("0,0 r5").GetIntersections(CircumferenceOf("8,0 r3"), 0);
    EXPECT_EQ(shared.m_Success1, 1U);
    EXPECT_EQ(shared.m_Arc1, ArcOf("5,0 5,0"));
    EXPECT_EQ(shared.m_Success2, 0U);
}

TEST(CircumferenceTest, CircumferencesThatAllButTouchShareOnePointWithinAccuracy) {
    // The radical point divides the way of 8.5 so that both distances have the same surplus over their radii, squared.
    const ArcPairResult apart = CircumferenceOf("0,0 r5").GetIntersections(CircumferenceOf("8.5,0 r3"), 0.5);
    EXPECT_EQ(apart.m_Success1, 1U);
    EXPECT_NEAR(double(apart.m_Arc1.GetStart().GetX()), (8.5 * 8.5 + 25 - 9) / 17, k_Tolerance);
    EXPECT_EQ(apart.m_Arc1.GetStart().GetY(), 0);
    EXPECT_EQ(apart.m_Success2, 0U);
    ExpectNothing(CircumferenceOf("0,0 r5").GetIntersections(CircumferenceOf("8.5,0 r3"), 0.25));

    // These cross, 0.2 above and below their common axis.
    const ArcPairResult crossing = CircumferenceOf("0,0 r5").GetIntersections(CircumferenceOf("7.99,0 r3"), 1);
    EXPECT_EQ(crossing.m_Success1, 1U);
    EXPECT_EQ(crossing.m_Arc1.GetStart().GetY(), 0);
    EXPECT_EQ(crossing.m_Success2, 0U);
}

TEST(CircumferenceTest, RadicalPointAtThisCenterGivesNothingInThatOrder) {
    const Circumference small = CircumferenceOf("0,0 r3");
    const Circumference large = CircumferenceOf("4,0 r5");
    ExpectNothing(small.GetIntersections(large, 0));
    const ArcPairResult shared = large.GetIntersections(small, 0);
    EXPECT_EQ(shared.m_Arc1, ArcOf("0,3 0,3"));
    EXPECT_EQ(shared.m_Arc2, ArcOf("0,-3 0,-3"));
}

// Circles that touch two outlines

const Circumference k_LeftCircle = CircumferenceOf("-3,0 r5");
const Circumference k_RightCircle = CircumferenceOf("3,0 r5");

TEST(CircumferenceTest, TangentCenterInsideOfBoth) {
    // 5 - 1.75 = 3.25 from both centres: 3, 1.25 and 3.25 make a right angle.
    ExpectPoint(k_LeftCircle.GetTangentCenter(false, k_RightCircle, false, 1.75, k_CCW), 0, 1.25);
    ExpectPoint(k_LeftCircle.GetTangentCenter(false, k_RightCircle, false, 1.75, k_CW), 0, -1.25);
}

TEST(CircumferenceTest, TangentCenterOutsideOfBoth) {
    // 5 + 1.375 = 6.375 from both centres: 3, 5.625 and 6.375 make a right angle.
    ExpectPoint(k_LeftCircle.GetTangentCenter(true, k_RightCircle, true, 1.375, k_CCW), 0, 5.625);
    ExpectPoint(k_LeftCircle.GetTangentCenter(true, k_RightCircle, true, 1.375, k_CW), 0, -5.625);
}

TEST(CircumferenceTest, TangentCenterInsideOfOneAndOutsideOfTheOther) {
    // 4.4 from one centre and 5.6 from the other: 5.6^2 - 4.4^2 = 12 = 12 x.
    const double y = std::sqrt(4.4 * 4.4 - 4);
    ExpectPoint(k_LeftCircle.GetTangentCenter(false, k_RightCircle, true, 0.6, k_CCW), -1, y);
    ExpectPoint(k_LeftCircle.GetTangentCenter(false, k_RightCircle, true, 0.6, k_CW), -1, -y);
    ExpectPoint(k_LeftCircle.GetTangentCenter(true, k_RightCircle, false, 0.6, k_CCW), 1, y);
    ExpectPoint(k_LeftCircle.GetTangentCenter(true, k_RightCircle, false, 0.6, k_CW), 1, -y);
}

TEST(CircumferenceTest, TangentCenterNeedsRoomInside) {
    const Circumference small = CircumferenceOf("1,0 r2");
    ExpectNothing(k_LeftCircle.GetTangentCenter(false, small, false, 2.5, k_CCW));
    ExpectNothing(small.GetTangentCenter(false, k_LeftCircle, false, 2.5, k_CCW));
    ExpectNothing(small.GetTangentCenter(false, k_LeftCircle, true, 2.5, k_CCW));
    ExpectNothing(k_LeftCircle.GetTangentCenter(true, small, false, 2.5, k_CCW));
}

TEST(CircumferenceTest, TangentCenterBetweenCirclesThatTouchInOnePointFails) {
    // Grown by 1 both circles touch at (2, 0) alone.
    ExpectNothing(CircumferenceOf("0,0 r1").GetTangentCenter(true, CircumferenceOf("4,0 r1"), true, 1, k_CCW));
}

TEST(CircumferenceTest, TangentCenterOfCoincidingCirclesFails) {
    ExpectNothing(k_LeftCircle.GetTangentCenter(true, k_LeftCircle, true, 1, k_CCW));
}

TEST(CircumferenceTest, TangentCenterOfCirclesTooFarApartFails) {
    ExpectNothing(CircumferenceOf("0,0 r1").GetTangentCenter(true, CircumferenceOf("10,0 r1"), true, 1, k_CCW));
}

// Circles that touch an outline and a line

const Circumference k_AroundOrigin = CircumferenceOf("0,0 r5");
const Line k_Eastward = LineOf("0,0 10,0");

TEST(CircumferenceTest, TangentCenterOutsideAndBesideALine) {
    // 7, 2.4 and 5 + 2.4 make a right angle.
    ExpectPoint(k_AroundOrigin.GetTangentCenter(true, k_Eastward, true, true, 2.4), -7, -2.4);
    ExpectPoint(k_AroundOrigin.GetTangentCenter(true, k_Eastward, true, false, 2.4), 7, -2.4);
    ExpectPoint(k_AroundOrigin.GetTangentCenter(true, k_Eastward, false, true, 2.4), -7, 2.4);
    ExpectPoint(k_AroundOrigin.GetTangentCenter(true, k_Eastward, false, false, 2.4), 7, 2.4);
    ExpectPoint(k_AroundOrigin.GetTangentCenter(true, -k_Eastward, false, true, 2.4), 7, -2.4);
}

TEST(CircumferenceTest, TangentCenterInsideAndBesideALine) {
    // 3, 1.6 and 5 - 1.6 make a right angle.
    ExpectPoint(k_AroundOrigin.GetTangentCenter(false, k_Eastward, true, true, 1.6), -3, -1.6);
    ExpectPoint(k_AroundOrigin.GetTangentCenter(false, k_Eastward, false, false, 1.6), 3, 1.6);
}

TEST(CircumferenceTest, TangentCenterThatIsTheOnlyOneIsTakenEitherWay) {
    ExpectPoint(k_AroundOrigin.GetTangentCenter(false, k_Eastward, true, true, 2.5), 0, -2.5);
    ExpectPoint(k_AroundOrigin.GetTangentCenter(false, k_Eastward, true, false, 2.5), 0, -2.5);
}

TEST(CircumferenceTest, TangentCenterBesideALineNeedsRoom) {
    ExpectNothing(k_AroundOrigin.GetTangentCenter(false, k_Eastward, true, true, 3));
    ExpectNothing(k_AroundOrigin.GetTangentCenter(false, k_Eastward, true, true, 6));
    ExpectNothing(k_AroundOrigin.GetTangentCenter(true, LineOf("0,20 10,20"), false, true, 2));
}

TEST(CircumferenceTest, TangentCenterOfNegativeRadiusIsReported) {
    const AssertionRecorder recorder;
    (void)k_AroundOrigin.GetTangentCenter(true, k_Eastward, true, true, -1);
    EXPECT_THAT(recorder.Take(), testing::ElementsAre("radius >= 0, Circumference"));
}

} // namespace
