#include "lib/math/geometry/Line.h"

#include "lib/math/geometry/Box.h"
#include "tests/AssertionRecorder.h"
#include "tests/GeometryFixtures.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace geom;
using fixtures::LineOf;
using fixtures::SegmentOf;
using Texts = std::vector<std::string>;

const Line k_XAxis = LineOf("0,0 1,0");

/// A line through (x, 0) that rises by about `angle` radians.
Line RisingAt(double x, double angle) { return {Point(x, 0), Vector(Azimuth(k_Radians, angle), 1), k_Along}; }

void ExpectSegment(const SegmentResult& result, const Segment& expected, double tolerance) {
    EXPECT_EQ(result.m_Success, 1U);
    EXPECT_TRUE(result.m_Segment.IsEqualTo(expected, tolerance))
        << testing::PrintToString(result.m_Segment) << " instead of " << testing::PrintToString(expected);
}

TEST(LineCommonSegmentTest, LinesCloserThanTheAccuracyRunTogetherAllAlong) {
    ExpectSegment(k_XAxis.GetCommonSegment(LineOf("0,0.5 1,0.5"), 10, 1), SegmentOf("-11,0.25 11,0.25"), 0);
}

TEST(LineCommonSegmentTest, ThePieceLiesInTheMiddleOfBothLines) {
    ExpectSegment(LineOf("0,1 1,1").GetCommonSegment(LineOf("0,1.5 1,1.5"), 10, 1), SegmentOf("-11,1.25 11,1.25"), 0);
    ExpectSegment(LineOf("1,0 1,1").GetCommonSegment(LineOf("1.5,0 1.5,1"), 10, 1), SegmentOf("1.25,-11 1.25,11"), 0);
}

TEST(LineCommonSegmentTest, TheOtherLinesDirectionDoesNotMatter) {
    ExpectSegment(k_XAxis.GetCommonSegment(LineOf("1,0.5 0,0.5"), 10, 1), SegmentOf("-11,0.25 11,0.25"), 0);
    ExpectSegment(LineOf("1,0 0,0").GetCommonSegment(LineOf("0,0.5 1,0.5"), 10, 1), SegmentOf("11,0.25 -11,0.25"), 0);
}

TEST(LineCommonSegmentTest, ParallelLinesApartHaveNone) {
    const SegmentResult result = k_XAxis.GetCommonSegment(LineOf("0,5 1,5"), 10, 1);
    EXPECT_EQ(result.m_Success, 0U);
    EXPECT_EQ(result.m_Segment, Segment());
}

TEST(LineCommonSegmentTest, LinesAtALargeAngleShareTheirCrossing) {
    ExpectSegment(k_XAxis.GetCommonSegment(LineOf("3,0 3,1"), 10, 1), SegmentOf("3,0 3,0"), 0);
    ExpectSegment(k_XAxis.GetCommonSegment(RisingAt(3, 0.1001), 10, 0.1), SegmentOf("3,0 3,0"), 1e-14);
}

TEST(LineCommonSegmentTest, NearlyParallelLinesRunTogetherAroundTheirCrossing) {
    // At the angle 0.01 they are 0.01 apart at a distance of 1; the piece lies on the bisector.
    const Segment expected({2 - std::cos(0.005), -std::sin(0.005)}, {2 + std::cos(0.005), std::sin(0.005)});
    ExpectSegment(k_XAxis.GetCommonSegment(RisingAt(2, 0.01), 10, 0.01), expected, 1e-12);
    const Segment falling({2 - std::cos(0.005), std::sin(0.005)}, {2 + std::cos(0.005), -std::sin(0.005)});
    ExpectSegment(k_XAxis.GetCommonSegment(RisingAt(2, -0.01), 10, 0.01), falling, 1e-12);
}

TEST(LineCommonSegmentTest, ThePieceIsNoLongerThanTheSize) {
    // Reach 0.15 / 0.01 = 15 from the crossing at 9, but the lines are 0.19 apart at the left border.
    const double length = 10;
    const Segment expected({9 - length * std::cos(0.005), -length * std::sin(0.005)},
        {9 + length * std::cos(0.005), length * std::sin(0.005)});
    ExpectSegment(k_XAxis.GetCommonSegment(RisingAt(9, 0.01), 10, 0.15), expected, 1e-12);
}

TEST(LineCommonSegmentTest, LinesWhoseAzimuthsRoundToTheSameRunTogetherForTheWholeSize) {
    // The normals differ in their last places, the azimuths do not.
    const AssertionRecorder recorder;
    const Line line({0, 0}, {1000, 430});
    const Line other({0, 0}, {1000, fixtures::Up(430)});
    ASSERT_FALSE(line.GetA() == other.GetA() && line.GetB() == other.GetB());
    ASSERT_EQ(line.GetAzimuth(), other.GetAzimuth());
    const double angle = std::atan(0.43);
    const Vector reach(1e6 * std::cos(angle), 1e6 * std::sin(angle));
    ExpectSegment(line.GetCommonSegment(other, 1e6, 1e-12), Segment(k_Origin - reach, k_Origin + reach), 1e-6);
}

TEST(LineCommonSegmentTest, WithoutAccuracyTheCrossingIsLeft) {
    const AssertionRecorder recorder;
    ExpectSegment(k_XAxis.GetCommonSegment(RisingAt(2, 0.01), 10, 0), SegmentOf("2,0 2,0"), 1e-12);
    EXPECT_TRUE(recorder.Take().empty());
}

TEST(LineCommonSegmentTest, ALineOutsideTheSquareIsReported) {
    const AssertionRecorder recorder;
    EXPECT_EQ(k_XAxis.GetCommonSegment(LineOf("0,50 1,50"), 10, 1).m_Success, 0U);
    EXPECT_EQ(recorder.Take(), Texts{"s1.m_Success && s2.m_Success, Line"});
}

TEST(LineCommonSegmentTest, EndsThatRoundingTakesOffTheLinesAreReported) {
    // Around a million the coordinates are 1e-10 apart, so that an accuracy of 1e-12 cannot be held.
    const AssertionRecorder recorder;
    std::vector<std::string> reports;
    for (double slope = 0.90; slope < 1.1; slope += 0.013) {
        const Line line(Point(1e6, 1e6 / 3), Vector(1, slope), k_Along);
        const Line other(Point(1e6, 1e6 / 3), Vector(1, slope + 0.01), k_Along);
        EXPECT_EQ(line.GetCommonSegment(other, 1e7, 1e-12).m_Success, 1U);
        const Texts taken = recorder.Take();
        reports.insert(reports.end(), taken.begin(), taken.end());
    }
    for (const char* end : {"d3", "d4", "d5", "d6"})
        EXPECT_THAT(
            reports, testing::Contains("accuracy == 0 || " + std::string(end) + ".GetAbs() <= accuracy * 0.8, Line"));
}

TEST(LineCommonSegmentTest, ASegmentOffTheLineSharesNothing) {
    const SegmentResult result = k_XAxis.GetCommonSegment(SegmentOf("0,2 5,3"), 1);
    EXPECT_EQ(result.m_Success, 0U);
    EXPECT_EQ(result.m_Segment, Segment());
}

TEST(LineCommonSegmentTest, APointLikeSegmentIsMovedHalfWayToTheLine) {
    ExpectSegment(k_XAxis.GetCommonSegment(SegmentOf("3,0.5 3.5,0.75"), 1), SegmentOf("3,0.25 3,0.25"), 0);
}

TEST(LineCommonSegmentTest, ASegmentOnTheLineIsMovedHalfWayToIt) {
    ExpectSegment(k_XAxis.GetCommonSegment(SegmentOf("3,0.5 9,-1"), 1), SegmentOf("3,0.25 9,-0.5"), 0);
}

TEST(LineCommonSegmentTest, OneEndOnTheLineIsSharedAlone) {
    ExpectSegment(k_XAxis.GetCommonSegment(SegmentOf("3,0.5 9,5"), 1), SegmentOf("3,0.25 3,0.25"), 0);
    ExpectSegment(k_XAxis.GetCommonSegment(SegmentOf("9,5 3,0.5"), 1), SegmentOf("3,0.25 3,0.25"), 0);
}

TEST(LineCommonSegmentTest, ASegmentThatCrossesSharesTheCrossing) {
    ExpectSegment(k_XAxis.GetCommonSegment(SegmentOf("3,-5 3,5"), 1), SegmentOf("3,0 3,0"), 0);
}

TEST(LineCommonSegmentTest, ASegmentThatOnlyRoundingTakesAcrossTheLineIsReported) {
    // Its line gets the very normal of the first line, and so never crosses it; but its ends get different signs.
    const AssertionRecorder recorder;
    const double t = 876.4;
    const Line line({0, 0.7}, {3, 1.7});
    const Segment segment({t * 3, t + 0.7}, {t * 3 + 6, t + 0.7 + 2});
    const SegmentResult result = line.GetCommonSegment(segment, 0);
    EXPECT_EQ(result.m_Success, 0U);
    EXPECT_EQ(result.m_Segment, Segment());
    EXPECT_EQ(recorder.Take(), Texts{"r0.m_Success, Line"});
}

TEST(LineCommonSegmentTest, ASegmentThatCrossesAtASmallAngleSharesAPieceInItsDirection) {
    // Rises by 0.01 at each unit: within 0.1 of the axis from -10 to 10 around the crossing, on the bisector.
    const Segment segment({-50, -0.5}, {50, 0.5});
    const double angle = std::atan(0.01);
    const double reach = 0.1 / angle;
    const Segment expected({-reach * std::cos(angle / 2), -reach * std::sin(angle / 2)},
        {reach * std::cos(angle / 2), reach * std::sin(angle / 2)});
    ExpectSegment(k_XAxis.GetCommonSegment(segment, 0.1), expected, 1e-10);
    ExpectSegment(k_XAxis.GetCommonSegment(segment.GetReversed(), 0.1), expected.GetReversed(), 1e-10);
}

} // namespace
