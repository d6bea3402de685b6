#include "lib/math/geometry/CircleSlice.h"

#include "tests/GeometryFixtures.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using namespace geom;
using fixtures::ArcOf;

double AreaOf(const Arc& arc) { return double(CircleSlice(arc).GetArea()); }

TEST(CircleSliceTest, HalfDiscIsPositiveCounterClockwise) {
    EXPECT_DOUBLE_EQ(AreaOf(ArcOf("0,0 2,0 h-1")), k_Pi / 2);
    EXPECT_DOUBLE_EQ(AreaOf(ArcOf("0,0 2,0 h1")), -k_Pi / 2);
}

TEST(CircleSliceTest, FullCircleIsTheDisc) {
    EXPECT_DOUBLE_EQ(AreaOf(ArcOf("3,0 3,0 h-6 a180")), 9 * k_Pi);
    EXPECT_DOUBLE_EQ(AreaOf(ArcOf("3,0 3,0 h6 a180")), -9 * k_Pi);
}

TEST(CircleSliceTest, QuarterIsTheSectorLessTheTriangle) {
    EXPECT_NEAR(AreaOf(Arc({1, 0}, {0, 1}, -(1 - std::sqrt(0.5)))), k_Pi / 4 - 0.5, 1e-15);
}

TEST(CircleSliceTest, ThreeQuartersAreTheSectorAndTheTriangle) {
    EXPECT_NEAR(AreaOf(Arc({1, 0}, {0, -1}, -(1 + std::sqrt(0.5)))), k_Pi * 3 / 4 + 0.5, 1e-14);
}

TEST(CircleSliceTest, NearlyStraightArcIsATriangle) {
    // The epsilon of a shape of size 10 is 2.2e-12. Base 10, height 1e-12, to the left of the way: clockwise.
    EXPECT_DOUBLE_EQ(AreaOf(Arc({0, 0}, {10, 0}, 1e-12)), -5e-12);
    EXPECT_DOUBLE_EQ(AreaOf(Arc({0, 0}, {10, 0}, -1e-12)), 5e-12);
}

TEST(CircleSliceTest, FlatArcIsTwoThirdsOfItsBox) {
    // A flat arc is a parabola but for terms of (2h / c)^2.
    EXPECT_NEAR(AreaOf(Arc({0, 0}, {10, 0}, -1e-3)), 10 * 1e-3 * 2 / 3, 1e-2 * 1e-6);
}

TEST(CircleSliceTest, CanonicalArcsAndTheirReversesAreOpposite) {
    for (const fixtures::NamedArc& named : fixtures::CanonicalArcs()) {
        // Where an arc is nearly straight, but not within its epsilon, the difference of sector and triangle is
        // mostly rounding.
        if (named.m_Arc.IsSegment(1e-6))
            continue;
        const double area = AreaOf(named.m_Arc);
        EXPECT_EQ(area<0, named.m_Arc.GetHeight()> k_Unit_0) << named.m_Name;
        EXPECT_NEAR(AreaOf(named.m_Arc.GetReversed()), -area, std::abs(area) * 1e-9) << named.m_Name;
    }
}

} // namespace
