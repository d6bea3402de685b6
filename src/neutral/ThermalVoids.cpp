#include "neutral/ThermalVoids.h"

#include "neutral/Keywords.h"

namespace {

constexpr int k_AllVoids = 15; ///< what the format wants beside each layer

} // namespace

void AppendRemovedThermalVoids_G(const std::vector<AString>& layers, io::CBlock_open_func& func) {
    if (layers.empty())
        return;
    io::CBlock_open_func removed(func, keyword::k_RemoveThermalVoids);
    for (const AString& layer : layers)
        removed << layer << k_AllVoids;
}
