#ifndef QRL_LIB_MATH_GEOMETRY_CIRCLESLICE_H
#define QRL_LIB_MATH_GEOMETRY_CIRCLESLICE_H

#include "lib/math/geometry/Arc.h"

namespace geom {

/// The area between an arc and its chord.
class CircleSlice {
public:
    explicit CircleSlice(const Arc& arc) : m_Arc(arc) {}

    /// Positive for a counter-clockwise arc: the sector less the triangle of the chord and the centre. An arc that is
    /// straight within its own epsilon counts as the triangle over its midpoint; the sector would have lost all digits.
    Area GetArea() const;

private:
    Arc m_Arc;
};

} // namespace geom

#endif
