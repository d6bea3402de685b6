#include "lib/math/geometry/Segment.h"

#include "lib/math/geometry/Box.h"
#include "lib/math/geometry/GeomStl.h"
#include "lib/math/geometry/Line.h"
#include "lib/math/geometry/Rotation.h"
#include "lib/math/geometry/Transformation.h"
#include "lib/math/geometry/Triangle.h"
#include "lib/utils/Assert.h"

#include <cmath>

namespace geom {

namespace {

/// The squares of a point's distances to both ends of a segment, and of the segment's length.
struct EndDistances {
    EndDistances(const Segment& segment, Point point)
        : m_ToStart(point.GetDistanceSquare(segment.GetStart())), m_ToEnd(point.GetDistanceSquare(segment.GetEnd())),
          m_Length(segment.GetLengthSquare()) {}

    // The angle at an end is right or more when the far side's square makes up for the other two (Pythagoras).
    bool IsBehindEnd() const { return m_ToStart >= m_Length + m_ToEnd; }
    bool IsBeforeStart() const { return m_ToEnd >= m_Length + m_ToStart; }

    Area m_ToStart;
    Area m_ToEnd;
    Area m_Length;
};

/// Whether both ends of `other` lie strictly on the same side of the line through `segment`.
bool IsOnOneSide(const Segment& segment, const Segment& other) {
    const Vector vector = segment.GetVector();
    const int start = vector.GetVectorProductWith(Vector(segment.GetStart(), other.GetStart())).GetSign();
    const int end = vector.GetVectorProductWith(Vector(segment.GetStart(), other.GetEnd())).GetSign();
    return start != 0 && start == end;
}

Unit Between(Unit a, Unit b) { return a == b ? a : (a + b) * 0.5; }

} // namespace

Box Segment::GetBox() const { return Box(*this); }

// NOLINTNEXTLINE(misc-no-recursion): once, reversed
Point Segment::GetMidPoint() const {
    const bool isDescending =
        m_Start.GetX() > m_End.GetX() || (m_Start.GetX() == m_End.GetX() && m_Start.GetY() > m_End.GetY());
    if (isDescending)
        return GetReversed().GetMidPoint();
    return {Between(m_Start.GetX(), m_End.GetX()), Between(m_Start.GetY(), m_End.GetY())};
}

Point Segment::GetPointAt(double t) const {
    if (t == 0)
        return m_Start;
    if (t == 1)
        return m_End;
    if (t == 0.5)
        return GetMidPoint();
    return m_Start == m_End ? m_Start : m_Start + GetVector() * t;
}

double Segment::GetParameter(Point point) const {
    if (m_Start == m_End)
        return 0;
    return GetVector().GetScalarProductWith(Vector(m_Start, point)) / GetLengthSquare();
}

Area Segment::GetDistanceSquareTo(Point point) const {
    const EndDistances squares(*this, point);
    if (squares.IsBehindEnd())
        return squares.m_ToEnd;
    if (squares.IsBeforeStart())
        return squares.m_ToStart;
    // The triangle's height over the segment is 2 a / length.
    const Area area = Triangle(point, m_Start, m_End).GetArea();
    return (area / squares.m_Length) * (area * 4);
}

Point Segment::GetNearestPoint(Point point) const {
    if (m_Start == m_End)
        return m_Start;
    if (Contains(point, 0))
        return point;
    const EndDistances squares(*this, point);
    if (squares.IsBehindEnd())
        return m_End;
    if (squares.IsBeforeStart())
        return m_Start;
    const double offset = GetParameter(point);
    QRL_ASSERT("Segment", "offset >= -0.1 && offset <= 1.1", offset >= -0.1 && offset <= 1.1);
    if (offset <= 0)
        return m_Start;
    return offset >= 1 ? m_End : m_Start + GetVector() * offset;
}

Line Segment::GetBisector() const { return {GetMidPoint(), GetVector(), k_Across}; }

Segment Segment::GetTransformed(const Transformation& transformation) const {
    return {m_Start.GetTransformed(transformation), m_End.GetTransformed(transformation)};
}

Segment Segment::GetRotated(const Rotation& rotation) const {
    const Transformation transformation(rotation);
    const Point start = m_Start.GetTransformed(transformation);
    return {start, m_Start == m_End ? start : m_End.GetTransformed(transformation)};
}

bool Segment::IsPoint(Unit accuracy, Point* point) const {
    if (!m_Start.IsEqualTo(m_End, accuracy))
        return false;
    if (point != nullptr)
        *point = m_Start;
    return true;
}

bool Segment::IsEqualTo(const Segment& other, Unit accuracy) const {
    return m_Start.IsEqualTo(other.m_Start, accuracy) && m_End.IsEqualTo(other.m_End, accuracy);
}

bool Segment::Contains(Point point, Unit accuracy) const {
    if (IsPoint(accuracy))
        return m_Start.GetDistanceSquare(point) <= accuracy.GetSquare();
    if (!GetExpandedBox_T(*this, accuracy).Intersects(Box(point)))
        return false;
    if (ContainsEnd(point, accuracy))
        return true;
    return Vector(m_Start, point).GetVectorProductWith(GetVector()).GetAbs() <= GetLength() * accuracy;
}

bool Segment::ContainsEnd(Point point, Unit accuracy) const {
    const Area limit = accuracy.GetSquare();
    return m_Start.GetDistanceSquare(point) <= limit || m_End.GetDistanceSquare(point) <= limit;
}

bool Segment::ProjectsInto(Point point, Unit accuracy) const {
    if (accuracy > k_NullUnit && Contains(point, accuracy))
        return true;
    const EndDistances squares(*this, point);
    if (!std::isfinite(double(squares.m_ToStart)) || !std::isfinite(double(squares.m_ToEnd)))
        return false;
    return !(squares.m_ToStart > squares.m_ToEnd + squares.m_Length) &&
           !(squares.m_ToEnd > squares.m_ToStart + squares.m_Length);
}

bool Segment::IntersectsWith(const Segment& other, Unit accuracy) const {
    if (!GetBox().Intersects(GetExpandedBox_T(other, accuracy)))
        return false;
    if (Contains(other.m_Start, accuracy) || Contains(other.m_End, accuracy) || other.Contains(m_Start, accuracy) ||
        other.Contains(m_End, accuracy))
        return true;
    return !IsOnOneSide(*this, other) && !IsOnOneSide(other, *this);
}

PointResult Segment::GetCommonPoint(Point point, Unit accuracy) const {
    if (!Contains(point, accuracy))
        return {};
    if (IsPoint(accuracy))
        return {1, m_Start.GetCentroid(m_End, point)};
    return {1, point.GetMidPoint(GetNearestPoint(point))};
}

} // namespace geom
