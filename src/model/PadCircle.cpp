#include "model/PadCircle.h"

bool PadCircle::IsEqual(const BasePad& other) const {
    const auto* circle = dynamic_cast<const PadCircle*>(&other);
    return circle != nullptr && circle->diameter == diameter;
}
