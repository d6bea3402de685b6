// What holds for every shape, tried with many at random.

#include "lib/math/geometry/ArcSequence.h"
#include "lib/math/geometry/CircleSlice.h"
#include "lib/math/geometry/GeomStl.h"
#include "lib/math/geometry/Line.h"
#include "lib/math/geometry/Rotation.h"
#include "lib/math/geometry/Transformation.h"
#include "tests/AssertionRecorder.h"
#include "tests/lib/math/geometry/RandomShapes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace {

using namespace geom;
using fixtures::BitsOf;
using fixtures::k_Cases;
using fixtures::RandomShapes;

/// A NaN is a NaN, whichever: the sign and the payload are the processor's.
std::uint64_t ValueOf(double value) { return std::isnan(value) ? BitsOf(fixtures::k_NaN) : BitsOf(value); }
std::vector<std::uint64_t> ValueOf(Point point) {
    return {ValueOf(double(point.GetX())), ValueOf(double(point.GetY()))};
}

std::vector<std::uint64_t> BitsOfArc(const Arc& arc) {
    return {BitsOf(double(arc.GetStart().GetX())), BitsOf(double(arc.GetStart().GetY())),
        BitsOf(double(arc.GetEnd().GetX())), BitsOf(double(arc.GetEnd().GetY())), BitsOf(double(arc.GetHeight())),
        BitsOf(arc.GetCenterAzimuth().GetAngle().GetValue(k_Radians))};
}

/// What coordinates that are reckoned from the derived circle may be off.
double GetSlack(const Arc& arc) { return 1e-12 * (double(arc.GetBox().GetMagnitude()) + double(arc.GetRadius())); }

std::vector<Arc> GetChain(RandomShapes& random, int count) {
    std::vector<Arc> chain;
    for (int i = 0; i < count; ++i)
        AppendToSequence(chain, random.GetChance(0.3) ? Arc(random.GetSegment()) : random.GetAnyCurvedArc());
    return chain;
}

Transformation GetTransformation(RandomShapes& random) {
    Transformation transformation(Angle(k_Degrees, random.GetReal(-400, 400)), random.GetPoint());
    if (random.GetChance(0.5))
        transformation *= Transformation(Azimuth(k_Degrees, random.GetReal(0, 360)));
    if (random.GetChance(0.5))
        transformation *= Transformation(Vector(random.GetReal(-50, 50), random.GetReal(-50, 50)));
    return transformation;
}

// Reversal

TEST(ReversalLaws, TwiceGivesTheSameBits) {
    RandomShapes random(301);
    for (int i = 0; i < k_Cases; ++i) {
        const Arc arc(random.GetHostilePoint(), random.GetHostilePoint(), random.GetHostile());
        ASSERT_EQ(BitsOfArc(arc.GetReversed().GetReversed()), BitsOfArc(arc));
        const Arc curved = random.GetAnyCurvedArc();
        ASSERT_EQ(BitsOfArc(curved.GetReversed().GetReversed()), BitsOfArc(curved));
    }
}

TEST(ReversalLaws, MiddleHasTheSameBitsForAnyNumbers) {
    const AssertionRecorder ignored;
    RandomShapes random(302);
    for (int i = 0; i < k_Cases; ++i) {
        const Arc arc(random.GetHostilePoint(), random.GetHostilePoint(), random.GetHostile());
        ASSERT_EQ(ValueOf(arc.GetMidPoint()), ValueOf(arc.GetReversed().GetMidPoint())) << testing::PrintToString(arc);
    }
}

TEST(ReversalLaws, CircleAndBoxAreTheSame) {
    RandomShapes random(303);
    for (int i = 0; i < k_Cases; ++i) {
        const Arc arc = random.GetAnyCurvedArc();
        const Arc reversed = arc.GetReversed();
        ASSERT_EQ(BitsOf(reversed.GetCenter()), BitsOf(arc.GetCenter())) << testing::PrintToString(arc);
        ASSERT_EQ(reversed.GetRadius(), arc.GetRadius());
        ASSERT_EQ(reversed.GetBox(), arc.GetBox());
        ASSERT_EQ(reversed.IsBig(), arc.IsBig());
    }
}

TEST(ReversalLaws, SweepAndAreasAreOpposite) {
    RandomShapes random(304);
    for (int i = 0; i < k_Cases; ++i) {
        const Arc arc = random.GetAnyCurvedArc();
        ASSERT_EQ(arc.GetReversed().GetSweep(), -arc.GetSweep());
        ASSERT_EQ(arc.GetReversed().GetSectorArea(), -arc.GetSectorArea());
        // The triangle that a slice takes off is reckoned from the start, so its rounding is another one.
        const double radius = double(arc.GetRadius());
        const double slice = double(CircleSlice(arc).GetArea());
        ASSERT_NEAR(double(CircleSlice(arc.GetReversed()).GetArea()), -slice, GetSlack(arc) * radius)
            << testing::PrintToString(arc);
    }
}

// Transformations

TEST(TransformationLaws, IdentityKeepsAllBitsOfAVector) {
    RandomShapes random(311);
    for (int i = 0; i < k_Cases; ++i) {
        const Point point = random.GetHostilePoint();
        ASSERT_EQ(BitsOf(Point(Transformation().ApplyToVector(Vector(point)))), BitsOf(point));
    }
}

TEST(TransformationLaws, RightAnglesPermuteAndNegate) {
    RandomShapes random(312);
    for (int i = 0; i < k_Cases; ++i) {
        const Point point(random.GetExtreme(), random.GetExtreme());
        const Unit x = point.GetX();
        const Unit y = point.GetY();
        ASSERT_EQ(Transformation(k_Angle_90).ApplyToPoint(point), Point(-y, x));
        ASSERT_EQ(Transformation(k_Angle_180).ApplyToPoint(point), Point(-x, -y));
        ASSERT_EQ(Transformation(-k_Angle_90).ApplyToPoint(point), Point(y, -x));
        ASSERT_EQ(Transformation(k_Azimuth_0).ApplyToPoint(point), Point(x, -y));
        ASSERT_EQ(Transformation(k_Azimuth_90).ApplyToPoint(point), Point(-x, y));
    }
}

TEST(TransformationLaws, ReverseAndMoveCommuteToTheBit) {
    RandomShapes random(313);
    for (int i = 0; i < k_Cases; ++i) {
        const Arc arc = random.GetAnyCurvedArc();
        const Transformation transformation = GetTransformation(random);
        ASSERT_EQ(BitsOfArc(arc.GetReversed().GetTransformed(transformation)),
            BitsOfArc(arc.GetTransformed(transformation).GetReversed()));
    }
}

TEST(TransformationLaws, ChainStaysAChain) {
    RandomShapes random(314);
    for (int i = 0; i < k_Cases; ++i) {
        const Transformation transformation = GetTransformation(random);
        const Rotation rotation(random.GetPoint(), Angle(k_Degrees, random.GetReal(-400, 400)));
        std::vector<Arc> moved;
        std::vector<Arc> rotated;
        for (const Arc& arc : GetChain(random, 4)) {
            moved.push_back(arc.GetTransformed(transformation));
            rotated.push_back(arc.GetRotated(rotation));
        }
        ASSERT_TRUE(IsPolyArcSequence_G(moved, k_Open));
        ASSERT_TRUE(IsPolyArcSequence_G(rotated, k_Open));
    }
}

TEST(TransformationLaws, CompositionMovesAsOneAfterTheOther) {
    RandomShapes random(315);
    for (int i = 0; i < k_Cases; ++i) {
        const Transformation first = GetTransformation(random);
        const Transformation second = GetTransformation(random);
        const Point point = random.GetPoint();
        const Point moved = second.ApplyToPoint(first.ApplyToPoint(point));
        ASSERT_TRUE(first.GetComposed(second).ApplyToPoint(point).IsEqualTo(moved, 1e-11));
    }
}

TEST(TransformationLaws, DistancesAndHeightsStay) {
    RandomShapes random(316);
    for (int i = 0; i < k_Cases; ++i) {
        const Arc arc = random.GetAnyCurvedArc();
        const Arc moved = arc.GetTransformed(GetTransformation(random));
        ASSERT_EQ(moved.GetHeight().GetAbs(), arc.GetHeight().GetAbs());
        ASSERT_NEAR(
            double(moved.GetStartEndSegment().GetLength()), double(arc.GetStartEndSegment().GetLength()), 1e-11);
    }
}

TEST(TransformationLaws, MirroringTwiceIsNoMove) {
    RandomShapes random(317);
    for (int i = 0; i < k_Cases; ++i) {
        const Transformation mirror(Line(random.GetSegment()));
        const Point point = random.GetPoint();
        ASSERT_TRUE(mirror.ApplyToPoint(mirror.ApplyToPoint(point)).IsEqualTo(point, 1e-11));
    }
}

// Boxes of arcs

constexpr int k_Samples = 64;

TEST(BoxLaws, HoldsEveryPointOfTheWay) {
    RandomShapes random(321);
    for (int i = 0; i < k_Cases; ++i) {
        const Arc arc = random.GetAnyCurvedArc();
        const Box box = arc.GetBox();
        for (int j = 0; j <= k_Samples; ++j)
            ASSERT_TRUE(box.IntersectsPoint(arc.GetPointAt(double(j) / k_Samples), GetSlack(arc)))
                << testing::PrintToString(arc) << " at " << j;
    }
}

TEST(BoxLaws, HoldsTheEndsWithoutSlack) {
    RandomShapes random(322);
    for (int i = 0; i < k_Cases; ++i) {
        const Arc arc = random.GetAnyCurvedArc();
        if (arc.IsCircle())
            continue; // its ends are rounded to the circle that the box is made of
        ASSERT_TRUE(arc.GetBox().IntersectsPoint(arc.GetStart(), 0));
        ASSERT_TRUE(arc.GetBox().IntersectsPoint(arc.GetEnd(), 0));
    }
}

TEST(BoxLaws, TouchesTheWayOnAllFourSides) {
    RandomShapes random(323);
    for (int i = 0; i < k_Cases; ++i) {
        const Arc arc = random.GetAnyCurvedArc();
        Box walked;
        for (int j = 0; j <= k_Samples; ++j)
            walked.Extend(arc.GetPointAt(double(j) / k_Samples));
        // Between two samples the way leaves their box by the height of that piece at most.
        const double halfStep = arc.GetSweep().GetAbs().GetValue(k_Radians) / k_Samples / 2;
        const double slack = double(arc.GetRadius()) * (1 - std::cos(halfStep)) + GetSlack(arc);
        ASSERT_TRUE(arc.GetBox().IsEqualTo(walked, slack)) << testing::PrintToString(arc);
    }
}

TEST(BoxLaws, LooseBoxHoldsTheBox) {
    RandomShapes random(324);
    for (int i = 0; i < k_Cases; ++i) {
        const Arc arc = random.GetAnyCurvedArc();
        const Box loose = arc.GetLooseBox().GetExpanded(GetSlack(arc));
        ASSERT_EQ(loose.GetUnion(arc.GetBox()), loose) << testing::PrintToString(arc);
    }
}

// Areas

double GetSampledArea(const Arc& arc, int count) {
    double area = 0;
    for (int i = 0; i < count; ++i) {
        const Vector from(arc.GetStart(), arc.GetPointAt(double(i) / count));
        area += double(from.GetVectorProductWith(Vector(arc.GetStart(), arc.GetPointAt(double(i + 1) / count)))) / 2;
    }
    return area;
}

TEST(AreaLaws, SliceIsWhatThinTrianglesSumUpTo) {
    RandomShapes random(331);
    for (int i = 0; i < k_Cases; ++i) {
        const Arc arc = random.GetAnyCurvedArc();
        // Twice as many triangles leave a quarter of the error. What remains without it is of the fourth order.
        constexpr int k_Count = 32;
        const double area = (4 * GetSampledArea(arc, 2 * k_Count) - GetSampledArea(arc, k_Count)) / 3;
        const double radius = double(arc.GetRadius());
        const double sweep = arc.GetSweep().GetAbs().GetValue(k_Radians);
        const double remainder = radius * radius * std::pow(sweep, 5) / std::pow(k_Count, 4) / 480;
        const double chord = double(arc.GetStartEndSegment().GetLength());
        const double slack = remainder + GetSlack(arc) * (chord + radius * std::min(sweep, 1.0));
        ASSERT_NEAR(double(CircleSlice(arc).GetArea()), area, slack) << testing::PrintToString(arc);
    }
}

TEST(AreaLaws, SliceAndThatOfTheComplementMakeTheDisc) {
    RandomShapes random(332);
    for (int i = 0; i < k_Cases; ++i) {
        const Arc arc = random.GetArc();
        const double disc = k_Pi * double(arc.GetRadius()) * double(arc.GetRadius());
        const Area both = CircleSlice(arc).GetArea() + CircleSlice(arc.GetComplement()).GetArea();
        // The rest of a flat arc is nearly a full circle, whose sweep has half of the digits.
        ASSERT_NEAR(double(both.GetAbs()), disc, disc * 1e-7) << testing::PrintToString(arc);
    }
}

// Parts of arcs

TEST(SubArcLaws, PartsShareTheirEndToTheBit) {
    RandomShapes random(341);
    for (int i = 0; i < k_Cases; ++i) {
        const Arc arc = random.GetAnyCurvedArc();
        const double t = random.GetReal(0.01, 0.99);
        const Arc first = arc.GetSubArc(0, t);
        const Arc second = arc.GetSubArc(t, 1);
        ASSERT_EQ(BitsOf(first.GetStart()), BitsOf(arc.GetStart()));
        ASSERT_EQ(BitsOf(first.GetEnd()), BitsOf(second.GetStart()));
        ASSERT_EQ(BitsOf(second.GetEnd()), BitsOf(arc.GetEnd()));
    }
}

TEST(SubArcLaws, PartKeepsTheWay) {
    RandomShapes random(342);
    for (int i = 0; i < k_Cases; ++i) {
        const Arc arc = random.GetAnyCurvedArc();
        const double t1 = random.GetReal(0, 1);
        const double t2 = random.GetReal(0, 1);
        const Arc part = arc.GetSubArc(t1, t2);
        const double sweep = (t2 - t1) * arc.GetSweep().GetValue(k_Radians);
        // Where the part is as good as straight its height is lost in the rounding of the radius.
        if (std::abs(sweep) < 1e-3)
            continue;
        const Point middle = arc.GetPointAt((t1 + t2) / 2);
        // A part of half a circle has its centre on its chord: half of the digits are lost there.
        ASSERT_TRUE(part.GetMidPoint().IsEqualTo(middle, 1e-6 * arc.GetRadius()))
            << testing::PrintToString(arc) << " " << t1 << " " << t2;
        ASSERT_EQ(part.IsCCW(), sweep > 0);
    }
}

TEST(SubArcLaws, ParameterIsTheInverseOfPointAt) {
    RandomShapes random(343);
    for (int i = 0; i < k_Cases; ++i) {
        const Arc arc = random.GetAnyCurvedArc();
        const double t = random.GetReal(0.01, 0.99);
        const double length = arc.GetSweep().GetAbs().GetValue(k_Radians) * double(arc.GetRadius());
        ASSERT_NEAR(arc.GetParameter(arc.GetPointAt(t), 0), t, 8 * GetSlack(arc) / length)
            << testing::PrintToString(arc);
    }
}

TEST(SubArcLaws, ComplementOfTheComplementIsTheArc) {
    RandomShapes random(344);
    for (int i = 0; i < k_Cases; ++i) {
        const Arc arc = random.GetArc();
        const Arc again = arc.GetComplement().GetComplement();
        ASSERT_EQ(again.GetStartEndSegment(), arc.GetStartEndSegment());
        ASSERT_DOUBLE_EQ(double(again.GetHeight()), double(arc.GetHeight()));
    }
}

TEST(SubArcLaws, ComplementLiesOnTheSameCircle) {
    RandomShapes random(345);
    for (int i = 0; i < k_Cases; ++i) {
        const Arc arc = random.GetArc();
        const Circumference rest = arc.GetComplement().GetCircumference();
        ASSERT_TRUE(rest.IsEqualTo(arc.GetCircumference(), 2 * GetSlack(arc))) << testing::PrintToString(arc);
    }
}

TEST(SubArcLaws, ArcThroughThreePointsGoesThroughTheMiddleOne) {
    RandomShapes random(346);
    for (int i = 0; i < k_Cases; ++i) {
        const Point p1 = random.GetPoint();
        const Point p2 = random.GetPoint();
        const Point p3 = random.GetPoint();
        const Arc arc(p1, p2, p3);
        // The flatter the triangle, the farther away the centre.
        if (double(arc.GetRadius()) > 1e4 || double(arc.GetStartEndSegment().GetLength()) < 1)
            continue;
        ASSERT_TRUE(arc.GetCircumference().Contains(p2, 1e-4)) << testing::PrintToString(arc);
        ASSERT_TRUE(arc.IsInSector(p2, 1e-4)) << testing::PrintToString(arc);
    }
}

} // namespace
