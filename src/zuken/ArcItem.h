#ifndef QRL_ZUKEN_ARCITEM_H
#define QRL_ZUKEN_ARCITEM_H

#include "blocks/FuncView.h"
#include "lib/math/geometry/Arc.h"

/// One `arc` of a line or an outline, with its lengths in the unit of the output. What isn't there is 0.
///
///     (arc CCW (r 70000)
///       (begin (pt 0 0 (width 12000)))
///       (center 0 1073741824)
///       (end (pt 70000 70000 (width 12000))))
///
/// `center` is no point. It leads from the begin to the centre, and counts the radius as `unitScale` units.
struct ArcItem {
    ArcItem(io::FuncView list, double coordScale, double unitScale);

    geom::Point GetCenter() const;
    geom::Arc GetArc() const { return geom::Arc(geom::Segment(begin, end), direction, GetCenter()); }

    geom::Direction direction; ///< clockwise for "CW", else counter-clockwise
    double radius;
    geom::Point begin;
    geom::Point end;
    double beginWidth = 0.0;
    double endWidth = 0.0;
    double centerX = 0.0; ///< unscaled, as is centerY
    double centerY = 0.0;
    double unitScale; ///< of `center`
};

#endif
