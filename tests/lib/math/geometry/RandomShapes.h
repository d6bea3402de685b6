#ifndef QRL_TESTS_LIB_MATH_GEOMETRY_RANDOMSHAPES_H
#define QRL_TESTS_LIB_MATH_GEOMETRY_RANDOMSHAPES_H

#include "tests/GeometryFixtures.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <random>
#include <vector>

namespace fixtures {

/// How many shapes a law or an oracle is tried with.
inline constexpr int k_Cases = 10000;

/// Shapes at random, the same in each run. Ordinary ones lie within 100 of the origin; those of the grid have small
/// whole coordinates, so that products are exact and touching, collinear and equal ones are frequent; the troublesome
/// ones are made of what tends to break arithmetic.
class RandomShapes {
public:
    explicit RandomShapes(std::uint64_t seed) : m_Engine(seed) {}

    int GetWhole(int from, int to) { return std::uniform_int_distribution<int>(from, to)(m_Engine); }
    double GetReal(double from, double to) { return std::uniform_real_distribution<double>(from, to)(m_Engine); }
    bool GetChance(double probability) { return GetReal(0, 1) < probability; }

    geom::Point GetPoint() { return {GetReal(-100, 100), GetReal(-100, 100)}; }
    geom::Segment GetSegment() { return {GetPoint(), GetPoint()}; }
    geom::Box GetBox() { return geom::Box(GetSegment()); }

    geom::Point GetGridPoint() { return {double(GetWhole(-4, 4)), double(GetWhole(-4, 4))}; }
    geom::Segment GetGridSegment() { return {GetGridPoint(), GetGridPoint()}; }
    geom::Box GetGridBox() { return geom::Box(GetGridSegment()); }

    /// Curved, with a chord of 1 to 280 and a height of 1/1000 of the chord to 3 chords, of either sign.
    geom::Arc GetArc() {
        geom::Segment chord = GetSegment();
        while (chord.GetLength() < 1)
            chord = GetSegment();
        const double height = double(chord.GetLength()) * std::exp(GetReal(std::log(1e-3), std::log(3.0)));
        return {chord.GetStart(), chord.GetEnd(), GetChance(0.5) ? height : -height};
    }
    /// An ordinary arc, but also a half or full circle, a flat one, one just beside a half circle,
    /// or one whose ends are neighbours.
    geom::Arc GetAnyCurvedArc();

    /// One of the numbers that break arithmetic, or a neighbour of one; finite.
    double GetExtreme();
    /// The same, or a NaN or an infinity, or a plain small number.
    double GetHostile();
    geom::Point GetHostilePoint() { return {GetHostile(), GetHostile()}; }

    /// A star-shaped ring about the origin, counter-clockwise.
    std::vector<geom::Point> GetRing();

private:
    std::mt19937_64 m_Engine;
};

inline geom::Arc RandomShapes::GetAnyCurvedArc() {
    const geom::Arc arc = GetArc();
    const double half = double(arc.GetStartEndSegment().GetLength()) / 2;
    const double sign = arc.IsCCW() ? -1 : 1;
    switch (GetWhole(0, 7)) {
    case 0:
        return {{-half, 3}, {half, 3}, sign * half};
    case 1:
        return {arc.GetStart(), arc.GetEnd(), sign * Up(half)};
    case 2:
        return {arc.GetStart(), arc.GetEnd(), sign * Down(half)};
    case 3:
        return {geom::Circumference(arc.GetStart(), half), geom::Azimuth(geom::k_Degrees, GetReal(0, 360)),
            arc.GetDirection()};
    case 4:
        return {arc.GetStart(), arc.GetEnd(), sign * half * 1e-6};
    case 5: // all of a circle but one unit in the last place
        return {{half, 3}, {Up(half), 3}, sign * 2 * half};
    default:
        return arc;
    }
}

inline double RandomShapes::GetExtreme() {
    using Limits = std::numeric_limits<double>;
    static const std::array<double, 20> k_Numbers = {0, -0.0, Limits::denorm_min(), Limits::min(), 1e-300, 1e-160,
        2.2e-13, 1e-10, 1e-9, 0.5, 1, 2, 4, 10, 1e6, 9007199254740992.0, 1e15, 1e150, 1e300, Limits::max()};
    double number = k_Numbers[std::size_t(GetWhole(0, int(k_Numbers.size()) - 1))];
    if (GetChance(0.3))
        number = GetChance(0.5) ? Up(number) : Down(number);
    if (!std::isfinite(number))
        number = Limits::max();
    return GetChance(0.5) ? number : -number;
}

inline double RandomShapes::GetHostile() {
    switch (GetWhole(0, 9)) {
    case 0:
        return k_NaN;
    case 1:
        return GetChance(0.5) ? HUGE_VAL : -HUGE_VAL;
    case 2:
    case 3:
    case 4:
        return GetWhole(-4, 4);
    default:
        return GetExtreme();
    }
}

inline std::vector<geom::Point> RandomShapes::GetRing() {
    std::vector<double> angles(std::size_t(GetWhole(3, 12)));
    for (double& angle : angles)
        angle = GetReal(0, geom::k_TwoPi);
    std::sort(angles.begin(), angles.end());
    std::vector<geom::Point> ring;
    for (const double angle : angles) {
        const double radius = GetReal(1, 100);
        ring.emplace_back(radius * std::cos(angle), radius * std::sin(angle));
    }
    return ring;
}

} // namespace fixtures

#endif
