#include "model/PadRoundThermal.h"

bool PadRoundThermal::IsEqual(const BasePad& other) const {
    const auto* thermal = dynamic_cast<const PadRoundThermal*>(&other);
    return thermal != nullptr && thermal->bridgeAngle == bridgeAngle && thermal->bridgeWidth == bridgeWidth &&
           thermal->innerRadius == innerRadius && thermal->outerRadius == outerRadius &&
           thermal->bridgeCount == bridgeCount;
}
