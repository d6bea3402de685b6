#ifndef QRL_MODEL_VIA_H
#define QRL_MODEL_VIA_H

#include "blocks/AString.h"
#include "lib/math/geometry/Point.h"

#include <vector>

class Net;
class Padstack;

/// One padstack at a place of the board.
class Via {
public:
    /// Enters itself in `viaNet`, unless that is null.
    Via(Padstack* viaPadstack, AString fromLayerName, AString toLayerName, geom::Point viaLocation, double viaAngle,
        Net* viaNet);
    Via(const Via&) = delete;
    Via& operator=(const Via&) = delete;
    ~Via() = default;

    /// Replaces `out` by the layer names and returns their number.
    int GetNoConnectLayers(std::vector<AString>& out) const;

    Padstack* padstack;
    AString fromLayer;
    AString toLayer;
    geom::Point location;
    double angle; ///< degrees, as read
    Net* net;
    std::vector<AString> noConnectLayers; ///< on which it makes no connection, in the file's order
};

#endif
