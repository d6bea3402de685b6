#include "lib/math/geometry/Box.h"

#include "lib/math/geometry/Line.h"
#include "tests/AssertionRecorder.h"
#include "tests/GeometryFixtures.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace {

using namespace geom;
using fixtures::BoxOf;
using fixtures::Down;
using fixtures::k_SquareBox;
using fixtures::k_TallBox;
using fixtures::LineOf;
using fixtures::SegmentOf;
using fixtures::Up;
using Texts = std::vector<std::string>;

const std::string k_NotEmpty = "!IsEmpty(), Box";
const std::string k_RangeNotEmpty = "!IsEmpty(), Range_T";
const std::string k_Never = "!\"This should never happen!\", Box";

TEST(BoxTest, IsFourLengths) {
    static_assert(sizeof(Box) == 4 * sizeof(double) && std::is_trivially_copyable_v<Box>);
    static_assert(k_EmptyBox.IsEmpty() && !k_UniverseBox.IsEmpty());
    EXPECT_EQ(k_UniverseBox.GetVertex(1), Point(k_InfiniteUnit, k_InfiniteUnit));
    EXPECT_EQ(k_UniverseBox.GetVertex(3), Point(-k_InfiniteUnit, -k_InfiniteUnit));
}

TEST(BoxTest, IsMadeFromCornersCentreOrShapes) {
    EXPECT_TRUE(Box().IsEmpty());
    EXPECT_EQ(Box(10, 20, 0, 0), k_TallBox);
    EXPECT_EQ(Box(0, 20, 10, 0), k_TallBox);
    EXPECT_EQ(Box(Point(5, 5), 10), k_SquareBox);
    EXPECT_EQ(Box(Point(5, 10), 10, 20), k_TallBox);
    EXPECT_EQ(Box(Point(3, 4)), BoxOf("3,4 3,4"));
    EXPECT_EQ(Box(SegmentOf("10,0 0,20")), k_TallBox);
    EXPECT_EQ(Box(Box::Range(0, 10), Box::Range(0, 20)), k_TallBox);
}

TEST(BoxTest, IsEmptyWhenOneAxisIs) {
    EXPECT_TRUE(Box(Box::Range(), Box::Range(0, 1)).IsEmpty());
    EXPECT_TRUE(Box(Box::Range(0, 1), Box::Range()).IsEmpty());
    EXPECT_FALSE(Box(Point(0, 0)).IsEmpty());
}

TEST(BoxTest, VerticesRunCounterClockwiseFromTheTopRight) {
    EXPECT_EQ(k_TallBox.GetVertex(1), Point(10, 20));
    EXPECT_EQ(k_TallBox.GetVertex(2), Point(0, 20));
    EXPECT_EQ(k_TallBox.GetVertex(3), Point(0, 0));
    EXPECT_EQ(k_TallBox.GetVertex(4), Point(10, 0));
}

TEST(BoxTest, AVertexThatIsNoneIsReportedAndTheOrigin) {
    const AssertionRecorder recorder;
    for (const int n : {0, 5, -1}) {
        EXPECT_EQ(BoxOf("1,1 2,2").GetVertex(n), k_Origin);
        EXPECT_EQ(recorder.Take(), Texts{k_Never});
    }
}

TEST(BoxTest, AVertexOfAnEmptyBoxIsReported) {
    const AssertionRecorder recorder;
    EXPECT_EQ(k_EmptyBox.GetVertex(2), Point(1, 0));
    EXPECT_EQ(recorder.Take(), (Texts{k_NotEmpty, k_RangeNotEmpty, k_RangeNotEmpty}));
}

TEST(BoxTest, EdgesRunCounterClockwiseFromTheRight) {
    EXPECT_EQ(k_TallBox.GetEdge(0), SegmentOf("10,0 10,20"));
    EXPECT_EQ(k_TallBox.GetEdge(1), SegmentOf("10,20 0,20"));
    EXPECT_EQ(k_TallBox.GetEdge(2), SegmentOf("0,20 0,0"));
    EXPECT_EQ(k_TallBox.GetEdge(3), SegmentOf("0,0 10,0"));
}

TEST(BoxTest, AnEdgeThatIsNoneIsReportedAndZero) {
    const AssertionRecorder recorder;
    for (const int n : {4, -1}) {
        EXPECT_EQ(BoxOf("1,1 2,2").GetEdge(n), Segment());
        EXPECT_EQ(recorder.Take(), Texts{k_Never});
    }
}

TEST(BoxTest, AnEdgeOfAnEmptyBoxIsReported) {
    const AssertionRecorder recorder;
    k_EmptyBox.GetEdge(4);
    EXPECT_EQ(recorder.Take(), (Texts{k_NotEmpty, k_Never}));
}

TEST(BoxTest, CounterClockwiseEdgesBeginWithTheTop) {
    const std::vector<Segment> expected = {
        k_TallBox.GetEdge(1), k_TallBox.GetEdge(2), k_TallBox.GetEdge(3), k_TallBox.GetEdge(0)};
    EXPECT_EQ(k_TallBox.GetEdges(k_CCW), expected);
}

TEST(BoxTest, ClockwiseEdgesAreTheSameBackwards) {
    const std::vector<Segment> expected = {
        SegmentOf("10,20 10,0"), SegmentOf("10,0 0,0"), SegmentOf("0,0 0,20"), SegmentOf("0,20 10,20")};
    EXPECT_EQ(k_TallBox.GetEdges(k_CW), expected);
}

TEST(BoxTest, EdgesOfAnEmptyBoxAreReportedAndNone) {
    const AssertionRecorder recorder;
    EXPECT_TRUE(k_EmptyBox.GetEdges(k_CCW).empty());
    EXPECT_EQ(recorder.Take(), Texts{k_NotEmpty});
}

TEST(BoxTest, EdgesWithoutADirectionAreReportedAndCounterClockwise) {
    const AssertionRecorder recorder;
    EXPECT_EQ(k_TallBox.GetEdges(k_NoDirection), k_TallBox.GetEdges(k_CCW));
    EXPECT_EQ(recorder.Take(), Texts{"direction == k_CW || direction == k_CCW, Box"});
}

TEST(BoxTest, DiagonalsEndAtTheirVertex) {
    EXPECT_EQ(k_TallBox.GetDiagonal(1), SegmentOf("0,0 10,20"));
    EXPECT_EQ(k_TallBox.GetDiagonal(2), SegmentOf("10,0 0,20"));
    EXPECT_EQ(k_TallBox.GetDiagonal(3), SegmentOf("10,20 0,0"));
    EXPECT_EQ(k_TallBox.GetDiagonal(4), SegmentOf("0,20 10,0"));
}

TEST(BoxTest, ADiagonalOfAnEmptyBoxIsReported) {
    const AssertionRecorder recorder;
    k_EmptyBox.GetDiagonal(1);
    EXPECT_EQ(recorder.Take().front(), k_NotEmpty);
}

TEST(BoxTest, Measures) {
    const Box box = BoxOf("-30,1 -20,5");
    EXPECT_EQ(box.GetCenter(), Point(-25, 3));
    EXPECT_EQ(box.GetMaxDimension(), Unit(10));
    EXPECT_EQ(k_TallBox.GetMaxDimension(), Unit(20));
    EXPECT_EQ(box.GetHalfPerimeter(), Unit(14));
}

TEST(BoxTest, MeasuresOfAnEmptyBoxAreReportedByItsRanges) {
    const AssertionRecorder recorder;
    k_EmptyBox.GetHalfPerimeter();
    EXPECT_EQ(recorder.Take(), (Texts{k_RangeNotEmpty, k_RangeNotEmpty}));
}

struct MagnitudeCase {
    const char* m_Box;
    double m_Magnitude;
};

TEST(BoxTest, MagnitudeIsTheLargestOfSixNumbers) {
    // clang-format off
    const MagnitudeCase rows[] = {
        {"-30,1 -20,5", 30}, {"20,1 30,5", 30}, {"1,-30 5,-20", 30}, {"1,20 5,30", 30},
        {"-3,0 4,1", 7},     {"0,-3 1,4", 7},   {"0,0 0,0", 0},
    };
    // clang-format on
    for (const MagnitudeCase& row : rows)
        EXPECT_EQ(BoxOf(row.m_Box).GetMagnitude(), Unit(row.m_Magnitude)) << row.m_Box;
}

TEST(BoxTest, EpsilonOfAnEmptyBoxIsZero) {
    const AssertionRecorder recorder;
    EXPECT_EQ(k_EmptyBox.GetEpsilon(), Unit(0));
    EXPECT_TRUE(recorder.Take().empty());
}

TEST(BoxTest, EpsilonIsThatOfTheMagnitude) {
    EXPECT_EQ(BoxOf("0,0 10,20").GetEpsilon(), Unit(20).GetEpsilon());
    EXPECT_EQ(BoxOf("100,100 100,100").GetEpsilon(), Unit(100).GetEpsilon());
}

TEST(BoxTest, UnionHoldsBothAndIgnoresTheEmpty) {
    EXPECT_EQ(BoxOf("0,0 1,1").GetUnion(BoxOf("4,-1 5,0")), BoxOf("0,-1 5,1"));
    EXPECT_EQ(k_EmptyBox.GetUnion(k_TallBox), k_TallBox);
    EXPECT_EQ(k_TallBox.GetUnion(k_EmptyBox), k_TallBox);
}

TEST(BoxTest, ExtendGrowsInPlace) {
    Box box;
    box.Extend(Point(3, 4));
    EXPECT_EQ(box, Box(Point(3, 4)));
    box.Extend(BoxOf("-1,5 0,6"));
    EXPECT_EQ(box, BoxOf("-1,4 3,6"));
}

TEST(BoxTest, IntersectionWorksAxisByAxis) {
    EXPECT_EQ(k_SquareBox.GetIntersection(BoxOf("5,-5 20,5")), BoxOf("5,0 10,5"));
    const Box beside = k_SquareBox.GetIntersection(BoxOf("11,2 12,3"));
    EXPECT_TRUE(beside.IsEmpty());
    EXPECT_TRUE(beside.GetXRange().IsEmpty());
    EXPECT_EQ(beside.GetYRange(), Box::Range(2, 3));
}

TEST(BoxTest, TouchingBoxesIntersect) {
    EXPECT_TRUE(k_SquareBox.Intersects(BoxOf("10,10 20,20")));
    EXPECT_FALSE(k_SquareBox.Intersects(Box(Up(10), 0, 20, 10)));
    EXPECT_FALSE(k_SquareBox.Intersects(Box(0, -5, 10, Down(0))));
}

TEST(BoxTest, AnEmptyBoxIntersectsNothing) {
    const AssertionRecorder recorder;
    EXPECT_FALSE(k_EmptyBox.Intersects(k_UniverseBox));
    EXPECT_FALSE(k_UniverseBox.Intersects(k_EmptyBox));
    EXPECT_FALSE(k_EmptyBox.Intersects(k_UniverseBox, 5));
    EXPECT_FALSE(k_UniverseBox.Intersects(k_EmptyBox, 5));
    EXPECT_TRUE(recorder.Take().empty());
}

TEST(BoxTest, IntersectsWithinAnAccuracy) {
    EXPECT_TRUE(k_SquareBox.Intersects(BoxOf("11,0 20,10"), 1));
    EXPECT_FALSE(k_SquareBox.Intersects(Box(Up(11), 0, 20, 10), 1));
    EXPECT_FALSE(k_SquareBox.Intersects(BoxOf("11,0 20,10"), 0));
}

TEST(BoxTest, ShrinkingByMoreThanThereIsGivesTheEmptyBox) {
    const Box box = fixtures::k_TallBox;
    EXPECT_TRUE(box.GetExpanded(-6).IsEmpty());
    EXPECT_EQ(box.GetExpanded(-5), BoxOf("5,5 5,15"));
    EXPECT_TRUE(BoxOf("0,0 20,10").GetExpanded(-6).IsEmpty());
}

TEST(BoxTest, ExpandingMovesAllSides) {
    EXPECT_EQ(k_TallBox.GetExpanded(2), BoxOf("-2,-2 12,22"));
    EXPECT_EQ(k_TallBox.GetExpanded(0), k_TallBox);
    Box box = k_TallBox;
    box.Expand(1);
    EXPECT_EQ(box, BoxOf("-1,-1 11,21"));
}

TEST(BoxTest, ExpandingAnEmptyBoxLeavesItEmptyWithoutReport) {
    const AssertionRecorder recorder;
    EXPECT_TRUE(k_EmptyBox.GetExpanded(0).IsEmpty());
    EXPECT_TRUE(k_EmptyBox.GetExpanded(7).IsEmpty());
    EXPECT_TRUE(k_EmptyBox.GetExpanded(-7).IsEmpty());
    EXPECT_TRUE(recorder.Take().empty());
}

TEST(BoxTest, IsPointNeedsBothSizesSmall) {
    Point center;
    EXPECT_TRUE(BoxOf("0,0 1,1").IsPoint(1, &center));
    EXPECT_EQ(center, Point(0.5, 0.5));
    EXPECT_TRUE(BoxOf("0,0 1,1").IsPoint(1));
    EXPECT_FALSE(BoxOf("0,0 1,2").IsPoint(1, &center));
    EXPECT_FALSE(BoxOf("0,0 2,1").IsPoint(1, &center));
    EXPECT_FALSE(k_EmptyBox.IsPoint(1));
}

TEST(BoxTest, AFlatBoxIsASegmentButNoPoint) {
    Segment diagonal;
    EXPECT_TRUE(BoxOf("3,0 3,10").IsSegment(0, &diagonal));
    EXPECT_EQ(diagonal, SegmentOf("3,0 3,10"));
    EXPECT_FALSE(BoxOf("3,0 3,10").IsPoint(0));
    EXPECT_TRUE(BoxOf("3,4 3,4").IsPoint(0));
    EXPECT_TRUE(BoxOf("0,3 10,3").IsSegment(0));
    EXPECT_FALSE(k_SquareBox.IsSegment(9.9, &diagonal));
    EXPECT_FALSE(k_EmptyBox.IsSegment(1));
}

TEST(BoxTest, EqualWithinAnAccuracyComparesFourSides) {
    EXPECT_TRUE(k_SquareBox.IsEqualTo(BoxOf("-1,1 11,9"), 1));
    EXPECT_FALSE(k_SquareBox.IsEqualTo(BoxOf("-1.5,0 10,10"), 1));
    EXPECT_FALSE(k_SquareBox.IsEqualTo(BoxOf("0,-1.5 10,10"), 1));
    EXPECT_FALSE(k_SquareBox.IsEqualTo(BoxOf("0,0 11.5,10"), 1));
    EXPECT_FALSE(k_SquareBox.IsEqualTo(BoxOf("0,0 10,11.5"), 1));
}

TEST(BoxTest, EmptyBoxesAreEqualToEachOtherAlone) {
    EXPECT_TRUE(k_EmptyBox.IsEqualTo(Box(), 0));
    EXPECT_FALSE(k_EmptyBox.IsEqualTo(k_SquareBox, 100));
    EXPECT_FALSE(k_SquareBox.IsEqualTo(k_EmptyBox, 100));
}

TEST(BoxTest, IntersectsAPoint) {
    EXPECT_TRUE(k_SquareBox.IntersectsPoint({10, 10}, 0));
    EXPECT_FALSE(k_SquareBox.IntersectsPoint({Up(10), 5}, 0));
    EXPECT_TRUE(k_SquareBox.IntersectsPoint({11, 11}, 1));
    EXPECT_FALSE(k_SquareBox.IntersectsPoint({5, -1.5}, 1));
    EXPECT_FALSE(k_EmptyBox.IntersectsPoint({0.5, 0.5}, 10));
}

struct RelationCase {
    const char* m_Name;
    const char* m_Other;
    BoxRelation m_Relation;
};

TEST(BoxTest, RelationToAnotherBoxIsStrict) {
    // clang-format off
    const RelationCase rows[] = {
        {"apart",                     "20,0 30,10",    k_BoxOutside},
        {"touching",                  "10,0 30,10",    k_BoxCrossing},
        {"inside it",                 "-1,-1 11,11",   k_BoxInside},
        {"inside but for one side",   "0,-1 11,11",    k_BoxCrossing},
        {"around it",                 "1,1 9,9",       k_BoxAround},
        {"around it but for a side",  "1,1 9,10",      k_BoxCrossing},
        {"equal",                     "0,0 10,10",     k_BoxCrossing},
        {"across",                    "-1,4 11,6",     k_BoxCrossing},
    };
    // clang-format on
    for (const RelationCase& row : rows)
        EXPECT_EQ(k_SquareBox.GetRelationTo(BoxOf(row.m_Other), 0), row.m_Relation) << row.m_Name;
    EXPECT_EQ(k_EmptyBox.GetRelationTo(k_SquareBox, 0), k_BoxOutside);
    EXPECT_EQ(k_SquareBox.GetRelationTo(k_EmptyBox, 0), k_BoxOutside);
}

TEST(BoxTest, RelationIsStrictByMoreThanTheAccuracy) {
    EXPECT_EQ(k_SquareBox.GetRelationTo(BoxOf("-1,-1 11,11"), 1), k_BoxCrossing);
    EXPECT_EQ(k_SquareBox.GetRelationTo(BoxOf("-1.5,-1.5 11.5,11.5"), 1), k_BoxInside);
    EXPECT_EQ(k_SquareBox.GetRelationTo(BoxOf("1,1 9,9"), 1), k_BoxCrossing);
    EXPECT_EQ(k_SquareBox.GetRelationTo(BoxOf("1.5,1.5 8.5,8.5"), 1), k_BoxAround);
    EXPECT_EQ(k_SquareBox.GetRelationTo(BoxOf("11,0 20,10"), 1), k_BoxCrossing);
}

TEST(BoxTest, EveryFailingSideAloneMakesACrossing) {
    for (const char* other : {"-1,0 11,11", "-1,-1 10,11", "-1,-1 11,10"})
        EXPECT_EQ(k_SquareBox.GetRelationTo(BoxOf(other), 0), k_BoxCrossing) << other;
    for (const char* other : {"0,1 9,9", "1,0 9,9", "1,1 10,9"})
        EXPECT_EQ(k_SquareBox.GetRelationTo(BoxOf(other), 0), k_BoxCrossing) << other;
}

TEST(BoxTest, EveryOneOfTheFourSidesHasToClearTheAccuracy) {
    for (const char* other : {"-1,-2 12,12", "-2,-1 12,12", "-2,-2 11,12", "-2,-2 12,11"})
        EXPECT_EQ(k_SquareBox.GetRelationTo(BoxOf(other), 1), k_BoxCrossing) << other;
    for (const char* other : {"1,2 8,8", "2,1 8,8", "2,2 9,8", "2,2 8,9"})
        EXPECT_EQ(k_SquareBox.GetRelationTo(BoxOf(other), 1), k_BoxCrossing) << other;
}

struct CrossingCase {
    const char* m_Name;
    const char* m_Line;
    bool m_Meets;
};

TEST(BoxTest, IntersectsALine) {
    // clang-format off
    const CrossingCase rows[] = {
        {"through the middle, flat",      "0,5 1,5",     true},
        {"through the middle, steep",     "5,0 5.1,1",   true},
        {"diagonal",                      "0,0 1,1",     true},
        {"cutting a corner, flat",        "0,9 2,10",    true},
        {"cutting a corner, steep",       "9,0 10,2",    true},
        {"through the corner only",       "9,11 11,9",   true},
        {"steep, from the left into it",  "-1,0 1,10",   true},
        {"steep, from the right into it", "11,0 9,10",   true},
        {"flat, from below into it",      "0,-1 10,1",   true},
        {"flat, from above into it",      "0,11 10,9",   true},
        {"steep, left of it",             "-2,0 -1,10",  false},
        {"steep, right of it",            "11,0 12,10",  false},
        {"flat, below it",                "0,-2 10,-1",  false},
        {"flat, above it",                "0,12 10,11",  false},
        {"beyond the corner",             "12,10 10,12", false},
    };
    // clang-format on
    for (const CrossingCase& row : rows) {
        EXPECT_EQ(k_SquareBox.IntersectsLine(LineOf(row.m_Line), 0), row.m_Meets) << row.m_Name;
        EXPECT_EQ(k_SquareBox.IntersectsLine(-LineOf(row.m_Line), 0), row.m_Meets) << row.m_Name;
    }
}

TEST(BoxTest, IntersectsALineWithinAnAccuracy) {
    EXPECT_TRUE(k_SquareBox.IntersectsLine(LineOf("0,11 1,11"), 1));
    EXPECT_FALSE(k_SquareBox.IntersectsLine(LineOf("0,11.5 1,11.5"), 1));
    EXPECT_TRUE(k_SquareBox.IntersectsLine(LineOf("-1,0 -1,1"), 1));
    EXPECT_FALSE(k_SquareBox.IntersectsLine(LineOf("-1.5,0 -1.5,1"), 1));
}

TEST(BoxTest, ALineMayMeetACornerOfTheExpandedBoxAlone) {
    for (const char* line : {"-0.75,-1 -1.75,1", "10.75,11 11.75,9", "-1,-0.75 1,-1.75", "11,10.75 9,11.75"}) {
        EXPECT_TRUE(k_SquareBox.IntersectsLine(LineOf(line), 1)) << line;
        EXPECT_FALSE(k_SquareBox.IntersectsLine(LineOf(line), 0)) << line;
    }
}

TEST(BoxTest, ALineThatTouchesACornerMeetsTheBox) {
    // At |a| = |b| and c = 0 the coordinates on the line are exact.
    EXPECT_TRUE(BoxOf("2,5 5,9").IntersectsLine(LineOf("0,0 1,1"), 0));
    EXPECT_TRUE(BoxOf("2,-9 5,-5").IntersectsLine(LineOf("0,0 1,-1"), 0));
}

TEST(BoxTest, AThinBoxMeetsALineAsASegment) {
    EXPECT_TRUE(BoxOf("5,0 5,10").IntersectsLine(LineOf("0,5 1,5"), 0));
    EXPECT_FALSE(BoxOf("5,0 5,10").IntersectsLine(LineOf("0,11 1,11"), 0));
    EXPECT_TRUE(BoxOf("5,0 5,10").IntersectsLine(LineOf("0,10 1,10"), 0));
}

TEST(BoxTest, AnEmptyBoxMeetsNoLine) { EXPECT_FALSE(k_EmptyBox.IntersectsLine(LineOf("0,0 1,1"), 5)); }

TEST(BoxTest, ANegativeAccuracyForALineIsReported) {
    const AssertionRecorder recorder;
    k_SquareBox.IntersectsLine(LineOf("0,5 1,5"), -1);
    EXPECT_EQ(recorder.Take(), Texts{"accuracy >= 0, Box"});
}

TEST(BoxTest, CrossingFromSideToSideNeedsNoLineTest) {
    // As the line test would, a crossing asks for x or y on the line; what lies at infinity has none.
    const double far = 1e300;
    EXPECT_TRUE(k_SquareBox.IntersectsSegment({{-far, 1}, {far, 9}}, 0));
    EXPECT_TRUE(k_SquareBox.IntersectsSegment({{1, far}, {9, -far}}, 0));
    EXPECT_TRUE(k_SquareBox.IntersectsSegment(SegmentOf("-1,5 11,5"), 0));
    EXPECT_TRUE(k_SquareBox.IntersectsSegment(SegmentOf("5,11 5,-1"), 0));
}

struct SegmentCase {
    const char* m_Name;
    const char* m_Segment;
    bool m_Meets;
};

TEST(BoxTest, IntersectsASegment) {
    // clang-format off
    const SegmentCase rows[] = {
        {"inside",                  "1,1 2,3",     true},
        {"start inside",            "5,5 50,60",   true},
        {"end inside",              "50,60 5,5",   true},
        {"touching a side",         "10,3 20,3",   true},
        {"beyond one side",         "11,1 12,9",   false},
        {"above, aslant",           "1,11 30,12",  false},
        {"across a corner",         "8,12 12,8",   true},
        {"past a corner",           "9,13 13,9",   false},
        {"along a side",            "-5,10 15,10", true},
        {"ends before the box",     "-5,5 -1,5",   false},
    };
    // clang-format on
    for (const SegmentCase& row : rows) {
        EXPECT_EQ(k_SquareBox.IntersectsSegment(SegmentOf(row.m_Segment), 0), row.m_Meets) << row.m_Name;
        EXPECT_EQ(k_SquareBox.IntersectsSegment(SegmentOf(row.m_Segment).GetReversed(), 0), row.m_Meets) << row.m_Name;
    }
    EXPECT_FALSE(k_EmptyBox.IntersectsSegment(SegmentOf("0,0 1,1"), 1));
}

TEST(BoxTest, IntersectsASegmentWithinAnAccuracy) {
    EXPECT_TRUE(k_SquareBox.IntersectsSegment(SegmentOf("11,1 12,9"), 1));
    EXPECT_FALSE(k_SquareBox.IntersectsSegment(SegmentOf("11.5,1 12,9"), 1));
    for (const char* segment : {"5,10.5 6,19", "6,19 5,10.5", "5,-0.5 6,-9", "-0.5,5 -9,6", "10.5,5 19,6"})
        EXPECT_TRUE(k_SquareBox.IntersectsSegment(SegmentOf(segment), 1)) << segment;
    EXPECT_TRUE(k_SquareBox.IntersectsSegment(SegmentOf("9.8,12 12,9.8"), 1)); // cuts the corner (11, 11)
    EXPECT_FALSE(k_SquareBox.IntersectsSegment(SegmentOf("10.2,12 12,10.2"), 1));
}

TEST(BoxTest, ASegmentThatMissesByRoundingAloneIsBeyondTheSide) {
    // With an accuracy of half a unit in the last place of 1, s - accuracy is 1, but 1 + accuracy is not s.
    const double s = Up(1);
    EXPECT_FALSE(BoxOf("0,0 1,10").IntersectsSegment({{s, 5}, {2, 6}}, (s - 1) / 2));
}

TEST(BoxTest, ASegmentThatOnlyTouchesACornerByAnEndMeetsTheBox) {
    for (int i = 1; i < 100; ++i) {
        // From the upper right corner to the lower right, so out of the box at once.
        const Point corner(0.1 * i, 0.7);
        const Segment segment(corner, corner + Vector(3, -0.01 * i));
        const Box box(0, 0, corner.GetX(), corner.GetY());
        EXPECT_TRUE(box.IntersectsSegment(segment, 0)) << i;
        EXPECT_TRUE(box.IntersectsSegment(segment.GetReversed(), 0)) << i;
    }
}

TEST(BoxTest, APointLikeSegmentMeetsABoxAsAPoint) {
    EXPECT_TRUE(k_SquareBox.IntersectsSegment(SegmentOf("10,10 10,10"), 0));
    EXPECT_FALSE(k_SquareBox.IntersectsSegment(SegmentOf("11,10 11,10"), 0));
    EXPECT_TRUE(k_SquareBox.IntersectsSegment(SegmentOf("11,10 11.5,10"), 1));
}

TEST(BoxTest, APointLikeBoxMeetsASegmentThatContainsItsCentre) {
    EXPECT_TRUE(BoxOf("5,5 5,5").IntersectsSegment(SegmentOf("0,0 10,10"), 0));
    EXPECT_FALSE(BoxOf("5,6 5,6").IntersectsSegment(SegmentOf("0,0 10,10"), 0));
}

} // namespace
