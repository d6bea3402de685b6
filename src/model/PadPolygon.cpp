#include "model/PadPolygon.h"

bool PadPolygon::IsEqual(const BasePad& other) const {
    const auto* pad = dynamic_cast<const PadPolygon*>(&other);
    return pad != nullptr && pad->polygon == polygon;
}
