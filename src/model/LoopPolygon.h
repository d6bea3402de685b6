#ifndef QRL_MODEL_LOOPPOLYGON_H
#define QRL_MODEL_LOOPPOLYGON_H

#include "lib/math/geometry/Polygon.h"

#include <vector>

class BasePad;

/// Appends the outline that `shape` has as one of the loops of a `PadMultiLoop`, and returns whether it has one.
///
/// Not the outline that the shape has as a pad of its own (`ZukenPCBParser::GetPadPolygons`): a rectangle is turned by
/// its angle about the pad's origin, an obround stays at the origin whatever its offset, and a thermal relief, for
/// which the result is false, is dropped without a word.
bool AddLoopPolygon_G(const BasePad& shape, std::vector<geom::Polygon>& polygons);

#endif
