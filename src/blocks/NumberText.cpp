#include "blocks/NumberText.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <string>

namespace io {

namespace {

constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }

const char* SkipDigits(const char* at, const char* end) {
    while (at != end && IsDigit(*at))
        ++at;
    return at;
}

/// Whether what stands behind the sign is a number by its form.
bool HasNumberForm(const char* at, const char* end) {
    const char* digits = at;
    at = SkipDigits(at, end);
    bool hasDigits = at != digits;
    if (at != end && *at == '.') {
        digits = ++at;
        at = SkipDigits(at, end);
        hasDigits = hasDigits || at != digits;
    }
    if (!hasDigits)
        return false;
    if (at == end)
        return true;
    if (*at != 'e' && *at != 'E')
        return false;
    ++at;
    if (at != end && (*at == '+' || *at == '-'))
        ++at;
    digits = at;
    at = SkipDigits(at, end);
    return at != digits && at == end;
}

/// `from_chars` doesn't tell a value that is too large from one that is too small; `strtod` does, and is called for
/// those only. The program runs in the "C" locale, in which its point is the point.
NumberText ParseReal(const char* first, const char* end, bool isNegative) {
    double value = 0.0;
    if (std::from_chars(first, end, value).ec != std::errc())
        value = std::strtod(std::string(first, end).c_str(), nullptr);
    if (std::isinf(value))
        return {};
    return {NumberText::Kind::k_Real, 0, isNegative ? -value : value};
}

} // namespace

NumberText ParseNumber_G(std::string_view text) {
    const char* at = text.data();
    const char* end = at + text.size();
    const bool isNegative = at != end && *at == '-';
    if (at != end && (*at == '-' || *at == '+'))
        ++at;
    constexpr ptrdiff_t k_DigitsOfAnyInt64 = 18;
    const char* first = at;
    const char* limit = at + std::min(end - at, k_DigitsOfAnyInt64);
    int64_t whole = 0;
    while (at != limit && IsDigit(*at))
        whole = whole * 10 + (*at++ - '0');
    if (at == end && at != first) {
        whole = isNegative ? -whole : whole;
        return {NumberText::Kind::k_Whole, whole, static_cast<double>(whole)};
    }
    if (!HasNumberForm(first, end))
        return {};
    const char* signedFirst = isNegative ? first - 1 : first;
    const auto [wholeEnd, error] = std::from_chars(signedFirst, end, whole);
    if (wholeEnd == end && error == std::errc())
        return {NumberText::Kind::k_Whole, whole, static_cast<double>(whole)};
    return ParseReal(first, end, isNegative);
}

} // namespace io
