#include "model/Footprint.h"

#include <utility>

Footprint::Footprint(AString footprintName, std::vector<FootprintPin*> footprintPins)
    : name(std::move(footprintName)), pins(std::move(footprintPins)) {
    int32_t index = 0;
    for (const FootprintPin* pin : pins)
        m_FirstByName.TryAdd(pin->name, index++);
}

int Footprint::GetPins(std::vector<FootprintPin*>& out) const {
    out = pins;
    return static_cast<int>(out.size());
}

FootprintPin* Footprint::FindPin(const AString& pinName) const {
    const int32_t index = GetPinIndex(pinName);
    return index < 0 ? nullptr : pins[static_cast<size_t>(index)];
}

int32_t Footprint::GetPinIndex(const AString& pinName) const {
    const int32_t* found = m_FirstByName.Find(pinName);
    return found == nullptr ? -1 : *found;
}
