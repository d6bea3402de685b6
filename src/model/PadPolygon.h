#ifndef QRL_MODEL_PADPOLYGON_H
#define QRL_MODEL_PADPOLYGON_H

#include "lib/math/geometry/Polygon.h"
#include "model/BasePad.h"

/// An outline of straight and curved pieces, relative to the pad's origin.
class PadPolygon : public BasePad {
public:
    static constexpr uint32_t k_Kind = 2;

    PadPolygon(geom::Polygon padPolygon, uint32_t padKind, AString padName)
        : BasePad(padKind, std::move(padName)), polygon(std::move(padPolygon)) {}

    bool IsPolygon() const override { return true; }
    bool IsEqual(const BasePad& other) const override;

    geom::Polygon GetPolygon() const { return polygon; }

    geom::Polygon polygon;
};

#endif
