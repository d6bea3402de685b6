#include "lib/math/geometry/Unit.h"

#include "tests/AssertionRecorder.h"
#include "tests/GeometryFixtures.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <type_traits>

namespace {

using namespace geom;
using fixtures::BitsOf;
using fixtures::k_NaN;
using Texts = std::vector<std::string>;

const Texts k_TooLong = {"base::GetAbsOf_T (*this) <= DBL_MAX / 1000000 * 1001, Unit"};

TEST(UnitTest, AddsNothingToADouble) {
    EXPECT_EQ(sizeof(Unit), sizeof(double));
    EXPECT_TRUE(std::is_trivially_copyable_v<Unit>);
}

TEST(UnitTest, AreasAnglesAndNumbersDoNotPassForLengths) {
    EXPECT_FALSE((std::is_convertible_v<Area, Unit>));
    EXPECT_FALSE((std::is_convertible_v<Unit, Area>));
    EXPECT_FALSE((std::is_convertible_v<double, Area>));
    EXPECT_FALSE((std::is_convertible_v<Unit, double>));
    EXPECT_FALSE((std::is_convertible_v<Angle, Unit>));
}

TEST(UnitTest, ConstantsAreReadyBeforeAnyCode) {
    static_assert(k_Unit_0 == Unit(0) && k_NullUnit == Unit(0) && k_Unit_1 == Unit(1));
    static_assert(k_InfiniteUnit > Unit(1e302));
    EXPECT_EQ(Unit(), k_Unit_0);
}

TEST(UnitTest, InfiniteUnitIsAMillionthOfTheLargestDouble) {
    EXPECT_EQ(BitsOf(double(k_InfiniteUnit)), 0x7eb0c6f7a0b5ed8dULL);
    EXPECT_EQ(double(k_InfiniteUnit), 1.797693134862316e+302);
}

TEST(UnitTest, ArithmeticIsThatOfTheNumbers) {
    EXPECT_EQ(Unit(2) + Unit(3), Unit(5));
    EXPECT_EQ(Unit(2) - Unit(3), Unit(-1));
    EXPECT_EQ(-Unit(2), Unit(-2));
    EXPECT_EQ(Unit(2) * 1.5, Unit(3));
    EXPECT_EQ(1.5 * Unit(2), Unit(3));
    EXPECT_EQ(Unit(3) / 2, Unit(1.5));
    EXPECT_EQ(Unit(3) / Unit(2), 1.5);
    EXPECT_EQ(Unit(3) * Unit(2), Area(6));
}

TEST(UnitTest, ComparisonsHaveNoTolerance) {
    const Unit above = fixtures::Up(1);
    EXPECT_TRUE(above > Unit(1));
    EXPECT_TRUE(Unit(1) < above);
    EXPECT_FALSE(Unit(1) > Unit(1));
    EXPECT_TRUE(Unit(1) <= Unit(1));
    EXPECT_TRUE(Unit(1) >= Unit(1));
    EXPECT_FALSE(above <= Unit(1));
    EXPECT_FALSE(Unit(1) >= above);
    EXPECT_TRUE(above != Unit(1));
    EXPECT_TRUE(Unit(0.0) == Unit(-0.0));
}

TEST(UnitTest, WithANaNNotGreaterCountsAsLessOrEqual) {
    const Unit nan = k_NaN;
    EXPECT_FALSE(nan > Unit(1));
    EXPECT_FALSE(Unit(1) > nan);
    EXPECT_TRUE(nan <= Unit(1));
    EXPECT_TRUE(nan >= Unit(1));
    EXPECT_TRUE(Unit(1) <= nan);
    EXPECT_TRUE(Unit(1) >= nan);
    EXPECT_FALSE(nan == nan);
    EXPECT_TRUE(nan != nan);
}

TEST(UnitTest, AbsKeepsNegativeZero) {
    EXPECT_EQ(Unit(-2.5).GetAbs(), Unit(2.5));
    EXPECT_EQ(Unit(2.5).GetAbs(), Unit(2.5));
    EXPECT_TRUE(std::signbit(double(Unit(-0.0).GetAbs())));
}

TEST(UnitTest, SquareIsAnArea) { EXPECT_EQ(Unit(-3).GetSquare(), Area(9)); }

TEST(UnitTest, SignIsZeroForZeroAndForANaN) {
    EXPECT_EQ(Unit(-2).GetSign(), -1);
    EXPECT_EQ(Unit(2).GetSign(), 1);
    EXPECT_EQ(Unit(-0.0).GetSign(), 0);
    EXPECT_EQ(Unit(k_NaN).GetSign(), 0);
}

TEST(UnitTest, EpsilonOfZeroIsNotZero) { EXPECT_EQ(Unit(0).GetEpsilon(), Unit(DBL_MIN * 1000)); }

TEST(UnitTest, EpsilonOfALengthThatVanishesBesideItsLastPlaceIsThatOfZero) {
    EXPECT_EQ(Unit(DBL_TRUE_MIN).GetEpsilon(), Unit(DBL_MIN * 1000));
}

TEST(UnitTest, EpsilonIgnoresTheSign) {
    EXPECT_EQ(Unit(-1).GetEpsilon(), Unit(1).GetEpsilon());
    EXPECT_EQ(Unit(1).GetEpsilon(), Unit(2.220446049250313e-13));
}

TEST(UnitTest, EpsilonIsAThousandUnitsInTheLastPlace) {
    EXPECT_EQ(Unit(1024).GetEpsilon(), Unit(1024 * 1000 * (fixtures::Up(1) - 1)));
}

TEST(UnitTest, EpsilonOfALengthBeyondAThousandInfinitiesIsReported) {
    const AssertionRecorder recorder;
    EXPECT_EQ(Unit(1.799490827997178e305).GetEpsilon(), Unit(1.799490827997178e305 * DBL_EPSILON * 1000));
    EXPECT_TRUE(recorder.Take().empty());
    const double tooLong = fixtures::Up(1.799490827997178e305);
    EXPECT_EQ(Unit(-tooLong).GetEpsilon(), Unit(tooLong * DBL_EPSILON * 1000));
    EXPECT_EQ(recorder.Take(), k_TooLong);
}

} // namespace
