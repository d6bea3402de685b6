#ifndef QRL_MODEL_COMPONENTPIN_H
#define QRL_MODEL_COMPONENTPIN_H

#include "blocks/AString.h"

#include <vector>

/// What the board says of one pin of one component. A plain value.
struct ComponentPin {
    AString name;
    std::vector<AString> noConnectLayers; ///< names of the conductive layers on which the pin makes no connection
};

#endif
