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
io::CBlock_func GetShape(const io::CBlock_func& item, const char* shapeName) {
    return GetChild_G(GetChild_G(item, "geometry"), shapeName);
}

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
            for (io::CBlock_func& item : layer.Funcs())
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
    io::CBlock_func& item, const AString& layerName, geom::Point origin, double angle, bool mirrored) {
    if (item.NameIs("line")) {
        const AString netName = GetTextOf_G(item, "net");
        // Left over from the search for a fault of one board; it reports that net and changes nothing.
        const bool isWatched = netName.CompareNoCase("SATA1_TX_DN") == 0;
        QRL_ASSERT("ZukenPCBParser", "netName.CompareNoCase ( \"SATA1_TX_DN\" )", !isWatched);
        ReadLine(GetShape(item, "line"), GetNet(netName), layerName);
    } else if (item.NameIs("surface")) {
        Net* net = GetNet(GetTextOf_G(item, "net"));
        ReadSurface(GetShape(item, "surface"), net, layerName, geom::k_Origin, 0.0, false);
    } else if (item.NameIs("meshplane")) {
        Net* net = GetNet(GetTextOf_G(item, "net"));
        ReadSurface(GetShape(item, "meshplane"), net, layerName, geom::k_Origin, 0.0, false);
    } else if (item.NameIs("refer")) {
        ReadReference(item, layerName, origin, angle, mirrored);
    } else if (item.NameIs("pad")) {
        ReadPlacedPad(item, layerName);
    }
}

/// (refer (surface (net GND) (geometry (surface (vertex ...)))))
void ZukenPCBParser::ReadReference(
    const io::CBlock_func& refer, const AString& layerName, geom::Point origin, double angle, bool mirrored) {
    io::CBlock_func surface = GetChild_G(refer, "surface");
    Net* net = GetNet(GetTextOf_G(surface, "net"));
    const io::CBlock_func geometry = GetChild_G(surface, "geometry");
    // Without a geometry the outer surface is the shape.
    geometry >> surface;
    ReadSurface(surface, net, layerName, origin, angle, mirrored);
}

/// A pad that stands on a layer by itself becomes a surface for each of its outlines.
///
///     (pad C160 (net GND) (pt 1450000 2018000) (angle 90))
void ZukenPCBParser::ReadPlacedPad(io::CBlock_func& item, const AString& layerName) {
    AString name;
    item >> name;
    Net* net = GetNet(GetTextOf_G(item, "net"));
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
