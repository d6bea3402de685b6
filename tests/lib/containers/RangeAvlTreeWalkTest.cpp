#include "lib/containers/RangeAvlTree.h"

#include "tests/AssertionRecorder.h"
#include "tests/lib/containers/Interval.h"
#include "tests/lib/containers/TreeChecker.h"

#include <gmock/gmock.h>

#include <cstddef>
#include <random>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Tree = Inspected_T<base::RangeAvlTree<Item, Interval>>;

/// Items at [0, 1], [10, 11], [20, 21] and so on, with the ids 0, 1, 2, ...
std::vector<Item> GetRow(int count) {
    std::vector<Item> row;
    row.reserve(std::size_t(count));
    for (int i = 0; i < count; ++i)
        row.push_back({i, {10 * i, 10 * i + 1}});
    return row;
}

std::vector<int> Walk(const Tree& tree, base::FilterMode mode, const Interval& filter) {
    std::vector<int> ids;
    for (auto at = tree.begin(mode, filter); at != tree.end(); ++at)
        ids.push_back(at->m_Id);
    return ids;
}

class RangeAvlTreeWalkTest : public testing::Test {
protected:
    void TearDown() override { EXPECT_THAT(AssertionRecorder::Take(), IsEmpty()); }

    AssertionRecorder m_Assertions;
};

TEST_F(RangeAvlTreeWalkTest, WithoutAFilterVisitsAll) {
    const Tree tree(GetRow(5), true);
    EXPECT_THAT(Walk(tree, base::k_NoFilter, {}), ElementsAre(0, 1, 2, 3, 4));
    EXPECT_EQ(tree.begin(base::k_SkipOutside, {3, 4}).GetFilterMode(), base::k_SkipOutside);
    EXPECT_EQ(tree.begin(base::k_SkipOutside, {3, 4}).GetFilter(), (Interval{3, 4}));
}

TEST_F(RangeAvlTreeWalkTest, EmptyTreeHasNothingToVisit) {
    const Tree tree;
    EXPECT_THAT(Walk(tree, base::k_NoFilter, {}), IsEmpty());
    EXPECT_THAT(Walk(tree, base::k_SkipOutside, {0, 1}), IsEmpty());
    EXPECT_EQ(Tree::Iterator(tree, nullptr, base::k_NoFilter, {}, Tree::k_AtLast), tree.end());
}

TEST_F(RangeAvlTreeWalkTest, SkipOutsideVisitsOnlyTheLastWhenTheFilterMeetsOnlyIt) {
    // The last of two is the root, and the subtree of the first is skipped.
    const Tree tree(GetRow(2), true);
    EXPECT_THAT(Walk(tree, base::k_SkipOutside, {11, 50}), ElementsAre(1));
}

TEST_F(RangeAvlTreeWalkTest, SkipOutsideVisitsTheWayFromTheRootToWhatItMeets) {
    // 7 nodes: 3 is the root, then 5, then 6. Their subtrees reach to the filter; all others are skipped.
    const Tree tree(GetRow(7), true);
    EXPECT_THAT(Walk(tree, base::k_SkipOutside, {61, 99}), ElementsAre(3, 5, 6));
    EXPECT_THAT(Walk(tree, base::k_SkipOutside, {62, 99}), IsEmpty());
}

TEST_F(RangeAvlTreeWalkTest, SkipOutsideCountsTouchingAsMeeting) {
    const Tree tree(GetRow(1), true);
    EXPECT_THAT(Walk(tree, base::k_SkipOutside, {1, 5}), ElementsAre(0));
    EXPECT_THAT(Walk(tree, base::k_SkipOutside, {2, 5}), IsEmpty());
}

TEST_F(RangeAvlTreeWalkTest, SkipInsidePassesOverSubtreesInTheFilter) {
    // The left subtree of 7 nodes, 0 to 2, spans [0, 21].
    const Tree tree(GetRow(7), true);
    EXPECT_THAT(Walk(tree, base::k_SkipInside, {0, 21}), ElementsAre(3, 4, 5, 6));
    EXPECT_THAT(Walk(tree, base::k_SkipInside, {1, 21}), ElementsAre(0, 1, 3, 4, 5, 6));
    EXPECT_THAT(Walk(tree, base::k_SkipInside, {0, 61}), IsEmpty());
}

TEST_F(RangeAvlTreeWalkTest, LastUnderAFilterIsFound) {
    const Tree tree(GetRow(7), true);
    EXPECT_EQ(Tree::Iterator(tree, nullptr, base::k_NoFilter, {}, Tree::k_AtLast)->m_Id, 6);
    // Only 0 is met, below 1 below the root 3; the last of these three is 3.
    EXPECT_EQ(Tree::Iterator(tree, nullptr, base::k_SkipOutside, {-5, 0}, Tree::k_AtLast)->m_Id, 3);
    EXPECT_EQ(Tree::Iterator(tree, nullptr, base::k_SkipOutside, {-5, -4}, Tree::k_AtLast), tree.end());
}

TEST_F(RangeAvlTreeWalkTest, GivenNodeIsKeptWhateverTheFilterSays) {
    const Tree tree(GetRow(7), true);
    const Tree::Iterator at(tree, tree.GetRootNode(), base::k_SkipOutside, {99, 99}, Tree::k_AtNode);
    EXPECT_EQ(at->m_Id, 3);
}

TEST_F(RangeAvlTreeWalkTest, ClimbsPastSkippedAncestors) {
    // From a node that the filter would skip, on to the way to 61: the ancestor 1 is skipped, the ancestor 3 isn't.
    const Tree tree(GetRow(7), true);
    Tree::Node* first = static_cast<Tree::Node*>(base::AvlNode::GetLeftmost(tree.GetRootNode()));
    Tree::Iterator at(tree, first, base::k_SkipOutside, {61, 99}, Tree::k_AtNode);
    EXPECT_EQ((++at)->m_Id, 3);
}

TEST_F(RangeAvlTreeWalkTest, UnknownStartIsReportedAndGivesTheEnd) {
    const Tree tree(GetRow(3), true);
    for (const int start : {2, 4}) {
        const Tree::Iterator at(tree, tree.GetRootNode(), base::k_NoFilter, {}, Tree::StartPosition(start));
        EXPECT_EQ(at, tree.end());
        EXPECT_THAT(AssertionRecorder::Take(), ElementsAre("!\"This should never happen!\", AvlTree.h"));
    }
}

TEST_F(RangeAvlTreeWalkTest, UnknownFilterModeIsReportedAndFindsNodes) {
    const Tree tree(GetRow(1), true);
    EXPECT_EQ(tree.begin(base::FilterMode(7), {})->m_Id, 0);
    EXPECT_THAT(AssertionRecorder::Take(), ElementsAre("!\"This should never happen!\", RangeAvlTree.h"));
}

TEST_F(RangeAvlTreeWalkTest, UnknownFilterModePassesOverAncestors) {
    // From the left child 0 up to the root 1: its code is reported, then that code is; what is left is its right child
    // 2, whose code is reported as well.
    const Tree tree(GetRow(3), true);
    auto* left = static_cast<Tree::Node*>(base::AvlNode::GetLeft(tree.GetRootNode()));
    Tree::Iterator at(tree, left, base::FilterMode(7), {}, Tree::k_AtNode);
    EXPECT_EQ((++at)->m_Id, 2);
    EXPECT_THAT(AssertionRecorder::Take(),
        ElementsAre("!\"This should never happen!\", RangeAvlTree.h", "!\"This should never happen!\", RangeAvlTree.h",
            "!\"This should never happen!\", RangeAvlTree.h"));
}

TEST_F(RangeAvlTreeWalkTest, SteppingPastTheEndIsReportedAndStays) {
    const Tree tree(GetRow(3), true);
    Tree::Iterator at = tree.end();
    ++at;
    EXPECT_EQ(at, tree.end());
    EXPECT_THAT(
        AssertionRecorder::Take(), ElementsAre("ParentClass::m_CurrentNode, RangeAvlTree.h", "start, RangeAvlTree.h"));
}

TEST_F(RangeAvlTreeWalkTest, EndHasNoElement) {
    const Tree tree(GetRow(3), true);
    EXPECT_EQ(*tree.end(), Item());
    EXPECT_THAT(AssertionRecorder::Take(), ElementsAre("m_CurrentNode, AvlTree.h"));
}

TEST_F(RangeAvlTreeWalkTest, NarrowWalkIsLogarithmic) {
    constexpr int k_Count = 1 << 16; // 17 levels
    const Tree tree(GetRow(k_Count), true);
    for (const int at : {0, 1, k_Count / 2, k_Count / 3, k_Count - 1}) {
        Interval::s_Questions = 0;
        const std::vector<int> ids = Walk(tree, base::k_SkipOutside, {10 * at, 10 * at + 1});
        EXPECT_LE(ids.size(), 17U);
        EXPECT_THAT(ids, testing::Contains(at));
        EXPECT_LE(Interval::s_Questions, 17 * 4);
    }
}

/// The bound of a subtree from its elements alone, whatever the nodes say.
Interval GetTrueBound(const Tree::Node* node) {
    if (!node)
        return {};
    return node->m_Payload.m_Value.m_Place
        .GetUnion(GetTrueBound(static_cast<const Tree::Node*>(base::AvlNode::GetLeft(node))))
        .GetUnion(GetTrueBound(static_cast<const Tree::Node*>(base::AvlNode::GetRight(node))));
}

bool Passes(const Interval& bound, base::FilterMode mode, const Interval& filter) {
    if (mode == base::k_SkipOutside)
        return bound.Intersects(filter);
    return mode == base::k_NoFilter || bound.m_Min < filter.m_Min || bound.m_Max > filter.m_Max;
}

TEST_F(RangeAvlTreeWalkTest, RandomWalksVisitWhatABruteForceFilterLetsThrough) {
    std::mt19937 random(12345); // NOLINT(cert-msc32-c,cert-msc51-cpp)
    const auto roll = [&random](int sides) { return int(random() % unsigned(sides)); };
    int visits = 0;
    for (int round = 0; round < 300; ++round) {
        std::vector<Item> items;
        for (int i = roll(60); i > 0; --i) {
            const int start = roll(200);
            items.push_back({i, {start, start + roll(20)}});
        }
        const Tree tree(items, round % 2 == 0);
        const std::vector<base::AvlNode*> nodes = CheckTree_T(tree);
        for (int query = 0; query < 20; ++query) {
            const auto mode = base::FilterMode(query % 3);
            const int start = roll(220);
            const Interval filter = {start, start + roll(query < 10 ? 15 : 220)};
            std::vector<int> expected;
            for (const base::AvlNode* node : nodes) {
                const auto* typed = static_cast<const Tree::Node*>(node);
                if (Passes(GetTrueBound(typed), mode, filter))
                    expected.push_back(typed->m_Payload.m_Value.m_Id);
            }
            ASSERT_EQ(Walk(tree, mode, filter), expected) << "round " << round << ", query " << query;
            const Tree::Iterator last(tree, nullptr, mode, filter, Tree::k_AtLast);
            ASSERT_EQ(last == tree.end(), expected.empty());
            if (!expected.empty()) {
                ASSERT_EQ(last->m_Id, expected.back());
            }
            visits += int(expected.size());
        }
    }
    EXPECT_GT(visits, 10000) << "the filters let next to nothing through: the test looks at nothing";
}

} // namespace
