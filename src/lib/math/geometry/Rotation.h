#ifndef QRL_LIB_MATH_GEOMETRY_ROTATION_H
#define QRL_LIB_MATH_GEOMETRY_ROTATION_H

#include "lib/math/geometry/Angle.h"
#include "lib/math/geometry/Point.h"

namespace geom {

/// A rotation about a point; counter-clockwise for a positive angle.
class Rotation {
public:
    constexpr Rotation() = default;
    constexpr Rotation(Point center, Angle angle) : m_Center(center), m_Angle(angle) {}

    constexpr Point GetCenter() const { return m_Center; }
    constexpr Angle GetAngle() const { return m_Angle; }

private:
    Point m_Center;
    Angle m_Angle;
};

} // namespace geom

#endif
