#include "model/Padstack.h"

#include "model/BasePad.h"

#include <algorithm>
#include <utility>

namespace {

bool HasPad(const PadstackLayerPad* entry) { return entry != nullptr && entry->pad != nullptr; }

bool AreEqual(const PadstackLayerPad* a, const PadstackLayerPad* b) {
    if (a == nullptr || b == nullptr)
        return a == b;
    return a->layer == b->layer && a->value2 == b->value2 && a->value1 == b->value1 && a->angle == b->angle &&
           a->pad != nullptr && b->pad != nullptr && b->pad->IsEqual(*a->pad);
}

/// Compares two sequences of one length from `index` on, and leaves `index` where it stops.
bool AreEqualFrom(size_t& index, const Padstack::LayerPads& a, const Padstack::LayerPads& b) {
    for (; index < a.size(); ++index)
        if (!AreEqual(a[index], b[index]))
            return false;
    return true;
}

int Copy(const Padstack::LayerPads& pads, Padstack::LayerPads& out) {
    out = pads;
    return static_cast<int>(out.size());
}

} // namespace

Padstack::Padstack(AString padstackName, geom::Polygon drill, LayerPads connect, LayerPads noConnect, LayerPads thermal)
    : name(std::move(padstackName)), hole(std::move(drill)), connectPads(std::move(connect)),
      noConnectPads(std::move(noConnect)), thermalPads(std::move(thermal)) {}

int Padstack::GetConnectPads(LayerPads& out) const { return Copy(connectPads, out); }

int Padstack::GetNoConnectPads(LayerPads& out) const { return Copy(noConnectPads, out); }

int Padstack::GetThermalPads(LayerPads& out) const { return Copy(thermalPads, out); }

bool Padstack::HasMultiLoopPad() const {
    const auto isMultiLoop = [](const PadstackLayerPad* entry) { return HasPad(entry) && entry->pad->IsMultiLoop(); };
    return std::any_of(connectPads.begin(), connectPads.end(), isMultiLoop);
}

bool Padstack::IsMultiLayerWithoutHole() const {
    return hole.empty() && std::count_if(connectPads.begin(), connectPads.end(), HasPad) > 1;
}

/// One index runs through both pairs of sequences: the clearances go on where the connecting pads ended. Established
/// behaviour; kept as it is.
bool Padstack::IsEqual(const Padstack& other) const {
    if (connectPads.size() != other.connectPads.size())
        return false;
    size_t index = 0;
    if (!AreEqualFrom(index, connectPads, other.connectPads))
        return false;
    return noConnectPads.size() == other.noConnectPads.size() &&
           AreEqualFrom(index, noConnectPads, other.noConnectPads);
}
