#include "lib/math/geometry/Arc.h"

#include "tests/AssertionRecorder.h"
#include "tests/GeometryFixtures.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

namespace {

using namespace geom;
using fixtures::ArcOf;
using fixtures::BoxOf;
using fixtures::PointOf;
using fixtures::SegmentOf;

const Arc k_HalfAbove = ArcOf("0,0 2,0 h1");
const Arc k_FullAroundOrigin = ArcOf("1,0 1,0 h-2 a180");

// Boxes

TEST(ArcTest, BoxOfHalfCircleOnAnAxisIsChordAndMidPoint) {
    EXPECT_EQ(ArcOf("0,0 2,0 h1").GetBox(), BoxOf("0,0 2,1"));
    EXPECT_EQ(ArcOf("0,0 2,0 h-1").GetBox(), BoxOf("0,-1 2,0"));
    EXPECT_EQ(ArcOf("0,0 0,2 h1").GetBox(), BoxOf("-1,0 0,2"));
}

TEST(ArcTest, BoxOfSmallArcOverAxisParallelChordIsChordAndMidPoint) {
    EXPECT_EQ(ArcOf("-3,4 3,4 h1").GetBox(), BoxOf("-3,4 3,5"));
    EXPECT_EQ(ArcOf("4,-3 4,3 h-1").GetBox(), BoxOf("4,-3 5,3"));
}

TEST(ArcTest, BoxOfStraightPieceIsThatOfItsChord) {
    EXPECT_EQ(ArcOf("2,1 0,5").GetBox(), BoxOf("0,1 2,5"));
    EXPECT_EQ(ArcOf("3,4 3,4").GetBox(), BoxOf("3,4 3,4"));
}

TEST(ArcTest, BoxOfFullCircleIsTheCircles) { EXPECT_EQ(k_FullAroundOrigin.GetBox(), BoxOf("-1,-1 1,1")); }

struct BoxCase {
    const char* m_Name;
    const char* m_Start;
    const char* m_End;
    const char* m_Box;
};

// Counter-clockwise on the circle of radius 5 about the origin: each of the four axis points that lies on the way
// takes one side of the box out to 5.
TEST(ArcTest, BoxReachesOutWhereTheWayPassesAnAxis) {
    // clang-format off
    const BoxCase cases[] = {
        {"1 to 2: top",                "3,4",   "-4,3",  "-4,3 3,5"},
        {"1 to 3: top, left",          "3,4",   "-3,-4", "-5,-4 3,5"},
        {"1 to 4: all but right",      "3,4",   "4,-3",  "-5,-5 4,5"},
        {"2 to 3: left",               "-4,3",  "-3,-4", "-5,-4 -3,3"},
        {"2 to 4: left, bottom",       "-4,3",  "4,-3",  "-5,-5 4,3"},
        {"2 to 1: all but top",        "-4,3",  "3,4",   "-5,-5 5,4"},
        {"3 to 4: bottom",             "-3,-4", "4,-3",  "-3,-5 4,-3"},
        {"3 to 1: bottom, right",      "-3,-4", "3,4",   "-3,-5 5,4"},
        {"3 to 2: all but left",       "-3,-4", "-4,3",  "-4,-5 5,5"},
        {"4 to 1: right",              "4,-3",  "3,4",   "3,-3 5,4"},
        {"4 to 2: right, top",         "4,-3",  "-4,3",  "-4,-3 5,5"},
        {"4 to 3: all but bottom",     "4,-3",  "-3,-4", "-5,-4 5,5"},
        {"within 1: none",             "4,3",   "3,4",   "3,3 4,4"},
        {"all round from 1: all",      "3,4",   "4,3",   "-5,-5 5,5"},
    };
    // clang-format on
    for (const BoxCase& c : cases) {
        SCOPED_TRACE(c.m_Name);
        const Arc arc(Segment(PointOf(c.m_Start), PointOf(c.m_End)), k_CCW, k_Origin);
        EXPECT_TRUE(arc.GetBox().IsEqualTo(BoxOf(c.m_Box), 1e-14)) << testing::PrintToString(arc.GetBox());
        EXPECT_EQ(arc.GetReversed().GetBox(), arc.GetBox());
    }
}

TEST(ArcTest, LooseBoxIsTheChordsGrownByTheHeight) {
    EXPECT_EQ(ArcOf("0,0 2,0 h1").GetLooseBox(), BoxOf("-1,-1 3,1"));
    EXPECT_EQ(ArcOf("0,0 2,0 h-3").GetLooseBox(), BoxOf("-3,-3 5,3"));
    EXPECT_EQ(ArcOf("0,0 2,0").GetLooseBox(), BoxOf("0,0 2,0"));
}

TEST(ArcTest, EpsilonBelongsToTheBox) {
    EXPECT_EQ(ArcOf("0,0 2,0 h1").GetEpsilon(), Unit(2).GetEpsilon());
    EXPECT_EQ(ArcOf("100,100 100,100").GetEpsilon(), Unit(100).GetEpsilon());
}

// Wedges

struct SweepCase {
    const char* m_Point;
    bool m_IsOnShortWay; ///< counter-clockwise, a quarter
    bool m_IsOnLongWay;  ///< clockwise, three quarters
};

TEST(ArcTest, SweepTakesWhatLiesBetweenTheRadii) {
    const SweepCase cases[] = {
        {"1,1", true, false}, {"-1,1", false, true}, {"-1,-1", false, true}, {"1,-1", false, true},
        {"2,0", true, true},   // on the start's radius
        {"-2,0", false, true}, // opposite to it
        {"0,3", true, true},   // on the end's radius
        {"0,-3", false, true}, // opposite to it
        {"0,0", true, true},   // the centre
    };
    for (const SweepCase& c : cases) {
        SCOPED_TRACE(c.m_Point);
        EXPECT_EQ(Arc::IsInSweep(Point(1, 0), Point(0, 1), k_Origin, k_CCW, PointOf(c.m_Point)), c.m_IsOnShortWay);
        EXPECT_EQ(Arc::IsInSweep(Point(1, 0), Point(0, 1), k_Origin, k_CW, PointOf(c.m_Point)), c.m_IsOnLongWay);
        EXPECT_EQ(Arc::IsInSweep(Point(0, 1), Point(1, 0), k_Origin, k_CW, PointOf(c.m_Point)), c.m_IsOnShortWay);
        EXPECT_EQ(Arc::IsInSweep(Point(0, 1), Point(1, 0), k_Origin, k_CCW, PointOf(c.m_Point)), c.m_IsOnLongWay);
    }
}

TEST(ArcTest, SweepOfHalfATurnTakesItsSide) {
    EXPECT_TRUE(Arc::IsInSweep(Point(1, 0), Point(-1, 0), k_Origin, k_CCW, Point(3, 1)));
    EXPECT_FALSE(Arc::IsInSweep(Point(1, 0), Point(-1, 0), k_Origin, k_CCW, Point(3, -1)));
    EXPECT_FALSE(Arc::IsInSweep(Point(1, 0), Point(-1, 0), k_Origin, k_CW, Point(3, 1)));
    EXPECT_TRUE(Arc::IsInSweep(Point(1, 0), Point(-1, 0), k_Origin, k_CW, Point(3, -1)));
    EXPECT_TRUE(Arc::IsInSweep(Point(1, 0), Point(-1, 0), k_Origin, k_CW, Point(3, 0)));
    EXPECT_TRUE(Arc::IsInSweep(Point(1, 0), Point(-1, 0), k_Origin, k_CCW, Point(-3, 0)));
}

TEST(ArcTest, SweepWithoutSenseIsReported) {
    const AssertionRecorder recorder;
    (void)Arc::IsInSweep(Point(1, 0), Point(0, 1), k_Origin, k_NoDirection, Point(1, 1));
    EXPECT_THAT(recorder.Take(), testing::ElementsAre("ccw == k_CW || ccw == k_CCW, Arc"));
}

TEST(ArcTest, SectorOfCircleHoldsEverything) {
    EXPECT_TRUE(k_FullAroundOrigin.IsInSector(Point(100, -100), 0));
    EXPECT_TRUE(ArcOf("3,4 3,4").IsInSector(Point(100, -100), 0));
}

TEST(ArcTest, SectorOfStraightPieceIsItsSpan) {
    EXPECT_TRUE(ArcOf("0,0 10,0").IsInSector(Point(5, 100), 0));
    EXPECT_FALSE(ArcOf("0,0 10,0").IsInSector(Point(11, 0), 0));
    EXPECT_TRUE(ArcOf("0,0 10,0 h0.5").IsInSector(Point(5, -100), 0.5));
}

TEST(ArcTest, SectorIsTheWedgeWithoutOuterBorder) {
    EXPECT_TRUE(k_HalfAbove.IsInSector(Point(1, 100), 0));
    EXPECT_FALSE(k_HalfAbove.IsInSector(Point(1, -0.5), 0));
    EXPECT_TRUE(ArcOf("-3,4 3,4 h-9").IsInSector(Point(0, -1), 0));
    EXPECT_FALSE(ArcOf("-3,4 3,4 h-9").IsInSector(Point(0, 1), 0));
}

TEST(ArcTest, SectorReachesOutByTheAccuracy) {
    const Arc quarter(Segment({1, 0}, {0, 1}), k_CCW, k_Origin);
    EXPECT_FALSE(quarter.IsInSector(Point(2, -0.05), 0));
    EXPECT_FALSE(quarter.IsInSector(Point(2, -0.05), 0.01));
    EXPECT_TRUE(quarter.IsInSector(Point(2, -0.05), 0.1)); // turned counter-clockwise
    EXPECT_TRUE(quarter.IsInSector(Point(-0.05, 2), 0.1)); // turned clockwise
    EXPECT_TRUE(quarter.IsInSector(Point(1, -0.1), 0.1));  // at an end
    EXPECT_FALSE(quarter.IsInSector(Point(-0.05, -0.05), 0));
    EXPECT_TRUE(quarter.IsInSector(Point(-0.05, -0.05), 0.1)); // at the centre
}

// Meeting boxes

struct BoxMeetingCase {
    const char* m_Name;
    const char* m_Arc;
    const char* m_Box;
    double m_Accuracy;
    bool m_Meets;
};

TEST(ArcTest, IntersectsBoxWhereTheCurveRuns) {
    // clang-format off
    const BoxMeetingCase cases[] = {
        {"straight through",                  "0,0 10,0",         "4,-1 5,1",         0,    true},
        {"straight beside",                   "0,0 10,0",         "4,1 9,9",          0,    false},
        {"straight beside within accuracy",   "0,0 10,0",         "4,1 9,9",          1,    true},
        {"flat within accuracy",              "0,0 10,0 h0.5",    "4,-0.5 5,-0.4",    0.5,  true},
        {"start inside",                      "0,0 2,0 h1",       "-1,-1 0,0",        0,    true},
        {"end inside",                        "0,0 2,0 h1",       "2,0 3,1",          0,    true},
        {"end within accuracy",               "0,0 2,0 h1",       "2.5,0 3,1",        0.5,  true},
        {"far away",                          "0,0 2,0 h1",       "10,10 11,11",      0,    false},
        {"passes deep inside",                "-100,0 100,0 h1",  "-10,-10 10,10",    0,    true},
        {"inside of the curve",               "0,0 2,0 h1",       "0.9,0.1 1.1,0.3",  0,    false},
        {"at the top",                        "0,0 2,0 h1",       "0.9,0.9 1.1,1.1",  0,    true},
        {"touches the top",                   "0,0 2,0 h1",       "0.5,1 1.5,2",      0,    true},
        {"where only the rest of it runs",    "0,0 2,0 h1",       "0.9,-1.1 1.1,-0.9", 0,   false},
        {"full circle crosses",               "1,0 1,0 h2 a180",  "-1.1,-0.1 -0.9,0.1", 0,  true},
        {"full circle around",                "1,0 1,0 h2 a180",  "-0.1,-0.1 0.1,0.1", 0,   false},
        {"full circle inside",                "1,0 1,0 h2 a180",  "-5,-5 5,5",        0,    true},
    };
    // clang-format on
    for (const BoxMeetingCase& c : cases) {
        SCOPED_TRACE(c.m_Name);
        EXPECT_EQ(ArcOf(c.m_Arc).IntersectsBox(BoxOf(c.m_Box), c.m_Accuracy), c.m_Meets);
        EXPECT_EQ(ArcOf(c.m_Arc).GetReversed().IntersectsBox(BoxOf(c.m_Box), c.m_Accuracy), c.m_Meets);
    }
}

TEST(ArcTest, NothingIntersectsAnEmptyBox) {
    for (const fixtures::NamedArc& named : fixtures::CanonicalArcs()) {
        SCOPED_TRACE(named.m_Name);
        EXPECT_FALSE(named.m_Arc.IntersectsBox(k_EmptyBox, 1000));
    }
}

// Meeting segments

struct SegmentMeetingCase {
    const char* m_Name;
    const char* m_Arc;
    const char* m_Segment;
    double m_Accuracy;
    bool m_Meets;
};

TEST(ArcTest, IntersectsSegmentWhereTheCurveRuns) {
    // clang-format off
    const SegmentMeetingCase cases[] = {
        {"straight crosses",                "0,0 10,0",         "5,-1 5,1",       0,    true},
        {"straight misses",                 "0,0 10,0",         "5,1 5,2",        0,    false},
        {"flat within accuracy",            "0,0 10,0 h0.5",    "5,-1 5,-0.5",    0.5,  true},
        {"crosses the curve",               "0,0 2,0 h1",       "1,0.5 1,3",      0,    true},
        {"crosses where the rest runs",     "0,0 2,0 h1",       "1,-0.5 1,-3",    0,    false},
        {"crosses both",                    "0,0 2,0 h1",       "1,-3 1,3",       0,    true},
        {"the second crossing counts too",  "0,0 2,0 h-1",      "1,3 1,-3",       0,    true},
        {"inside of the curve",             "0,0 2,0 h1",       "1,0.25 1,0.5",   0,    false},
        {"starts at the start",             "0,0 2,0 h1",       "0,0 -5,-5",      0,    true},
        {"ends within accuracy of the end", "0,0 2,0 h1",       "9,-9 2.5,0",     0.5,  true},
        {"far away",                        "0,0 2,0 h1",       "10,10 11,11",    0,    false},
        {"touches the top",                 "0,0 2,0 h1",       "0,1 2,1",        0,    true},
        {"just above the top",              "0,0 2,0 h1",       "0,1.25 2,1.25",  0,    false},
        {"above the top within accuracy",   "0,0 2,0 h1",       "0,1.25 2,1.25",  0.25, true},
        {"full circle crosses",             "1,0 1,0 h2 a180",  "0,0 5,5",        0,    true},
        {"full circle around",              "1,0 1,0 h2 a180",  "0,0 0.5,0.5",    0,    false},
    };
    // clang-format on
    for (const SegmentMeetingCase& c : cases) {
        SCOPED_TRACE(c.m_Name);
        const Segment segment = SegmentOf(c.m_Segment);
        EXPECT_EQ(ArcOf(c.m_Arc).IntersectsSegment(segment, c.m_Accuracy), c.m_Meets);
        EXPECT_EQ(ArcOf(c.m_Arc).GetReversed().IntersectsSegment(segment, c.m_Accuracy), c.m_Meets);
        EXPECT_EQ(ArcOf(c.m_Arc).IntersectsSegment(segment.GetReversed(), c.m_Accuracy), c.m_Meets);
    }
}

} // namespace
