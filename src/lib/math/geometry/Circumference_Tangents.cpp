#include "lib/math/geometry/Arc.h"
#include "lib/math/geometry/Line.h"
#include "lib/math/geometry/Triangle.h"

// Circumference: what it shares with another one, and the circles that touch it.

namespace geom {

namespace {

/// The distance from a circle's centre to that of a circle of `radius` which touches it.
Unit GetCenterDistance(const Circumference& touched, bool isOutside, Unit radius) {
    return isOutside ? touched.GetRadius() + radius : touched.GetRadius() - radius;
}

Arc GetPointLikeArc(Point point) { return Arc(point, point, k_NullUnit); }

} // namespace

ArcPairResult Circumference::GetIntersections(const Circumference& other, Unit accuracy) const {
    if (!Intersects(other, accuracy))
        return {};
    if (IsEqualTo(other, accuracy * 0.5)) {
        const Circumference mean(m_Center.GetMidPoint(other.m_Center), (m_Radius + other.m_Radius) * 0.5);
        return {1, Arc(mean, k_Azimuth_0, k_CCW), 0, Arc()};
    }
    const Point radical = GetRadicalPoint(other);
    if (radical.IsEqualTo(m_Center, accuracy))
        return {};

    const Area heightSquare = m_Radius.GetSquare() - m_Center.GetDistanceSquare(radical);
    const Unit height = heightSquare > k_NullArea ? heightSquare.GetSquareRoot() : k_NullUnit;
    const Vector aside = Vector(m_Center, radical).GetNormal(accuracy > height ? k_NullUnit : height);
    const Point left = radical + aside;
    const Point right = radical - aside;
    if (left.IsEqualTo(right, accuracy))
        return {1, GetPointLikeArc(left.GetMidPoint(right)), 0, Arc()};
    return {1, GetPointLikeArc(right), 1, GetPointLikeArc(left)};
}

// NOLINTNEXTLINE(misc-no-recursion): once, with the sides exchanged
PointResult Circumference::GetTangentCenter(
    bool side1, const Circumference& other, bool side2, Unit radius, Direction direction) const {
    if (side1 && !side2)
        return other.GetTangentCenter(side2, *this, side1, radius, GetOppositeDirection(direction));
    const bool isTooBigInside = (!side1 && radius > m_Radius) || (!side2 && radius > other.m_Radius);
    if (isTooBigInside)
        return {};
    const Circumference centers1(m_Center, GetCenterDistance(*this, side1, radius));
    const Circumference centers2(other.m_Center, GetCenterDistance(other, side2, radius));
    const ArcPairResult centers = centers1.GetIntersections(centers2, k_NullUnit);
    if (centers.m_Success1 == 0 || centers.m_Success2 == 0)
        return {};
    const Point first = centers.m_Arc1.GetStart();
    const bool isFirstOnWrongSide =
        Triangle(m_Center, other.m_Center, first).GetDirection() == GetOppositeDirection(direction);
    return {1, isFirstOnWrongSide ? centers.m_Arc2.GetStart() : first};
}

PointResult Circumference::GetTangentCenter(
    bool side1, const Line& line, bool side2, bool pick_first, Unit radius) const {
    QRL_ASSERT("Circumference", "radius >= 0", radius >= k_NullUnit);
    const Unit distance = GetCenterDistance(*this, side1, radius);
    if (k_NullUnit > distance)
        return {};
    const PointPairResult centers =
        Circumference(m_Center, distance).GetIntersections(line.GetMoved(side2, radius), k_NullUnit);
    if (centers.m_Success1 == 0)
        return {};
    return {1, pick_first || centers.m_Success2 == 0 ? centers.m_Point1 : centers.m_Point2};
}

} // namespace geom
