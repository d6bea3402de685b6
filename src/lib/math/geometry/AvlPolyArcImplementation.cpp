#include "lib/math/geometry/AvlPolyArcImplementation.h"

#include "lib/math/geometry/PolyArc.h"
#include "lib/utils/Assert.h"

namespace geom {

AvlPolyArcImplementation::Iterator::Iterator(
    const PolyArc* owner, const ArcTree& arcs, base::FilterMode filter_mode, const Box& filter)
    : m_TreeIterator(arcs.begin(filter_mode, filter)), m_Owner(owner) {
    if (!IsAtEnd() && !IsAccepted())
        ++*this;
}

const Arc& AvlPolyArcImplementation::Iterator::operator*() const {
    QRL_ASSERT("AvlPolyArcImplementation", "IsDereferenceable()", IsDereferenceable());
    return *m_TreeIterator;
}

AvlPolyArcImplementation::Iterator& AvlPolyArcImplementation::Iterator::operator++() {
    QRL_ASSERT("AvlPolyArcImplementation", "IsDereferenceable()", IsDereferenceable());
    do
        ++m_TreeIterator;
    while (!IsAtEnd() && !IsAccepted());
    return *this;
}

bool AvlPolyArcImplementation::Iterator::IsDereferenceable() const {
    return !IsAtEnd() && m_Owner && m_Owner->HasImplementation();
}

bool AvlPolyArcImplementation::Iterator::IsAccepted() const {
    QRL_ASSERT("AvlPolyArcImplementation", "IsDereferenceable()", IsDereferenceable());
    const base::FilterMode filter_mode = m_TreeIterator.GetFilterMode();
    if (filter_mode == base::k_NoFilter)
        return true;
    const Box& filter = m_TreeIterator.GetFilter();
    const Arc& arc = *m_TreeIterator;
    if (filter_mode == base::k_SkipOutside)
        return arc.GetLooseBox().Intersects(filter) && arc.IntersectsBox(filter, k_NullUnit);
    QRL_ASSERT("AvlPolyArcImplementation", "filter_mode == base::k_SkipInside", filter_mode == base::k_SkipInside);
    return arc.GetBox().GetRelationTo(filter, k_NullUnit) != k_BoxInside;
}

} // namespace geom
