#ifndef QRL_BLOCKS_NUMBERTEXT_H
#define QRL_BLOCKS_NUMBERTEXT_H

#include <cstddef>
#include <cstdint>
#include <optional>
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

/// The value of a whole number of up to 18 digits, as most numbers of a board are; nothing for any other text. Costs no
/// call, unlike `ParseNumber_G`.
inline std::optional<int64_t> ParseDigits_G(std::string_view text) {
    constexpr ptrdiff_t k_DigitsOfAnyInt64 = 18;
    const char* at = text.data();
    const char* end = at + text.size();
    const bool isNegative = at != end && *at == '-';
    if (at != end && (*at == '-' || *at == '+'))
        ++at;
    if (at == end || end - at > k_DigitsOfAnyInt64)
        return std::nullopt;
    int64_t whole = 0;
    for (; at != end; ++at) {
        const int digit = *at - '0';
        if (digit < 0 || digit > 9)
            return std::nullopt;
        whole = whole * 10 + digit;
    }
    return isNegative ? -whole : whole;
}

} // namespace io

#endif
