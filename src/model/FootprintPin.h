#ifndef QRL_MODEL_FOOTPRINTPIN_H
#define QRL_MODEL_FOOTPRINTPIN_H

#include "blocks/AString.h"
#include "lib/math/geometry/Point.h"

#include <vector>

class Padstack;

/// A pin of a footprint: a padstack at a place relative to the footprint's origin.
class FootprintPin {
public:
    FootprintPin(
        Padstack* pinPadstack, AString pinName, geom::Point pinLocation, geom::Point pinDisplacement, double pinAngle);
    FootprintPin(const FootprintPin&) = delete;
    FootprintPin& operator=(const FootprintPin&) = delete;
    ~FootprintPin() = default;

    AString GetName() const { return name; }
    /// Replaces `out` by the siblings and returns their number.
    int GetSiblingPins(std::vector<FootprintPin*>& out) const;

    AString name; ///< unique in its footprint
    geom::Point location;
    double angle;             ///< degrees, as read
    geom::Point displacement; ///< read by nothing
    Padstack* padstack;       ///< null for a pin without copper, which keeps its place among the pins all the same
    std::vector<FootprintPin*>
        siblingPins; ///< made from source pins of the same name; only the first of the group has them
};

#endif
