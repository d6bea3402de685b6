#include "model/Via.h"

#include "model/Net.h"

#include <utility>

Via::Via(Padstack* viaPadstack, AString fromLayerName, AString toLayerName, geom::Point viaLocation, double viaAngle,
    Net* viaNet)
    : padstack(viaPadstack), fromLayer(std::move(fromLayerName)), toLayer(std::move(toLayerName)),
      location(viaLocation), angle(viaAngle), net(viaNet) {
    if (net != nullptr)
        net->AddVia(this);
}

int Via::GetNoConnectLayers(std::vector<AString>& out) const {
    out = noConnectLayers;
    return static_cast<int>(out.size());
}
