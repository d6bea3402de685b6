#include "lib/math/geometry/Circumference.h"

#include "lib/math/geometry/Line.h"
#include "tests/AssertionRecorder.h"
#include "tests/GeometryFixtures.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace {

using namespace geom;
using fixtures::BoxOf;
using fixtures::CircumferenceOf;
using fixtures::LineOf;
using fixtures::SegmentOf;
using fixtures::Up;
using Texts = std::vector<std::string>;

const Circumference k_Five = CircumferenceOf("0,0 r5");

void ExpectNoPoint(const PointPairResult& result) {
    EXPECT_EQ(result.m_Success1, 0U);
    EXPECT_EQ(result.m_Point1, k_Origin);
    EXPECT_EQ(result.m_Success2, 0U);
    EXPECT_EQ(result.m_Point2, k_Origin);
}

void ExpectOnePoint(const PointPairResult& result, Point point) {
    EXPECT_EQ(result.m_Success1, 1U);
    EXPECT_EQ(result.m_Point1, point);
    EXPECT_EQ(result.m_Success2, 0U);
    EXPECT_EQ(result.m_Point2, k_Origin);
}

void ExpectTwoPoints(const PointPairResult& result, Point point1, Point point2) {
    EXPECT_EQ(result.m_Success1, 1U);
    EXPECT_EQ(result.m_Point1, point1);
    EXPECT_EQ(result.m_Success2, 1U);
    EXPECT_EQ(result.m_Point2, point2);
}

TEST(CircumferenceTest, IsACentreAndARadius) {
    static_assert(sizeof(Circumference) == sizeof(Circle) && std::is_trivially_copyable_v<Circumference>);
    const Circumference copy(Circle({1, 2}, 3));
    EXPECT_EQ(copy.GetCenter(), Point(1, 2));
    EXPECT_EQ(copy.GetRadius(), Unit(3));
}

TEST(CircumferenceTest, ANegativeRadiusIsReportedAndKept) {
    const AssertionRecorder recorder;
    EXPECT_EQ(Circumference({1, 2}, -3).GetRadius(), Unit(-3));
    EXPECT_EQ(recorder.Take(), Texts{"radius >= k_NullUnit, Circumference.h"});
}

TEST(CircumferenceTest, SharesTheAnswersOfItsDisc) {
    EXPECT_EQ(k_Five.GetBox(), BoxOf("-5,-5 5,5"));
    EXPECT_EQ(k_Five.GetEpsilon(), Unit(10).GetEpsilon());
    EXPECT_EQ(k_Five.GetPointAt(k_South), Point(0, -5));
    EXPECT_EQ(k_Five.GetNearestPoint({6, 8}), Point(3, 4));
    EXPECT_EQ(k_Five.GetSignedDistance({0, 1}), Unit(-4));
    EXPECT_EQ(k_Five.GetRadicalPoint(CircumferenceOf("6,0 r5")), Point(3, 0));
    Point center;
    EXPECT_TRUE(CircumferenceOf("1,2 r3").IsPoint(3, &center));
    EXPECT_EQ(center, Point(1, 2));
    EXPECT_FALSE(k_Five.IsPoint(3));
}

TEST(CircumferenceTest, ContainsARingOfPoints) {
    EXPECT_TRUE(k_Five.Contains({3, 4}, 0));
    EXPECT_FALSE(k_Five.Contains({3, Up(4)}, 0));
    EXPECT_FALSE(k_Five.Contains({0, 0}, 1));
    EXPECT_TRUE(k_Five.Contains({4, 0}, 1));
    EXPECT_FALSE(k_Five.Contains({3.9, 0}, 1));
    EXPECT_TRUE(k_Five.Contains({0, -6}, 1));
    EXPECT_FALSE(k_Five.Contains({0, -6.1}, 1));
}

TEST(CircumferenceTest, AnAccuracyBeyondTheRadiusTakesInTheCentre) { EXPECT_TRUE(k_Five.Contains({0, 0}, 7)); }

TEST(CircumferenceTest, CommonPointLiesHalfWayToTheOutline) {
    const PointResult result = k_Five.GetCommonPoint({0, 6}, 1);
    EXPECT_EQ(result.m_Success, 1U);
    EXPECT_EQ(result.m_Point, Point(0, 5.5));
    EXPECT_EQ(k_Five.GetCommonPoint({0, 7}, 1).m_Success, 0U);
    EXPECT_EQ(k_Five.GetCommonPoint({0, 7}, 1).m_Point, k_Origin);
}

struct PairCase {
    const char* m_Name;
    const char* m_Other;
    double m_Accuracy;
    bool m_Meets;
};

TEST(CircumferenceTest, IntersectsAnother) {
    // clang-format off
    const PairCase rows[] = {
        {"crossing",                      "6,0 r5",   0,   true},
        {"touching from outside",         "8,0 r3",   0,   true},
        {"apart",                         "8.5,0 r3", 0,   false},
        {"apart within the accuracy",     "8.5,0 r3", 0.5, true},
        {"touching from inside",          "2,0 r3",   0,   true},
        {"inside",                        "1,0 r3",   0,   false},
        {"inside within the accuracy",    "1,0 r3",   1,   true},
        {"around",                        "0,0 r9",   0,   false},
        {"the same",                      "0,0 r5",   0,   true},
    };
    // clang-format on
    for (const PairCase& row : rows) {
        const Circumference other = CircumferenceOf(row.m_Other);
        EXPECT_EQ(k_Five.Intersects(other, row.m_Accuracy), row.m_Meets) << row.m_Name;
        EXPECT_EQ(other.Intersects(k_Five, row.m_Accuracy), row.m_Meets) << row.m_Name;
    }
}

TEST(CircumferenceTest, IntersectsALine) {
    EXPECT_TRUE(k_Five.IntersectsLine(LineOf("0,5 1,5"), 0));
    EXPECT_TRUE(k_Five.IntersectsLine(LineOf("0,0 1,0"), 0));
    EXPECT_FALSE(k_Five.IntersectsLine(LineOf("0,5.5 1,5.5"), 0));
    EXPECT_TRUE(k_Five.IntersectsLine(LineOf("0,5.5 1,5.5"), 0.5));
    EXPECT_FALSE(k_Five.IntersectsLine(LineOf("0,50 1,50"), 0.5));
}

struct SegmentCase {
    const char* m_Name;
    const char* m_Segment;
    double m_Accuracy;
    bool m_Meets;
};

TEST(CircumferenceTest, IntersectsASegment) {
    // clang-format off
    const SegmentCase rows[] = {
        {"from inside out",               "0,0 9,0",       0,   true},
        {"from outside in",               "9,0 0,0",       0,   true},
        {"start on it",                   "3,4 9,9",       0,   true},
        {"end on it",                     "0,0 3,4",       0,   true},
        {"inside",                        "-1,-1 2,2",     0,   false},
        {"inside, an end within reach",   "0,0 4.5,0",     0.5, true},
        {"through it",                    "-9,1 9,2",      0,   true},
        {"touching",                      "-9,5 9,5",      0,   true},
        {"past it",                       "-9,5.5 9,5.5",  0,   false},
        {"past it within the accuracy",   "-9,5.25 9,5.25", 0.5, true},
        {"far",                           "20,20 30,30",   0,   false},
        {"outside in the box's corner",   "4,4.9 4.9,4",   0,   false},
        {"a point on it",                 "5,0 5,0",       0,   true},
        {"a point inside",                "1,0 1,0",       0,   false},
        {"as short as the accuracy",      "5.5,0 6,0.25",  0.5, true},
    };
    // clang-format on
    for (const SegmentCase& row : rows) {
        SCOPED_TRACE(row.m_Name);
        EXPECT_EQ(k_Five.IntersectsSegment(SegmentOf(row.m_Segment), row.m_Accuracy), row.m_Meets);
    }
}

TEST(CircumferenceTest, OfASegmentAsShortAsTheAccuracyOnlyTheStartCounts) {
    EXPECT_FALSE(k_Five.IntersectsSegment(SegmentOf("5.75,0 5.25,0"), 0.5));
    EXPECT_TRUE(k_Five.IntersectsSegment(SegmentOf("5.25,0 5.75,0"), 0.5));
}

struct BoxCase {
    const char* m_Name;
    const char* m_Box;
    bool m_Meets;
};

TEST(CircumferenceTest, IntersectsABox) {
    // clang-format off
    const BoxCase rows[] = {
        {"around the circle",       "-9,-9 9,9",      true},
        {"its leftmost point",      "-6,-0.1 -4,0.1", true},
        {"its right side",          "4,-1 20,1",      true},
        {"its top",                 "-1,4 1,20",      true},
        {"its bottom",              "-1,-20 1,-4",    true},
        {"inside",                  "-1,-1 2,2",      false},
        {"in the corner",           "4,4 4.9,4.9",    false},
        {"apart",                   "6,6 9,9",        false},
        {"touching",                "5,-1 6,1",       true},
        {"cut by the left edge",    "3,-1 4.5,20",    true},
        {"cut by the bottom edge",  "-20,4 20,20",    true},
    };
    // clang-format on
    for (const BoxCase& row : rows)
        EXPECT_EQ(k_Five.IntersectsBox(BoxOf(row.m_Box), 0), row.m_Meets) << row.m_Name;
    EXPECT_FALSE(k_Five.IntersectsBox(k_EmptyBox, 1));
}

TEST(CircumferenceTest, IntersectsABoxWithinTheAccuracy) {
    EXPECT_FALSE(k_Five.IntersectsBox(BoxOf("5.5,-1 6,1"), 0));
    EXPECT_TRUE(k_Five.IntersectsBox(BoxOf("5.5,-1 6,1"), 0.5));
    EXPECT_TRUE(k_Five.IntersectsBox(BoxOf("-6,-1 -5.5,1"), 0.5));
}

TEST(CircumferenceTest, EqualWhenTheBoxesAre) {
    EXPECT_TRUE(k_Five.IsEqualTo(CircumferenceOf("0.5,0 r5.5"), 1));
    EXPECT_FALSE(k_Five.IsEqualTo(CircumferenceOf("0.75,0 r5.5"), 1));
}

TEST(CircumferenceTest, CutsOfALineFollowItsDirection) {
    ExpectTwoPoints(k_Five.GetIntersections(LineOf("0,3 1,3"), 0), {-4, 3}, {4, 3});
    ExpectTwoPoints(k_Five.GetIntersections(LineOf("1,3 0,3"), 0), {4, 3}, {-4, 3});
    ExpectTwoPoints(k_Five.GetIntersections(LineOf("3,0 3,1"), 0), {3, -4}, {3, 4});
}

TEST(CircumferenceTest, ATangentTouchesAtOnePoint) {
    ExpectOnePoint(k_Five.GetIntersections(LineOf("0,5 1,5"), 0), {0, 5});
    ExpectOnePoint(k_Five.GetIntersections(LineOf("0,5.5 1,5.5"), 0.5), {0, 5.5});
}

TEST(CircumferenceTest, AChordShorterThanTheAccuracyIsItsFirstPoint) {
    ExpectOnePoint(k_Five.GetIntersections(LineOf("4,0 4,1"), 6), {4, -3});
}

TEST(CircumferenceTest, ALineOutsideHasNoCuts) { ExpectNoPoint(k_Five.GetIntersections(LineOf("0,7 1,7"), 1)); }

TEST(CircumferenceTest, ALineThatMeetsWithoutACutIsReported) {
    // The distance of a line that is no number is the cap: 0 for the outline, k_InfiniteUnit for the disc.
    const AssertionRecorder recorder;
    const Line noLine({fixtures::k_NaN, 0}, {1, 1});
    AssertionRecorder::Take();
    ExpectOnePoint(CircumferenceOf("1,2 r0").GetIntersections(noLine, 0), k_Origin);
    EXPECT_EQ(recorder.Take(), Texts{"cross.m_Success, Circumference"});
}

TEST(CircumferenceTest, CutsOfASegment) {
    ExpectTwoPoints(k_Five.GetIntersections(SegmentOf("-9,3 9,3"), 0), {-4, 3}, {4, 3});
    ExpectOnePoint(k_Five.GetIntersections(SegmentOf("0,3 9,3"), 0), {4, 3});
    ExpectOnePoint(k_Five.GetIntersections(SegmentOf("-9,3 0,3"), 0), {-4, 3});
    ExpectNoPoint(k_Five.GetIntersections(SegmentOf("-1,3 1,3"), 0));
    ExpectNoPoint(k_Five.GetIntersections(SegmentOf("20,3 30,3"), 0));
    ExpectNoPoint(k_Five.GetIntersections(SegmentOf("4,4.9 4.9,4"), 0));
}

TEST(CircumferenceTest, APointLikeSegmentMeetsHalfWay) {
    ExpectOnePoint(k_Five.GetIntersections(SegmentOf("0,6 0.5,6.5"), 1), {0, 5.5});
    ExpectNoPoint(k_Five.GetIntersections(SegmentOf("0,1 0.5,1.5"), 1));
}

TEST(CircumferenceTest, APointLikeCircleMeetsASegmentHalfWay) {
    ExpectOnePoint(CircumferenceOf("3,1 r0.5").GetIntersections(SegmentOf("0,0 9,0"), 1), {3, 0.5});
    ExpectNoPoint(CircumferenceOf("3,2 r1").GetIntersections(SegmentOf("0,0 9,0"), 1));
}

TEST(CircumferenceTest, CutsOfASegmentCloserThanTheAccuracyAreOnePoint) {
    // Both points project into the segment, 6 apart and then 2 sqrt(25 - 24.5) = 1.4 apart.
    ExpectTwoPoints(k_Five.GetIntersections(SegmentOf("4,-20 4,20"), 2), {4, -3}, {4, 3});
    const Circumference lower = Circumference({0, 0}, std::sqrt(16.5));
    const PointPairResult apart = lower.GetIntersections(SegmentOf("4,-20 4,20"), 0);
    EXPECT_EQ(apart.m_Success2, 1U);
    const PointPairResult one = lower.GetIntersections(SegmentOf("4,-20 4,20"), 2);
    EXPECT_EQ(one.m_Success1, 1U);
    EXPECT_EQ(one.m_Success2, 0U);
    EXPECT_EQ(one.m_Point1, apart.m_Point1);
}

} // namespace
