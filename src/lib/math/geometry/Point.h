#ifndef QRL_LIB_MATH_GEOMETRY_POINT_H
#define QRL_LIB_MATH_GEOMETRY_POINT_H

#include "lib/math/geometry/Vector.h"

#include <algorithm>
#include <cstdint>

namespace geom {

class Rotation;
class Transformation;

/// A position in the plane, in the caller's unit. Points don't add; their difference is a Vector.
///
/// `==` is exact: chains of arcs share their ends bit for bit.
class Point {
public:
    constexpr Point() = default;
    constexpr Point(Unit x, Unit y) : m_X(x), m_Y(y) {}
    /// Where `fromOrigin` leads from the origin.
    constexpr explicit Point(Vector fromOrigin) : m_X(fromOrigin.GetX()), m_Y(fromOrigin.GetY()) {}

    constexpr Unit GetX() const { return m_X; }
    constexpr Unit GetY() const { return m_Y; }

    /// Whether each coordinate differs by at most `accuracy`: a square about this point, not a circle. 0 is exact.
    constexpr bool IsEqualTo(Point other, Unit accuracy) const;

    constexpr Area GetDistanceSquare(Point other) const { return Vector(*this, other).GetLengthSquare(); }
    /// The distance, or `cur_distance` where that is not more. A negative `cur_distance` is reported.
    Unit GetDistanceUpTo(Point other, Unit cur_distance) const;
    constexpr Point GetMidPoint(Point other) const;
    /// The centre of gravity of three points.
    constexpr Point GetCentroid(Point p2, Point p3) const;
    Point GetTransformed(const Transformation& transformation) const;
    Point GetRotated(const Rotation& rotation) const;

    friend constexpr bool operator==(Point a, Point b) = default;
    friend constexpr Vector operator-(Point a, Point b) { return {b, a}; }
    friend constexpr Point operator+(Point p, Vector v) { return {p.m_X + v.GetX(), p.m_Y + v.GetY()}; }
    friend constexpr Point operator-(Point p, Vector v) { return {p.m_X - v.GetX(), p.m_Y - v.GetY()}; }

private:
    Unit m_X;
    Unit m_Y;
};

inline constexpr Point k_Origin{0, 0};

/// A point that a query may not have found.
struct PointResult {
    std::uint32_t m_Success = 0; ///< 1 when m_Point holds, otherwise 0
    Point m_Point;               ///< the origin without success
};

constexpr Vector::Vector(Point from, Point to) : m_X(to.GetX() - from.GetX()), m_Y(to.GetY() - from.GetY()) {}

constexpr Vector::Vector(Point point) : m_X(point.GetX()), m_Y(point.GetY()) {}

constexpr bool Point::IsEqualTo(Point other, Unit accuracy) const {
    return (m_X - other.m_X).GetAbs() <= accuracy && (m_Y - other.m_Y).GetAbs() <= accuracy;
}

constexpr Point Point::GetMidPoint(Point other) const {
    return Point((k_NullVector + Vector(*this) + Vector(other)) * 0.5);
}

constexpr Point Point::GetCentroid(Point p2, Point p3) const {
    return Point((k_NullVector + Vector(*this) + Vector(p2) + Vector(p3)) * 0.3333333333333333);
}

} // namespace geom

#endif
