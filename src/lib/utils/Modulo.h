#ifndef QRL_LIB_UTILS_MODULO_H
#define QRL_LIB_UTILS_MODULO_H

#include <cmath>

namespace base {

/// `a` brought into the range from 0 up to, but excluding, the positive modulus `b`. A result that rounds to `b`
/// becomes 0. NaN where `fmod` has no answer: an infinite `a`, a `b` of 0, a NaN on either side.
template <class T>
T GetModulo_T(T a, T b) {
    T result = std::fmod(a, b);
    if (result < T(0))
        result += b;
    return result == b ? T(0) : result;
}

/// The value, negated when 0 is greater than it; so -0.0 stays -0.0 and a NaN stays as it is.
template <class T>
constexpr T GetAbsOf_T(const T& value) {
    return T(0) > value ? -value : value;
}

} // namespace base

#endif
