#include "lib/math/geometry/Line.h"

#include "lib/math/geometry/Box.h"
#include "lib/math/geometry/GeomStl.h"
#include "lib/utils/Assert.h"

#include <algorithm>
#include <cmath>

namespace geom {

namespace {

/// The middle of two points, from their halves.
Point Between(Point a, Point b) { return {a.GetX() * 0.5 + b.GetX() * 0.5, a.GetY() * 0.5 + b.GetY() * 0.5}; }

Segment Between(const Segment& a, const Segment& b) {
    return {Between(a.GetStart(), b.GetStart()), Between(a.GetEnd(), b.GetEnd())};
}

SegmentResult OnePoint(Point point) { return {1, {point, point}}; }

/// How far from their crossing two lines that enclose a small angle stay within `accuracy` of each other: they are
/// `length * angle` apart at a distance of `length`.
Unit GetReach(Angle angle, Unit accuracy) {
    const double radians = angle.GetValue(k_Radians);
    if (accuracy >= k_InfiniteUnit * radians)
        return k_InfiniteUnit;
    return accuracy / radians;
}

/// Reports ends of `common` that are farther from either line than a little more than half the accuracy.
void CheckCloseness(const Segment& common, const Line& line1, const Line& line2, Unit accuracy) {
    const Unit d3 = line1.GetSignedDistance(common.GetStart());
    const Unit d4 = line1.GetSignedDistance(common.GetEnd());
    const Unit d5 = line2.GetSignedDistance(common.GetStart());
    const Unit d6 = line2.GetSignedDistance(common.GetEnd());
    const bool isExact = accuracy == k_Unit_0;
    const Unit limit = accuracy * 0.8;
    QRL_ASSERT("Line", "accuracy == 0 || d3.GetAbs() <= accuracy * 0.8", isExact || d3.GetAbs() <= limit);
    QRL_ASSERT("Line", "accuracy == 0 || d4.GetAbs() <= accuracy * 0.8", isExact || d4.GetAbs() <= limit);
    QRL_ASSERT("Line", "accuracy == 0 || d5.GetAbs() <= accuracy * 0.8", isExact || d5.GetAbs() <= limit);
    QRL_ASSERT("Line", "accuracy == 0 || d6.GetAbs() <= accuracy * 0.8", isExact || d6.GetAbs() <= limit);
}

} // namespace

Line::Line(Point pa, Point pb) {
    QRL_ASSERT(
        "Line", "!pa.IsEqualTo (pb, GetCombinedEpsilon_T (pa, pb))", !pa.IsEqualTo(pb, GetCombinedEpsilon_T(pa, pb)));
    if (pa.GetY() == pb.GetY()) {
        const bool isEastward = pb.GetX() > pa.GetX();
        m_B = isEastward ? 1 : -1;
        m_C = double(isEastward ? -pa.GetY() : pa.GetY());
    } else if (pa.GetX() == pb.GetX()) {
        const bool isNorthward = pb.GetY() > pa.GetY();
        m_A = isNorthward ? -1 : 1;
        m_C = double(isNorthward ? pa.GetX() : -pa.GetX());
    } else {
        const Vector vector(pa, pb);
        m_C = double(Vector(pa).GetVectorProductWith(vector) / vector.GetAbs());
        const Vector unit = vector.GetWithLength(k_Unit_1);
        m_A = double(-unit.GetY());
        m_B = double(unit.GetX());
    }
}

Line::Line(Point point, Vector vector, LineCourse course)
    : Line(point, point + (course == k_Along ? vector : vector.GetRotated(-k_Angle_90))) {}

Azimuth Line::GetAzimuth() const {
    if (m_A == 0)
        return m_B > 0 ? k_Azimuth_0 : k_Azimuth_180;
    if (m_B == 0)
        return m_A < 0 ? k_Azimuth_90 : k_Azimuth_270;
    return {k_Radians, std::atan2(-m_A, m_B)};
}

Unit Line::GetSignedDistance(Point point) const {
    return m_A * double(point.GetX()) + m_B * double(point.GetY()) + m_C;
}

Unit Line::GetDistanceUpTo(Point point, Unit cur_distance) const {
    QRL_ASSERT("Line", "cur_distance >= k_NullUnit", cur_distance >= k_NullUnit);
    return std::min(cur_distance, GetSignedDistance(point).GetAbs());
}

Point Line::GetProjection(Point point) const { return point - GetNormal() * double(GetSignedDistance(point)); }

Unit Line::GetX(Unit y) const {
    QRL_ASSERT("Line", "m_A", m_A != 0);
    return (m_B * double(y) + m_C) / -m_A;
}

Unit Line::GetY(Unit x) const {
    QRL_ASSERT("Line", "m_B", m_B != 0);
    return (m_A * double(x) + m_C) / -m_B;
}

Line Line::GetRelativeTo(Point point) const { return {m_A, m_B, double(GetSignedDistance(point))}; }

Line Line::GetMoved(bool side, Unit distance) const {
    return {m_A, m_B, side ? m_C + double(distance) : m_C - double(distance)};
}

bool Line::IsEqualTo(const Line& other, Unit accuracy) const {
    if (other.m_A == m_A && other.m_B == m_B && Unit(other.m_C - m_C).GetAbs() <= accuracy)
        return true;
    return other.m_A == -m_A && other.m_B == -m_B && Unit(-other.m_C - m_C).GetAbs() <= accuracy;
}

bool Line::IntersectsWith(const Line& other, Unit accuracy) const {
    if (IsEqualTo(other, accuracy))
        return true;
    if (other.m_B * m_A == m_B * other.m_A)
        return false;
    return k_UniverseBox.IntersectsPoint(GetIntersection(other), k_NullUnit);
}

bool Line::IntersectsSegment(const Segment& segment, Unit accuracy) const {
    if (Contains(segment.GetStart(), accuracy))
        return true;
    if (!segment.IsPoint(accuracy) && Contains(segment.GetEnd(), accuracy))
        return true;
    return GetSignedDistance(segment.GetStart()).GetSign() != GetSignedDistance(segment.GetEnd()).GetSign();
}

// Cramer's rule, and then one step along each normal by half of what the point still misses the line by.
Point Line::GetIntersection(const Line& other) const {
    const double det = m_A * other.m_B - other.m_A * m_B;
    if (std::abs(det) < k_AngleEpsilon.GetValue(k_Radians))
        return {k_InfiniteUnit, k_InfiniteUnit};
    const double f = 1 / det;
    const Point first((other.m_C * m_B - m_C * other.m_B) * f, (m_C * other.m_A - other.m_C * m_A) * f);
    const double r1 = double(GetSignedDistance(first));
    const double r2 = double(other.GetSignedDistance(first));
    return first - GetNormal() * r1 * 0.5 - other.GetNormal() * r2 * 0.5;
}

Segment Line::GetSegmentInBox(const Box& box) const {
    QRL_ASSERT("Line", "!box.IsEmpty()", !box.IsEmpty());
    const Unit margin = 2 * box.GetMaxDimension();
    Point p1;
    Point p2;
    if (std::abs(m_A) > std::abs(m_B)) {
        const Unit y1 = box.GetYRange().GetMin() - margin;
        const Unit y2 = box.GetYRange().GetMax() + margin;
        p1 = {GetX(y1), y1};
        p2 = {GetX(y2), y2};
    } else {
        const Unit x1 = box.GetXRange().GetMin() - margin;
        const Unit x2 = box.GetXRange().GetMax() + margin;
        p1 = {x1, GetY(x1)};
        p2 = {x2, GetY(x2)};
    }
    QRL_ASSERT("Line", "p1 != p2", p1 != p2);
    const Segment segment(p1, p2);
    const bool isAgainst = segment.GetVector().GetScalarProductWith(GetDirection()) < k_NullArea;
    return isAgainst ? segment.GetReversed() : segment;
}

Point Line::GetOffsetIntersection(bool side1, const Line& other, bool side2, Unit radius) const {
    QRL_ASSERT("Line", "radius >= 0", radius >= 0);
    QRL_ASSERT("Line", "line1.IntersectsWith (line2, 0)", IntersectsWith(other, 0));
    return GetMoved(side1, radius).GetIntersection(other.GetMoved(side2, radius));
}

SegmentResult Line::GetCommonSegment(const Line& given, Unit size, Unit accuracy) const {
    const Line other = IsSameWayAs(given) ? given : -given;
    const Box box(k_Origin, 2 * size, 2 * size);
    const BoxSegmentResult s1 = box.GetClipped(GetSegmentInBox(box), accuracy);
    const BoxSegmentResult s2 = box.GetClipped(other.GetSegmentInBox(box), accuracy);
    QRL_ASSERT("Line", "s1.m_Success && s2.m_Success", s1.m_Success && s2.m_Success);
    if (s1.m_Segment.IsEqualTo(s2.m_Segment, accuracy))
        return {1, Between(s1.m_Segment, s2.m_Segment)};
    if (!IntersectsWith(other, accuracy))
        return {};
    const Point crossing = GetIntersection(other);
    const Angle angle = GetAzimuth().GetSignedShortestAngleTo(other.GetAzimuth());
    if (angle.GetAbs() >= k_SmallAngle)
        return OnePoint(crossing);
    const Vector half(GetAzimuth() + angle * 0.5, std::min(GetReach(angle.GetAbs(), accuracy), size));
    const Segment common(crossing - half, crossing + half);
    CheckCloseness(common, *this, other, accuracy);
    return common.IsPoint(accuracy) ? OnePoint(crossing) : SegmentResult{1, common};
}

SegmentResult Line::GetCommonSegment(const Segment& segment, Unit accuracy) const {
    if (!IntersectsSegment(segment, accuracy))
        return {};
    const Point m1 = segment.GetStart().GetMidPoint(GetProjection(segment.GetStart()));
    if (segment.IsPoint(accuracy))
        return OnePoint(m1);
    const Point m2 = segment.GetEnd().GetMidPoint(GetProjection(segment.GetEnd()));
    const bool hasStart = Contains(segment.GetStart(), accuracy);
    const bool hasEnd = Contains(segment.GetEnd(), accuracy);
    if (hasStart || hasEnd)
        return {1, {hasStart ? m1 : m2, hasEnd ? m2 : m1}};
    const SegmentResult common = GetCommonSegment(Line(segment), segment.GetBox().GetMagnitude(), accuracy);
    QRL_ASSERT("Line", "r0.m_Success", common.m_Success);
    if (common.m_Segment.IsPoint(accuracy))
        return common;
    return {
        1, {common.m_Segment.GetNearestPoint(segment.GetStart()), common.m_Segment.GetNearestPoint(segment.GetEnd())}};
}

} // namespace geom
