#include "lib/math/geometry/Arc.h"
#include "lib/math/geometry/Line.h"

// Arc: points along the way, and how far along the way a point is.

namespace geom {

namespace {

/// Whether `point` lies on the ray from `center` through `end`, up to `accuracy`.
bool IsOnRadial(Point point, Point center, Point end, Unit accuracy) {
    return Line(center, end).Contains(point, accuracy) && Vector(center, end).IsSameWayAs(Vector(center, point));
}

} // namespace

Point Arc::GetMidPoint() const {
    // Reckoned from the lesser end, so that the arc and its reverse round alike.
    const bool isStartGreater =
        m_Start.GetX() > m_End.GetX() || (m_Start.GetX() == m_End.GetX() && m_Start.GetY() > m_End.GetY());
    if (isStartGreater)
        return GetReversed().GetMidPoint();
    const Segment chord = GetStartEndSegment();
    if (m_Height == k_NullUnit)
        return chord.GetMidPoint();
    if (IsCircle())
        return Point(Vector(GetCenter()) * 2) - Vector(m_Start);
    return chord.GetMidPoint() + chord.GetVector().GetWithLength(m_Height).GetRotated(k_Angle_90);
}

Point Arc::GetPointAt(double t) const {
    if (IsSegment(k_NullUnit))
        return GetStartEndSegment().GetPointAt(t);
    if (t == 0)
        return m_Start;
    if (t == 1)
        return m_End;
    if (t == 0.5)
        return GetMidPoint();
    return GetCircumference().GetPointAt(GetStartRadial() + GetSweep() * t);
}

double Arc::GetParameterOfAzimuth(Azimuth azimuth) const {
    QRL_ASSERT("Arc", "!IsSegment (0, NULL)", !IsSegment(k_NullUnit));
    return GetStartRadial().GetAngleTo(azimuth, GetDirection()) / GetSweep();
}

double Arc::GetParameter(Point point, Unit accuracy) const {
    if (point.IsEqualTo(m_Start, accuracy))
        return 0;
    if (point.IsEqualTo(m_End, accuracy))
        return 1;
    Segment chord;
    if (IsSegment(accuracy, &chord))
        return chord.GetParameter(point);
    const Point center = GetCenter();
    if (point.IsEqualTo(center, accuracy))
        return 0;
    if (IsOnRadial(point, center, m_Start, accuracy))
        return 0;
    if (IsOnRadial(point, center, m_End, accuracy))
        return 1;
    return GetParameterOfAzimuth(Vector(center, point).GetAzimuth());
}

Arc Arc::GetSubArc(double t1, double t2) const {
    if (IsSegment(k_NullUnit))
        return Arc(GetStartEndSegment().GetSubSegment(t1, t2));
    if (t1 == 0 && t2 == 1)
        return *this;
    if (t1 == 1 && t2 == 0)
        return GetReversed();
    const Segment chord(GetPointAt(t1), GetPointAt(t2));
    if (chord.IsPoint(k_NullUnit))
        return Arc(chord);
    const Direction direction = t1 > t2 ? GetOppositeDirection(GetDirection()) : GetDirection();
    return Arc(chord, direction, GetCenter());
}

} // namespace geom
