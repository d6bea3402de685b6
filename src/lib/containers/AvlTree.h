#ifndef QRL_LIB_CONTAINERS_AVLTREE_H
#define QRL_LIB_CONTAINERS_AVLTREE_H

#include "lib/containers/AvlNode.h"
#include "lib/utils/Allocators_T.h"
#include "lib/utils/Assert.h"

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace base {

/// A sequence in a balanced binary tree. Its order is the order of positions: elements are put ahead of or behind
/// others, and no two are ever compared.
///
/// Building from a list takes linear time, an insertion logarithmic time. A tree may keep data about whole subtrees in
/// its elements: the update hook refreshes them, children first, after every structural change and for the changed part
/// of the tree only. Nodes come from a pool of the tree's own and stay where they are, so iterators stay valid. Trees
/// aren't copied. T must have a default constructor.
template <class T>
class AvlTree {
public:
    /// A node with its element.
    class Node : public AvlNode {
    public:
        template <class... TArgs>
        explicit Node(TArgs&&... args) : m_Payload(std::forward<TArgs>(args)...) {}

        T m_Payload;
    };

    class Iterator;

    /// Refreshes what the element of `tree`, the root of a subtree, says about that subtree. Its children are up to
    /// date.
    using UpdateHook = void (*)(Node* tree);

    /// An empty tree. Without a hook there is nothing to refresh.
    explicit AvlTree(UpdateHook update = nullptr) : m_Update(update) {}
    /// A tree of the elements of `list`, as balanced as can be.
    template <class TValue>
    explicit AvlTree(const std::vector<TValue>& list, UpdateHook update = nullptr);
    ~AvlTree() { Clear(); }
    AvlTree(const AvlTree&) = delete;
    AvlTree& operator=(const AvlTree&) = delete;
    AvlTree(AvlTree&&) = delete;
    AvlTree& operator=(AvlTree&&) = delete;

    bool IsEmpty() const { return !m_Root; }
    std::uint32_t GetSize() const { return m_Root ? m_Root->GetSubTreeNodesCount() : 0; }

    Iterator begin() const { return {this, m_First}; }
    Iterator end() const { return {this, nullptr}; }
    /// Where walks that go down the tree start; the end of an empty tree.
    Iterator GetRoot() const { return {this, m_Root}; }

    /// Puts an element ahead of the position; ahead of the end it becomes the last one. Returns its position. A
    /// position in another tree is reported.
    template <class TValue>
    Iterator InsertBefore(const Iterator& before_what_it, const TValue& value);
    /// Puts an element behind the position; behind the end it becomes the first one. Returns its position. A position
    /// in another tree is reported.
    template <class TValue>
    Iterator InsertAfter(const Iterator& after_what_it, const TValue& value);

    /// Fills the tree with the elements of `list`. The tree should be empty; otherwise that is reported, and what it
    /// held goes.
    template <class TValue>
    void Build(const std::vector<TValue>& list);

    /// Runs the hook on the dirty nodes of a subtree, children first. A clean node vouches for its whole subtree.
    // NOLINTNEXTLINE(misc-no-recursion): as deep as the balanced tree is high
    void UpdateDirty(Node* node) const;

    /// Whether both hold equal elements in the same order, however the trees are shaped.
    bool operator==(const AvlTree& to) const;

protected:
    Node* GetRootNode() const { return m_Root; }
    const BlockAllocator_T<Node>& GetPool() const { return m_Pool; }
    static Node* GetLeft(const Node* node) { return static_cast<Node*>(AvlNode::GetLeft(node)); }
    static Node* GetRight(const Node* node) { return static_cast<Node*>(AvlNode::GetRight(node)); }
    static Node* GetNextAncestor(const Node* node) { return static_cast<Node*>(AvlNode::GetNextAncestor(node)); }

private:
    static constexpr std::uint32_t k_InitialPoolSize = 4;

    template <class TValue>
    Node* NewNode(const TValue& value);
    template <class TValue>
    // NOLINTNEXTLINE(misc-no-recursion): as deep as the balanced tree is high
    Node* BuildBalanced(const TValue* list, std::size_t count, int& height);
    void PushFront(Node* node);
    void PushBack(Node* node);
    void SetRoot(AvlNode* root);
    void Clear();
    // NOLINTNEXTLINE(misc-no-recursion): as deep as the balanced tree is high
    void Destroy(Node* node);

    Node* m_First = nullptr;
    Node* m_Last = nullptr;
    Node* m_Root = nullptr;
    UpdateHook m_Update;
    BlockAllocator_T<Node> m_Pool{k_InitialPoolSize};
    [[maybe_unused]] std::uint8_t m_Reserved = 0; ///< always 0
};

/// A position in a tree: an element, or the end behind the last one. Elements can't be changed through it.
template <class T>
class AvlTree<T>::Iterator {
public:
    /// The end of no tree.
    Iterator() = default;
    Iterator(const AvlTree* tree, Node* node) : m_TreePtr(tree), m_CurrentNode(node) {}

    /// The element. The end is reported and gives a default-constructed one.
    const T& operator*() const;
    const T* operator->() const { return &**this; }
    /// Moves on to the next element; the end is reported and stays.
    Iterator& operator++();
    /// Whether both stand at the same element, or both at an end.
    bool operator==(const Iterator& other) const { return m_CurrentNode == other.m_CurrentNode; }

    // The children, where the end stands for none. Navigation from the end is reported and gives the end.
    Iterator GetLeft() const;
    Iterator GetRight() const;

    /// The node, for tests of links; null at the end.
    const Node* GetNode() const { return m_CurrentNode; }

protected:
    bool HasNode() const;

    const AvlTree* m_TreePtr = nullptr;
    Node* m_CurrentNode = nullptr;

private:
    friend class AvlTree;
};

template <class T>
template <class TValue>
AvlTree<T>::AvlTree(const std::vector<TValue>& list, UpdateHook update) : m_Update(update) {
    Build(list);
}

template <class T>
template <class TValue>
typename AvlTree<T>::Iterator AvlTree<T>::InsertBefore(const Iterator& before_what_it, const TValue& value) {
    QRL_ASSERT("AvlTree.h", "before_what_it.m_TreePtr == this", before_what_it.m_TreePtr == this);
    Node* node = NewNode(value);
    if (!m_Root || before_what_it.m_CurrentNode == m_First)
        PushFront(node);
    else if (!before_what_it.m_CurrentNode)
        PushBack(node);
    else
        SetRoot(AvlNode::InsertBefore(node, before_what_it.m_CurrentNode));
    return {this, node};
}

template <class T>
template <class TValue>
typename AvlTree<T>::Iterator AvlTree<T>::InsertAfter(const Iterator& after_what_it, const TValue& value) {
    QRL_ASSERT("AvlTree.h", "after_what_it.m_TreePtr == this", after_what_it.m_TreePtr == this);
    Node* node = NewNode(value);
    if (!m_Root || after_what_it.m_CurrentNode == m_Last)
        PushBack(node);
    else if (!after_what_it.m_CurrentNode)
        PushFront(node);
    else
        SetRoot(AvlNode::InsertAfter(node, after_what_it.m_CurrentNode));
    return {this, node};
}

template <class T>
template <class TValue>
void AvlTree<T>::Build(const std::vector<TValue>& list) {
    QRL_ASSERT("AvlTree.h", "IsEmpty()", IsEmpty());
    Clear();
    if (list.empty())
        return;
    int height = 0;
    m_Root = BuildBalanced(list.data(), list.size(), height);
    m_First = static_cast<Node*>(AvlNode::GetLeftmost(m_Root));
    m_Last = static_cast<Node*>(AvlNode::GetRightmost(m_Root));
    m_Root->MarkAllDirty();
    UpdateDirty(m_Root);
}

template <class T>
void AvlTree<T>::UpdateDirty(Node* node) const {
    if (!node || !node->IsDirty())
        return;
    UpdateDirty(GetLeft(node));
    UpdateDirty(GetRight(node));
    if (m_Update)
        m_Update(node);
    node->ClearDirty();
}

template <class T>
bool AvlTree<T>::operator==(const AvlTree& to) const {
    if (IsEmpty() || to.IsEmpty())
        return IsEmpty() && to.IsEmpty();
    if (GetSize() != to.GetSize())
        return false;
    Iterator i = begin();
    Iterator ti = to.begin();
    for (; i != end() && ti != to.end(); ++i, ++ti) {
        if (!(*i == *ti))
            return false;
    }
    QRL_ASSERT("AvlTree.h", "i == end() && ti == to.end()", i == end() && ti == to.end());
    return true;
}

template <class T>
template <class TValue>
typename AvlTree<T>::Node* AvlTree<T>::NewNode(const TValue& value) {
    Node* node = ::new (m_Pool.Allocate()) Node(value);
    QRL_ASSERT("AvlTree.h", "node", node);
    return node;
}

/// Makes a balanced tree of `count` elements; the left side is never the smaller one.
template <class T>
template <class TValue>
typename AvlTree<T>::Node* AvlTree<T>::BuildBalanced(const TValue* list, std::size_t count, int& height) {
    if (count == 0) {
        height = 0;
        return nullptr;
    }
    const std::size_t right_count = (count - 1) / 2;
    const std::size_t left_count = count - right_count - 1;
    int left_height = 0;
    int right_height = 0;
    Node* left = BuildBalanced(list, left_count, left_height);
    Node* right = BuildBalanced(list + left_count + 1, right_count, right_height);
    Node* node = NewNode(list[left_count]);
    height = node->JoinBalanced(left, left_height, right, right_height);
    return node;
}

template <class T>
void AvlTree<T>::PushFront(Node* node) {
    SetRoot(AvlNode::InsertBefore(node, m_First));
    m_First = node;
    if (!m_Last)
        m_Last = node;
}

template <class T>
void AvlTree<T>::PushBack(Node* node) {
    SetRoot(AvlNode::InsertAfter(node, m_Last));
    m_Last = node;
    if (!m_First)
        m_First = node;
}

template <class T>
void AvlTree<T>::SetRoot(AvlNode* root) {
    m_Root = static_cast<Node*>(root);
    UpdateDirty(m_Root);
}

template <class T>
void AvlTree<T>::Clear() {
    Destroy(m_Root);
    m_First = nullptr;
    m_Last = nullptr;
    m_Root = nullptr;
}

template <class T>
void AvlTree<T>::Destroy(Node* node) {
    if (!node)
        return;
    // Both are read first: a right child is found through its left sibling.
    Node* left = GetLeft(node);
    Node* right = GetRight(node);
    Destroy(left);
    Destroy(right);
    m_Pool.Deallocate(node);
}

template <class T>
const T& AvlTree<T>::Iterator::operator*() const {
    QRL_ASSERT("AvlTree.h", "m_CurrentNode", m_CurrentNode);
    static const T k_Nothing{};
    return m_CurrentNode ? m_CurrentNode->m_Payload : k_Nothing;
}

template <class T>
typename AvlTree<T>::Iterator& AvlTree<T>::Iterator::operator++() {
    m_CurrentNode = static_cast<Node*>(AvlNode::GetNext(m_CurrentNode));
    return *this;
}

template <class T>
typename AvlTree<T>::Iterator AvlTree<T>::Iterator::GetLeft() const {
    return {m_TreePtr, HasNode() ? AvlTree::GetLeft(m_CurrentNode) : nullptr};
}

template <class T>
typename AvlTree<T>::Iterator AvlTree<T>::Iterator::GetRight() const {
    return {m_TreePtr, HasNode() ? AvlTree::GetRight(m_CurrentNode) : nullptr};
}

template <class T>
bool AvlTree<T>::Iterator::HasNode() const {
    QRL_ASSERT("AvlTree.h", "m_TreePtr && m_CurrentNode", m_TreePtr && m_CurrentNode);
    return m_TreePtr && m_CurrentNode;
}

} // namespace base

#endif
