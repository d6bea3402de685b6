#include "model/PadCircle.h"
#include "model/PadObround.h"
#include "model/PadPolygon.h"
#include "model/PadRectangle.h"
#include "model/PadRoundThermal.h"
#include "neutral/Keywords.h"
#include "neutral/OutlineFuncs.h"
#include "neutral/ZukenConverter.h"

namespace {

io::CBlock_func MakeCircle(double diameter) {
    io::CBlock_func circle(keyword::k_Circle);
    circle << diameter;
    return circle;
}

/// The pad that a padstack names where it has no pad on a layer. Its diameter is a whole number.
io::CBlock_func MakeNullPad() {
    io::CBlock_func circle(keyword::k_Circle);
    circle << 0;
    io::CBlock_func nullPad(keyword::k_NullPad);
    nullPad << circle;
    return nullPad;
}

/// Angle and offsets have no place in a shape; the offsets go into the padstack.
io::CBlock_func MakeRectangle(const PadRectangle& pad) {
    io::CBlock_func rectangle(keyword::k_Rectangle);
    rectangle << pad.width << pad.height;
    return rectangle;
}

/// An obround has full round ends here, whatever its corner radius.
io::CBlock_func MakeObround(const PadObround& pad) {
    io::CBlock_func obround(keyword::k_Obround);
    obround << pad.width << pad.height << pad.height * 0.5;
    return obround;
}

io::CBlock_func MakePolygon(const geom::Polygon& polygon) {
    geom::Circle circle(geom::k_Origin, 0);
    if (polygon.IsCircle(polygon.GetEpsilon(), &circle))
        return MakeCircle(static_cast<double>(circle.GetRadius()) * 2.0);
    io::CBlock_func func(keyword::k_Polygon);
    AppendPieces_G(polygon.GetArcs(), keyword::k_Vertex, func);
    return func;
}

/// A pad of several outlines has no form in the file: its name stands alone. Of a thermal relief only the outer circle
/// has one.
io::CBlock_func MakePad(const BasePad& pad) {
    io::CBlock_func func(pad.name);
    if (const auto* circle = dynamic_cast<const PadCircle*>(&pad))
        func << MakeCircle(circle->diameter);
    else if (const auto* rectangle = dynamic_cast<const PadRectangle*>(&pad))
        func << MakeRectangle(*rectangle);
    else if (const auto* obround = dynamic_cast<const PadObround*>(&pad))
        func << MakeObround(*obround);
    else if (const auto* polygon = dynamic_cast<const PadPolygon*>(&pad))
        func << MakePolygon(polygon->polygon);
    else if (const auto* thermal = dynamic_cast<const PadRoundThermal*>(&pad))
        func << MakeCircle(thermal->outerRadius * 2.0);
    return func;
}

} // namespace

bool ZukenConverter::WritePadShapes(const Pads& pads, io::CBlock& root) {
    io::CBlockPtr block(keyword::k_PadShapes);
    *block << MakeNullPad();
    for (const BasePad* pad : pads)
        *block << MakePad(*pad);
    root << block;
    return true;
}
