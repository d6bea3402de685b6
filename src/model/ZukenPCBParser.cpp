#include "model/ZukenPCBParser.h"

#include <algorithm>

ZukenPCBParser::ZukenPCBParser(const io::CBlock& footprintTree, const io::CBlock& boardTree)
    : pcbData(boardTree), fpData(footprintTree) {}

uint32_t ZukenPCBParser::GetFootprintLayerNumber(const AString& name) const {
    const FPLayer* layer = FindFootprintLayer(name);
    return static_cast<uint32_t>(layer == nullptr ? -1 : layer->number);
}

FPLayer* ZukenPCBParser::FindFootprintLayerByConductive(int32_t number) const {
    const auto standsFor = [number](const FPLayer* layer) {
        return layer->number == number || layer->conductiveNumbers.contains(number);
    };
    const auto found = std::find_if(footprintLayers.begin(), footprintLayers.end(), standsFor);
    return found == footprintLayers.end() ? nullptr : *found;
}

Layer* ZukenPCBParser::FindConductiveLayer(int32_t number) const {
    const auto hasNumber = [number](const Layer* layer) { return layer->number == number; };
    const auto found = std::find_if(conductiveLayers.begin(), conductiveLayers.end(), hasNumber);
    return found == conductiveLayers.end() ? nullptr : *found;
}

AString ZukenPCBParser::GetConductiveLayerName(int32_t number) const {
    const Layer* layer = FindConductiveLayer(number);
    return layer == nullptr ? AString() : layer->name;
}

Layer* ZukenPCBParser::MirrorConductiveLayer(Layer* layer) const {
    const auto found = std::find(conductiveLayers.begin(), conductiveLayers.end(), layer);
    if (found == conductiveLayers.end())
        return layer;
    return *(conductiveLayers.end() - (found - conductiveLayers.begin()) - 1);
}

Layer* ZukenPCBParser::GetTopConductiveLayer() const {
    const auto isReal = [](const Layer* layer) { return layer->type < Layer::k_Bondwire; };
    const auto found = std::find_if(conductiveLayers.begin(), conductiveLayers.end(), isReal);
    return found == conductiveLayers.end() ? nullptr : *found;
}

Layer* ZukenPCBParser::GetBottomConductiveLayer() const {
    for (size_t i = conductiveLayers.GetSize(); i-- > 0;)
        if (conductiveLayers[i]->type < Layer::k_Bondwire)
            return conductiveLayers[i];
    return nullptr;
}
