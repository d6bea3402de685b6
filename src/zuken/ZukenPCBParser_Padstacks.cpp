#include "blocks/FuncRange.h"
#include "lib/math/geometry/Circle.h"
#include "model/ZukenPCBParser.h"
#include "zuken/ListValues.h"

#include <algorithm>
#include <memory>

namespace {

/// The three sequences of a padstack in the making, each with a place for every footprint layer.
struct PadSequences {
    explicit PadSequences(size_t layerCount) : m_Connect(layerCount), m_NoConnect(layerCount), m_Thermal(layerCount) {}

    /// The sequence that a list of this name fills; null for a list that fills none.
    std::vector<PadstackLayerPad*>* Find(const io::CBlock_func& list) {
        if (list.NameIs("connect"))
            return &m_Connect;
        if (list.NameIs("noconnect") || list.NameIs("clearance"))
            return &m_NoConnect;
        if (list.NameIs("thermal"))
            return &m_Thermal;
        return nullptr;
    }

    std::vector<PadstackLayerPad*> m_Connect;
    std::vector<PadstackLayerPad*> m_NoConnect;
    std::vector<PadstackLayerPad*> m_Thermal;
};

geom::Polygon MakeRoundHole(double radius) { return geom::Polygon(geom::Circle(geom::k_Origin, radius)); }

/// Replaces `hole` by the first shape that is known; every drill is round. One with two sides becomes a circle whose
/// radius, not diameter, is the smaller side: that is the format's established behaviour.
///
///     (hole (geometry (circle 45000)))
///     (hole (geometry (oval (width 60000) (height 120000))))
void ReadHole(const io::CBlock_func& holeFunc, double scale, geom::Polygon& hole) {
    for (io::CBlock_func& shape : GetChild_G(holeFunc, "geometry").Funcs()) {
        if (shape.NameIs("circle")) {
            double radius = 0.0;
            shape >> radius;
            hole = MakeRoundHole(radius * scale);
            return;
        }
        if (shape.NameIs("oval") || shape.NameIs("rectangle") || shape.NameIs("squareHole")) {
            hole = MakeRoundHole(std::min(GetRealOf_G(shape, "width") * scale, GetRealOf_G(shape, "height") * scale));
            return;
        }
    }
}

/// Enters the pads of one footprint layer. A layer that isn't known holds no copper, and its pads are passed over.
///
///     (padSet (footLayer PAD_A) (connect (pad C160)) (clearance (pad C190)) (thermal (pad TR190)))
void ReadPadSet(const io::CBlock_func& padSet, const ZukenPCBParser& parser, RecordPool_T<PadstackLayerPad>& layerPads,
    PadSequences& sequences) {
    const FPLayer* layer = parser.FindFootprintLayer(GetTextOf_G(padSet, "footLayer"));
    if (layer == nullptr)
        return;
    for (const io::CBlock_func& use : padSet.Funcs()) {
        std::vector<PadstackLayerPad*>* sequence = sequences.Find(use);
        if (sequence == nullptr)
            continue;
        BasePad* pad = parser.FindPad(GetTextOf_G(use, "pad"));
        (*sequence)[static_cast<size_t>(layer->number) - 1] = layerPads.Make(layer->number, pad, 0.0, 0.0, 0.0);
    }
}

} // namespace

bool ZukenPCBParser::ReadPadstacks(const io::CBlock_func& padstacksFunc) {
    for (io::CBlock_func& padstack : padstacksFunc.Funcs())
        if (padstack.NameIs("padstack"))
            ReadPadstack(padstack);
    return true;
}

/// (padstack TH90 (hole ...) (padSet ...) (padSet ...))
void ZukenPCBParser::ReadPadstack(io::CBlock_func& padstack) {
    AString name;
    padstack >> name;
    PadSequences sequences(footprintLayers.GetSize());
    geom::Polygon hole;
    for (const io::CBlock_func& part : padstack.Funcs()) {
        if (part.NameIs("hole"))
            ReadHole(part, coordScale, hole);
        else if (part.NameIs("padSet"))
            ReadPadSet(part, *this, layerPads, sequences);
    }
    padstacks.Add(
        std::make_unique<Padstack>(name, hole, sequences.m_Connect, sequences.m_NoConnect, sequences.m_Thermal));
}
