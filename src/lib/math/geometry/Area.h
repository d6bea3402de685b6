#ifndef QRL_LIB_MATH_GEOMETRY_AREA_H
#define QRL_LIB_MATH_GEOMETRY_AREA_H

#include "lib/math/geometry/Unit.h"
#include "lib/utils/Assert.h"

#include <cmath>

namespace geom {

/// A squared length in the square of the caller's unit: areas, squared distances, scalar and vector products.
///
/// Signed. Comparisons are exact, and treat a NaN as those of Unit do.
class Area {
public:
    constexpr Area() = default;
    constexpr explicit Area(double value) : m_Value(value) {}

    constexpr explicit operator double() const { return m_Value; }

    constexpr Area& operator+=(Area other);
    constexpr Area operator-() const { return Area(-m_Value); }

    /// The value, negated when it is below 0.
    constexpr Area GetAbs() const { return base::GetAbsOf_T(*this); }
    /// -1, 0 or 1; 0 for a NaN.
    constexpr int GetSign() const { return (m_Value > 0) - (m_Value < 0); }
    /// The length whose square this is, exact for 1 and 4. A negative area is reported and has the root 0.
    Unit GetSquareRoot() const;

    friend constexpr bool operator==(Area a, Area b) = default;
    friend constexpr bool operator>(Area a, Area b) { return a.m_Value > b.m_Value; }
    friend constexpr bool operator<(Area a, Area b) { return b > a; }
    friend constexpr bool operator<=(Area a, Area b) { return !(a > b); }
    friend constexpr bool operator>=(Area a, Area b) { return !(b > a); }

    friend constexpr Area operator+(Area a, Area b) { return Area(a.m_Value + b.m_Value); }
    friend constexpr Area operator-(Area a, Area b) { return Area(a.m_Value - b.m_Value); }
    friend constexpr Area operator*(Area a, double factor) { return Area(a.m_Value * factor); }
    friend constexpr Area operator*(double factor, Area a) { return a * factor; }
    friend constexpr double operator/(Area a, Area b) { return a.m_Value / b.m_Value; }
    friend constexpr Unit operator/(Area a, Unit b) { return Unit(a.m_Value / double(b)); }

private:
    double m_Value = 0;
};

inline constexpr Area k_Area_0{0};
inline constexpr Area k_NullArea{0};
inline constexpr Area k_InfiniteArea{double(k_InfiniteUnit)};

constexpr Area& Area::operator+=(Area other) {
    m_Value += other.m_Value;
    return *this;
}

inline Unit Area::GetSquareRoot() const {
    QRL_ASSERT("Area", "m_Value >= 0", m_Value >= 0);
    if (0 >= m_Value)
        return k_Unit_0;
    if (m_Value == 1)
        return 1;
    if (m_Value == 4)
        return 2;
    return std::sqrt(m_Value);
}

constexpr Area operator*(Unit a, Unit b) { return Area(double(a) * double(b)); }

constexpr Area Unit::GetSquare() const { return *this * *this; }

} // namespace geom

#endif
