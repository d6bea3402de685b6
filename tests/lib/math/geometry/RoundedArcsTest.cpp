#include "lib/math/geometry/RoundedArcs.h"

#include "lib/math/geometry/ArcSequence.h"
#include "tests/AssertionRecorder.h"
#include "tests/GeometryFixtures.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

namespace {

using namespace geom;
using fixtures::ArcOf;
using fixtures::ArcsOf;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

/// The rounding of a right angle that turns left.
Arc LeftTurn(Point start, Point end, double radius) { return {start, end, -(radius - std::sqrt(radius * radius / 2))}; }

/// A right angle between two sides of the given length.
RoundedPair RoundRightAngle(double side, double preferedRadius, double minRadius) {
    const Arc a1({0, 0}, {side, 0}, 0);
    const Arc a2({side, 0}, {side, side}, 0);
    return GetRoundedPair(a1, a2, preferedRadius, minRadius);
}

/// The radius that a right angle was rounded with, 0 when it wasn't.
double GetRadiusTaken(double side, double preferedRadius, double minRadius) {
    for (const Arc& arc : RoundRightAngle(side, preferedRadius, minRadius).m_Arcs)
        if (!arc.IsSegment(0))
            return double(arc.GetRadius());
    return 0;
}

// One corner

TEST(RoundedArcsTest, PairIsWhatIsLeftOfBothArcsAroundTheRounding) {
    const RoundedPair pair = RoundRightAngle(10, 1, 1);
    EXPECT_EQ(pair.m_Changed, 1U);
    EXPECT_THAT(pair.m_Arcs, ElementsAre(ArcOf("0,0 9,0"), LeftTurn({9, 0}, {10, 1}, 1), ArcOf("10,1 10,10")));
}

TEST(RoundedArcsTest, PairThatIsUsedUpIsTheRoundingAlone) {
    const RoundedPair pair = RoundRightAngle(2, 2, 1);
    EXPECT_EQ(pair.m_Changed, 1U);
    EXPECT_THAT(pair.m_Arcs, ElementsAre(LeftTurn({0, 0}, {2, 2}, 2)));
}

TEST(RoundedArcsTest, CollinearPairStaysAsItIs) {
    const RoundedPair pair = GetRoundedPair(ArcOf("0,0 5,5"), ArcOf("5,5 9,9"), 2, 1);
    EXPECT_EQ(pair.m_Changed, 0U);
    EXPECT_THAT(pair.m_Arcs, ElementsAre(ArcOf("0,0 5,5"), ArcOf("5,5 9,9")));
}

TEST(RoundedArcsTest, CurvedPairIsRoundedToo) {
    const Arc quarterUp(Segment({0, -5}, {5, 0}), k_CCW, k_Origin);
    const RoundedPair pair = GetRoundedPair(quarterUp, ArcOf("5,0 15,0"), 2.4, 1);
    EXPECT_EQ(pair.m_Changed, 1U);
    ASSERT_EQ(pair.m_Arcs.size(), 3U);
    EXPECT_TRUE(IsPolyArcSequence_G(pair.m_Arcs, k_Open));
    EXPECT_EQ(pair.m_Arcs[0].GetStart(), Point(0, -5));
    EXPECT_NEAR(double(pair.m_Arcs[0].GetRadius()), 5, 1e-14);
    EXPECT_NEAR(double(pair.m_Arcs[1].GetRadius()), 2.4, 1e-14);
    EXPECT_EQ(pair.m_Arcs[2].GetHeight(), 0);
    EXPECT_EQ(pair.m_Arcs[2].GetEnd(), Point(15, 0));
}

TEST(RoundedArcsTest, PreferredEightAndMinimumThreeTryEightFourAndThree) {
    EXPECT_DOUBLE_EQ(GetRadiusTaken(8, 8, 3), 8);
    EXPECT_DOUBLE_EQ(GetRadiusTaken(7.9, 8, 3), 4); // neither 7, nor 6, nor 5
    EXPECT_DOUBLE_EQ(GetRadiusTaken(4, 8, 3), 4);
    EXPECT_DOUBLE_EQ(GetRadiusTaken(3.9, 8, 3), 3);
    EXPECT_DOUBLE_EQ(GetRadiusTaken(3, 8, 3), 3);
    EXPECT_EQ(GetRadiusTaken(2.9, 8, 3), 0);
}

TEST(RoundedArcsTest, RadiusIsHalvedWhileAboveTwiceTheMinimumAndThenTheMinimumIsTriedOnce) {
    EXPECT_DOUBLE_EQ(GetRadiusTaken(2, 16, 1), 2);
    EXPECT_DOUBLE_EQ(GetRadiusTaken(1.9, 16, 1), 1);
    EXPECT_EQ(GetRadiusTaken(0.9, 16, 1), 0);
    EXPECT_EQ(GetRadiusTaken(1.4, 2, 1.5), 0);
    EXPECT_EQ(GetRadiusTaken(1.4, 1.5, 1.5), 0);
}

TEST(RoundedArcsTest, CornerThatTakesNoRadiusStaysSharp) {
    const RoundedPair pair = RoundRightAngle(1, 8, 3);
    EXPECT_EQ(pair.m_Changed, 0U);
    EXPECT_THAT(pair.m_Arcs, ElementsAre(ArcOf("0,0 1,0"), ArcOf("1,0 1,1")));
}

TEST(RoundedArcsTest, RadiiOutOfOrderAreReportedAndNoneIsTried) {
    const AssertionRecorder recorder;
    EXPECT_EQ(GetRadiusTaken(10, 1, 2), 0);
    EXPECT_THAT(recorder.Take(), ElementsAre("prefered_radius >= min_radius && min_radius > 0, RoundedArcs"));
}

TEST(RoundedArcsTest, SearchEndsForRadiiThatAreNoLengths) {
    const AssertionRecorder recorder;
    const char* report = "prefered_radius >= min_radius && min_radius > 0, RoundedArcs";
    EXPECT_DOUBLE_EQ(GetRadiusTaken(1, 8, 0), 1);
    EXPECT_THAT(recorder.Take(), testing::Contains(report));
    EXPECT_EQ(RoundRightAngle(1e-300, 8, -1).m_Arcs.size(), 2U);
    EXPECT_THAT(recorder.Take(), testing::Contains(report));
    EXPECT_EQ(RoundRightAngle(1, fixtures::k_NaN, fixtures::k_NaN).m_Arcs.size(), 2U);
    (void)recorder.Take();
}

TEST(RoundedArcsTest, PairThatDoesNotMeetIsReported) {
    const AssertionRecorder recorder;
    (void)GetRoundedPair(ArcOf("0,0 10,0"), ArcOf("10,5 10,10"), 1, 1);
    EXPECT_THAT(recorder.Take(), testing::Contains("a1.GetEnd() == a2.GetStart(), RoundedArcs"));
}

// Whole lists

TEST(RoundedArcsTest, FewerThanTwoArcsComeBackAsTheyAre) {
    EXPECT_THAT(GetRoundedArcs({}, 2, 1, k_Closed), IsEmpty());
    EXPECT_THAT(GetRoundedArcs({ArcOf("0,0 2,0 h1")}, 2, 1, k_Open), ElementsAre(ArcOf("0,0 2,0 h1")));
}

TEST(RoundedArcsTest, ClosedSquareStartsInTheMiddleOfItsFirstSideAndKeepsItsSidesCut) {
    const std::vector<Arc> rounded = GetRoundedArcs(ArcsOf("0,0 10,0 10,10 0,10 0,0"), 1, 1, k_Closed);
    EXPECT_THAT(rounded, ElementsAre(                                                               //
                             ArcOf("5,0 9,0"), LeftTurn({9, 0}, {10, 1}, 1), ArcOf("10,1 10,5"),    //
                             ArcOf("10,5 10,9"), LeftTurn({10, 9}, {9, 10}, 1), ArcOf("9,10 5,10"), //
                             ArcOf("5,10 1,10"), LeftTurn({1, 10}, {0, 9}, 1), ArcOf("0,9 0,5"),    //
                             ArcOf("0,5 0,1"), LeftTurn({0, 1}, {1, 0}, 1), ArcOf("1,0 5,0")));
    EXPECT_TRUE(IsPolyArcSequence_G(rounded, k_Closed));
}

TEST(RoundedArcsTest, ClosedSquareRoundedByHalfItsSidesIsFourQuarters) {
    EXPECT_THAT(GetRoundedArcs(ArcsOf("0,0 10,0 10,10 0,10 0,0"), 5, 1, k_Closed),
        ElementsAre(LeftTurn({5, 0}, {10, 5}, 5), LeftTurn({10, 5}, {5, 10}, 5), LeftTurn({5, 10}, {0, 5}, 5),
            LeftTurn({0, 5}, {5, 0}, 5)));
}

TEST(RoundedArcsTest, ClosedSquareWithNoRoomKeepsAllSidesWholeButTheFirst) {
    EXPECT_THAT(GetRoundedArcs(ArcsOf("0,0 10,0 10,10 0,10 0,0"), 9, 6, k_Closed),
        ElementsAreArray(ArcsOf("5,0 10,0 10,10 0,10 0,0 5,0")));
}

TEST(RoundedArcsTest, OpenListKeepsItsEnds) {
    EXPECT_THAT(GetRoundedArcs(ArcsOf("0,0 10,0 10,10"), 1, 1, k_Open),
        ElementsAre(
            ArcOf("0,0 5,0"), ArcOf("5,0 9,0"), LeftTurn({9, 0}, {10, 1}, 1), ArcOf("10,1 10,5"), ArcOf("10,5 10,10")));
}

TEST(RoundedArcsTest, OpenListOfTwoArcsWithNoRoomComesBackUnsplit) {
    EXPECT_THAT(GetRoundedArcs(ArcsOf("0,0 10,0 10,10"), 8, 6, k_Open), ElementsAreArray(ArcsOf("0,0 10,0 10,10")));
}

TEST(RoundedArcsTest, OpenListOfThreeArcsWithNoRoomComesBackUnsplit) {
    EXPECT_THAT(
        GetRoundedArcs(ArcsOf("0,0 10,0 10,1 0,1"), 2, 1, k_Open), ElementsAreArray(ArcsOf("0,0 10,0 10,1 0,1")));
}

TEST(RoundedArcsTest, ArcBetweenARoundedAndASharpCornerStaysCut) {
    EXPECT_THAT(GetRoundedArcs(ArcsOf("0,0 20,0 20,20 20.5,20"), 2, 2, k_Open),
        ElementsAre(ArcOf("0,0 10,0"), ArcOf("10,0 18,0"), LeftTurn({18, 0}, {20, 2}, 2), ArcOf("20,2 20,10"),
            ArcOf("20,10 20,20"), ArcOf("20,20 20.5,20")));
}

TEST(RoundedArcsTest, ArcBetweenASharpAndARoundedCornerStaysCut) {
    EXPECT_THAT(GetRoundedArcs(ArcsOf("0.5,0 0,0 0,20 -20,20"), 2, 2, k_Open),
        ElementsAre(ArcOf("0.5,0 0,0"), ArcOf("0,0 0,10"), ArcOf("0,10 0,18"), LeftTurn({0, 18}, {-2, 20}, 2),
            ArcOf("-2,20 -10,20"), ArcOf("-10,20 -20,20")));
}

TEST(RoundedArcsTest, NeighbouringCornersDoNotFightOverOneArc) {
    // The middle piece is 4 long: each corner gets 2 of it, though either alone would fit 3.
    const std::vector<Arc> rounded = GetRoundedArcs(ArcsOf("0,0 20,0 20,4 0,4"), 3, 2, k_Open);
    EXPECT_TRUE(IsPolyArcSequence_G(rounded, k_Open));
    EXPECT_THAT(rounded, testing::IsSupersetOf({LeftTurn({18, 0}, {20, 2}, 2), LeftTurn({20, 2}, {18, 4}, 2)}));
}

TEST(RoundedArcsTest, CurvedOutlineStaysASequence) {
    // A rectangle with round ends has no corners, one with bulging sides has four.
    const std::vector<Arc> bulging = {
        ArcOf("0,0 10,0 h-1"), ArcOf("10,0 10,6 h-1"), ArcOf("10,6 0,6 h-1"), ArcOf("0,6 0,0 h-1")};
    const AssertionRecorder recorder;
    const std::vector<Arc> rounded = GetRoundedArcs(bulging, 1, 0.5, k_Closed);
    EXPECT_THAT(recorder.Take(), IsEmpty());
    EXPECT_TRUE(IsPolyArcSequence_G(rounded, k_Closed));
    EXPECT_EQ(rounded.size(), 12U);
    EXPECT_EQ(rounded.front().GetStart(), bulging.front().GetMidPoint());
}

TEST(RoundedArcsTest, ListThatIsNoSequenceIsReported) {
    const AssertionRecorder recorder;
    (void)GetRoundedArcs({ArcOf("0,0 10,0"), ArcOf("10,10 20,20")}, 1, 1, k_Open);
    EXPECT_THAT(recorder.Take(), testing::Contains("IsPolyArcSequence_G (arcs, open_closed), RoundedArcs"));
    (void)GetRoundedArcs(ArcsOf("0,0 10,0 10,10"), 1, 1, k_Closed);
    EXPECT_THAT(recorder.Take(), testing::Contains("IsPolyArcSequence_G (arcs, open_closed), RoundedArcs"));
}

} // namespace
