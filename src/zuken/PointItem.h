#ifndef QRL_ZUKEN_POINTITEM_H
#define QRL_ZUKEN_POINTITEM_H

#include "blocks/FuncView.h"
#include "lib/math/geometry/Point.h"

#include <optional>

/// One `pt` of a line or an outline, with its lengths in the unit of the output. A coordinate that isn't there is 0.
///
///     (pt 4643068 9825000 (tarc (r 30000)) (width 15000))
struct PointItem {
    PointItem(io::FuncView list, double scale);

    geom::Point point;
    std::optional<double> cornerRadius; ///< of the arc that is wanted in place of the corner
    std::optional<double> width;        ///< of the line from here on
};

#endif
