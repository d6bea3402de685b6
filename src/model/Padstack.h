#ifndef QRL_MODEL_PADSTACK_H
#define QRL_MODEL_PADSTACK_H

#include "blocks/AString.h"
#include "lib/math/geometry/Polygon.h"
#include "model/PadstackLayerPad.h"

#include <vector>

/// A drill hole and the pads around it, layer by layer.
///
/// The three sequences have the same length, and an entry's place tells its layer: index i belongs to layer number
/// i + 1. The numbers are those of the footprint file's layers until the padstack is turned to the board's. A null
/// entry, and one whose `pad` is null, means that there is nothing of that kind on that layer. The padstack owns none
/// of them.
class Padstack {
public:
    using LayerPads = std::vector<PadstackLayerPad*>;

    Padstack(AString padstackName, geom::Polygon drill, LayerPads connect, LayerPads noConnect, LayerPads thermal);
    Padstack(const Padstack&) = delete;
    Padstack& operator=(const Padstack&) = delete;
    ~Padstack() = default;

    AString GetName() const { return name; }
    geom::Polygon GetHole() const { return hole; }
    /// Each replaces `out` by the sequence and returns its length.
    int GetConnectPads(LayerPads& out) const;
    int GetNoConnectPads(LayerPads& out) const;
    int GetThermalPads(LayerPads& out) const;

    /// Whether a connecting pad has several outlines.
    bool HasMultiLoopPad() const;
    /// Whether there is no hole, and more than one layer has a connecting pad.
    bool IsMultiLayerWithoutHole() const;
    /// Whether the connecting pads are equal, layer by layer, and there are as many clearances. Clearances themselves
    /// are looked at only as far as they outnumber the connecting pads, which they never do. Name, hole and thermal
    /// pads don't matter.
    bool IsEqual(const Padstack& other) const;

    void SetConnectPads(const LayerPads& pads) { connectPads = pads; }
    void SetNoConnectPads(const LayerPads& pads) { noConnectPads = pads; }
    void SetThermalPads(const LayerPads& pads) { thermalPads = pads; }

    AString name;
    geom::Polygon hole;      ///< about the padstack's origin; empty for none
    LayerPads connectPads;   ///< for a net that connects on the layer
    LayerPads noConnectPads; ///< the clearances for one that doesn't
    LayerPads thermalPads;
};

#endif
