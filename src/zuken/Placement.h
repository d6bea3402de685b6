#ifndef QRL_ZUKEN_PLACEMENT_H
#define QRL_ZUKEN_PLACEMENT_H

#include "lib/math/geometry/Transformation.h"

/// Moves a shape from its own origin to `location` and turns it there by `degrees`, counter-clockwise. A mirrored one,
/// which is on the bottom side, is turned the other way and then mirrored about the vertical line through `location`.
geom::Transformation GetPlacement_G(geom::Point location, double degrees, bool isMirrored);

#endif
