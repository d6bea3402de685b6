#include "lib/math/geometry/GeomStl.h"

#include "lib/math/geometry/Circle.h"
#include "tests/AssertionRecorder.h"
#include "tests/GeometryFixtures.h"

#include <gtest/gtest.h>

namespace {

using namespace geom;
using fixtures::BoxOf;
using Texts = std::vector<std::string>;

TEST(GeomStlTest, ExpandsTheBoxOfAnyShape) {
    EXPECT_EQ(GetExpandedBox_T(fixtures::k_SlopedSegment, 1), BoxOf("-1,-1 4,5"));
    EXPECT_EQ(GetExpandedBox_T(Circle({5, 5}, 2), 1), BoxOf("2,2 8,8"));
    EXPECT_EQ(GetExpandedBox_T(Point(5, 5), 1), BoxOf("4,4 6,6"));
    EXPECT_EQ(GetExpandedBox_T(fixtures::k_TallBox, 0), fixtures::k_TallBox);
}

TEST(GeomStlTest, AnEmptyBoxStaysEmpty) { EXPECT_TRUE(GetExpandedBox_T(k_EmptyBox, 5).IsEmpty()); }

TEST(GeomStlTest, ANegativeExpansionIsReportedAndShrinks) {
    const AssertionRecorder recorder;
    EXPECT_EQ(GetExpandedBox_T(fixtures::k_SquareBox, -1), BoxOf("1,1 9,9"));
    EXPECT_EQ(recorder.Take(), Texts{"expansion >= k_NullUnit, GeomStl"});
}

TEST(GeomStlTest, CombinedEpsilonIsThatOfTheBoxThatHoldsBoth) {
    EXPECT_EQ(GetCombinedEpsilon_T(Point(1, 2), Point(3, -40)), Unit(42).GetEpsilon());
    EXPECT_EQ(GetCombinedEpsilon_T(Point(100, 0), Point(101, 0)), Unit(101).GetEpsilon());
    EXPECT_EQ(GetCombinedEpsilon_T(fixtures::k_SlopedSegment, Circle({0, 0}, 9)), Unit(18).GetEpsilon());
    EXPECT_EQ(GetCombinedEpsilon_T(k_EmptyBox, Point(0, 7)), Unit(7).GetEpsilon());
}

} // namespace
