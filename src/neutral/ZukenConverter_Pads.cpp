#include "model/PadCircle.h"
#include "model/PadObround.h"
#include "model/PadPolygon.h"
#include "model/PadRectangle.h"
#include "model/PadRoundThermal.h"
#include "neutral/Keywords.h"
#include "neutral/OutlineFuncs.h"
#include "neutral/ZukenConverter.h"

namespace {

void AppendCircle(double diameter, io::CBlock_open_func& func) {
    io::CBlock_open_func circle(func, keyword::k_Circle);
    circle << diameter;
}

/// The pad that a padstack names where it has no pad on a layer. Its diameter is a whole number.
void WriteNullPad(io::CBlock& block) {
    io::CBlock_open_func nullPad(block, keyword::k_NullPad);
    io::CBlock_open_func circle(nullPad, keyword::k_Circle);
    circle << 0;
}

/// Angle and offsets have no place in a shape; the offsets go into the padstack.
void AppendRectangle(const PadRectangle& pad, io::CBlock_open_func& func) {
    io::CBlock_open_func rectangle(func, keyword::k_Rectangle);
    rectangle << pad.width << pad.height;
}

/// An obround has full round ends here, whatever its corner radius.
void AppendObround(const PadObround& pad, io::CBlock_open_func& func) {
    io::CBlock_open_func obround(func, keyword::k_Obround);
    obround << pad.width << pad.height << pad.height * 0.5;
}

void AppendPolygon(const geom::Polygon& polygon, io::CBlock_open_func& func) {
    geom::Circle circle(geom::k_Origin, 0);
    if (polygon.IsCircle(polygon.GetEpsilon(), &circle)) {
        AppendCircle(static_cast<double>(circle.GetRadius()) * 2.0, func);
        return;
    }
    io::CBlock_open_func polygonFunc(func, keyword::k_Polygon);
    AppendPieces_G(polygon.GetArcs(), keyword::k_Vertex, polygonFunc);
}

/// A pad of several outlines has no form in the file: its name stands alone. Of a thermal relief only the outer circle
/// has one.
void WritePad(const BasePad& pad, io::CBlock& block) {
    io::CBlock_open_func func(block, pad.name);
    if (const auto* circle = dynamic_cast<const PadCircle*>(&pad))
        AppendCircle(circle->diameter, func);
    else if (const auto* rectangle = dynamic_cast<const PadRectangle*>(&pad))
        AppendRectangle(*rectangle, func);
    else if (const auto* obround = dynamic_cast<const PadObround*>(&pad))
        AppendObround(*obround, func);
    else if (const auto* polygon = dynamic_cast<const PadPolygon*>(&pad))
        AppendPolygon(polygon->polygon, func);
    else if (const auto* thermal = dynamic_cast<const PadRoundThermal*>(&pad))
        AppendCircle(thermal->outerRadius * 2.0, func);
}

} // namespace

bool ZukenConverter::WritePadShapes(const Pads& pads, io::CBlock& root) {
    const auto write = [pads](size_t index, io::CBlock& items) {
        if (index == 0)
            WriteNullPad(items);
        else
            WritePad(*pads[index - 1], items);
    };
    root << io::CBlockDeferredPtr(new io::CBlock_deferred(keyword::k_PadShapes, pads.size() + 1, write));
    return true;
}
