#include "lib/math/geometry/CircleSlice.h"

#include "lib/math/geometry/Triangle.h"
#include "lib/utils/Assert.h"

namespace geom {

Area CircleSlice::GetArea() const {
    const Point start = m_Arc.GetStart();
    const Point end = m_Arc.GetEnd();
    if (m_Arc.IsSegment(m_Arc.GetEpsilon()))
        return Triangle(start, m_Arc.GetMidPoint(), end).GetSignedArea();
    const Area ret = m_Arc.GetSectorArea() - Triangle(start, end, m_Arc.GetCenter()).GetSignedArea();
    QRL_ASSERT("PolyArc", "m_Arc.IsBig() || ret.GetAbs() <= m_Arc.GetStartEndSegment().GetLengthSquare()",
        m_Arc.IsBig() || ret.GetAbs() <= m_Arc.GetStartEndSegment().GetLengthSquare());
    return ret;
}

} // namespace geom
