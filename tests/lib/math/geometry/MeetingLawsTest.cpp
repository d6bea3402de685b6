// What holds for every meeting of shapes: crossings, clippings and rounded corners, tried with many at random.

#include "lib/math/geometry/ArcSequence.h"
#include "lib/math/geometry/GeomStl.h"
#include "lib/math/geometry/Line.h"
#include "lib/math/geometry/RoundCorner.h"
#include "lib/math/geometry/RoundedArcs.h"
#include "tests/lib/math/geometry/RandomShapes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace {

using namespace geom;
using fixtures::k_Cases;
using fixtures::RandomShapes;

constexpr double k_Slack = 1e-9; ///< for shapes of the size of 100, well above the rounding of a few operations

/// Every second one with whole numbers, so that two of them, or one and a line, often coincide or touch.
Circumference GetCircumference(RandomShapes& random) {
    if (random.GetChance(0.5))
        return {random.GetGridPoint(), double(random.GetWhole(1, 5))};
    return {random.GetPoint(), random.GetReal(0.1, 100)};
}

Segment GetSegment(RandomShapes& random) {
    const Segment segment = random.GetChance(0.5) ? random.GetGridSegment() : random.GetSegment();
    return segment.IsPoint(0) ? random.GetSegment() : segment;
}

// Clipping

TEST(ClippingLaws, PartStaysInTheBox) {
    RandomShapes random(401);
    int parts = 0;
    for (int i = 0; i < k_Cases; ++i) {
        const bool isOnGrid = random.GetChance(0.5);
        const Box box = isOnGrid ? random.GetGridBox() : random.GetBox();
        const Segment segment = isOnGrid ? random.GetGridSegment() : random.GetSegment();
        const BoxSegmentResult part = box.GetClipped(segment, 0);
        if (part.m_Success == 0)
            continue;
        ++parts;
        ASSERT_TRUE(box.IntersectsPoint(part.m_Segment.GetStart(), 0)) << testing::PrintToString(segment);
        ASSERT_TRUE(box.IntersectsPoint(part.m_Segment.GetEnd(), 0)) << testing::PrintToString(segment);
    }
    EXPECT_GT(parts, k_Cases / 5);
}

TEST(ClippingLaws, PartStaysOnTheSegmentAndKeepsItsSense) {
    RandomShapes random(402);
    for (int i = 0; i < k_Cases; ++i) {
        const Segment segment = random.GetSegment();
        const BoxSegmentResult part = random.GetBox().GetClipped(segment, 0);
        if (part.m_Success == 0)
            continue;
        ASSERT_TRUE(segment.Contains(part.m_Segment.GetStart(), k_Slack));
        ASSERT_TRUE(segment.Contains(part.m_Segment.GetEnd(), k_Slack));
        ASSERT_GE(part.m_Segment.GetVector().GetScalarProductWith(segment.GetVector()), k_NullArea);
    }
}

TEST(ClippingLaws, PartAgainIsThePart) {
    RandomShapes random(403);
    for (int i = 0; i < k_Cases; ++i) {
        const Box box = random.GetBox();
        const BoxSegmentResult part = box.GetClipped(random.GetSegment(), 0);
        if (part.m_Success == 0)
            continue;
        const BoxSegmentResult again = box.GetClipped(part.m_Segment, 0);
        ASSERT_EQ(again.m_Success, 1U);
        ASSERT_EQ(again.m_Segment, part.m_Segment);
    }
}

// Crossings

TEST(CrossingLaws, PointOfTwoLinesLiesOnBothUnlessTheyAreParallel) {
    RandomShapes random(411);
    for (int i = 0; i < k_Cases; ++i) {
        const Line line1(GetSegment(random));
        const Line line2(GetSegment(random));
        const Point point = line1.GetIntersection(line2);
        if (point.GetX() == k_InfiniteUnit) {
            ASSERT_NEAR(double(line1.GetNormal().GetVectorProductWith(line2.GetNormal())), 0, 1e-15);
            continue;
        }
        const Unit slack = 1e-12 * std::max(Box(point).GetMagnitude(), Unit(100));
        ASSERT_TRUE(line1.Contains(point, slack)) << testing::PrintToString(point);
        ASSERT_TRUE(line2.Contains(point, slack)) << testing::PrintToString(point);
    }
}

TEST(CrossingLaws, PointsOfACircleAndALineLieOnBoth) {
    RandomShapes random(412);
    int crossings = 0;
    for (int i = 0; i < k_Cases; ++i) {
        const Circumference circle = GetCircumference(random);
        const Line line(GetSegment(random));
        const PointPairResult common = circle.GetIntersections(line, 0);
        ASSERT_GE(common.m_Success1, common.m_Success2);
        crossings += int(common.m_Success1);
        for (const Point point : {common.m_Point1, common.m_Point2})
            if (common.m_Success2 != 0) {
                ASSERT_TRUE(circle.Contains(point, k_Slack)) << testing::PrintToString(circle);
                ASSERT_TRUE(line.Contains(point, k_Slack)) << testing::PrintToString(circle);
            }
    }
    EXPECT_GT(crossings, k_Cases / 5);
}

TEST(CrossingLaws, PointsOfACircleAndASegmentLieOnBoth) {
    RandomShapes random(413);
    for (int i = 0; i < k_Cases; ++i) {
        const Circumference circle = GetCircumference(random);
        const Segment segment = GetSegment(random);
        const PointPairResult common = circle.GetIntersections(segment, 0);
        if (common.m_Success1 != 0) {
            ASSERT_TRUE(circle.Contains(common.m_Point1, k_Slack) && segment.Contains(common.m_Point1, k_Slack));
        }
        if (common.m_Success2 != 0) {
            ASSERT_TRUE(circle.Contains(common.m_Point2, k_Slack) && segment.Contains(common.m_Point2, k_Slack));
        }
    }
}

TEST(CrossingLaws, PointsOfTwoCirclesLieOnBoth) {
    RandomShapes random(414);
    int crossings = 0;
    for (int i = 0; i < k_Cases; ++i) {
        const Circumference circle1 = GetCircumference(random);
        const Circumference circle2 = GetCircumference(random);
        const ArcPairResult common = circle1.GetIntersections(circle2, 0);
        ASSERT_GE(common.m_Success1, common.m_Success2);
        if (common.m_Success2 == 0)
            continue;
        ++crossings;
        for (const Arc& point : {common.m_Arc1, common.m_Arc2}) {
            ASSERT_TRUE(point.IsPoint(0));
            // Circles that just cut each other have the root of what little is left between them.
            ASSERT_TRUE(circle1.Contains(point.GetStart(), 1e-6)) << testing::PrintToString(circle1);
            ASSERT_TRUE(circle2.Contains(point.GetStart(), 1e-6)) << testing::PrintToString(circle2);
        }
    }
    EXPECT_GT(crossings, k_Cases / 5);
}

TEST(CrossingLaws, SegmentThroughAPointOfAnArcMeetsIt) {
    RandomShapes random(415);
    for (int i = 0; i < k_Cases; ++i) {
        const Arc arc = random.GetArc();
        const Point point = arc.GetPointAt(random.GetReal(0, 1));
        const Vector aside(random.GetPoint());
        const Segment segment(point + aside, point - aside);
        ASSERT_TRUE(arc.IntersectsSegment(segment, k_Slack)) << testing::PrintToString(arc);
    }
}

TEST(CrossingLaws, BoxAroundAPointOfAnArcMeetsIt) {
    RandomShapes random(416);
    for (int i = 0; i < k_Cases; ++i) {
        const Arc arc = random.GetArc();
        const Point point = arc.GetPointAt(random.GetReal(0, 1));
        const Box box = Box(point).GetExpanded(random.GetReal(0.001, 100));
        ASSERT_TRUE(arc.IntersectsBox(box, 0)) << testing::PrintToString(arc) << " / " << testing::PrintToString(box);
    }
}

TEST(CrossingLaws, BoxThatMissesTheArcsBoxMissesTheArc) {
    RandomShapes random(417);
    for (int i = 0; i < k_Cases; ++i) {
        const Arc arc = random.GetArc();
        const Box box = random.GetBox();
        if (arc.GetBox().Intersects(box, k_Slack))
            continue;
        ASSERT_FALSE(arc.IntersectsBox(box, 0)) << testing::PrintToString(arc) << " / " << testing::PrintToString(box);
    }
}

// Rounded corners

/// The sine of the angle between two directions; 0 for tangents.
double GetSine(Azimuth a, Azimuth b) { return std::sin(a.GetShortestAngleTo(b).GetValue(k_Radians)); }

/// Two pieces that meet, each straight or curved.
std::vector<Arc> GetCorner(RandomShapes& random) {
    const Point corner = random.GetPoint();
    const Point start = random.GetPoint();
    const Point end = random.GetPoint();
    const double chord1 = double(Segment(start, corner).GetLength());
    const double chord2 = double(Segment(corner, end).GetLength());
    const double height1 = random.GetChance(0.5) ? 0 : chord1 * random.GetReal(-0.9, 0.9);
    const double height2 = random.GetChance(0.5) ? 0 : chord2 * random.GetReal(-0.9, 0.9);
    return {Arc(start, corner, height1), Arc(corner, end, height2)};
}

/// How far a point may be off a piece: a flat one has its centre far away.
double GetSlack(const Arc& arc) { return arc.IsSegment(0) ? k_Slack : k_Slack * (1 + double(arc.GetRadius()) / 100); }

bool IsOnPiece(const Arc& arc, Point point) {
    const Unit slack = GetSlack(arc);
    if (arc.IsSegment(0))
        return arc.GetStartEndSegment().Contains(point, slack);
    return arc.GetCircumference().Contains(point, slack) && arc.IsInSector(point, slack);
}

Azimuth GetTangentOf(const Arc& arc, Point point) {
    return arc.IsSegment(0) ? arc.GetStartTangent() : Vector(arc.GetCenter(), point).GetAzimuth() + k_Angle_90;
}

TEST(CornerLaws, RoundingStartsOnTheFirstPieceAndEndsOnTheSecond) {
    RandomShapes random(421);
    int roundings = 0;
    for (int i = 0; i < k_Cases; ++i) {
        const std::vector<Arc> corner = GetCorner(random);
        const ArcResult rounding =
            GetRoundCorner(corner[0], corner[1], random.GetReal(0.01, 20), k_ShortWay, random.GetChance(0.5));
        if (rounding.m_Success == 0)
            continue;
        ++roundings;
        ASSERT_TRUE(IsOnPiece(corner[0], rounding.m_Arc.GetStart())) << testing::PrintToString(corner);
        ASSERT_TRUE(IsOnPiece(corner[1], rounding.m_Arc.GetEnd())) << testing::PrintToString(corner);
    }
    EXPECT_GT(roundings, k_Cases / 5);
}

TEST(CornerLaws, RoundingIsTangentToBothPiecesAndHasTheRadius) {
    RandomShapes random(422);
    int roundings = 0;
    for (int i = 0; i < k_Cases; ++i) {
        const std::vector<Arc> corner = GetCorner(random);
        const double radius = random.GetReal(0.1, 20);
        const ArcResult rounding = GetRoundCorner(corner[0], corner[1], radius, k_ShortWay, random.GetChance(0.5));
        const Arc fitted = rounding.m_Arc;
        // A short rounding has few digits of direction.
        if (rounding.m_Success == 0 || double(fitted.GetStartEndSegment().GetLength()) < 0.01 * radius)
            continue;
        ++roundings;
        ASSERT_NEAR(GetSine(GetTangentOf(corner[0], fitted.GetStart()), fitted.GetStartTangent()), 0, 1e-5)
            << testing::PrintToString(corner) << testing::PrintToString(fitted);
        ASSERT_NEAR(GetSine(GetTangentOf(corner[1], fitted.GetEnd()), fitted.GetEndTangent()), 0, 1e-5)
            << testing::PrintToString(corner) << testing::PrintToString(fitted);
        ASSERT_NEAR(double(fitted.GetRadius()), radius, 1e-6 * radius) << testing::PrintToString(corner);
    }
    EXPECT_GT(roundings, k_Cases / 5);
}

TEST(CornerLaws, RoundingOfStraightPiecesGoesOnInTheirSense) {
    RandomShapes random(423);
    int roundings = 0;
    for (int i = 0; i < k_Cases; ++i) {
        const Point a = random.GetPoint();
        const Point b = random.GetPoint();
        const Point c = random.GetPoint();
        const ArcResult rounding = GetRoundCorner(a, b, c, random.GetReal(0.1, 20), k_ShortWay);
        if (rounding.m_Success == 0)
            continue;
        ++roundings;
        const Azimuth start = Vector(a, b).GetAzimuth();
        const Azimuth end = Vector(b, c).GetAzimuth();
        ASSERT_LT(rounding.m_Arc.GetStartTangent().GetShortestAngleTo(start), Angle(k_Radians, 1e-5));
        ASSERT_LT(rounding.m_Arc.GetEndTangent().GetShortestAngleTo(end), Angle(k_Radians, 1e-5));
        ASSERT_FALSE(rounding.m_Arc.IsBig());
    }
    EXPECT_GT(roundings, k_Cases / 5);
}

/// No piece is a point: appending drops those, and the piece ahead of one that stays sharp would go with it.
std::vector<Arc> GetChain(RandomShapes& random, int count, OpenClosed openClosed) {
    std::vector<Point> points;
    while (int(points.size()) <= count) {
        const Point point = random.GetChance(0.3) ? random.GetGridPoint() : random.GetPoint();
        const bool isNew = points.empty() || (point != points.back() && point != points.front());
        if (isNew)
            points.push_back(point);
    }
    if (openClosed == k_Closed)
        points.back() = points.front();
    std::vector<Arc> chain;
    for (std::size_t i = 0; i + 1 < points.size(); ++i) {
        const double chord = double(Segment(points[i], points[i + 1]).GetLength());
        chain.emplace_back(points[i], points[i + 1], random.GetChance(0.5) ? 0 : chord * random.GetReal(-0.9, 0.9));
    }
    return chain;
}

TEST(CornerLaws, RoundedChainIsAChainWithTheSameEnds) {
    RandomShapes random(424);
    for (int i = 0; i < k_Cases; ++i) {
        const OpenClosed openClosed = random.GetChance(0.5) ? k_Open : k_Closed;
        const std::vector<Arc> chain = GetChain(random, random.GetWhole(2, 6), openClosed);
        const double preferred = random.GetReal(0.1, 20);
        const std::vector<Arc> rounded =
            GetRoundedArcs(chain, preferred, preferred / random.GetReal(1, 50), openClosed);
        ASSERT_TRUE(IsPolyArcSequence_G(rounded, openClosed)) << testing::PrintToString(chain);
        ASSERT_FALSE(rounded.empty());
        if (openClosed == k_Open) {
            ASSERT_EQ(rounded.front().GetStart(), chain.front().GetStart());
            ASSERT_EQ(rounded.back().GetEnd(), chain.back().GetEnd());
        }
    }
}

TEST(CornerLaws, RoundedPairKeepsItsEndsOrStaysAsItIs) {
    RandomShapes random(425);
    for (int i = 0; i < k_Cases; ++i) {
        const std::vector<Arc> corner = GetCorner(random);
        const double preferred = random.GetReal(0.1, 50);
        const RoundedPair pair = GetRoundedPair(corner[0], corner[1], preferred, preferred / 16);
        ASSERT_TRUE(IsPolyArcSequence_G(pair.m_Arcs, k_Open));
        if (pair.m_Changed == 0) {
            ASSERT_EQ(pair.m_Arcs, corner);
        }
    }
}

} // namespace
