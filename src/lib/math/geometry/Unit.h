#ifndef QRL_LIB_MATH_GEOMETRY_UNIT_H
#define QRL_LIB_MATH_GEOMETRY_UNIT_H

#include "lib/utils/Assert.h"
#include "lib/utils/Modulo.h"

#include <cfloat>

namespace geom {

class Area;

/// A length, signed, in whatever unit the caller measures with; the kernel has none of its own.
///
/// No operator has a tolerance. `>` and `==` compare the numbers; `<=` is "not greater", so that both `<=` and `>=`
/// hold as soon as one side is a NaN. Where a tolerance is wanted it is an argument of the operation.
class Unit {
public:
    constexpr Unit() = default;
    /// Implicit: a plain number is a length in the caller's unit. The way back to a number has to be asked for.
    constexpr Unit(double value) : m_Value(value) {} // NOLINT(google-explicit-constructor)

    constexpr explicit operator double() const { return m_Value; }

    constexpr Unit operator-() const { return -m_Value; }

    /// The value, negated when it is below 0; so -0.0 stays -0.0.
    constexpr Unit GetAbs() const { return base::GetAbsOf_T(*this); }
    constexpr Area GetSquare() const;
    /// -1, 0 or 1; 0 for a NaN.
    constexpr int GetSign() const { return (m_Value > 0) - (m_Value < 0); }
    /// The tolerance that belongs to a length of this size: a thousand units in its last place, never 0. A length
    /// beyond 1001 times k_InfiniteUnit is reported.
    Unit GetEpsilon() const;

    friend constexpr bool operator==(Unit a, Unit b) = default;
    friend constexpr bool operator>(Unit a, Unit b) { return a.m_Value > b.m_Value; }
    friend constexpr bool operator<(Unit a, Unit b) { return b > a; }
    friend constexpr bool operator<=(Unit a, Unit b) { return !(a > b); }
    friend constexpr bool operator>=(Unit a, Unit b) { return !(b > a); }

    friend constexpr Unit operator+(Unit a, Unit b) { return a.m_Value + b.m_Value; }
    friend constexpr Unit operator-(Unit a, Unit b) { return a.m_Value - b.m_Value; }
    friend constexpr Unit operator*(Unit a, double factor) { return a.m_Value * factor; }
    friend constexpr Unit operator*(double factor, Unit a) { return a * factor; }
    friend constexpr Unit operator/(Unit a, double divisor) { return a.m_Value / divisor; }
    friend constexpr double operator/(Unit a, Unit b) { return a.m_Value / b.m_Value; }

private:
    double m_Value = 0;
};

inline constexpr Unit k_Unit_0{0};
inline constexpr Unit k_NullUnit{0}; ///< the lower bound of what is a distance: expansions, running minima
inline constexpr Unit k_Unit_1{1};
inline constexpr Unit k_InfiniteUnit{DBL_MAX / 1000000}; ///< "nowhere"; leaves room to reckon with it

inline Unit Unit::GetEpsilon() const {
    QRL_ASSERT("Unit", "base::GetAbsOf_T (*this) <= DBL_MAX / 1000000 * 1001", GetAbs() <= k_InfiniteUnit * 1001);
    Unit lastPlace = GetAbs() * DBL_EPSILON;
    if (lastPlace == k_Unit_0)
        lastPlace = DBL_MIN;
    return lastPlace * 1000;
}

} // namespace geom

// A product of lengths is an area, so neither type is complete without the other.
#include "lib/math/geometry/Area.h"

#endif
