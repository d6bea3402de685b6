#ifndef QRL_LIB_CONTAINERS_RANGEAVLTREE_H
#define QRL_LIB_CONTAINERS_RANGEAVLTREE_H

#include "lib/containers/AvlTree.h"
#include "lib/utils/Assert.h"

#include <cstdint>
#include <vector>

namespace base {

/// Which subtrees a walk passes over.
enum FilterMode : std::uint32_t {
    k_NoFilter = 0,
    k_SkipOutside = 1, ///< those whose bound doesn't meet the filter
    k_SkipInside = 2,  ///< those whose bound lies in the filter, up to its border
};

/// How a tree gets the bound of one element. Specialise it, or hand another type to the tree, where GetBox isn't it.
template <class T, class TBound>
struct BoundOf_T {
    static TBound GetBound(const T& value) { return value.GetBox(); }
};

/// An element and the bound of its subtree. The bound depends on the tree's shape and has no part in equality.
template <class T, class TBound>
struct BoundedElement_T {
    BoundedElement_T() = default;
    explicit BoundedElement_T(const T& value) : m_Value(value) {}
    bool operator==(const BoundedElement_T& other) const { return m_Value == other.m_Value; }

    T m_Value;
    TBound m_Bound;
};

/// An AvlTree whose nodes know the bound of their subtree, and walks that pass over subtrees by that bound.
///
/// A TBound is a value with GetUnion, GetIntersection, Intersects, GetHalfPerimeter and `==`; a default-constructed one
/// is empty and adds nothing to a union. A walk that meets k elements of n tests O(k log n) bounds.
template <class T, class TBound, class TBoundOf = BoundOf_T<T, TBound>>
class RangeAvlTree : public AvlTree<BoundedElement_T<T, TBound>> {
public:
    using ParentClass = AvlTree<BoundedElement_T<T, TBound>>;
    using Node = typename ParentClass::Node;
    class Iterator;

    /// Where a filtered walk starts.
    enum StartPosition : std::uint32_t {
        k_AtFirst = 0, ///< the first element that the filter lets through
        k_AtLast = 1,  ///< the last one
        k_AtNode = 3,  ///< a given node, whatever the filter says
    };

    RangeAvlTree() : ParentClass(&UpdateBound) {}
    /// A tree of the elements of `list`: with `isSequence` in their order and balanced in linear time; otherwise in the
    /// order of Insert, one by one.
    RangeAvlTree(const std::vector<T>& list, bool isSequence);

    /// The bound of all elements, an empty one for an empty tree.
    TBound GetBound() const;

    Iterator begin(FilterMode filter_mode, const TBound& filter) const;
    Iterator begin() const { return begin(k_NoFilter, TBound()); }
    Iterator end() const { return {*this, nullptr, k_NoFilter, TBound(), k_AtNode}; }

    /// Adds an element for which no place in the sequence is asked: it goes where the bounds stay tight.
    void Insert(const T& value);

protected:
    /// The update hook: the element's own bound and those of the children.
    static void UpdateBound(Node* tree);

private:
    static TBound GetBoundOf(const Node* node) { return node ? node->m_Payload.m_Bound : TBound(); }
    static bool PrefersSecond(const TBound& element, const TBound& first, const TBound& second);
    static bool DescendsRight(const TBound& element, const Node* node);
};

/// A walk through the elements of a tree in order, or through those that a filter lets through. The filter decides by
/// the bounds of subtrees: what it skips is out for sure, what it lets through may still have to be looked at.
template <class T, class TBound, class TBoundOf>
class RangeAvlTree<T, TBound, TBoundOf>::Iterator : public AvlTree<BoundedElement_T<T, TBound>>::Iterator {
public:
    using ParentClass = typename AvlTree<BoundedElement_T<T, TBound>>::Iterator;

    /// The end of no tree.
    Iterator() = default;
    /// `node` is where k_AtNode starts; null for the end. Any other start is reported and gives the end.
    Iterator(const RangeAvlTree& tree, Node* node, FilterMode filter_mode, const TBound& filter, StartPosition start);

    /// The element. The end is reported and gives a default-constructed one.
    const T& operator*() const { return ParentClass::operator*().m_Value; }
    const T* operator->() const { return &**this; }
    /// Moves on to the next element under the filter; the end is reported and stays.
    Iterator& operator++();

    FilterMode GetFilterMode() const { return m_FilterMode; }
    const TBound& GetFilter() const { return m_Filter; }

private:
    /// What a walk does at a node.
    enum FilterCode : std::uint32_t {
        k_SkipSubtree = 0,
        k_PassOver = 1, ///< go on to its children, without the node itself
        k_Enter = 2,
        k_Unknown = 3,
    };

    FilterCode GetFilterCode(const Node* node) const;
    // NOLINTNEXTLINE(misc-no-recursion): as deep as the balanced tree is high
    Node* FindFirst(Node* node) const;
    // NOLINTNEXTLINE(misc-no-recursion): as deep as the balanced tree is high
    Node* FindLast(Node* node) const;
    Node* FindNext(Node* start) const;

    TBound m_Filter;
    FilterMode m_FilterMode = k_NoFilter;
};

template <class T, class TBound, class TBoundOf>
RangeAvlTree<T, TBound, TBoundOf>::RangeAvlTree(const std::vector<T>& list, bool isSequence) : RangeAvlTree() {
    if (isSequence) {
        this->Build(list);
        return;
    }
    for (const T& value : list)
        Insert(value);
}

template <class T, class TBound, class TBoundOf>
TBound RangeAvlTree<T, TBound, TBoundOf>::GetBound() const {
    return GetBoundOf(this->GetRoot().GetNode());
}

template <class T, class TBound, class TBoundOf>
typename RangeAvlTree<T, TBound, TBoundOf>::Iterator RangeAvlTree<T, TBound, TBoundOf>::begin(
    FilterMode filter_mode, const TBound& filter) const {
    return {*this, nullptr, filter_mode, filter, k_AtFirst};
}

template <class T, class TBound, class TBoundOf>
void RangeAvlTree<T, TBound, TBoundOf>::Insert(const T& value) {
    const TBound element = TBoundOf::GetBound(value);
    typename ParentClass::Iterator position = this->GetRoot();
    bool isAfter = false;
    while (const Node* node = position.GetNode()) {
        if (node->GetSubTreeNodesCount() == 1)
            break;
        isAfter = DescendsRight(element, node);
        const typename ParentClass::Iterator child = isAfter ? position.GetRight() : position.GetLeft();
        // Next to the node the element is between its own neighbours; further down it should fit better.
        if (!child.GetNode() || !PrefersSecond(TBoundOf::GetBound(node->m_Payload.m_Value), element, child->m_Bound))
            break;
        position = child;
    }
    if (isAfter)
        this->InsertAfter(position, value);
    else
        this->InsertBefore(position, value);
}

template <class T, class TBound, class TBoundOf>
void RangeAvlTree<T, TBound, TBoundOf>::UpdateBound(Node* tree) {
    QRL_ASSERT("RangeAvlTree.h", "tree", tree);
    if (!tree)
        return;
    TBound bound = TBoundOf::GetBound(tree->m_Payload.m_Value);
    if (const Node* left = ParentClass::GetLeft(tree))
        bound = bound.GetUnion(left->m_Payload.m_Bound);
    if (const Node* right = ParentClass::GetRight(tree))
        bound = bound.GetUnion(right->m_Payload.m_Bound);
    tree->m_Payload.m_Bound = bound;
}

/// Whether of two bounds the second is the better host for an element: the one with which the pair, element added, has
/// the shorter outline. A host that would overlap the other bound counts double. The second wins a tie.
template <class T, class TBound, class TBoundOf>
bool RangeAvlTree<T, TBound, TBoundOf>::PrefersSecond(
    const TBound& element, const TBound& first, const TBound& second) {
    const TBound firstGrown = element.GetUnion(first);
    const TBound secondGrown = element.GetUnion(second);
    const auto costOfSecond =
        (first.GetHalfPerimeter() + secondGrown.GetHalfPerimeter()) * (secondGrown.Intersects(first) ? 2 : 1);
    const auto costOfFirst =
        (second.GetHalfPerimeter() + firstGrown.GetHalfPerimeter()) * (firstGrown.Intersects(second) ? 2 : 1);
    return !(costOfSecond > costOfFirst);
}

/// Whether an element does better behind a node than ahead of it.
template <class T, class TBound, class TBoundOf>
bool RangeAvlTree<T, TBound, TBoundOf>::DescendsRight(const TBound& element, const Node* node) {
    const TBound own = TBoundOf::GetBound(node->m_Payload.m_Value);
    const TBound left = GetBoundOf(ParentClass::GetLeft(node)).GetUnion(own);
    const TBound right = GetBoundOf(ParentClass::GetRight(node)).GetUnion(own);
    return PrefersSecond(element, left, right);
}

template <class T, class TBound, class TBoundOf>
RangeAvlTree<T, TBound, TBoundOf>::Iterator::Iterator(
    const RangeAvlTree& tree, Node* node, FilterMode filter_mode, const TBound& filter, StartPosition start)
    : ParentClass(&tree, nullptr), m_Filter(filter), m_FilterMode(filter_mode) {
    switch (start) {
    case k_AtFirst:
        ParentClass::m_CurrentNode = FindFirst(tree.GetRootNode());
        break;
    case k_AtLast:
        ParentClass::m_CurrentNode = FindLast(tree.GetRootNode());
        break;
    case k_AtNode:
        ParentClass::m_CurrentNode = node;
        break;
    default:
        QRL_ASSERT("AvlTree.h", "!\"This should never happen!\"", false);
    }
}

template <class T, class TBound, class TBoundOf>
typename RangeAvlTree<T, TBound, TBoundOf>::Iterator& RangeAvlTree<T, TBound, TBoundOf>::Iterator::operator++() {
    QRL_ASSERT("RangeAvlTree.h", "ParentClass::m_CurrentNode", ParentClass::m_CurrentNode);
    ParentClass::m_CurrentNode = FindNext(ParentClass::m_CurrentNode);
    return *this;
}

template <class T, class TBound, class TBoundOf>
typename RangeAvlTree<T, TBound, TBoundOf>::Iterator::FilterCode
RangeAvlTree<T, TBound, TBoundOf>::Iterator::GetFilterCode(const Node* node) const {
    const TBound& bound = node->m_Payload.m_Bound;
    switch (m_FilterMode) {
    case k_NoFilter:
        return k_Enter;
    case k_SkipOutside:
        return bound.Intersects(m_Filter) ? k_Enter : k_SkipSubtree;
    case k_SkipInside:
        return bound == bound.GetIntersection(m_Filter) ? k_SkipSubtree : k_Enter;
    default:
        QRL_ASSERT("RangeAvlTree.h", "!\"This should never happen!\"", false);
        return k_Unknown;
    }
}

/// The first node of a subtree that the filter lets through. Where a subtree is entered its root counts, so the search
/// fails in a left child only if it skips it: a descent to one leaf.
template <class T, class TBound, class TBoundOf>
typename RangeAvlTree<T, TBound, TBoundOf>::Node* RangeAvlTree<T, TBound, TBoundOf>::Iterator::FindFirst(
    Node* node) const {
    if (!node)
        return nullptr;
    const FilterCode code = GetFilterCode(node);
    if (code == k_SkipSubtree)
        return nullptr;
    if (Node* first = FindFirst(RangeAvlTree::GetLeft(node)))
        return first;
    return code != k_PassOver ? node : FindFirst(RangeAvlTree::GetRight(node));
}

/// The mirror of FindFirst.
template <class T, class TBound, class TBoundOf>
typename RangeAvlTree<T, TBound, TBoundOf>::Node* RangeAvlTree<T, TBound, TBoundOf>::Iterator::FindLast(
    Node* node) const {
    if (!node)
        return nullptr;
    const FilterCode code = GetFilterCode(node);
    if (code == k_SkipSubtree)
        return nullptr;
    if (Node* last = FindLast(RangeAvlTree::GetRight(node)))
        return last;
    return code == k_Enter ? node : FindLast(RangeAvlTree::GetLeft(node));
}

/// The node behind `start` that the filter lets through next: in its right subtree, or else among the ancestors that
/// come after it.
template <class T, class TBound, class TBoundOf>
typename RangeAvlTree<T, TBound, TBoundOf>::Node* RangeAvlTree<T, TBound, TBoundOf>::Iterator::FindNext(
    Node* start) const {
    QRL_ASSERT("RangeAvlTree.h", "start", start);
    if (!start)
        return nullptr;
    if (Node* next = FindFirst(RangeAvlTree::GetRight(start)))
        return next;
    for (Node* node = RangeAvlTree::GetNextAncestor(start); node; node = RangeAvlTree::GetNextAncestor(node)) {
        switch (GetFilterCode(node)) {
        case k_SkipSubtree:
            break;
        case k_Enter:
            return node;
        default:
            QRL_ASSERT("RangeAvlTree.h", "!\"This should never happen!\"", false);
            [[fallthrough]];
        case k_PassOver:
            if (Node* next = FindFirst(RangeAvlTree::GetRight(node)))
                return next;
        }
    }
    return nullptr;
}

} // namespace base

#endif
