#include "lib/math/geometry/Angle.h"

#include "tests/AssertionRecorder.h"
#include "tests/GeometryFixtures.h"

#include <gtest/gtest.h>

namespace {

using namespace geom;
using Texts = std::vector<std::string>;

constexpr AngleMeasure k_NoMeasure = AngleMeasure(4);
const Texts k_UnknownMeasure = {"!\"This should never happen!\", Angle"};

struct MeasureCase {
    const char* m_Name;
    AngleMeasure m_Measure;
    double m_OneInRadians;
    double m_RadianInIt;
};

// clang-format off
const MeasureCase k_Measures[] = {
    {"degrees",           k_Degrees,         0.017453292519943295, 57.29577951308232},
    {"radians",           k_Radians,         1,                    1},
    {"right angles",      k_RightAngles,     1.5707963267948966,   0.6366197723675814},
    {"half right angles", k_HalfRightAngles, 0.7853981633974483,   1.2732395447351628},
};
// clang-format on

TEST(AngleTest, EveryMeasureHasItsFactors) {
    for (const MeasureCase& row : k_Measures) {
        SCOPED_TRACE(row.m_Name);
        EXPECT_EQ(Angle(row.m_Measure, 1).GetValue(k_Radians), row.m_OneInRadians);
        EXPECT_EQ(Angle(row.m_Measure, -3).GetValue(k_Radians), -3 * row.m_OneInRadians);
        EXPECT_EQ(Angle(k_Radians, 1).GetValue(row.m_Measure), row.m_RadianInIt);
    }
}

TEST(AngleTest, AnUnknownMeasureIsReportedAndGivesZeroBothWays) {
    const AssertionRecorder recorder;
    EXPECT_EQ(Angle(k_NoMeasure, 5), k_Angle_0);
    EXPECT_EQ(recorder.Take(), k_UnknownMeasure);
    EXPECT_EQ(k_Angle_90.GetValue(k_NoMeasure), 0);
    EXPECT_EQ(recorder.Take(), k_UnknownMeasure);
}

TEST(AngleTest, ConstantsAreReadyBeforeAnyCode) {
    static_assert(sizeof(Angle) == sizeof(double) && Angle() == k_Angle_0);
    static_assert(k_Angle_22_5 == Angle(k_Degrees, 22.5) && k_Angle_30 == Angle(k_Degrees, 30));
    static_assert(k_Angle_45 == Angle(k_Degrees, 45) && k_Angle_60 == Angle(k_Degrees, 60));
    static_assert(k_Angle_90 == Angle(k_Degrees, 90) && k_Angle_135 == Angle(k_Degrees, 135));
    static_assert(k_Angle_180 == Angle(k_Degrees, 180) && k_Angle_270 == Angle(k_Degrees, 270));
    static_assert(k_Angle_360 == Angle(k_Degrees, 360) && k_Angle_1Radian == Angle(k_Radians, 1));
    static_assert(k_SmallAngle == Angle(k_Radians, 0.1));
    EXPECT_EQ(k_AngleEpsilon.GetValue(k_Radians), 9.999999999999999e-51);
    EXPECT_EQ(k_Angle_180.GetValue(k_Radians), k_Pi);
    EXPECT_EQ(k_Angle_360.GetValue(k_Radians), k_TwoPi);
}

TEST(AngleTest, CosineAndSineOfRightAnglesAreExact) {
    EXPECT_EQ(Angle(k_Degrees, 90).Cos(), 0);
    EXPECT_EQ(Angle(k_Degrees, -270).Sin(), 1);
}

struct ExactCase {
    double m_Degrees;
    double m_Cos;
    double m_Sin;
};

TEST(AngleTest, ExactCasesCoverAllRightAnglesButMinusAFullTurn) {
    // clang-format off
    const ExactCase rows[] = {
        {0, 1, 0}, {360, 1, 0}, {90, 0, 1}, {-270, 0, 1}, {180, -1, 0}, {-180, -1, 0}, {270, 0, -1}, {-90, 0, -1},
    };
    // clang-format on
    for (const ExactCase& row : rows) {
        SCOPED_TRACE(row.m_Degrees);
        EXPECT_EQ(Angle(k_Degrees, row.m_Degrees).Cos(), row.m_Cos);
        EXPECT_EQ(Angle(k_Degrees, row.m_Degrees).Sin(), row.m_Sin);
    }
    EXPECT_EQ(Angle(k_Degrees, -360).Sin(), std::sin(-k_TwoPi));
    EXPECT_NE(Angle(k_Degrees, -360).Sin(), 0);
    EXPECT_EQ(Angle(k_Degrees, -360).Cos(), std::cos(-k_TwoPi));
}

TEST(AngleTest, OneUnitInTheLastPlaceOffIsNoExactCase) {
    EXPECT_NE(Angle(k_Radians, fixtures::Up(k_Pi / 2)).Cos(), 0);
    EXPECT_NE(Angle(k_Radians, fixtures::Up(k_Pi)).Sin(), 0);
}

TEST(AngleTest, OtherAnglesGoToTheLibrary) {
    EXPECT_DOUBLE_EQ(k_Angle_60.Cos(), 0.5);
    EXPECT_DOUBLE_EQ(k_Angle_30.Sin(), 0.5);
    EXPECT_DOUBLE_EQ(k_Angle_45.Sin(), std::sqrt(0.5));
}

TEST(AngleTest, NormalisedLiesInTheTurnThatBeginsAtTheBase) {
    EXPECT_EQ((-k_Angle_90).GetNormalised(k_Angle_0), k_Angle_270);
    EXPECT_EQ(k_Angle_360.GetNormalised(k_Angle_0), k_Angle_0);
    EXPECT_EQ(k_Angle_90.GetNormalised(k_Angle_0), k_Angle_90);
    EXPECT_DOUBLE_EQ(k_Angle_270.GetNormalised(-k_Angle_180).GetValue(k_Degrees), -90);
    EXPECT_DOUBLE_EQ(Angle(k_Degrees, 750).GetNormalised(k_Angle_360).GetValue(k_Degrees), 390);
    EXPECT_DOUBLE_EQ(Angle(k_Degrees, 30).GetNormalised(k_Angle_90).GetValue(k_Degrees), 390);
}

TEST(AngleTest, ArithmeticIsThatOfTheRadians) {
    const Angle two(k_Radians, 2);
    EXPECT_EQ(two + k_Angle_1Radian, Angle(k_Radians, 3));
    EXPECT_EQ(k_Angle_1Radian - two, Angle(k_Radians, -1));
    EXPECT_EQ(-two, Angle(k_Radians, -2));
    EXPECT_EQ(two * 1.5, Angle(k_Radians, 3));
    EXPECT_EQ(1.5 * two, Angle(k_Radians, 3));
    EXPECT_EQ(k_Angle_1Radian / two, 0.5);
    EXPECT_EQ((-two).GetAbs(), two);
    EXPECT_EQ(two.GetAbs(), two);
}

TEST(AngleTest, ComparisonsHaveNoTolerance) {
    const Angle above(k_Radians, fixtures::Up(1));
    EXPECT_TRUE(above > k_Angle_1Radian);
    EXPECT_TRUE(k_Angle_1Radian < above);
    EXPECT_FALSE(above <= k_Angle_1Radian);
    EXPECT_FALSE(k_Angle_1Radian >= above);
    EXPECT_TRUE(above != k_Angle_1Radian);
    EXPECT_TRUE(k_Angle_1Radian <= k_Angle_1Radian);
    EXPECT_FALSE(k_Angle_1Radian < k_Angle_1Radian);
    EXPECT_FALSE(k_Angle_1Radian > k_Angle_1Radian);
    EXPECT_TRUE(Angle(k_Radians, fixtures::k_NaN) <= above);
    EXPECT_TRUE(Angle(k_Radians, fixtures::k_NaN) >= above);
}

TEST(AngleTest, ADivisionByAZeroAngleIsReportedAndCarriedOut) {
    const AssertionRecorder recorder;
    EXPECT_EQ(k_Angle_90 / k_Angle_0, std::numeric_limits<double>::infinity());
    EXPECT_EQ(recorder.Take(), Texts{"b.m_Value, Angle.h"});
}

} // namespace
