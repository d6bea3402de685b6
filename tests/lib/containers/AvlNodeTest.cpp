#include "lib/containers/AvlNode.h"

#include "tests/AssertionRecorder.h"
#include "tests/lib/containers/TreeChecker.h"

#include <gmock/gmock.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <vector>

namespace {

using base::AvlNode;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

class AvlNodeTest : public testing::Test {
protected:
    void TearDown() override { EXPECT_THAT(AssertionRecorder::Take(), IsEmpty()); }

    /// Inserts new nodes, each behind the last one, and gives the root.
    AvlNode* Append(std::size_t count) {
        AvlNode* root = nullptr;
        for (std::size_t i = 0; i < count; ++i) {
            AvlNode* last = m_Nodes.empty() ? nullptr : &m_Nodes.back();
            root = AvlNode::InsertAfter(&m_Nodes.emplace_back(), last);
        }
        return root;
    }
    /// Checks the tree and gives the places of its nodes in m_Nodes, in the tree's order.
    std::vector<std::size_t> GetOrder(AvlNode* root) const {
        const TreeChecker checker(root);
        std::vector<std::size_t> order;
        for (const AvlNode* node : checker.GetNodes()) {
            for (std::size_t i = 0; i < m_Nodes.size(); ++i) {
                if (&m_Nodes[i] == node)
                    order.push_back(i);
            }
        }
        return order;
    }

    std::deque<AvlNode> m_Nodes; // stay where they are
    AssertionRecorder m_Assertions;
};

TEST_F(AvlNodeTest, TakesTwoPointersAndOneWord) {
    // The payload of a derived class starts right behind the word.
    struct Derived : AvlNode {
        std::uint32_t m_Payload = 0;
    };
    EXPECT_EQ(sizeof(Derived), RawNode::k_Size + sizeof(std::uint32_t));
}

TEST_F(AvlNodeTest, NewNodeIsAlone) {
    const AvlNode node;
    EXPECT_EQ(AvlNode::GetLeft(&node), nullptr);
    EXPECT_EQ(AvlNode::GetRight(&node), nullptr);
    EXPECT_EQ(AvlNode::GetParent(&node), nullptr);
    EXPECT_EQ(AvlNode::GetSibling(&node), nullptr);
    EXPECT_EQ(AvlNode::GetNext(&node), nullptr);
    EXPECT_EQ(node.GetBalance(), 0);
    EXPECT_EQ(node.GetSubTreeNodesCount(), 1U);
    EXPECT_TRUE(node.IsDirty());
}

TEST_F(AvlNodeTest, PackedWordHoldsSideBalanceCountAndDirtyBit) {
    // 0 alone at the left, 1 the root, 2 with 3 to its right.
    Append(4);
    m_Nodes[0].ClearDirty();
    EXPECT_EQ(RawNode(m_Nodes[0]).m_Word, 1U | 0U << 1U | 1U << 4U);
    EXPECT_EQ(RawNode(m_Nodes[1]).m_Word, 0U | 1U << 1U | 4U << 4U | 1U << 31U);
    EXPECT_EQ(RawNode(m_Nodes[2]).m_Word, 0U | 1U << 1U | 2U << 4U | 1U << 31U);
    AvlNode::InsertBefore(&m_Nodes.emplace_back(), &m_Nodes[0]);
    EXPECT_EQ(RawNode(m_Nodes[0]).m_Word, 1U | 7U << 1U | 2U << 4U | 1U << 31U); // -1 in three bits is 7
}

TEST_F(AvlNodeTest, LeftChildPointsToItsSiblingAndThatToTheParent) {
    AvlNode* root = Append(3);
    ASSERT_EQ(root, &m_Nodes[1]);
    EXPECT_EQ(RawNode(*root).m_Child, &m_Nodes[0]);
    EXPECT_EQ(RawNode(m_Nodes[0]).m_Parent, &m_Nodes[2]);
    EXPECT_EQ(RawNode(m_Nodes[2]).m_Parent, root);
    EXPECT_EQ(AvlNode::GetParent(&m_Nodes[0]), root);
    EXPECT_EQ(AvlNode::GetParent(&m_Nodes[2]), root);
    EXPECT_EQ(AvlNode::GetSibling(&m_Nodes[0]), &m_Nodes[2]);
    EXPECT_EQ(AvlNode::GetSibling(&m_Nodes[2]), &m_Nodes[0]);
}

TEST_F(AvlNodeTest, RightOfANodeWithOnlyALeftChildIsNull) {
    AvlNode& root = m_Nodes.emplace_back();
    AvlNode& left = m_Nodes.emplace_back();
    AvlNode::InsertBefore(&left, &root);
    EXPECT_EQ(AvlNode::GetLeft(&root), &left);
    EXPECT_EQ(AvlNode::GetRight(&root), nullptr);
    EXPECT_EQ(RawNode(left).m_Parent, &root);
    EXPECT_EQ(AvlNode::GetParent(&left), &root);
    EXPECT_EQ(AvlNode::GetSibling(&left), nullptr);
}

TEST_F(AvlNodeTest, OnlyRightChildHasNoSibling) {
    AvlNode* root = Append(2);
    EXPECT_EQ(AvlNode::GetRight(root), &m_Nodes[1]);
    EXPECT_EQ(AvlNode::GetLeft(root), nullptr);
    EXPECT_EQ(AvlNode::GetSibling(&m_Nodes[1]), nullptr);
}

TEST_F(AvlNodeTest, WalksInOrder) {
    AvlNode* root = Append(10);
    EXPECT_EQ(AvlNode::GetLeftmost(root), &m_Nodes[0]);
    EXPECT_EQ(AvlNode::GetRightmost(root), &m_Nodes.back());
    for (std::size_t i = 0; i + 1 < m_Nodes.size(); ++i)
        EXPECT_EQ(AvlNode::GetNext(&m_Nodes[i]), &m_Nodes[i + 1]);
    EXPECT_EQ(AvlNode::GetNext(&m_Nodes.back()), nullptr);
}

TEST_F(AvlNodeTest, NextAncestorIsTheFirstOneToTheRight) {
    Append(7); // 3 is the root, 1 and 5 below it, then 0, 2, 4, 6
    EXPECT_EQ(AvlNode::GetNextAncestor(&m_Nodes[0]), &m_Nodes[1]);
    EXPECT_EQ(AvlNode::GetNextAncestor(&m_Nodes[2]), &m_Nodes[3]);
    EXPECT_EQ(AvlNode::GetNextAncestor(&m_Nodes[3]), nullptr);
    EXPECT_EQ(AvlNode::GetNextAncestor(&m_Nodes[6]), nullptr);
}

TEST_F(AvlNodeTest, InsertsWithoutAPositionAsTheRoot) {
    AvlNode node;
    EXPECT_EQ(AvlNode::InsertAfter(&node, nullptr), &node);
    EXPECT_EQ(AvlNode::InsertBefore(&node, nullptr), &node);
}

TEST_F(AvlNodeTest, InsertsBehindANodeWithARightSubtree) {
    Append(7);
    AvlNode* root = AvlNode::InsertAfter(&m_Nodes.emplace_back(), &m_Nodes[3]);
    EXPECT_THAT(GetOrder(root), ElementsAre(0, 1, 2, 3, 7, 4, 5, 6));
}

TEST_F(AvlNodeTest, InsertsAheadOfANodeWithALeftSubtree) {
    Append(7);
    AvlNode* root = AvlNode::InsertBefore(&m_Nodes.emplace_back(), &m_Nodes[3]);
    EXPECT_THAT(GetOrder(root), ElementsAre(0, 1, 2, 7, 3, 4, 5, 6));
}

TEST_F(AvlNodeTest, RightLeaningSubtreeNeverStaysAtTwo) {
    AvlNode* root = Append(2);
    EXPECT_EQ(root->GetBalance(), 1);
    root = AvlNode::InsertAfter(&m_Nodes.emplace_back(), &m_Nodes[1]);
    EXPECT_EQ(root, &m_Nodes[1]);
    EXPECT_EQ(root->GetBalance(), 0);
    EXPECT_EQ(m_Nodes[0].GetBalance(), 0);
    EXPECT_THAT(GetOrder(root), ElementsAre(0, 1, 2));
}

TEST_F(AvlNodeTest, LeftLeaningSubtreeIsRotatedRight) {
    AvlNode* root = nullptr;
    for (int i = 0; i < 3; ++i) {
        AvlNode* first = m_Nodes.empty() ? nullptr : &m_Nodes.back();
        root = AvlNode::InsertBefore(&m_Nodes.emplace_back(), first);
    }
    EXPECT_EQ(root, &m_Nodes[1]);
    EXPECT_THAT(GetOrder(root), ElementsAre(2, 1, 0));
}

TEST_F(AvlNodeTest, InnerGrandchildOnTheRightIsRotatedTwice) {
    Append(2);
    AvlNode* root = AvlNode::InsertBefore(&m_Nodes.emplace_back(), &m_Nodes[1]);
    EXPECT_EQ(root, &m_Nodes[2]);
    EXPECT_THAT(GetOrder(root), ElementsAre(0, 2, 1));
}

TEST_F(AvlNodeTest, InnerGrandchildOnTheLeftIsRotatedTwice) {
    AvlNode& last = m_Nodes.emplace_back();
    AvlNode& first = m_Nodes.emplace_back();
    AvlNode::InsertBefore(&first, &last);
    AvlNode* root = AvlNode::InsertAfter(&m_Nodes.emplace_back(), &first);
    EXPECT_EQ(root, &m_Nodes[2]);
    EXPECT_THAT(GetOrder(root), ElementsAre(1, 2, 0));
}

// Every tree of up to six nodes that insertions can make: each position of each insertion, both ways.
TEST_F(AvlNodeTest, EveryShortSequenceOfInsertionsKeepsTheBalance) {
    constexpr std::size_t k_Length = 6;
    std::size_t sequences = 1;
    for (std::size_t i = 1; i < k_Length; ++i)
        sequences *= 2 * i;
    for (std::size_t sequence = 0; sequence < sequences; ++sequence) {
        m_Nodes.clear();
        std::vector<std::size_t> model = {0};
        AvlNode* root = AvlNode::InsertAfter(&m_Nodes.emplace_back(), nullptr);
        std::size_t choice = sequence;
        for (std::size_t i = 1; i < k_Length; ++i) {
            const std::size_t at = choice % i;
            const bool isAfter = choice / i % 2 == 1;
            choice /= 2 * i;
            AvlNode* position = &m_Nodes[model[at]];
            AvlNode* node = &m_Nodes.emplace_back();
            root = isAfter ? AvlNode::InsertAfter(node, position) : AvlNode::InsertBefore(node, position);
            model.insert(model.begin() + std::ptrdiff_t(at + (isAfter ? 1 : 0)), i);
        }
        ASSERT_EQ(GetOrder(root), model) << "sequence " << sequence;
        ASSERT_FALSE(HasFailure()) << "sequence " << sequence;
    }
}

TEST_F(AvlNodeTest, ResetForgetsAllButTheSide) {
    Append(3);
    m_Nodes[0].ClearDirty();
    m_Nodes[0].Reset();
    EXPECT_TRUE(m_Nodes[0].IsLeft());
    EXPECT_EQ(RawNode(m_Nodes[0]).m_Parent, nullptr);
    EXPECT_TRUE(m_Nodes[0].IsDirty());
    m_Nodes[1].Reset();
    EXPECT_FALSE(m_Nodes[1].IsLeft());
    EXPECT_EQ(RawNode(m_Nodes[1]).m_Child, nullptr);
    EXPECT_EQ(m_Nodes[1].GetSubTreeNodesCount(), 1U);
    EXPECT_EQ(m_Nodes[1].GetBalance(), 0);
}

TEST_F(AvlNodeTest, UpdateCountKeepsSideAndBalance) {
    Append(4);
    AvlNode& node = m_Nodes[2]; // with a right child
    node.ClearDirty();
    node.UpdateCount();
    EXPECT_EQ(node.GetSubTreeNodesCount(), 2U);
    EXPECT_EQ(node.GetBalance(), 1);
    EXPECT_FALSE(node.IsLeft());
    EXPECT_TRUE(node.IsDirty());
}

TEST_F(AvlNodeTest, UpdateCountsToRootMarksTheAncestorsOnly) {
    AvlNode* root = Append(7);
    for (AvlNode& node : m_Nodes)
        node.ClearDirty();
    EXPECT_EQ(m_Nodes[4].UpdateCountsToRoot(), root);
    std::vector<std::size_t> dirty;
    for (std::size_t i = 0; i < m_Nodes.size(); ++i) {
        if (m_Nodes[i].IsDirty())
            dirty.push_back(i);
    }
    EXPECT_THAT(dirty, ElementsAre(3, 4, 5));
}

TEST_F(AvlNodeTest, MarkAllDirtyReachesEveryNode) {
    AvlNode* root = Append(7);
    for (AvlNode& node : m_Nodes)
        node.ClearDirty();
    root->MarkAllDirty();
    for (const AvlNode& node : m_Nodes)
        EXPECT_TRUE(node.IsDirty());
}

TEST_F(AvlNodeTest, JoinBalancedLeansLeftOrNotAtAll) {
    std::array<AvlNode, 3> nodes;
    EXPECT_EQ(nodes[1].JoinBalanced(nodes.data(), 1, nullptr, 0), 2);
    EXPECT_EQ(nodes[1].GetBalance(), -1);
    EXPECT_EQ(nodes[1].JoinBalanced(nodes.data(), 1, &nodes[2], 1), 2);
    EXPECT_EQ(nodes[1].GetBalance(), 0);
    EXPECT_EQ(nodes[1].GetSubTreeNodesCount(), 3U);
}

TEST_F(AvlNodeTest, JoiningAHigherRightSideIsReported) {
    std::array<AvlNode, 2> nodes;
    nodes[0].JoinBalanced(nullptr, 0, &nodes[1], 1);
    EXPECT_THAT(AssertionRecorder::Take(), ElementsAre("left_height >= right_height, AvlTree.h"));
}

TEST_F(AvlNodeTest, NavigationFromNullIsReportedAndGivesNull) {
    EXPECT_EQ(AvlNode::GetLeft(nullptr), nullptr);
    EXPECT_EQ(AvlNode::GetRight(nullptr), nullptr);
    EXPECT_EQ(AvlNode::GetParent(nullptr), nullptr);
    EXPECT_THAT(AssertionRecorder::Take(), testing::AllOf(testing::SizeIs(3), Each("this, AvlNode.h")));
    EXPECT_EQ(AvlNode::GetSibling(nullptr), nullptr);
    EXPECT_EQ(AvlNode::GetLeftmost(nullptr), nullptr);
    EXPECT_EQ(AvlNode::GetRightmost(nullptr), nullptr);
    EXPECT_EQ(AvlNode::GetNextAncestor(nullptr), nullptr);
    EXPECT_EQ(AvlNode::GetNext(nullptr), nullptr);
    EXPECT_THAT(AssertionRecorder::Take(), testing::AllOf(testing::SizeIs(5), Each("this, AvlNode")));
}

TEST_F(AvlNodeTest, InsertingNullIsReportedAndChangesNothing) {
    EXPECT_EQ(AvlNode::InsertAfter(nullptr, nullptr), nullptr);
    AvlNode* root = Append(3);
    EXPECT_EQ(AvlNode::InsertBefore(nullptr, &m_Nodes[0]), root);
    EXPECT_THAT(GetOrder(root), ElementsAre(0, 1, 2));
    EXPECT_THAT(AssertionRecorder::Take(), ElementsAre("node_to_insert, AvlNode", "node_to_insert, AvlNode"));
}

TEST_F(AvlNodeTest, RightChildThatPointsElsewhereIsReported) {
    Append(2);
    RawNode raw(m_Nodes[1]);
    raw.m_Parent = nullptr;
    raw.WriteTo(m_Nodes[1]);
    AvlNode::GetRight(&m_Nodes[0]);
    EXPECT_THAT(AssertionRecorder::Take(), ElementsAre("m_Child->m_Parent == this, AvlNode.h"));
}

TEST_F(AvlNodeTest, RightChildThatClaimsToBeLeftIsReported) {
    AvlNode* root = Append(3);
    RawNode raw(m_Nodes[2]);
    raw.m_Word |= 1U;
    raw.WriteTo(m_Nodes[2]);
    AvlNode::GetRight(root);
    EXPECT_THAT(AssertionRecorder::Take(), ElementsAre("!ret->m_IsLeft, AvlNode.h"));
}

TEST_F(AvlNodeTest, ParentThatDisownsItsLeftChildIsReported) {
    AvlNode* root = Append(3);
    RawNode raw(*root);
    raw.m_Child = &m_Nodes[2];
    raw.WriteTo(*root);
    AvlNode::GetParent(&m_Nodes[0]);
    EXPECT_THAT(AssertionRecorder::Take(), ElementsAre("ret && ret->m_Child == this, AvlNode.h"));
}

TEST_F(AvlNodeTest, CountOfZeroIsReported) {
    AvlNode node;
    RawNode raw(node);
    raw.m_Word = 0;
    raw.WriteTo(node);
    node.MarkAllDirty();
    EXPECT_TRUE(node.IsDirty());
    EXPECT_THAT(AssertionRecorder::Take(), ElementsAre("this->m_SubTreeNodesCount > 0, AvlNode"));
}

/// A lone node that claims a balance.
void Forge(AvlNode& node, std::uint32_t balance) {
    RawNode raw(node);
    raw.m_Word |= (balance & 7U) << 1U;
    raw.WriteTo(node);
}

TEST_F(AvlNodeTest, ImpossibleBalanceIsReported) {
    std::array<AvlNode, 2> nodes;
    Forge(nodes[0], 2);
    AvlNode::InsertAfter(&nodes[1], nodes.data());
    EXPECT_THAT(AssertionRecorder::Take(), ElementsAre("false, AvlNode"));
}

TEST_F(AvlNodeTest, RightHeavyNodeWithoutARightChildIsReported) {
    std::array<AvlNode, 2> nodes;
    Forge(nodes[0], 3);
    AvlNode::InsertBefore(&nodes[1], nodes.data());
    EXPECT_THAT(AssertionRecorder::Take(), ElementsAre("right, AvlNode"));
}

TEST_F(AvlNodeTest, LeftHeavyNodeWithoutALeftChildIsReported) {
    std::array<AvlNode, 2> nodes;
    Forge(nodes[0], 5); // -3 in three bits
    AvlNode::InsertAfter(&nodes[1], nodes.data());
    EXPECT_THAT(AssertionRecorder::Take(), ElementsAre("left, AvlNode"));
}

} // namespace
