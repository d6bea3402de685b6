#ifndef QRL_MODEL_PADRECTANGLE_H
#define QRL_MODEL_PADRECTANGLE_H

#include "model/BasePad.h"

/// A rectangle about its offset.
class PadRectangle : public BasePad {
public:
    static constexpr uint32_t k_Kind = 1;

    PadRectangle(double padWidth, double padHeight, double padAngle, uint32_t padKind, AString padName)
        : BasePad(padKind, std::move(padName)), width(padWidth), height(padHeight), angle(padAngle) {}

    bool IsRectangle() const override { return true; }
    /// The angle doesn't matter either.
    bool IsEqual(const BasePad& other) const override;

    double width;
    double height;
    double angle; ///< degrees, as read
};

#endif
