#ifndef QRL_ZUKEN_LINEBUILDER_H
#define QRL_ZUKEN_LINEBUILDER_H

#include "model/CornerRound.h"
#include "model/PathVertex.h"
#include "model/RecordPool_T.h"
#include "model/Trace.h"
#include "zuken/ArcItem.h"

#include <cstddef>
#include <vector>

/// Cuts a line, of which points and arcs come in order, into traces of one width each.
class LineBuilder {
public:
    LineBuilder(RecordPool_T<Trace>& traces, const AString& layerName, Net* net)
        : m_Traces(traces), m_LayerName(layerName), m_Net(net) {
        m_Vertices.reserve(k_UsualVertices);
    }

    /// The width that runs at the end of the line so far; 0 ahead of the first.
    double GetWidth() const { return m_Width; }

    /// Asks for an arc of `radius` in place of the corner at `corner`. It is made when the trace is closed.
    void AddCornerRound(geom::Point corner, double radius);
    /// Goes on straight to `point`, with `width` from there.
    void AddPoint(geom::Point point, double width);
    /// Goes on straight to the begin of `arc`, and along it. Where the width changes at the begin, the trace is closed
    /// with two vertices there and the next one starts at the arc's end; the roundings wait for the next trace. That
    /// is the format's established behaviour.
    void AddArc(const ArcItem& arc);
    /// Closes the last trace, which may be empty.
    void Finish();

private:
    static constexpr size_t k_UsualVertices = 16; ///< most lines have no more, and need no second piece of memory

    bool IsCutBy(double width) const;
    void AddVertex(geom::Point point, double height, double width);
    void CloseTrace();
    void RoundCorners();

    RecordPool_T<Trace>& m_Traces;
    const AString& m_LayerName;
    Net* m_Net;
    std::vector<PathVertex> m_Vertices; ///< of the open trace
    std::vector<CornerRound> m_Rounds;  ///< that are still to be made
    double m_Width = 0.0;
};

#endif
