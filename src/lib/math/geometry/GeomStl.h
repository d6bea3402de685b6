#ifndef QRL_LIB_MATH_GEOMETRY_GEOMSTL_H
#define QRL_LIB_MATH_GEOMETRY_GEOMSTL_H

#include "lib/math/geometry/Box.h"
#include "lib/utils/Assert.h"

namespace geom {

/// The bound of any shape: a point, a box, or what has a GetBox.
constexpr Box GetBoxOf_T(Point point) { return Box(point); }
constexpr const Box& GetBoxOf_T(const Box& box) { return box; }
template <class TShape>
Box GetBoxOf_T(const TShape& shape) {
    return shape.GetBox();
}

/// The bound of `shape`, moved outward by `expansion` on all sides; empty stays empty. A negative `expansion` is
/// reported and shrinks it.
template <class TShape>
Box GetExpandedBox_T(const TShape& shape, Unit expansion) {
    QRL_ASSERT("GeomStl", "expansion >= k_NullUnit", expansion >= k_NullUnit);
    return GetBoxOf_T(shape).GetExpanded(expansion);
}

/// The tolerance that two shapes have in common: that of the box that holds both.
template <class TShapeA, class TShapeB>
Unit GetCombinedEpsilon_T(const TShapeA& a, const TShapeB& b) {
    return GetBoxOf_T(a).GetUnion(GetBoxOf_T(b)).GetEpsilon();
}

} // namespace geom

#endif
