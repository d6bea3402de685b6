#include "neutral/Keywords.h"
#include "neutral/OutlineFuncs.h"
#include "neutral/ThermalVoids.h"
#include "neutral/ZukenConverter.h"

namespace {

/// Via(id, from, to, x, y, padstack, angle, RemoveThermalVoids(layer, 15, ...))
io::CBlock_func MakeVia(int32_t id, const Via& via) {
    io::CBlock_func func(keyword::k_Via);
    func << id << via.fromLayer << via.toLayer;
    AppendPoint_G(via.location, func);
    func << via.padstack->name << via.angle;
    AppendRemovedThermalVoids_G(via.noConnectLayers, func);
    return func;
}

} // namespace

void ZukenConverter::WriteLayoutNets(const Nets& nets, io::CBlock& parent) {
    io::CBlockPtr block(keyword::k_LayoutNets);
    for (const Net* net : nets)
        WriteLayoutNet(*net, *block);
    parent << block;
}

void ZukenConverter::WriteLayoutNet(const Net& net, io::CBlock& block) {
    io::CBlockPtr layoutNet(keyword::k_LayoutNet);
    *layoutNet << io::CBlock_named_value(keyword::k_Name, net.name);
    for (const Via* via : net.vias)
        if (via->padstack != nullptr)
            *layoutNet << MakeVia(TakeId(), *via);
    for (const Surface* surface : net.surfaces)
        WriteSurfaceGraphics(*surface, *layoutNet);
    for (const Trace* trace : net.traces)
        WriteTraceGraphics(*trace, *layoutNet);
    block << layoutNet;
}
