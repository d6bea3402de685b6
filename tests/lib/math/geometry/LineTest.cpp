#include "lib/math/geometry/Line.h"

#include "lib/math/geometry/Box.h"
#include "tests/AssertionRecorder.h"
#include "tests/GeometryFixtures.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace {

using namespace geom;
using fixtures::BitsOf;
using fixtures::BoxOf;
using fixtures::LineOf;
using fixtures::SegmentOf;
using fixtures::Up;
using Texts = std::vector<std::string>;

std::vector<double> Coefficients(const Line& line) { return {line.GetA(), line.GetB(), line.GetC()}; }

const Line k_XAxis = LineOf("0,0 1,0");
const Line k_YAxis = LineOf("0,0 0,1");
const Line k_Rising = LineOf("0,0 1,1");
const Point k_Nowhere(k_InfiniteUnit, k_InfiniteUnit);

TEST(LineTest, TheXAxisHasItsLeftAbove) {
    EXPECT_TRUE(std::is_trivially_copyable_v<Line>);
    EXPECT_EQ(Coefficients(k_XAxis), (std::vector<double>{0, 1, 0}));
    EXPECT_EQ(k_XAxis.GetSignedDistance({0, 1}), Unit(1));
}

TEST(LineTest, TheYAxisHasItsLeftAtNegativeX) {
    EXPECT_EQ(Coefficients(k_YAxis), (std::vector<double>{-1, 0, 0}));
    EXPECT_EQ(k_YAxis.GetSignedDistance({-1, 0}), Unit(1));
}

struct CoefficientCase {
    const char* m_Ends;
    std::vector<double> m_Coefficients;
};

TEST(LineTest, CoefficientsAlongTheAxesAreExact) {
    // clang-format off
    const CoefficientCase rows[] = {
        {"0,0.1 5,0.1", {0, 1, -0.1}}, {"5,0.1 0,0.1", {0, -1, 0.1}},
        {"0.1,0 0.1,5", {-1, 0, 0.1}}, {"0.1,5 0.1,0", {1, 0, -0.1}},
    };
    // clang-format on
    for (const CoefficientCase& row : rows)
        EXPECT_EQ(Coefficients(LineOf(row.m_Ends)), row.m_Coefficients) << row.m_Ends;
}

TEST(LineTest, CoefficientsOfASlopedLineAreNormalised) {
    // Through (0, 5) with the direction (3, 4) / 5: normal (-0.8, 0.6), distance of the origin from it -3.
    const Line line = LineOf("0,5 3,9");
    EXPECT_DOUBLE_EQ(line.GetA(), -0.8);
    EXPECT_DOUBLE_EQ(line.GetB(), 0.6);
    EXPECT_DOUBLE_EQ(line.GetC(), -3);
}

TEST(LineTest, CoefficientsAreComputedInAFixedOrder) {
    // From a transcription of the formulas into another language.
    EXPECT_EQ(Coefficients(LineOf("0.1,0.2 7.3,2.9")),
        (std::vector<double>{-0x1.678ce749eca7bp-2, 0x1.df6689b7e634fp-1, -0x1.379c3feabc08ep-3}));
    EXPECT_EQ(Coefficients(LineOf("1.7,-3.1 2.3,9.7")),
        (std::vector<double>{-0x1.ff703ca393fcfp-1, 0x1.7f942d7aaefdbp-5, 0x1.d7e1c18c86bdfp+0}));
}

TEST(LineTest, EqualPointsAreReported) {
    const AssertionRecorder recorder;
    const Texts expected = {"!pa.IsEqualTo (pb, GetCombinedEpsilon_T (pa, pb)), Line"};
    EXPECT_EQ(Coefficients(Line(Point(1, 2), Point(1, 2))), (std::vector<double>{0, -1, 2}));
    EXPECT_EQ(recorder.Take(), expected);
    // 2 * 1000 * 2^-52 is their tolerance.
    LineOf("1,2 1.0000000000004,2");
    EXPECT_EQ(recorder.Take(), expected);
    LineOf("1,2 1.0000000000005,2");
    EXPECT_TRUE(recorder.Take().empty());
}

TEST(LineTest, ThroughAPointAlongOrAcrossAVector) {
    EXPECT_EQ(Line(Point(1, 2), Vector(3, 0), k_Along).GetDirection(), Vector(1, 0));
    const Line across(Point(1, 2), Vector(3, 0), k_Across);
    EXPECT_EQ(across.GetDirection(), Vector(0, -1));
    EXPECT_TRUE(across.Contains({1, 77}, 0));
    EXPECT_EQ(unsigned(k_Along), 1U);
}

TEST(LineTest, NegationTurnsItRound) {
    const Line line = LineOf("0,5 3,9");
    EXPECT_EQ(Coefficients(-line), (std::vector<double>{-line.GetA(), -line.GetB(), -line.GetC()}));
    EXPECT_EQ((-line).GetSignedDistance({7, 1}), -line.GetSignedDistance({7, 1}));
}

TEST(LineTest, NormalPointsToTheLeftOfTheDirection) {
    EXPECT_EQ(k_XAxis.GetNormal(), Vector(0, 1));
    EXPECT_EQ(k_XAxis.GetDirection(), Vector(1, 0));
    EXPECT_EQ(k_YAxis.GetDirection(), Vector(0, 1));
}

TEST(LineTest, ContainsWithinAnAccuracy) {
    EXPECT_TRUE(k_XAxis.Contains({1e6, 0}, 0));
    EXPECT_TRUE(k_XAxis.Contains({3, -0.5}, 0.5));
    EXPECT_FALSE(k_XAxis.Contains({3, Up(0.5)}, 0.5));
}

TEST(LineTest, DistanceIsCapped) {
    EXPECT_EQ(k_XAxis.GetDistanceUpTo({7, -3}, 10), Unit(3));
    EXPECT_EQ(k_XAxis.GetDistanceUpTo({7, -3}, 2), Unit(2));
}

TEST(LineTest, ANegativeCapIsReportedAndReturned) {
    const AssertionRecorder recorder;
    EXPECT_EQ(k_XAxis.GetDistanceUpTo({7, -3}, -1), Unit(-1));
    EXPECT_EQ(recorder.Take(), Texts{"cur_distance >= k_NullUnit, Line"});
}

TEST(LineTest, Projections) {
    EXPECT_EQ(k_XAxis.GetProjection({7, -3}), Point(7, 0));
    EXPECT_EQ(LineOf("3,0 3,1").GetProjection({7, -3}), Point(3, -3));
    EXPECT_TRUE(k_Rising.GetProjection({2, 0}).IsEqualTo({1, 1}, 1e-15));
}

TEST(LineTest, NearestToOrigin) {
    EXPECT_EQ(LineOf("0,2 1,2").GetNearestToOrigin(), Point(0, 2));
    EXPECT_EQ(LineOf("-3,1 -3,0").GetNearestToOrigin(), Point(-3, 0));
    EXPECT_TRUE(LineOf("0,2 2,0").GetNearestToOrigin().IsEqualTo({1, 1}, 1e-15));
}

TEST(LineTest, AzimuthAlongTheAxesIsExact) {
    EXPECT_EQ(k_XAxis.GetAzimuth(), k_Azimuth_0);
    EXPECT_EQ((-k_XAxis).GetAzimuth(), k_Azimuth_180);
    EXPECT_EQ(k_YAxis.GetAzimuth(), k_Azimuth_90);
    EXPECT_EQ((-k_YAxis).GetAzimuth(), k_Azimuth_270);
    EXPECT_DOUBLE_EQ(k_Rising.GetAzimuth().GetAngle().GetValue(k_Degrees), 45);
    EXPECT_DOUBLE_EQ((-k_Rising).GetAzimuth().GetAngle().GetValue(k_Degrees), 225);
}

TEST(LineTest, RelativeToAPointMovesTheOrigin) {
    const Line relative = LineOf("0,2 1,2").GetRelativeTo({5, 7});
    EXPECT_EQ(Coefficients(relative), (std::vector<double>{0, 1, 5}));
    EXPECT_EQ(relative.GetSignedDistance({0, 0}), Unit(5));
}

TEST(LineTest, AxesAreExchanged) {
    EXPECT_EQ(Coefficients(LineOf("0,2 1,2").GetWithAxesExchanged()), (std::vector<double>{1, 0, -2}));
}

TEST(LineTest, MovedToItsRightForASetSide) {
    EXPECT_EQ(Coefficients(k_XAxis.GetMoved(true, 3)), (std::vector<double>{0, 1, 3}));
    EXPECT_EQ(Coefficients(k_XAxis.GetMoved(false, 3)), (std::vector<double>{0, 1, -3}));
}

TEST(LineTest, CoordinatesOnTheLine) {
    EXPECT_EQ(LineOf("3,0 3,1").GetX(77), Unit(3));
    EXPECT_EQ(LineOf("0,2 1,2").GetY(77), Unit(2));
    const Line line = LineOf("0,1 2,2");
    EXPECT_DOUBLE_EQ(double(line.GetX(3)), 4);
    EXPECT_DOUBLE_EQ(double(line.GetY(4)), 3);
}

TEST(LineTest, ACoordinateThatIsNoneIsReportedAndDividedByZero) {
    const AssertionRecorder recorder;
    EXPECT_TRUE(std::isinf(double(LineOf("0,2 1,2").GetX(0))));
    EXPECT_EQ(recorder.Take(), Texts{"m_A, Line"});
    EXPECT_TRUE(std::isinf(double(LineOf("3,0 3,1").GetY(0))));
    EXPECT_EQ(recorder.Take(), Texts{"m_B, Line"});
}

TEST(LineTest, EqualWithinAnAccuracyInEitherDirection) {
    EXPECT_TRUE(k_XAxis.IsEqualTo(LineOf("5,1 9,1"), 1));
    EXPECT_FALSE(k_XAxis.IsEqualTo(LineOf("5,1.5 9,1.5"), 1));
    EXPECT_TRUE(k_XAxis.IsEqualTo(LineOf("9,1 5,1"), 1));
    EXPECT_FALSE(k_XAxis.IsEqualTo(LineOf("9,1.5 5,1.5"), 1));
    EXPECT_TRUE(LineOf("0,3 1,3").IsEqualTo(LineOf("1,3 0,3"), 0));
    EXPECT_FALSE(k_XAxis.IsEqualTo(k_YAxis, 100));
    EXPECT_FALSE(k_XAxis.IsEqualTo(k_Rising, 100));
}

TEST(LineTest, SameWay) {
    EXPECT_TRUE(k_XAxis.IsSameWayAs(k_Rising));
    EXPECT_FALSE(k_XAxis.IsSameWayAs(k_YAxis));
    EXPECT_FALSE(k_XAxis.IsSameWayAs(-k_Rising));
}

TEST(LineTest, IntersectsAnotherLine) {
    EXPECT_TRUE(k_XAxis.IntersectsWith(k_YAxis, 0));
    EXPECT_TRUE(k_XAxis.IntersectsWith(k_XAxis, 0));
    EXPECT_FALSE(k_XAxis.IntersectsWith(LineOf("0,1 1,1"), 0));
    EXPECT_TRUE(k_XAxis.IntersectsWith(LineOf("0,1 1,1"), 1));
    EXPECT_FALSE(k_Rising.IntersectsWith(LineOf("0,1 1,2"), 0));
}

TEST(LineTest, LinesThatCrossBeyondReachDoNotIntersect) {
    // They close in by 1e-20 for each unit of way; 1e285 / 1e-20 lies beyond 1.8e302.
    const Line far = LineOf("0,1e285 1e285,1e285");
    EXPECT_TRUE(LineOf("0,0 1e20,1").IntersectsWith(LineOf("0,5 1,5"), 0));
    EXPECT_FALSE(LineOf("0,0 1e20,1").IntersectsWith(far, 0));
}

TEST(LineTest, ParallelLinesMeetAtInfinity) {
    EXPECT_EQ(k_XAxis.GetIntersection(LineOf("0,1 1,1")), k_Nowhere);
    EXPECT_EQ(k_Rising.GetIntersection(LineOf("0,1 1,2")), k_Nowhere);
    EXPECT_EQ(k_XAxis.GetIntersection(-k_XAxis), k_Nowhere);
}

TEST(LineTest, Intersections) {
    EXPECT_EQ(LineOf("0,2 1,2").GetIntersection(LineOf("3,0 3,1")), Point(3, 2));
    EXPECT_TRUE(LineOf("0,0 10,10").GetIntersection(LineOf("0,10 10,0")).IsEqualTo({5, 5}, 1e-14));
}

TEST(LineTest, IntersectionIsComputedInAFixedOrder) {
    const Point point = LineOf("0.1,0.2 7.3,2.9").GetIntersection(LineOf("1.7,-3.1 2.3,9.7"));
    EXPECT_EQ(BitsOf(point), BitsOf(Point(0x1.e2d65e41c1805p+0, 0x1.bd53f9e484536p-1)));
    // Here the refinement moves both coordinates, for either line by itself.
    const Point refined = LineOf("-8.6,-8.5 -2.9,-5.5").GetIntersection(LineOf("1.2,-4.2 4.7,1.8"));
    EXPECT_EQ(BitsOf(refined), BitsOf(Point(0x1.ec12259701f1bp+0, -0x1.7b23a5440cf64p+1)));
}

struct MeetingCase {
    const char* m_Name;
    const char* m_Segment;
    bool m_Meets;
};

TEST(LineTest, IntersectsASegment) {
    // clang-format off
    const MeetingCase rows[] = {
        {"across",          "5,-1 6,2",  true},
        {"start on it",     "5,0 6,2",   true},
        {"end on it",       "6,2 5,0",   true},
        {"along it",        "5,0 6,0",   true},
        {"on its left",     "5,1 6,2",   false},
        {"on its right",    "5,-1 6,-2", false},
        {"a point on it",   "5,0 5,0",   true},
        {"a point off it",  "5,1 5,1",   false},
    };
    // clang-format on
    for (const MeetingCase& row : rows)
        EXPECT_EQ(k_XAxis.IntersectsSegment(SegmentOf(row.m_Segment), 0), row.m_Meets) << row.m_Name;
}

TEST(LineTest, IntersectsASegmentWithinAnAccuracy) {
    EXPECT_TRUE(k_XAxis.IntersectsSegment(SegmentOf("5,1 6,9"), 1));
    EXPECT_TRUE(k_XAxis.IntersectsSegment(SegmentOf("6,9 5,1"), 1));
    EXPECT_FALSE(k_XAxis.IntersectsSegment(SegmentOf("5,1.5 6,9"), 1));
}

TEST(LineTest, OnlyTheStartOfAPointLikeSegmentCountsAsOnTheLine) {
    // Both ends are equal within 1; the end would be on the line, the start is not.
    EXPECT_FALSE(k_XAxis.IntersectsSegment(SegmentOf("5,1.5 5,0.75"), 1));
    EXPECT_TRUE(k_XAxis.IntersectsSegment(SegmentOf("5,0.75 5,1.5"), 1));
}

TEST(LineTest, SegmentInABoxRunsClearAcrossIt) {
    EXPECT_EQ(LineOf("0,5 1,5").GetSegmentInBox(BoxOf("0,0 10,20")), SegmentOf("-40,5 50,5"));
    EXPECT_EQ(LineOf("1,5 0,5").GetSegmentInBox(BoxOf("0,0 10,20")), SegmentOf("50,5 -40,5"));
    EXPECT_EQ(LineOf("5,0 5,1").GetSegmentInBox(BoxOf("0,0 10,20")), SegmentOf("5,-40 5,60"));
    EXPECT_EQ(LineOf("5,1 5,0").GetSegmentInBox(BoxOf("0,0 10,20")), SegmentOf("5,60 5,-40"));
}

TEST(LineTest, SegmentInABoxOfOnePointHasEqualEndsAndIsReported) {
    const AssertionRecorder recorder;
    EXPECT_EQ(LineOf("0,5 1,5").GetSegmentInBox(BoxOf("3,3 3,3")), SegmentOf("3,5 3,5"));
    EXPECT_EQ(recorder.Take(), Texts{"p1 != p2, Line"});
}

TEST(LineTest, SegmentInAnEmptyBoxIsReported) {
    const AssertionRecorder recorder;
    k_XAxis.GetSegmentInBox(k_EmptyBox);
    EXPECT_EQ(recorder.Take().front(), "!box.IsEmpty(), Line");
}

TEST(LineTest, OffsetIntersectionLiesOnTheAskedSides) {
    EXPECT_EQ(k_XAxis.GetOffsetIntersection(false, k_YAxis, false, 2), Point(-2, 2));
    EXPECT_EQ(k_XAxis.GetOffsetIntersection(true, k_YAxis, false, 2), Point(-2, -2));
    EXPECT_EQ(k_XAxis.GetOffsetIntersection(false, k_YAxis, true, 2), Point(2, 2));
    EXPECT_EQ(k_XAxis.GetOffsetIntersection(true, k_YAxis, true, 2), Point(2, -2));
}

TEST(LineTest, OffsetIntersectionReportsWhatItCannotFit) {
    const AssertionRecorder recorder;
    EXPECT_EQ(k_XAxis.GetOffsetIntersection(false, k_YAxis, false, -2), Point(2, -2));
    EXPECT_EQ(recorder.Take(), Texts{"radius >= 0, Line"});
    EXPECT_EQ(k_XAxis.GetOffsetIntersection(false, LineOf("0,5 1,5"), false, 2), k_Nowhere);
    EXPECT_EQ(recorder.Take(), Texts{"line1.IntersectsWith (line2, 0), Line"});
}

} // namespace
