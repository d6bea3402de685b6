#ifndef QRL_MODEL_ZUKENPCBPARSER_H
#define QRL_MODEL_ZUKENPCBPARSER_H

#include "blocks/CBlock.h"
#include "blocks/LongFileName.h"
#include "model/Layer.h"
#include "model/RecordList_T.h"

#include <cstdint>
#include <vector>

/// The board: what the readers make of the two input files, and what the writer sees.
///
/// Holds copies of the trees that it is made from, and the records in the order in which they were read, which is the
/// order of the neutral file. Records belong to the parser and stay where they are; they point at each other. All
/// lengths are in the output's unit, all angles in degrees. Lookups by name ignore the case of the letters A to Z and
/// give the first of equal names.
class ZukenPCBParser {
public:
    ZukenPCBParser(const io::CBlock& footprintTree, const io::CBlock& boardTree);
    ZukenPCBParser(const ZukenPCBParser&) = delete;
    ZukenPCBParser& operator=(const ZukenPCBParser&) = delete;
    ~ZukenPCBParser() = default;

    // ZukenPCBParser.cpp: lookups; null, false or -1 for what isn't there

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
    int GetConductiveLayers(std::vector<Layer*>& out) const { return conductiveLayers.CopyTo(out); }
    double GetUnitScale() const { return unitScale; }
    AString GetUnitName() const { return unitName; }

    // ZukenPCBParser_Board.cpp

    /// Reads the two files and then the side file, in this order. Always true.
    bool Parse(const LongFileName& txtName);
    /// Reads `pcbData`. Always true.
    bool ParseBoardFile();
    /// Reads a header of either file: the unit, and with it the scale of all numbers that follow.
    void ReadUnits(const io::CBlock_func& header);
    /// Appends the conductive layers in file order, which is the order of the stackup. Always true.
    bool ReadConductiveLayers(const io::CBlock_func& conductiveLayer);

private:
    void ReadBoardSection(const io::CBlock_func& section);
    void ReadTechnologyContainer(const io::CBlock_func& container);
    void ReadConductiveLayer(io::CBlock_func& layerNumber);

    double unitScale = 1.0;               ///< 2^30 units of 1e-5 mm in the file's unit
    RecordList_T<Layer> conductiveLayers; ///< the stackup, top to bottom
    io::CBlock pcbData;
    RecordList_T<FPLayer> footprintLayers;
    io::CBlock fpData;
    double coordScale = 1.0; ///< every length of both files times this is a length of the output
    AString unitName;        ///< "mm", "mil" or "in"
    RecordList_T<Layer> bondwireLayers;
    int32_t layerCount = 1; ///< read by nothing
};

#endif
