#include "model/PadObround.h"

#include <algorithm>

bool PadObround::IsEqual(const BasePad& other) const {
    const auto* obround = dynamic_cast<const PadObround*>(&other);
    return obround != nullptr && obround->width == width && obround->height == height &&
           obround->cornerRadius == cornerRadius;
}

geom::Polygon PadObround::GetOutline() const {
    const double cornerDiameter = std::min(2.0 * cornerRadius, std::min(width, height));
    const geom::Box inner(geom::k_Origin, width - cornerDiameter, height - cornerDiameter);
    return geom::Polygon(inner, cornerRadius);
}
