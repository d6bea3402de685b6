#ifndef QRL_LIB_MATH_GEOMETRY_AZIMUTH_H
#define QRL_LIB_MATH_GEOMETRY_AZIMUTH_H

#include "lib/math/geometry/Angle.h"
#include "lib/math/geometry/Direction.h"

namespace geom {

/// A direction in the plane, counter-clockwise from the positive x axis. Kept in radians, from 0 up to 2 pi.
class Azimuth {
public:
    constexpr Azimuth() = default;
    /// The direction that many turns, in either sense, end in. A measure out of range is reported and gives 0.
    /// A negative value too small to matter beside 2 pi is stored as 2 pi.
    constexpr Azimuth(AngleMeasure measure, double value);
    /// The direction that the positive x axis has after being turned by `fromEast`.
    constexpr explicit Azimuth(Angle fromEast) : Azimuth(k_Radians, fromEast.GetValue(k_Radians)) {}

    /// The rotation from the positive x axis, 0 up to 2 pi.
    constexpr Angle GetAngle() const { return Angle(k_Radians, m_Value); }

    constexpr Azimuth GetOpposite() const;
    /// The rotation from this direction to `to`: 0 up to 2 pi for k_CCW, above -2 pi up to 0 for k_CW. Equal
    /// directions give 0 both ways. Any other sense is reported and treated as k_CCW.
    Angle GetAngleTo(Azimuth to, Direction direction) const;
    /// The angle between the two directions, 0 to pi.
    Angle GetShortestAngleTo(Azimuth to) const;
    /// The shorter rotation to `to`. Opposite directions turn clockwise and give -pi.
    Angle GetSignedShortestAngleTo(Azimuth to) const;
    double Cos() const { return GetAngle().Cos(); }
    double Sin() const { return GetAngle().Sin(); }

    friend constexpr bool operator==(Azimuth a, Azimuth b) = default;
    friend constexpr Azimuth operator+(Azimuth a, Angle turn) { return Azimuth(a.GetAngle() + turn); }
    friend constexpr Azimuth operator-(Azimuth a, Angle turn) { return Azimuth(a.GetAngle() - turn); }

private:
    static double Reduce(double radians);

    double m_Value = 0;
};

constexpr Azimuth::Azimuth(AngleMeasure measure, double value) {
    if (value == 0)
        return;
    const double radians = Angle(measure, value).GetValue(k_Radians);
    // The remainder of what is in range already is that number itself, so constants need no code at start-up.
    m_Value = radians > 0 && radians < k_TwoPi ? radians : Reduce(radians);
}

constexpr Azimuth Azimuth::GetOpposite() const {
    Azimuth opposite;
    opposite.m_Value = m_Value + k_Pi;
    if (opposite.m_Value >= k_TwoPi)
        opposite.m_Value -= k_TwoPi;
    return opposite;
}

inline constexpr Azimuth k_Azimuth_0{k_Degrees, 0};
inline constexpr Azimuth k_Azimuth_22_5{k_Degrees, 22.5};
inline constexpr Azimuth k_Azimuth_30{k_Degrees, 30};
inline constexpr Azimuth k_Azimuth_45{k_Degrees, 45};
inline constexpr Azimuth k_Azimuth_60{k_Degrees, 60};
inline constexpr Azimuth k_Azimuth_90{k_Degrees, 90};
inline constexpr Azimuth k_Azimuth_180{k_Degrees, 180};
inline constexpr Azimuth k_Azimuth_270{k_Degrees, 270};

inline constexpr Azimuth k_East{k_Degrees, 0};
inline constexpr Azimuth k_NorthEast{k_Degrees, 45};
inline constexpr Azimuth k_North{k_Degrees, 90};
inline constexpr Azimuth k_NorthWest{k_Degrees, 135};
inline constexpr Azimuth k_West{k_Degrees, 180};
inline constexpr Azimuth k_SouthWest{k_Degrees, 225};
inline constexpr Azimuth k_South{k_Degrees, 270};
inline constexpr Azimuth k_SouthEast{k_Degrees, 315};

inline Angle Azimuth::GetAngleTo(Azimuth to, Direction direction) const {
    QRL_ASSERT("Azimuth", "direction == k_CW || direction == k_CCW", direction == k_CW || direction == k_CCW);
    const Angle turn = (to.GetAngle() - GetAngle()).GetNormalised(k_Angle_0);
    return turn > k_Angle_0 && direction == k_CW ? turn - k_Angle_360 : turn;
}

inline Angle Azimuth::GetShortestAngleTo(Azimuth to) const {
    const Angle ccw = GetAngleTo(to, k_CCW);
    const Angle cw = -GetAngleTo(to, k_CW);
    return ccw > cw ? cw : ccw;
}

inline Angle Azimuth::GetSignedShortestAngleTo(Azimuth to) const {
    const Angle ccw = GetAngleTo(to, k_CCW);
    const Angle cw = -GetAngleTo(to, k_CW);
    QRL_ASSERT("Azimuth", "ccw >= k_Angle_0 && cw >= k_Angle_0", ccw >= k_Angle_0 && cw >= k_Angle_0);
    return cw > ccw ? ccw : -cw;
}

} // namespace geom

#endif
