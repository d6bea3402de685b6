#include "lib/math/geometry/Point.h"

#include "lib/math/geometry/Rotation.h"
#include "lib/math/geometry/Transformation.h"
#include "tests/AssertionRecorder.h"
#include "tests/GeometryFixtures.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace {

using namespace geom;
using Texts = std::vector<std::string>;

TEST(PointTest, IsTwoLengths) {
    static_assert(sizeof(Point) == 2 * sizeof(double) && std::is_trivially_copyable_v<Point>);
    static_assert(k_Origin == Point(0, 0) && Point() == k_Origin);
    EXPECT_EQ(Point(Vector(3, 4)), Point(3, 4));
    EXPECT_EQ(PointResult().m_Success, 0U);
    EXPECT_EQ(PointResult().m_Point, k_Origin);
}

TEST(PointTest, EqualityIsExact) {
    EXPECT_TRUE(Point(1, 2) == Point(1, 2));
    EXPECT_TRUE(Point(1, 2) != Point(fixtures::Up(1), 2));
    EXPECT_TRUE(Point(1, 2) != Point(1, fixtures::Down(2)));
}

TEST(PointTest, EqualWithinAnAccuracyIsASquareTest) {
    EXPECT_TRUE(Point(0, 0).IsEqualTo({1, 1}, 1));
    EXPECT_FALSE(Point(0, 0).IsEqualTo({fixtures::Up(1), 0}, 1));
    EXPECT_FALSE(Point(0, 0).IsEqualTo({0, -fixtures::Up(1)}, 1));
}

TEST(PointTest, EqualWithinZeroIsExact) {
    EXPECT_TRUE(Point(1, 2).IsEqualTo({1, 2}, 0));
    EXPECT_FALSE(Point(1, 2).IsEqualTo({1, fixtures::Up(2)}, 0));
}

TEST(PointTest, DifferenceLeadsFromTheOtherPoint) {
    EXPECT_EQ(Point(4, 6) - Point(1, 2), Vector(3, 4));
    EXPECT_EQ(Point(1, 2) + Vector(3, 4), Point(4, 6));
    EXPECT_EQ(Point(4, 6) - Vector(3, 4), Point(1, 2));
}

TEST(PointTest, DistanceSquare) { EXPECT_EQ(Point(1, 2).GetDistanceSquare({4, 6}), Area(25)); }

TEST(PointTest, DistanceIsCapped) {
    EXPECT_EQ(Point(1, 2).GetDistanceUpTo({4, 6}, 7), Unit(5));
    EXPECT_EQ(Point(1, 2).GetDistanceUpTo({4, 6}, 3), Unit(3));
    EXPECT_EQ(Point(0, 0).GetDistanceUpTo({0, 1e-200}, 1), Unit(1e-200));
}

TEST(PointTest, ANegativeCapIsReportedAndReturned) {
    const AssertionRecorder recorder;
    EXPECT_EQ(Point(1, 2).GetDistanceUpTo({4, 6}, -1), Unit(-1));
    EXPECT_EQ(recorder.Take(), Texts{"cur_distance >= k_NullUnit, Point"});
}

TEST(PointTest, MidPointAndCentroid) {
    EXPECT_EQ(Point(1, 2).GetMidPoint({4, 8}), Point(2.5, 5));
    EXPECT_EQ(Point(0, 0).GetCentroid({3, 0}, {0, 9}), Point(3 * 0.3333333333333333, 9 * 0.3333333333333333));
}

TEST(PointTest, MidPointOfNegativeZerosIsZero) {
    // The sum begins with the zero vector, and 0.0 + -0.0 is 0.0.
    EXPECT_FALSE(std::signbit(double(Point(-0.0, 0).GetMidPoint({-0.0, 0}).GetX())));
}

TEST(PointTest, MovesByTransformationAndRotation) {
    EXPECT_EQ(Point(1, 2).GetTransformed(Transformation(Vector(10, 20))), Point(11, 22));
    EXPECT_EQ(Point(3, 1).GetRotated(Rotation({1, 1}, k_Angle_90)), Point(1, 3));
}

} // namespace
