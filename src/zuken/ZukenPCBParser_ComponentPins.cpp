#include "blocks/FuncRange.h"
#include "model/ZukenPCBParser.h"
#include "zuken/ComponentDraft.h"
#include "zuken/ListValues.h"

#include <iostream>

namespace {

/// Every bond wire is written as thin as this: what the file says of its diameter is not used.
constexpr double k_BondwireWidth = 1e-6;

AString GetBondwireLayerName(int32_t number) {
    AString name;
    name.Format(L"bondwire_%d", number);
    return name;
}

void ReportUnknownFootprint(const ComponentDraft& draft) {
    std::cout << "Unable to find footprint " << draft.footprintName.QRL_ANSI() << " for component "
              << draft.reference.QRL_ANSI() << '\n'
              << std::flush;
}

bool HasTwoPadstacks(const io::CBlock_func& layer) {
    int count = 0;
    for (const io::CBlock_func& item : layer.Funcs())
        if (item.NameIs("padstack") && ++count == 2)
            return true;
    return false;
}

} // namespace

/// (pin 4
///   (bondwire (bwDiameter 2500) (bondwire 1 (pt 0 0) (pt 9000 0)))
///   (layout (layer (padstack LAND (net GND)) (conductive 1) (refer ...))))
bool ZukenPCBParser::ReadPin(io::CBlock_func& pin, ComponentDraft& draft) {
    PinDraft made;
    ReadName_G(pin, made.record.name);
    const Footprint* footprint = FindFootprintInUse(draft);
    if (footprint == nullptr) {
        ReportUnknownFootprint(draft);
        return false;
    }
    made.footprintPin = footprint->FindPin(made.record.name);
    ReadLayout(pin, !PinHasTwoPadstacks(pin), draft.IsOnBottom(), made.footprintPin, geom::k_Origin, 0.0, false);
    for (const io::CBlock_func& part : pin.Funcs()) {
        const bool isBondwire = part.NameIs("bondwire");
        if (!isBondwire && !part.NameIs("layout"))
            continue;
        for (io::CBlock_func& item : part.Funcs()) {
            if (isBondwire && item.NameIs("bondwire"))
                made.wires.push_back(ReadBondwire(item));
            else if (!isBondwire && item.NameIs("layer"))
                ReadPinLayer(item, draft, made);
        }
    }
    draft.pins.push_back(std::move(made.record));
    return true;
}

/// (bondwire 1 (pt 10582000 1450000) (pt 10672000 1450000))
Trace* ZukenPCBParser::ReadBondwire(io::CBlock_func& wire) {
    int number = 1;
    wire >> number;
    GetBondwireLayer(number);
    std::vector<PathVertex> vertices;
    for (io::CBlock_func& item : wire.Funcs()) {
        if (!item.NameIs("pt"))
            continue;
        const geom::Point point = ReadPoint_G(item, coordScale);
        vertices.push_back({.x = double(point.GetX()),
            .y = double(point.GetY()),
            .startWidth = k_BondwireWidth,
            .endWidth = k_BondwireWidth});
    }
    return traces.Make(vertices, GetBondwireLayerName(number), nullptr);
}

/// Gives the footprint's pin its padstack, unless it has one, and the bond wires so far their net.
///
///     (layer (padstack LAND (net GND) (conductive (layerNumber 2 (STATUS NOCONNECT))))
///       (conductive 1) (refer ...))
void ZukenPCBParser::ReadPinLayer(const io::CBlock_func& layer, const ComponentDraft& draft, PinDraft& pin) {
    io::CBlock_func padstack = GetChild_G(layer, "padstack");
    AString padstackName;
    padstack >> padstackName;
    if (pin.footprintPin != nullptr && pin.footprintPin->padstack == nullptr)
        pin.footprintPin->padstack = FindPadstack(padstackName);
    Net* net = GetNet(GetTextOf_G(padstack, "Net"));
    for (Trace* wire : pin.wires)
        wire->SetNet(net);
    ReadNoConnectLayers(padstack, pin.record.noConnectLayers);
    AString layerName;
    for (io::CBlock_func& item : layer.Funcs()) {
        if (item.NameIs("conductive")) {
            int number = 0;
            item >> number;
            layerName.Format(L"Conductive_%d", number);
        } else if (item.NameIs("refer")) {
            ReadPinSurface(item, layerName, draft);
        }
    }
}

/// (refer (net GND) (surface (geometry (surface (vertex ...)))))
void ZukenPCBParser::ReadPinSurface(
    const io::CBlock_func& refer, const AString& layerName, const ComponentDraft& draft) {
    Net* net = GetNet(GetTextOf_G(refer, "net"));
    ReadSurface(GetSurfaceShape_G(refer), net, layerName, draft.location, draft.angle, draft.IsOnBottom());
}

Layer* ZukenPCBParser::GetBondwireLayer(int32_t number) {
    Layer* known = bondwireLayers.Find(number);
    if (known != nullptr)
        return known;
    Layer* made = layers.Make(GetBondwireLayerName(number), number, Layer::k_Bondwire, 0.0);
    bondwireLayers.Append(made);
    return made;
}

bool ZukenPCBParser::PinHasTwoPadstacks(const io::CBlock_func& pin) {
    for (const io::CBlock_func& layer : GetChild_G(pin, "layout").Funcs()) {
        io::CBlock_func systemLayer("systemLayer");
        if (layer.NameIs("layer") && FindChild_G(layer, systemLayer) && HasTwoPadstacks(layer))
            return true;
    }
    return false;
}
