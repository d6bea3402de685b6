#include "model/Trace.h"

#include "model/Net.h"

#include <utility>

Trace::Trace(std::vector<PathVertex> traceVertices, AString layerName, Net* traceNet)
    : vertices(std::move(traceVertices)), layer(std::move(layerName)) {
    SetNet(traceNet);
}

int Trace::GetVertices(std::vector<PathVertex>& out) const {
    out = vertices;
    return static_cast<int>(out.size());
}

void Trace::SetNet(Net* traceNet) {
    if (traceNet == nullptr)
        return;
    net = traceNet;
    net->AddTrace(this);
}
