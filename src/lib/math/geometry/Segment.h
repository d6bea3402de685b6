#ifndef QRL_LIB_MATH_GEOMETRY_SEGMENT_H
#define QRL_LIB_MATH_GEOMETRY_SEGMENT_H

#include "lib/math/geometry/Point.h"

#include <cstdint>

namespace geom {

class Box;
class Line;
class Polygon;

/// The straight piece between two points, directed from start to end; both ends belong to it and may be equal.
///
/// `accuracy` arguments are distances, in IsPoint and IsEqualTo for each coordinate; 0 asks for the exact answer.
/// Distances are compared as squares wherever that spares a root.
class Segment {
public:
    constexpr Segment() = default;
    constexpr Segment(Point start, Point end) : m_Start(start), m_End(end) {}

    constexpr Point GetStart() const { return m_Start; }
    constexpr Point GetEnd() const { return m_End; }
    constexpr Vector GetVector() const { return {m_Start, m_End}; }
    Box GetBox() const;

    constexpr Area GetLengthSquare() const { return GetVector().GetLengthSquare(); }
    /// Without a root for a segment along an axis.
    Unit GetLength() const { return GetVector().GetAbs(); }
    /// The same bits for a segment and its reverse.
    Point GetMidPoint() const;
    /// The point at `t` of the way, 0 the start and 1 the end; `t` may lie outside.
    Point GetPointAt(double t) const;
    /// How far along the way the foot of `point` lies, 0 at the start and 1 at the end; 0 when the ends are equal.
    double GetParameter(Point point) const;
    /// The square of the distance from `point` to the nearest point of the segment.
    Area GetDistanceSquareTo(Point point) const;
    Point GetNearestPoint(Point point) const;
    /// The line of all points as far from the start as from the end; the segment's direction turned clockwise by 90
    /// degrees.
    Line GetBisector() const;
    /// The outline of a track that changes its width from `start_width` to `end_width`, with a square or a round cap
    /// at each end. An exactly point-like segment is reported; it gives the circle of radius `start_width`.
    Polygon GetPolygon(Unit start_width, bool start_square, Unit end_width, bool end_square) const;

    constexpr Segment GetReversed() const { return {m_End, m_Start}; }
    Segment GetTransformed(const Transformation& transformation) const;
    Segment GetRotated(const Rotation& rotation) const;
    Segment GetSubSegment(double t1, double t2) const { return {GetPointAt(t1), GetPointAt(t2)}; }

    /// Whether the ends are equal within `accuracy`. `point`, unless null, receives the start in that case.
    bool IsPoint(Unit accuracy, Point* point = nullptr) const;
    /// Whether starts and ends are each equal within `accuracy`.
    bool IsEqualTo(const Segment& other, Unit accuracy) const;
    constexpr bool IsSameWayAs(const Segment& other) const { return GetVector().IsSameWayAs(other.GetVector()); }
    /// Whether `point` lies on the segment, up to a distance of `accuracy`.
    bool Contains(Point point, Unit accuracy) const;
    /// Whether `point` is at most `accuracy` away from one of the ends.
    bool ContainsEnd(Point point, Unit accuracy) const;
    /// Whether the foot of `point` falls in the segment's span. What lies at infinity has no foot.
    bool ProjectsInto(Point point, Unit accuracy) const;
    /// Whether the two meet, up to `accuracy`; to touch is to meet.
    bool IntersectsWith(const Segment& other, Unit accuracy) const;
    /// The point between `point` and the segment; no success when `point` isn't on the segment within `accuracy`.
    PointResult GetCommonPoint(Point point, Unit accuracy) const;

    constexpr bool operator==(const Segment& other) const = default;

private:
    Point m_Start;
    Point m_End;
};

/// A segment that a query may not have found.
struct SegmentResult {
    std::uint32_t m_Success = 0; ///< 1 when m_Segment holds, otherwise 0
    Segment m_Segment;           ///< all zero without success
};

} // namespace geom

#endif
