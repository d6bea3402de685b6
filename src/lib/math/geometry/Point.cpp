#include "lib/math/geometry/Point.h"

#include "lib/math/geometry/Transformation.h"
#include "lib/utils/Assert.h"

#include <algorithm>

namespace geom {

Unit Point::GetDistanceUpTo(Point other, Unit cur_distance) const {
    QRL_ASSERT("Point", "cur_distance >= k_NullUnit", cur_distance >= k_NullUnit);
    return std::min(cur_distance, Vector(*this, other).GetAbs());
}

Point Point::GetTransformed(const Transformation& transformation) const { return transformation.ApplyToPoint(*this); }

Point Point::GetRotated(const Rotation& rotation) const { return GetTransformed(Transformation(rotation)); }

} // namespace geom
