#include "model/Trace.h"

#include "model/Net.h"

#include <utility>

Trace::Trace(const std::vector<PathVertex>& traceVertices, AString layerName, Net* traceNet, allocator_type memory)
    : vertices(traceVertices.begin(), traceVertices.end(), memory), layer(std::move(layerName)) {
    SetNet(traceNet);
}

int Trace::GetVertices(std::vector<PathVertex>& out) const {
    out.assign(vertices.begin(), vertices.end());
    return static_cast<int>(out.size());
}

void Trace::SetNet(Net* traceNet) {
    if (traceNet == nullptr)
        return;
    net = traceNet;
    net->AddTrace(this);
}
