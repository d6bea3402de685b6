#include "model/Surface.h"

#include "model/Net.h"

#include <utility>

Surface::Surface(Net* surfaceNet, AString layerName, geom::Polygon polygon)
    : outline{std::move(polygon)}, layer(std::move(layerName)), net(surfaceNet) {
    if (net != nullptr)
        net->AddSurface(this);
}

int Surface::GetVoids(std::vector<SurfaceLoop>& out) const {
    out = voids;
    return static_cast<int>(out.size());
}
