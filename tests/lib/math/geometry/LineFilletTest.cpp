#include "lib/math/geometry/Arc.h"
#include "lib/math/geometry/Line.h"

#include "tests/AssertionRecorder.h"
#include "tests/GeometryFixtures.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

namespace {

using namespace geom;
using fixtures::LineOf;

const double k_Quarter = 1 - std::sqrt(0.5); // the height of a quarter of a circle of radius 1

// Two lines that cross at (10, 0), with the four places where a circle touches both.
const Line k_Eastward = LineOf("0,0 10,0");
const Line k_Northward = LineOf("10,0 10,10");

TEST(LineTest, FilletRoundsTheCornerOnTheGivenSides) {
    EXPECT_EQ(k_Eastward.GetFilletArc(false, k_Northward, false, 1, false), Arc({9, 0}, {10, 1}, -k_Quarter));
    EXPECT_EQ(k_Eastward.GetFilletArc(false, k_Northward, true, 1, false), Arc({11, 0}, {10, 1}, k_Quarter));
    EXPECT_EQ(k_Eastward.GetFilletArc(true, k_Northward, false, 1, false), Arc({9, 0}, {10, -1}, k_Quarter));
    EXPECT_EQ(k_Eastward.GetFilletArc(true, k_Northward, true, 1, false), Arc({11, 0}, {10, -1}, -k_Quarter));
}

TEST(LineTest, FilletBulgesTowardTheCorner) {
    const Arc fillet = k_Eastward.GetFilletArc(false, k_Northward, false, 1, false);
    EXPECT_NEAR(double(fillet.GetMidPoint().GetX()), 9 + std::sqrt(0.5), 1e-15);
    EXPECT_NEAR(double(fillet.GetMidPoint().GetY()), 1 - std::sqrt(0.5), 1e-15);
}

TEST(LineTest, FilletInTheSameSenseGoesTheLongWay) {
    const Arc fillet = k_Eastward.GetFilletArc(false, k_Northward, false, 1, true);
    EXPECT_EQ(fillet, Arc({9, 0}, {10, 1}, 1 + std::sqrt(0.5)));
    EXPECT_TRUE(fillet.IsBig());
}

TEST(LineTest, FilletOfNoRadiusIsReported) {
    const AssertionRecorder recorder;
    const Arc fillet = k_Eastward.GetFilletArc(false, k_Northward, false, 0, false);
    EXPECT_TRUE(fillet.IsPoint(0));
    EXPECT_THAT(recorder.Take(), testing::Contains("ccw == k_CCW || ccw == k_CW, Line"));
}

} // namespace
