#ifndef QRL_LIB_MATH_GEOMETRY_BOX_H
#define QRL_LIB_MATH_GEOMETRY_BOX_H

#include "lib/math/geometry/Direction.h"
#include "lib/math/geometry/Segment.h"
#include "lib/utils/Range_T.h"

#include <cstdint>
#include <vector>

namespace geom {

class Line;

/// How one box lies to another.
enum BoxRelation : std::uint32_t {
    k_BoxOutside = 0,
    k_BoxInside = 1, ///< strictly inside the other, on all four sides
    k_BoxAround = 2, ///< the other is strictly inside this one
    k_BoxCrossing = 3,
};

/// The part of a segment that lies in a box.
struct BoxSegmentResult {
    std::uint32_t m_Success = 0; ///< 1 when m_Segment holds, otherwise 0
    Segment m_Segment;           ///< all zero without success
};

/// The axis-parallel rectangle: the bound of every shape, the source of its tolerance, and a shape of its own.
///
/// Closed: its outline belongs to it, and it may be as thin as a segment or a point. It is empty when either of its
/// ranges is. IntersectsLine, IntersectsSegment and GetClipped treat a box that is thin within `accuracy` as the
/// segment or point that it is.
///
///     2 --- edge 1 --- 1      vertices count from 1, edges from 0;
///     |                |      edge 0 goes up, 1 left, 2 down, 3 right
///   edge 2           edge 0
///     |                |
///     3 --- edge 3 --- 4
class Box {
public:
    using Range = base::Range_T<Unit>;

    /// The empty box.
    constexpr Box() = default;
    constexpr Box(const Range& xRange, const Range& yRange) : m_XRange(xRange), m_YRange(yRange) {}
    constexpr explicit Box(Point point) : m_XRange(point.GetX()), m_YRange(point.GetY()) {}
    /// From two opposite corners, whichever.
    constexpr Box(Unit x1, Unit y1, Unit x2, Unit y2) : m_XRange(x1, x2), m_YRange(y1, y2) {}
    /// The square of the given side about `center`.
    constexpr Box(Point center, Unit side) : Box(center, side, side) {}
    constexpr Box(Point center, Unit dx, Unit dy);
    constexpr explicit Box(const Segment& segment);

    constexpr bool IsEmpty() const { return m_XRange.IsEmpty() || m_YRange.IsEmpty(); }
    constexpr const Range& GetXRange() const { return m_XRange; }
    constexpr const Range& GetYRange() const { return m_YRange; }

    /// Vertex 1 to 4. Any other number is reported and gives the origin; so is an empty box.
    Point GetVertex(int n) const;
    /// Edge 0 to 3. Any other number is reported and gives a segment of zeros; so is an empty box.
    Segment GetEdge(int n) const;
    /// The outline from vertex 1 on: up to edge 0 for k_CCW, the same backwards for k_CW. Empty for an empty box,
    /// which is reported, as is any other direction.
    std::vector<Segment> GetEdges(Direction direction) const;
    /// The diagonal that ends at vertex n.
    Segment GetDiagonal(int n) const;

    // Of an empty box these are reported by its ranges.
    Point GetCenter() const { return {m_XRange.GetCenter(), m_YRange.GetCenter()}; }
    Unit GetMaxDimension() const { return std::max(m_XRange.GetSize(), m_YRange.GetSize()); }
    Unit GetHalfPerimeter() const { return m_XRange.GetSize() + m_YRange.GetSize(); }
    /// The largest of the absolute coordinates, the width and the height.
    Unit GetMagnitude() const;
    /// The tolerance of a shape with this bound; 0 for an empty box.
    Unit GetEpsilon() const { return IsEmpty() ? k_NullUnit : GetMagnitude().GetEpsilon(); }

    /// Axis by axis; an empty box adds nothing to a union.
    constexpr Box GetUnion(const Box& other) const;
    /// Axis by axis: where the boxes miss each other on one axis only, that axis alone is empty.
    constexpr Box GetIntersection(const Box& other) const;
    constexpr void Extend(const Box& other) { *this = GetUnion(other); }
    constexpr void Extend(Point point) { *this = GetUnion(Box(point)); }
    /// All four sides moved outward by `e`. Empty as soon as a negative `e` takes more than there is; an empty box
    /// stays empty.
    Box GetExpanded(Unit e) const;
    void Expand(Unit e) { *this = GetExpanded(e); }

    /// Whether the two share a point; boxes that touch do, an empty one shares nothing.
    constexpr bool Intersects(const Box& other) const;
    /// The same with this box expanded by `accuracy`.
    bool Intersects(const Box& other, Unit accuracy) const;
    bool IntersectsPoint(Point point, Unit accuracy) const;
    bool IntersectsLine(const Line& line, Unit accuracy) const;
    bool IntersectsSegment(const Segment& segment, Unit accuracy) const;
    /// The part of `segment` in the box expanded by `accuracy`, in the segment's direction. What is left as short as
    /// `accuracy` comes as its midpoint, twice; a segment that is so short itself as its start, a point-like box as its
    /// centre.
    BoxSegmentResult GetClipped(const Segment& segment, Unit accuracy) const;
    /// How this box lies to `other`; inside and around are strict, by more than `accuracy` on all four sides.
    BoxRelation GetRelationTo(const Box& other, Unit accuracy) const;

    /// Whether width and height are at most `accuracy`. `point`, unless null, receives the centre in that case.
    bool IsPoint(Unit accuracy, Point* point = nullptr) const;
    /// Whether width or height is at most `accuracy`. `segment`, unless null, receives the diagonal in that case.
    bool IsSegment(Unit accuracy, Segment* segment = nullptr) const;
    /// Whether each of the four sides differs by at most `accuracy`; empty boxes are equal.
    bool IsEqualTo(const Box& other, Unit accuracy) const;

    /// Exact, axis by axis.
    constexpr bool operator==(const Box& other) const = default;

private:
    Range m_XRange;
    Range m_YRange;
};

inline constexpr Box k_EmptyBox{};
inline constexpr Box k_UniverseBox{-k_InfiniteUnit, -k_InfiniteUnit, k_InfiniteUnit, k_InfiniteUnit};

constexpr Box::Box(Point center, Unit dx, Unit dy)
    : m_XRange(center.GetX() - dx * 0.5, center.GetX() + dx * 0.5),
      m_YRange(center.GetY() - dy * 0.5, center.GetY() + dy * 0.5) {}

constexpr Box::Box(const Segment& segment)
    : m_XRange(segment.GetStart().GetX(), segment.GetEnd().GetX()),
      m_YRange(segment.GetStart().GetY(), segment.GetEnd().GetY()) {}

constexpr Box Box::GetUnion(const Box& other) const {
    return {m_XRange.GetUnion(other.m_XRange), m_YRange.GetUnion(other.m_YRange)};
}

constexpr Box Box::GetIntersection(const Box& other) const {
    return {m_XRange.GetIntersection(other.m_XRange), m_YRange.GetIntersection(other.m_YRange)};
}

constexpr bool Box::Intersects(const Box& other) const {
    return m_XRange.Intersects(other.m_XRange) && m_YRange.Intersects(other.m_YRange);
}

} // namespace geom

#endif
