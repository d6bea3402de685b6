#include "blocks/FuncRange.h"
#include "lib/math/geometry/Rotation.h"
#include "lib/math/geometry/RoundedArcs.h"
#include "model/PadCircle.h"
#include "model/PadPolygon.h"
#include "model/PadRectangle.h"
#include "model/PadRoundThermal.h"
#include "model/ZukenPCBParser.h"
#include "zuken/ListValues.h"
#include "zuken/PadStroke.h"

#include <cfloat>
#include <limits>
#include <memory>

namespace {

using PadPtr = std::unique_ptr<BasePad>;

/// A rectangle whose outline is drawn with a wider pen has round corners.
constexpr double k_OutlineTolerance = 1e-8;

/// A stroke has to be longer and wider than this to be a pad.
constexpr double k_SmallestStroke = DBL_EPSILON;

PadPtr MakePolygon(const geom::Polygon& polygon, const AString& name) {
    return std::make_unique<PadPolygon>(polygon, PadPolygon::k_Kind, name);
}

/// The disc stands on the pad's origin, whatever its point says.
///
///     (circle 80000 (pt 0 0))
PadPtr ReadCircle(io::CBlock_func& circle, double scale, const AString& name) {
    double radius = 0.0;
    circle >> radius;
    return std::make_unique<PadCircle>(radius * scale * 2.0, PadCircle::k_Kind, name);
}

/// A stroke with round ends, where its points are: a polygon, as it need not stand on the pad's origin. Without any
/// length it is reported, and becomes a disc whose radius is the width.
///
///     (oblong (width 60000) (pt -47500 0) (pt 47500 0))
PadPtr ReadOblong(const io::CBlock_func& oblong, double scale, const AString& name) {
    geom::Point start;
    geom::Point end;
    bool isFirst = true;
    for (io::CBlock_func& pt : oblong.Funcs()) {
        if (!pt.NameIs("pt"))
            continue;
        (isFirst ? start : end) = ReadPoint_G(pt, scale);
        isFirst = false;
    }
    const double width = GetRealOf_G(oblong, "width") * scale;
    return MakePolygon(geom::Segment(start, end).GetPolygon(width, false, width, false), name);
}

/// Null for a stroke without length or pen.
PadPtr ReadLinePad(const io::CBlock_func& line, double scale, const AString& name) {
    const PadStroke stroke = ReadPadStroke_G(line, scale);
    if (!(stroke.m_Width > k_SmallestStroke && stroke.m_Height > k_SmallestStroke))
        return nullptr;
    return std::make_unique<PadRectangle>(stroke.m_Width, stroke.m_Height, 0.0, PadRectangle::k_Kind, name);
}

/// The outline of a rectangle with round corners, about the origin. Only its height makes room for the pen that draws
/// the corners: that is the format's established behaviour.
geom::Polygon RoundedRectangle(double width, double height, double angle, double penWidth) {
    const geom::Box box(geom::k_Origin, width, height - penWidth);
    const geom::Rotation rotation(geom::k_Origin, geom::Angle(geom::k_Degrees, angle));
    const auto sides = geom::Polygon(box, geom::k_NullUnit).GetRotated(rotation).GetArcs();
    return geom::Polygon(geom::GetRoundedArcs(sides, penWidth, penWidth * 0.5, geom::k_Closed), true);
}

/// With round corners it stands on the pad's origin; a plain one keeps its place.
///
///     (rectangle (pt 0 0) (width 50000) (height 55000) (rAngle 0) (outlineWidth 0))
PadPtr ReadRectangle(const io::CBlock_func& rectangle, double scale, const AString& name) {
    const double width = GetRealOf_G(rectangle, "width") * scale;
    const double height = GetRealOf_G(rectangle, "height") * scale;
    const double angle = GetRealOf_G(rectangle, "rAngle");
    const double penWidth = GetRealOf_G(rectangle, "outlineWidth") * scale;
    if (penWidth > k_OutlineTolerance)
        return MakePolygon(RoundedRectangle(width, height, angle, penWidth), name);
    auto pad = std::make_unique<PadRectangle>(width, height, angle, PadRectangle::k_Kind, name);
    const geom::Point place = GetPointOf_G(rectangle, scale);
    pad->offsetX = double(place.GetX());
    pad->offsetY = double(place.GetY());
    return pad;
}

/// The whole part of `value`; what doesn't fit stops at the nearest number that does.
int32_t TruncateToInt32(double value) {
    using Limits = std::numeric_limits<int32_t>;
    if (value >= Limits::max())
        return Limits::max();
    return value <= Limits::min() ? Limits::min() : static_cast<int32_t>(value);
}

/// (roundThermal (pt 0 0) (out 95000) (in 75000) (nBridge 4) (bridgeWidth 25000) (bridgeAngle 45))
PadPtr ReadRoundThermal(const io::CBlock_func& thermal, double scale, const AString& name) {
    return std::make_unique<PadRoundThermal>(GetRealOf_G(thermal, "out") * scale, GetRealOf_G(thermal, "in") * scale,
        TruncateToInt32(GetRealOf_G(thermal, "nBridge")), GetRealOf_G(thermal, "BridgeWidth") * scale,
        GetRealOf_G(thermal, "BridgeAngle"), name);
}

} // namespace

std::unique_ptr<BasePad> ZukenPCBParser::ReadPadShape(io::CBlock_func& shape, const AString& name) const {
    if (shape.NameIs("Circle"))
        return ReadCircle(shape, coordScale, name);
    if (shape.NameIs("Oblong"))
        return ReadOblong(shape, coordScale, name);
    if (shape.NameIs("line"))
        return ReadLinePad(shape, coordScale, name);
    if (shape.NameIs("rectangle"))
        return ReadRectangle(shape, coordScale, name);
    if (shape.NameIs("surface")) {
        geom::Polygon outline;
        ReadLoop(GetChild_G(shape, "Vertex"), outline);
        return MakePolygon(outline, name);
    }
    if (shape.NameIs("roundThermal"))
        return ReadRoundThermal(shape, coordScale, name);
    return nullptr;
}
