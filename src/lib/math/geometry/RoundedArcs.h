#ifndef QRL_LIB_MATH_GEOMETRY_ROUNDEDARCS_H
#define QRL_LIB_MATH_GEOMETRY_ROUNDEDARCS_H

#include "lib/math/geometry/Arc.h"

#include <cstdint>
#include <vector>

namespace geom {

/// What two consecutive arcs become when the corner between them is rounded.
struct RoundedPair {
    std::uint32_t m_Changed = 0; ///< 0 when m_Arcs are the two arcs as they were
    std::vector<Arc> m_Arcs;     ///< what is left of the first, the rounding, what is left of the second
};

/// Rounds the corner between two consecutive arcs with `prefered_radius` or, where that doesn't fit, with the half of
/// it, and so on, and last with `min_radius`. A corner that takes none of them stays sharp; that is no failure.
/// The result is an open sequence. Arcs that don't meet are reported, as are radii that aren't in order or above 0.
RoundedPair GetRoundedPair(const Arc& a1, const Arc& a2, Unit prefered_radius, Unit min_radius);

/// Rounds all corners of a sequence of arcs, each with the largest radius that GetRoundedPair finds for it. A corner
/// is rounded between the halves of its two arcs, so that neighbouring corners can't fight over one arc.
///
/// An arc both of whose corners stay sharp stays whole, but for the first one of a closed list; one that is cut at a
/// corner stays cut in the middle too. A closed result starts in the middle of the first arc. Fewer than two arcs come
/// back as they are; a list that is no sequence is reported.
std::vector<Arc> GetRoundedArcs(
    const std::vector<Arc>& arcs, Unit prefered_radius, Unit min_radius, OpenClosed open_closed);

} // namespace geom

#endif
