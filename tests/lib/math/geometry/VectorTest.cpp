#include "lib/math/geometry/Vector.h"

#include "tests/AssertionRecorder.h"
#include "tests/GeometryFixtures.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace {

using namespace geom;
using fixtures::k_NaN;
using Texts = std::vector<std::string>;

const std::string k_Never = "!\"This should never happen!\", Vector";

TEST(VectorTest, IsTwoLengths) {
    static_assert(sizeof(Vector) == 2 * sizeof(double) && std::is_trivially_copyable_v<Vector>);
    static_assert(k_NullVector == Vector(0, 0) && k_UnitVectorX == Vector(1, 0) && k_UnitVectorY == Vector(0, 1));
    EXPECT_EQ(Vector(), k_NullVector);
    EXPECT_EQ(Vector(3, 4).GetX(), Unit(3));
    EXPECT_EQ(Vector(3, 4).GetY(), Unit(4));
}

TEST(VectorTest, LeadsFromOnePointToAnother) {
    EXPECT_EQ(Vector(Point(1, 2), Point(4, 6)), Vector(3, 4));
    EXPECT_EQ(Vector(Point(1, 2)), Vector(1, 2));
}

TEST(VectorTest, FromAnAzimuthIsExactAlongTheAxes) {
    EXPECT_EQ(Vector(k_North, 5), Vector(0, 5));
    EXPECT_EQ(Vector(k_West, 5), Vector(-5, 0));
    EXPECT_DOUBLE_EQ(double(Vector(k_Azimuth_30, 4).GetY()), 2);
}

TEST(VectorTest, OnlyExactZerosAreNull) {
    EXPECT_TRUE(Vector(0, -0.0).IsNull());
    EXPECT_FALSE(Vector(0, DBL_TRUE_MIN).IsNull());
    EXPECT_FALSE(Vector(DBL_TRUE_MIN, 0).IsNull());
}

TEST(VectorTest, NegationSumAndMultiple) {
    EXPECT_EQ(-Vector(1, -2), Vector(-1, 2));
    EXPECT_EQ(Vector(1, 2) + Vector(3, 5), Vector(4, 7));
    EXPECT_EQ(Vector(1, 2) * 3, Vector(3, 6));
    EXPECT_EQ(3 * Vector(1, 2), Vector(3, 6));
    EXPECT_FALSE(Vector(1, 2) == Vector(1, fixtures::Up(2)));
}

TEST(VectorTest, LengthAlongAnAxisTakesNoRoot) {
    EXPECT_EQ(Vector(0, 5).GetAbs(), Unit(5));
    EXPECT_EQ(Vector(-5, 0).GetAbs(), Unit(5));
    // The square of 1e-200 is 0, and that of 1e200 no finite number.
    EXPECT_EQ(Vector(0, -1e-200).GetAbs(), Unit(1e-200));
    EXPECT_EQ(Vector(1e200, 0).GetAbs(), Unit(1e200));
}

TEST(VectorTest, LengthAndItsSquare) {
    EXPECT_EQ(Vector(3, 4).GetLengthSquare(), Area(25));
    EXPECT_EQ(Vector(3, 4).GetAbs(), Unit(5));
    EXPECT_EQ(k_NullVector.GetAbs(), Unit(0));
}

TEST(VectorTest, ScalarProductTellsTheSameWay) {
    EXPECT_EQ(Vector(2, 3).GetScalarProductWith(Vector(5, 7)), Area(31));
    EXPECT_TRUE(Vector(1, 0).IsSameWayAs(Vector(1, 100)));
    EXPECT_FALSE(Vector(1, 0).IsSameWayAs(Vector(0, 1)));
    EXPECT_FALSE(Vector(1, 0).IsSameWayAs(Vector(-1, 100)));
    EXPECT_FALSE(k_NullVector.IsSameWayAs(Vector(1, 1)));
}

TEST(VectorTest, VectorProductIsPositiveCounterClockwise) {
    EXPECT_EQ(Vector(2, 3).GetVectorProductWith(Vector(5, 7)), Area(14 - 15));
    EXPECT_EQ(k_UnitVectorX.GetVectorProductWith(k_UnitVectorY), Area(1));
}

TEST(VectorTest, WithLengthScales) { EXPECT_EQ(Vector(3, 4).GetWithLength(10), Vector(6, 8)); }

TEST(VectorTest, WithLengthAlongAnAxisIsExact) {
    EXPECT_EQ(Vector(0, -3e-300).GetWithLength(0.1), Vector(0, -0.1));
    EXPECT_EQ(Vector(7, 0).GetWithLength(0.1), Vector(0.1, 0));
    EXPECT_EQ(Vector(-7, 0).GetWithLength(0.1), Vector(-0.1, 0));
    EXPECT_EQ(Vector(7, 0).GetWithLength(-2), Vector(-2, 0));
}

TEST(VectorTest, WithLengthOfANullVectorIsReportedAndNull) {
    const AssertionRecorder recorder;
    EXPECT_TRUE(k_NullVector.GetWithLength(5).IsNull());
    EXPECT_EQ(recorder.Take(), Texts{"*this != k_NullVector, Vector"});
}

TEST(VectorTest, NormalIsTurnedCounterClockwise) {
    EXPECT_EQ(Vector(3, 4).GetNormal(10), Vector(-8, 6));
    EXPECT_EQ(Vector(2, 0).GetNormal(1), Vector(0, 1));
    EXPECT_EQ(Vector(2, 0).GetNormal(-1), Vector(0, -1));
}

TEST(VectorTest, RotationByRightAnglesIsExact) {
    EXPECT_EQ(Vector(3, 4).GetRotated(k_Angle_90), Vector(-4, 3));
    EXPECT_EQ(Vector(3, 4).GetRotatedBack(k_Angle_90), Vector(4, -3));
    EXPECT_EQ(Vector(3, 4).GetRotated(k_Angle_180), Vector(-3, -4));
    const Vector turned = Vector(2, 0).GetRotated(k_Angle_60);
    EXPECT_DOUBLE_EQ(double(turned.GetX()), 1);
    EXPECT_DOUBLE_EQ(double(turned.GetY()), std::sqrt(3));
}

TEST(VectorTest, AzimuthAlongTheAxesIsExact) {
    EXPECT_EQ(Vector(1, 0).GetAzimuth(), k_Azimuth_0);
    EXPECT_EQ(Vector(0, -1).GetAzimuth(), k_Azimuth_270);
    EXPECT_EQ(Vector(0, 2).GetAzimuth(), k_Azimuth_90);
    EXPECT_EQ(Vector(-2, 0).GetAzimuth(), k_Azimuth_180);
}

TEST(VectorTest, OtherAzimuthsAreInTheTurn) {
    EXPECT_EQ(Vector(2, 2).GetAzimuth(), k_Azimuth_45);
    EXPECT_DOUBLE_EQ(Vector(1, -1).GetAzimuth().GetAngle().GetValue(k_Degrees), 315);
}

TEST(VectorTest, AzimuthOfANullVectorIsReportedAndZero) {
    const AssertionRecorder recorder;
    EXPECT_EQ(k_NullVector.GetAzimuth(), k_Azimuth_0);
    EXPECT_EQ(recorder.Take(), (Texts{"!IsNull(), Vector", k_Never}));
}

TEST(VectorTest, AzimuthOfWhatIsNoNumberIsReportedAndZero) {
    const AssertionRecorder recorder;
    EXPECT_EQ(Vector(0, k_NaN).GetAzimuth(), k_Azimuth_0);
    EXPECT_EQ(recorder.Take(), Texts{k_Never});
    EXPECT_EQ(Vector(k_NaN, 0).GetAzimuth(), k_Azimuth_0);
    EXPECT_EQ(recorder.Take(), Texts{k_Never});
}

TEST(VectorTest, UncheckedAzimuthReportsNothing) {
    const AssertionRecorder recorder;
    EXPECT_EQ(Vector(0, 2).GetAzimuthUnchecked(), k_Azimuth_90);
    EXPECT_EQ(Vector(0, -2).GetAzimuthUnchecked(), k_Azimuth_270);
    EXPECT_EQ(k_NullVector.GetAzimuthUnchecked(), k_Azimuth_270);
    EXPECT_EQ(Vector(-2, 0).GetAzimuthUnchecked(), k_Azimuth_180);
    EXPECT_EQ(Vector(2, 0).GetAzimuthUnchecked(), k_Azimuth_0);
    EXPECT_EQ(Vector(k_NaN, 0).GetAzimuthUnchecked(), k_Azimuth_0);
    EXPECT_EQ(Vector(2, 2).GetAzimuthUnchecked(), k_Azimuth_45);
    EXPECT_TRUE(recorder.Take().empty());
}

struct QuadrantCase {
    Vector m_Vector;
    int m_Quadrant;
};

TEST(VectorTest, QuadrantsHoldTheHalfAxisAtTheirStart) {
    // clang-format off
    const QuadrantCase rows[] = {
        {{1, 0}, 1}, {{1, 1}, 1}, {{0, 1}, 2}, {{-1, 1}, 2}, {{-1, 0}, 3}, {{-1, -1}, 3}, {{0, -1}, 4}, {{1, -1}, 4},
        {{0, 0}, 1},
    };
    // clang-format on
    for (const QuadrantCase& row : rows)
        EXPECT_EQ(row.m_Vector.GetQuadrant(), row.m_Quadrant) << testing::PrintToString(row.m_Vector);
}

TEST(VectorTest, SlopesAreZeroWhereThereIsNone) {
    EXPECT_EQ(Vector(2, 3).GetSlope(), 1.5);
    EXPECT_EQ(Vector(0, 3).GetSlope(), 0);
    EXPECT_EQ(Vector(3, 2).GetInverseSlope(), 1.5);
    EXPECT_EQ(Vector(3, 0).GetInverseSlope(), 0);
}

} // namespace
