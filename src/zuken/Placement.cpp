#include "zuken/Placement.h"

#include "lib/math/geometry/Angle.h"
#include "lib/math/geometry/Line.h"

namespace {

constexpr double k_FullTurn = 360.0; ///< degrees

} // namespace

geom::Transformation GetPlacement_G(geom::Point location, double degrees, bool isMirrored) {
    const geom::Angle angle(geom::k_Degrees, isMirrored ? k_FullTurn - degrees : degrees);
    geom::Transformation placement{geom::Vector(location)};
    placement *= geom::Transformation(angle, location);
    if (isMirrored)
        placement *= geom::Transformation(geom::Line(location, geom::Point(location.GetX(), geom::k_InfiniteUnit)));
    return placement;
}
