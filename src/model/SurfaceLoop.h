#ifndef QRL_MODEL_SURFACELOOP_H
#define QRL_MODEL_SURFACELOOP_H

#include "lib/math/geometry/Polygon.h"

/// A closed shape with a width. A plain value; copies share the outline.
struct SurfaceLoop {
    geom::Polygon polygon;
    double halfWidth = 0.0; ///< half of the width of the line around a void; 0 for the outline of a surface
};

#endif
