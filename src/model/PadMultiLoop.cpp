#include "model/PadMultiLoop.h"

int PadMultiLoop::GetPolygons(std::vector<geom::Polygon>& out) const {
    out = polygons;
    return static_cast<int>(out.size());
}
