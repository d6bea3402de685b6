#include "fuzz/ShapeChecks.h"

#include "fuzz/FuzzTarget.h"
#include "lib/math/geometry/CircleSlice.h"
#include "lib/math/geometry/Transformation.h"

#include <cmath>

namespace {

bool IsFinite(geom::Point point) {
    return std::isfinite(static_cast<double>(point.GetX())) && std::isfinite(static_cast<double>(point.GetY()));
}

bool IsFinite(const geom::Arc& arc) {
    return IsFinite(arc.GetStart()) && IsFinite(arc.GetEnd()) && std::isfinite(static_cast<double>(arc.GetHeight()));
}

std::uint32_t CountArcs(const geom::Polygon& polygon, base::FilterMode mode, const geom::Box& filter) {
    std::uint32_t count = 0;
    for (geom::PolyArc::Iterator at = polygon.begin(mode, filter); !(at == polygon.end()); ++at)
        ++count;
    return count;
}

} // namespace

void CheckArc(const geom::Arc& arc, geom::Point point, geom::Unit length) {
    const geom::Segment segment(arc.GetStart(), point);
    const auto fraction = static_cast<double>(length);
    (void)arc.GetCircumference();
    (void)arc.GetSweep();
    (void)arc.GetSectorArea();
    (void)geom::CircleSlice(arc).GetArea();
    (void)arc.GetBox();
    (void)arc.GetStartTangent();
    (void)arc.GetEndTangent();
    (void)arc.GetPointAt(fraction);
    (void)arc.GetParameter(point, length);
    (void)arc.GetSubArc(fraction, 0.5);
    (void)arc.GetComplement();
    (void)arc.IsInSector(point, length);
    (void)arc.IntersectsBox(geom::Box(segment), length);
    (void)arc.IntersectsSegment(segment, length);
    (void)geom::Arc(arc.GetStart(), point, arc.GetEnd());
    (void)geom::Arc(arc.GetStartEndSegment(), length > 0 ? geom::k_CCW : geom::k_CW, point);
    (void)arc.GetTransformed(geom::Transformation(geom::Angle(geom::k_Degrees, fraction), point));
    if (IsFinite(arc) && !arc.IsCircle())
        Require(arc.GetReversed().GetReversed() == arc, "the reverse of the reverse is the arc");
}

void CheckOutline(const geom::Polygon& polygon, const geom::Box& filter) {
    const std::uint32_t count = CountArcs(polygon, base::k_NoFilter, filter);
    Require(count == polygon.GetArcCount(), "a walk meets all arcs");
    Require(CountArcs(polygon, base::k_SkipOutside, filter) <= count, "a filter lets a part through");
    Require(CountArcs(polygon, base::k_SkipInside, filter) <= count, "a filter lets a part through");
    (void)polygon.GetArea();
    (void)polygon.IsCircle(polygon.GetEpsilon(), static_cast<geom::Circle*>(nullptr));
    (void)polygon.GetReversed().GetBox();
    (void)polygon.GetTransformed(geom::Transformation(geom::Azimuth(geom::k_Radians, 1))).GetArea();
}
