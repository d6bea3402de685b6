#include "blocks/PlainDecimal.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace io {

namespace {

__extension__ using uint128_t = unsigned __int128;

// Between these, what has a fraction is shorter with a point than with an exponent, and all products fit 128 bits.
constexpr double k_Smallest = 0.01;
constexpr double k_Largest = 1e6;
constexpr double k_LargestWhole = 1e5; ///< from here on a whole number may be shorter with an exponent

constexpr ptrdiff_t k_RoomOfWhole = 6; ///< digits ahead of the point

constexpr int k_MantissaBits = 52;
constexpr uint64_t k_HiddenBit = uint64_t{1} << k_MantissaBits;

constexpr auto k_PowersOfTen = [] {
    std::array<uint64_t, 19> powers = {1};
    for (size_t i = 1; i < powers.size(); ++i)
        powers[i] = powers[i - 1] * 10;
    return powers;
}();

/// Digits and, counted from their end, the place of the point. No digits: none were found.
struct Decimal {
    uint64_t m_Digits = 0;
    int m_Decimals = 0;
};

/// The texts of 00 to 99.
constexpr auto k_Pairs = [] {
    std::array<char, 200> pairs = {};
    for (size_t i = 0; i < pairs.size(); ++i)
        pairs[i] = static_cast<char>('0' + (i % 2 == 0 ? i / 20 : i / 2 % 10));
    return pairs;
}();

/// Puts `digits` digits, an even number, of `value`.
template <size_t digits>
void PutDigits_T(char* to, uint32_t value) {
    for (size_t at = digits; at != 0; at -= 2) {
        std::memcpy(to + at - 2, &k_Pairs[size_t{2} * (value % 100)], 2);
        value /= 100;
    }
}

/// Puts `decimal`, the whole part of which is `whole`, without the zeros at its end but with one decimal at least.
char* PutDecimal(char* to, Decimal decimal, uint32_t whole) {
    constexpr size_t k_Decimals = 18;
    constexpr uint64_t k_EightDigits = 100'000'000;
    const auto decimals = static_cast<size_t>(decimal.m_Decimals);
    const uint64_t fraction =
        (decimal.m_Digits - whole * k_PowersOfTen[decimals]) * k_PowersOfTen[k_Decimals - decimals];
    to = std::to_chars(to, to + k_RoomOfWhole, whole).ptr;
    *to++ = '.';
    PutDigits_T<2>(to, static_cast<uint32_t>(fraction / (k_EightDigits * k_EightDigits)));
    PutDigits_T<8>(to + 2, static_cast<uint32_t>(fraction / k_EightDigits % k_EightDigits));
    PutDigits_T<8>(to + 10, static_cast<uint32_t>(fraction % k_EightDigits));
    const char* first = to;
    to += decimals;
    while (to - 1 != first && to[-1] == '0')
        --to;
    return to;
}

/// `value` as a number of hundred thousandths, when it is the double next to one: no other text of up to 15 digits
/// reads as that double. Half of all coordinates are, since the design system counts in such units.
Decimal FindFiveDecimals(double value) {
    constexpr double k_Scale = 1e5;
    // NOLINTNEXTLINE(bugprone-incorrect-roundings): what it misses, the next line finds
    const auto digits = static_cast<int64_t>(value * k_Scale + 0.5);
    if (static_cast<double>(digits) / k_Scale != value)
        return {};
    return {static_cast<uint64_t>(digits), 5};
}

/// How many digits stand ahead of the point; for what begins with 0.0, one less than none.
int CountWholeDigits(double value) {
    constexpr std::array<double, 7> k_Limits = {0.1, 1.0, 1e1, 1e2, 1e3, 1e4, 1e5};
    int digits = -1;
    for (const double limit : k_Limits)
        digits += value >= limit ? 1 : 0;
    return digits;
}

/// The decimal of 15, else 16, else 17 digits that is next to `value` and reads back to it.
///
/// `value` is m * 2^-s with whole m and s. So m * 10^j has `value` with j decimals as its part from bit s on, and what
/// lies below is how much that is off. A decimal reads back when it is off by less than half of a unit of m, which is
/// 10^j / 2 here. Nothing is rounded: no table of powers is needed, at the price of the narrow range. What lies exactly
/// between two decimals or doubles, and a power of two, whose neighbours aren't equally far, is left to others.
Decimal FindNearest(double value) {
    const auto bits = std::bit_cast<uint64_t>(value);
    const uint64_t mantissa = (bits & (k_HiddenBit - 1)) | k_HiddenBit;
    const int shift = 1075 - static_cast<int>(bits >> k_MantissaBits);
    if (mantissa == k_HiddenBit)
        return {};
    const uint64_t unit = uint64_t{1} << shift;
    const int wholeDigits = CountWholeDigits(value);
    for (int digits = 15; digits <= 17; ++digits) {
        const int decimals = digits - wholeDigits;
        const uint64_t power = k_PowersOfTen[static_cast<size_t>(decimals)];
        const uint128_t product = static_cast<uint128_t>(mantissa) * power;
        const auto below = static_cast<uint64_t>(product) & (unit - 1);
        const bool isUp = below > unit / 2;
        const uint64_t off = isUp ? unit - below : below;
        if (off > power / 2)
            continue;
        if (off == power / 2 || off == unit / 2)
            return {};
        return {static_cast<uint64_t>(product >> shift) + (isUp ? 1U : 0U), decimals};
    }
    return {};
}

} // namespace

char* TryPutDecimal(char* to, double value) {
    if (value == 0.0)
        return std::copy_n(std::signbit(value) ? "-0.0" : "0.0", std::signbit(value) ? 4 : 3, to);
    const double size = std::abs(value);
    const bool isUsual = size >= k_Smallest && size < k_Largest;
    if (!isUsual || (size >= k_LargestWhole && size == std::trunc(size)))
        return nullptr;
    Decimal decimal = FindFiveDecimals(size);
    if (decimal.m_Digits == 0)
        decimal = FindNearest(size);
    if (decimal.m_Digits == 0)
        return nullptr;
    if (value < 0)
        *to++ = '-';
    return PutDecimal(to, decimal, static_cast<uint32_t>(size));
}

} // namespace io
