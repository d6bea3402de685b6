// The kernel beside two libraries that know nothing of it: Boost.Geometry for straight shapes, and fifty decimal digits
// of Boost.Multiprecision for arcs.

#include "lib/math/geometry/CircleSlice.h"
#include "lib/math/geometry/GeomStl.h"
#include "lib/math/geometry/Polygon.h"
#include "tests/lib/math/geometry/RandomShapes.h"

#include <boost/geometry.hpp>
#include <boost/geometry/geometries/box.hpp>
#include <boost/geometry/geometries/linestring.hpp>
#include <boost/geometry/geometries/point_xy.hpp>
#include <boost/geometry/geometries/polygon.hpp>
#include <boost/geometry/geometries/segment.hpp>
#include <boost/multiprecision/cpp_dec_float.hpp>

#include <gtest/gtest.h>

#include <cfloat>
#include <vector>

namespace {

using namespace geom;
using fixtures::k_Cases;
using fixtures::RandomShapes;

// Straight shapes

namespace bg = boost::geometry;
using BoostPoint = bg::model::d2::point_xy<double>;
using BoostSegment = bg::model::segment<BoostPoint>;
using BoostBox = bg::model::box<BoostPoint>;
using BoostLine = bg::model::linestring<BoostPoint>;
using BoostPolygon = bg::model::polygon<BoostPoint, /*ClockWise=*/false>;

BoostPoint ToBoost(Point point) { return {double(point.GetX()), double(point.GetY())}; }
BoostSegment ToBoost(const Segment& segment) { return {ToBoost(segment.GetStart()), ToBoost(segment.GetEnd())}; }
BoostBox ToBoost(const Box& box) { return {ToBoost(box.GetVertex(3)), ToBoost(box.GetVertex(1))}; }
BoostPolygon ToBoost(const std::vector<Point>& ring) {
    BoostPolygon polygon;
    for (const Point point : ring)
        bg::append(polygon.outer(), ToBoost(point));
    bg::correct_closure(polygon);
    return polygon;
}

/// Wider than any rounding, narrower than what shapes of the grid can miss each other by.
constexpr double k_GridAccuracy = 1e-9;

TEST(StraightOracleTest, AreaOfAGridPolygonIsExact) {
    RandomShapes random(101);
    for (int i = 0; i < k_Cases; ++i) {
        std::vector<Point> ring(std::size_t(random.GetWhole(1, 12)));
        for (Point& point : ring)
            point = random.GetGridPoint();
        ASSERT_EQ(double(Polygon(ring, false).GetArea()), bg::area(ToBoost(ring))) << testing::PrintToString(ring);
    }
}

TEST(StraightOracleTest, AreaIsWithinTheRoundingOfItsProducts) {
    RandomShapes random(102);
    for (int i = 0; i < k_Cases; ++i) {
        const std::vector<Point> ring = random.GetRing();
        // At most 12 products of coordinates up to 100, each off by some units in its last place.
        const double slack = 12 * 8 * DBL_EPSILON * 1e4;
        ASSERT_NEAR(double(Polygon(ring, false).GetArea()), bg::area(ToBoost(ring)), slack);
    }
}

TEST(StraightOracleTest, OrientedPolygonHasTheAbsoluteArea) {
    RandomShapes random(103);
    for (int i = 0; i < k_Cases; ++i) {
        const std::vector<Point> ring{random.GetGridPoint(), random.GetGridPoint(), random.GetGridPoint()};
        ASSERT_EQ(double(Polygon(ring, true).GetArea()), std::abs(bg::area(ToBoost(ring))));
    }
}

TEST(StraightOracleTest, DistanceOfAPointFromASegment) {
    RandomShapes random(104);
    for (int i = 0; i < k_Cases; ++i) {
        const Segment segment = random.GetSegment();
        const Point point = random.GetPoint();
        const double expected = bg::distance(ToBoost(point), ToBoost(segment));
        const double epsilon = double(GetCombinedEpsilon_T(segment, point));
        ASSERT_NEAR(double(segment.GetDistanceSquareTo(point).GetSquareRoot()), expected, epsilon);
        ASSERT_NEAR(double(Vector(point, segment.GetNearestPoint(point)).GetAbs()), expected, epsilon);
    }
}

TEST(StraightOracleTest, DistanceOfAGridPointFromAGridSegment) {
    RandomShapes random(105);
    for (int i = 0; i < k_Cases; ++i) {
        const Segment segment = random.GetGridSegment();
        const Point point = random.GetGridPoint();
        const double expected = bg::distance(ToBoost(point), ToBoost(segment));
        ASSERT_NEAR(double(segment.GetDistanceSquareTo(point).GetSquareRoot()), expected, 4 * DBL_EPSILON * 16);
        ASSERT_EQ(segment.Contains(point, 0), expected == 0) << testing::PrintToString(segment);
    }
}

TEST(StraightOracleTest, GridSegmentsMeetExactlyWhenTheyShareAPoint) {
    RandomShapes random(106);
    int meetings = 0;
    for (int i = 0; i < k_Cases; ++i) {
        const Segment a = random.GetGridSegment();
        const Segment b = random.GetGridSegment();
        const bool expected = bg::intersects(ToBoost(a), ToBoost(b));
        meetings += expected ? 1 : 0;
        ASSERT_EQ(a.IntersectsWith(b, 0), expected) << testing::PrintToString(a) << " / " << testing::PrintToString(b);
    }
    EXPECT_GT(meetings, k_Cases / 10);
}

TEST(StraightOracleTest, SegmentsMeet) {
    RandomShapes random(107);
    for (int i = 0; i < k_Cases; ++i) {
        const Segment a = random.GetSegment();
        const Segment b = random.GetSegment();
        ASSERT_EQ(a.IntersectsWith(b, 0), bg::intersects(ToBoost(a), ToBoost(b)))
            << testing::PrintToString(a) << " / " << testing::PrintToString(b);
    }
}

TEST(StraightOracleTest, CrossingOfTwoLinesThroughSegmentsThatCross) {
    RandomShapes random(108);
    int crossings = 0;
    while (crossings < k_Cases) {
        const Segment a = random.GetSegment();
        const Segment b = random.GetSegment();
        std::vector<BoostPoint> expected;
        bg::intersection(ToBoost(a), ToBoost(b), expected);
        const double sine =
            double(a.GetVector().GetVectorProductWith(b.GetVector())) / (double(a.GetLength()) * double(b.GetLength()));
        // The flatter the crossing, the farther a rounding moves it.
        if (expected.size() != 1 || std::abs(sine) < 0.01)
            continue;
        ++crossings;
        const Point found = Line(a).GetIntersection(Line(b));
        const Unit slack = GetCombinedEpsilon_T(a, b);
        ASSERT_TRUE(found.IsEqualTo({expected[0].x(), expected[0].y()}, slack)) << testing::PrintToString(found);
    }
}

TEST(StraightOracleTest, BoxHoldsAPoint) {
    RandomShapes random(109);
    for (int i = 0; i < k_Cases; ++i) {
        const Box box = random.GetGridBox();
        const Point point = random.GetGridPoint();
        ASSERT_EQ(box.IntersectsPoint(point, 0), bg::covered_by(ToBoost(point), ToBoost(box)));
    }
}

TEST(StraightOracleTest, BoxesMeet) {
    RandomShapes random(110);
    for (int i = 0; i < k_Cases; ++i) {
        const Box a = random.GetGridBox();
        const Box b = random.GetGridBox();
        const bool expected = bg::intersects(ToBoost(a), ToBoost(b));
        ASSERT_EQ(a.Intersects(b), expected);
        ASSERT_EQ(!a.GetIntersection(b).IsEmpty(), expected);
    }
}

TEST(StraightOracleTest, RelationOfBoxes) {
    const auto isStrictlyInside = [](const Box& inner, const Box& outer) {
        return bg::within(ToBoost(inner.GetVertex(1)), ToBoost(outer)) &&
               bg::within(ToBoost(inner.GetVertex(3)), ToBoost(outer));
    };
    RandomShapes random(111);
    for (int i = 0; i < k_Cases; ++i) {
        const Box a = random.GetGridBox();
        const Box b = random.GetGridBox();
        const BoxRelation relation = a.GetRelationTo(b, 0);
        ASSERT_EQ(relation == k_BoxOutside, bg::disjoint(ToBoost(a), ToBoost(b)));
        ASSERT_EQ(relation == k_BoxInside, isStrictlyInside(a, b));
        ASSERT_EQ(relation == k_BoxAround, isStrictlyInside(b, a));
    }
}

TEST(StraightOracleTest, BoxMeetsASegment) {
    RandomShapes random(112);
    for (int i = 0; i < k_Cases; ++i) {
        const Box box = random.GetGridBox();
        const Segment segment = random.GetGridSegment();
        const double distance = bg::distance(ToBoost(segment), ToBoost(box));
        ASSERT_EQ(box.IntersectsSegment(segment, k_GridAccuracy), distance == 0)
            << testing::PrintToString(box) << " / " << testing::PrintToString(segment);
    }
}

TEST(StraightOracleTest, ClippedSegmentIsTheSharedPart) {
    RandomShapes random(113);
    int parts = 0;
    for (int i = 0; i < k_Cases; ++i) {
        const Box box = random.GetGridBox();
        const Segment segment = random.GetGridSegment();
        if (box.IsSegment(0) || segment.IsPoint(0))
            continue;
        std::vector<BoostLine> expected;
        bg::intersection(BoostLine{ToBoost(segment.GetStart()), ToBoost(segment.GetEnd())}, ToBoost(box), expected);
        if (expected.empty() || bg::length(expected[0]) < k_GridAccuracy)
            continue;
        ++parts;
        const Segment part{
            {expected[0].front().x(), expected[0].front().y()}, {expected[0].back().x(), expected[0].back().y()}};
        const BoxSegmentResult clipped = box.GetClipped(segment, 0);
        ASSERT_EQ(clipped.m_Success, 1U);
        ASSERT_TRUE(clipped.m_Segment.IsEqualTo(part, 16 * DBL_EPSILON)) << testing::PrintToString(clipped.m_Segment);
    }
    EXPECT_GT(parts, k_Cases / 10);
}

// Arcs

using Digits50 = boost::multiprecision::cpp_dec_float_50;

/// One unit in the last place of a double of that size.
double GetLastPlace(double value) { return fixtures::Up(std::abs(value)) - std::abs(value); }

double GetError(double found, const Digits50& exact) { return (Digits50(found) - exact).convert_to<double>(); }

testing::AssertionResult IsWithin(double found, const Digits50& exact, double slack, const Arc& arc) {
    const double error = std::abs(GetError(found, exact));
    if (error <= slack)
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << testing::PrintToString(arc) << " found " << found << " exact "
                                       << exact.str(20) << " off by " << error << " of " << slack;
}

/// Within 4 units in the last place.
testing::AssertionResult HasDigits(double found, const Digits50& exact, const Arc& arc) {
    return IsWithin(found, exact, 4 * GetLastPlace(found), arc);
}

struct Point50 {
    explicit Point50(Point point) : m_X(double(point.GetX())), m_Y(double(point.GetY())) {}
    Point50(Digits50 x, Digits50 y) : m_X(std::move(x)), m_Y(std::move(y)) {}
    Digits50 m_X;
    Digits50 m_Y;
};

Digits50 GetDistance(const Point50& a, const Point50& b) {
    const Digits50 x = b.m_X - a.m_X;
    const Digits50 y = b.m_Y - a.m_Y;
    return sqrt(x * x + y * y);
}

/// All that can be derived from an arc which is no circle, by another road than the kernel's: the sweep is four times
/// the angle at an end between chord and middle, the radius comes from the sweep, and the centre from both.
struct Arc50 {
    explicit Arc50(const Arc& arc) : m_Start(arc.GetStart()), m_End(arc.GetEnd()), m_Height(double(arc.GetHeight())) {
        m_Chord = GetDistance(m_Start, m_End);
        const Digits50 halfAngle = 2 * atan(2 * m_Height / m_Chord);
        m_Sweep = -2 * halfAngle;
        m_Radius = abs(m_Chord / (2 * sin(halfAngle)));
        // The centre is (radius - height) to the right of the chord's middle for a clockwise arc.
        const Digits50 aside = m_Chord / (2 * tan(halfAngle)) / m_Chord;
        m_Center.m_X = (m_Start.m_X + m_End.m_X) / 2 + aside * (m_End.m_Y - m_Start.m_Y);
        m_Center.m_Y = (m_Start.m_Y + m_End.m_Y) / 2 - aside * (m_End.m_X - m_Start.m_X);
        m_SliceArea = m_Radius * m_Radius * (m_Sweep - sin(m_Sweep)) / 2;
    }

    Point50 m_Start;
    Point50 m_End;
    Digits50 m_Height;
    Digits50 m_Chord;
    Digits50 m_Sweep;
    Digits50 m_Radius;
    Point50 m_Center{0, 0};
    Digits50 m_SliceArea;
};

/// What rounding leaves of a coordinate that is reckoned by way of the radius.
double GetPlaceSlack(const Arc& arc) {
    return 8 * DBL_EPSILON * (double(arc.GetRadius()) + double(arc.GetBox().GetMagnitude()));
}

/// The sector and the triangle of which a slice is the difference are each rounded; the triangle with the centre.
double GetSliceSlack(const Arc& arc) {
    const double radius = double(arc.GetRadius());
    return 8 * DBL_EPSILON * radius * radius * k_TwoPi +
           GetPlaceSlack(arc) * double(arc.GetStartEndSegment().GetLength());
}

TEST(ArcOracleTest, RadiusToFourUnitsInTheLastPlace) {
    RandomShapes random(201);
    for (int i = 0; i < k_Cases; ++i) {
        const Arc arc = random.GetArc();
        ASSERT_TRUE(HasDigits(double(arc.GetRadius()), Arc50(arc).m_Radius, arc));
    }
}

TEST(ArcOracleTest, RadiusOfFlatAndOfNearlyFullArcs) {
    RandomShapes random(202);
    for (int i = 0; i < k_Cases; ++i) {
        const Arc ordinary = random.GetArc();
        const double factor = std::exp(random.GetReal(-30, 30));
        const Arc arc(ordinary.GetStart(), ordinary.GetEnd(), ordinary.GetHeight() * factor);
        ASSERT_TRUE(HasDigits(double(arc.GetRadius()), Arc50(arc).m_Radius, arc));
    }
}

TEST(ArcOracleTest, CenterToTheRoundingOfItsCoordinates) {
    RandomShapes random(203);
    for (int i = 0; i < k_Cases; ++i) {
        const Arc arc = random.GetArc();
        const Point50 exact = Arc50(arc).m_Center;
        ASSERT_TRUE(IsWithin(double(arc.GetCenter().GetX()), exact.m_X, GetPlaceSlack(arc), arc));
        ASSERT_TRUE(IsWithin(double(arc.GetCenter().GetY()), exact.m_Y, GetPlaceSlack(arc), arc));
    }
}

TEST(ArcOracleTest, SweepUpToAHalfCircleToFourUnitsInTheLastPlace) {
    RandomShapes random(204);
    for (int cases = 0; cases < k_Cases;) {
        const Arc arc = random.GetArc();
        if (arc.IsBig())
            continue;
        ++cases;
        ASSERT_TRUE(HasDigits(arc.GetSweep().GetValue(k_Radians), Arc50(arc).m_Sweep, arc));
    }
}

TEST(ArcOracleTest, SweepOfABigArcToTheRoundingOfItsCosine) {
    RandomShapes random(205);
    for (int cases = 0; cases < k_Cases;) {
        const Arc arc = random.GetArc();
        if (!arc.IsBig())
            continue;
        ++cases;
        const Digits50 exact = Arc50(arc).m_Sweep;
        // d acos(c) = dc / sin, twice: the nearer to a full circle, the more is lost.
        const double sine = std::abs(sin(exact / 2).convert_to<double>());
        ASSERT_TRUE(IsWithin(arc.GetSweep().GetValue(k_Radians), exact, 8 * DBL_EPSILON * (1 + 1 / sine), arc));
    }
}

TEST(ArcOracleTest, ComplementHeightToFourUnitsInTheLastPlace) {
    RandomShapes random(206);
    for (int i = 0; i < k_Cases; ++i) {
        const Arc arc = random.GetArc();
        const Arc50 exact(arc);
        ASSERT_TRUE(HasDigits(
            double(arc.GetComplement().GetHeight()), exact.m_Chord * exact.m_Chord / (4 * exact.m_Height), arc));
    }
}

TEST(ArcOracleTest, SectorAreaToTheRoundingOfTheSweep) {
    RandomShapes random(207);
    for (int cases = 0; cases < k_Cases;) {
        const Arc arc = random.GetArc();
        if (arc.IsBig())
            continue;
        ++cases;
        const Arc50 exact(arc);
        const double found = double(arc.GetSectorArea());
        ASSERT_TRUE(
            IsWithin(found, exact.m_Radius * exact.m_Radius * exact.m_Sweep / 2, 12 * GetLastPlace(found), arc));
    }
}

TEST(ArcOracleTest, SliceAreaToTheRoundingOfSectorAndTriangle) {
    RandomShapes random(208);
    for (int i = 0; i < k_Cases; ++i) {
        const Arc arc = random.GetArc();
        ASSERT_TRUE(IsWithin(double(CircleSlice(arc).GetArea()), Arc50(arc).m_SliceArea, GetSliceSlack(arc), arc));
    }
}

TEST(ArcOracleTest, AreaOfAnOutlineOfThreeArcs) {
    RandomShapes random(209);
    for (int i = 0; i < k_Cases; ++i) {
        std::vector<Point> ring = random.GetRing();
        ring.resize(3);
        std::vector<Arc> arcs;
        Digits50 exact = 0;
        double slack = 3 * 8 * DBL_EPSILON * 1e4;
        for (std::size_t j = 0; j < ring.size(); ++j) {
            const Segment chord(ring[j], ring[(j + 1) % ring.size()]);
            arcs.emplace_back(chord.GetStart(), chord.GetEnd(), chord.GetLength() * random.GetReal(-0.9, 0.9));
            const Arc50 arc(arcs.back());
            exact += arc.m_SliceArea + (arc.m_Start.m_X * arc.m_End.m_Y - arc.m_Start.m_Y * arc.m_End.m_X) / 2;
            slack += GetSliceSlack(arcs.back());
        }
        ASSERT_TRUE(IsWithin(double(Polygon(arcs, false).GetArea()), exact, slack, arcs.front()));
    }
}

TEST(ArcOracleTest, HeightAroundACenterToTheRoundingOfTheRadius) {
    RandomShapes random(210);
    for (int cases = 0; cases < k_Cases;) {
        const Arc given = random.GetArc();
        const Point center = given.GetCenter();
        const Arc50 exact(given);
        const double radius = exact.m_Radius.convert_to<double>();
        const double toChord = std::abs(radius - std::abs(double(given.GetHeight())));
        // At the half circle the centre lies on the chord, and the root of what is left there has half of the digits.
        if (toChord < radius * 1e-3)
            continue;
        ++cases;
        const Arc found(given.GetStartEndSegment(), given.GetDirection(), center);
        const double slack = GetPlaceSlack(given) * (1 + radius / toChord);
        ASSERT_TRUE(IsWithin(double(found.GetHeight()), exact.m_Height, slack, given));
    }
}

TEST(ArcOracleTest, HeightThroughThreePointsToTheRoundingOfTheirBisectors) {
    RandomShapes random(211);
    for (int cases = 0; cases < k_Cases;) {
        const Arc given = random.GetArc();
        const Arc50 exact(given);
        const double radius = double(given.GetRadius());
        const double toChord = std::abs(radius - std::abs(double(given.GetHeight())));
        const double chord = double(given.GetStartEndSegment().GetLength());
        if (toChord < radius * 1e-2 || radius > 10 * chord || given.IsBig())
            continue;
        ++cases;
        const Arc found(given.GetStart(), given.GetMidPoint(), given.GetEnd());
        // The bisectors cross flatly when the arc is flat; that multiplies the rounding by the square of radius /
        // chord.
        const double flatness = 1 + radius / chord * radius / chord;
        const double slack = GetPlaceSlack(given) * flatness * (1 + radius / toChord);
        ASSERT_TRUE(IsWithin(double(found.GetHeight()), exact.m_Height, slack, given));
    }
}

} // namespace
