#include "lib/math/geometry/Azimuth.h"

#include "tests/AssertionRecorder.h"
#include "tests/GeometryFixtures.h"

#include <gtest/gtest.h>

#include <utility>

namespace {

using namespace geom;
using Texts = std::vector<std::string>;

double RadiansOf(Azimuth azimuth) { return azimuth.GetAngle().GetValue(k_Radians); }

TEST(AzimuthTest, NegativeDegreesComeBackIntoTheTurn) {
    EXPECT_DOUBLE_EQ(RadiansOf(Azimuth(k_Degrees, -90)), 3 * k_Pi / 2);
}

TEST(AzimuthTest, AFullTurnIsZero) {
    EXPECT_EQ(Azimuth(k_Degrees, 360), k_Azimuth_0);
    EXPECT_EQ(Azimuth(k_Radians, -k_TwoPi), k_Azimuth_0);
}

TEST(AzimuthTest, ManyTurnsAreTakenOff) {
    EXPECT_NEAR(RadiansOf(Azimuth(k_Degrees, 3690)), k_Pi / 2, 1e-13);
    EXPECT_NEAR(RadiansOf(Azimuth(k_RightAngles, -7)), k_Pi / 2, 1e-13);
    EXPECT_EQ(RadiansOf(Azimuth(k_HalfRightAngles, 1)), k_Pi / 4);
}

TEST(AzimuthTest, AVerySmallNegativeValueIsStoredAsAWholeTurn) {
    EXPECT_EQ(RadiansOf(Azimuth(k_Radians, -1e-20)), k_TwoPi);
}

TEST(AzimuthTest, AnUnknownMeasureIsReportedUnlessTheValueIsZero) {
    const AssertionRecorder recorder;
    EXPECT_EQ(Azimuth(AngleMeasure(9), 0), k_Azimuth_0);
    EXPECT_TRUE(recorder.Take().empty());
    EXPECT_EQ(Azimuth(AngleMeasure(9), 5), k_Azimuth_0);
    EXPECT_EQ(recorder.Take(), Texts{"!\"This should never happen!\", Angle"});
}

TEST(AzimuthTest, ConstantsAreReadyBeforeAnyCode) {
    static_assert(sizeof(Azimuth) == sizeof(double) && Azimuth() == k_Azimuth_0);
    static_assert(k_Azimuth_270.GetAngle() == k_Angle_270 && k_South == k_Azimuth_270);
    const std::pair<Azimuth, double> constants[] = {{k_Azimuth_0, 0}, {k_Azimuth_22_5, 22.5}, {k_Azimuth_30, 30},
        {k_Azimuth_45, 45}, {k_Azimuth_60, 60}, {k_Azimuth_90, 90}, {k_Azimuth_180, 180}, {k_Azimuth_270, 270},
        {k_East, 0}, {k_NorthEast, 45}, {k_North, 90}, {k_NorthWest, 135}, {k_West, 180}, {k_SouthWest, 225},
        {k_South, 270}, {k_SouthEast, 315}};
    for (const auto& [azimuth, degrees] : constants)
        EXPECT_EQ(RadiansOf(azimuth), degrees * 0.017453292519943295);
}

TEST(AzimuthTest, AnAngleMakesTheDirectionItTurnsTheXAxisTo) {
    EXPECT_EQ(Azimuth(k_Angle_90), k_North);
    EXPECT_EQ(Azimuth(-k_Angle_90), k_South);
    EXPECT_EQ(k_North + k_Angle_90, k_West);
    EXPECT_EQ(k_North - k_Angle_90, k_East);
    EXPECT_EQ(k_East - k_Angle_90, k_South);
    EXPECT_EQ(k_South + k_Angle_90, k_East);
}

TEST(AzimuthTest, OppositeStaysInTheTurn) {
    EXPECT_EQ(k_East.GetOpposite(), k_West);
    EXPECT_EQ(k_West.GetOpposite(), k_East);
    EXPECT_EQ(k_North.GetOpposite(), k_South);
    EXPECT_DOUBLE_EQ(RadiansOf(k_SouthEast.GetOpposite()), RadiansOf(k_NorthWest));
}

TEST(AzimuthTest, AngleToItselfIsZeroBothWays) {
    EXPECT_EQ(k_NorthWest.GetAngleTo(k_NorthWest, k_CW), k_Angle_0);
    EXPECT_EQ(k_NorthWest.GetAngleTo(k_NorthWest, k_CCW), k_Angle_0);
}

TEST(AzimuthTest, AngleToGoesTheAskedWay) {
    EXPECT_EQ(k_East.GetAngleTo(k_North, k_CCW), k_Angle_90);
    EXPECT_EQ(k_East.GetAngleTo(k_North, k_CW), k_Angle_90 - k_Angle_360);
    EXPECT_EQ(k_North.GetAngleTo(k_East, k_CCW), k_Angle_270);
    EXPECT_EQ(k_North.GetAngleTo(k_East, k_CW), k_Angle_270 - k_Angle_360);
}

TEST(AzimuthTest, AngleToWithoutARotationIsReportedAndGoesCounterClockwise) {
    const AssertionRecorder recorder;
    EXPECT_EQ(k_North.GetAngleTo(k_East, k_NoDirection), k_Angle_270);
    EXPECT_EQ(recorder.Take(), Texts{"direction == k_CW || direction == k_CCW, Azimuth"});
}

TEST(AzimuthTest, ShortestAngleHasNoSign) {
    EXPECT_EQ(k_East.GetShortestAngleTo(k_North), k_Angle_90);
    EXPECT_EQ(k_North.GetShortestAngleTo(k_East), k_Angle_90);
    EXPECT_EQ(k_East.GetShortestAngleTo(k_West), k_Angle_180);
    EXPECT_EQ(k_East.GetShortestAngleTo(k_East), k_Angle_0);
}

TEST(AzimuthTest, SignedShortestAngleTurnsTheShorterWay) {
    EXPECT_EQ(k_East.GetSignedShortestAngleTo(k_North), k_Angle_90);
    EXPECT_EQ(k_North.GetSignedShortestAngleTo(k_East), -k_Angle_90);
    EXPECT_EQ(k_East.GetSignedShortestAngleTo(k_East), k_Angle_0);
}

TEST(AzimuthTest, OppositeDirectionsTurnClockwise) {
    EXPECT_EQ(k_Azimuth_0.GetSignedShortestAngleTo(k_West).GetValue(k_Radians), -k_Pi);
    EXPECT_EQ(k_North.GetSignedShortestAngleTo(k_South).GetValue(k_Radians), -k_Pi);
}

TEST(AzimuthTest, CosineAndSineAreExactAlongTheAxes) {
    EXPECT_EQ(k_North.Cos(), 0);
    EXPECT_EQ(k_North.Sin(), 1);
    EXPECT_EQ(k_West.Cos(), -1);
    EXPECT_EQ(k_West.Sin(), 0);
    EXPECT_EQ(k_South.Sin(), -1);
    EXPECT_DOUBLE_EQ(k_Azimuth_60.Cos(), 0.5);
    EXPECT_DOUBLE_EQ(k_Azimuth_30.Sin(), 0.5);
}

} // namespace
