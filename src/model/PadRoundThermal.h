#ifndef QRL_MODEL_PADROUNDTHERMAL_H
#define QRL_MODEL_PADROUNDTHERMAL_H

#include "model/BasePad.h"

/// A thermal relief: a ring that bridges cross. Its numbers are kept as they were read; nobody draws the bridges.
class PadRoundThermal : public BasePad {
public:
    static constexpr uint32_t k_Kind = 6;

    PadRoundThermal(double padOuterRadius, double padInnerRadius, int32_t padBridgeCount, double padBridgeWidth,
        double padBridgeAngle, AString padName)
        : BasePad(k_Kind, std::move(padName)), outerRadius(padOuterRadius), innerRadius(padInnerRadius),
          bridgeCount(padBridgeCount), bridgeWidth(padBridgeWidth), bridgeAngle(padBridgeAngle) {}

    bool IsRoundThermal() const override { return true; }
    bool IsEqual(const BasePad& other) const override;

    double outerRadius;
    double innerRadius;
    int32_t bridgeCount;
    double bridgeWidth;
    double bridgeAngle; ///< degrees, as read
};

#endif
