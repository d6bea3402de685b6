#ifndef QRL_LIB_MATH_GEOMETRY_DIRECTION_H
#define QRL_LIB_MATH_GEOMETRY_DIRECTION_H

#include <array>
#include <cstddef>
#include <cstdint>

namespace geom {

/// A sense of rotation. The y axis points up, so counter-clockwise is the positive sense.
enum Direction : std::uint32_t {
    k_CCW = 0,
    k_CW = 1,
    k_NoDirection = 2, ///< neither: three collinear points, or an arc of height zero
};

/// Whether a chain of arcs returns to its start.
enum OpenClosed : std::uint32_t {
    k_Open = 0,
    k_Closed = 1,
};

/// The other sense of rotation. What is no rotation, and the value 3 that names nothing, are their own opposite.
constexpr Direction GetOppositeDirection(Direction direction) {
    constexpr std::array<Direction, 4> k_Opposites = {k_CW, k_CCW, k_NoDirection, Direction(3)};
    return k_Opposites[std::size_t(direction) & 3U];
}

} // namespace geom

#endif
