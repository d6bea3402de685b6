#include "lib/math/geometry/Arc.h"

#include "lib/math/geometry/Rotation.h"
#include "lib/math/geometry/Transformation.h"
#include "lib/math/geometry/Triangle.h"

#include <algorithm>
#include <cmath>

namespace geom {

namespace {

/// How far the distances of both ends from a centre may differ, relative to the larger, before the arc is looked at
/// more closely: coordinates that were written with ten digits.
constexpr double k_DistanceTolerance = 1e-10;

/// How far from the bisector of the chord, in chords, a centre may lie without a report.
constexpr double k_CenterTolerance = 0.333;

/// For distances, which are finite: what lies farther away than `k_InfiniteUnit` counts as that far.
bool IsClose(Unit a, Unit b) { return (a - b).GetAbs() <= std::max(a.GetAbs(), b.GetAbs()) * k_DistanceTolerance; }

} // namespace

Arc::Arc(const Circumference& circumference, Azimuth azimuth, Direction direction) {
    QRL_ASSERT("Arc", "cw_ccw == k_CCW || cw_ccw == k_CW", direction == k_CCW || direction == k_CW);
    if (circumference.IsPoint(k_NullUnit)) {
        m_Start = circumference.GetCenter();
        m_End = m_Start;
        return;
    }
    m_Start = circumference.GetPointAt(azimuth);
    m_End = m_Start;
    const Unit diameter = circumference.GetRadius() * 2;
    m_Height = direction == k_CCW ? -diameter : diameter;
    m_CenterAzimuth = azimuth.GetOpposite();
}

Arc::Arc(Point p1, Point p2, Point p3) {
    const Triangle triangle(p1, p2, p3);
    const Direction direction = triangle.GetDirection();
    const Segment chord(p1, p3);
    *this = direction == k_NoDirection ? Arc(chord) : Arc(chord, direction, Circle(triangle).GetCenter());
}

Arc::Arc(const Segment& segment, Direction direction, Point center) : Arc(segment) {
    QRL_ASSERT("Arc", "cw_ccw == k_CW || cw_ccw == k_CCW", direction == k_CW || direction == k_CCW);
    if (IsCircle())
        CloseAround(center, direction);
    else
        BendAround(center, direction);
}

/// Makes a point a full circle.
void Arc::CloseAround(Point center, Direction direction) {
    QRL_ASSERT("Arc", "!\"We haven't expected full circles here in the past - code untested\"", false);
    const Unit diameter = center.GetDistanceUpTo(m_Start, k_InfiniteUnit) * 2;
    m_Height = direction == k_CW ? diameter : -diameter;
    if (m_Height != k_Unit_0)
        m_CenterAzimuth = Vector(m_Start, center).GetAzimuth();
}

/// Gives a straight piece its height. With r the radius and q the distance of the chord from the centre, the arc on the
/// far side of the chord from the centre has the height r - q, the one on the centre's side r + q.
void Arc::BendAround(Point center, Direction direction) {
    const Segment chord = GetStartEndSegment();
    const Unit toStart = center.GetDistanceUpTo(m_Start, k_InfiniteUnit);
    const Unit toEnd = center.GetDistanceUpTo(m_End, k_InfiniteUnit);
    Unit radius = (toStart + toEnd) * 0.5;
    if (!IsClose(toStart, toEnd)) {
        // With d1 and d2 the distances of the ends, d1^2 - d2^2 = 2 length x puts the centre x off the bisector.
        const Unit length = chord.GetLength();
        const double ratio = (((toStart - toEnd) * 0.5) * (radius * 2) / length).GetAbs() / length;
        QRL_ASSERT("Arc", "ratio < 0.333", ratio < k_CenterTolerance);
    }

    const Area halfChordSquare = chord.GetLengthSquare() * 0.25;
    if (halfChordSquare > radius.GetSquare())
        radius = halfChordSquare.GetSquareRoot();
    const Unit centerDistance = std::max(radius.GetSquare() - halfChordSquare, k_NullArea).GetSquareRoot();

    const bool isCenterLeft = Triangle(m_Start, m_End, center).GetDirection() == k_CCW;
    const bool isFarSide = isCenterLeft == (direction == k_CCW);
    const Unit height = isFarSide ? radius - centerDistance : radius + centerDistance;
    m_Height = direction == k_CCW ? -height : height;
}

bool Arc::IsSegment(Unit accuracy, Segment* segment) const {
    if (m_Height.GetAbs() > accuracy)
        return false;
    if (segment != nullptr)
        *segment = GetStartEndSegment();
    return true;
}

bool Arc::IsPoint(Unit accuracy, Point* point) const {
    return IsSegment(accuracy) && GetStartEndSegment().IsPoint(accuracy, point);
}

// NOLINTNEXTLINE(misc-no-recursion): the circumference asks again without asking for one
bool Arc::IsCircle(Circumference* circumference) const {
    if (m_Start != m_End)
        return false;
    if (circumference != nullptr)
        *circumference = GetCircumference();
    return true;
}

bool Arc::IsFullCircle(Circumference* circumference) const { return m_Height != k_Unit_0 && IsCircle(circumference); }

bool Arc::IsBig() const { return m_Height.GetSquare() * 4 > GetStartEndSegment().GetLengthSquare(); }

bool Arc::IsHalfCircle() const { return m_Height.GetSquare() * 4 == GetStartEndSegment().GetLengthSquare(); }

Direction Arc::GetDirection() const {
    if (k_Unit_0 > m_Height)
        return k_CCW;
    return m_Height > k_Unit_0 ? k_CW : k_NoDirection;
}

// NOLINTNEXTLINE(misc-no-recursion): IsCircle is not asked for a circumference
Unit Arc::GetRadius() const {
    const Unit height = m_Height.GetAbs();
    if (IsCircle())
        return height * 0.5;
    QRL_ASSERT("Arc", "height > 0", height > k_NullUnit);
    if (IsHalfCircle())
        return height;
    return (GetStartEndSegment().GetLengthSquare() / (height * 4) + height) * 0.5;
}

// NOLINTNEXTLINE(misc-no-recursion): IsCircle is not asked for a circumference
Circumference Arc::GetCircumference() const {
    if (IsCircle()) {
        if (m_Height == k_NullUnit)
            return {m_Start, k_NullUnit};
        const Unit radius = GetRadius();
        return {m_Start + Vector(m_CenterAzimuth, radius), radius};
    }
    QRL_ASSERT("Arc", "m_Height != k_NullUnit", m_Height != k_NullUnit);
    const Segment chord = GetStartEndSegment();
    const Unit height = m_Height.GetAbs();
    if (IsHalfCircle())
        return {chord.GetMidPoint(), height};
    const Unit radius = (chord.GetLengthSquare() / (height * 4) + height) * 0.5;
    const double offset = (radius - height).GetAbs() / chord.GetLength();
    // The arc bulges to the left when it is clockwise. The centre is on that side only if the arc is big.
    const bool isCenterLeft = (m_Height > k_NullUnit) == IsBig();
    const Vector toCenter = (chord.GetVector() * offset).GetRotated(isCenterLeft ? k_Angle_90 : -k_Angle_90);
    return {chord.GetMidPoint() + toCenter, radius};
}

Angle Arc::GetSweep() const {
    if (m_Height == k_NullUnit)
        return k_Angle_0;
    if (IsCircle())
        return IsCCW() ? k_Angle_360 : -k_Angle_360;
    if (IsHalfCircle())
        return IsCCW() ? k_Angle_180 : -k_Angle_180;
    const Segment chord = GetStartEndSegment();
    if (!IsBig())
        return Angle(k_Radians, -4 * std::atan(m_Height / (chord.GetLength() * 0.5)));
    const Unit radius = (m_Height + chord.GetLengthSquare() / (m_Height * 4)) * 0.5;
    const double cosine = std::clamp((radius - m_Height) / radius, -1.0, 1.0);
    const Angle sweep(k_Radians, 2 * std::acos(cosine));
    return IsCCW() ? sweep : -sweep;
}

Area Arc::GetSectorArea() const {
    if (IsPoint(k_NullUnit))
        return k_NullArea;
    if (IsSegment(k_NullUnit))
        return k_InfiniteArea;
    return GetRadius().GetSquare() * GetSweep().GetValue(k_Radians) * 0.5;
}

Azimuth Arc::GetRadialTo(Point end) const {
    QRL_ASSERT("Arc", "!IsSegment(0, NULL)", !IsSegment(k_NullUnit));
    return IsFullCircle() ? m_CenterAzimuth.GetOpposite() : Vector(GetCenter(), end).GetAzimuth();
}

Azimuth Arc::GetStartRadial() const { return GetRadialTo(m_Start); }

Azimuth Arc::GetEndRadial() const { return GetRadialTo(m_End); }

Azimuth Arc::GetTangentAt(Point end) const {
    if (IsSegment(k_NullUnit))
        return GetStartEndSegment().GetVector().GetAzimuth();
    return IsCCW() ? GetRadialTo(end) + k_Angle_90 : GetRadialTo(end) - k_Angle_90;
}

Azimuth Arc::GetStartTangent() const { return GetTangentAt(m_Start); }

Azimuth Arc::GetEndTangent() const { return GetTangentAt(m_End); }

Arc Arc::GetReversed() const {
    Arc reversed(m_End, m_Start, -m_Height);
    reversed.m_CenterAzimuth = m_CenterAzimuth;
    return reversed;
}

Arc Arc::GetTransformed(const Transformation& transformation) const {
    const Unit height = m_Height * transformation.GetScale();
    Arc transformed(transformation.ApplyToPoint(m_Start), transformation.ApplyToPoint(m_End),
        transformation.IsMirroring() ? -height : height);
    if (IsFullCircle())
        transformed.m_CenterAzimuth = transformation.ApplyToAzimuth(m_CenterAzimuth);
    return transformed;
}

Arc Arc::GetRotated(const Rotation& rotation) const {
    const Segment chord = GetStartEndSegment().GetRotated(rotation);
    Arc rotated(chord.GetStart(), chord.GetEnd(), m_Height);
    if (IsFullCircle())
        rotated.m_CenterAzimuth = m_CenterAzimuth + rotation.GetAngle();
    return rotated;
}

Arc Arc::GetWithStart(Point start) const {
    Arc moved(start, m_End, m_Height);
    if (IsFullCircle()) {
        moved.m_End = start;
        moved.m_CenterAzimuth = m_CenterAzimuth;
    }
    return moved;
}

Arc Arc::GetComplement() const {
    QRL_ASSERT("Arc", "!IsSegment(0, NULL)", !IsSegment(k_NullUnit));
    if (IsCircle())
        return Arc(m_Start, m_Start, k_NullUnit);
    return Arc(m_End, m_Start, GetStartEndSegment().GetLengthSquare() / (m_Height * 4));
}

} // namespace geom
