#ifndef QRL_LIB_MATH_GEOMETRY_ANGLE_H
#define QRL_LIB_MATH_GEOMETRY_ANGLE_H

#include "lib/utils/Assert.h"
#include "lib/utils/Modulo.h"

#include <cmath>
#include <cstdint>

namespace geom {

/// What the number that makes an angle or an azimuth counts.
enum AngleMeasure : std::uint32_t {
    k_Degrees = 0,
    k_Radians = 1,
    k_RightAngles = 2,
    k_HalfRightAngles = 3,
};

inline constexpr double k_Pi = 3.141592653589793;
inline constexpr double k_TwoPi = 6.283185307179586;

/// A signed rotation, counter-clockwise positive, any number of turns. Kept in radians.
///
/// Comparisons are exact and treat a NaN as those of Unit do.
class Angle {
public:
    constexpr Angle() = default;
    /// A measure out of range is reported and gives 0.
    constexpr Angle(AngleMeasure measure, double value) : m_Value(ToRadians(measure, value)) {}

    /// The angle counted in `measure`. A measure out of range is reported and gives 0.
    constexpr double GetValue(AngleMeasure measure) const;

    /// Exact at 0, at plus and minus 90, 180 and 270, and at plus 360 degrees: a rotation by right angles is free of
    /// rounding.
    double Cos() const;
    double Sin() const;
    /// The same angle, brought into the turn that begins at `base`.
    Angle GetNormalised(Angle base) const;
    constexpr Angle GetAbs() const { return 0 > m_Value ? -*this : *this; }

    constexpr Angle operator-() const { return Angle(k_Radians, -m_Value); }

    friend constexpr bool operator==(Angle a, Angle b) = default;
    friend constexpr bool operator>(Angle a, Angle b) { return a.m_Value > b.m_Value; }
    friend constexpr bool operator<(Angle a, Angle b) { return b > a; }
    friend constexpr bool operator<=(Angle a, Angle b) { return !(a > b); }
    friend constexpr bool operator>=(Angle a, Angle b) { return !(b > a); }

    friend constexpr Angle operator+(Angle a, Angle b) { return Angle(k_Radians, a.m_Value + b.m_Value); }
    friend constexpr Angle operator-(Angle a, Angle b) { return Angle(k_Radians, a.m_Value - b.m_Value); }
    friend constexpr Angle operator*(Angle a, double factor) { return Angle(k_Radians, a.m_Value * factor); }
    friend constexpr Angle operator*(double factor, Angle a) { return a * factor; }
    /// A division by a zero angle is reported and carried out all the same.
    friend double operator/(Angle a, Angle b) {
        QRL_ASSERT("Angle.h", "b.m_Value", b.m_Value != 0);
        return a.m_Value / b.m_Value;
    }

private:
    static constexpr double ToRadians(AngleMeasure measure, double value);
    static void ReportUnknownMeasure();

    double m_Value = 0;
};

constexpr double Angle::ToRadians(AngleMeasure measure, double value) {
    switch (measure) {
    case k_Degrees:
        return value * 0.017453292519943295;
    case k_Radians:
        return value;
    case k_RightAngles:
        return value * 1.5707963267948966;
    case k_HalfRightAngles:
        return value * 0.7853981633974483;
    }
    ReportUnknownMeasure();
    return 0;
}

constexpr double Angle::GetValue(AngleMeasure measure) const {
    switch (measure) {
    case k_Degrees:
        return m_Value * 57.29577951308232;
    case k_Radians:
        return m_Value;
    case k_RightAngles:
        return m_Value * 0.6366197723675814;
    case k_HalfRightAngles:
        return m_Value * 1.2732395447351628;
    }
    ReportUnknownMeasure();
    return 0;
}

inline constexpr Angle k_Angle_0{k_Degrees, 0};
inline constexpr Angle k_Angle_22_5{k_Degrees, 22.5};
inline constexpr Angle k_Angle_30{k_Degrees, 30};
inline constexpr Angle k_Angle_45{k_Degrees, 45};
inline constexpr Angle k_Angle_60{k_Degrees, 60};
inline constexpr Angle k_Angle_90{k_Degrees, 90};
inline constexpr Angle k_Angle_135{k_Degrees, 135};
inline constexpr Angle k_Angle_180{k_Degrees, 180};
inline constexpr Angle k_Angle_270{k_Degrees, 270};
inline constexpr Angle k_Angle_360{k_Degrees, 360};
inline constexpr Angle k_Angle_1Radian{k_Radians, 1};
inline constexpr Angle k_AngleEpsilon{k_Radians, 9.999999999999999e-51}; ///< lines that enclose less are parallel
inline constexpr Angle k_SmallAngle{k_Radians, 0.1};                     ///< lines that enclose less may run together

inline double Angle::Cos() const {
    if (*this == k_Angle_0 || *this == k_Angle_360)
        return 1;
    if (*this == k_Angle_90 || *this == k_Angle_270 || *this == -k_Angle_90 || *this == -k_Angle_270)
        return 0;
    if (*this == k_Angle_180 || *this == -k_Angle_180)
        return -1;
    return std::cos(m_Value);
}

inline double Angle::Sin() const {
    if (*this == k_Angle_0 || *this == k_Angle_360 || *this == k_Angle_180 || *this == -k_Angle_180)
        return 0;
    if (*this == k_Angle_90 || *this == -k_Angle_270)
        return 1;
    if (*this == -k_Angle_90 || *this == k_Angle_270)
        return -1;
    return std::sin(m_Value);
}

inline Angle Angle::GetNormalised(Angle base) const {
    return Angle(k_Radians, base::GetModulo_T(m_Value - base.m_Value, k_TwoPi)) + base;
}

} // namespace geom

#endif
