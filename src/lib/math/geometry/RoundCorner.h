#ifndef QRL_LIB_MATH_GEOMETRY_ROUNDCORNER_H
#define QRL_LIB_MATH_GEOMETRY_ROUNDCORNER_H

#include "lib/math/geometry/Arc.h"

#include <cstdint>

namespace geom {

/// Which part of the circle that touches both sides of a corner is wanted.
enum CornerMode : std::uint32_t {
    k_ShortWay = 0, ///< the part that rounds the corner
    k_LongWay = 1,  ///< the rest of it
};

// A corner is where two pieces of a chain meet. To round it is to find the circle of a given radius that touches both
// pieces, and the arc of it that leads from the first piece to the second. There is no success when that circle touches
// the pieces' continuations instead, because the radius is too big for them. What has no corner, as all
// three points lie on one line, gives a point-like arc there.

/// Rounds the polyline a, b, c at b. k_LongWay gives the other way round from the same start to the same end.
ArcResult GetRoundCorner(Point a, Point b, Point c, Unit radius, CornerMode mode);

/// Rounds the corner between an arc and the segment that leaves from its end. `mode` counts only for a straight arc.
/// A radius that isn't above 0 and pieces that don't meet are reported.
ArcResult GetRoundCorner(const Arc& arc, const Segment& segment, Unit radius, CornerMode mode);

/// Rounds the corner between two arcs, of which any may be straight. Pieces that don't meet are reported.
///
/// Two curved ones have their circle inside or outside of each of theirs, as the corner turns. Where none of `radius`
/// stands there, `try_all` permits the other sides. k_LongWay gives the complement, from the second arc to the first.
ArcResult GetRoundCorner(const Arc& a1, const Arc& a2, Unit radius, CornerMode mode, bool try_all);

} // namespace geom

#endif
