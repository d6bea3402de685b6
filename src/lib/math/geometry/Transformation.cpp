#include "lib/math/geometry/Transformation.h"

#include "lib/math/geometry/Line.h"
#include "lib/math/geometry/Rotation.h"
#include "lib/utils/Assert.h"

namespace geom {

Transformation::Transformation(Angle angle) : m_Angle(angle) { UpdateMatrix(); }

Transformation::Transformation(Angle angle, Point pivot) : Transformation(angle) {
    m_Translation = Vector(pivot) + ApplyToVector(-Vector(pivot));
}

Transformation::Transformation(const Rotation& rotation) : Transformation(rotation.GetAngle(), rotation.GetCenter()) {}

Transformation::Transformation(Azimuth axis) : m_Angle(axis.GetAngle() * 2), m_IsMirroring(true) { UpdateMatrix(); }

Transformation::Transformation(const Line& axis) : Transformation(axis.GetAzimuth()) {
    m_Translation = Vector(axis.GetNearestToOrigin()) * 2;
}

Azimuth Transformation::GetMirrorAxis() const {
    QRL_ASSERT("Transformation.h", "m_IsMirroring", m_IsMirroring);
    return Azimuth(m_Angle * 0.5);
}

Vector Transformation::ApplyToVector(Vector vector) const {
    if (HasIdentityLinearPart())
        return vector;
    return {m_M00 * vector.GetX() + m_M01 * vector.GetY(), m_M10 * vector.GetX() + m_M11 * vector.GetY()};
}

Point Transformation::ApplyToPoint(Point point) const { return Point(ApplyToVector(Vector(point)) + m_Translation); }

Azimuth Transformation::ApplyToAzimuth(Azimuth azimuth) const {
    if (HasIdentityLinearPart())
        return azimuth;
    if (!m_IsMirroring)
        return azimuth + m_Angle;
    const Azimuth axis = GetMirrorAxis();
    return axis + azimuth.GetAngleTo(axis, k_CCW);
}

// With R(t) a rotation and D the mirror in the x axis, a linear part is R(angle), or R(angle) D when it mirrors. As
// D R(t) = R(-t) D, a mirror that comes second turns the sign of the first angle.
Transformation Transformation::GetComposed(const Transformation& second) const {
    const Vector translation = second.ApplyToVector(m_Translation) + second.m_Translation;
    Transformation composed = HasIdentityLinearPart() ? second : *this;
    composed.m_Translation = translation;
    if (HasIdentityLinearPart() || second.HasIdentityLinearPart())
        return composed;
    composed.m_Scale = m_Scale * second.m_Scale;
    composed.m_IsMirroring = m_IsMirroring != second.m_IsMirroring;
    const Angle angle = second.m_IsMirroring ? second.m_Angle - m_Angle : second.m_Angle + m_Angle;
    composed.m_Angle = angle.GetNormalised(k_Angle_0);
    composed.UpdateMatrix();
    return composed;
}

void Transformation::UpdateMatrix() {
    const double c = m_Angle.Cos() * m_Scale;
    const double s = m_Angle.Sin() * m_Scale;
    m_M00 = c;
    m_M01 = m_IsMirroring ? s : -s;
    m_M10 = s;
    m_M11 = m_IsMirroring ? -c : c;
}

} // namespace geom
