#ifndef QRL_LIB_MATH_GEOMETRY_POLYARC_H
#define QRL_LIB_MATH_GEOMETRY_POLYARC_H

#include "lib/math/geometry/AvlPolyArcImplementation.h"
#include "lib/utils/RefCounter_T.h"

#include <cstdint>
#include <vector>

namespace geom {

/// A chain of arcs: each begins exactly where the one before it ends, and in a closed chain the last one ends where the
/// first begins. It may be empty, or own nothing at all, which counts as empty.
///
/// A handle: a copy shares the arcs and costs two increments of a count. No operation changes a chain; what looks like
/// a change gives a new one. The arcs stand in a tree of boxes, so that a walk which is asked only for those near a
/// place passes over all others at once. For one thread at a time.
class PolyArc {
public:
    class Iterator;

    /// Owns nothing.
    PolyArc() = default;
    /// Empty.
    explicit PolyArc(OpenClosed open_closed);
    /// Of arcs that are a sequence already.
    PolyArc(OpenClosed open_closed, const std::vector<Arc>& arcs);
    /// Of the straight pieces from point to point. A closed chain gets a last piece to the first point unless it is
    /// there already; a single point gives a point-like arc. No points are reported and give an empty chain.
    PolyArc(OpenClosed open_closed, const std::vector<Point>& vertices);
    PolyArc(OpenClosed open_closed, const std::vector<Segment>& segments);
    /// One arc. Closed, and with different ends, it doubles back along itself.
    PolyArc(OpenClosed open_closed, const Arc& arc);
    PolyArc(OpenClosed open_closed, const Segment& segment);
    PolyArc(OpenClosed open_closed, Point point);
    /// A whole circle, closed, that starts at `azimuth`; a point-like arc for a radius of 0.
    PolyArc(const Circumference& circumference, Direction cw_ccw, Azimuth azimuth);

    bool empty() const { return GetArcCount() == 0; }
    bool HasImplementation() const { return !m_ImplRefCounter.IsNull(); }
    /// A chain that owns nothing is reported and counts as open.
    OpenClosed GetOpenClosed() const;
    std::uint32_t GetArcCount() const;
    std::vector<Arc> GetArcs() const;
    /// k_EmptyBox for an empty chain.
    Box GetBox() const;
    Unit GetEpsilon() const { return GetBox().GetEpsilon(); }
    /// An empty chain is reported and gives the origin, both.
    Point GetStart() const;
    Point GetEnd() const;
    /// The area inside a closed chain, positive when it runs counter-clockwise. An open chain is reported and summed as
    /// if closed by a straight piece; an empty one is reported and has none.
    Area GetArea() const;
    /// Whether the chain is one circle within `accuracy`: all arcs of one sense about one centre with one radius. A
    /// chain of one arc is judged exactly, and a point counts. What
    /// it lies on then goes to `circumference` unless that is null; of several arcs, the first one's.
    bool IsCircle(Unit accuracy, Circumference* circumference = nullptr) const;
    /// Whether both have equal arcs in the same order. Open or closed makes no difference.
    bool operator==(const PolyArc& other) const;

    /// The same way travelled backwards.
    PolyArc GetReversed() const;
    /// Moved as a whole. A mirrored chain is travelled backwards, so that a counter-clockwise one stays so.
    PolyArc GetTransformed(const Transformation& transformation) const;
    PolyArc GetRotated(const Rotation& rotation) const;

    /// The first arc that the filter lets through: all arcs, those that meet `box`, or those whose box isn't strictly
    /// inside `box`. Of the last kind, one that touches the border of `box` from inside may be left out.
    Iterator begin(base::FilterMode filter_mode, const Box& box) const;
    Iterator begin() const;
    Iterator end() const;

private:
    using Implementation = AvlPolyArcImplementation;
    using IterationState = AvlPolyArcImplementation::Iterator;

    bool IsCircleOfSeveral(Unit accuracy, Circumference* circumference) const;

    base::RefCounter_T<Implementation> m_ImplRefCounter;
    mutable base::RefCounter_T<IterationState> m_EndIterator; ///< made when it is first asked for
};

/// A walk along a chain, which must outlive it. A copy shares the state until one of the two moves on.
class PolyArc::Iterator {
public:
    Iterator() = default;
    explicit Iterator(const base::RefCounter_T<IterationState>& state) : m_ImplRefCounter(state) {}

    /// The arc. The end is reported and gives an arc of zeros.
    const Arc& operator*() const;
    const Arc* operator->() const { return &**this; }
    Iterator& operator++();
    bool operator==(const Iterator& other) const;

private:
    base::RefCounter_T<IterationState> m_ImplRefCounter;
};

} // namespace geom

#endif
