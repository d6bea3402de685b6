#include "fuzz/FuzzTarget.h"
#include "fuzz/ShapeChecks.h"
#include "lib/math/geometry/RoundCorner.h"
#include "lib/math/geometry/RoundedArcs.h"

/// A chain of arcs, of any numbers, is measured and cut, its corners are rounded, and it is closed to an outline.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    BeQuiet();
    InputBits bits(data, size);
    const auto takePoint = [&bits] { return geom::Point(bits.Take<double>(), bits.Take<double>()); };
    const geom::Unit radius = bits.Take<double>();
    const geom::Point first = takePoint();
    std::vector<geom::Arc> arcs;
    for (geom::Point start = first; !bits.IsEmpty() && arcs.size() < 8; start = arcs.back().GetEnd()) {
        const geom::Point end = bits.Take<uint8_t>() != 0 ? takePoint() : start;
        arcs.emplace_back(start, end, bits.Take<double>());
        CheckArc(arcs.back(), first, radius);
        const auto mode = arcs.size() % 2 == 0 ? geom::k_ShortWay : geom::k_LongWay;
        (void)geom::GetRoundCorner(arcs[arcs.size() / 2], arcs.back(), radius, mode, true);
    }
    for (const geom::Arc& arc : geom::GetRoundedArcs(arcs, radius, radius / 8, geom::k_Open))
        CheckArc(arc, first, radius);
    if (!arcs.empty())
        arcs.emplace_back(arcs.back().GetEnd(), first, bits.Take<double>());
    const geom::Box filter(first, radius);
    CheckOutline(geom::Polygon(arcs, true), filter);
    CheckOutline(geom::Polygon(filter, radius), filter);
    return 0;
}
