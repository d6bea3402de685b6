#include "blocks/FuncRange.h"
#include "model/LoopPolygon.h"
#include "model/PadMultiLoop.h"
#include "model/ZukenPCBParser.h"
#include "zuken/ListValues.h"

#include <memory>

namespace {

/// One pad whose loops are the outlines of all the shapes, under the name of the first. It may end up without any: a
/// thermal relief has no outline.
std::unique_ptr<BasePad> JoinShapes(const std::vector<std::unique_ptr<BasePad>>& shapes) {
    std::vector<geom::Polygon> loops;
    for (const auto& shape : shapes)
        AddLoopPolygon_G(*shape, loops);
    return std::make_unique<PadMultiLoop>(std::move(loops), PadMultiLoop::k_Kind, shapes.front()->GetName());
}

} // namespace

/// (pads (pad ...) (pad ...))
bool ZukenPCBParser::ReadPads(const io::CBlock_func& padsFunc) {
    for (io::CBlock_func& pad : padsFunc.Funcs())
        if (pad.NameIs("pad"))
            ReadPad(pad);
    return false;
}

/// All shapes of all geometries add up. A pad without any leaves no record.
///
///     (pad C160
///       (geometry (circle 80000 (pt 0 0))))
void ZukenPCBParser::ReadPad(io::CBlock_func& pad) {
    AString name;
    pad >> name;
    std::vector<std::unique_ptr<BasePad>> shapes;
    for (const io::CBlock_func& geometry : pad.Funcs()) {
        if (!geometry.NameIs("geometry"))
            continue;
        for (io::CBlock_func& shape : geometry.Funcs())
            if (std::unique_ptr<BasePad> made = ReadPadShape(shape, name))
                shapes.push_back(std::move(made));
    }
    if (shapes.size() == 1)
        pads.Add(std::move(shapes.front()));
    else if (!shapes.empty())
        pads.Add(JoinShapes(shapes));
}

/// (vertex (pt 0 0) (pt 50000 0) (pt 50000 20000))
bool ZukenPCBParser::ReadPolygonOutline(const io::CBlock_func& func, geom::Polygon& out) const {
    std::vector<geom::Point> points;
    for (io::CBlock_func& pt : GetChild_G(func, "vertex").Funcs())
        if (pt.NameIs("pt"))
            points.push_back(ReadPoint_G(pt, coordScale));
    if (points.size() < 2)
        return false;
    std::vector<geom::Arc> sides;
    for (size_t i = 1; i < points.size(); ++i)
        sides.emplace_back(points[i - 1], points[i], geom::k_NullUnit);
    sides.emplace_back(points.back(), points.front(), geom::k_NullUnit);
    out = geom::Polygon(sides, true);
    return true;
}
