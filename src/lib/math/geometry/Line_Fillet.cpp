#include "lib/math/geometry/Arc.h"
#include "lib/math/geometry/Line.h"
#include "lib/math/geometry/Triangle.h"

namespace geom {

Arc Line::GetFilletArc(bool side1, const Line& other, bool side2, Unit radius, bool same_sense) const {
    const Point center = GetOffsetIntersection(side1, other, side2, radius);
    const Point p1 = GetProjection(center);
    const Point p2 = other.GetProjection(center);
    // The corner lies outside the circle. So the turn from one tangent point over the other to the corner is against
    // the sense in which the rounding turns.
    const Direction towardCorner = Triangle(p1, p2, GetIntersection(other)).GetDirection();
    QRL_ASSERT("Line", "ccw == k_CCW || ccw == k_CW", towardCorner == k_CCW || towardCorner == k_CW);
    return Arc(Segment(p1, p2), same_sense ? towardCorner : GetOppositeDirection(towardCorner), center);
}

} // namespace geom
