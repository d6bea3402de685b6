#include "lib/math/geometry/Area.h"

#include "tests/AssertionRecorder.h"
#include "tests/GeometryFixtures.h"

#include <gtest/gtest.h>

namespace {

using namespace geom;
using fixtures::BitsOf;
using fixtures::k_NaN;
using Texts = std::vector<std::string>;

const Texts k_Negative = {"m_Value >= 0, Area"};

TEST(AreaTest, ConstantsAreReadyBeforeAnyCode) {
    static_assert(sizeof(Area) == sizeof(double) && k_Area_0 == Area(0) && k_NullArea == Area(0));
    EXPECT_EQ(BitsOf(double(k_InfiniteArea)), BitsOf(double(k_InfiniteUnit)));
    EXPECT_EQ(Area(), k_Area_0);
}

TEST(AreaTest, ArithmeticIsThatOfTheNumbers) {
    EXPECT_EQ(Area(2) + Area(3), Area(5));
    EXPECT_EQ(Area(2) - Area(3), Area(-1));
    EXPECT_EQ(-Area(2), Area(-2));
    EXPECT_EQ(Area(2) * 1.5, Area(3));
    EXPECT_EQ(1.5 * Area(2), Area(3));
    EXPECT_EQ(Area(3) / Area(2), 1.5);
    EXPECT_EQ(Area(3) / Unit(2), Unit(1.5));
    Area sum(1);
    EXPECT_EQ(sum += Area(2), Area(3));
    EXPECT_EQ(sum, Area(3));
}

TEST(AreaTest, ComparisonsAreThoseOfLengths) {
    EXPECT_TRUE(Area(2) > Area(1));
    EXPECT_TRUE(Area(1) < Area(2));
    EXPECT_TRUE(Area(1) <= Area(1));
    EXPECT_TRUE(Area(1) >= Area(1));
    EXPECT_FALSE(Area(fixtures::Up(1)) <= Area(1));
    EXPECT_FALSE(Area(1) >= Area(fixtures::Up(1)));
    EXPECT_TRUE(Area(k_NaN) <= Area(1));
    EXPECT_TRUE(Area(k_NaN) >= Area(1));
    EXPECT_FALSE(Area(k_NaN) > Area(1));
}

TEST(AreaTest, AbsAndSign) {
    EXPECT_EQ(Area(-2).GetAbs(), Area(2));
    EXPECT_EQ(Area(2).GetAbs(), Area(2));
    EXPECT_EQ(Area(-2).GetSign(), -1);
    EXPECT_EQ(Area(2).GetSign(), 1);
    EXPECT_EQ(Area(0).GetSign(), 0);
    EXPECT_EQ(Area(k_NaN).GetSign(), 0);
}

TEST(AreaTest, RootsOfOneAndFourAreExact) {
    EXPECT_EQ(Area(1).GetSquareRoot(), Unit(1));
    EXPECT_EQ(Area(4).GetSquareRoot(), Unit(2));
}

TEST(AreaTest, RootOfANegativeAreaIsReportedAndZero) {
    const AssertionRecorder recorder;
    EXPECT_EQ(Area(-1).GetSquareRoot(), Unit(0));
    EXPECT_EQ(recorder.Take(), k_Negative);
}

TEST(AreaTest, RootOfZeroIsZeroWithoutReport) {
    const AssertionRecorder recorder;
    EXPECT_EQ(Area(0).GetSquareRoot(), Unit(0));
    EXPECT_FALSE(std::signbit(double(Area(-0.0).GetSquareRoot())));
    EXPECT_TRUE(recorder.Take().empty());
}

TEST(AreaTest, OtherRootsAreThoseOfTheLibrary) {
    EXPECT_EQ(Area(2).GetSquareRoot(), Unit(1.4142135623730951));
    EXPECT_EQ(Area(25).GetSquareRoot(), Unit(5));
}

TEST(AreaTest, RootOfANaNIsReportedAndStaysOne) {
    const AssertionRecorder recorder;
    EXPECT_TRUE(std::isnan(double(Area(k_NaN).GetSquareRoot())));
    EXPECT_EQ(recorder.Take(), k_Negative);
}

} // namespace
