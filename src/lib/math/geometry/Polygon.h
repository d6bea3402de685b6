#ifndef QRL_LIB_MATH_GEOMETRY_POLYGON_H
#define QRL_LIB_MATH_GEOMETRY_POLYGON_H

#include "lib/math/geometry/Circle.h"
#include "lib/math/geometry/PolyArc.h"

#include <vector>

namespace geom {

/// A closed chain of arcs: the outline of a filled shape. The shapes that it is made from give counter-clockwise
/// outlines. Copies share the arcs, as those of any PolyArc.
class Polygon : public PolyArc {
public:
    /// Empty.
    Polygon() : PolyArc(k_Closed) {}
    /// Of arcs that are a closed sequence. With `make_ccw` a clockwise one is reversed, so that the area isn't below 0.
    Polygon(const std::vector<Arc>& arcs, bool make_ccw);
    /// Of the straight pieces from point to point and back to the first.
    Polygon(const std::vector<Point>& vertices, bool make_ccw);
    /// One arc, counter-clockwise from the east; a point-like one for a radius of 0.
    explicit Polygon(const Circle& circle);
    /// The box grown by `expansion`, with round corners of that radius. A box that is a segment or a point gives the
    /// obround or circle around it, an empty one an empty polygon.
    Polygon(const Box& box, Unit expansion);
    /// The obround of all points at most half of `width` away from the segment. A point-like segment gives a circle, a
    /// width of 0 the segment there and back; a negative one is reported.
    Polygon(const Segment& segment, Unit width);

    Polygon GetReversed() const { return Polygon(PolyArc::GetReversed()); }
    Polygon GetTransformed(const Transformation& transformation) const {
        return Polygon(PolyArc::GetTransformed(transformation));
    }
    Polygon GetRotated(const Rotation& rotation) const { return Polygon(PolyArc::GetRotated(rotation)); }

    using PolyArc::IsCircle;
    /// Whether the outline is one circle within `accuracy`, which then goes to `circle` unless that is null.
    bool IsCircle(Unit accuracy, Circle* circle) const;

private:
    explicit Polygon(const PolyArc& closed) : PolyArc(closed) {}
};

} // namespace geom

#endif
