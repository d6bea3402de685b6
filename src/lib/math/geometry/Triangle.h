#ifndef QRL_LIB_MATH_GEOMETRY_TRIANGLE_H
#define QRL_LIB_MATH_GEOMETRY_TRIANGLE_H

#include "lib/math/geometry/Direction.h"
#include "lib/math/geometry/Segment.h"

namespace geom {

/// Three points in a given order, collinear or equal ones included: the kernel's notion of orientation.
class Triangle {
public:
    constexpr Triangle(Point p1, Point p2, Point p3) : m_P1(p1), m_P2(p2), m_P3(p3) {}

    constexpr Point GetP1() const { return m_P1; }
    constexpr Point GetP2() const { return m_P2; }
    constexpr Point GetP3() const { return m_P3; }

    /// The sense in which the points turn, from the sign of a vector product, without tolerance; k_NoDirection for
    /// collinear points and for coordinates that are no numbers.
    constexpr Direction GetDirection() const;
    constexpr bool IsCollinear() const { return GetDirection() == k_NoDirection; }
    /// Positive for counter-clockwise.
    constexpr Area GetSignedArea() const { return GetDoubleArea() * 0.5; }
    constexpr Area GetArea() const { return GetSignedArea().GetAbs(); }
    /// Whether the height over the longest side is at most `accuracy`. `longest`, unless null, receives that side in
    /// that case; the first one of several.
    bool IsDegenerate(Unit accuracy, Segment* longest = nullptr) const;

private:
    constexpr Area GetDoubleArea() const { return Vector(m_P1, m_P2).GetVectorProductWith(Vector(m_P1, m_P3)); }

    Point m_P1;
    Point m_P2;
    Point m_P3;
};

constexpr Direction Triangle::GetDirection() const {
    switch (GetDoubleArea().GetSign()) {
    case -1:
        return k_CW;
    case 1:
        return k_CCW;
    default:
        return k_NoDirection;
    }
}

} // namespace geom

#endif
