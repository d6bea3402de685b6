#include "neutral/Keywords.h"
#include "neutral/OutlineFuncs.h"
#include "neutral/RecordBlock_T.h"
#include "neutral/ThermalVoids.h"
#include "neutral/ZukenConverter.h"

namespace {

/// Via(id, from, to, x, y, padstack, angle, RemoveThermalVoids(layer, 15, ...))
void AppendVia(int32_t id, const Via& via, io::CBlock& block) {
    io::CBlock_open_func func(block, keyword::k_Via);
    func << id << via.fromLayer << via.toLayer;
    AppendPoint_G(via.location, func);
    func << via.padstack->name << via.angle;
    AppendRemovedThermalVoids_G(via.noConnectLayers, func);
}

} // namespace

void ZukenConverter::WriteLayoutNets(const Nets& nets, io::CBlock& parent) {
    const auto write = [this](const Net& net, io::CBlock& items) { WriteLayoutNet(net, items); };
    parent << MakeRecordBlock_T(keyword::k_LayoutNets, nets, write);
}

void ZukenConverter::WriteLayoutNet(const Net& net, io::CBlock& block) {
    const auto write = [this, &net](size_t index, io::CBlock& items) { WriteLayoutNetItem(net, index, items); };
    const size_t count = 1 + net.vias.size() + net.surfaces.size() + net.traces.size();
    block << io::CBlockDeferredPtr(new io::CBlock_deferred(keyword::k_LayoutNet, count, write));
}

void ZukenConverter::WriteLayoutNetItem(const Net& net, size_t index, io::CBlock& block) {
    if (index == 0) {
        block << io::CBlock_named_value(keyword::k_Name, net.name);
        return;
    }
    --index;
    if (index < net.vias.size()) {
        WriteVia(*net.vias[index], block);
        return;
    }
    index -= net.vias.size();
    if (index < net.surfaces.size()) {
        WriteSurfaceGraphics(*net.surfaces[index], block);
        return;
    }
    index -= net.surfaces.size();
    net.PrefetchTracesAfter(index);
    WriteTraceGraphics(*net.traces[index], block);
}

void ZukenConverter::WriteVia(const Via& via, io::CBlock& block) {
    if (via.padstack != nullptr)
        AppendVia(TakeId(), via, block);
}
