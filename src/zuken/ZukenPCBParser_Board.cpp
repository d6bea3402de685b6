#include "blocks/FuncRange.h"
#include "model/ZukenPCBParser.h"
#include "zuken/ListValues.h"

#include <cmath>

namespace {

/// Lengths in database units, of which a millimetre has 100000 and a mil 2540, span this many of them.
const double k_DatabaseRange = std::pow(2.0, 30.0);
constexpr double k_MillimetresPerDatabaseUnit = 1e-5;
constexpr double k_DatabaseUnitsPerMillimetre = 100000.0;
constexpr double k_DatabaseUnitsPerMil = 2540.0;

/// (technologyContainer (technology tech_2L (conductiveLayer ...) (layerMapping ...)))
void ReadTechnologyContainer(const io::CBlock_func& container, ZukenPCBParser& parser) {
    const io::CBlock_func technology = GetChild_G(container, "technology");
    parser.ReadConductiveLayers(GetChild_G(technology, "conductiveLayer"));
    parser.ReadLayerMapping(GetChild_G(technology, "layerMapping"));
    parser.ReadCorrespondence();
}

/// Components are read ahead of the nets that name them, and nets ahead of the layout, whatever the order in the file:
///
///     (boardContainer
///       (Components ...)
///       (nets ...)
///       (boardLayout (layout ...)))
void ReadBoardContainer(const io::CBlock_func& container, ZukenPCBParser& parser) {
    parser.ReadComponents(GetChild_G(container, "Components"));
    parser.ReadNets(GetChild_G(container, "nets"));
    parser.ReadLayout(GetChild_G(container, "boardLayout"), false, false, nullptr, geom::k_Origin, 0.0, false);
}

/// (layerNumber 1 (type POSI))
/// (layerNumber 3 (type FULLSURF) (signalName GND))
Layer* MakeConductiveLayer(io::CBlock_func& layerNumber, RecordPool_T<Layer>& layers) {
    int number = 0;
    layerNumber >> number;
    const AString type = GetTextOf_G(layerNumber, "type");
    const bool isFull = type.CompareNoCase("FULLSURF") == 0;
    const bool isPlane = isFull || type.CompareNoCase("POSINEGA") == 0;
    AString name;
    name.Format(L"Conductive_%d", number);
    Layer* layer = layers.Make(name, number, isPlane ? Layer::k_Plane : Layer::k_Conductive, 0.0);
    if (isFull)
        layer->signalName = GetTextOf_G(layerNumber, "signalName");
    return layer;
}

} // namespace

bool ZukenPCBParser::Parse(const LongFileName& txtName) {
    ParseFootprintFile();
    ParseBoardFile();
    ParseTextFile(txtName);
    return true;
}

/// Sections are read as they are met:
///
///     (pcf board
///       (header ...)
///       (technologyContainer ...)      has to stand ahead of boardContainer
///       (boardContainer ...))
bool ZukenPCBParser::ParseBoardFile() {
    for (const io::CBlock_func& pcf : pcbData.Funcs()) {
        if (!pcf.NameIs("pcf"))
            continue;
        for (const io::CBlock_func& section : pcf.Funcs()) {
            if (section.NameIs("header"))
                ReadUnits(section);
            else if (section.NameIs("boardContainer"))
                ReadBoardContainer(section, *this);
            else if (section.NameIs("technologyContainer"))
                ReadTechnologyContainer(section, *this);
        }
    }
    FinishBoard();
    // The components have brought bond wire layers, of which the padstacks don't know yet.
    if (!bondwireLayers.IsEmpty())
        ReadCorrespondence();
    return true;
}

/// (header (unit DBUNIT))
void ZukenPCBParser::ReadUnits(const io::CBlock_func& header) {
    const AString text = GetTextOf_G(header, "unit");
    coordScale = 1.0;
    unitName = "mm";
    if (text.CompareNoCase("DBUNIT") == 0) {
        coordScale = k_MillimetresPerDatabaseUnit;
        unitScale = k_DatabaseRange;
    } else if (text.CompareNoCase("MM") == 0) {
        unitScale = k_DatabaseRange / k_DatabaseUnitsPerMillimetre;
    } else if (text.CompareNoCase("MIL") == 0) {
        unitName = "mil";
        unitScale = k_DatabaseRange / k_DatabaseUnitsPerMil;
    } else if (text.CompareNoCase("INCH") == 0) {
        unitName = "in";
    }
}

bool ZukenPCBParser::ReadConductiveLayers(const io::CBlock_func& conductiveLayer) {
    for (io::CBlock_func& argument : conductiveLayer.Funcs())
        if (argument.NameIs("layerNumber"))
            conductiveLayers.Append(MakeConductiveLayer(argument, layers));
    return true;
}
