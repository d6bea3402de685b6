#include "lib/math/geometry/Azimuth.h"

#include <cmath>

double geom::Azimuth::Reduce(double radians) {
    const double rest = std::fmod(radians, k_TwoPi);
    return 0 > rest ? rest + k_TwoPi : rest;
}
