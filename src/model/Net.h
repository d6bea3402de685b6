#ifndef QRL_MODEL_NET_H
#define QRL_MODEL_NET_H

#include "blocks/AString.h"
#include "lib/math/geometry/Box.h"

#include <cstddef>
#include <set>
#include <vector>

class Surface;
class Trace;
class Via;

/// One electrical net, with all that the board lays out for it. The layout records enter themselves when they are
/// made; the net owns none of them.
class Net {
public:
    /// The name of the net that takes in all that is on none.
    static constexpr char k_NoNet[] = "ZUKEN_DUMMY";

    explicit Net(AString netName);
    Net(const Net&) = delete;
    Net& operator=(const Net&) = delete;
    ~Net() = default;

    const AString& GetName() const { return name; }
    /// Each replaces `out` by the records and returns their number.
    int GetVias(std::vector<Via*>& out) const;
    int GetSurfaces(std::vector<Surface*>& out) const;
    int GetTraces(std::vector<Trace*>& out) const;
    /// The box around the places of the vias, the outlines of the surfaces and the vertices of the traces, taken as
    /// points: neither their widths nor their arcs count. Empty for a net without any.
    geom::Box ComputeBox() const;

    /// For a walk over the traces, at `index` now. They lie all over memory, since the file is ordered by layers, so
    /// those that come next are asked for ahead of time.
    void PrefetchTracesAfter(size_t index) const;

    void AddVia(Via* via) { vias.push_back(via); }
    void AddSurface(Surface* surface) { surfaces.push_back(surface); }
    void AddTrace(Trace* trace) { traces.push_back(trace); }
    /// Notes a connected pin, "U1.3" for the pin of index 3. A pin that is noted already stays.
    void AddPinRef(const AString& text) { pinRefs.insert(text); }

    AString name;
    std::vector<Via*> vias;
    std::vector<Surface*> surfaces;
    std::vector<Trace*> traces;
    std::set<AString> pinRefs; ///< in the order of text, so that U1.10 stands ahead of U1.2
};

#endif
