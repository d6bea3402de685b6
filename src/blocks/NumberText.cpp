#include "blocks/NumberText.h"

#include <charconv>
#include <cmath>
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
    if (const std::optional<int64_t> digits = ParseDigits_G(text))
        return {NumberText::Kind::k_Whole, *digits, static_cast<double>(*digits)};
    const char* first = text.data();
    const char* end = first + text.size();
    const bool isNegative = first != end && *first == '-';
    if (first != end && (*first == '-' || *first == '+'))
        ++first;
    if (!HasNumberForm(first, end))
        return {};
    int64_t whole = 0;
    const char* signedFirst = isNegative ? first - 1 : first;
    const auto [wholeEnd, error] = std::from_chars(signedFirst, end, whole);
    if (wholeEnd == end && error == std::errc())
        return {NumberText::Kind::k_Whole, whole, static_cast<double>(whole)};
    return ParseReal(first, end, isNegative);
}

} // namespace io
