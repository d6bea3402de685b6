#include "blocks/FuncRange.h"
#include "lib/utils/HashFactor.h"
#include "model/ZukenPCBParser.h"
#include "zuken/ListValues.h"

#include <unordered_map>

namespace {

/// `number` moved behind `count` bond wire layers; wraps around in 32 bits.
int32_t MovedBehind(size_t count, int32_t number) {
    return static_cast<int32_t>(static_cast<uint32_t>(count) + static_cast<uint32_t>(number));
}

/// Turns sequences of pads from footprint layers to the layers of the board.
class PadRemapper {
public:
    PadRemapper(const ZukenPCBParser& parser, RecordPool_T<PadstackLayerPad>& layerPads, size_t layerCount,
        size_t bondwireCount)
        : m_Parser(parser), m_LayerPads(layerPads), m_LayerCount(layerCount), m_BondwireCount(bondwireCount) {}

    /// The sequence with a place for each layer of the board: a pad stands on every layer that its footprint layer
    /// stands for, as a record of its own. What falls outside of the board, or on a layer that nobody knows, is
    /// dropped.
    Padstack::LayerPads Remap(const Padstack::LayerPads& pads) {
        Padstack::LayerPads remapped(m_LayerCount);
        for (const PadstackLayerPad* pad : pads)
            if (pad != nullptr)
                Spread(*pad, remapped);
        return remapped;
    }

private:
    void Spread(const PadstackLayerPad& pad, Padstack::LayerPads& remapped) {
        const FPLayer* layer = FindLayer(pad.layer);
        if (layer == nullptr)
            return;
        for (const int32_t conductive : layer->conductiveNumbers) {
            const int32_t number = MovedBehind(m_BondwireCount, conductive);
            if (number < 1 || static_cast<size_t>(number) > m_LayerCount)
                continue;
            remapped[static_cast<size_t>(number) - 1] =
                m_LayerPads.Make(number, pad.pad, pad.value1, pad.angle, pad.value2);
        }
    }

    /// What the parser's walk finds, which is the same for all padstacks of one pass.
    const FPLayer* FindLayer(int32_t number) {
        const auto [known, isNew] = m_LayerByNumber.try_emplace(number);
        if (isNew)
            known->second = m_Parser.FindFootprintLayerByConductive(number);
        return known->second;
    }

    const ZukenPCBParser& m_Parser;
    RecordPool_T<PadstackLayerPad>& m_LayerPads;
    size_t m_LayerCount;
    size_t m_BondwireCount;
    std::unordered_map<int32_t, const FPLayer*, base::NumberHash> m_LayerByNumber;
};

} // namespace

/// Two of the maps tie layers together, and add up; any other is passed over.
///
///     (layerMapping
///       (map A (correspondence ...))
///       (map A_THRU (correspondence ...)))
bool ZukenPCBParser::ReadLayerMapping(const io::CBlock_func& layerMapping) {
    for (io::CBlock_func& map : layerMapping.Funcs()) {
        if (!map.NameIs("map"))
            continue;
        AString name;
        map >> name;
        if (name.CompareNoCase("A") == 0 || name.CompareNoCase("A_THRU") == 0)
            ReadMap(map);
    }
    return true;
}

/// (map A
///   (correspondence (footLayer PAD_A) (boardLayer (conductive 1)))
///   (correspondence (footLayer PAD_IN) (boardLayer (conductive 2) (conductive 3))))
///
/// Not const, though the parser itself stays as it is: its layers don't.
void ZukenPCBParser::ReadMap(const io::CBlock_func& map) { // NOLINT(readability-make-member-function-const)
    for (const io::CBlock_func& correspondence : map.Funcs()) {
        if (!correspondence.NameIs("correspondence"))
            continue;
        FPLayer* layer = FindFootprintLayer(GetTextOf_G(correspondence, "footLayer"));
        if (layer == nullptr)
            continue;
        for (io::CBlock_func& conductive : GetChild_G(correspondence, "boardLayer").Funcs()) {
            if (!conductive.NameIs("conductive"))
                continue;
            int number = 0;
            conductive >> number;
            layer->conductiveNumbers.insert(number);
        }
    }
}

/// A second pass takes the padstacks as the first one left them, with numbers of the board, and looks these up in the
/// same way: a number that equals that of an earlier footprint layer is taken for that footprint layer. That is the
/// format's established behaviour.
bool ZukenPCBParser::ReadCorrespondence() {
    if (!bondwireLayers.IsEmpty())
        PrependBondwireLayers();
    PadRemapper remapper(*this, layerPads, conductiveLayers.GetSize(), bondwireLayers.GetSize());
    for (Padstack* padstack : padstacks) {
        padstack->SetConnectPads(remapper.Remap(padstack->connectPads));
        padstack->SetNoConnectPads(remapper.Remap(padstack->noConnectPads));
        padstack->SetThermalPads(remapper.Remap(padstack->thermalPads));
    }
    return true;
}

/// From the second time on the bond wire layers stand in the stackup already. They come in once more and their numbers
/// move too, so that the search by number has to be told.
void ZukenPCBParser::PrependBondwireLayers() {
    std::vector<Layer*> bondwires;
    bondwireLayers.CopyTo(bondwires);
    std::vector<Layer*> stackup = bondwires;
    for (Layer* layer : conductiveLayers) {
        layer->number = MovedBehind(bondwires.size(), layer->number);
        stackup.push_back(layer);
    }
    conductiveLayers.Replace(stackup);
    bondwireLayers.Replace(bondwires);
}
