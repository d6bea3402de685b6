#ifndef QRL_NEUTRAL_OUTLINEFUNCS_H
#define QRL_NEUTRAL_OUTLINEFUNCS_H

#include "blocks/CBlock_open_func.h"
#include "lib/math/geometry/Arc.h"

#include <vector>

// How points and outlines stand in the neutral file.

/// Appends x and y.
void AppendPoint_G(geom::Point point, io::CBlock_open_func& func);

/// Appends a vertex at `point`. `word` is the keyword, which differs in case from section to section.
void AppendVertex_G(geom::Point point, const char* word, io::CBlock_open_func& func);

void AppendArc_G(double height, io::CBlock_open_func& func);

/// Appends for each piece a vertex at its start and, for one that isn't straight by its own tolerance, an arc with its
/// height. The end of the last piece isn't written.
void AppendPieces_G(const std::vector<geom::Arc>& pieces, const char* word, io::CBlock_open_func& func);

#endif
