#include "model/ZukenPCBParser.h"

#include "lib/math/geometry/Circle.h"
#include "lib/utils/Assert.h"
#include "model/PadCircle.h"
#include "model/PadMultiLoop.h"
#include "model/PadObround.h"
#include "model/PadPolygon.h"
#include "model/PadRectangle.h"

#include <algorithm>

namespace {

/// The box of a rectangle or obround, neither turned nor with round corners.
template <class Pad>
geom::Polygon GetPadBox_T(const Pad& pad) {
    return geom::Polygon(geom::Box(geom::Point(pad.offsetX, pad.offsetY), pad.width, pad.height), 0);
}

} // namespace

ZukenPCBParser::ZukenPCBParser(const io::CBlock& footprintTree, const io::CBlock& boardTree)
    : pcbData(boardTree), fpData(footprintTree) {}

uint32_t ZukenPCBParser::GetFootprintLayerNumber(const AString& name) const {
    const FPLayer* layer = FindFootprintLayer(name);
    return static_cast<uint32_t>(layer == nullptr ? -1 : layer->number);
}

FPLayer* ZukenPCBParser::FindFootprintLayerByConductive(int32_t number) const {
    const auto standsFor = [number](const FPLayer* layer) {
        return layer->number == number || layer->conductiveNumbers.contains(number);
    };
    const auto found = std::find_if(footprintLayers.begin(), footprintLayers.end(), standsFor);
    return found == footprintLayers.end() ? nullptr : *found;
}

Layer* ZukenPCBParser::FindConductiveLayer(int32_t number) const { return conductiveLayers.Find(number); }

AString ZukenPCBParser::GetConductiveLayerName(int32_t number) const {
    const Layer* layer = FindConductiveLayer(number);
    return layer == nullptr ? AString() : layer->name;
}

Layer* ZukenPCBParser::MirrorConductiveLayer(Layer* layer) const { return conductiveLayers.GetMirrored(layer); }

Layer* ZukenPCBParser::GetTopConductiveLayer() const { return conductiveLayers.GetTop(); }

Layer* ZukenPCBParser::GetBottomConductiveLayer() const { return conductiveLayers.GetBottom(); }

int ZukenPCBParser::GetConductiveLayers(std::vector<Layer*>& out) const { return conductiveLayers.CopyTo(out); }

Net* ZukenPCBParser::GetNet(const AString& name) {
    const AString known = name.empty() ? AString(Net::k_NoNet) : name;
    Net* net = nets.Find(known);
    return net != nullptr ? net : nets.Add(std::make_unique<Net>(known));
}

Net* ZukenPCBParser::GetNetOfText(std::string_view name) {
    Net* net = nets.FindNarrow(name);
    return net != nullptr ? net : GetNet(AString(name));
}

int ZukenPCBParser::GetPadPolygons(const BasePad& pad, std::vector<geom::Polygon>& out) {
    if (const auto* polygon = dynamic_cast<const PadPolygon*>(&pad))
        out.push_back(polygon->polygon);
    else if (const auto* circle = dynamic_cast<const PadCircle*>(&pad))
        out.emplace_back(geom::Circle(geom::k_Origin, circle->diameter * 0.5));
    else if (const auto* rectangle = dynamic_cast<const PadRectangle*>(&pad))
        out.push_back(GetPadBox_T(*rectangle));
    else if (const auto* multiLoop = dynamic_cast<const PadMultiLoop*>(&pad))
        out.insert(out.end(), multiLoop->polygons.begin(), multiLoop->polygons.end());
    else if (const auto* obround = dynamic_cast<const PadObround*>(&pad))
        out.push_back(GetPadBox_T(*obround));
    else
        QRL_ASSERT("ZukenPCBParser", "0", false);
    return static_cast<int>(out.size());
}
