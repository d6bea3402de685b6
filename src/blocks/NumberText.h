#ifndef QRL_BLOCKS_NUMBERTEXT_H
#define QRL_BLOCKS_NUMBERTEXT_H

#include <cstdint>
#include <string_view>

namespace io {

/// What a bare token says as a number.
struct NumberText {
    enum class Kind : uint8_t {
        k_None,  ///< not a number but a word; both values are 0
        k_Whole, ///< no point, no exponent, fits 64 bits; both values hold
        k_Real,  ///< any other number; `m_Real` holds
    };
    Kind m_Kind = Kind::k_None;
    int64_t m_Whole = 0;
    double m_Real = 0.0; ///< for a whole number its value by way of the integer, so that "-0" gives 0
};

/// Reads `text` as `[+-]? (digits [. digits?] | . digits) ([eE] [+-]? digits)?`. Text that is anything else, or whose
/// value exceeds the range of a double, is a word; a value too small for a double is 0.
NumberText ParseNumber_G(std::string_view text);

} // namespace io

#endif
