#include "blocks/FuncRange.h"
#include "model/UsedNames.h"
#include "model/ZukenPCBParser.h"
#include "zuken/FootprintPinReader.h"
#include "zuken/ListValues.h"

#include <memory>

/// (footprints (footprint ...) (footprint ...))
void ZukenPCBParser::ReadFootprints(const io::CBlock_func& footprintsFunc) {
    for (io::CBlock_func& footprint : footprintsFunc.Funcs())
        if (footprint.NameIs("Footprint"))
            ReadFootprint(footprint);
}

/// One that has neither a name nor a pin leaves no record.
///
///     (footprint SOIC8 (toeprint (pin ...) (pin ...)))
void ZukenPCBParser::ReadFootprint(io::CBlock_func& footprint) {
    AString name;
    ReadName_G(footprint, name);
    FootprintPinReader reader(*this);
    for (io::CBlock_func& pin : GetChild_G(footprint, "toeprint").Funcs())
        if (pin.NameIs("pin"))
            reader.ReadPin(pin);
    if (!name.empty() || !reader.GetPins().empty())
        footprints.Add(std::make_unique<Footprint>(name, reader.GetPins()));
}

AString ZukenPCBParser::MakeUniqueName(UsedNames& used, const AString& name) {
    if (used.Add(name))
        return name;
    static const AString k_Separator = "_";
    std::vector<AString> tokens;
    name.TokenizeString(k_Separator, tokens);
    if (tokens.empty())
        return name;
    int number = 0;
    if (tokens.size() > 1)
        tokens[1].IsNumber(number, 10);
    return used.AddNumbered(tokens[0], number);
}

Padstack* ZukenPCBParser::GetGeneratedPadstack(const AString& padName, const AString& layerName) {
    const AString name = padName + "_" + layerName;
    if (Padstack* known = FindPadstack(name))
        return known;
    const FPLayer* layer = FindFootprintLayer(layerName);
    if (layer == nullptr)
        return nullptr;
    const Padstack::LayerPads none(footprintLayers.GetSize());
    Padstack::LayerPads connect = none;
    connect[static_cast<size_t>(layer->number) - 1] = layerPads.Make(layer->number, FindPad(padName), 0.0, 0.0, 0.0);
    return padstacks.Add(std::make_unique<Padstack>(name, geom::Polygon(), connect, none, none));
}
