#ifndef QRL_LIB_MATH_GEOMETRY_AVLPOLYARCIMPLEMENTATION_H
#define QRL_LIB_MATH_GEOMETRY_AVLPOLYARCIMPLEMENTATION_H

#include "lib/containers/RangeAvlTree.h"
#include "lib/math/geometry/Arc.h"
#include "lib/math/geometry/Box.h"
#include "lib/math/geometry/Direction.h"

#include <vector>

namespace geom {

class PolyArc;

/// What a chain of arcs owns and shares between its copies: the arcs in sequence, in a tree that knows the box of every
/// subtree.
class AvlPolyArcImplementation {
public:
    using ArcTree = base::RangeAvlTree<Arc, Box>;
    class Iterator;

    AvlPolyArcImplementation(OpenClosed open_closed, const std::vector<Arc>& arcs)
        : m_OpenClosed(open_closed), m_Arcs(arcs, true) {}

    OpenClosed GetOpenClosed() const { return m_OpenClosed; }
    const ArcTree& GetArcs() const { return m_Arcs; }
    /// The first and the last arc. Not for an empty chain, which is reported.
    const Arc& GetFirst() const { return *m_Arcs.begin(); }
    const Arc& GetLast() const {
        return *ArcTree::Iterator(m_Arcs, nullptr, base::k_NoFilter, k_EmptyBox, ArcTree::k_AtLast);
    }

private:
    OpenClosed m_OpenClosed;
    ArcTree m_Arcs;
};

/// The state of a walk along a chain: the arc it stands at, which arcs its filter lets through, and the chain it walks,
/// which must outlive it. A tree's filter goes by the boxes of subtrees; this one looks at the arcs themselves.
class AvlPolyArcImplementation::Iterator {
public:
    /// The end of `owner`, which may be null for no chain.
    explicit Iterator(const PolyArc* owner) : m_Owner(owner) {}
    /// The first arc of `owner`, whose tree is `arcs`, that the filter lets through.
    Iterator(const PolyArc* owner, const ArcTree& arcs, base::FilterMode filter_mode, const Box& filter);

    const Arc& GetArc() const { return *m_TreeIterator; }
    const PolyArc* GetOwner() const { return m_Owner; }
    /// Moves on to the next arc that the filter lets through. The end is reported and stays.
    void Step();
    /// Whether it stands at an arc of a chain that is there.
    bool IsDereferenceable() const;
    /// Whether both stand at the same arc, or both at an end.
    bool operator==(const Iterator& other) const { return m_TreeIterator == other.m_TreeIterator; }

private:
    bool IsAtEnd() const { return m_TreeIterator == ArcTree::Iterator(); }
    bool IsAccepted() const;

    ArcTree::Iterator m_TreeIterator; ///< with the filter
    const PolyArc* m_Owner;
};

} // namespace geom

#endif
