#ifndef QRL_LIB_CONTAINERS_AVLNODE_H
#define QRL_LIB_CONTAINERS_AVLNODE_H

#include "lib/utils/Assert.h"

#include <cstdint>

namespace base {

/// The links of a node in a balanced binary tree whose order is that of insertion; the payload comes in a derived
/// class.
///
/// Two pointers stand for three. `m_Child` is the left child, or the right one where there is no left one. A left child
/// that has a sibling points to that sibling, and any other node points to its parent:
///
///             parent
///            /      ^
///     m_Child        m_Parent
///          v          \                      .
///        left ------> right
///           m_Parent
///
/// Each node counts the nodes of its subtree, itself included, up to 134217727. Data that a tree derives from a subtree
/// is refreshed late: a changed node and all above it are marked dirty.
///
/// Navigation is static and takes the node as an argument, so that a null one can be reported; it then gives null.
class AvlNode {
public:
    AvlNode() = default;
    ~AvlNode() = default;
    AvlNode(const AvlNode&) = delete;
    AvlNode& operator=(const AvlNode&) = delete;
    AvlNode(AvlNode&&) = delete;
    AvlNode& operator=(AvlNode&&) = delete;

    bool IsLeft() const { return m_IsLeft; }
    /// The height of the right subtree minus that of the left one: -1, 0 or 1 in a tree at rest.
    int GetBalance() const { return m_Balance; }
    std::uint32_t GetSubTreeNodesCount() const { return m_SubTreeNodesCount; }
    bool IsDirty() const { return m_IsDirty; }

    static AvlNode* GetLeft(const AvlNode* node);
    static AvlNode* GetRight(const AvlNode* node);
    static AvlNode* GetParent(const AvlNode* node);
    /// The other child of the parent, null when there is none.
    static AvlNode* GetSibling(const AvlNode* node);
    /// The first node of the subtree.
    static AvlNode* GetLeftmost(AvlNode* node);
    /// The last node of the subtree.
    static AvlNode* GetRightmost(AvlNode* node);
    /// The nearest ancestor that comes after the node; null for the nodes on the right edge of the tree.
    static AvlNode* GetNextAncestor(const AvlNode* node);
    /// The node that comes after this one; null after the last.
    static AvlNode* GetNext(const AvlNode* node);

    /// Puts a node behind or ahead of another one, into the tree of that one, and returns the tree's new root. Without
    /// a position the node is a tree of its own. A null node is reported and changes nothing.
    static AvlNode* InsertAfter(AvlNode* node_to_insert, AvlNode* position);
    static AvlNode* InsertBefore(AvlNode* node_to_insert, AvlNode* position);

    /// Makes two balanced subtrees of known heights, null with height 0, the children of this node, and returns its
    /// height. The left one is as high as the right one or one higher; otherwise it is reported.
    int JoinBalanced(AvlNode* left, int left_height, AvlNode* right, int right_height);

    /// A dirty node without relatives, on the side where it was.
    void Reset();
    /// Counts the subtree anew from what the children say, and marks the node dirty.
    void UpdateCount();
    /// UpdateCount for the node and all its ancestors; returns the root.
    AvlNode* UpdateCountsToRoot();
    /// Marks the whole subtree.
    void MarkAllDirty();
    void ClearDirty() { m_IsDirty = false; }

private:
    void SetChildren(AvlNode* left, AvlNode* right);
    void AddHeight(bool atLeft);
    static AvlNode* InsertNextTo(AvlNode* node_to_insert, AvlNode* position, bool atLeft);
    static AvlNode* InsertAtEdge(AvlNode* root, AvlNode* node_to_insert, bool atLeft, bool& hasGrown);
    static AvlNode* ClimbFrom(AvlNode* node, bool atLeft);
    static bool ApplyBalance(AvlNode*& root);
    static bool RebalanceRightHeavy(AvlNode*& root);
    static bool RebalanceLeftHeavy(AvlNode*& root);
    static bool RotateLeft(AvlNode*& root);
    static bool RotateRight(AvlNode*& root);
    static bool RotateRightLeft(AvlNode*& root);
    static bool RotateLeftRight(AvlNode*& root);

    AvlNode* m_Child = nullptr;
    AvlNode* m_Parent = nullptr;
    std::uint32_t m_IsLeft : 1 = 0;
    std::int32_t m_Balance : 3 = 0; ///< -2 and 2 only while a rotation is due
    std::uint32_t m_SubTreeNodesCount : 27 = 1;
    std::uint32_t m_IsDirty : 1 = 1;
};

inline AvlNode* AvlNode::GetLeft(const AvlNode* node) {
    QRL_ASSERT("AvlNode.h", "this", node);
    return node && node->m_Child && node->m_Child->m_IsLeft ? node->m_Child : nullptr;
}

inline AvlNode* AvlNode::GetRight(const AvlNode* node) {
    QRL_ASSERT("AvlNode.h", "this", node);
    if (!node || !node->m_Child)
        return nullptr;
    if (!node->m_Child->m_IsLeft) {
        QRL_ASSERT("AvlNode.h", "m_Child->m_Parent == this", node->m_Child->m_Parent == node);
        return node->m_Child;
    }
    AvlNode* ret = node->m_Child->m_Parent;
    if (ret == node)
        return nullptr;
    QRL_ASSERT("AvlNode.h", "!ret->m_IsLeft", ret && !ret->m_IsLeft);
    return ret;
}

inline AvlNode* AvlNode::GetParent(const AvlNode* node) {
    QRL_ASSERT("AvlNode.h", "this", node);
    if (!node || !node->m_Parent)
        return nullptr;
    if (!node->m_IsLeft || node->m_Parent->m_Child == node)
        return node->m_Parent;
    AvlNode* ret = node->m_Parent->m_Parent;
    QRL_ASSERT("AvlNode.h", "ret && ret->m_Child == this", ret && ret->m_Child == node);
    return ret;
}

} // namespace base

#endif
