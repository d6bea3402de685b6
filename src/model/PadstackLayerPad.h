#ifndef QRL_MODEL_PADSTACKLAYERPAD_H
#define QRL_MODEL_PADSTACKLAYERPAD_H

#include <cstdint>

class BasePad;

/// The pad that a padstack has on one layer.
class PadstackLayerPad {
public:
    PadstackLayerPad(int32_t layerNumber, BasePad* layerPad, double firstValue, double padAngle, double secondValue)
        : layer(layerNumber), pad(layerPad), value1(firstValue), angle(padAngle), value2(secondValue) {}

    int32_t layer; ///< from 1
    BasePad* pad;  ///< null where the source names a pad that doesn't exist
    double value1; ///< copied along and compared, otherwise unused
    double angle;  ///< of the pad on this layer, in degrees
    double value2; ///< copied along and compared, otherwise unused
};

#endif
