#include "lib/math/geometry/Transformation.h"

#include "lib/math/geometry/Line.h"
#include "lib/math/geometry/Rotation.h"
#include "tests/AssertionRecorder.h"
#include "tests/GeometryFixtures.h"

#include <gtest/gtest.h>

#include <random>
#include <type_traits>

namespace {

using namespace geom;
using Texts = std::vector<std::string>;

const Transformation k_Quarter(k_Angle_90);
const Transformation k_MirrorInX(k_Azimuth_0);

TEST(TransformationTest, DefaultIsTheIdentity) {
    const Transformation identity;
    EXPECT_TRUE(std::is_trivially_copyable_v<Transformation>);
    EXPECT_TRUE(identity.IsIdentity());
    EXPECT_EQ(identity.GetScale(), 1);
    EXPECT_FALSE(identity.IsMirroring());
    EXPECT_EQ(identity.ApplyToPoint({3, 4}), Point(3, 4));
    EXPECT_EQ(identity.ApplyToAzimuth(k_NorthWest), k_NorthWest);
}

TEST(TransformationTest, IdentityHandsBackItsInputUntouched) {
    // A product with the unit matrix would turn -0.0 + 0.0 into 0.0, and an infinity into a NaN.
    const Vector vector = Transformation().ApplyToVector({-0.0, -0.0});
    EXPECT_TRUE(std::signbit(double(vector.GetX())));
    EXPECT_TRUE(std::signbit(double(vector.GetY())));
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(Transformation(Vector(1, 1)).ApplyToVector({infinity, 2}), Vector(infinity, 2));
}

TEST(TransformationTest, TranslationMovesPointsButNotVectors) {
    const Transformation translation(Vector(10, 20));
    EXPECT_EQ(translation.ApplyToPoint({1, 2}), Point(11, 22));
    EXPECT_EQ(translation.ApplyToVector({1, 2}), Vector(1, 2));
    EXPECT_EQ(translation.ApplyToAzimuth(k_North), k_North);
    EXPECT_FALSE(translation.IsIdentity());
}

TEST(TransformationTest, AQuarterTurnIsExact) {
    EXPECT_EQ(k_Quarter.ApplyToVector(Vector(1, 0)), Vector(0, 1));
    EXPECT_EQ(k_Quarter.ApplyToPoint({3, 4}), Point(-4, 3));
    EXPECT_EQ(k_Quarter.ApplyToAzimuth(k_North), k_West);
    EXPECT_FALSE(k_Quarter.IsIdentity());
}

TEST(TransformationTest, RotationAboutAPivotKeepsThePivot) {
    const Transformation rotation(k_Angle_90, Point(1, 1));
    EXPECT_EQ(rotation.ApplyToPoint({1, 1}), Point(1, 1));
    EXPECT_EQ(rotation.ApplyToPoint({3, 1}), Point(1, 3));
    EXPECT_EQ(Transformation(Rotation({1, 1}, k_Angle_90)).ApplyToPoint({3, 1}), Point(1, 3));
}

TEST(TransformationTest, RotationAboutAPivotByZeroIsTheIdentity) {
    EXPECT_TRUE(Transformation().IsIdentity());
    EXPECT_TRUE(Transformation(k_Angle_0, Point(0.1, 1e17)).IsIdentity());
}

TEST(TransformationTest, MirrorInTheXAxis) {
    EXPECT_TRUE(k_MirrorInX.IsMirroring());
    EXPECT_EQ(k_MirrorInX.ApplyToPoint({1, 1}), Point(1, -1));
    EXPECT_EQ(k_MirrorInX.ApplyToAzimuth(k_Azimuth_90), k_Azimuth_270);
    EXPECT_EQ(k_MirrorInX.GetMirrorAxis(), k_Azimuth_0);
    EXPECT_FALSE(k_MirrorInX.IsIdentity());
}

TEST(TransformationTest, MirrorInOtherAxes) {
    EXPECT_EQ(Transformation(k_Azimuth_90).ApplyToPoint({1, 2}), Point(-1, 2));
    EXPECT_EQ(Transformation(k_Azimuth_45).ApplyToPoint({1, 2}), Point(2, 1));
    EXPECT_EQ(Transformation(k_Azimuth_45).GetMirrorAxis(), k_Azimuth_45);
    EXPECT_EQ(Transformation(k_Azimuth_45).ApplyToAzimuth(k_East), k_North);
    EXPECT_EQ(Transformation(k_Azimuth_90).ApplyToAzimuth(k_East), k_West);
}

TEST(TransformationTest, MirrorInALineKeepsTheLine) {
    const Transformation inHorizontal(Line(Point(0, 2), Point(1, 2)));
    EXPECT_EQ(inHorizontal.ApplyToPoint({3, 5}), Point(3, -1));
    EXPECT_EQ(inHorizontal.ApplyToPoint({7, 2}), Point(7, 2));
    const Transformation inVertical(Line(Point(3, 0), Point(3, 1)));
    EXPECT_EQ(inVertical.ApplyToPoint({1, 1}), Point(5, 1));
    const Point mirrored = Transformation(Line(Point(0, 2), Point(2, 0))).ApplyToPoint({0, 0});
    EXPECT_DOUBLE_EQ(double(mirrored.GetX()), 2);
    EXPECT_DOUBLE_EQ(double(mirrored.GetY()), 2);
}

TEST(TransformationTest, MirrorAxisWithoutAMirrorIsReported) {
    const AssertionRecorder recorder;
    EXPECT_EQ(k_Quarter.GetMirrorAxis(), k_Azimuth_45);
    EXPECT_EQ(recorder.Take(), Texts{"m_IsMirroring, Transformation.h"});
}

TEST(TransformationTest, ComposedAppliesThisOneFirst) {
    const Transformation translation(Vector(10, 0));
    EXPECT_EQ(k_Quarter.GetComposed(translation).ApplyToPoint({1, 0}), Point(10, 1));
    EXPECT_EQ(translation.GetComposed(k_Quarter).ApplyToPoint({1, 0}), Point(0, 11));
    Transformation grown = k_Quarter;
    grown *= translation;
    EXPECT_EQ(grown.ApplyToPoint({1, 0}), Point(10, 1));
}

TEST(TransformationTest, ComposingAMirrorWithItselfIsTheIdentity) {
    for (const Azimuth axis : {k_Azimuth_0, k_Azimuth_30, k_Azimuth_90, k_SouthEast})
        EXPECT_TRUE(Transformation(axis).GetComposed(Transformation(axis)).IsIdentity());
}

TEST(TransformationTest, TwoMirrorsMakeARotation) {
    const Transformation half = k_MirrorInX.GetComposed(Transformation(k_Azimuth_90));
    EXPECT_FALSE(half.IsMirroring());
    EXPECT_EQ(half.ApplyToPoint({1, 2}), Point(-1, -2));
}

TEST(TransformationTest, AMirrorThatComesSecondTurnsTheFirstAngleRound) {
    const Transformation rotatedThenMirrored = k_Quarter.GetComposed(k_MirrorInX);
    EXPECT_TRUE(rotatedThenMirrored.IsMirroring());
    EXPECT_EQ(rotatedThenMirrored.ApplyToPoint({1, 0}), Point(0, -1));
    EXPECT_EQ(rotatedThenMirrored.GetMirrorAxis().GetAngle(), k_Angle_135);
    const Transformation mirroredThenRotated = k_MirrorInX.GetComposed(k_Quarter);
    EXPECT_EQ(mirroredThenRotated.ApplyToPoint({1, 0}), Point(0, 1));
    EXPECT_EQ(mirroredThenRotated.GetMirrorAxis(), k_Azimuth_45);
}

TEST(TransformationTest, AComposedAngleStaysInTheTurn) {
    const Transformation half(k_Angle_180);
    EXPECT_TRUE(half.GetComposed(half).IsIdentity());
    EXPECT_EQ(Transformation(k_Angle_270).GetComposed(half).ApplyToVector({1, 0}), Vector(0, 1));
}

TEST(TransformationTest, ComposedIsOneAfterTheOther) {
    std::mt19937 random(1);
    std::uniform_real_distribution<double> number(-10, 10);
    const auto any = [&] {
        const Point pivot(number(random), number(random));
        const Angle angle(k_Radians, number(random));
        const Transformation rotation(angle, pivot);
        return number(random) > 0 ? rotation : rotation.GetComposed(Transformation(Azimuth(angle * 0.3)));
    };
    for (int i = 0; i < 200; ++i) {
        const Transformation first = any();
        const Transformation second = any();
        const Transformation both = first.GetComposed(second);
        const Point point(number(random), number(random));
        const Point expected = second.ApplyToPoint(first.ApplyToPoint(point));
        EXPECT_TRUE(both.ApplyToPoint(point).IsEqualTo(expected, 1e-12));
        const Azimuth azimuth(k_Radians, number(random));
        const Vector direction = both.ApplyToVector(Vector(azimuth, 1));
        EXPECT_LT(both.ApplyToAzimuth(azimuth).GetShortestAngleTo(direction.GetAzimuth()), Angle(k_Radians, 1e-12));
    }
}

} // namespace
