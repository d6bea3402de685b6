#ifndef QRL_MODEL_COMPONENT_H
#define QRL_MODEL_COMPONENT_H

#include "blocks/AString.h"
#include "lib/math/geometry/Point.h"
#include "model/ComponentPin.h"

#include <vector>

class Footprint;

/// One placed part of the board.
class Component {
public:
    Component(AString componentName, Footprint* componentFootprint, geom::Point componentLocation,
        double componentAngle, bool isMirrored);
    Component(const Component&) = delete;
    Component& operator=(const Component&) = delete;
    ~Component() = default;

    const AString& GetName() const { return name; }
    AString GetId() const { return id; }
    AString GetValue() const { return value; }
    AString GetPartNumber() const { return partNumber; }
    AString GetLayerName() const { return layerName; }
    /// Replaces `out` by the pins and returns their number.
    int GetPins(std::vector<ComponentPin>& out) const;

    AString name;         ///< reference designator, as it is written
    Footprint* footprint; ///< in use: for a mirrored component the reverse one where it has one; may be null
    geom::Point location;
    double angle; ///< degrees, as it is written
    bool mirrored;
    AString id;        ///< "Component_7" for the seventh of the file
    AString layerName; ///< of the conductive layer that it sits on
    AString value;
    AString partNumber;
    bool active = true;
    std::vector<ComponentPin> pins; ///< in the file's order
};

#endif
