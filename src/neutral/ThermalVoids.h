#ifndef QRL_NEUTRAL_THERMALVOIDS_H
#define QRL_NEUTRAL_THERMALVOIDS_H

#include "blocks/AString.h"
#include "blocks/CBlock_open_func.h"

#include <vector>

/// Appends to a pin or via the layers on which it makes no connection. Without any, nothing.
void AppendRemovedThermalVoids_G(const std::vector<AString>& layers, io::CBlock_open_func& func);

#endif
