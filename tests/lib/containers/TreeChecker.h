#ifndef QRL_TESTS_LIB_CONTAINERS_TREECHECKER_H
#define QRL_TESTS_LIB_CONTAINERS_TREECHECKER_H

#include "lib/containers/AvlNode.h"
#include "lib/containers/AvlTree.h"
#include "tests/lib/containers/Interval.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <vector>

/// The stored links and the packed word of a node, read from its bytes: what the accessors are checked against.
struct RawNode {
    const base::AvlNode* m_Child = nullptr;
    const base::AvlNode* m_Parent = nullptr;
    std::uint32_t m_Word = 0;

    static constexpr std::size_t k_Size = 2 * sizeof(void*) + sizeof(std::uint32_t);

    explicit RawNode(const base::AvlNode& node) { std::memcpy(static_cast<void*>(this), &node, k_Size); }
    /// Forges a node, for tests of what a broken link does.
    void WriteTo(base::AvlNode& node) const { std::memcpy(static_cast<void*>(&node), this, k_Size); }

    bool IsLeft() const { return (m_Word & 1U) != 0; }
    int GetBalance() const {
        const int bits = int(m_Word >> 1U & 7U);
        return bits < 4 ? bits : bits - 8;
    }
    std::uint32_t GetCount() const { return m_Word >> 4U & 0x7FFFFFFU; }
    bool IsDirty() const { return m_Word >> 31U != 0; }
};

/// Gives a test what a tree keeps to itself.
template <class TTree>
class Inspected_T : public TTree {
public:
    using TTree::GetPool;
    using TTree::GetRootNode;
    using TTree::TTree;
};

/// Checks links, balances, counts and dirty bits of a whole tree, and gives its nodes in order. Each fault is one
/// failure of the running test. Heights are counted anew; nothing that a node says of itself is believed.
class TreeChecker {
public:
    explicit TreeChecker(base::AvlNode* root) {
        if (!root)
            return;
        EXPECT_EQ(RawNode(*root).m_Parent, nullptr);
        EXPECT_EQ(base::AvlNode::GetParent(root), nullptr);
        EXPECT_EQ(base::AvlNode::GetSibling(root), nullptr);
        m_Height = Visit(root).m_Height;
    }

    const std::vector<base::AvlNode*>& GetNodes() const { return m_Nodes; }
    int GetHeight() const { return m_Height; }

private:
    struct Measure {
        int m_Height = 0;
        std::uint32_t m_Count = 0;
    };

    Measure Visit(base::AvlNode* node) {
        const RawNode raw(*node);
        base::AvlNode* left = base::AvlNode::GetLeft(node);
        base::AvlNode* right = base::AvlNode::GetRight(node);
        EXPECT_EQ(raw.m_Child, left ? left : right);
        if (left)
            VisitLink(left, node, right, right ? right : node, true);
        if (right)
            VisitLink(right, node, left, node, false);
        const Measure below = left ? Visit(left) : Measure{};
        m_Nodes.push_back(node);
        const Measure above = right ? Visit(right) : Measure{};
        const int balance = above.m_Height - below.m_Height;
        EXPECT_LE(std::abs(balance), 1);
        EXPECT_EQ(raw.GetBalance(), balance);
        EXPECT_EQ(node->GetBalance(), balance);
        const std::uint32_t count = below.m_Count + above.m_Count + 1;
        EXPECT_EQ(raw.GetCount(), count);
        EXPECT_EQ(node->GetSubTreeNodesCount(), count);
        EXPECT_EQ(raw.IsDirty(), node->IsDirty());
        return {1 + (balance > 0 ? above.m_Height : below.m_Height), count};
    }

    static void VisitLink(const base::AvlNode* child, const base::AvlNode* parent, const base::AvlNode* sibling,
        const base::AvlNode* stored, bool isLeft) {
        EXPECT_EQ(RawNode(*child).m_Parent, stored);
        EXPECT_EQ(RawNode(*child).IsLeft(), isLeft);
        EXPECT_EQ(child->IsLeft(), isLeft);
        EXPECT_EQ(base::AvlNode::GetParent(child), parent);
        EXPECT_EQ(base::AvlNode::GetSibling(child), sibling);
    }

    std::vector<base::AvlNode*> m_Nodes;
    int m_Height = 0;
};

/// Checks a whole tree at rest against the elements that it should hold: the invariants of TreeChecker, no dirty node,
/// the walk, the size and the pool.
template <class TTree>
std::vector<base::AvlNode*> CheckTree_T(const Inspected_T<TTree>& tree) {
    const TreeChecker checker(tree.GetRootNode());
    const std::vector<base::AvlNode*>& nodes = checker.GetNodes();
    EXPECT_EQ(tree.GetSize(), nodes.size());
    EXPECT_EQ(tree.IsEmpty(), nodes.empty());
    EXPECT_EQ(tree.GetPool().GetUsedBlocks(), nodes.size());
    EXPECT_GE(tree.GetPool().GetTotalSlots(), nodes.size());
    std::size_t i = 0;
    for (auto at = tree.begin(); at != tree.end(); ++at, ++i) {
        EXPECT_LT(i, nodes.size());
        if (i >= nodes.size() || at.GetNode() != nodes[i]) {
            ADD_FAILURE() << "the walk leaves the order at " << i;
            break;
        }
        EXPECT_FALSE(nodes[i]->IsDirty());
    }
    EXPECT_EQ(i, nodes.size());
    return nodes;
}

#endif
