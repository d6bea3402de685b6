#include "lib/math/geometry/Exception.h"
#include "lib/math/geometry/Polygon.h"
#include "lib/math/geometry/Segment.h"
#include "lib/utils/Assert.h"

#include <vector>

namespace geom {

namespace {

/// Half the width of a track at one of its ends, along the track and across it to the left.
struct HalfWidth {
    HalfWidth(Vector track, Unit width)
        : m_Along(track.GetWithLength(width * 0.5)), m_Across(-m_Along.GetY(), m_Along.GetX()) {}

    Vector m_Along;
    Vector m_Across;
};

/// The cap from `from` to `to` by way of `tip`; an end of no width has none.
void AddCap(std::vector<Arc>& outline, Point from, Point tip, Point to, bool isSquare, const HalfWidth& width) {
    if (width.m_Across == k_NullVector)
        return;
    outline.push_back(isSquare ? Arc(Segment(from, to)) : Arc(from, tip, to));
}

} // namespace

Polygon Segment::GetPolygon(Unit start_width, bool start_square, Unit end_width, bool end_square) const {
    QRL_ASSERT("Segment", "!center_segment.IsPoint(0, NULL)", !IsPoint(k_Unit_0));
    // The radius is the whole width, unlike everywhere else: the format's established behaviour; kept as it is.
    if (IsPoint(k_Unit_0))
        return Polygon(Circle(m_Start, start_width));
    const HalfWidth atStart(GetVector(), start_width);
    const HalfWidth atEnd(GetVector(), end_width);
    const Point startRight = m_Start - atStart.m_Across;
    const Point endRight = m_End - atEnd.m_Across;
    const Point endLeft = m_End + atEnd.m_Across;
    const Point startLeft = m_Start + atStart.m_Across;
    std::vector<Arc> outline;
    outline.emplace_back(Segment(startRight, endRight));
    AddCap(outline, endRight, m_End + atEnd.m_Along, endLeft, end_square, atEnd);
    outline.emplace_back(Segment(endLeft, startLeft));
    AddCap(outline, startLeft, m_Start - atStart.m_Along, startRight, start_square, atStart);
    try {
        return {outline, false};
    } catch (Exception) {
        return {*this, k_NullUnit};
    }
}

} // namespace geom
