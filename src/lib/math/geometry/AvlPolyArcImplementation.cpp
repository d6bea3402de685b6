#include "lib/math/geometry/AvlPolyArcImplementation.h"

#include "lib/math/geometry/PolyArc.h"
#include "lib/utils/Assert.h"

namespace geom {

AvlPolyArcImplementation::Iterator::Iterator(
    const PolyArc* owner, const ArcTree& arcs, base::FilterMode filter_mode, const Box& filter)
    : m_TreeIterator(arcs.begin(filter_mode, filter)), m_Owner(owner) {
    if (!IsAtEnd() && !IsAccepted())
        Step();
}

void AvlPolyArcImplementation::Iterator::Step() {
    QRL_ASSERT("AvlPolyArcImplementation", "IsDereferenceable()", IsDereferenceable());
    if (IsAtEnd())
        return;
    do
        ++m_TreeIterator;
    while (!IsAtEnd() && !IsAccepted());
}

bool AvlPolyArcImplementation::Iterator::IsDereferenceable() const {
    return m_Owner && m_Owner->HasImplementation() && !IsAtEnd();
}

bool AvlPolyArcImplementation::Iterator::IsAccepted() const {
    QRL_ASSERT("AvlPolyArcImplementation", "IsDereferenceable()", IsDereferenceable());
    const base::FilterMode filter_mode = m_TreeIterator.GetFilterMode();
    if (filter_mode == base::k_NoFilter)
        return true;
    const Box& filter = m_TreeIterator.GetFilter();
    const Arc& arc = GetArc();
    if (filter_mode == base::k_SkipOutside)
        return arc.GetLooseBox().Intersects(filter) && arc.IntersectsBox(filter, k_NullUnit);
    QRL_ASSERT("AvlPolyArcImplementation", "filter_mode == base::k_SkipInside", filter_mode == base::k_SkipInside);
    return arc.GetBox().GetRelationTo(filter, k_NullUnit) != k_BoxInside;
}

} // namespace geom
