#include "neutral/Keywords.h"
#include "neutral/OutlineFuncs.h"
#include "neutral/ZukenConverter.h"

#include <cmath>
#include <span>

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
template <class Parent>
void AppendCircle_T(int32_t id, double halfWidth, const geom::Circle& circle, Parent& parent) {
    io::CBlock_open_func func(parent, keyword::k_Circle);
    func << id << halfWidth;
    AppendPoint_G(circle.GetCenter(), func);
    func << static_cast<double>(circle.GetRadius()) * 2.0;
}

/// Polygon(id, half width, vertex(x, y), Arc(height), vertex(x, y), ...)
void AppendPolygon(int32_t id, double halfWidth, const std::vector<geom::Arc>& pieces, io::CBlock& block) {
    io::CBlock_open_func func(block, keyword::k_Polygon);
    func << id << halfWidth;
    AppendPieces_G(pieces, keyword::k_OutlineVertex, func);
}

/// A surface on its own repeats its first point at the end, unlike one with voids.
void AppendClosedPolygon(int32_t id, const SurfaceLoop& outline, io::CBlock_open_func& graphics) {
    const std::vector<geom::Arc> pieces = outline.polygon.GetArcs();
    io::CBlock_open_func func(graphics, keyword::k_Polygon);
    func << id << outline.halfWidth;
    AppendPieces_G(pieces, keyword::k_OutlineVertex, func);
    if (!pieces.empty())
        AppendVertex_G(pieces.back().GetEnd(), keyword::k_OutlineVertex, func);
}

void AppendVoid(int32_t id, const SurfaceLoop& loop, io::CBlock& voids) {
    geom::Circle circle = k_NoCircle;
    if (loop.polygon.IsCircle(loop.polygon.GetEpsilon(), &circle))
        AppendCircle_T(id, loop.halfWidth, circle, voids);
    else
        AppendPolygon(id, loop.halfWidth, loop.polygon.GetArcs(), voids);
}

/// Vertex(x, y, start width, end width, "Round", "Radiallymitered", 0)
void AppendPathVertex(const PathVertex& vertex, io::CBlock_open_func& path) {
    io::CBlock_open_func func(path, keyword::k_Vertex);
    func.AppendRow(vertex.x, vertex.y, vertex.startWidth, vertex.endWidth, keyword::k_Round, keyword::k_RadiallyMitered,
        vertex.reserved);
}

/// A height stands behind the vertex at which its arc begins; at the last one none does.
void AppendPath(int32_t id, std::span<const PathVertex> vertices, io::CBlock_open_func& graphics) {
    io::CBlock_open_func path(graphics, keyword::k_Path);
    path << id;
    for (const PathVertex& vertex : vertices) {
        AppendPathVertex(vertex, path);
        const bool isCurved = std::abs(vertex.height) > k_StraightHeight;
        if (isCurved && &vertex != &vertices.back())
            AppendArc_G(vertex.height, path);
    }
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
    io::CBlock_open_func graphics(block, keyword::k_Graphics);
    graphics << surface.layer;
    if (isCircle)
        AppendCircle_T(TakeId(), outline.halfWidth, circle, graphics);
    else
        AppendClosedPolygon(TakeId(), outline, graphics);
}

/// A surface with voids is never a circle in the file: it gets corners. Its id comes ahead of those of its voids.
void ZukenConverter::WriteSurfaceWithVoids(const Surface& surface, io::CBlock& block) {
    geom::Polygon polygon = surface.outline.polygon;
    geom::Circle circle = k_NoCircle;
    if (polygon.IsCircle(polygon.GetEpsilon(), &circle))
        polygon = MakeCornered(circle);
    io::CBlock surfaceBlock(keyword::k_PolygonWithVoids);
    surfaceBlock << io::CBlock_named_value(keyword::k_Layer, surface.layer);
    AppendPolygon(TakeId(), surface.outline.halfWidth, polygon.GetArcs(), surfaceBlock);
    const auto write = [this, &surface](
                           size_t index, io::CBlock& items) { AppendVoid(TakeId(), surface.voids[index], items); };
    surfaceBlock << io::CBlockDeferredPtr(new io::CBlock_deferred(keyword::k_Voids, surface.voids.size(), write));
    block << surfaceBlock;
}

void ZukenConverter::WriteTraceGraphics(const Trace& trace, io::CBlock& block) {
    if (trace.vertices.empty())
        return;
    io::CBlock_open_func graphics(block, keyword::k_Graphics);
    graphics << trace.layer;
    AppendPath(TakeId(), trace.vertices, graphics);
}
