#include "lib/math/geometry/Vector.h"

#include "lib/utils/Assert.h"

#include <cmath>

namespace geom {

Unit Vector::GetAbs() const {
    if (m_X == k_Unit_0)
        return m_Y.GetAbs();
    if (m_Y == k_Unit_0)
        return m_X.GetAbs();
    return GetLengthSquare().GetSquareRoot();
}

Vector Vector::GetWithLength(Unit length) const {
    QRL_ASSERT("Vector", "*this != k_NullVector", *this != k_NullVector);
    if (m_X == k_Unit_0)
        return {0, length * m_Y.GetSign()};
    if (m_Y == k_Unit_0)
        return {length * m_X.GetSign(), 0};
    return *this * (length / GetAbs());
}

Vector Vector::GetRotated(Angle angle) const {
    const double cos = angle.Cos();
    const double sin = angle.Sin();
    return {m_X * cos - m_Y * sin, m_X * sin + m_Y * cos};
}

Azimuth Vector::GetAzimuth() const {
    QRL_ASSERT("Vector", "!IsNull()", !IsNull());
    if (m_X != k_Unit_0 && m_Y != k_Unit_0)
        return {k_Radians, std::atan2(double(m_Y), double(m_X))};
    const bool isVertical = m_X == k_Unit_0;
    const Unit along = isVertical ? m_Y : m_X;
    if (along < k_Unit_0)
        return isVertical ? k_Azimuth_270 : k_Azimuth_180;
    if (along > k_Unit_0)
        return isVertical ? k_Azimuth_90 : k_Azimuth_0;
    QRL_ASSERT("Vector", "!\"This should never happen!\"", false);
    return k_Azimuth_0;
}

Azimuth Vector::GetAzimuthUnchecked() const {
    if (m_X == k_Unit_0)
        return m_Y > k_Unit_0 ? k_Azimuth_90 : k_Azimuth_270;
    if (m_Y == k_Unit_0)
        return m_X < k_Unit_0 ? k_Azimuth_180 : k_Azimuth_0;
    return {k_Radians, std::atan2(double(m_Y), double(m_X))};
}

int Vector::GetQuadrant() const {
    if (m_X <= k_Unit_0 && m_Y > k_Unit_0)
        return 2;
    if (m_X < k_Unit_0 && m_Y <= k_Unit_0)
        return 3;
    if (m_X >= k_Unit_0 && m_Y < k_Unit_0)
        return 4;
    return 1;
}

} // namespace geom
