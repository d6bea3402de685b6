#ifndef QRL_ZUKEN_COMPONENTDRAFT_H
#define QRL_ZUKEN_COMPONENTDRAFT_H

#include "blocks/AString.h"
#include "lib/math/geometry/Point.h"
#include "model/ComponentPin.h"

#include <vector>

class FootprintPin;
class Trace;

/// A component while its list is read: what has been met so far, as the file spells it.
struct ComponentDraft {
    AString reference;
    AString part;
    AString footprintName;
    AString side;
    AString reverseName; ///< of the footprint for the bottom side
    geom::Point location;
    double angle = 0.0; ///< degrees
    std::vector<ComponentPin> pins;

    bool IsOnBottom() const { return side.CompareNoCase("B") == 0; }
};

/// A pin of a component while its list is read.
struct PinDraft {
    ComponentPin record;
    FootprintPin* footprintPin = nullptr; ///< the footprint's pin of that name, if there is one
    std::vector<Trace*> wires;            ///< the bond wires so far, which wait for their net
};

#endif
