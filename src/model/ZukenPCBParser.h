#ifndef QRL_MODEL_ZUKENPCBPARSER_H
#define QRL_MODEL_ZUKENPCBPARSER_H

#include "blocks/CBlock.h"
#include "blocks/FuncView.h"
#include "blocks/LongFileName.h"
#include "lib/math/geometry/Arc.h"
#include "lib/math/geometry/Box.h"
#include "lib/math/geometry/Polygon.h"
#include "lib/math/geometry/Transformation.h"
#include "lib/utils/Arena.h"
#include "model/BasePad.h"
#include "model/Component.h"
#include "model/CornerRound.h"
#include "model/Footprint.h"
#include "model/FootprintPin.h"
#include "model/Layer.h"
#include "model/LayerStack.h"
#include "model/NameMap.h"
#include "model/Net.h"
#include "model/Padstack.h"
#include "model/PadstackLayerPad.h"
#include "model/PathVertex.h"
#include "model/RecordList_T.h"
#include "model/RecordPool_T.h"
#include "model/Surface.h"
#include "model/Trace.h"
#include "model/UsedNames.h"
#include "model/Via.h"

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace io {
class CToken_istream;
}

class ArcRing;
struct ComponentDraft;
struct PinDraft;

/// The board: what the readers make of the input files, and what the writer sees.
///
/// Holds copies of the trees that it is made from, and the records in the order in which they were read, which is the
/// order of the neutral file. Records belong to the parser and stay where they are; they point at each other. All
/// lengths are in the output's unit, all angles in degrees. Lookups by name ignore the case of the letters A to Z and
/// give the first of equal names. Readers pass over what they don't know, and go on with a default where a value is
/// missing.
class ZukenPCBParser {
public:
    ZukenPCBParser(const io::CBlock& footprintTree, const io::CBlock& boardTree);
    ZukenPCBParser(const ZukenPCBParser&) = delete;
    ZukenPCBParser& operator=(const ZukenPCBParser&) = delete;
    ~ZukenPCBParser() = default;

    // ZukenPCBParser.cpp: lookups; null, false or -1 for what isn't there

    Component* FindComponent(const AString& name) const { return components.Find(name); }
    Padstack* FindPadstack(const AString& name) const { return padstacks.Find(name); }
    Footprint* FindFootprint(const AString& name) const { return footprints.Find(name); }
    BasePad* FindPad(const AString& name) const { return pads.Find(name); }
    bool HasFootprintLayer(const AString& name) const { return FindFootprintLayer(name) != nullptr; }
    /// All bits set for an unknown layer.
    uint32_t GetFootprintLayerNumber(const AString& name) const;
    FPLayer* FindFootprintLayer(const AString& name) const { return footprintLayers.Find(name); }
    /// The first footprint layer that has this number itself or stands for the conductive layer of this number.
    FPLayer* FindFootprintLayerByConductive(int32_t number) const;
    Layer* FindConductiveLayer(int32_t number) const;
    /// Empty for an unknown layer.
    AString GetConductiveLayerName(int32_t number) const;
    /// The layer as far from the one outer layer as `layer` is from the other. A layer that isn't in the stackup comes
    /// back.
    Layer* MirrorConductiveLayer(Layer* layer) const;
    /// The first and last layer that isn't a bond wire layer.
    Layer* GetTopConductiveLayer() const;
    Layer* GetBottomConductiveLayer() const;
    double GetUnitScale() const { return unitScale; }
    AString GetUnitName() const { return unitName; }
    /// The net of that name, which is made when there is none. An empty name stands for "ZUKEN_DUMMY". The first
    /// spelling that was met stays the net's name.
    Net* GetNet(const AString& name);
    /// The same for a narrow name, of which no wide one is made where the net is known.
    Net* GetNetOfText(std::string_view name);
    /// Appends the outlines of a pad, about the pad's origin, and returns how many `out` then holds. A thermal pad is
    /// reported and has none.
    static int GetPadPolygons(const BasePad& pad, std::vector<geom::Polygon>& out);

    // For the writer: each replaces `out` by the records, which stay the parser's, and returns their number.

    int GetFootprints(std::vector<Footprint*>& out) const { return footprints.CopyTo(out); }
    int GetPadstacks(std::vector<Padstack*>& out) const { return padstacks.CopyTo(out); }
    int GetPads(std::vector<BasePad*>& out) const { return pads.CopyTo(out); }
    int GetNets(std::vector<Net*>& out) const { return nets.CopyTo(out); }
    int GetComponents(std::vector<Component*>& out) const { return components.CopyTo(out); }
    int GetConductiveLayers(std::vector<Layer*>& out) const;

    // ZukenPCBParser_Board.cpp: the board file's frame

    /// Reads the two files and then the side file, in this order. Always true.
    bool Parse(const LongFileName& txtName);
    /// Reads `pcbData`. Always true.
    bool ParseBoardFile();
    /// Reads a header of either file: the unit, and with it the scale of all numbers that follow.
    void ReadUnits(const io::CBlock_func& header);
    /// Appends the conductive layers in file order, which is the order of the stackup. Always true.
    bool ReadConductiveLayers(const io::CBlock_func& conductiveLayer);

    // ZukenPCBParser_FootprintFile.cpp: the footprint file's frame

    /// Reads `fpData`. Always true.
    bool ParseFootprintFile();
    /// Numbers the conductive layers of the footprint file from 1. False without a list of layers.
    bool ReadTechnology(const io::CBlock_func& technologyContainer);
    void ReadFootprintContainer(const io::CBlock_func& footprintContainer);

    // ZukenPCBParser_Pads.cpp

    /// Always false.
    bool ReadPads(const io::CBlock_func& padsFunc);
    /// Appends one pad, or none when no shape came about.
    void ReadPad(io::CBlock_func& pad);
    /// Replaces `out` by the polygon through the points of the child `vertex`. False, with `out` as it was, without
    /// that child or with fewer than two points.
    bool ReadPolygonOutline(const io::CBlock_func& func, geom::Polygon& out) const;

    // ZukenPCBParser_PadShapes.cpp

    /// The pad that one shape of a geometry makes alone; null for a shape that is unknown or too small.
    std::unique_ptr<BasePad> ReadPadShape(io::CBlock_func& shape, const AString& name) const;

    // ZukenPCBParser_Padstacks.cpp

    /// Always true.
    bool ReadPadstacks(const io::CBlock_func& padstacksFunc);
    void ReadPadstack(io::CBlock_func& padstack);

    // ZukenPCBParser_Footprints.cpp

    void ReadFootprints(const io::CBlock_func& footprintsFunc);
    /// Appends one footprint, or none when it has neither a name nor a pin.
    void ReadFootprint(io::CBlock_func& footprint);
    /// The name, or one made from it that `used` doesn't hold, which is added to `used`: the first of its pieces
    /// between "_", and a number that counts on from the second. Empty pieces don't count, further ones are dropped; a
    /// taken name without any piece comes back.
    static AString MakeUniqueName(UsedNames& used, const AString& name);
    /// The padstack that puts one pad on one footprint layer, which is made on first demand. Null for an unknown layer.
    Padstack* GetGeneratedPadstack(const AString& padName, const AString& layerName);

    // ZukenPCBParser_LayerMapping.cpp: footprint layers and the board's layers

    /// Always true.
    bool ReadLayerMapping(const io::CBlock_func& layerMapping);
    void ReadMap(const io::CBlock_func& map);
    /// Turns every padstack from footprint layers to the board's layers. Always true.
    bool ReadCorrespondence();

    // ZukenPCBParser_Components.cpp

    /// Always true.
    bool ReadComponents(const io::CBlock_func& section);
    /// True when a record was made.
    bool ReadComponent(const io::CBlock_func& func, const AString& id);

    // ZukenPCBParser_ComponentPins.cpp

    /// The layer of the bond wires of that number, which is made on first demand.
    Layer* GetBondwireLayer(int32_t number);
    /// Whether a system layer of the pin's layout holds more than one padstack.
    static bool PinHasTwoPadstacks(const io::CBlock_func& pin);

    // ZukenPCBParser_ComponentNames.cpp

    /// The model's name of a component that the files call `reference`, which is noted for `GetComponentName`.
    AString MakeComponentName(const AString& reference);
    /// The name that was noted. An unknown reference is noted with an empty name.
    AString GetComponentName(const AString& reference);
    /// `text` with each `from` replaced by `to`, which must not contain `from`.
    static AString ReplaceAll(const AString& text, const AString& from, const AString& to);
    const NameMap& GetNameMap() const { return nameMap; }

    // ZukenPCBParser_Nets.cpp

    /// Always true, both.
    bool ReadNets(const io::CBlock_func& section);
    bool ReadNet(io::CBlock_func& func);

    // ZukenPCBParser_Layout.cpp

    /// Reads the child `layout` of `block`; false when there is none. With `skipPadstacks` layers without a conductive
    /// number are passed over. `mirrorLayers` and `pin`, which may be null, are for the padstacks; `origin`, `angle`
    /// (degrees) and `mirrored` place the surfaces of `refer` lists.
    bool ReadLayout(const io::CBlock_func& block, bool skipPadstacks, bool mirrorLayers, FootprintPin* pin,
        geom::Point origin, double angle, bool mirrored);

    // ZukenPCBParser_Lines.cpp

    /// Makes the traces of one line: it is cut where its width changes. Always true.
    bool ReadLine(io::FuncView block, Net* net, const AString& layerName);

    // ZukenPCBParser_CornerRounds.cpp

    /// Rounds the corners of a line and gives it one width.
    static void ApplyCornerRounds(
        std::vector<PathVertex>& vertices, const std::vector<CornerRound>& rounds, double width);
    /// Puts an arc in place of the corner at `point`, where an arc of the cyclic list begins. False when there is none
    /// that can be rounded.
    static bool RoundCorner(ArcRing& arcs, geom::Point point, double radius);

    // ZukenPCBParser_Surfaces.cpp

    /// Makes a surface of each outline, with its voids, all moved to `origin`, turned by `angle` degrees and, when
    /// `mirrored`, turned the other way and mirrored about the vertical line through `origin`. Always true.
    bool ReadSurface(
        io::FuncView block, Net* net, const AString& layerName, geom::Point origin, double angle, bool mirrored);
    /// Reads a closed outline of points and arcs. Always true.
    bool ReadLoop(io::FuncView block, geom::Polygon& polygon) const;

    // ZukenPCBParser_Vias.cpp

    /// Reads padstack instances of the board or of a pin. Always true.
    bool ReadPadstackLayer(const io::CBlock_func& layer, bool mirrorLayers, FootprintPin* pin);
    /// Appends the names of the layers on which `item` makes no connection, and returns how many `names` then holds.
    int ReadNoConnectLayers(io::FuncView item, std::vector<AString>& names) const;
    /// Draws a padstack that the neutral file has no form for as surfaces of the net. Any other, and null, is passed
    /// over.
    void AddPadstackSurfaces(
        Net* net, const Padstack* padstack, const geom::Transformation& placement, bool mirrorLayers);

    // ZukenPCBParser_TextFile.cpp

    /// Amends components by the lines of the side file. Always false.
    bool ParseTextFile(const LongFileName& fileName);
    /// The same for a side file that is open already.
    void ReadTextLines(io::CToken_istream& stream);
    /// Appends the fields of a line and returns their number.
    static int SplitTextLine(const AString& line, std::vector<AString>& fields);

    // ZukenPCBParser_Finish.cpp

    /// Measures the board and fills the full planes.
    void FinishBoard();
    void ComputeBoardBox();

private:
    class FootprintPinReader;

    // ZukenPCBParser_LayerMapping.cpp

    /// Puts the bond wire layers on top of the stackup, whose layers take the numbers behind theirs.
    void PrependBondwireLayers();

    // ZukenPCBParser_Components.cpp

    void AddComponent(const ComponentDraft& draft, const AString& id);
    /// The footprint of a component's side; null when there is none.
    Footprint* FindFootprintInUse(const ComponentDraft& draft) const;

    // ZukenPCBParser_ComponentPins.cpp

    /// False, with a line on standard output, when the component has no footprint that could have a pin.
    bool ReadPin(io::CBlock_func& pin, ComponentDraft& draft);
    Trace* ReadBondwire(io::CBlock_func& wire);
    void ReadPinLayer(const io::CBlock_func& layer, const ComponentDraft& draft, PinDraft& pin);
    void ReadPinSurface(const io::CBlock_func& refer, const AString& layerName, const ComponentDraft& draft);

    // ZukenPCBParser_Nets.cpp

    void ReadNetPin(io::CBlock_func& comp, Net* net);

    // ZukenPCBParser_Layout.cpp

    void ReadConductiveItem(
        io::FuncView item, const AString& layerName, geom::Point origin, double angle, bool mirrored);
    void ReadReference(io::FuncView refer, const AString& layerName, geom::Point origin, double angle, bool mirrored);
    void ReadPlacedPad(io::FuncView item, const AString& layerName);

    // ZukenPCBParser_Vias.cpp

    void ReadPadstackInstance(io::FuncView item, bool mirrorLayers, const FootprintPin* pin);

    // ZukenPCBParser_TextFile.cpp

    void AmendComponent(const std::vector<AString>& fields);

    double unitScale = 1.0; ///< 2^30 units of 1e-5 mm in the file's unit
    RecordList_T<Component> components;
    RecordList_T<Net> nets;
    LayerStack conductiveLayers; ///< the stackup, top to bottom
    io::CBlock pcbData;
    RecordList_T<Footprint> footprints;
    RecordList_T<Padstack> padstacks;
    RecordList_T<BasePad> pads;
    RecordList_T<FPLayer> footprintLayers;
    io::CBlock fpData;
    double coordScale = 1.0;   ///< every length of both files times this is a length of the output
    AString unitName;          ///< "mm", "mil" or "in"; empty before any header
    NameMap nameMap;           ///< a component's reference as the files spell it, to its name
    LayerStack bondwireLayers; ///< one for each bond wire number
    int32_t layerCount = 1;    ///< read by nothing
    geom::Box boardBox;        ///< around the objects of all nets

    base::Arena memory; ///< of the records below
    RecordPool_T<Layer> layers{memory};
    RecordPool_T<FootprintPin> footprintPins{memory};
    RecordPool_T<PadstackLayerPad> layerPads{memory};
    RecordPool_T<Trace> traces{memory};
    RecordPool_T<Surface> surfaces{memory};
    RecordPool_T<Via> vias{memory};
};

#endif
