#include "lib/math/geometry/Arc.h"

#include "tests/AssertionRecorder.h"
#include "tests/GeometryFixtures.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

namespace {

using namespace geom;
using fixtures::ArcOf;
using fixtures::BitsOf;
using fixtures::CanonicalArcs;
using fixtures::NamedArc;

constexpr double k_Tolerance = 1e-14;

void ExpectNear(Point point, double x, double y) {
    EXPECT_NEAR(double(point.GetX()), x, k_Tolerance);
    EXPECT_NEAR(double(point.GetY()), y, k_Tolerance);
}

// The middle

TEST(ArcTest, MidPointHasTheSameBitsForTheReverse) {
    for (const NamedArc& named : CanonicalArcs()) {
        SCOPED_TRACE(named.m_Name);
        EXPECT_EQ(BitsOf(named.m_Arc.GetMidPoint()), BitsOf(named.m_Arc.GetReversed().GetMidPoint()));
    }
    // Coordinates whose sums and products all round.
    const Arc arc({0.1, 0.7}, {-3.3, 0.2}, 1.1);
    EXPECT_EQ(BitsOf(arc.GetMidPoint()), BitsOf(arc.GetReversed().GetMidPoint()));
}

TEST(ArcTest, MidPointLiesByTheHeightLeftOfTheChord) {
    EXPECT_EQ(ArcOf("-3,4 3,4 h1").GetMidPoint(), Point(0, 5));
    EXPECT_EQ(ArcOf("-3,4 3,4 h-9").GetMidPoint(), Point(0, -5));
    EXPECT_EQ(ArcOf("0,0 0,2 h1").GetMidPoint(), Point(-1, 1));
    EXPECT_EQ(ArcOf("0,0 0,-2 h1").GetMidPoint(), Point(1, -1));
    ExpectNear(ArcOf("0,0 6,8 h5").GetMidPoint(), -1, 7);
}

TEST(ArcTest, MidPointOfStraightPieceIsThatOfItsChord) {
    EXPECT_EQ(ArcOf("0,0 2,4").GetMidPoint(), Point(1, 2));
    EXPECT_EQ(ArcOf("3,4 3,4").GetMidPoint(), Point(3, 4));
}

TEST(ArcTest, MidPointOfFullCircleIsOppositeToItsStart) {
    EXPECT_EQ(ArcOf("1,0 1,0 h-2 a180").GetMidPoint(), Point(-1, 0));
    EXPECT_EQ(ArcOf("5,3 5,3 h4 a90").GetMidPoint(), Point(5, 7));
}

// Points along the way

TEST(ArcTest, PointsAtTheEndsAndTheMiddleAreExact) {
    for (const NamedArc& named : CanonicalArcs()) {
        SCOPED_TRACE(named.m_Name);
        EXPECT_EQ(named.m_Arc.GetPointAt(0), named.m_Arc.GetStart());
        EXPECT_EQ(named.m_Arc.GetPointAt(1), named.m_Arc.GetEnd());
        EXPECT_EQ(named.m_Arc.GetPointAt(0.5), named.m_Arc.GetMidPoint());
    }
}

TEST(ArcTest, PointsAlongTheWayDivideTheSweep) {
    const double half = std::sqrt(0.5);
    ExpectNear(ArcOf("0,0 2,0 h1").GetPointAt(0.25), 1 - half, half);
    ExpectNear(ArcOf("0,0 2,0 h1").GetPointAt(0.75), 1 + half, half);
    ExpectNear(ArcOf("0,0 2,0 h-1").GetPointAt(0.25), 1 - half, -half);
    ExpectNear(ArcOf("1,0 1,0 h-2 a180").GetPointAt(0.25), 0, 1);
    ExpectNear(ArcOf("1,0 1,0 h2 a180").GetPointAt(0.25), 0, -1);
    ExpectNear(ArcOf("0,0 2,0 h1").GetPointAt(1.5), 1, -1);
}

TEST(ArcTest, PointsAlongStraightPieceDivideTheChord) {
    EXPECT_EQ(ArcOf("0,0 8,4").GetPointAt(0.25), Point(2, 1));
    EXPECT_EQ(ArcOf("3,4 3,4").GetPointAt(0.25), Point(3, 4));
}

// Fractions of the way

TEST(ArcTest, ParameterIsTheFractionOfTheWay) {
    EXPECT_EQ(ArcOf("0,0 2,0 h1").GetParameter(Point(0, 0), 0), 0);
    EXPECT_EQ(ArcOf("0,0 2,0 h1").GetParameter(Point(2, 0), 0), 1);
    EXPECT_DOUBLE_EQ(ArcOf("0,0 2,0 h1").GetParameter(Point(1, 1), 0), 0.5);
    EXPECT_DOUBLE_EQ(ArcOf("0,0 2,0 h-1").GetParameter(Point(1, -1), 0), 0.5);
    EXPECT_DOUBLE_EQ(ArcOf("0,0 2,0 h1").GetParameter(Point(0, 1), 0), 0.25);
    EXPECT_DOUBLE_EQ(ArcOf("1,0 1,0 h-2 a180").GetParameter(Point(0, -1), 0), 0.75);
}

TEST(ArcTest, ParameterOfPointBehindTheEndGoesPastOne) {
    EXPECT_DOUBLE_EQ(ArcOf("0,0 2,0 h1").GetParameter(Point(1, -1), 0), 1.5);
}

TEST(ArcTest, ParameterOfStraightPieceIsThatOfTheFoot) {
    EXPECT_EQ(ArcOf("0,0 8,0").GetParameter(Point(2, 5), 0), 0.25);
    EXPECT_EQ(ArcOf("0,0 8,0 h0.5").GetParameter(Point(2, 5), 0.5), 0.25);
    EXPECT_EQ(ArcOf("3,4 3,4").GetParameter(Point(9, 9), 0), 0);
}

TEST(ArcTest, ParameterNearAnEndIsThatEnds) {
    const Arc arc = ArcOf("0,0 20,0 h10");
    EXPECT_EQ(arc.GetParameter(Point(0.5, 0.5), 0.5), 0);
    EXPECT_EQ(arc.GetParameter(Point(19.5, 0.5), 0.5), 1);
    EXPECT_NE(arc.GetParameter(Point(0.5, 1), 0.5), 0);
}

TEST(ArcTest, ParameterOnTheRadialOfAnEndIsThatEnds) {
    const Arc arc = ArcOf("0,0 20,0 h10");
    EXPECT_EQ(arc.GetParameter(Point(-50, 0), 0), 0);
    EXPECT_EQ(arc.GetParameter(Point(5, 0.25), 0.5), 0);
    EXPECT_EQ(arc.GetParameter(Point(50, 0), 0), 1);
    EXPECT_EQ(arc.GetParameter(Point(15, -0.25), 0.5), 1);
}

TEST(ArcTest, ParameterOfTheCenterIsZero) {
    EXPECT_EQ(ArcOf("0,0 20,0 h10").GetParameter(Point(10, 0), 0), 0);
    EXPECT_EQ(ArcOf("0,0 20,0 h10").GetParameter(Point(10.25, 0), 0.5), 0);
}

TEST(ArcTest, ParameterOfAzimuthCountsFromTheStartRadial) {
    EXPECT_DOUBLE_EQ(ArcOf("0,0 2,0 h1").GetParameterOfAzimuth(k_North), 0.5);
    EXPECT_DOUBLE_EQ(ArcOf("0,0 2,0 h1").GetParameterOfAzimuth(k_South), 1.5);
    EXPECT_DOUBLE_EQ(ArcOf("0,0 2,0 h-1").GetParameterOfAzimuth(k_South), 0.5);
    EXPECT_EQ(ArcOf("0,0 2,0 h-1").GetParameterOfAzimuth(k_West), 0);
}

TEST(ArcTest, ParameterOfAzimuthOnStraightPieceIsReported) {
    const AssertionRecorder recorder;
    (void)ArcOf("0,0 2,0").GetParameterOfAzimuth(k_North);
    EXPECT_THAT(recorder.Take(), testing::IsSupersetOf({"!IsSegment (0, NULL), Arc", "b.m_Value, Angle.h"}));
}

// Parts

TEST(ArcTest, SubArcOfStraightPieceIsItsSubSegment) {
    EXPECT_EQ(ArcOf("0,0 8,4").GetSubArc(0.25, 0.5), ArcOf("2,1 4,2"));
    EXPECT_EQ(ArcOf("0,0 8,4").GetSubArc(1, 0), ArcOf("8,4 0,0"));
    EXPECT_EQ(ArcOf("3,4 3,4").GetSubArc(0, 0.5), ArcOf("3,4 3,4"));
}

TEST(ArcTest, SubArcOfTheWholeWayIsTheArcItself) {
    for (const NamedArc& named : CanonicalArcs()) {
        SCOPED_TRACE(named.m_Name);
        EXPECT_EQ(named.m_Arc.GetSubArc(0, 1), named.m_Arc);
        EXPECT_EQ(named.m_Arc.GetSubArc(1, 0), named.m_Arc.GetReversed());
    }
}

TEST(ArcTest, SubArcKeepsCenterAndSense) {
    const double quarter = 1 - std::sqrt(0.5);
    EXPECT_EQ(ArcOf("0,0 2,0 h1").GetSubArc(0, 0.5), Arc({0, 0}, {1, 1}, quarter));
    EXPECT_EQ(ArcOf("0,0 2,0 h1").GetSubArc(0.5, 0), Arc({1, 1}, {0, 0}, -quarter));
    EXPECT_EQ(ArcOf("0,0 2,0 h-1").GetSubArc(0.5, 1), Arc({1, -1}, {2, 0}, -quarter));
}

TEST(ArcTest, SubArcOfFullCircleMayBeBig) {
    EXPECT_EQ(ArcOf("1,0 1,0 h-2 a180").GetSubArc(0, 0.5), ArcOf("1,0 -1,0 h-1"));
    const Arc threeQuarters = ArcOf("1,0 1,0 h-2 a180").GetSubArc(0, 0.75);
    ExpectNear(threeQuarters.GetEnd(), 0, -1);
    EXPECT_NEAR(double(threeQuarters.GetHeight()), -1 - std::sqrt(0.5), k_Tolerance);
}

TEST(ArcTest, SubArcWithoutLengthIsPoint) {
    EXPECT_EQ(ArcOf("0,0 2,0 h1").GetSubArc(0.5, 0.5), ArcOf("1,1 1,1"));
    EXPECT_EQ(ArcOf("1,0 1,0 h-2 a180").GetSubArc(0, 0), ArcOf("1,0 1,0"));
}

} // namespace
