#include "lib/math/geometry/Polygon.h"

#include "lib/utils/Assert.h"

#include <cmath>

namespace geom {

namespace {

PolyArc GetOriented(const PolyArc& closed, bool make_ccw) {
    return make_ccw && closed.GetArea() < k_Area_0 ? closed.GetReversed() : closed;
}

PolyArc GetDiscOutline(const Circle& circle) { return PolyArc(Circumference(circle), k_CCW, k_Azimuth_0); }

/// Two half circles about the ends, and the two sides between them. `left` and `right` are those of the segment.
///
///     startLeft <--- endLeft
///    (                      )
///     startRight --> endRight
PolyArc GetObround(const Segment& segment, Unit width) {
    if (width == k_Unit_0)
        return {k_Closed, segment};
    QRL_ASSERT("Polygon", "width > k_NullUnit", width > k_NullUnit);
    const Unit radius = width * 0.5;
    if (segment.IsPoint(k_Unit_0))
        return GetDiscOutline(Circle(segment.GetStart(), radius));
    const Vector left = segment.GetVector().GetNormal(radius);
    const Point startLeft = segment.GetStart() + left;
    const Point startRight = segment.GetStart() - left;
    const Point endRight = segment.GetEnd() - left;
    const Point endLeft = segment.GetEnd() + left;
    return {k_Closed, std::vector<Arc>{
                          Arc(startLeft, startRight, -radius),
                          Arc(Segment(startRight, endRight)),
                          Arc(endRight, endLeft, -radius),
                          Arc(Segment(endLeft, startLeft)),
                      }};
}

/// The height of a quarter circle is its radius less the distance of its chord: r (1 - 1 / sqrt(2)).
Unit GetQuarterCircleHeight(Unit radius) {
    static const double k_Factor = 1 - 1 / std::sqrt(2.0);
    return radius * k_Factor;
}

/// Four quarter circles and the four sides between them, from the right end of the first corner on.
PolyArc GetRoundedBox(const Box& box, Unit radius) {
    const Unit height = -GetQuarterCircleHeight(radius);
    const Unit x1 = box.GetXRange().GetMin();
    const Unit x2 = box.GetXRange().GetMax();
    const Unit y1 = box.GetYRange().GetMin();
    const Unit y2 = box.GetYRange().GetMax();
    const Point rightTop(x2 + radius, y2);
    const Point topRight(x2, y2 + radius);
    const Point topLeft(x1, y2 + radius);
    const Point leftTop(x1 - radius, y2);
    const Point leftBottom(x1 - radius, y1);
    const Point bottomLeft(x1, y1 - radius);
    const Point bottomRight(x2, y1 - radius);
    const Point rightBottom(x2 + radius, y1);
    return {k_Closed, std::vector<Arc>{
                          Arc(rightTop, topRight, height),
                          Arc(topRight, topLeft, k_NullUnit),
                          Arc(topLeft, leftTop, height),
                          Arc(leftTop, leftBottom, k_NullUnit),
                          Arc(leftBottom, bottomLeft, height),
                          Arc(bottomLeft, bottomRight, k_NullUnit),
                          Arc(bottomRight, rightBottom, height),
                          Arc(rightBottom, rightTop, k_NullUnit),
                      }};
}

PolyArc GetBoxOutline(const Box& box, Unit expansion) {
    if (box.IsEmpty())
        return PolyArc(k_Closed);
    Segment diagonal;
    if (box.IsSegment(k_Unit_0, &diagonal))
        return GetObround(diagonal, expansion * 2);
    if (expansion == k_Unit_0)
        return {k_Closed, box.GetEdges(k_CCW)};
    return GetRoundedBox(box, expansion);
}

} // namespace

Polygon::Polygon(const std::vector<Arc>& arcs, bool make_ccw)
    : PolyArc(GetOriented(PolyArc(k_Closed, arcs), make_ccw)) {}

Polygon::Polygon(const std::vector<Point>& vertices, bool make_ccw)
    : PolyArc(GetOriented(PolyArc(k_Closed, vertices), make_ccw)) {}

Polygon::Polygon(const Circle& circle) : PolyArc(GetDiscOutline(circle)) {}

Polygon::Polygon(const Box& box, Unit expansion) : PolyArc(GetBoxOutline(box, expansion)) {}

Polygon::Polygon(const Segment& segment, Unit width) : PolyArc(GetObround(segment, width)) {}

bool Polygon::IsCircle(Unit accuracy, Circle* circle) const {
    if (empty())
        return false;
    if (!circle)
        return PolyArc::IsCircle(accuracy);
    Circumference circumference(k_Origin, k_Unit_0);
    if (!PolyArc::IsCircle(accuracy, &circumference))
        return false;
    *circle = Circle(circumference);
    return true;
}

} // namespace geom
