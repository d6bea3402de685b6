#ifndef QRL_MODEL_TRACE_H
#define QRL_MODEL_TRACE_H

#include "blocks/AString.h"
#include "model/PathVertex.h"

#include <vector>

class Net;

/// One line of constant width on one layer. It may have no vertices; it is not written then.
class Trace {
public:
    /// Enters itself in `traceNet`, unless that is null.
    Trace(std::vector<PathVertex> traceVertices, AString layerName, Net* traceNet);
    Trace(const Trace&) = delete;
    Trace& operator=(const Trace&) = delete;
    ~Trace() = default;

    /// Replaces `out` by the vertices and returns their number.
    int GetVertices(std::vector<PathVertex>& out) const;
    AString GetLayer() const { return layer; }

    /// Gives the trace to a net and enters it there. Null changes nothing.
    void SetNet(Net* traceNet);

    std::vector<PathVertex> vertices;
    AString layer;
    Net* net = nullptr; ///< a trace without one is written nowhere
};

#endif
