#ifndef QRL_MODEL_PATHVERTEX_H
#define QRL_MODEL_PATHVERTEX_H

#include <cstdint>

/// One vertex of a line. A plain value.
struct PathVertex {
    double x = 0.0;
    double y = 0.0;
    double height = 0.0; ///< of the arc from here to the next vertex, signed as an arc's; 0 for a straight piece
    double startWidth = 0.0;
    double endWidth = 0.0;   ///< equal to `startWidth`: a trace has one width
    int32_t endStyle = 3;    ///< read by nothing
    int32_t cornerStyle = 2; ///< read by nothing
    double reserved = 0.0;   ///< written as the vertex's last number
};

#endif
