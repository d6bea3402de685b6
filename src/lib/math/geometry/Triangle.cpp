#include "lib/math/geometry/Triangle.h"

namespace geom {

bool Triangle::IsDegenerate(Unit accuracy, Segment* longest) const {
    Segment side(m_P1, m_P2);
    for (const Segment& other : {Segment(m_P2, m_P3), Segment(m_P3, m_P1)})
        if (other.GetLengthSquare() > side.GetLengthSquare())
            side = other;
    if (!(2 * GetArea() <= side.GetLength() * accuracy))
        return false;
    if (longest != nullptr)
        *longest = side;
    return true;
}

} // namespace geom
