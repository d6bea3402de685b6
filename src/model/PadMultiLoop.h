#ifndef QRL_MODEL_PADMULTILOOP_H
#define QRL_MODEL_PADMULTILOOP_H

#include "lib/math/geometry/Polygon.h"
#include "model/BasePad.h"

#include <vector>

/// A figure of several outlines, relative to the pad's origin: what a source pad of several shapes becomes.
class PadMultiLoop : public BasePad {
public:
    static constexpr uint32_t k_Kind = 7;

    PadMultiLoop(std::vector<geom::Polygon> padPolygons, uint32_t padKind, AString padName)
        : BasePad(padKind, std::move(padName)), polygons(std::move(padPolygons)) {}

    bool IsMultiLoop() const override { return true; }
    /// Always false, also for the pad itself: two pads of several outlines never count as the same.
    bool IsEqual(const BasePad& /*other*/) const override { return false; }

    /// Replaces `out` by the outlines and returns their number.
    int GetPolygons(std::vector<geom::Polygon>& out) const;

    std::vector<geom::Polygon> polygons;
};

#endif
