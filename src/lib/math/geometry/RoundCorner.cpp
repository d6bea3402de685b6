#include "lib/math/geometry/RoundCorner.h"

#include "lib/math/geometry/Line.h"
#include "lib/math/geometry/Triangle.h"

namespace geom {

namespace {

/// How much bigger than wanted a fitted radius may come out without a report. It is never below half the distance of
/// the tangent points.
constexpr double k_RadiusTolerance = 1.1;

/// Where a circle that touches two circumferences stands.
struct TangentCircle {
    PointResult m_Center;
    bool m_IsOutsideFirst = false; ///< outside of the first circumference
};

ArcResult GetPointLikeResult(Point point) { return {1, Arc(point, point, k_NullUnit)}; }

/// The line, turned round if need be so that `point` isn't on its right.
Line GetWithOnLeft(const Line& line, Point point) { return k_NullUnit > line.GetSignedDistance(point) ? -line : line; }

/// The arc between two tangent points. A circle inside of the first arc's goes on in its sense, one outside turns back.
Arc GetFittedArc(const Arc& first, bool isOutsideFirst, const Segment& tangentPoints, Point center, Unit radius) {
    const Direction direction = isOutsideFirst ? first.GetReversed().GetDirection() : first.GetDirection();
    const Arc fitted(tangentPoints, direction, center);
    QRL_ASSERT("RoundCorner", "ret.GetRadius() <= radius * 1.1", fitted.GetRadius() <= radius * k_RadiusTolerance);
    return fitted;
}

/// Whether the first of two directions leaves a right angle or more to the second.
bool IsTurnedAway(Azimuth from, Azimuth to) { return from.GetShortestAngleTo(to) >= k_Angle_90; }

/// The side of the line through both centres on which the corner of two arcs lies; the first arc's, when the corner is
/// on that line.
Direction GetCornerSide(const Arc& a1, const Circumference& c1, const Circumference& c2) {
    Direction side = Triangle(c1.GetCenter(), c2.GetCenter(), a1.GetEnd()).GetDirection();
    if (side == k_NoDirection)
        side = Triangle(c1.GetCenter(), c2.GetCenter(), a1.GetMidPoint()).GetDirection();
    return side == k_CCW ? k_CCW : k_CW;
}

TangentCircle FindTangentCircle(const Arc& a1, const Arc& a2, Unit radius, bool try_all) {
    const Azimuth r1 = a1.GetEndRadial();
    const Azimuth t1 = a1.GetEndTangent().GetOpposite();
    const Azimuth r2 = a2.GetStartRadial();
    const Azimuth t2 = a2.GetStartTangent();
    const bool side1 = r1.GetShortestAngleTo(t2) <= k_Angle_90;
    const bool side2 = r2.GetShortestAngleTo(t1) <= k_Angle_90;
    const Circumference c1 = a1.GetCircumference();
    const Circumference c2 = a2.GetCircumference();
    const Direction cornerSide = GetCornerSide(a1, c1, c2);

    TangentCircle found{c1.GetTangentCenter(side1, c2, side2, radius, cornerSide), side1};
    if (found.m_Center.m_Success != 0 || !try_all)
        return found;
    for (const bool isOutside1 : {false, true})
        for (const bool isOutside2 : {false, true}) {
            found = {c1.GetTangentCenter(isOutside1, c2, isOutside2, radius, cornerSide), isOutside1};
            if (found.m_Center.m_Success != 0)
                return found;
        }
    return found;
}

} // namespace

ArcResult GetRoundCorner(Point a, Point b, Point c, Unit radius, CornerMode mode) {
    if (Triangle(a, b, c).IsCollinear())
        return GetPointLikeResult(b);
    // The corner's inside is on the left of both lines.
    const Line l1 = GetWithOnLeft(Line(a, b), c);
    const Line l2 = GetWithOnLeft(Line(b, c), a);
    const Arc fitted = l1.GetFilletArc(false, l2, false, radius, mode == k_LongWay);
    if (!Segment(a, b).ProjectsInto(fitted.GetStart(), k_NullUnit) ||
        !Segment(b, c).ProjectsInto(fitted.GetEnd(), k_NullUnit))
        return {};
    return {1, fitted};
}

ArcResult GetRoundCorner(const Arc& arc, const Segment& segment, Unit radius, CornerMode mode) {
    QRL_ASSERT("RoundCorner", "arc.GetEnd() == segment.GetStart()", arc.GetEnd() == segment.GetStart());
    QRL_ASSERT("RoundCorner", "radius > 0", radius > k_NullUnit);
    if (arc.IsSegment(k_NullUnit))
        return GetRoundCorner(arc.GetStart(), arc.GetEnd(), segment.GetEnd(), radius, mode);
    if (segment.IsPoint(k_NullUnit))
        return radius == k_NullUnit ? GetPointLikeResult(segment.GetStart()) : ArcResult();

    const Line line(segment);
    // The rounding stands outside of the arc's circle when the segment leaves outward, and on that side of the line on
    // which the arc arrives.
    const bool isOutside = !IsTurnedAway(arc.GetEndRadial(), segment.GetVector().GetAzimuth());
    const Azimuth backAlongArc = arc.GetEndTangent().GetOpposite();
    const bool isRightOfLine = IsTurnedAway(backAlongArc, line.GetNormal().GetAzimuthUnchecked());
    const Circumference circumference = arc.GetCircumference();
    const PointResult center = circumference.GetTangentCenter(isOutside, line, isRightOfLine, !isOutside, radius);
    if (center.m_Success == 0)
        return {};

    const Segment tangentPoints(circumference.GetNearestPoint(center.m_Point), line.GetProjection(center.m_Point));
    if (!arc.IsInSector(tangentPoints.GetStart(), k_NullUnit) ||
        !segment.ProjectsInto(tangentPoints.GetEnd(), k_NullUnit))
        return {};
    return {1, GetFittedArc(arc, isOutside, tangentPoints, center.m_Point, radius)};
}

ArcResult GetRoundCorner(const Arc& a1, const Arc& a2, Unit radius, CornerMode mode, bool try_all) {
    QRL_ASSERT("RoundCorner", "a1.GetEnd() == a2.GetStart()", a1.GetEnd() == a2.GetStart());
    Segment chord;
    if (a2.IsSegment(k_NullUnit, &chord))
        return GetRoundCorner(a1, chord, radius, mode);
    if (a1.IsSegment(k_NullUnit, &chord)) {
        ArcResult backwards = GetRoundCorner(a2.GetReversed(), chord.GetReversed(), radius, mode);
        if (backwards.m_Success != 0)
            backwards.m_Arc = backwards.m_Arc.GetReversed();
        return backwards;
    }

    const TangentCircle circle = FindTangentCircle(a1, a2, radius, try_all);
    if (circle.m_Center.m_Success == 0)
        return {};
    const Point center = circle.m_Center.m_Point;
    const Segment tangentPoints(
        a1.GetCircumference().GetNearestPoint(center), a2.GetCircumference().GetNearestPoint(center));
    if (!a1.IsInSector(tangentPoints.GetStart(), k_NullUnit) || !a2.IsInSector(tangentPoints.GetEnd(), k_NullUnit))
        return {};
    const Arc fitted = GetFittedArc(a1, circle.m_IsOutsideFirst, tangentPoints, center, radius);
    return {1, mode == k_LongWay ? fitted.GetComplement() : fitted};
}

} // namespace geom
