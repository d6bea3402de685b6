#ifndef QRL_MODEL_SURFACE_H
#define QRL_MODEL_SURFACE_H

#include "blocks/AString.h"
#include "model/SurfaceLoop.h"

#include <vector>

class Net;

/// One filled shape on one layer, with what is cut out of it.
class Surface {
public:
    /// Enters itself in `surfaceNet`, unless that is null.
    Surface(Net* surfaceNet, AString layerName, geom::Polygon polygon);
    Surface(const Surface&) = delete;
    Surface& operator=(const Surface&) = delete;
    ~Surface() = default;

    SurfaceLoop GetOutline() const { return outline; }
    /// Replaces `out` by the voids and returns their number.
    int GetVoids(std::vector<SurfaceLoop>& out) const;
    AString GetLayer() const { return layer; }

    void AddVoid(const geom::Polygon& polygon, double halfWidth) { voids.push_back({polygon, halfWidth}); }

    SurfaceLoop outline;
    std::vector<SurfaceLoop> voids; ///< in the file's order
    AString layer;
    Net* net;
};

#endif
