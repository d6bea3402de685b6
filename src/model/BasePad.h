#ifndef QRL_MODEL_BASEPAD_H
#define QRL_MODEL_BASEPAD_H

#include "blocks/AString.h"

#include <cstdint>
#include <utility>

/// One named copper figure: what a padstack puts on a layer.
///
/// Which figure it is tell the kind tests and a checked downcast; `kind` numbers the figures, and nothing
/// branches on it. Lengths are in the unit of the model. The offsets place the figure's centre relative to the pad's
/// origin; only a rectangle of the source has some.
class BasePad {
public:
    BasePad(const BasePad&) = delete;
    BasePad& operator=(const BasePad&) = delete;
    virtual ~BasePad() = default;

    virtual bool IsUndefined() const { return false; }
    virtual bool IsCircle() const { return false; }
    virtual bool IsObround() const { return false; }
    virtual bool IsRectangle() const { return false; }
    virtual bool IsPolygon() const { return false; }
    virtual bool IsRoundThermal() const { return false; }
    virtual bool IsMultiLoop() const { return false; }
    /// Whether `other` is of the same class and has exactly the same dimensions. Name, kind and offsets don't matter.
    virtual bool IsEqual(const BasePad& other) const = 0;

    AString GetName() const { return name; }

    AString name; ///< the source pad's; pads made from one source pad share it
    uint32_t kind;
    double offsetX = 0.0;
    double offsetY = 0.0;

protected:
    BasePad(uint32_t padKind, AString padName) : name(std::move(padName)), kind(padKind) {}
};

#endif
