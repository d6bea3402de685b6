#include "lib/containers/AvlNode.h"

namespace base {

AvlNode* AvlNode::GetSibling(const AvlNode* node) {
    QRL_ASSERT("AvlNode", "this", node);
    const AvlNode* parent = node ? GetParent(node) : nullptr;
    if (!parent)
        return nullptr;
    return node->m_IsLeft ? GetRight(parent) : GetLeft(parent);
}

AvlNode* AvlNode::GetLeftmost(AvlNode* node) {
    QRL_ASSERT("AvlNode", "this", node);
    if (!node)
        return nullptr;
    while (AvlNode* left = GetLeft(node))
        node = left;
    return node;
}

AvlNode* AvlNode::GetRightmost(AvlNode* node) {
    QRL_ASSERT("AvlNode", "this", node);
    if (!node)
        return nullptr;
    while (AvlNode* right = GetRight(node))
        node = right;
    return node;
}

AvlNode* AvlNode::GetNextAncestor(const AvlNode* node) {
    QRL_ASSERT("AvlNode", "this", node);
    if (!node)
        return nullptr;
    AvlNode* parent = GetParent(node);
    while (parent && !node->m_IsLeft) {
        node = parent;
        parent = GetParent(node);
    }
    return parent;
}

AvlNode* AvlNode::GetNext(const AvlNode* node) {
    QRL_ASSERT("AvlNode", "this", node);
    if (!node)
        return nullptr;
    AvlNode* right = GetRight(node);
    return right ? GetLeftmost(right) : GetNextAncestor(node);
}

void AvlNode::Reset() {
    m_Child = nullptr;
    m_Parent = nullptr;
    m_Balance = 0;
    m_SubTreeNodesCount = 1;
    m_IsDirty = true;
}

void AvlNode::UpdateCount() {
    const AvlNode* left = GetLeft(this);
    const AvlNode* right = GetRight(this);
    const std::uint32_t below = (left ? left->m_SubTreeNodesCount : 0U) + (right ? right->m_SubTreeNodesCount : 0U);
    m_SubTreeNodesCount = (below + 1) & 0x7FFFFFFU;
    m_IsDirty = true;
}

AvlNode* AvlNode::UpdateCountsToRoot() {
    AvlNode* node = this;
    node->UpdateCount();
    while (AvlNode* parent = GetParent(node)) {
        parent->UpdateCount();
        node = parent;
    }
    return node;
}

// NOLINTNEXTLINE(misc-no-recursion): as deep as the balanced tree is high
void AvlNode::MarkAllDirty() {
    QRL_ASSERT("AvlNode", "this->m_SubTreeNodesCount > 0", this->m_SubTreeNodesCount > 0);
    m_IsDirty = true;
    if (AvlNode* left = GetLeft(this))
        left->MarkAllDirty();
    if (AvlNode* right = GetRight(this))
        right->MarkAllDirty();
}

int AvlNode::JoinBalanced(AvlNode* left, int left_height, AvlNode* right, int right_height) {
    SetChildren(left, right);
    UpdateCount();
    QRL_ASSERT("AvlTree.h", "left_height >= right_height", left_height >= right_height);
    m_Balance = left_height > right_height ? -1 : 0;
    return left_height + 1;
}

AvlNode* AvlNode::InsertAfter(AvlNode* node_to_insert, AvlNode* position) {
    return InsertNextTo(node_to_insert, position, false);
}

AvlNode* AvlNode::InsertBefore(AvlNode* node_to_insert, AvlNode* position) {
    return InsertNextTo(node_to_insert, position, true);
}

/// Links both children, whatever links they had: the one place that knows where the pointers go.
void AvlNode::SetChildren(AvlNode* left, AvlNode* right) {
    m_Child = left ? left : right;
    if (left) {
        left->m_IsLeft = true;
        left->m_Parent = right ? right : this;
    }
    if (right) {
        right->m_IsLeft = false;
        right->m_Parent = this;
    }
}

/// Notes that the subtree on that side has become higher by one.
void AvlNode::AddHeight(bool atLeft) {
    if (atLeft)
        --m_Balance;
    else
        ++m_Balance;
}

/// `atLeft` tells whether the node goes ahead of the position. It becomes the last node of the position's left subtree
/// or the first one of its right subtree.
AvlNode* AvlNode::InsertNextTo(AvlNode* node_to_insert, AvlNode* position, bool atLeft) {
    QRL_ASSERT("AvlNode", "node_to_insert", node_to_insert);
    if (!node_to_insert)
        return position ? position->UpdateCountsToRoot() : nullptr;
    node_to_insert->Reset();
    if (!position)
        return node_to_insert;
    AvlNode* left = GetLeft(position);
    AvlNode* right = GetRight(position);
    AvlNode*& host = atLeft ? left : right;
    bool hasGrown = true;
    host = host ? InsertAtEdge(host, node_to_insert, !atLeft, hasGrown) : node_to_insert;
    position->SetChildren(left, right);
    if (hasGrown)
        return ClimbFrom(position, atLeft);
    return position->UpdateCountsToRoot();
}

/// Makes the node the first or the last one of a subtree, and returns the root that the subtree has then.
// NOLINTNEXTLINE(misc-no-recursion): as deep as the balanced tree is high
AvlNode* AvlNode::InsertAtEdge(AvlNode* root, AvlNode* node_to_insert, bool atLeft, bool& hasGrown) {
    QRL_ASSERT("AvlNode", "root", root);
    AvlNode* left = GetLeft(root);
    AvlNode* right = GetRight(root);
    AvlNode*& host = atLeft ? left : right;
    hasGrown = true;
    host = host ? InsertAtEdge(host, node_to_insert, atLeft, hasGrown) : node_to_insert;
    root->SetChildren(left, right);
    root->UpdateCount();
    if (hasGrown) {
        root->AddHeight(atLeft);
        hasGrown = !ApplyBalance(root);
    }
    return root;
}

/// Goes on from a node one of whose subtrees has become higher, and restores balances and counts up to the root, which
/// it returns. Where the node hangs is read before a rotation moves it.
AvlNode* AvlNode::ClimbFrom(AvlNode* node, bool atLeft) {
    for (;;) {
        AvlNode* parent = GetParent(node);
        AvlNode* sibling = GetSibling(node);
        const bool isLeft = node->m_IsLeft;
        node->UpdateCount();
        node->AddHeight(atLeft);
        const bool isSettled = ApplyBalance(node);
        if (!parent) {
            node->m_Parent = nullptr;
            return node;
        }
        parent->SetChildren(isLeft ? node : sibling, isLeft ? sibling : node);
        if (isSettled)
            return parent->UpdateCountsToRoot();
        node = parent;
        atLeft = isLeft;
    }
}

/// Restores the balance of a subtree one side of which has become higher. True when its height is what it was.
bool AvlNode::ApplyBalance(AvlNode*& root) {
    switch (root->m_Balance) {
    case -2:
        return RebalanceLeftHeavy(root);
    case 2:
        return RebalanceRightHeavy(root);
    case -1:
    case 1:
        return false;
    case 0:
        return true;
    default:
        QRL_ASSERT("AvlNode", "false", false);
        return false;
    }
}

bool AvlNode::RebalanceRightHeavy(AvlNode*& root) {
    QRL_ASSERT("AvlNode", "root && root->m_Balance == +2", root && root->m_Balance == +2);
    const AvlNode* right = GetRight(root);
    QRL_ASSERT("AvlNode", "right", right);
    if (!right)
        return false;
    return right->m_Balance == -1 ? RotateRightLeft(root) : RotateLeft(root);
}

bool AvlNode::RebalanceLeftHeavy(AvlNode*& root) {
    QRL_ASSERT("AvlNode", "root && root->m_Balance == -2", root && root->m_Balance == -2);
    const AvlNode* left = GetLeft(root);
    QRL_ASSERT("AvlNode", "left", left);
    if (!left)
        return false;
    return left->m_Balance == +1 ? RotateLeftRight(root) : RotateRight(root);
}

/// The right child takes the root's place:  r(a, c(b, d))  becomes  c(r(a, b), d).
bool AvlNode::RotateLeft(AvlNode*& root) {
    AvlNode* r = root;
    AvlNode* c = GetRight(r);
    AvlNode* d = GetRight(c);
    const bool isHeightUnchanged = c->m_Balance != 0;
    r->SetChildren(GetLeft(r), GetLeft(c));
    r->UpdateCount();
    c->SetChildren(r, d);
    c->UpdateCount();
    --c->m_Balance;
    r->m_Balance = -c->m_Balance;
    root = c;
    return isHeightUnchanged;
}

/// The left child takes the root's place:  r(c(a, b), d)  becomes  c(a, r(b, d)).
bool AvlNode::RotateRight(AvlNode*& root) {
    AvlNode* r = root;
    AvlNode* c = GetLeft(r);
    AvlNode* a = GetLeft(c);
    const bool isHeightUnchanged = c->m_Balance != 0;
    r->SetChildren(GetRight(c), GetRight(r));
    r->UpdateCount();
    c->SetChildren(a, r);
    c->UpdateCount();
    ++c->m_Balance;
    r->m_Balance = -c->m_Balance;
    root = c;
    return isHeightUnchanged;
}

/// The right child's left child takes the root's place:  r(a, c(p(b, d), e))  becomes  p(r(a, b), c(d, e)).
bool AvlNode::RotateRightLeft(AvlNode*& root) {
    AvlNode* r = root;
    AvlNode* c = GetRight(r);
    AvlNode* p = GetLeft(c);
    AvlNode* b = GetLeft(p);
    AvlNode* d = GetRight(p);
    c->SetChildren(d, GetRight(c));
    c->UpdateCount();
    r->SetChildren(GetLeft(r), b);
    r->UpdateCount();
    p->SetChildren(r, c);
    p->UpdateCount();
    r->m_Balance = p->m_Balance > 0 ? -p->m_Balance : 0;
    c->m_Balance = p->m_Balance > 0 ? 0 : -p->m_Balance;
    p->m_Balance = 0;
    root = p;
    return true;
}

/// The left child's right child takes the root's place:  r(c(a, p(b, d)), e)  becomes  p(c(a, b), r(d, e)).
bool AvlNode::RotateLeftRight(AvlNode*& root) {
    AvlNode* r = root;
    AvlNode* c = GetLeft(r);
    AvlNode* p = GetRight(c);
    AvlNode* b = GetLeft(p);
    AvlNode* d = GetRight(p);
    AvlNode* e = GetRight(r);
    c->SetChildren(GetLeft(c), b);
    c->UpdateCount();
    r->SetChildren(d, e);
    r->UpdateCount();
    p->SetChildren(c, r);
    p->UpdateCount();
    r->m_Balance = p->m_Balance < 0 ? -p->m_Balance : 0;
    c->m_Balance = p->m_Balance < 0 ? 0 : -p->m_Balance;
    p->m_Balance = 0;
    root = p;
    return true;
}

} // namespace base
