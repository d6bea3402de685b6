#include "model/LoopPolygon.h"

#include "lib/math/geometry/Box.h"
#include "lib/math/geometry/Circle.h"
#include "lib/math/geometry/Rotation.h"
#include "model/PadCircle.h"
#include "model/PadObround.h"
#include "model/PadPolygon.h"
#include "model/PadRectangle.h"

namespace {

geom::Polygon GetTurnedRectangle(const PadRectangle& pad) {
    const geom::Box box(geom::Point(pad.offsetX, pad.offsetY), pad.width, pad.height);
    const geom::Rotation rotation(geom::k_Origin, geom::Angle(geom::k_Degrees, pad.angle));
    return geom::Polygon(box, 0).GetRotated(rotation);
}

} // namespace

bool AddLoopPolygon_G(const BasePad& shape, std::vector<geom::Polygon>& polygons) {
    if (const auto* polygon = dynamic_cast<const PadPolygon*>(&shape))
        polygons.push_back(polygon->polygon);
    else if (const auto* circle = dynamic_cast<const PadCircle*>(&shape))
        polygons.emplace_back(geom::Circle(geom::k_Origin, circle->diameter * 0.5));
    else if (const auto* rectangle = dynamic_cast<const PadRectangle*>(&shape))
        polygons.push_back(GetTurnedRectangle(*rectangle));
    else if (const auto* obround = dynamic_cast<const PadObround*>(&shape))
        polygons.emplace_back(geom::Box(geom::k_Origin, obround->width, obround->height), 0);
    else
        return false;
    return true;
}
