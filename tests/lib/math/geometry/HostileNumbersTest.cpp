// Whatever six numbers make a shape, no operation on it hangs or crashes, and what it answers is well-formed. What the
// answers are worth is another matter; reports are expected.

#include "lib/math/geometry/ArcSequence.h"
#include "lib/math/geometry/CircleSlice.h"
#include "lib/math/geometry/Exception.h"
#include "lib/math/geometry/GeomStl.h"
#include "lib/math/geometry/Line.h"
#include "lib/math/geometry/Polygon.h"
#include "lib/math/geometry/Rotation.h"
#include "lib/math/geometry/RoundCorner.h"
#include "lib/math/geometry/RoundedArcs.h"
#include "lib/math/geometry/Transformation.h"
#include "lib/math/geometry/Triangle.h"
#include "tests/AssertionRecorder.h"
#include "tests/lib/math/geometry/RandomShapes.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using namespace geom;
using fixtures::k_Cases;
using fixtures::RandomShapes;

/// Swallows the reports of each test.
class HostileNumbersTest : public testing::Test {
protected:
    void TearDown() override { AssertionRecorder::Take(); }

private:
    AssertionRecorder m_Reports;
};

Arc GetHostileArc(RandomShapes& random) {
    const Point start = random.GetHostilePoint();
    const Point end = random.GetChance(0.2) ? start : random.GetHostilePoint();
    return {start, end, random.GetHostile()};
}

TEST_F(HostileNumbersTest, ArcsAnswerEveryQuestion) {
    RandomShapes random(501);
    for (int i = 0; i < k_Cases; ++i) {
        const Arc arc = GetHostileArc(random);
        const Point point = random.GetHostilePoint();
        const double t = random.GetHostile();
        (void)arc.GetCircumference();
        (void)arc.GetSweep();
        (void)arc.GetSectorArea();
        (void)CircleSlice(arc).GetArea();
        (void)arc.GetBox();
        (void)arc.GetEpsilon();
        (void)arc.GetStartTangent();
        (void)arc.GetEndTangent();
        (void)arc.GetPointAt(t);
        (void)arc.GetParameter(point, random.GetHostile());
        (void)arc.GetSubArc(t, random.GetHostile());
        (void)arc.GetComplement();
        (void)arc.IsInSector(point, random.GetHostile());
        (void)arc.IntersectsBox(Box(point).GetUnion(Box(random.GetHostilePoint())), random.GetHostile());
        (void)arc.IntersectsSegment({point, random.GetHostilePoint()}, random.GetHostile());
        (void)Arc(arc.GetStart(), point, arc.GetEnd());
        (void)Arc(arc.GetStartEndSegment(), random.GetChance(0.5) ? k_CCW : k_CW, point);
        ASSERT_EQ(
            arc.GetReversed().GetEnd().GetX() == arc.GetStart().GetX(), arc.GetStart().GetX() == arc.GetStart().GetX());
    }
}

TEST_F(HostileNumbersTest, ClippingEndsAndAnswersYesOrNo) {
    RandomShapes random(502);
    for (int i = 0; i < k_Cases; ++i) {
        const Box box(random.GetHostile(), random.GetHostile(), random.GetHostile(), random.GetHostile());
        const Segment segment(random.GetHostilePoint(), random.GetHostilePoint());
        ASSERT_LE(box.GetClipped(segment, random.GetHostile()).m_Success, 1U);
        (void)box.IntersectsSegment(segment, random.GetHostile());
        (void)box.GetExpanded(random.GetHostile());
        (void)box.GetRelationTo(Box(segment), random.GetHostile());
        (void)box.GetEpsilon();
    }
}

TEST_F(HostileNumbersTest, LinesAndCirclesFillTheirPairsFromTheFront) {
    RandomShapes random(503);
    for (int i = 0; i < k_Cases; ++i) {
        const Circumference circle1(random.GetHostilePoint(), random.GetHostile());
        const Circumference circle2(random.GetHostilePoint(), random.GetHostile());
        const Segment segment(random.GetHostilePoint(), random.GetHostilePoint());
        const double accuracy = random.GetHostile();
        const PointPairResult onLine = circle1.GetIntersections(Line(segment), accuracy);
        ASSERT_GE(onLine.m_Success1, onLine.m_Success2);
        const PointPairResult onSegment = circle1.GetIntersections(segment, accuracy);
        ASSERT_GE(onSegment.m_Success1, onSegment.m_Success2);
        const ArcPairResult onCircle = circle1.GetIntersections(circle2, accuracy);
        ASSERT_GE(onCircle.m_Success1, onCircle.m_Success2);
        ASSERT_LE(circle1.GetTangentCenter(true, circle2, false, random.GetHostile(), k_CW).m_Success, 1U);
        ASSERT_LE(circle1.GetTangentCenter(false, Line(segment), true, true, random.GetHostile()).m_Success, 1U);
        (void)circle1.IntersectsBox(Box(segment), accuracy);
    }
}

TEST_F(HostileNumbersTest, SegmentsAnswerEveryQuestion) {
    RandomShapes random(504);
    for (int i = 0; i < k_Cases; ++i) {
        const Segment a(random.GetHostilePoint(), random.GetHostilePoint());
        const Segment b(random.GetHostilePoint(), random.GetHostilePoint());
        const double accuracy = random.GetHostile();
        (void)a.IntersectsWith(b, accuracy);
        (void)a.GetNearestPoint(b.GetStart());
        (void)a.GetDistanceSquareTo(b.GetStart());
        (void)Line(a).GetIntersection(Line(b));
        ASSERT_LE(a.GetCommonPoint(b.GetEnd(), accuracy).m_Success, 1U);
        ASSERT_LE(Line(a).GetCommonSegment(b, accuracy).m_Success, 1U);
        ASSERT_LE(Line(a).GetCommonSegment(Line(b), random.GetHostile(), accuracy).m_Success, 1U);
        (void)Triangle(a.GetStart(), a.GetEnd(), b.GetStart()).IsDegenerate(accuracy);
    }
}

TEST_F(HostileNumbersTest, TransformationsAnswerEveryQuestion) {
    RandomShapes random(505);
    for (int i = 0; i < k_Cases; ++i) {
        Transformation transformation(Angle(k_Degrees, random.GetHostile()), random.GetHostilePoint());
        transformation *= Transformation(Azimuth(k_Radians, random.GetHostile()));
        transformation *= Transformation(Line(random.GetHostilePoint(), random.GetHostilePoint()));
        (void)GetHostileArc(random).GetTransformed(transformation);
        (void)GetHostileArc(random).GetRotated(
            Rotation(random.GetHostilePoint(), Angle(k_Degrees, random.GetHostile())));
        const double azimuth = transformation.ApplyToAzimuth(k_North).GetAngle().GetValue(k_Radians);
        ASSERT_FALSE(azimuth < 0 || azimuth > k_TwoPi) << azimuth;
    }
}

TEST_F(HostileNumbersTest, RoundingACornerEndsAndAnswersYesOrNo) {
    RandomShapes random(506);
    for (int i = 0; i < k_Cases; ++i) {
        const Arc first = GetHostileArc(random);
        const Arc second(first.GetEnd(), random.GetHostilePoint(), random.GetHostile());
        const CornerMode mode = random.GetChance(0.5) ? k_ShortWay : k_LongWay;
        ASSERT_LE(GetRoundCorner(first, second, random.GetHostile(), mode, random.GetChance(0.5)).m_Success, 1U);
    }
}

TEST_F(HostileNumbersTest, RoundingAChainEnds) {
    RandomShapes random(507);
    for (int i = 0; i < k_Cases; ++i) {
        const Arc first = GetHostileArc(random);
        const Arc second(first.GetEnd(), random.GetHostilePoint(), random.GetHostile());
        const Arc third(second.GetEnd(), first.GetStart(), random.GetHostile());
        (void)GetRoundedArcs({first, second}, random.GetHostile(), random.GetHostile(), k_Open);
        (void)GetRoundedArcs({first, second, third}, random.GetHostile(), random.GetHostile(), k_Closed);
    }
}

TEST_F(HostileNumbersTest, RoundingAChainOfFiniteNumbersGivesAChain) {
    RandomShapes random(508);
    for (int i = 0; i < k_Cases; ++i) {
        const auto getPoint = [&random] {
            return random.GetChance(0.5) ? random.GetGridPoint() : Point(random.GetExtreme(), random.GetExtreme());
        };
        const Point p1 = getPoint();
        const Point p2 = getPoint();
        const Point p3 = getPoint();
        const std::vector<Arc> chain{
            Arc(p1, p2, random.GetExtreme()), Arc(p2, p3, 0), Arc(p3, p1, random.GetExtreme())};
        const double radius = std::abs(random.GetExtreme());
        const std::vector<Arc> rounded = GetRoundedArcs(chain, radius, radius / 8, k_Open);
        bool isFinite = true;
        for (const Arc& arc : rounded)
            isFinite =
                isFinite && std::isfinite(double(arc.GetEnd().GetX())) && std::isfinite(double(arc.GetEnd().GetY()));
        if (isFinite) {
            ASSERT_TRUE(IsPolyArcSequence_G(rounded, k_Open)) << testing::PrintToString(rounded);
        }
    }
}

TEST_F(HostileNumbersTest, OutlinesAreMadeWalkedAndMeasured) {
    RandomShapes random(509);
    for (int i = 0; i < k_Cases; ++i) {
        const Segment segment(random.GetHostilePoint(), random.GetHostilePoint());
        const Box filter(random.GetHostile(), random.GetHostile(), random.GetHostile(), random.GetHostile());
        for (const Polygon& polygon :
            {Polygon(segment, random.GetHostile()), Polygon(Box(segment), random.GetHostile()),
                segment.GetPolygon(random.GetHostile(), true, random.GetHostile(), false)}) {
            (void)polygon.GetArea();
            (void)polygon.GetBox();
            for (const base::FilterMode mode : {base::k_NoFilter, base::k_SkipOutside, base::k_SkipInside}) {
                std::uint32_t count = 0;
                for (PolyArc::Iterator it = polygon.begin(mode, filter); !(it == polygon.end()); ++it)
                    ++count;
                ASSERT_LE(count, polygon.GetArcCount());
            }
        }
    }
}

} // namespace
