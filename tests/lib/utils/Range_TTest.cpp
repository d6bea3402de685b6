#include "lib/utils/Range_T.h"

#include "lib/math/geometry/Unit.h"
#include "tests/AssertionRecorder.h"
#include "tests/GeometryFixtures.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <type_traits>

namespace {

using geom::Unit;
using Range = base::Range_T<Unit>;
using Texts = std::vector<std::string>;

const Texts k_Empty = {"!IsEmpty(), Range_T"};

/// The stored ends, also of an empty range.
std::pair<Unit, Unit> FieldsOf(const Range& range) {
    AssertionRecorder recorder;
    return {range.GetMin(), range.GetMax()};
}

std::pair<Unit, Unit> Fields(double min, double max) { return {min, max}; }

/// An empty range that stores other ends than (1, 0): a range read from bytes, as no operation makes one.
Range OddEmptyRange() {
    static_assert(sizeof(Range) == 2 * sizeof(double) && std::is_trivially_copyable_v<Range>);
    const double ends[] = {7, 3};
    Range range;
    std::memcpy(static_cast<void*>(&range), ends, sizeof range);
    return range;
}

TEST(Range_TTest, ADefaultRangeIsEmptyAndStoresOneAndZero) {
    EXPECT_TRUE(Range().IsEmpty());
    EXPECT_EQ(FieldsOf(Range()), Fields(1, 0));
}

TEST(Range_TTest, EmptyFollowsFromTheStoredEndsAlone) {
    EXPECT_TRUE(OddEmptyRange().IsEmpty());
    EXPECT_EQ(FieldsOf(OddEmptyRange()), Fields(7, 3));
}

TEST(Range_TTest, OneValueMakesARangeOfSizeZero) {
    const Range range(4);
    EXPECT_FALSE(range.IsEmpty());
    EXPECT_EQ(FieldsOf(range), Fields(4, 4));
    EXPECT_EQ(range.GetSize(), Unit(0));
}

TEST(Range_TTest, TwoValuesAreOrdered) {
    EXPECT_EQ(FieldsOf(Range(2, 5)), Fields(2, 5));
    EXPECT_EQ(FieldsOf(Range(5, 2)), Fields(2, 5));
    EXPECT_EQ(FieldsOf(Range(5, 5)), Fields(5, 5));
}

TEST(Range_TTest, EqualValuesGiveTheFirstAtBothEnds) {
    const auto [min, max] = FieldsOf(Range(-0.0, 0.0));
    EXPECT_TRUE(std::signbit(double(min)));
    EXPECT_TRUE(std::signbit(double(max)));
}

TEST(Range_TTest, EndsCenterAndSizeOfAnEmptyRangeAreReported) {
    const AssertionRecorder recorder;
    EXPECT_EQ(Range().GetMin(), Unit(1));
    EXPECT_EQ(recorder.Take(), k_Empty);
    EXPECT_EQ(Range().GetMax(), Unit(0));
    EXPECT_EQ(recorder.Take(), k_Empty);
    EXPECT_EQ(Range().GetCenter(), Unit(0.5));
    EXPECT_EQ(recorder.Take(), k_Empty);
    EXPECT_EQ(Range().GetSize(), Unit(-1));
    EXPECT_EQ(recorder.Take(), k_Empty);
}

TEST(Range_TTest, ExpandingAnEmptyRangeAndItsPositionsAreReported) {
    const AssertionRecorder recorder;
    const Range expanded = Range().GetExpanded(3);
    EXPECT_EQ(recorder.Take(), k_Empty);
    EXPECT_EQ(expanded, Range(-2, 3));
    EXPECT_EQ(Range().GetPosition(0.5), -1);
    EXPECT_EQ(recorder.Take(), k_Empty);
}

TEST(Range_TTest, AFilledRangeReportsNothing) {
    const AssertionRecorder recorder;
    const Range range(1, 4);
    EXPECT_EQ(range.GetMin(), Unit(1));
    EXPECT_EQ(range.GetMax(), Unit(4));
    EXPECT_EQ(range.GetCenter(), Unit(2.5));
    EXPECT_EQ(range.GetSize(), Unit(3));
    EXPECT_EQ(range.GetExpanded(1), Range(0, 5));
    EXPECT_EQ(range.GetPosition(0), -1);
    EXPECT_TRUE(recorder.Take().empty());
}

TEST(Range_TTest, CenterOfOneValueIsThatValueAlsoWhereItsDoubleOverflows) {
    EXPECT_EQ(Range(DBL_MAX).GetCenter(), Unit(DBL_MAX));
    EXPECT_EQ(Range(DBL_TRUE_MIN).GetCenter(), Unit(DBL_TRUE_MIN));
    EXPECT_EQ(Range(0.1, 0.1).GetCenter(), Unit(0.1));
}

TEST(Range_TTest, PositionTellsBelowInsideAndAbove) {
    const Range range(1, 4);
    EXPECT_EQ(range.GetPosition(fixtures::Down(1)), -1);
    EXPECT_EQ(range.GetPosition(1), 0);
    EXPECT_EQ(range.GetPosition(4), 0);
    EXPECT_EQ(range.GetPosition(fixtures::Up(4)), 1);
}

TEST(Range_TTest, ShrinkingByMoreThanHalfTheSizeCrossesTheEnds) {
    EXPECT_EQ(FieldsOf(Range(0, 1).GetExpanded(-1)), Fields(0, 1));
    EXPECT_EQ(FieldsOf(Range(0, 4).GetExpanded(-3)), Fields(1, 3)); // 2 * 3 - 4 = 2 wide
    EXPECT_EQ(FieldsOf(Range(0, 4).GetExpanded(-2)), Fields(2, 2));
}

TEST(Range_TTest, TouchingRangesIntersectInOneValue) {
    EXPECT_TRUE(Range(0, 1).Intersects(Range(1, 2)));
    EXPECT_TRUE(Range(1, 2).Intersects(Range(0, 1)));
    EXPECT_EQ(FieldsOf(Range(0, 1).GetIntersection(Range(1, 2))), Fields(1, 1));
}

TEST(Range_TTest, DisjointRangesHaveTheEmptyIntersectionOneZero) {
    EXPECT_FALSE(Range(0, 1).Intersects(Range(2, 3)));
    EXPECT_FALSE(Range(2, 3).Intersects(Range(0, 1)));
    EXPECT_EQ(FieldsOf(Range(0, 1).GetIntersection(Range(2, 3))), Fields(1, 0));
    EXPECT_EQ(FieldsOf(Range(20, 30).GetIntersection(Range(0, 1))), Fields(1, 0));
}

TEST(Range_TTest, AnEmptyRangeIntersectsNothing) {
    EXPECT_FALSE(Range().Intersects(Range(-5, 5)));
    EXPECT_FALSE(Range(-5, 5).Intersects(Range()));
    EXPECT_FALSE(Range().Intersects(Range()));
    EXPECT_EQ(FieldsOf(OddEmptyRange().GetIntersection(Range(0, 9))), Fields(1, 0));
}

TEST(Range_TTest, OverlappingRangesShareTheirInnerEnds) {
    EXPECT_EQ(Range(0, 5).GetIntersection(Range(3, 9)), Range(3, 5));
    EXPECT_EQ(Range(0, 9).GetIntersection(Range(3, 5)), Range(3, 5));
}

TEST(Range_TTest, UnionWithAnEmptyRangeIsTheOtherRange) {
    EXPECT_EQ(FieldsOf(Range().GetUnion(Range(2, 3))), Fields(2, 3));
    EXPECT_EQ(FieldsOf(Range(2, 3).GetUnion(Range())), Fields(2, 3));
    EXPECT_TRUE(Range().GetUnion(Range()).IsEmpty());
}

TEST(Range_TTest, UnionSpansTheGap) {
    EXPECT_EQ(Range(0, 1).GetUnion(Range(4, 5)), Range(0, 5));
    EXPECT_EQ(Range(4, 5).GetUnion(Range(0, 1)), Range(0, 5));
    EXPECT_EQ(Range(0, 9).GetUnion(Range(4, 5)), Range(0, 9));
}

TEST(Range_TTest, ExtendHoldsTheNewValue) {
    Range range;
    range.Extend(3);
    EXPECT_EQ(range, Range(3));
    range.Extend(-1);
    EXPECT_EQ(range, Range(-1, 3));
    range.Extend(2);
    EXPECT_EQ(range, Range(-1, 3));
}

TEST(Range_TTest, EmptyRangesAreEqualWhateverTheyStore) {
    EXPECT_TRUE(Range() == OddEmptyRange());
    EXPECT_FALSE(Range() == Range(0, 1));
    EXPECT_FALSE(Range(0, 1) == Range());
}

TEST(Range_TTest, FilledRangesCompareBothEndsExactly) {
    EXPECT_TRUE(Range(0, 1) == Range(1, 0));
    EXPECT_FALSE(Range(0, 1) == Range(0, fixtures::Up(1)));
    EXPECT_FALSE(Range(0, 1) == Range(fixtures::Up(0), 1));
}

/// Values whose order is turned round, so that 1 is not greater than 0.
struct Downward {
    int m_Value = 0;
    constexpr Downward(int value) : m_Value(value) {}
    friend constexpr bool operator>(Downward a, Downward b) { return a.m_Value < b.m_Value; }
};

TEST(Range_TTest, AnOrderWhereOneIsNotAboveZeroIsReported) {
    const AssertionRecorder recorder;
    const base::Range_T<Downward> range;
    EXPECT_FALSE(range.IsEmpty());
    EXPECT_EQ(recorder.Take(), Texts{"IsEmpty(), Range_T"});
}

} // namespace
