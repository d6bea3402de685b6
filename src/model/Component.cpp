#include "model/Component.h"

#include <utility>

Component::Component(AString componentName, Footprint* componentFootprint, geom::Point componentLocation,
    double componentAngle, bool isMirrored)
    : name(std::move(componentName)), footprint(componentFootprint), location(componentLocation), angle(componentAngle),
      mirrored(isMirrored) {}

int Component::GetPins(std::vector<ComponentPin>& out) const {
    out = pins;
    return static_cast<int>(out.size());
}
