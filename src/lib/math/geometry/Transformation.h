#ifndef QRL_LIB_MATH_GEOMETRY_TRANSFORMATION_H
#define QRL_LIB_MATH_GEOMETRY_TRANSFORMATION_H

#include "lib/math/geometry/Point.h"

namespace geom {

class Line;
class Rotation;

/// A similarity with an optional mirror: how placed footprints, pads and arcs move.
///
/// The linear part comes first, then the translation. The linear part is given by scale, angle and mirror; its matrix
/// is a cache of these three. A linear part that does nothing hands back its input, not multiplied by 1.
class Transformation {
public:
    /// The identity.
    Transformation() = default;
    explicit Transformation(Vector translation) : m_Translation(translation) {}
    /// A rotation about the origin.
    explicit Transformation(Angle angle);
    /// A rotation about `pivot`.
    Transformation(Angle angle, Point pivot);
    explicit Transformation(const Rotation& rotation);
    /// The mirror whose axis runs through the origin in the direction `axis`.
    explicit Transformation(Azimuth axis);
    /// The mirror whose axis is `axis`.
    explicit Transformation(const Line& axis);

    double GetScale() const { return m_Scale; }
    bool IsMirroring() const { return m_IsMirroring; }
    /// The direction of a mirror's axis. Asking a transformation that doesn't mirror is reported.
    Azimuth GetMirrorAxis() const;
    /// Exactly the identity, the translation included.
    bool IsIdentity() const { return HasIdentityLinearPart() && m_Translation.IsNull(); }

    /// The vector after the linear part alone.
    Vector ApplyToVector(Vector vector) const;
    Point ApplyToPoint(Point point) const;
    /// The direction that `azimuth` turns into.
    Azimuth ApplyToAzimuth(Azimuth azimuth) const;

    /// This transformation first, and `second` after it.
    Transformation GetComposed(const Transformation& second) const;
    Transformation& operator*=(const Transformation& second) { return *this = GetComposed(second); }

private:
    bool HasIdentityLinearPart() const { return m_Scale == 1 && !m_IsMirroring && m_Angle == k_Angle_0; }
    void UpdateMatrix();

    // x' = m_M00 x + m_M01 y, y' = m_M10 x + m_M11 y
    double m_M00 = 1;
    double m_M01 = 0;
    double m_M10 = 0;
    double m_M11 = 1;
    double m_Scale = 1;
    Angle m_Angle; ///< of the rotation; for a mirror twice the azimuth of its axis
    bool m_IsMirroring = false;
    Vector m_Translation;
};

} // namespace geom

#endif
