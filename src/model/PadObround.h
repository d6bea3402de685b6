#ifndef QRL_MODEL_PADOBROUND_H
#define QRL_MODEL_PADOBROUND_H

#include "lib/math/geometry/Polygon.h"
#include "model/BasePad.h"

/// A rectangle with round corners. The footprint reader makes none: an oblong of the source has a place of its own, and
/// becomes a polygon.
class PadObround : public BasePad {
public:
    PadObround(double padWidth, double padHeight, double padCornerRadius, uint32_t padKind, AString padName)
        : BasePad(padKind, std::move(padName)), width(padWidth), height(padHeight), cornerRadius(padCornerRadius) {}

    bool IsObround() const override { return true; }
    bool IsEqual(const BasePad& other) const override;

    /// The outline about the pad's origin: a box, grown by the corner radius with round corners. The box is the pad
    /// less the corner diameter, but at least a line or a point, so that a corner radius of more than half of the
    /// shorter side gives an outline that is larger than the pad.
    geom::Polygon GetOutline() const;

    double width;
    double height;
    double cornerRadius;
};

#endif
