#include "lib/math/geometry/RoundedArcs.h"

#include "lib/math/geometry/ArcSequence.h"
#include "lib/math/geometry/RoundCorner.h"

#include <utility>

namespace geom {

namespace {

RoundedPair GetPairAround(const Arc& a1, const Arc& rounding, const Arc& a2) {
    const double t1 = a1.GetParameter(rounding.GetStart(), k_NullUnit);
    const double t2 = a2.GetParameter(rounding.GetEnd(), k_NullUnit);
    std::vector<Arc> arcs;
    if (t1 > 0)
        arcs.push_back(a1.GetSubArc(0, t1));
    if (!rounding.IsPoint(k_NullUnit))
        AppendToSequence(arcs, rounding);
    if (1 > t2)
        AppendToSequence(arcs, a2.GetSubArc(t2, 1));
    QRL_ASSERT("RoundedArcs", "IsPolyArcSequence_G (ret, k_Open)", IsPolyArcSequence_G(arcs, k_Open));
    const bool isUnchanged = arcs.size() == 2 && arcs[0] == a1 && arcs[1] == a2;
    return {isUnchanged ? 0U : 1U, std::move(arcs)};
}

/// The list of rounded arcs, corner by corner.
class RoundedSequence {
public:
    RoundedSequence(Unit preferedRadius, Unit minRadius) : m_PreferedRadius(preferedRadius), m_MinRadius(minRadius) {}

    /// An open list begins with the half of its first arc that no corner touches.
    void StartOpen(const Arc& first) { m_Arcs.push_back(first.GetSubArc(0, 0.5)); }
    /// Goes on from the middle of `current` over the corner to the middle of `next`.
    void PassCorner(const Arc& current, const Arc& next);
    /// An open list ends with the half of its last arc that no corner touches.
    void FinishOpen(const Arc& last);
    std::vector<Arc> Take() { return std::move(m_Arcs); }

private:
    /// Where to go on looking at joins: the last arc may have been replaced since.
    std::size_t GetUncheckedJoin() const { return m_CheckedCount < 2 ? 0 : m_CheckedCount - 2; }

    Unit m_PreferedRadius;
    Unit m_MinRadius;
    std::vector<Arc> m_Arcs;
    std::size_t m_CheckedCount = 0; ///< of the arcs, how many were in sequence at the last look
    bool m_IsLastCornerChanged = false;
};

void RoundedSequence::PassCorner(const Arc& current, const Arc& next) {
    QRL_ASSERT(
        "RoundedArcs", "IsPolyArcSequence_G (ret, k_Open)", IsPolyArcSequence_G(m_Arcs, k_Open, GetUncheckedJoin()));
    m_CheckedCount = m_Arcs.size();
    const Arc half = next.GetSubArc(0, 0.5);
    const RoundedPair pair = GetRoundedPair(current.GetSubArc(0.5, 1), half, m_PreferedRadius, m_MinRadius);
    if (pair.m_Changed != 0 || m_IsLastCornerChanged || m_Arcs.empty()) {
        AppendToSequence(m_Arcs, pair.m_Arcs, GetUncheckedJoin());
        QRL_ASSERT("RoundedArcs", "IsPolyArcSequence_G (ret, k_Open)",
            IsPolyArcSequence_G(m_Arcs, k_Open, GetUncheckedJoin()));
        m_IsLastCornerChanged = pair.m_Changed != 0;
        return;
    }
    // Neither corner of the arc has changed: the half of it that is there already becomes the whole again.
    m_Arcs.back() = current;
    QRL_ASSERT(
        "RoundedArcs", "IsPolyArcSequence_G (ret, k_Open)", IsPolyArcSequence_G(m_Arcs, k_Open, GetUncheckedJoin()));
    m_Arcs.push_back(half);
}

void RoundedSequence::FinishOpen(const Arc& last) {
    if (m_IsLastCornerChanged) {
        AppendToSequence(m_Arcs, last.GetSubArc(0.5, 1), GetUncheckedJoin());
        return;
    }
    if (!m_Arcs.empty())
        m_Arcs.pop_back();
    m_Arcs.push_back(last);
}

} // namespace

RoundedPair GetRoundedPair(const Arc& a1, const Arc& a2, Unit prefered_radius, Unit min_radius) {
    QRL_ASSERT("RoundedArcs", "prefered_radius >= min_radius && min_radius > 0",
        prefered_radius >= min_radius && min_radius > k_NullUnit);
    QRL_ASSERT("RoundedArcs", "a1.GetEnd() == a2.GetStart()", a1.GetEnd() == a2.GetStart());
    Unit radius = prefered_radius;
    while (radius >= min_radius) {
        const ArcResult rounding = GetRoundCorner(a1, a2, radius, k_ShortWay, true);
        if (rounding.m_Success != 0)
            return GetPairAround(a1, rounding.m_Arc, a2);
        const Unit smaller = radius > min_radius * 2 ? radius * 0.5 : min_radius;
        // The smallest one was tried. This also ends the search for a reported radius, which no halving brings there.
        if (!(radius > smaller))
            break;
        radius = smaller;
    }
    return {0, {a1, a2}};
}

std::vector<Arc> GetRoundedArcs(
    const std::vector<Arc>& arcs, Unit prefered_radius, Unit min_radius, OpenClosed open_closed) {
    QRL_ASSERT("RoundedArcs", "IsPolyArcSequence_G (arcs, open_closed)", IsPolyArcSequence_G(arcs, open_closed));
    if (arcs.size() < 2)
        return arcs;
    RoundedSequence rounded(prefered_radius, min_radius);
    if (open_closed == k_Open)
        rounded.StartOpen(arcs.front());
    for (std::size_t i = 0; i + 1 < arcs.size(); ++i)
        rounded.PassCorner(arcs[i], arcs[i + 1]);
    if (open_closed == k_Open)
        rounded.FinishOpen(arcs.back());
    else
        rounded.PassCorner(arcs.back(), arcs.front());
    std::vector<Arc> result = rounded.Take();
    QRL_ASSERT("RoundedArcs", "IsPolyArcSequence_G (ret, open_closed)", IsPolyArcSequence_G(result, open_closed));
    return result;
}

} // namespace geom
