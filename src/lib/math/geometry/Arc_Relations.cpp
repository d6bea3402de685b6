#include "lib/math/geometry/Arc.h"
#include "lib/math/geometry/GeomStl.h"
#include "lib/math/geometry/Triangle.h"

// Arc: its bounds, its wedge, and where it meets boxes and segments.

namespace geom {

namespace {

bool IsWithinDistance(Point a, Point b, Unit accuracy) { return a.GetDistanceSquare(b) <= accuracy.GetSquare(); }

/// The point of a circumference at the end of the quadrant, counter-clockwise: the topmost one for quadrant 1.
Point GetQuadrantEnd(const Circumference& circumference, int quadrant) {
    const Point center = circumference.GetCenter();
    const Unit radius = circumference.GetRadius();
    switch (quadrant) {
    case 1:
        return {center.GetX(), center.GetY() + radius};
    case 2:
        return {center.GetX() - radius, center.GetY()};
    case 3:
        return {center.GetX(), center.GetY() - radius};
    default:
        return {center.GetX() + radius, center.GetY()};
    }
}

} // namespace

Box Arc::GetBox() const {
    const Box chordBox(GetStartEndSegment());
    if (IsSegment(k_NullUnit))
        return chordBox;
    const bool isChordAlongAxis = m_Start.GetX() == m_End.GetX() || m_Start.GetY() == m_End.GetY();
    if (!IsCircle() && !IsBig() && isChordAlongAxis)
        return chordBox.GetUnion(Box(GetMidPoint()));
    return GetCurvedBox();
}

/// Extends the box of the chord by each of the circle's four axis points that the arc passes on its way.
Box Arc::GetCurvedBox() const {
    const Circumference circumference = GetCircumference();
    if (IsCircle())
        return circumference.GetBox();
    const Point center = circumference.GetCenter();
    const int startQuadrant = Vector(center, m_Start).GetQuadrant();
    const int endQuadrant = Vector(center, m_End).GetQuadrant();
    Box box(GetStartEndSegment());
    if (startQuadrant == endQuadrant)
        return IsBig() ? circumference.GetBox() : box;
    const int last = IsCCW() ? endQuadrant : startQuadrant;
    for (int quadrant = IsCCW() ? startQuadrant : endQuadrant; quadrant != last; quadrant = quadrant % 4 + 1)
        box.Extend(GetQuadrantEnd(circumference, quadrant));
    return box;
}

Box Arc::GetLooseBox() const { return GetExpandedBox_T(GetStartEndSegment(), m_Height.GetAbs()); }

bool Arc::IsInSweep(Point start, Point end, Point center, Direction direction, Point point) {
    QRL_ASSERT("Arc", "ccw == k_CW || ccw == k_CCW", direction == k_CW || direction == k_CCW);
    const Direction startToPoint = Triangle(center, start, point).GetDirection();
    const Direction pointToEnd = Triangle(center, point, end).GetDirection();
    const Direction startToEnd = Triangle(center, start, end).GetDirection();
    // A sweep is the short way from start to end when they are oriented in its own sense.
    const bool isShort = startToEnd == direction;
    const bool isBelowHalfTurn = isShort && startToEnd != k_NoDirection;

    if (startToPoint == k_NoDirection) {
        if (pointToEnd == k_NoDirection || !isBelowHalfTurn)
            return true;
        return Segment(center, start).IsSameWayAs(Segment(center, point));
    }
    if (pointToEnd == k_NoDirection)
        return !isBelowHalfTurn || Segment(center, end).IsSameWayAs(Segment(center, point));
    if (startToEnd == k_NoDirection)
        return direction == startToPoint;
    const bool isInShortWedge = startToPoint == startToEnd && pointToEnd == startToEnd;
    return isInShortWedge == isShort;
}

bool Arc::IsInSector(Point point, Unit accuracy) const {
    if (IsCircle())
        return true;
    const Segment chord = GetStartEndSegment();
    if (IsSegment(accuracy))
        return chord.ProjectsInto(point, accuracy);
    if (chord.ContainsEnd(point, accuracy))
        return true;
    const Point center = GetCenter();
    if (IsWithinDistance(point, center, accuracy))
        return true;
    const Direction direction = GetDirection();
    if (IsInSweep(m_Start, m_End, center, direction, point))
        return true;
    if (accuracy == k_NullUnit)
        return false;
    const Vector aside = Vector(center, point).GetNormal(accuracy);
    return IsInSweep(m_Start, m_End, center, direction, point + aside) ||
           IsInSweep(m_Start, m_End, center, direction, point - aside);
}

bool Arc::IntersectsBox(const Box& box, Unit accuracy) const {
    if (box.IsEmpty())
        return false;
    const Segment chord = GetStartEndSegment();
    if (IsSegment(accuracy))
        return box.IntersectsSegment(chord, accuracy);
    if (box.IntersectsPoint(m_Start, accuracy) || box.IntersectsPoint(m_End, accuracy))
        return true;
    if (!GetLooseBox().Intersects(box))
        return false;
    // A chord that runs deeper inside the box than the arc can bulge takes the arc with it.
    const Box core = box.GetExpanded(-(m_Height.GetAbs() + accuracy));
    if (!core.IsEmpty() && core.IntersectsSegment(chord, k_NullUnit))
        return true;
    const Circumference circumference = GetCircumference();
    if (!circumference.IntersectsBox(box, accuracy))
        return false;
    if (IsCircle())
        return true;
    for (int n = 0; n < 4; ++n) {
        const Segment edge = box.GetEdge(n);
        if (circumference.IntersectsSegment(edge, accuracy) && IntersectsSegment(edge, accuracy))
            return true;
    }
    return false;
}

bool Arc::IntersectsSegment(const Segment& segment, Unit accuracy) const {
    const Segment chord = GetStartEndSegment();
    if (IsSegment(accuracy))
        return chord.IntersectsWith(segment, accuracy);
    if (segment.ContainsEnd(m_Start, accuracy) || segment.ContainsEnd(m_End, accuracy))
        return true;
    if (!GetLooseBox().Intersects(GetExpandedBox_T(segment, accuracy)))
        return false;
    const Circumference circumference = GetCircumference();
    if (IsCircle())
        return circumference.IntersectsSegment(segment, accuracy);
    const PointPairResult common = circumference.GetIntersections(segment, accuracy);
    return (common.m_Success1 != 0 && IsInSector(common.m_Point1, accuracy)) ||
           (common.m_Success2 != 0 && IsInSector(common.m_Point2, accuracy));
}

} // namespace geom
