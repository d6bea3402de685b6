#include "lib/math/geometry/Box.h"

#include "lib/math/geometry/GeomStl.h"
#include "lib/math/geometry/Line.h"
#include "lib/utils/Assert.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace geom {

namespace {

// On which sides of a box a point lies: a bit for each side.
constexpr unsigned k_Inside = 0;
constexpr unsigned k_Left = 1;
constexpr unsigned k_Right = 2;
constexpr unsigned k_Below = 4;
constexpr unsigned k_Above = 8;

/// After so many moves an end goes to and fro between two sides by rounding alone.
constexpr int k_MaxClipMoves = 100;

unsigned GetSides(const Box& box, Point point) {
    const int x = box.GetXRange().GetPosition(point.GetX());
    const int y = box.GetYRange().GetPosition(point.GetY());
    return (x < 0 ? k_Left : 0) | (x > 0 ? k_Right : 0) | (y < 0 ? k_Below : 0) | (y > 0 ? k_Above : 0);
}

/// Whether a line that goes from `near` to `far` across a box has a part between `lower` and `upper`.
bool Overlaps(Unit near, Unit far, Unit lower, Unit upper) {
    if (lower > near)
        return far >= lower;
    if (near > upper)
        return upper >= far;
    return true;
}

/// The way from `start` to `end` along an axis as far as it lies in `range`, in that direction.
std::pair<Unit, Unit> ClipSpan(const Box::Range& range, Unit start, Unit end) {
    const Box::Range span = Box::Range(start, end).GetIntersection(range);
    // A span that misses the range by rounding alone comes out as the ends of an empty one.
    std::pair<Unit, Unit> ends(1, 0);
    if (!span.IsEmpty())
        ends = {span.GetMin(), span.GetMax()};
    if (start > end)
        std::swap(ends.first, ends.second);
    return ends;
}

/// Moves `point` along a segment of direction `vector` to the border of `box`: to one of the `sides` it lies on.
Point MoveToBorder(const Box& box, Point point, unsigned sides, Vector vector) {
    if ((sides & (k_Below | k_Above)) != 0) {
        const Unit y = (sides & k_Below) != 0 ? box.GetYRange().GetMin() : box.GetYRange().GetMax();
        return {point.GetX() + (y - point.GetY()) * vector.GetInverseSlope(), y};
    }
    const Unit x = (sides & k_Left) != 0 ? box.GetXRange().GetMin() : box.GetXRange().GetMax();
    return {x, point.GetY() + (x - point.GetX()) * vector.GetSlope()};
}

Point Clamp(const Box& box, Point point) {
    return {std::clamp(point.GetX(), box.GetXRange().GetMin(), box.GetXRange().GetMax()),
        std::clamp(point.GetY(), box.GetYRange().GetMin(), box.GetYRange().GetMax())};
}

/// Cohen and Sutherland's line clipping: moves an outer end to one border after the other until the segment is in the
/// box or beyond one of its sides.
BoxSegmentResult ClipSloped(const Box& box, const Segment& segment) {
    Point p = segment.GetStart();
    Point q = segment.GetEnd();
    bool isSwapped = false;
    for (int move = 0;; ++move) {
        if (move == k_MaxClipMoves) {
            p = Clamp(box, p);
            q = Clamp(box, q);
        }
        const unsigned sides = GetSides(box, p);
        const unsigned otherSides = GetSides(box, q);
        if ((sides & otherSides) != 0)
            return {};
        if ((sides | otherSides) == k_Inside)
            return {1, isSwapped ? Segment(q, p) : Segment(p, q)};
        if (sides == k_Inside) {
            std::swap(p, q);
            isSwapped = !isSwapped;
        } else {
            p = MoveToBorder(box, p, sides, segment.GetVector());
        }
    }
}

} // namespace

Point Box::GetVertex(int n) const {
    QRL_ASSERT("Box", "!IsEmpty()", !IsEmpty());
    switch (n) {
    case 1:
        return {m_XRange.GetMax(), m_YRange.GetMax()};
    case 2:
        return {m_XRange.GetMin(), m_YRange.GetMax()};
    case 3:
        return {m_XRange.GetMin(), m_YRange.GetMin()};
    case 4:
        return {m_XRange.GetMax(), m_YRange.GetMin()};
    default:
        QRL_ASSERT("Box", "!\"This should never happen!\"", false);
        return k_Origin;
    }
}

Segment Box::GetEdge(int n) const {
    QRL_ASSERT("Box", "!IsEmpty()", !IsEmpty());
    if (n < 0 || n > 3) {
        QRL_ASSERT("Box", "!\"This should never happen!\"", false);
        return {};
    }
    return {GetVertex(n == 0 ? 4 : n), GetVertex(n + 1)};
}

std::vector<Segment> Box::GetEdges(Direction direction) const {
    QRL_ASSERT("Box", "direction == k_CW || direction == k_CCW", direction == k_CW || direction == k_CCW);
    QRL_ASSERT("Box", "!IsEmpty()", !IsEmpty());
    if (IsEmpty())
        return {};
    if (direction == k_CW)
        return {GetEdge(0).GetReversed(), GetEdge(3).GetReversed(), GetEdge(2).GetReversed(), GetEdge(1).GetReversed()};
    return {GetEdge(1), GetEdge(2), GetEdge(3), GetEdge(0)};
}

Segment Box::GetDiagonal(int n) const {
    QRL_ASSERT("Box", "!IsEmpty()", !IsEmpty());
    return {GetVertex((n + 1) % 4 + 1), GetVertex(n)};
}

Unit Box::GetMagnitude() const {
    return std::max({m_XRange.GetMin().GetAbs(), m_XRange.GetMax().GetAbs(), m_YRange.GetMin().GetAbs(),
        m_YRange.GetMax().GetAbs(), m_XRange.GetSize(), m_YRange.GetSize()});
}

Box Box::GetExpanded(Unit e) const {
    if (IsEmpty() || e == k_Unit_0)
        return *this;
    // Shrunk ranges would cross over and come out filled again.
    if (e < k_Unit_0 && (-2 * e > m_XRange.GetSize() || -2 * e > m_YRange.GetSize()))
        return k_EmptyBox;
    const Range dx = m_XRange.GetExpanded(e);
    const Range dy = m_YRange.GetExpanded(e);
    QRL_ASSERT("Box", "!dx.IsEmpty() && !dy.IsEmpty()", !dx.IsEmpty() && !dy.IsEmpty());
    const Box expanded(dx, dy);
    return expanded.IsEmpty() ? k_EmptyBox : expanded;
}

bool Box::Intersects(const Box& other, Unit accuracy) const {
    if (IsEmpty())
        return false;
    return Box(m_XRange.GetExpanded(accuracy), m_YRange.GetExpanded(accuracy)).Intersects(other);
}

bool Box::IntersectsPoint(Point point, Unit accuracy) const {
    return !IsEmpty() && Intersects(Box(point, 2 * accuracy));
}

BoxRelation Box::GetRelationTo(const Box& other, Unit accuracy) const {
    if (!Intersects(other, accuracy))
        return k_BoxOutside;
    if (m_XRange.GetMin() > other.m_XRange.GetMin() + accuracy &&
        m_YRange.GetMin() > other.m_YRange.GetMin() + accuracy &&
        other.m_XRange.GetMax() - accuracy > m_XRange.GetMax() &&
        other.m_YRange.GetMax() - accuracy > m_YRange.GetMax())
        return k_BoxInside;
    if (other.m_XRange.GetMin() - accuracy > m_XRange.GetMin() &&
        other.m_YRange.GetMin() - accuracy > m_YRange.GetMin() &&
        m_XRange.GetMax() > other.m_XRange.GetMax() + accuracy &&
        m_YRange.GetMax() > other.m_YRange.GetMax() + accuracy)
        return k_BoxAround;
    return k_BoxCrossing;
}

bool Box::IntersectsLine(const Line& line, Unit accuracy) const {
    QRL_ASSERT("Box", "accuracy >= 0", accuracy >= 0);
    if (IsEmpty())
        return false;
    if (Segment segment; IsSegment(accuracy, &segment))
        return line.IntersectsSegment(segment, accuracy);
    const Unit x1 = m_XRange.GetMin() - accuracy;
    const Unit x2 = m_XRange.GetMax() + accuracy;
    const Unit y1 = m_YRange.GetMin() - accuracy;
    const Unit y2 = m_YRange.GetMax() + accuracy;
    if (std::abs(line.GetA()) > std::abs(line.GetB()))
        return Overlaps(line.GetX(y1), line.GetX(y2), x1, x2);
    return Overlaps(line.GetY(x1), line.GetY(x2), y1, y2);
}

bool Box::IntersectsSegment(const Segment& segment, Unit accuracy) const {
    if (IsEmpty() || !Intersects(GetExpandedBox_T(segment, accuracy)))
        return false;
    if (segment.IsPoint(accuracy))
        return IntersectsPoint(segment.GetStart(), accuracy);
    if (Point center; IsPoint(accuracy, &center))
        return segment.Contains(center, accuracy);
    const Box working(m_XRange.GetExpanded(accuracy), m_YRange.GetExpanded(accuracy));
    const unsigned start = GetSides(working, segment.GetStart());
    const unsigned end = GetSides(working, segment.GetEnd());
    if (start == k_Inside || end == k_Inside)
        return true;
    if ((start & end) != 0)
        return false;
    if ((start | end) == (k_Left | k_Right) || (start | end) == (k_Below | k_Above))
        return true;
    return IntersectsLine(Line(segment), accuracy);
}

BoxSegmentResult Box::GetClipped(const Segment& segment, Unit accuracy) const {
    QRL_ASSERT("Box", "!IsEmpty()", !IsEmpty());
    if (IsEmpty() || !Intersects(GetExpandedBox_T(segment, accuracy)))
        return {};
    const Point start = segment.GetStart();
    const Point end = segment.GetEnd();
    if (segment.IsPoint(accuracy))
        return {1, {start, start}};
    if (Point center; IsPoint(accuracy, &center))
        return segment.Contains(center, accuracy) ? BoxSegmentResult{1, {center, center}} : BoxSegmentResult{};
    const Box working(m_XRange.GetExpanded(accuracy), m_YRange.GetExpanded(accuracy));
    BoxSegmentResult part;
    if (start.GetY() == end.GetY()) {
        const auto [x1, x2] = ClipSpan(working.m_XRange, start.GetX(), end.GetX());
        part = {1, {{x1, start.GetY()}, {x2, start.GetY()}}};
    } else if (start.GetX() == end.GetX()) {
        const auto [y1, y2] = ClipSpan(working.m_YRange, start.GetY(), end.GetY());
        part = {1, {{start.GetX(), y1}, {start.GetX(), y2}}};
    } else {
        part = ClipSloped(working, segment);
    }
    if (part.m_Success == 0 || !part.m_Segment.IsPoint(accuracy))
        return part;
    const Point middle = part.m_Segment.GetStart().GetMidPoint(part.m_Segment.GetEnd());
    return {1, {middle, middle}};
}

bool Box::IsPoint(Unit accuracy, Point* point) const {
    if (IsEmpty() || !(m_XRange.GetSize() <= accuracy) || !(m_YRange.GetSize() <= accuracy))
        return false;
    if (point != nullptr)
        *point = GetCenter();
    return true;
}

bool Box::IsSegment(Unit accuracy, Segment* segment) const {
    if (IsEmpty() || !(m_XRange.GetSize() <= accuracy || m_YRange.GetSize() <= accuracy))
        return false;
    if (segment != nullptr)
        *segment = GetDiagonal(1);
    return true;
}

bool Box::IsEqualTo(const Box& other, Unit accuracy) const {
    if (IsEmpty() || other.IsEmpty())
        return IsEmpty() && other.IsEmpty();
    return GetVertex(1).IsEqualTo(other.GetVertex(1), accuracy) && GetVertex(3).IsEqualTo(other.GetVertex(3), accuracy);
}

} // namespace geom
