#include "lib/math/geometry/Arc.h"

#include "lib/math/geometry/Rotation.h"
#include "lib/math/geometry/Transformation.h"
#include "tests/AssertionRecorder.h"
#include "tests/GeometryFixtures.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace {

using namespace geom;
using fixtures::NamedArc;

constexpr int k_Steps = 64;

/// What coordinates reckoned from the derived circle may be off: a relative rounding, which grows with the part of the
/// circle that the centre is far away in, for flat arcs.
double GetSlack(const Arc& arc) { return 1e-12 * (double(arc.GetBox().GetMagnitude()) + double(arc.GetRadius())); }

std::vector<NamedArc> GetRandomArcs() {
    std::mt19937 engine(20240611); // NOLINT(bugprone-random-generator-seed): the same arcs in each run
    std::uniform_real_distribution<double> coordinate(-100, 100);
    std::vector<NamedArc> arcs;
    for (int i = 0; i < 300; ++i) {
        const Point start(coordinate(engine), coordinate(engine));
        const Point end(coordinate(engine), coordinate(engine));
        arcs.push_back({"random", Arc(start, end, coordinate(engine))});
    }
    return arcs;
}

/// All canonical arcs that have a circle, and random ones.
std::vector<NamedArc> GetCurvedArcs() {
    std::vector<NamedArc> arcs = GetRandomArcs();
    for (const NamedArc& named : fixtures::CanonicalArcs())
        if (!named.m_Arc.IsSegment(1e-6))
            arcs.push_back(named);
    return arcs;
}

class ArcLawsTest : public testing::TestWithParam<NamedArc> {};

INSTANTIATE_TEST_SUITE_P(Curved, ArcLawsTest, testing::ValuesIn(GetCurvedArcs()));

TEST_P(ArcLawsTest, NoLawRaisesAReport) {
    const AssertionRecorder recorder;
    const Arc arc = GetParam().m_Arc;
    (void)arc.GetBox();
    (void)arc.GetSectorArea();
    (void)arc.GetStartTangent();
    (void)arc.GetComplement();
    (void)arc.GetParameter(arc.GetPointAt(0.3), 0);
    EXPECT_THAT(recorder.Take(), testing::IsEmpty());
}

TEST_P(ArcLawsTest, PointsAlongTheWayLieOnTheCircle) {
    const Arc arc = GetParam().m_Arc;
    for (int i = 0; i <= k_Steps; ++i) {
        const Point point = arc.GetPointAt(double(i) / k_Steps);
        EXPECT_NEAR(double(Vector(arc.GetCenter(), point).GetAbs()), double(arc.GetRadius()), GetSlack(arc));
    }
}

TEST_P(ArcLawsTest, WayTurnsInItsSense) {
    const Arc arc = GetParam().m_Arc;
    for (int i = 0; i < k_Steps; ++i) {
        const Point from = arc.GetPointAt(double(i) / k_Steps);
        const Point to = arc.GetPointAt(double(i + 1) / k_Steps);
        const double cross = double(Vector(arc.GetCenter(), from).GetVectorProductWith(Vector(arc.GetCenter(), to)));
        EXPECT_EQ(cross > 0, arc.IsCCW());
    }
}

TEST_P(ArcLawsTest, ParameterIsTheInverseOfPointAt) {
    const Arc arc = GetParam().m_Arc;
    for (int i = 1; i < k_Steps; ++i) {
        const double t = double(i) / k_Steps;
        EXPECT_NEAR(arc.GetParameter(arc.GetPointAt(t), 0), t, 1e-9);
    }
}

TEST_P(ArcLawsTest, BoxIsTheSmallestAroundTheWay) {
    const Arc arc = GetParam().m_Arc;
    Box walked;
    constexpr int k_FineSteps = 2000;
    for (int i = 0; i <= k_FineSteps; ++i)
        walked.Extend(arc.GetPointAt(double(i) / k_FineSteps));
    // A step of a turn / 2000 leaves out at most r (1 - cos (pi / 2000)) = 1.3e-6 r.
    EXPECT_TRUE(arc.GetBox().IsEqualTo(walked, arc.GetRadius() * 2e-6)) << testing::PrintToString(walked);
    EXPECT_EQ(walked.GetUnion(arc.GetBox().GetExpanded(GetSlack(arc))), arc.GetBox().GetExpanded(GetSlack(arc)));
}

TEST_P(ArcLawsTest, LooseBoxHoldsTheBox) {
    const Arc arc = GetParam().m_Arc;
    const Box loose = arc.GetLooseBox().GetExpanded(GetSlack(arc));
    if (!arc.IsCircle()) {
        EXPECT_EQ(loose.GetUnion(arc.GetBox()), loose);
    }
}

TEST_P(ArcLawsTest, SectorHoldsTheWayAndNothingOfTheComplement) {
    const Arc arc = GetParam().m_Arc;
    const Arc complement = arc.GetComplement();
    for (int i = 1; i < k_Steps; ++i) {
        const double t = double(i) / k_Steps;
        EXPECT_TRUE(arc.IsInSector(arc.GetPointAt(t), 0));
        if (!arc.IsCircle() && complement.GetSweep().GetAbs() > Angle(k_Degrees, 1)) {
            EXPECT_FALSE(arc.IsInSector(complement.GetPointAt(t), 0));
        }
    }
}

TEST_P(ArcLawsTest, SweepAndThatOfTheComplementMakeATurn) {
    const Arc arc = GetParam().m_Arc;
    const Angle both = arc.GetSweep().GetAbs() + arc.GetComplement().GetSweep().GetAbs();
    EXPECT_NEAR(both.GetValue(k_Radians), k_TwoPi, 1e-7);
}

TEST_P(ArcLawsTest, SectorAreaIsTheSumOfThinTriangles) {
    const Arc arc = GetParam().m_Arc;
    const Point center = arc.GetCenter();
    double area = 0;
    constexpr int k_FineSteps = 2000;
    for (int i = 0; i < k_FineSteps; ++i)
        area += double(Vector(center, arc.GetPointAt(double(i) / k_FineSteps))
                           .GetVectorProductWith(Vector(center, arc.GetPointAt(double(i + 1) / k_FineSteps)))) /
                2;
    EXPECT_NEAR(area / double(arc.GetSectorArea()), 1, 1e-5);
}

TEST_P(ArcLawsTest, ReverseIsTheSameCurve) {
    const Arc arc = GetParam().m_Arc;
    const Arc reversed = arc.GetReversed();
    EXPECT_EQ(reversed.GetReversed(), arc);
    EXPECT_EQ(reversed.GetSweep(), -arc.GetSweep());
    EXPECT_EQ(reversed.GetRadius(), arc.GetRadius());
    EXPECT_EQ(reversed.GetCenter(), arc.GetCenter());
    EXPECT_EQ(reversed.GetBox(), arc.GetBox());
}

TEST_P(ArcLawsTest, HalvesMeetInTheMiddleAndKeepTheCircle) {
    const Arc arc = GetParam().m_Arc;
    const Arc first = arc.GetSubArc(0, 0.5);
    const Arc second = arc.GetSubArc(0.5, 1);
    EXPECT_EQ(first.GetStart(), arc.GetStart());
    EXPECT_EQ(first.GetEnd(), second.GetStart());
    EXPECT_EQ(second.GetEnd(), arc.GetEnd());
    EXPECT_NEAR((first.GetSweep() + second.GetSweep()) / arc.GetSweep(), 1, 1e-6);
}

TEST_P(ArcLawsTest, MovedArcHasMovedPoints) {
    const Arc arc = GetParam().m_Arc;
    // A chord of a few units in the last place loses its direction when its ends are rounded.
    if (!arc.IsCircle() && arc.GetStartEndSegment().IsPoint(arc.GetEpsilon()))
        return;
    const Rotation rotation(Point(7, -3), Angle(k_Degrees, 37));
    const Transformation mirror(Azimuth(k_Degrees, 20));
    const double slack = 1e-11 * (100 + double(arc.GetBox().GetMagnitude()) + double(arc.GetRadius()));
    for (const double t : {0.0, 0.2, 0.5, 0.9, 1.0}) {
        const Point point = arc.GetPointAt(t);
        EXPECT_TRUE(arc.GetRotated(rotation).GetPointAt(t).IsEqualTo(point.GetRotated(rotation), slack));
        EXPECT_TRUE(arc.GetTransformed(mirror).GetPointAt(t).IsEqualTo(point.GetTransformed(mirror), slack));
    }
}

} // namespace
