#include "model/ZukenPCBParser.h"
#include "zuken/ListValues.h"
#include "zuken/Placement.h"

#include <iostream>

namespace {

/// The conductive numbers between which a via runs; equal when only one is told.
struct LayerSpan {
    int from = 0;
    int to = 0;
};

/// (fromTo 1 6)
LayerSpan ReadLayerSpan(io::FuncView fromTo) {
    LayerSpan span;
    fromTo >> span.from;
    span.to = span.from;
    fromTo >> span.to;
    return span;
}

void ReportUnknownPadstack(const AString& name) {
    std::cout << "Padstack " << name.QRL_ANSI() << " not found in ftf file\n" << std::flush;
}

/// Whether the neutral file's padstacks have no form for it, so that its pads have to be drawn.
bool IsDrawn(const Padstack* padstack) {
    return padstack != nullptr && (padstack->HasMultiLoopPad() || padstack->IsMultiLayerWithoutHole());
}

} // namespace

bool ZukenPCBParser::ReadPadstackLayer(const io::CBlock_func& layer, bool mirrorLayers, FootprintPin* pin) {
    for (const io::FuncView item : io::FuncView(layer).Funcs())
        if (item.NameIs("padstack"))
            ReadPadstackInstance(item, mirrorLayers, pin);
    return true;
}

/// A via, unless the padstack has to be drawn. A pin's padstack is no via: it comes with the footprint.
///
///     (padstack VIA60 (net GND) (pt 1450000 2018000) (angle 90) (fromTo 1 6)
///       (conductive (layerNumber 2 (STATUS NOCONNECT))))
void ZukenPCBParser::ReadPadstackInstance(io::FuncView item, bool mirrorLayers, const FootprintPin* pin) {
    AString name;
    item >> name;
    Net* net = GetNetOfText(item.Find("net").GetText());
    const geom::Point location = GetPointOf_G(item, coordScale);
    const double angle = GetRealOf_G(item, "angle");
    Padstack* padstack = FindPadstack(name);
    if (padstack == nullptr) {
        ReportUnknownPadstack(name);
        return;
    }
    if (IsDrawn(padstack)) {
        AddPadstackSurfaces(net, padstack, GetPlacement_G(location, angle, false), mirrorLayers);
        return;
    }
    if (pin != nullptr)
        return;
    const LayerSpan span = ReadLayerSpan(item.Find("fromTo"));
    Via* via =
        vias.Make(padstack, GetConductiveLayerName(span.from), GetConductiveLayerName(span.to), location, angle, net);
    ReadNoConnectLayers(item, via->noConnectLayers);
}

/// (conductive (layerNumber 2 (STATUS NOCONNECT)) (layerNumber 3 (STATUS CONNECT)) (layerNumber 4))
int ZukenPCBParser::ReadNoConnectLayers(io::FuncView item, std::vector<AString>& names) const {
    for (io::FuncView layerNumber : item.Find("conductive").Funcs()) {
        if (!layerNumber.NameIs("layerNumber"))
            continue;
        int number = 0;
        layerNumber >> number;
        if (io::EqualsNoCase_G(layerNumber.Find("STATUS").GetText(), "NOCONNECT"))
            names.push_back(GetConductiveLayerName(number));
    }
    return static_cast<int>(names.size());
}

void ZukenPCBParser::AddPadstackSurfaces(
    Net* net, const Padstack* padstack, const geom::Transformation& placement, bool mirrorLayers) {
    if (!IsDrawn(padstack))
        return;
    std::vector<geom::Polygon> polygons;
    for (const PadstackLayerPad* entry : padstack->connectPads) {
        if (entry == nullptr || entry->pad == nullptr)
            continue;
        Layer* layer = FindConductiveLayer(entry->layer);
        if (layer == nullptr)
            continue;
        if (mirrorLayers)
            layer = MirrorConductiveLayer(layer);
        polygons.clear();
        GetPadPolygons(*entry->pad, polygons);
        for (const geom::Polygon& polygon : polygons)
            surfaces.Make(net, layer->name, polygon.GetTransformed(placement));
    }
}
