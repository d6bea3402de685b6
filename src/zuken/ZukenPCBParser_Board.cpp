#include "blocks/FuncRange.h"
#include "model/ZukenPCBParser.h"

#include <cmath>
#include <iterator>

namespace {

/// Lengths in database units, of which a millimetre has 100000 and a mil 2540, span this many of them.
const double k_DatabaseRange = std::pow(2.0, 30.0);
constexpr double k_MillimetresPerDatabaseUnit = 1e-5;
constexpr double k_DatabaseUnitsPerMillimetre = 100000.0;
constexpr double k_DatabaseUnitsPerMil = 2540.0;

} // namespace

bool ZukenPCBParser::Parse(const LongFileName& /*txtName*/) {
    ParseBoardFile();
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
        for (const io::CBlock_func& section : pcf.Funcs())
            ReadBoardSection(section);
    }
    return true;
}

void ZukenPCBParser::ReadBoardSection(const io::CBlock_func& section) {
    if (section.NameIs("header"))
        ReadUnits(section);
    else if (section.NameIs("technologyContainer"))
        ReadTechnologyContainer(section);
}

/// (header (unit DBUNIT))
void ZukenPCBParser::ReadUnits(const io::CBlock_func& header) {
    io::CBlock_func unit("unit");
    header >> unit;
    AString text;
    unit >> text;
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

/// (technologyContainer (technology tech_2L (conductiveLayer ...)))
void ZukenPCBParser::ReadTechnologyContainer(const io::CBlock_func& container) {
    io::CBlock_func technology("technology");
    io::CBlock_func conductiveLayer("conductiveLayer");
    container >> technology;
    technology >> conductiveLayer;
    ReadConductiveLayers(conductiveLayer);
}

bool ZukenPCBParser::ReadConductiveLayers(const io::CBlock_func& conductiveLayer) {
    for (io::CBlock_func& argument : conductiveLayer.Funcs())
        if (argument.NameIs("layerNumber"))
            ReadConductiveLayer(argument);
    return true;
}

/// (layerNumber 1 (type POSI))
/// (layerNumber 3 (type FULLSURF) (signalName GND))
void ZukenPCBParser::ReadConductiveLayer(io::CBlock_func& layerNumber) {
    int number = 0;
    layerNumber >> number;
    io::CBlock_func type("type");
    layerNumber >> type;
    AString typeText;
    type >> typeText;
    const bool isFull = typeText.CompareNoCase("FULLSURF") == 0;
    const bool isPlane = isFull || typeText.CompareNoCase("POSINEGA") == 0;
    AString name;
    name.Format(L"Conductive_%d", number);
    auto layer = std::make_unique<Layer>(name, number, isPlane ? Layer::k_Plane : Layer::k_Conductive, 0.0);
    if (isFull) {
        io::CBlock_func signalName("signalName");
        layerNumber >> signalName;
        signalName >> layer->signalName;
    }
    conductiveLayers.Add(std::move(layer));
}
