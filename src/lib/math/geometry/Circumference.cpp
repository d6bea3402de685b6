#include "lib/math/geometry/Circumference.h"

#include "lib/math/geometry/GeomStl.h"
#include "lib/math/geometry/Line.h"
#include "lib/utils/Assert.h"

#include <algorithm>

namespace geom {

bool Circumference::Contains(Point point, Unit accuracy) const {
    const Area square = m_Center.GetDistanceSquare(point);
    return square <= (m_Radius + accuracy).GetSquare() &&
           square >= std::max(m_Radius - accuracy, k_NullUnit).GetSquare();
}

PointResult Circumference::GetCommonPoint(Point point, Unit accuracy) const {
    if (!Contains(point, accuracy))
        return {};
    return {1, point.GetMidPoint(GetNearestPoint(point))};
}

bool Circumference::Intersects(const Circumference& other, Unit accuracy) const {
    const Area square = m_Center.GetDistanceSquare(other.m_Center);
    if (square > (m_Radius + other.m_Radius + accuracy).GetSquare())
        return false;
    const Unit difference = (other.m_Radius - m_Radius).GetAbs();
    return square >= std::max(difference - accuracy, k_NullUnit).GetSquare();
}

bool Circumference::IntersectsLine(const Line& line, Unit accuracy) const {
    const Unit reach = m_Radius + accuracy;
    return reach >= line.GetDistanceUpTo(m_Center, 2 * reach);
}

bool Circumference::IntersectsSegment(const Segment& segment, Unit accuracy) const {
    if (!GetBox().Intersects(GetExpandedBox_T(segment, accuracy)))
        return false;
    if (segment.IsPoint(accuracy))
        return Contains(segment.GetStart(), accuracy);
    if (Contains(segment.GetStart(), accuracy) || Contains(segment.GetEnd(), accuracy))
        return true;
    const int start = GetSignedDistance(segment.GetStart()).GetSign();
    const int end = GetSignedDistance(segment.GetEnd()).GetSign();
    if (start != end || start == 0)
        return true;
    if (start < 0)
        return false;
    return segment.GetDistanceSquareTo(m_Center) <= (m_Radius + accuracy).GetSquare();
}

bool Circumference::IntersectsBox(const Box& box, Unit accuracy) const {
    if (!GetExpandedBox_T(*this, accuracy).Intersects(box))
        return false;
    if (box.IntersectsPoint({m_Center.GetX() - m_Radius, m_Center.GetY()}, accuracy))
        return true;
    return IntersectsSegment(box.GetEdge(0), accuracy) || IntersectsSegment(box.GetEdge(2), accuracy) ||
           IntersectsSegment(box.GetEdge(1), accuracy) || IntersectsSegment(box.GetEdge(3), accuracy);
}

bool Circumference::IsEqualTo(const Circumference& other, Unit accuracy) const {
    return GetBox().IsEqualTo(other.GetBox(), accuracy);
}

PointPairResult Circumference::GetIntersections(const Line& line, Unit accuracy) const {
    if (!IntersectsLine(line, accuracy))
        return {};
    const CircleLineResult cross = Circle(*this).GetIntersection(line, accuracy);
    QRL_ASSERT("Circumference", "cross.m_Success", cross.m_Success);
    if (cross.m_Segment.IsPoint(accuracy))
        return {1, cross.m_Segment.GetStart(), 0, {}};
    return {1, cross.m_Segment.GetStart(), 1, cross.m_Segment.GetEnd()};
}

PointPairResult Circumference::GetIntersections(const Segment& segment, Unit accuracy) const {
    if (!GetExpandedBox_T(segment, accuracy).Intersects(GetBox()))
        return {};
    if (segment.IsPoint(accuracy)) {
        const PointResult common = GetCommonPoint(segment.GetStart(), accuracy);
        return {common.m_Success, common.m_Point, 0, {}};
    }
    if (Point center; IsPoint(accuracy, &center)) {
        const PointResult common = segment.GetCommonPoint(center, accuracy);
        return {common.m_Success, common.m_Point, 0, {}};
    }
    const PointPairResult all = GetIntersections(Line(segment), accuracy);
    const bool hasFirst = all.m_Success1 != 0 && segment.ProjectsInto(all.m_Point1, accuracy);
    const bool hasSecond = all.m_Success2 != 0 && segment.ProjectsInto(all.m_Point2, accuracy);
    if (hasFirst && hasSecond)
        return all; // farther apart than the accuracy, or the line would have had one point only
    if (hasFirst || hasSecond)
        return {1, hasFirst ? all.m_Point1 : all.m_Point2, 0, {}};
    return {};
}

} // namespace geom
