#include "lib/math/geometry/Box.h"

#include "tests/AssertionRecorder.h"
#include "tests/GeometryFixtures.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using namespace geom;
using fixtures::BoxOf;
using fixtures::k_SquareBox;
using fixtures::SegmentOf;
using Texts = std::vector<std::string>;

struct ClipCase {
    const char* m_Name;
    const char* m_Segment;
    const char* m_Part; ///< null for none
};

TEST(BoxClippingTest, AHorizontalSegmentKeepsItsDirection) {
    EXPECT_EQ(k_SquareBox.GetClipped(SegmentOf("-1,5 11,5"), 0).m_Segment, SegmentOf("0,5 10,5"));
    EXPECT_EQ(k_SquareBox.GetClipped(SegmentOf("11,5 -1,5"), 0).m_Segment, SegmentOf("10,5 0,5"));
}

TEST(BoxClippingTest, ADiagonalThatEntersAndLeavesKeepsItsDirection) {
    EXPECT_EQ(k_SquareBox.GetClipped(SegmentOf("-5,0 10,15"), 0).m_Segment, SegmentOf("0,5 5,10"));
    EXPECT_EQ(k_SquareBox.GetClipped(SegmentOf("10,15 -5,0"), 0).m_Segment, SegmentOf("5,10 0,5"));
}

TEST(BoxClippingTest, WhatLiesInTheBoxIsLeft) {
    // clang-format off
    const ClipCase rows[] = {
        {"inside",                   "1,1 2,3",      "1,1 2,3"},
        {"horizontal, ends inside",  "2,5 20,5",     "2,5 10,5"},
        {"vertical",                 "5,-1 5,11",    "5,0 5,10"},
        {"vertical, downward",       "5,11 5,4",     "5,10 5,4"},
        {"starts inside",            "5,5 15,10",    "5,5 10,7.5"},
        {"ends inside",              "15,10 5,5",    "10,7.5 5,5"},
        {"over two borders",         "-5,-5 15,15",  "0,0 10,10"},
        {"enters below",             "0,-5 10,15",   "2.5,0 7.5,10"},
        {"a corner",                 "9,11 11,9",    "10,10 10,10"},
        {"touches a side",           "10,2 20,2",    "10,2 10,2"},
        {"past a corner",            "9,13 13,9",    nullptr},
        {"above, aslant",            "1,11 30,12",   nullptr},
        {"beside",                   "11,1 11,9",    nullptr},
    };
    // clang-format on
    for (const ClipCase& row : rows) {
        SCOPED_TRACE(row.m_Name);
        const BoxSegmentResult part = k_SquareBox.GetClipped(SegmentOf(row.m_Segment), 0);
        EXPECT_EQ(part.m_Success, row.m_Part != nullptr ? 1U : 0U);
        EXPECT_EQ(part.m_Segment, row.m_Part != nullptr ? SegmentOf(row.m_Part) : Segment());
    }
}

TEST(BoxClippingTest, TheBoxIsExpandedByTheAccuracy) {
    EXPECT_EQ(k_SquareBox.GetClipped(SegmentOf("-5,5 15,5"), 1).m_Segment, SegmentOf("-1,5 11,5"));
    EXPECT_EQ(k_SquareBox.GetClipped(SegmentOf("5,-5 5,15"), 1).m_Segment, SegmentOf("5,-1 5,11"));
    EXPECT_EQ(k_SquareBox.GetClipped(SegmentOf("-5,-5 15,15"), 1).m_Segment, SegmentOf("-1,-1 11,11"));
}

TEST(BoxClippingTest, AShortSegmentIsItsStartTwice) {
    EXPECT_EQ(k_SquareBox.GetClipped(SegmentOf("5,5 5.5,5.5"), 1).m_Segment, SegmentOf("5,5 5,5"));
}

TEST(BoxClippingTest, APointLikeBoxGivesItsCentreTwice) {
    const Box small = BoxOf("4,4 5,5");
    EXPECT_EQ(small.GetClipped(SegmentOf("0,0 10,10"), 1).m_Segment, SegmentOf("4.5,4.5 4.5,4.5"));
    EXPECT_EQ(small.GetClipped(SegmentOf("0,6 10,16"), 1).m_Success, 0U);
    // Its box meets the small one, but the segment itself stays 3 / sqrt(2) away.
    const BoxSegmentResult past = small.GetClipped(SegmentOf("0,3 10,13"), 1);
    EXPECT_EQ(past.m_Success, 0U);
    EXPECT_EQ(past.m_Segment, Segment());
}

TEST(BoxClippingTest, AShortRestIsItsMidPointTwice) {
    // The segment ends 0.5 inside the box that was expanded by 1.
    EXPECT_EQ(k_SquareBox.GetClipped(SegmentOf("-10,5 -0.5,5"), 1).m_Segment, SegmentOf("-0.75,5 -0.75,5"));
    EXPECT_EQ(k_SquareBox.GetClipped(SegmentOf("5,-10 5,-0.5"), 1).m_Segment, SegmentOf("5,-0.75 5,-0.75"));
    const BoxSegmentResult corner = k_SquareBox.GetClipped(SegmentOf("-4,2.5 2.5,-4"), 1);
    EXPECT_EQ(corner.m_Segment, SegmentOf("-0.75,-0.75 -0.75,-0.75"));
}

TEST(BoxClippingTest, AnEmptyBoxIsReportedAndHoldsNothing) {
    const AssertionRecorder recorder;
    EXPECT_EQ(k_EmptyBox.GetClipped(SegmentOf("0,0 1,1"), 0).m_Success, 0U);
    EXPECT_EQ(recorder.Take(), Texts{"!IsEmpty(), Box"});
}

TEST(BoxClippingTest, RoundingToAndFroBetweenTwoBordersEndsAtTheCorner) {
    const BoxSegmentResult part = BoxOf("0,-1 3,3").GetClipped(SegmentOf("-3,-4 0,3"), 0);
    EXPECT_EQ(part.m_Success, 1U);
    EXPECT_EQ(part.m_Segment, SegmentOf("0,3 0,3"));
}

TEST(BoxClippingTest, AMissByRoundingAloneGivesOneAndZero) {
    // With an accuracy of half a unit in the last place of 1, the box reaches s - a = 1 but not s: 1 + a is 1.
    const AssertionRecorder recorder;
    const double s = fixtures::Up(1);
    const double accuracy = (s - 1) / 2;
    const BoxSegmentResult east = BoxOf("0,0 1,10").GetClipped({{s, 5}, {2, 5}}, accuracy);
    EXPECT_EQ(east.m_Success, 1U);
    EXPECT_EQ(east.m_Segment, SegmentOf("1,5 0,5"));
    EXPECT_EQ(BoxOf("0,0 1,10").GetClipped({{2, 5}, {s, 5}}, accuracy).m_Segment, SegmentOf("0,5 1,5"));
    EXPECT_EQ(BoxOf("0,0 10,1").GetClipped({{5, s}, {5, 2}}, accuracy).m_Segment, SegmentOf("5,1 5,0"));
    EXPECT_TRUE(recorder.Take().empty());
}

/// What parameters clipping by half planes (Liang and Barsky) leaves of a segment: an independent way to the answer.
bool ClipByParameters(const Box& box, const Segment& segment, double& t0, double& t1) {
    const double p[2] = {double(segment.GetStart().GetX()), double(segment.GetStart().GetY())};
    const double d[2] = {double(segment.GetVector().GetX()), double(segment.GetVector().GetY())};
    const double lower[2] = {double(box.GetXRange().GetMin()), double(box.GetYRange().GetMin())};
    const double upper[2] = {double(box.GetXRange().GetMax()), double(box.GetYRange().GetMax())};
    t0 = 0;
    t1 = 1;
    for (int axis = 0; axis < 2; ++axis) {
        const double a = (lower[axis] - p[axis]) / d[axis];
        const double b = (upper[axis] - p[axis]) / d[axis];
        t0 = std::max(t0, std::min(a, b));
        t1 = std::min(t1, std::max(a, b));
    }
    return t0 <= t1;
}

TEST(BoxClippingTest, AgreesWithClippingByParameters) {
    std::mt19937 random(2);
    std::uniform_real_distribution<double> number(-10, 10);
    int met = 0;
    for (int i = 0; i < 5000; ++i) {
        const Box box(number(random), number(random), number(random), number(random));
        const Segment segment({number(random), number(random)}, {number(random), number(random)});
        double t0 = 0;
        double t1 = 0;
        const bool meets = ClipByParameters(box, segment, t0, t1);
        const BoxSegmentResult part = box.GetClipped(segment, 0);
        ASSERT_EQ(part.m_Success != 0, meets) << i;
        ASSERT_EQ(box.IntersectsSegment(segment, 0), meets) << i;
        if (!meets)
            continue;
        ++met;
        const Segment expected(
            segment.GetStart() + segment.GetVector() * t0, segment.GetStart() + segment.GetVector() * t1);
        ASSERT_TRUE(part.m_Segment.IsEqualTo(expected, 1e-10)) << i;
    }
    EXPECT_GT(met, 500);
}

} // namespace
