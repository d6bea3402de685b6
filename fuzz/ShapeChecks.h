#ifndef QRL_FUZZ_SHAPECHECKS_H
#define QRL_FUZZ_SHAPECHECKS_H

#include "lib/math/geometry/Polygon.h"

/// Asks all that there is to ask of an arc, together with some point and length. Arcs of finite numbers are the reverse
/// of their reverse.
void CheckArc(const geom::Arc& arc, geom::Point point, geom::Unit length);

/// Walks and measures an outline. What a walk with a filter meets is a part of what one without it meets.
void CheckOutline(const geom::Polygon& polygon, const geom::Box& filter);

#endif
