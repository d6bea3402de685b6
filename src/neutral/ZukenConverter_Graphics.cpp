#include "neutral/Keywords.h"
#include "neutral/OutlineFuncs.h"
#include "neutral/ZukenConverter.h"

#include <cmath>

namespace {

constexpr double k_StraightHeight = 1e-10; ///< an arc of a path that isn't higher is a straight piece
constexpr int k_CornerStep = 20;           ///< degrees between the corners of what stands for a circle

const geom::Circle k_NoCircle(geom::k_Origin, 0);

/// The regular polygon of 18 corners on the circle, the first to the right of its centre.
geom::Polygon MakeCornered(const geom::Circle& circle) {
    const auto radius = static_cast<double>(circle.GetRadius());
    std::vector<geom::Point> corners;
    for (int degrees = 0; degrees < 360; degrees += k_CornerStep) {
        const double angle = degrees * geom::k_Pi / 180.0;
        corners.push_back(circle.GetCenter() + geom::Vector(radius * std::cos(angle), radius * std::sin(angle)));
    }
    return geom::Polygon(corners, true);
}

/// Circle(id, half width, x, y, diameter)
io::CBlock_func MakeCircle(int32_t id, double halfWidth, const geom::Circle& circle) {
    io::CBlock_func func(keyword::k_Circle);
    func << id << halfWidth;
    AppendPoint_G(circle.GetCenter(), func);
    func << static_cast<double>(circle.GetRadius()) * 2.0;
    return func;
}

/// Polygon(id, half width, vertex(x, y), Arc(height), vertex(x, y), ...)
io::CBlock_func MakePolygon(int32_t id, double halfWidth, const std::vector<geom::Arc>& pieces) {
    io::CBlock_func func(keyword::k_Polygon);
    func << id << halfWidth;
    AppendPieces_G(pieces, keyword::k_OutlineVertex, func);
    return func;
}

/// A surface on its own repeats its first point at the end, unlike one with voids.
io::CBlock_func MakeClosedPolygon(int32_t id, const SurfaceLoop& outline) {
    const std::vector<geom::Arc> pieces = outline.polygon.GetArcs();
    io::CBlock_func func = MakePolygon(id, outline.halfWidth, pieces);
    if (!pieces.empty())
        AppendVertex_G(pieces.back().GetEnd(), keyword::k_OutlineVertex, func);
    return func;
}

io::CBlock_func MakeVoid(int32_t id, const SurfaceLoop& loop) {
    geom::Circle circle = k_NoCircle;
    if (loop.polygon.IsCircle(loop.polygon.GetEpsilon(), &circle))
        return MakeCircle(id, loop.halfWidth, circle);
    return MakePolygon(id, loop.halfWidth, loop.polygon.GetArcs());
}

/// Vertex(x, y, start width, end width, "Round", "Radiallymitered", 0)
io::CBlock_func MakePathVertex(const PathVertex& vertex) {
    io::CBlock_func func(keyword::k_Vertex);
    func << vertex.x << vertex.y << vertex.startWidth << vertex.endWidth << keyword::k_Round
         << keyword::k_RadiallyMitered << vertex.reserved;
    return func;
}

/// A height stands behind the vertex at which its arc begins; at the last one none does.
io::CBlock_func MakePath(int32_t id, const std::vector<PathVertex>& vertices) {
    io::CBlock_func path(keyword::k_Path);
    path << id;
    for (const PathVertex& vertex : vertices) {
        path << MakePathVertex(vertex);
        const bool isCurved = std::abs(vertex.height) > k_StraightHeight;
        if (isCurved && &vertex != &vertices.back())
            AppendArc_G(vertex.height, path);
    }
    return path;
}

} // namespace

/// Only what is a circle by exact numbers is written as one here: the tolerance is the least one there is.
void ZukenConverter::WriteSurfaceGraphics(const Surface& surface, io::CBlock& block) {
    if (!surface.voids.empty()) {
        WriteSurfaceWithVoids(surface, block);
        return;
    }
    const SurfaceLoop& outline = surface.outline;
    geom::Circle circle = k_NoCircle;
    const bool isCircle = outline.polygon.IsCircle(k_NoCircle.GetEpsilon(), &circle);
    io::CBlock_func graphics(keyword::k_Graphics);
    graphics << surface.layer;
    if (isCircle)
        graphics << MakeCircle(TakeId(), outline.halfWidth, circle);
    else
        graphics << MakeClosedPolygon(TakeId(), outline);
    block << graphics;
}

/// A surface with voids is never a circle in the file: it gets corners. Its id comes ahead of those of its voids.
void ZukenConverter::WriteSurfaceWithVoids(const Surface& surface, io::CBlock& block) {
    geom::Polygon polygon = surface.outline.polygon;
    geom::Circle circle = k_NoCircle;
    if (polygon.IsCircle(polygon.GetEpsilon(), &circle))
        polygon = MakeCornered(circle);
    io::CBlockPtr surfaceBlock(keyword::k_PolygonWithVoids);
    *surfaceBlock << io::CBlock_named_value(keyword::k_Layer, surface.layer);
    *surfaceBlock << MakePolygon(TakeId(), surface.outline.halfWidth, polygon.GetArcs());
    io::CBlockPtr voids(keyword::k_Voids);
    for (const SurfaceLoop& loop : surface.voids)
        *voids << MakeVoid(TakeId(), loop);
    *surfaceBlock << voids;
    block << surfaceBlock;
}

void ZukenConverter::WriteTraceGraphics(const Trace& trace, io::CBlock& block) {
    if (trace.vertices.empty())
        return;
    io::CBlock_func graphics(keyword::k_Graphics);
    graphics << trace.layer << MakePath(TakeId(), trace.vertices);
    block << graphics;
}
