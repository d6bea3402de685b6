#ifndef QRL_LIB_MATH_GEOMETRY_VECTOR_H
#define QRL_LIB_MATH_GEOMETRY_VECTOR_H

#include "lib/math/geometry/Angle.h"
#include "lib/math/geometry/Area.h"
#include "lib/math/geometry/Azimuth.h"
#include "lib/math/geometry/Unit.h"

namespace geom {

class Point;

/// A displacement in the plane, in the caller's unit.
///
/// A vector along an axis takes its length and its direction from one coordinate, without a root or an arc tangent, so
/// that these answers carry no rounding.
class Vector {
public:
    constexpr Vector() = default;
    constexpr Vector(Unit x, Unit y) : m_X(x), m_Y(y) {}
    /// The way from `from` to `to`.
    constexpr Vector(Point from, Point to);
    /// The way from the origin to `point`.
    constexpr explicit Vector(Point point);
    Vector(Azimuth azimuth, Unit length) : m_X(length * azimuth.Cos()), m_Y(length * azimuth.Sin()) {}

    constexpr Unit GetX() const { return m_X; }
    constexpr Unit GetY() const { return m_Y; }

    /// Both coordinates exactly 0.
    constexpr bool IsNull() const { return m_X == k_Unit_0 && m_Y == k_Unit_0; }
    /// Whether the two enclose less than a right angle; a null vector encloses none.
    constexpr bool IsSameWayAs(Vector other) const { return GetScalarProductWith(other) > k_NullArea; }

    constexpr Area GetLengthSquare() const { return m_X * m_X + m_Y * m_Y; }
    Unit GetAbs() const;
    constexpr Area GetScalarProductWith(Vector other) const { return m_Y * other.m_Y + m_X * other.m_X; }
    /// Positive when `other` lies counter-clockwise of this vector.
    constexpr Area GetVectorProductWith(Vector other) const { return m_X * other.m_Y - m_Y * other.m_X; }

    /// The same direction with another length; a negative one turns it round. A null vector is reported and stays.
    Vector GetWithLength(Unit length) const;
    /// Turned 90 degrees counter-clockwise, with the given length.
    Vector GetNormal(Unit length) const { return Vector(-m_Y, m_X).GetWithLength(length); }
    Vector GetRotated(Angle angle) const;
    Vector GetRotatedBack(Angle angle) const { return GetRotated(-angle); }

    /// The direction; that of a null vector is reported, and is k_Azimuth_0.
    Azimuth GetAzimuth() const;
    /// The same without reports, for line normals, which are never null; a null vector gives k_Azimuth_270.
    Azimuth GetAzimuthUnchecked() const;
    /// 1 to 4, counter-clockwise; each holds the half axis at its start. The null vector is in 1.
    int GetQuadrant() const;
    /// y / x; 0 for a vertical vector.
    double GetSlope() const { return m_X == k_Unit_0 ? 0 : m_Y / m_X; }
    /// x / y; 0 for a horizontal vector.
    double GetInverseSlope() const { return m_Y == k_Unit_0 ? 0 : m_X / m_Y; }

    friend constexpr bool operator==(Vector a, Vector b) = default;
    friend constexpr Vector operator-(Vector v) { return {-v.m_X, -v.m_Y}; }
    friend constexpr Vector operator+(Vector a, Vector b) { return {a.m_X + b.m_X, a.m_Y + b.m_Y}; }
    friend constexpr Vector operator*(Vector v, double factor) { return {v.m_X * factor, v.m_Y * factor}; }
    friend constexpr Vector operator*(double factor, Vector v) { return v * factor; }

private:
    Unit m_X;
    Unit m_Y;
};

inline constexpr Vector k_NullVector{0, 0};
inline constexpr Vector k_UnitVectorX{1, 0};
inline constexpr Vector k_UnitVectorY{0, 1};

} // namespace geom

#endif
