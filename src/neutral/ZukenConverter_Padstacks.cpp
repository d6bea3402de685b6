#include "neutral/Keywords.h"
#include "neutral/RecordBlock_T.h"
#include "neutral/ZukenConverter.h"

namespace {

bool HasPad(const PadstackLayerPad* entry) { return entry != nullptr && entry->pad != nullptr; }

/// The diameter of the drill. A hole that isn't round counts as none.
io::CBlock_func MakeHole(const geom::Polygon& hole) {
    geom::Circle circle(geom::k_Origin, 0);
    const bool isRound = hole.IsCircle(hole.GetEpsilon(), &circle);
    io::CBlock_func func(keyword::k_Hole);
    func << (isRound ? static_cast<double>(circle.GetRadius()) * 2.0 : 0.0);
    return func;
}

/// A pad at the padstack's origin, not turned: with whole numbers, where those of a placed pad are real ones.
void AppendPadAtOrigin(const AString& padName, io::CBlock_func& func) { func << padName << 0 << 0 << 0; }

/// (pad, x, y, rotation, Thermal(), Nonconnect(clearance, 0, 0, 0))
void AppendPlacedPad(const PadstackLayerPad& connect, const PadstackLayerPad* noConnect, io::CBlock_func& func) {
    io::CBlock_func clearance(keyword::k_Nonconnect);
    if (HasPad(noConnect))
        AppendPadAtOrigin(noConnect->pad->name, clearance);
    func << connect.pad->name << connect.pad->offsetX << connect.pad->offsetY << connect.angle
         << io::CBlock_func(keyword::k_Thermal) << clearance;
}

/// The outer layers have their words whatever their type.
const char* GetEntryWord(size_t index, size_t count, size_t top, const std::vector<Layer*>& layers) {
    if (index == top)
        return keyword::k_Top;
    if (index + 1 == count)
        return keyword::k_Bottom;
    const bool isBondwire = index < layers.size() && layers[index]->type == Layer::k_Bondwire;
    return isBondwire ? keyword::k_Wirebond : keyword::k_Signal;
}

io::CBlock MakePadstack(const Padstack& padstack, const std::vector<Layer*>& layers, size_t top) {
    const Padstack::LayerPads& connect = padstack.connectPads;
    const Padstack::LayerPads& noConnect = padstack.noConnectPads;
    io::CBlock block(padstack.name);
    block << MakeHole(padstack.hole);
    for (size_t i = 0; i < connect.size(); ++i) {
        io::CBlock_func entry(GetEntryWord(i, connect.size(), top, layers));
        if (HasPad(connect[i]))
            AppendPlacedPad(*connect[i], i < noConnect.size() ? noConnect[i] : nullptr, entry);
        else
            AppendPadAtOrigin(keyword::k_NullPad, entry);
        block << entry;
    }
    return block;
}

} // namespace

bool ZukenConverter::WritePadstacks(const Padstacks& padstacks, const Layers& layers, io::CBlock& root) {
    const auto write = [layers, top = FindTop(layers)](const Padstack& padstack, io::CBlock& items) {
        items << MakePadstack(padstack, layers, top);
    };
    root << MakeRecordBlock_T(keyword::k_Padstacks, padstacks, write);
    return true;
}
