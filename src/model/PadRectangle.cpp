#include "model/PadRectangle.h"

bool PadRectangle::IsEqual(const BasePad& other) const {
    const auto* rectangle = dynamic_cast<const PadRectangle*>(&other);
    return rectangle != nullptr && rectangle->width == width && rectangle->height == height;
}
