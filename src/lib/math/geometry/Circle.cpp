#include "lib/math/geometry/Circle.h"

#include "lib/math/geometry/Circumference.h"
#include "lib/math/geometry/Line.h"
#include "lib/math/geometry/Triangle.h"

#include <cmath>

namespace geom {

namespace {

Point WithAxesExchanged(Point point) { return {point.GetY(), point.GetX()}; }

/// The chord that `line` cuts out of the circle of `radius` about the origin; to be asked only when there is one, for
/// a line that is closer to vertical than to horizontal. The order of the ends is left open.
///
/// Put x = -(b y + c) / a into x^2 + y^2 = r^2; with a^2 + b^2 = 1 this gives
/// y = -b c +- sqrt(c^2 (b^2 - 1) + a^2 r^2).
Segment GetChordAtOrigin(const Line& line, Unit radius) {
    const double a = line.GetA();
    const double b = line.GetB();
    const double c = line.GetC();
    QRL_ASSERT("Circle", "false", std::abs(b) - 1 != 0);
    const double k = b * b - 1;
    const Area discriminant(c * c * k + a * a * double(radius.GetSquare()));
    const double s = discriminant > k_NullArea ? double(discriminant.GetSquareRoot()) : 0;
    const Point point1((c * k - s * b) / a, s - c * b);
    const Point point2((s * b + c * k) / a, -(s + c * b));
    return {point2, point1};
}

} // namespace

Circle::Circle(const Segment& diameter) : m_Center(diameter.GetMidPoint()), m_Radius(diameter.GetLength() * 0.5) {
    QRL_ASSERT("Circle", "m_Radius >= k_NullUnit", m_Radius >= k_NullUnit);
}

Circle::Circle(const Triangle& triangle) {
    if (Segment longest; triangle.IsDegenerate(0, &longest)) {
        *this = Circle(longest);
        return;
    }
    const Line bisector12 = Segment(triangle.GetP1(), triangle.GetP2()).GetBisector();
    const Line bisector13 = Segment(triangle.GetP1(), triangle.GetP3()).GetBisector();
    m_Center = bisector12.GetIntersection(bisector13);
    m_Radius = Vector(m_Center, triangle.GetP1()).GetAbs();
}

Point Circle::GetNearestPoint(Point point) const {
    if (m_Radius == k_Unit_0)
        return m_Center;
    if (point == m_Center)
        return {m_Center.GetX() + m_Radius, m_Center.GetY()};
    return m_Center + Vector(m_Center, point).GetWithLength(m_Radius);
}

bool Circle::IsPoint(Unit accuracy, Point* center) const {
    if (!(m_Radius <= accuracy))
        return false;
    if (center != nullptr)
        *center = m_Center;
    return true;
}

bool Circle::IntersectsDisc(const Circle& other, Unit accuracy) const {
    return m_Center.GetDistanceSquare(other.m_Center) <= (m_Radius + other.m_Radius + accuracy).GetSquare();
}

bool Circle::IntersectsLine(const Line& line, Unit accuracy) const {
    return m_Radius + accuracy >= line.GetDistanceUpTo(m_Center, k_InfiniteUnit);
}

// NOLINTNEXTLINE(misc-no-recursion): once with accuracy 0, once with the axes exchanged
CircleLineResult Circle::GetIntersection(const Line& line, Unit accuracy) const {
    QRL_ASSERT("Circle", "accuracy >= 0", accuracy >= 0);
    if (!IntersectsLine(line, accuracy))
        return {};
    if (accuracy > k_NullUnit) {
        const CircleLineResult exact = GetIntersection(line, k_NullUnit);
        if (exact.m_Success != 0)
            return exact;
    }
    if (std::abs(line.GetB()) > std::abs(line.GetA()))
        return GetIntersectionAcross(line, accuracy);
    return GetIntersectionSteep(line, accuracy);
}

// NOLINTNEXTLINE(misc-no-recursion): the exchanged line is steep
CircleLineResult Circle::GetIntersectionAcross(const Line& line, Unit accuracy) const {
    const Circle exchanged(WithAxesExchanged(m_Center), m_Radius);
    CircleLineResult result = exchanged.GetIntersection(line.GetWithAxesExchanged(), accuracy);
    // The exchange is a mirror: it turns the line's direction round.
    const Segment& found = result.m_Segment;
    result.m_Segment = {WithAxesExchanged(found.GetEnd()), WithAxesExchanged(found.GetStart())};
    QRL_ASSERT("Circle", "tang_l.GetScalarProductWith (tang_s) >= k_NullArea",
        line.GetDirection().GetScalarProductWith(result.m_Segment.GetVector()) >= k_NullArea);
    return result;
}

CircleLineResult Circle::GetIntersectionSteep(const Line& line, Unit accuracy) const {
    if (m_Radius == k_Unit_0) {
        const SegmentResult common = line.GetCommonSegment(Segment(m_Center, m_Center), accuracy);
        return {common.m_Success, common.m_Segment};
    }
    const Unit reach = m_Radius + accuracy;
    const Unit distance = line.GetDistanceUpTo(m_Center, 2 * reach);
    if (distance > reach)
        return {};
    if ((m_Radius - distance).GetAbs() <= accuracy) {
        const Point foot = line.GetProjection(m_Center);
        return {1, {foot, foot}};
    }
    const Segment local = GetChordAtOrigin(line.GetRelativeTo(m_Center), m_Radius);
    const Vector fromOrigin(m_Center);
    const Segment chord(local.GetStart() + fromOrigin, local.GetEnd() + fromOrigin);
    const bool isAgainst = chord.GetVector().GetScalarProductWith(line.GetDirection()) < k_NullArea;
    return {1, isAgainst ? chord.GetReversed() : chord};
}

Point Circle::GetRadicalPoint(const Circle& other) const {
    if (m_Center == other.m_Center)
        return m_Center;
    if (IntersectsDisc(other, 0) && !Circumference(*this).Intersects(Circumference(other), 0)) {
        const bool isOtherLarger = other.m_Radius > m_Radius;
        const Circle& larger = isOtherLarger ? other : *this;
        const Circle& smaller = isOtherLarger ? *this : other;
        const Vector outward(larger.m_Center, smaller.m_Center);
        return smaller.m_Center + outward.GetWithLength(outward.GetAbs() * (smaller.m_Radius / larger.m_Radius));
    }
    // A point at distance t from this centre on the line of centres has the same power to both circles when
    // t^2 - r1^2 = (d - t)^2 - r2^2.
    const Area center_dist_square = m_Center.GetDistanceSquare(other.m_Center);
    QRL_ASSERT("Circle", "center_dist_square != k_Area_0", center_dist_square != k_Area_0);
    const Vector toOther(m_Center, other.m_Center);
    const Area powers = center_dist_square + m_Radius.GetSquare() - other.m_Radius.GetSquare();
    return m_Center + toOther.GetWithLength(powers / toOther.GetAbs() * 0.5);
}

} // namespace geom
