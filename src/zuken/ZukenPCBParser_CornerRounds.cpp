#include "lib/math/geometry/RoundCorner.h"
#include "model/ZukenPCBParser.h"
#include "zuken/ArcRing.h"

namespace {

/// A shorter piece behind a rounding is dropped.
constexpr double k_ShortestPiece = 1e-5;

/// The pieces between the vertices. A piece has the height that stands at its end: the format's established behaviour,
/// by which the height of each arc moves to the piece ahead of it.
ArcRing MakeRing(const std::vector<PathVertex>& vertices, size_t corners) {
    const auto getPiece = [&vertices](size_t index) {
        const PathVertex& from = vertices[index];
        const PathVertex& to = vertices[index + 1];
        return geom::Arc(geom::Point(from.x, from.y), geom::Point(to.x, to.y), to.height);
    };
    return {vertices.empty() ? 0 : vertices.size() - 1, corners, getPiece};
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
    ArcRing arcs = MakeRing(vertices, rounds.size());
    for (size_t i = 0; i < rounds.size(); ++i) {
        if (i + 1 < rounds.size())
            arcs.Expect(geom::Point(rounds[i + 1].x, rounds[i + 1].y));
        RoundCorner(arcs, geom::Point(rounds[i].x, rounds[i].y), rounds[i].radius);
    }
    vertices.clear();
    if (arcs.GetSize() == 0)
        return;
    if (vertices.capacity() <= arcs.GetSize())
        std::vector<PathVertex>().swap(vertices); // ahead of the larger piece, so that both don't stand at once
    vertices.reserve(arcs.GetSize() + 1);
    ArcRing::Index index = arcs.GetFirst();
    do {
        vertices.push_back(MakeVertex(arcs[index].GetStart(), arcs[index].GetHeight(), width));
        index = arcs.GetNext(index);
    } while (index != arcs.GetFirst());
    const geom::Arc& last = arcs[arcs.GetPrevious(index)];
    vertices.push_back(MakeVertex(last.GetEnd(), geom::k_NullUnit, width));
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
