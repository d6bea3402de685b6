#include "lib/containers/RangeAvlTree.h"

#include "tests/AssertionRecorder.h"
#include "tests/lib/containers/Interval.h"
#include "tests/lib/containers/TreeChecker.h"

#include <gmock/gmock.h>

#include <vector>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Tree = Inspected_T<base::RangeAvlTree<Item, Interval>>;

std::vector<int> GetIds(const Tree& tree) {
    std::vector<int> ids;
    for (const Item& item : tree)
        ids.push_back(item.m_Id);
    return ids;
}

class RangeAvlTreeTest : public testing::Test {
protected:
    void TearDown() override { EXPECT_THAT(AssertionRecorder::Take(), IsEmpty()); }

    AssertionRecorder m_Assertions;
};

TEST_F(RangeAvlTreeTest, EmptyTreeHasAnEmptyBound) { EXPECT_EQ(Tree().GetBound(), Interval()); }

TEST_F(RangeAvlTreeTest, BoundsAreThoseOfTheSubtrees) {
    const Tree tree({{1, {0, 1}}, {2, {4, 5}}, {3, {9, 12}}}, true);
    EXPECT_EQ(tree.GetBound(), (Interval{0, 12}));
    EXPECT_EQ(tree.GetRoot().GetLeft()->m_Bound, (Interval{0, 1}));
    EXPECT_EQ(tree.GetRoot().GetRight()->m_Bound, (Interval{9, 12}));
}

TEST_F(RangeAvlTreeTest, BoundsFollowAnInsertion) {
    Tree tree({{1, {0, 1}}, {2, {4, 5}}, {3, {9, 12}}}, true);
    tree.InsertBefore(tree.GetRoot(), Item{4, {-7, 2}});
    EXPECT_EQ(tree.GetBound(), (Interval{-7, 12}));
    EXPECT_EQ(tree.GetRoot().GetLeft()->m_Bound, (Interval{-7, 2}));
    EXPECT_EQ(tree.GetRoot().GetRight()->m_Bound, (Interval{9, 12}));
}

TEST_F(RangeAvlTreeTest, EqualityLooksAtElementsAndNotAtBounds) {
    const std::vector<Item> items = {{1, {0, 1}}, {2, {4, 5}}, {3, {9, 9}}, {4, {7, 8}}, {5, {2, 3}}};
    Tree grown;
    for (const Item& item : items)
        grown.InsertBefore(grown.end(), item);
    const Tree built(items, true);
    ASSERT_NE(grown.GetRoot()->m_Value, built.GetRoot()->m_Value) << "the shapes should differ, and so the bounds";
    EXPECT_TRUE(grown == built);
    EXPECT_FALSE(grown == Tree({items.rbegin(), items.rend()}, true));
}

TEST_F(RangeAvlTreeTest, BoundOfAnElementCanComeFromATrait) {
    struct Width {
        static Interval GetBound(int value) { return {0, value}; }
    };
    const base::RangeAvlTree<int, Interval, Width> tree({3, 8, 5}, true);
    EXPECT_EQ(tree.GetBound(), (Interval{0, 8}));
}

TEST_F(RangeAvlTreeTest, MissingSubtreeIsReportedByTheBoundUpdate) {
    struct Probe : base::RangeAvlTree<Item, Interval> {
        using RangeAvlTree::UpdateBound;
    };
    Probe::UpdateBound(nullptr);
    EXPECT_THAT(AssertionRecorder::Take(), ElementsAre("tree, RangeAvlTree.h"));
}

TEST_F(RangeAvlTreeTest, FirstElementWithoutASequenceIsTheRoot) {
    Tree tree;
    tree.Insert({1, {0, 1}});
    EXPECT_THAT(GetIds(tree), ElementsAre(1));
    CheckTree_T(tree);
}

TEST_F(RangeAvlTreeTest, LeafTakesAnElementAheadOfIt) {
    Tree tree({{1, {0, 1}}}, true);
    tree.Insert({2, {5, 6}});
    EXPECT_THAT(GetIds(tree), ElementsAre(2, 1));
}

// Root 2 at [4, 5] with the left child 1 at [0, 1] and the right child 3 at [9, 10]. With the root's own place the
// sides are Lu = [0, 5] and Ru = [4, 10].
class UnorderedInsertTest : public RangeAvlTreeTest {
protected:
    Tree m_Tree{{{1, {0, 1}}, {2, {4, 5}}, {3, {9, 10}}}, true};
};

TEST_F(UnorderedInsertTest, ElementNearTheRightSideGoesThere) {
    // To the right: (5 + 8) * 2, as [4, 12] meets Lu; to the left: (6 + 12) * 2. Next to the root or further down,
    // for own = [4, 5], b = [11, 12], r = [9, 10]: in r (1 + 6) * 1 against in b (1 + 8) * 2. So down to the leaf 3.
    m_Tree.Insert({4, {11, 12}});
    EXPECT_THAT(GetIds(m_Tree), ElementsAre(1, 2, 3, 4));
}

TEST_F(UnorderedInsertTest, ElementNearTheLeftSideGoesThere) {
    // To the right: (5 + 13) * 2; to the left: (6 + 8) * 2. Then own with l = [0, 1]: (1 + 5) * 1 against with
    // b = [-3, -2]: (1 + 8) * 2. So down to the leaf 1, ahead of it.
    m_Tree.Insert({4, {-3, -2}});
    EXPECT_THAT(GetIds(m_Tree), ElementsAre(4, 1, 2, 3));
}

TEST_F(UnorderedInsertTest, ElementNextToTheNodeOnTheRightStaysThere) {
    // To the right: (5 + 6) * 2; to the left: (6 + 6) * 2. Then own with r: (0 + 6) * 2, as [4, 10] meets b = [6, 6],
    // against own with b: (1 + 2) * 1. So right behind the root.
    m_Tree.Insert({4, {6, 6}});
    EXPECT_THAT(GetIds(m_Tree), ElementsAre(1, 2, 4, 3));
}

TEST_F(UnorderedInsertTest, ElementNextToTheNodeOnTheLeftStaysThere) {
    // To the right: (5 + 7) * 2; to the left: (6 + 5) * 2. Then own with l: (0 + 5) * 2, as [0, 5] meets b = [3, 3],
    // against own with b: (1 + 2) * 1. So right ahead of the root.
    m_Tree.Insert({4, {3, 3}});
    EXPECT_THAT(GetIds(m_Tree), ElementsAre(1, 4, 2, 3));
}

TEST_F(UnorderedInsertTest, TieGoesToTheRight) {
    // Root 2 at [4, 6] between [0, 2] and [8, 10], element [5, 5]: both ways (6 + 6) * 2. Then own with r: (0 + 6) * 2
    // against own with b: (2 + 2) * 1. So right behind the root.
    Tree tree({{1, {0, 2}}, {2, {4, 6}}, {3, {8, 10}}}, true);
    tree.Insert({4, {5, 5}});
    EXPECT_THAT(GetIds(tree), ElementsAre(1, 2, 4, 3));
}

TEST_F(UnorderedInsertTest, NodeWithoutARightChildTakesTheElementBehindIt) {
    // Root 2 at [4, 5] with the left child 1 at [0, 1] only: Lu = [0, 5], Ru = [4, 5].
    Tree tree({{1, {0, 1}}, {2, {4, 5}}}, true);
    tree.Insert({3, {7, 8}}); // to the right (5 + 4) * 2, to the left (1 + 8) * 2: a tie
    EXPECT_THAT(GetIds(tree), ElementsAre(1, 2, 3));
}

TEST_F(UnorderedInsertTest, TieBetweenTheElementAndTheChildGoesDown) {
    // Root 1 at [0, 1] with the right child 2 at [4, 5] only: Lu = [0, 1], Ru = [0, 5].
    Tree tree;
    tree.InsertBefore(tree.end(), Item{1, {0, 1}});
    tree.InsertBefore(tree.end(), Item{2, {4, 5}});
    // To the right (1 + 9) * 2, to the left (5 + 5) * 2: a tie. Then own with r: (1 + 5) * 1 and with b the same.
    tree.Insert({3, {-4, -3}});
    EXPECT_THAT(GetIds(tree), ElementsAre(1, 2, 3));
}

TEST_F(UnorderedInsertTest, ListWithoutASequenceGoesInOneByOne) {
    const std::vector<Item> items = {{1, {0, 1}}, {2, {4, 5}}, {3, {9, 10}}, {4, {11, 12}}, {5, {3, 3}}};
    const Tree together(items, false);
    Tree single;
    for (const Item& item : items)
        single.Insert(item);
    EXPECT_EQ(GetIds(together), GetIds(single));
    EXPECT_EQ(together.GetSize(), 5U);
    EXPECT_EQ(together.GetBound(), (Interval{0, 12}));
    CheckTree_T(together);
}

} // namespace
