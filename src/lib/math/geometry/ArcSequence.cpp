#include "lib/math/geometry/ArcSequence.h"

namespace geom {

namespace {

void Append(std::vector<Arc>& to, const Arc& arc) {
    if (arc.IsPoint(k_NullUnit))
        return;
    const bool isJoined = to.empty() || to.back().GetEnd() == arc.GetStart();
    to.push_back(isJoined ? arc : arc.GetWithStart(to.back().GetEnd()));
}

} // namespace

bool IsPolyArcSequence_G(const std::vector<Arc>& arcs, OpenClosed open_closed, std::size_t from) {
    if (arcs.empty())
        return true;
    for (std::size_t i = from; i + 1 < arcs.size(); ++i)
        if (arcs[i].GetEnd() != arcs[i + 1].GetStart())
            return false;
    return open_closed == k_Open || arcs.back().GetEnd() == arcs.front().GetStart();
}

void AppendToSequence(std::vector<Arc>& to, const Arc& arc, std::size_t from) {
    QRL_ASSERT("Arc", "IsPolyArcSequence_G (to, k_Open)", IsPolyArcSequence_G(to, k_Open, from));
    Append(to, arc);
}

void AppendToSequence(std::vector<Arc>& to, const std::vector<Arc>& arcs, std::size_t from) {
    QRL_ASSERT("Arc", "IsPolyArcSequence_G (to, k_Open)", IsPolyArcSequence_G(to, k_Open, from));
    for (const Arc& arc : arcs)
        Append(to, arc);
}

} // namespace geom
