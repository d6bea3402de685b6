#include "lib/containers/AvlTree.h"

#include "tests/AssertionRecorder.h"
#include "tests/lib/containers/TreeChecker.h"

#include <gmock/gmock.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Tree = Inspected_T<base::AvlTree<int>>;

std::vector<int> GetNumbers(std::size_t count) {
    std::vector<int> numbers(count);
    std::iota(numbers.begin(), numbers.end(), 1);
    return numbers;
}

std::vector<int> GetElements(const Tree& tree) {
    std::vector<int> elements;
    for (const int element : tree)
        elements.push_back(element);
    return elements;
}

class AvlTreeTest : public testing::Test {
protected:
    void TearDown() override { EXPECT_THAT(AssertionRecorder::Take(), IsEmpty()); }

    AssertionRecorder m_Assertions;
};

TEST_F(AvlTreeTest, NodeCostsTwoPointersAndOneWord) {
    EXPECT_EQ(sizeof(base::AvlTree<std::uint32_t>::Node), RawNode::k_Size + sizeof(std::uint32_t));
}

TEST_F(AvlTreeTest, DefaultIsEmpty) {
    const Tree tree;
    EXPECT_TRUE(tree.IsEmpty());
    EXPECT_EQ(tree.GetSize(), 0U);
    EXPECT_EQ(tree.begin(), tree.end());
    EXPECT_EQ(tree.GetRoot(), tree.end());
    EXPECT_EQ(tree.GetPool().GetTotalSlots(), 0U);
}

TEST_F(AvlTreeTest, FromNoElementsIsEmpty) {
    const Tree tree(std::vector<int>{});
    EXPECT_TRUE(tree.IsEmpty());
    EXPECT_EQ(tree.begin(), tree.end());
}

TEST_F(AvlTreeTest, FromOneElementHasALoneRoot) {
    const Tree tree(GetNumbers(1));
    EXPECT_EQ(*tree.GetRoot(), 1);
    EXPECT_EQ(tree.GetRoot().GetLeft(), tree.end());
    EXPECT_EQ(tree.GetRoot().GetRight(), tree.end());
    EXPECT_EQ(tree.GetRootNode()->GetSubTreeNodesCount(), 1U);
    EXPECT_EQ(tree.GetRootNode()->GetBalance(), 0);
    CheckTree_T(tree);
}

TEST_F(AvlTreeTest, FromTwoElementsHasTheSecondAsRootAndTheFirstAsLeftChild) {
    const Tree tree(GetNumbers(2));
    EXPECT_EQ(*tree.GetRoot(), 2);
    EXPECT_EQ(*tree.GetRoot().GetLeft(), 1);
    EXPECT_EQ(tree.GetRoot().GetRight(), tree.end());
    EXPECT_EQ(tree.GetRootNode()->GetBalance(), -1);
    CheckTree_T(tree);
}

TEST_F(AvlTreeTest, FromThreeElementsLinksTheLeftChildToTheRightOne) {
    const Tree tree(GetNumbers(3));
    EXPECT_EQ(*tree.GetRoot(), 2);
    EXPECT_EQ(*tree.GetRoot().GetLeft(), 1);
    EXPECT_EQ(*tree.GetRoot().GetRight(), 3);
    EXPECT_EQ(RawNode(*tree.GetRoot().GetLeft().GetNode()).m_Parent, tree.GetRoot().GetRight().GetNode());
    CheckTree_T(tree);
}

TEST_F(AvlTreeTest, FromSevenElementsIsBalancedEverywhere) {
    const Tree tree(GetNumbers(7));
    EXPECT_EQ(*tree.GetRoot(), 4);
    for (auto at = tree.begin(); at != tree.end(); ++at)
        EXPECT_EQ(at.GetNode()->GetBalance(), 0);
    CheckTree_T(tree);
}

TEST_F(AvlTreeTest, BuiltTreeIsAsLowAsCanBe) {
    for (std::size_t count = 1; count < 300; ++count) {
        const std::vector<int> numbers = GetNumbers(count);
        const Tree tree(numbers);
        CheckTree_T(tree);
        ASSERT_EQ(GetElements(tree), numbers);
        ASSERT_EQ(TreeChecker(tree.GetRootNode()).GetHeight(), int(std::floor(std::log2(double(count)))) + 1);
        ASSERT_FALSE(HasFailure()) << count << " elements";
    }
}

TEST_F(AvlTreeTest, NodesComeFromThePoolOfTheTree) {
    const Tree tree(GetNumbers(13));
    EXPECT_EQ(tree.GetPool().GetUsedBlocks(), 13U);
    EXPECT_EQ(tree.GetPool().GetTotalSlots(), 28U); // 4 + 8 + 16
    const Tree other(GetNumbers(3));
    EXPECT_EQ(other.GetPool().GetTotalSlots(), 4U);
}

TEST_F(AvlTreeTest, InsertsIntoAnEmptyTree) {
    Tree ahead;
    EXPECT_EQ(*ahead.InsertBefore(ahead.end(), 1), 1);
    EXPECT_THAT(GetElements(ahead), ElementsAre(1));
    Tree behind;
    behind.InsertAfter(behind.end(), 1);
    behind.InsertAfter(behind.begin(), 2); // the only element is the last as well
    EXPECT_THAT(GetElements(behind), ElementsAre(1, 2));
    CheckTree_T(behind);
}

TEST_F(AvlTreeTest, InsertsAheadOfTheFirst) {
    Tree tree(GetNumbers(2));
    tree.InsertBefore(tree.begin(), 0);
    EXPECT_THAT(GetElements(tree), ElementsAre(0, 1, 2));
    CheckTree_T(tree);
}

TEST_F(AvlTreeTest, InsertsBehindTheLast) {
    Tree tree(GetNumbers(2));
    tree.InsertAfter(tree.GetRoot(), 3);
    tree.InsertBefore(tree.end(), 4);
    EXPECT_THAT(GetElements(tree), ElementsAre(1, 2, 3, 4));
    CheckTree_T(tree);
}

TEST_F(AvlTreeTest, AheadOfTheEndIsTheBackAndBehindTheEndTheFront) {
    Tree tree(GetNumbers(2));
    tree.InsertBefore(tree.end(), 8);
    tree.InsertAfter(tree.end(), 9);
    EXPECT_THAT(GetElements(tree), ElementsAre(9, 1, 2, 8));
    CheckTree_T(tree);
}

TEST_F(AvlTreeTest, InsertsInTheMiddle) {
    Tree tree(GetNumbers(3));
    const Tree::Iterator middle = tree.GetRoot();
    tree.InsertBefore(middle, 8);
    tree.InsertAfter(middle, 9);
    EXPECT_THAT(GetElements(tree), ElementsAre(1, 8, 2, 9, 3));
    CheckTree_T(tree);
}

TEST_F(AvlTreeTest, GrowingAtOneEndStaysLow) {
    Tree tree;
    for (int i = 0; i < 100000; ++i)
        tree.InsertBefore(tree.end(), i);
    CheckTree_T(tree);
    // An AVL tree of n nodes is lower than 1.4405 log2(n + 2).
    EXPECT_LE(TreeChecker(tree.GetRootNode()).GetHeight(), 23);
}

/// Its hook sums up subtrees and counts how often it is asked.
struct Sum {
    Sum() = default;
    explicit Sum(int own) : m_Own(own) {}
    bool operator==(const Sum& other) const { return m_Own == other.m_Own; }

    int m_Own = 0;
    int m_Total = 0;
    static inline int s_Updates = 0;
};

void UpdateSum(base::AvlTree<Sum>::Node* tree) {
    ++Sum::s_Updates;
    tree->m_Payload.m_Total = tree->m_Payload.m_Own;
    for (const base::AvlNode* child : {base::AvlNode::GetLeft(tree), base::AvlNode::GetRight(tree)}) {
        if (child)
            tree->m_Payload.m_Total += static_cast<const base::AvlTree<Sum>::Node*>(child)->m_Payload.m_Total;
    }
}

TEST_F(AvlTreeTest, HookRunsOnceForEachNodeOfABuiltTree) {
    Sum::s_Updates = 0;
    const base::AvlTree<Sum> tree(GetNumbers(100), &UpdateSum);
    EXPECT_EQ(Sum::s_Updates, 100);
    EXPECT_EQ(tree.GetRoot()->m_Total, 5050);
}

TEST_F(AvlTreeTest, HookRunsForTheChangedPathOnly) {
    base::AvlTree<Sum> tree(GetNumbers(1023), &UpdateSum); // ten full levels
    Sum::s_Updates = 0;
    tree.InsertBefore(tree.end(), 1000);
    EXPECT_EQ(Sum::s_Updates, 11);
    EXPECT_EQ(tree.GetRoot()->m_Total, 1023 * 512 + 1000);
}

TEST_F(AvlTreeTest, CleanTreeIsNotRefreshed) {
    Inspected_T<base::AvlTree<Sum>> tree(GetNumbers(7), &UpdateSum);
    Sum::s_Updates = 0;
    tree.UpdateDirty(tree.GetRootNode());
    tree.UpdateDirty(nullptr);
    EXPECT_EQ(Sum::s_Updates, 0);
}

TEST_F(AvlTreeTest, EmptyTreesAreEqual) {
    const Tree empty;
    EXPECT_TRUE(empty == Tree());
    EXPECT_FALSE(empty == Tree(GetNumbers(1)));
    EXPECT_FALSE(Tree(GetNumbers(1)) == empty);
}

TEST_F(AvlTreeTest, TreesOfOtherSizeOrElementsDiffer) {
    EXPECT_TRUE(Tree(GetNumbers(5)) == Tree(GetNumbers(5)));
    EXPECT_FALSE(Tree(GetNumbers(5)) == Tree(GetNumbers(4)));
    EXPECT_FALSE(Tree(std::vector<int>{1, 2, 3}) == Tree(std::vector<int>{1, 2, 4}));
    EXPECT_FALSE(Tree(std::vector<int>{1, 2, 3}) == Tree(std::vector<int>{2, 1, 3}));
}

TEST_F(AvlTreeTest, EqualityDoesNotDependOnTheShape) {
    Tree grown;
    for (const int number : GetNumbers(5))
        grown.InsertBefore(grown.end(), number);
    const Tree built(GetNumbers(5));
    ASSERT_NE(*grown.GetRoot(), *built.GetRoot()) << "the shapes should differ";
    EXPECT_TRUE(grown == built);
}

TEST_F(AvlTreeTest, SizesThatLieAreReportedByEquality) {
    Tree tree(GetNumbers(2));
    const Tree longer(GetNumbers(3));
    RawNode raw(*tree.GetRootNode());
    raw.m_Word += 1U << 4U; // claims three nodes
    raw.WriteTo(*tree.GetRootNode());
    EXPECT_TRUE(tree == longer);
    EXPECT_THAT(AssertionRecorder::Take(), ElementsAre("i == end() && ti == to.end(), AvlTree.h"));
}

TEST_F(AvlTreeTest, PositionInAnotherTreeIsReported) {
    const Tree other(GetNumbers(1));
    Tree tree;
    tree.InsertBefore(other.end(), 1);
    EXPECT_THAT(AssertionRecorder::Take(), ElementsAre("before_what_it.m_TreePtr == this, AvlTree.h"));
    tree.InsertAfter(other.end(), 2);
    EXPECT_THAT(AssertionRecorder::Take(), ElementsAre("after_what_it.m_TreePtr == this, AvlTree.h"));
    EXPECT_THAT(GetElements(tree), ElementsAre(2, 1));
}

TEST_F(AvlTreeTest, BuildingAFilledTreeIsReportedAndReplacesIt) {
    Tree tree(GetNumbers(5));
    tree.Build(std::vector<int>{7, 8});
    EXPECT_THAT(AssertionRecorder::Take(), ElementsAre("IsEmpty(), AvlTree.h"));
    EXPECT_THAT(GetElements(tree), ElementsAre(7, 8));
    CheckTree_T(tree);
}

TEST_F(AvlTreeTest, EndHasNoElement) {
    const Tree tree(GetNumbers(2));
    EXPECT_EQ(*tree.end(), 0);
    EXPECT_THAT(AssertionRecorder::Take(), ElementsAre("m_CurrentNode, AvlTree.h"));
}

TEST_F(AvlTreeTest, EndHasNoChildren) {
    const Tree tree(GetNumbers(2));
    EXPECT_EQ(tree.end().GetLeft(), tree.end());
    EXPECT_EQ(Tree::Iterator().GetRight(), tree.end());
    EXPECT_THAT(AssertionRecorder::Take(),
        ElementsAre("m_TreePtr && m_CurrentNode, AvlTree.h", "m_TreePtr && m_CurrentNode, AvlTree.h"));
}

TEST_F(AvlTreeTest, SteppingPastTheEndIsReportedAndStays) {
    const Tree tree(GetNumbers(2));
    Tree::Iterator at = tree.end();
    EXPECT_EQ(++at, tree.end());
    EXPECT_THAT(AssertionRecorder::Take(), ElementsAre("this, AvlNode"));
}

} // namespace
