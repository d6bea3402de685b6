#ifndef QRL_MODEL_TRACE_H
#define QRL_MODEL_TRACE_H

#include "blocks/AString.h"
#include "model/PathVertex.h"

#include <memory_resource>
#include <vector>

class Net;

/// One line of constant width on one layer. It may have no vertices; it is not written then.
class Trace {
public:
    using allocator_type = std::pmr::polymorphic_allocator<>;

    /// Enters itself in `traceNet`, unless that is null. Keeps a copy of the vertices in `memory`.
    Trace(const std::vector<PathVertex>& traceVertices, AString layerName, Net* traceNet, allocator_type memory = {});
    Trace(const Trace&) = delete;
    Trace& operator=(const Trace&) = delete;
    ~Trace() = default;

    /// Replaces `out` by the vertices and returns their number.
    int GetVertices(std::vector<PathVertex>& out) const;
    AString GetLayer() const { return layer; }

    /// Gives the trace to a net and enters it there. Null changes nothing.
    void SetNet(Net* traceNet);

    std::pmr::vector<PathVertex> vertices;
    AString layer;
    Net* net = nullptr; ///< a trace without one is written nowhere
};

#endif
