#ifndef QRL_LIB_MATH_GEOMETRY_LINE_H
#define QRL_LIB_MATH_GEOMETRY_LINE_H

#include "lib/math/geometry/Segment.h"

#include <cstdint>

namespace geom {

class Arc;
class Box;

/// How a line through a point runs to a given vector.
enum LineCourse : std::uint32_t {
    k_Across = 0, ///< the vector turned clockwise by 90 degrees
    k_Along = 1,  ///< the vector's own direction
};

/// An infinite directed line: the points with a x + b y + c = 0.
///
/// (a, b) is the normal of length 1 that points to the left of the direction (b, -a). The value of the expression at
/// a point is its signed distance, positive on the left.
class Line {
public:
    /// From `pa` to `pb`. Points that are equal within their own tolerance are reported.
    Line(Point pa, Point pb);
    Line(Point point, Vector vector, LineCourse course);
    explicit Line(const Segment& segment) : Line(segment.GetStart(), segment.GetEnd()) {}

    double GetA() const { return m_A; }
    double GetB() const { return m_B; }
    double GetC() const { return m_C; }
    Vector GetNormal() const { return {m_A, m_B}; }
    Vector GetDirection() const { return {m_B, -m_A}; }
    Azimuth GetAzimuth() const;
    Point GetNearestToOrigin() const { return {-m_A * m_C, -m_B * m_C}; }

    Unit GetSignedDistance(Point point) const;
    /// The distance, or `cur_distance` where that is not more. A negative `cur_distance` is reported.
    Unit GetDistanceUpTo(Point point, Unit cur_distance) const;
    Point GetProjection(Point point) const;
    /// x at `y`. For a horizontal line, which has none, this is reported and gives what a division by 0 gives.
    Unit GetX(Unit y) const;
    /// y at `x`. For a vertical line, which has none, this is reported and gives what a division by 0 gives.
    Unit GetY(Unit x) const;

    /// The same line, the other way round.
    Line operator-() const { return {-m_A, -m_B, -m_C}; }
    /// The line in a frame whose origin is `point`.
    Line GetRelativeTo(Point point) const;
    /// The line in a frame whose axes are exchanged.
    Line GetWithAxesExchanged() const { return {m_B, m_A, m_C}; }
    /// The line with c moved by `distance`: up when `side` is set (the line moves to the right), else down.
    Line GetMoved(bool side, Unit distance) const;

    /// Whether the points of the line include `point`, up to `accuracy`.
    bool Contains(Point point, Unit accuracy) const { return GetSignedDistance(point).GetAbs() <= accuracy; }
    /// Whether the lines have exactly parallel normals and are at most `accuracy` apart, whatever their directions.
    bool IsEqualTo(const Line& other, Unit accuracy) const;
    bool IsSameWayAs(const Line& other) const { return GetNormal().IsSameWayAs(other.GetNormal()); }
    /// Whether the lines are equal within `accuracy`, or cross at a point that is not beyond reach.
    bool IntersectsWith(const Line& other, Unit accuracy) const;
    /// Whether the line meets the segment, up to `accuracy`.
    bool IntersectsSegment(const Segment& segment, Unit accuracy) const;

    /// The common point. Parallel lines give (k_InfiniteUnit, k_InfiniteUnit).
    Point GetIntersection(const Line& other) const;
    /// A segment of the line, directed as the line, that runs clear across `box`. An empty box is reported.
    Segment GetSegmentInBox(const Box& box) const;
    /// The centre of a circle of `radius` that touches both lines: on the right of a line whose side flag is set, on
    /// its left otherwise. A negative radius and parallel lines are reported.
    Point GetOffsetIntersection(bool side1, const Line& other, bool side2, Unit radius) const;
    /// The arc of `radius` from the point where its circle touches this line to the one on `other`; sides as above.
    /// It rounds the corner; with `same_sense`, which turns as its two ends and the corner do, it goes the long way.
    Arc GetFilletArc(bool side1, const Line& other, bool side2, Unit radius, bool same_sense) const;

    /// Where the two lines run together, up to `accuracy`, inside the square of half side `size` about the origin.
    /// One point, as both ends, when they cross at more than k_SmallAngle; no success when they don't meet.
    SegmentResult GetCommonSegment(const Line& other, Unit size, Unit accuracy) const;
    /// The part of `segment` that lies on this line, up to `accuracy`, moved half way to the line.
    SegmentResult GetCommonSegment(const Segment& segment, Unit accuracy) const;

private:
    Line(double a, double b, double c) : m_A(a), m_B(b), m_C(c) {}

    double m_A = 0;
    double m_B = 0;
    double m_C = 0;
};

} // namespace geom

#endif
