#include "neutral/Keywords.h"
#include "neutral/ZukenConverter.h"

#include <algorithm>

namespace {

// The files tell no thickness and no material that could be used. The layout tool wants some.
constexpr double k_LayerThickness = 0.2;
constexpr double k_DielectricThickness = 1.0;

/// The word for a layer's type; null for a type that has none.
const char* GetTypeWord(uint32_t type) {
    switch (type) {
    case Layer::k_Conductive:
        return keyword::k_Signal;
    case Layer::k_Plane:
        return keyword::k_MetalizedSignal;
    case Layer::k_Bondwire:
        return keyword::k_Bondwire;
    default:
        return nullptr;
    }
}

io::CBlock_func MakeLayer(const Layer& layer, const char* side) {
    io::CBlock_func func(keyword::k_StackupLayer);
    func << layer.name;
    if (const char* type = GetTypeWord(layer.type))
        func << type;
    func << side << k_LayerThickness << keyword::k_Copper;
    return func;
}

io::CBlock_func MakeDielectric(int number) {
    AString name;
    name.Format(L"Dielectric_%d", number);
    io::CBlock_func func(keyword::k_StackupLayer);
    func << name << keyword::k_Dielectric << keyword::k_Neither << k_DielectricThickness << keyword::k_FR4;
    return func;
}

} // namespace

bool ZukenConverter::WriteLayers(const Layers& layers, io::CBlock& parent) {
    io::CBlock block(keyword::k_Layers);
    const size_t top = FindTop(layers);
    int dielectric = 1;
    for (size_t i = 0; i < layers.size(); ++i) {
        const bool isLast = i + 1 == layers.size();
        const char* side = i == top ? keyword::k_Top : isLast ? keyword::k_Bottom : keyword::k_Neither;
        block << MakeLayer(*layers[i], side);
        if (!isLast)
            block << MakeDielectric(dielectric++);
    }
    parent << block;
    return true;
}

/// Bond wire layers may stand ahead of the top.
size_t ZukenConverter::FindTop(const Layers& layers) {
    const auto isReal = [](const Layer* layer) { return layer->type < Layer::k_Bondwire; };
    const auto top = std::find_if(layers.begin(), layers.end(), isReal);
    return top == layers.end() ? 0 : static_cast<size_t>(top - layers.begin());
}
