#ifndef QRL_LIB_MATH_GEOMETRY_ARCSEQUENCE_H
#define QRL_LIB_MATH_GEOMETRY_ARCSEQUENCE_H

#include "lib/math/geometry/Arc.h"

#include <cstddef>
#include <vector>

namespace geom {

/// Whether the end of each arc is exactly the start of the next; for k_Closed also the last end the first start. True
/// for no arcs at all. Only the joins from the arc `from` on are looked at: who lets a list grow and has looked at the
/// others before passes where to go on, and needn't walk the whole list for each arc that it adds.
bool IsPolyArcSequence_G(const std::vector<Arc>& arcs, OpenClosed open_closed, std::size_t from = 0);

/// Adds an arc to the end of an open sequence and keeps it one: an arc that starts elsewhere, if only by rounding, has
/// its start moved to the last end; a full circle moves as a whole. An exactly point-like arc is dropped. A list that
/// is no sequence, looked at from the arc `from` on, is reported.
void AppendToSequence(std::vector<Arc>& to, const Arc& arc, std::size_t from = 0);
/// The same for each arc of a list.
void AppendToSequence(std::vector<Arc>& to, const std::vector<Arc>& arcs, std::size_t from = 0);

} // namespace geom

#endif
