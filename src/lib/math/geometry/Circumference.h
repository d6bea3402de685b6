#ifndef QRL_LIB_MATH_GEOMETRY_CIRCUMFERENCE_H
#define QRL_LIB_MATH_GEOMETRY_CIRCUMFERENCE_H

#include "lib/math/geometry/Circle.h"

#include <cstdint>

namespace geom {

struct ArcPairResult;

/// No, one or two points. They are filled from the front: a second one never stands alone.
struct PointPairResult {
    std::uint32_t m_Success1 = 0; ///< 1 when m_Point1 holds, otherwise 0
    Point m_Point1;
    std::uint32_t m_Success2 = 0; ///< 1 when m_Point2 holds, otherwise 0
    Point m_Point2;
};

/// The outline of a circle: the same data as Circle, with other questions.
class Circumference {
public:
    /// A negative radius is reported and kept.
    Circumference(Point center, Unit radius);
    explicit Circumference(const Circle& circle) : m_Center(circle.GetCenter()), m_Radius(circle.GetRadius()) {}

    Point GetCenter() const { return m_Center; }
    Unit GetRadius() const { return m_Radius; }

    // What the outline has in common with its disc.
    Box GetBox() const { return Circle(*this).GetBox(); }
    Unit GetEpsilon() const { return Circle(*this).GetEpsilon(); }
    Point GetPointAt(Azimuth azimuth) const { return Circle(*this).GetPointAt(azimuth); }
    Point GetNearestPoint(Point point) const { return Circle(*this).GetNearestPoint(point); }
    Unit GetSignedDistance(Point point) const { return Circle(*this).GetSignedDistance(point); }
    Point GetRadicalPoint(const Circumference& other) const { return Circle(*this).GetRadicalPoint(Circle(other)); }
    bool IsPoint(Unit accuracy, Point* center = nullptr) const { return Circle(*this).IsPoint(accuracy, center); }

    /// Whether `point` is at most `accuracy` away from the outline.
    bool Contains(Point point, Unit accuracy) const;
    /// The point between `point` and the outline; no success when `point` isn't on the outline within `accuracy`.
    PointResult GetCommonPoint(Point point, Unit accuracy) const;
    /// Whether the outlines meet, up to `accuracy`; one inside the other does not.
    bool Intersects(const Circumference& other, Unit accuracy) const;
    bool IntersectsLine(const Line& line, Unit accuracy) const;
    bool IntersectsSegment(const Segment& segment, Unit accuracy) const;
    /// Whether the outline meets the outline of `box`, up to `accuracy`, or the circle's leftmost point is in the box.
    bool IntersectsBox(const Box& box, Unit accuracy) const;
    /// Whether the bounds are equal within `accuracy`.
    bool IsEqualTo(const Circumference& other, Unit accuracy) const;

    /// The points where the line cuts or touches the outline, in the line's direction; one where two would be equal
    /// within `accuracy`.
    PointPairResult GetIntersections(const Line& line, Unit accuracy) const;
    /// The same for a segment.
    PointPairResult GetIntersections(const Segment& segment, Unit accuracy) const;
    /// What two outlines share: point-like arcs, or one full circle where they coincide within `accuracy`.
    ArcPairResult GetIntersections(const Circumference& other, Unit accuracy) const;

    /// The centre of a circle of `radius` that touches both outlines, from outside where the side flag is set and from
    /// inside otherwise. Of the two there are, k_CCW as `direction` picks the one on the left of the way from this
    /// centre to the other and k_CW that on its right; without two there is no success.
    PointResult GetTangentCenter(
        bool side1, const Circumference& other, bool side2, Unit radius, Direction direction) const;
    /// The centre of a circle of `radius` that touches the outline, from outside when `side1` is set, and the line, on
    /// its right when `side2` is set. `pick_first` takes the first of two in the line's direction.
    PointResult GetTangentCenter(bool side1, const Line& line, bool side2, bool pick_first, Unit radius) const;

private:
    Point m_Center;
    Unit m_Radius;
};

inline Circumference::Circumference(Point center, Unit radius) : m_Center(center), m_Radius(radius) {
    QRL_ASSERT("Circumference.h", "radius >= k_NullUnit", radius >= k_NullUnit);
}

inline Circle::Circle(const Circumference& circumference)
    : m_Center(circumference.GetCenter()), m_Radius(circumference.GetRadius()) {}

} // namespace geom

#endif
