#ifndef QRL_MODEL_PADCIRCLE_H
#define QRL_MODEL_PADCIRCLE_H

#include "model/BasePad.h"

/// A disc about the pad's origin.
class PadCircle : public BasePad {
public:
    static constexpr uint32_t k_Kind = 0;

    PadCircle(double padDiameter, uint32_t padKind, AString padName)
        : BasePad(padKind, std::move(padName)), diameter(padDiameter) {}

    bool IsCircle() const override { return true; }
    bool IsEqual(const BasePad& other) const override;

    double diameter;
};

#endif
