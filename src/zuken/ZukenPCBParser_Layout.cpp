#include "blocks/FuncRange.h"
#include "lib/utils/Assert.h"
#include "model/ZukenPCBParser.h"
#include "zuken/ListValues.h"
#include "zuken/Placement.h"

namespace {

/// (systemLayer (type PADSTACK))
bool IsPadstackLayer(const io::CBlock_func& layer) {
    return GetTextOf_G(GetChild_G(layer, "systemLayer"), "type").CompareNoCase("PADSTACK") == 0;
}

/// What an item's `geometry` holds under `shapeName`; an empty list where there is none.
io::FuncView GetShape(io::FuncView item, const char* shapeName) { return item.Find("geometry").Find(shapeName); }

} // namespace

/// (boardLayout (layout
///   (layer (conductive 1) (line ...) (surface ...))
///   (layer (systemLayer (type PADSTACK)) (padstack ...))))
bool ZukenPCBParser::ReadLayout(const io::CBlock_func& block, bool skipPadstacks, bool mirrorLayers, FootprintPin* pin,
    geom::Point origin, double angle, bool mirrored) {
    io::CBlock_func layout("layout");
    if (!FindChild_G(block, layout))
        return false;
    for (const io::CBlock_func& layer : layout.Funcs()) {
        if (!layer.NameIs("layer"))
            continue;
        io::CBlock_func conductive("conductive");
        if (FindChild_G(layer, conductive)) {
            int number = 0;
            conductive >> number;
            const AString layerName = GetConductiveLayerName(number);
            for (const io::FuncView item : io::FuncView(layer).Funcs())
                ReadConductiveItem(item, layerName, origin, angle, mirrored);
        } else if (!skipPadstacks && IsPadstackLayer(layer)) {
            ReadPadstackLayer(layer, mirrorLayers, pin);
        }
    }
    return true;
}

/// (line (net GND) (geometry (line (vertex ...))))
/// (refer (surface (net GND) (geometry (surface (vertex ...)))))
void ZukenPCBParser::ReadConductiveItem(
    io::FuncView item, const AString& layerName, geom::Point origin, double angle, bool mirrored) {
    if (item.NameIs("line")) {
        const std::string_view netName = item.Find("net").GetText();
        // Left over from the search for a fault of one board; it reports that net and changes nothing.
        const bool isWatched = io::EqualsNoCase_G(netName, "SATA1_TX_DN");
        QRL_ASSERT("ZukenPCBParser", "netName.CompareNoCase ( \"SATA1_TX_DN\" )", !isWatched);
        ReadLine(GetShape(item, "line"), GetNetOfText(netName), layerName);
    } else if (item.NameIs("surface")) {
        Net* net = GetNetOfText(item.Find("net").GetText());
        ReadSurface(GetShape(item, "surface"), net, layerName, geom::k_Origin, 0.0, false);
    } else if (item.NameIs("meshplane")) {
        Net* net = GetNetOfText(item.Find("net").GetText());
        ReadSurface(GetShape(item, "meshplane"), net, layerName, geom::k_Origin, 0.0, false);
    } else if (item.NameIs("refer")) {
        ReadReference(item, layerName, origin, angle, mirrored);
    } else if (item.NameIs("pad")) {
        ReadPlacedPad(item, layerName);
    }
}

/// (refer (surface (net GND) (geometry (surface (vertex ...)))))
void ZukenPCBParser::ReadReference(
    io::FuncView refer, const AString& layerName, geom::Point origin, double angle, bool mirrored) {
    Net* net = GetNetOfText(refer.Find("surface").Find("net").GetText());
    ReadSurface(GetSurfaceShape_G(refer), net, layerName, origin, angle, mirrored);
}

/// A pad that stands on a layer by itself becomes a surface for each of its outlines.
///
///     (pad C160 (net GND) (pt 1450000 2018000) (angle 90))
void ZukenPCBParser::ReadPlacedPad(io::FuncView item, const AString& layerName) {
    AString name;
    item >> name;
    Net* net = GetNetOfText(item.Find("net").GetText());
    const BasePad* pad = FindPad(name);
    if (pad == nullptr)
        return;
    const geom::Transformation placement =
        GetPlacement_G(GetPointOf_G(item, coordScale), GetRealOf_G(item, "angle"), false);
    std::vector<geom::Polygon> polygons;
    GetPadPolygons(*pad, polygons);
    for (const geom::Polygon& polygon : polygons)
        surfaces.Make(net, layerName, polygon.GetTransformed(placement));
}
