#ifndef QRL_LIB_MATH_GEOMETRY_ARC_H
#define QRL_LIB_MATH_GEOMETRY_ARC_H

#include "lib/math/geometry/Circumference.h"

#include <cstdint>

namespace geom {

class Rotation;
class Transformation;

/// The one curve of the kernel: a straight piece, a circular arc, a full circle or a single point.
///
/// An arc is kept by its two ends and its signed height, the distance from the middle of the chord to the middle of
/// the arc; centre and radius are derived when asked for. So consecutive arcs of a chain share their end points bit
/// for bit, and go on doing so when they are moved.
///
///     straight piece   ends differ   height 0
///     half circle      ends differ   height is half the chord, exactly
///     big arc          ends differ   height is more than half the chord: more than half a circle
///     full circle      ends equal    height is the diameter; the centre azimuth tells where the centre lies
///     point            ends equal    height 0
///
/// A height above 0 is a clockwise arc, which bulges to the left of the way from start to end; a height below 0 is a
/// counter-clockwise one, which bulges to the right. A copy is six numbers.
class Arc {
public:
    /// A point at the origin.
    constexpr Arc() = default;
    constexpr explicit Arc(const Segment& segment) : m_Start(segment.GetStart()), m_End(segment.GetEnd()) {}
    constexpr Arc(Point start, Point end, Unit height) : m_Start(start), m_End(end), m_Height(height) {}
    /// The full circle that starts and ends at `azimuth` of the circumference. One of radius 0 gives its centre as a
    /// point. A sense that is neither k_CCW nor k_CW is reported and taken as k_CW.
    Arc(const Circumference& circumference, Azimuth azimuth, Direction direction);
    /// From `p1` through `p2` to `p3`. Collinear points give the straight piece from `p1` to `p3`.
    Arc(Point p1, Point p2, Point p3);
    /// Between the ends of `segment`, around `center`. The ends are kept as they are and need not be equally far from
    /// the centre: the radius is the mean of their distances, and never below half the chord. A centre
    /// that lies a third of the chord or more off the chord's bisector is reported. Equal ends give a full circle,
    /// which is reported too.
    Arc(const Segment& segment, Direction direction, Point center);

    constexpr Point GetStart() const { return m_Start; }
    constexpr Point GetEnd() const { return m_End; }
    constexpr Unit GetHeight() const { return m_Height; }
    /// Of a full circle the direction from the start to the centre; of all else k_Azimuth_0.
    constexpr Azimuth GetCenterAzimuth() const { return m_CenterAzimuth; }
    /// The chord.
    constexpr Segment GetStartEndSegment() const { return Segment(m_Start, m_End); }

    /// Whether the arc stays within `accuracy` of its chord, which then goes to `segment` unless that is null.
    /// With `accuracy` 0: whether it is straight.
    bool IsSegment(Unit accuracy, Segment* segment = nullptr) const;
    /// Whether it is straight and its ends are equal, both within `accuracy`. The start then goes to `point`.
    bool IsPoint(Unit accuracy, Point* point = nullptr) const;
    /// Whether the ends are exactly equal: a full circle, or a point, which is a circle of radius 0.
    bool IsCircle(Circumference* circumference = nullptr) const;
    /// Whether it is a circle and no point.
    bool IsFullCircle(Circumference* circumference = nullptr) const;
    /// Whether it is more than half a circle. Decided on squares, without a root; exactly half a circle isn't big.
    bool IsBig() const;
    /// A straight piece is reported and isn't counter-clockwise.
    bool IsCCW() const;
    /// k_NoDirection for a straight piece.
    Direction GetDirection() const;
    /// All six numbers are exactly the same.
    friend constexpr bool operator==(const Arc& a, const Arc& b) = default;

    /// The circle that the arc lies on. A point gives itself with radius 0; a straight piece is reported and has no
    /// finite one.
    Circumference GetCircumference() const;
    Point GetCenter() const { return GetCircumference().GetCenter(); }
    /// From the chord c and the height h by Pythagoras: r^2 = (c/2)^2 + (r - h)^2, so r = (c^2 / 4h + h) / 2.
    Unit GetRadius() const;
    /// The angle that the radius sweeps from start to end, counter-clockwise positive; 0 for a straight piece.
    Angle GetSweep() const;
    /// The area between the arc and its centre, with the sign of the sweep: k_NullArea for a point, k_InfiniteArea
    /// for a straight piece.
    Area GetSectorArea() const;

    /// The smallest box around the arc.
    Box GetBox() const;
    /// A box around the arc that costs no centre: the chord's, grown by the height.
    Box GetLooseBox() const;
    /// The tolerance that belongs to the arc's place and size.
    Unit GetEpsilon() const { return GetBox().GetEpsilon(); }

    /// The direction from the centre to that end. A straight piece is reported.
    Azimuth GetStartRadial() const;
    Azimuth GetEndRadial() const;
    /// The direction of travel at that end. A point is reported and gives k_Azimuth_0.
    Azimuth GetStartTangent() const;
    Azimuth GetEndTangent() const;

    /// The point halfway along, with the same bits for the arc and for its reverse.
    Point GetMidPoint() const;
    /// The point at the fraction `t` of the way; exactly the ends at 0 and 1 and GetMidPoint at 0.5.
    Point GetPointAt(double t) const;
    /// The fraction of the way at which the radius through `point` (for a straight piece the foot of `point`) lies. It
    /// isn't clamped. A point within `accuracy` of an end, or of that end's radius, has that end's fraction 0 or 1;
    /// one within `accuracy` of the centre has 0.
    double GetParameter(Point point, Unit accuracy) const;
    /// The fraction of the way at which the radius points to `azimuth`: 0 at the start and growing along the arc, past
    /// 1 behind its end. A straight piece is reported.
    double GetParameterOfAzimuth(Azimuth azimuth) const;

    /// Whether `point` is in the wedge between the radii to both ends, or within `accuracy` of it. The wedge has no
    /// outer border. Every point is in a circle's; in a straight piece's are those with a foot in its span.
    bool IsInSector(Point point, Unit accuracy) const;
    /// Whether the ray from `center` through `point` is met when turning in the sense `direction` from the ray
    /// through `start` to the one through `end`, both included. Exact: it takes orientations only. A ray that is
    /// collinear with a border where the sweep is half a turn or more counts as met. `direction` is k_CCW or k_CW;
    /// anything else is reported.
    static bool IsInSweep(Point start, Point end, Point center, Direction direction, Point point);
    /// Whether the curve comes within `accuracy` of `box` or its inside. An empty box is met by nothing, and one beyond
    /// the loose box only by what is straight within `accuracy`, or by an end.
    bool IntersectsBox(const Box& box, Unit accuracy) const;
    /// Whether the curve comes within `accuracy` of `segment`.
    bool IntersectsSegment(const Segment& segment, Unit accuracy) const;

    /// The same way travelled backwards.
    Arc GetReversed() const;
    /// Both ends go through the transformation; a mirror turns the sense round.
    Arc GetTransformed(const Transformation& transformation) const;
    Arc GetRotated(const Rotation& rotation) const;
    /// The rest of the circle, from the end on to the start in the same sense. A full circle leaves the point at its
    /// start. A straight piece is reported.
    Arc GetComplement() const;
    /// The same curve from another start: any arc but a full circle keeps its end and its height, a full circle moves.
    Arc GetWithStart(Point start) const;
    /// The part between two fractions of the way, travelled backwards when `t1` is above `t2`. Both the same: a point.
    Arc GetSubArc(double t1, double t2) const;

private:
    bool IsHalfCircle() const;
    void CloseAround(Point center, Direction direction);
    void BendAround(Point center, Direction direction);
    Azimuth GetRadialTo(Point end) const;
    Azimuth GetTangentAt(Point end) const;
    Box GetCurvedBox() const;

    Point m_Start;
    Point m_End;
    Unit m_Height;
    Azimuth m_CenterAzimuth;
};

/// An arc that may not exist; all zero when it doesn't.
struct ArcResult {
    std::uint32_t m_Success = 0;
    Arc m_Arc; ///< holds when m_Success is 1
};

/// No, one or two arcs, filled from the front: what two circumferences have in common.
struct ArcPairResult {
    std::uint32_t m_Success1 = 0;
    Arc m_Arc1; ///< holds when m_Success1 is 1; a common point is point-like, coinciding ones give a full circle
    std::uint32_t m_Success2 = 0;
    Arc m_Arc2; ///< holds when m_Success2 is 1
};

inline bool Arc::IsCCW() const {
    QRL_ASSERT("Arc.h", "m_Height != k_Unit_0", m_Height != k_Unit_0);
    return k_Unit_0 > m_Height;
}

} // namespace geom

#endif
