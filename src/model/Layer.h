#ifndef QRL_MODEL_LAYER_H
#define QRL_MODEL_LAYER_H

#include "blocks/AString.h"

#include <cstdint>
#include <set>

/// A layer of the board's stackup, or a bond wire layer.
class Layer {
public:
    enum Type : uint32_t {
        k_Conductive = 0, ///< a plain conductive layer
        k_Plane = 1,      ///< a conductive plane layer
        k_Bondwire = 2,   ///< holds the bond wires of one number
    };

    Layer(AString layerName, int32_t layerNumber, uint32_t layerType, double layerThickness)
        : name(std::move(layerName)), number(layerNumber), type(layerType), thickness(layerThickness) {}
    Layer(const Layer&) = delete;
    Layer& operator=(const Layer&) = delete;
    virtual ~Layer() = default;

    virtual bool IsFPLayer() const { return false; }
    const AString& GetName() const { return name; }

    AString name;       ///< "Conductive_3", "bondwire_2", or the footprint layer's own
    int32_t number;     ///< as the board counts, or the bond wire number; footprint layers count from 1
    uint32_t type;      ///< a `Type`
    double thickness;   ///< 0: no file tells it in a way that is used
    AString signalName; ///< the net that fills a full plane; empty otherwise
};

/// A conductive layer of the footprint file, which stands for one or more of the board.
class FPLayer : public Layer {
public:
    using Layer::Layer;

    bool IsFPLayer() const override { return true; }

    std::set<int32_t> conductiveNumbers; ///< numbers of the board's layers that this one stands for
};

#endif
