#include "model/Net.h"

#include "lib/math/geometry/Polygon.h"
#include "model/Surface.h"
#include "model/Trace.h"
#include "model/Via.h"

#include <algorithm>
#include <utility>

namespace {

template <class Record>
int Copy_T(const std::vector<Record*>& records, std::vector<Record*>& out) {
    out = records;
    return static_cast<int>(out.size());
}

} // namespace

Net::Net(AString netName) : name(std::move(netName)) {}

int Net::GetVias(std::vector<Via*>& out) const { return Copy_T(vias, out); }

int Net::GetSurfaces(std::vector<Surface*>& out) const { return Copy_T(surfaces, out); }

int Net::GetTraces(std::vector<Trace*>& out) const { return Copy_T(traces, out); }

geom::Box Net::ComputeBox() const {
    geom::Box box;
    for (const Via* via : vias)
        box.Extend(via->location);
    for (const Surface* surface : surfaces)
        box.Extend(surface->outline.polygon.GetBox());
    for (size_t i = 0; i < traces.size(); ++i) {
        PrefetchTracesAfter(i);
        for (const PathVertex& vertex : traces[i]->vertices)
            box.Extend(geom::Point(vertex.x, vertex.y));
    }
    return box;
}

/// First the record, then the vertices that it leads to.
void Net::PrefetchTracesAfter(size_t index) const {
    constexpr size_t k_Ahead = 4;
    constexpr size_t k_Vertices = 8;
    if (index + 2 * k_Ahead >= traces.size())
        return;
    __builtin_prefetch(traces[index + 2 * k_Ahead]);
    const auto& vertices = traces[index + k_Ahead]->vertices;
    for (size_t i = 0; i < std::min(vertices.size(), k_Vertices); ++i)
        __builtin_prefetch(&vertices[i]);
}
