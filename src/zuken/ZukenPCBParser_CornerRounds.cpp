#include "lib/math/geometry/RoundCorner.h"
#include "model/ZukenPCBParser.h"
#include "zuken/ArcRing.h"

namespace {

/// A shorter piece behind a rounding is dropped.
constexpr double k_ShortestPiece = 1e-5;

/// The pieces between the vertices. A piece has the height that stands at its end: the format's established behaviour,
/// by which the height of each arc moves to the piece ahead of it.
std::vector<geom::Arc> GetPieces(const std::vector<PathVertex>& vertices) {
    std::vector<geom::Arc> pieces;
    for (size_t i = 1; i < vertices.size(); ++i) {
        const PathVertex& from = vertices[i - 1];
        const PathVertex& to = vertices[i];
        pieces.emplace_back(geom::Point(from.x, from.y), geom::Point(to.x, to.y), to.height);
    }
    return pieces;
}

PathVertex MakeVertex(geom::Point point, geom::Unit height, double width) {
    return {.x = double(point.GetX()),
        .y = double(point.GetY()),
        .height = double(height),
        .startWidth = width,
        .endWidth = width};
}

} // namespace

void ZukenPCBParser::ApplyCornerRounds(
    std::vector<PathVertex>& vertices, const std::vector<CornerRound>& rounds, double width) {
    ArcRing arcs(GetPieces(vertices), rounds.size());
    for (const CornerRound& round : rounds)
        RoundCorner(arcs, geom::Point(round.x, round.y), round.radius);
    vertices.clear();
    const std::vector<geom::Arc> pieces = arcs.GetArcs();
    for (const geom::Arc& piece : pieces)
        vertices.push_back(MakeVertex(piece.GetStart(), piece.GetHeight(), width));
    if (!pieces.empty())
        vertices.push_back(MakeVertex(pieces.back().GetEnd(), geom::k_NullUnit, width));
}

/// The piece ahead of the rounding stays whatever its length, and both keep the heights that they had when they were
/// longer. A corner whose neighbours on both sides are curved ends the search.
bool ZukenPCBParser::RoundCorner(ArcRing& arcs, geom::Point point, double radius) {
    for (ArcRing::Index i = arcs.FindByStart(point); i != ArcRing::k_None; i = arcs.GetNextOfSameStart(i)) {
        const geom::Arc& arc = arcs[i];
        const geom::Arc& previous = arcs[arcs.GetPrevious(i)];
        const geom::Unit epsilon = arc.GetEpsilon();
        if (!previous.IsSegment(epsilon) && !arcs[arcs.GetNext(i)].IsSegment(epsilon))
            return false;
        const geom::ArcResult found = geom::GetRoundCorner(previous, arc, radius, geom::k_ShortWay, true);
        if (found.m_Success == 0)
            continue;
        const geom::Arc rounding = found.m_Arc;
        const geom::Arc before(previous.GetStart(), rounding.GetStart(), previous.GetHeight());
        const geom::Arc after(rounding.GetEnd(), arc.GetEnd(), arc.GetHeight());
        const bool isAfterKept = after.GetStartEndSegment().GetLength() > k_ShortestPiece;
        arcs.ReplaceCorner(i, before, rounding, isAfterKept ? &after : nullptr);
        return true;
    }
    return false;
}
