#ifndef QRL_LIB_MATH_GEOMETRY_CIRCLE_H
#define QRL_LIB_MATH_GEOMETRY_CIRCLE_H

#include "lib/math/geometry/Box.h"
#include "lib/math/geometry/Segment.h"
#include "lib/utils/Assert.h"

#include <cstdint>

namespace geom {

class Circumference;
class Line;
class Triangle;

/// Where a line cuts a circle.
struct CircleLineResult {
    std::uint32_t m_Success = 0; ///< 1 when m_Segment holds, otherwise 0
    Segment m_Segment; ///< the chord, in the line's direction; equal ends for a tangent, zeros without success
};

/// The disc; its outline belongs to it. A radius of 0 makes it a point.
class Circle {
public:
    /// A negative radius is reported and kept.
    Circle(Point center, Unit radius);
    explicit Circle(const Segment& diameter);
    /// The circle through three points; collinear ones give the circle over the longest side.
    explicit Circle(const Triangle& triangle);
    explicit Circle(const Circumference& circumference);

    Point GetCenter() const { return m_Center; }
    Unit GetRadius() const { return m_Radius; }
    Box::Range GetXRange() const { return {m_Center.GetX() - m_Radius, m_Center.GetX() + m_Radius}; }
    Box::Range GetYRange() const { return {m_Center.GetY() - m_Radius, m_Center.GetY() + m_Radius}; }
    Box GetBox() const { return {GetXRange(), GetYRange()}; }
    Unit GetEpsilon() const { return GetBox().GetEpsilon(); }

    /// The point of the outline in the given direction from the centre.
    Point GetPointAt(Azimuth azimuth) const { return m_Center + Vector(azimuth, m_Radius); }
    /// The point of the outline that is nearest to `point`; for the centre that is the one to the right.
    Point GetNearestPoint(Point point) const;
    /// The distance of `point` from the outline, negative inside.
    Unit GetSignedDistance(Point point) const { return Vector(m_Center, point).GetAbs() - m_Radius; }

    /// Whether the radius is at most `accuracy`. `center`, unless null, receives the centre in that case.
    bool IsPoint(Unit accuracy, Point* center = nullptr) const;
    /// Whether the discs share a point, up to `accuracy`.
    bool IntersectsDisc(const Circle& other, Unit accuracy) const;
    bool IntersectsLine(const Line& line, Unit accuracy) const;
    /// The chord that the line cuts, or the tangent point when there is none but the line comes within `accuracy`. A
    /// negative `accuracy` is reported.
    CircleLineResult GetIntersection(const Line& line, Unit accuracy) const;
    /// The point on the line of centres at the height of which two circles meet; for a circle inside the other, a
    /// point that serves in its place. Circles with equal centres give the centre.
    Point GetRadicalPoint(const Circle& other) const;

private:
    CircleLineResult GetIntersectionAcross(const Line& line, Unit accuracy) const;
    CircleLineResult GetIntersectionSteep(const Line& line, Unit accuracy) const;

    Point m_Center;
    Unit m_Radius;
};

inline Circle::Circle(Point center, Unit radius) : m_Center(center), m_Radius(radius) {
    QRL_ASSERT("Circle.h", "m_Radius >= k_Unit_0", m_Radius >= k_Unit_0);
}

} // namespace geom

#endif
