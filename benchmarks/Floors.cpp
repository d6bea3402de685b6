#include "benchmarks/Floors.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>

namespace {

enum Class : uint8_t { k_Word, k_Blank, k_Parenthesis, k_Comment, k_Quote };

constexpr auto k_Classes = [] {
    std::array<Class, 256> classes = {};
    for (const char c : std::string_view(" \t\r\n\v\f"))
        classes[static_cast<uint8_t>(c)] = k_Blank;
    classes['('] = classes[')'] = k_Parenthesis;
    classes[';'] = k_Comment;
    classes['"'] = k_Quote;
    return classes;
}();

Class ClassOf(char c) { return k_Classes[static_cast<uint8_t>(c)]; }

bool IsInWord(char c) { return ClassOf(c) == k_Word || ClassOf(c) == k_Quote; }

/// Calls `onWord` for every word. Returns the number of tokens.
template <class OnWord>
size_t WalkTokens(std::string_view text, const OnWord& onWord) {
    size_t tokens = 0;
    const char* at = text.data();
    const char* end = at + text.size();
    while (at != end) {
        switch (ClassOf(*at)) {
        case k_Blank:
            ++at;
            break;
        case k_Parenthesis:
            ++tokens;
            ++at;
            break;
        case k_Comment:
            at = std::find(at, end, '\n');
            break;
        case k_Quote:
            ++tokens;
            at = std::find(at + 1, end, '"');
            at += at != end ? 1 : 0;
            break;
        case k_Word: {
            ++tokens;
            const char* begin = at;
            while (at != end && IsInWord(*at))
                ++at;
            onWord(begin, at);
            break;
        }
        }
    }
    return tokens;
}

/// Calls `onNumber` for every word that is a whole number.
template <class OnNumber>
void WalkNumbers(std::string_view text, const OnNumber& onNumber) {
    WalkTokens(text, [&onNumber](const char* begin, const char* end) {
        int64_t number = 0;
        const bool maybe = *begin == '-' || (*begin >= '0' && *begin <= '9');
        if (maybe && std::from_chars(begin, end, number).ptr == end)
            onNumber(number);
    });
}

} // namespace

size_t CountTokens(std::string_view text) {
    return WalkTokens(text, [](const char* /*begin*/, const char* /*end*/) {});
}

size_t DecodeNumbers(std::string_view text) {
    size_t sum = 0;
    WalkNumbers(text, [&sum](int64_t number) { sum += static_cast<size_t>(number); });
    return sum;
}

size_t PrintMillimetres(std::string_view text) {
    constexpr double k_Millimetres = 1e-5;
    char digits[32];
    size_t size = 0;
    WalkNumbers(text, [&](int64_t number) {
        const double value = static_cast<double>(number) * k_Millimetres;
        size += static_cast<size_t>(std::to_chars(digits, digits + sizeof digits, value).ptr - digits);
    });
    return size;
}

size_t PrintNumbers(const std::vector<double>& numbers) {
    char text[32];
    size_t size = 0;
    for (const double number : numbers)
        size += static_cast<size_t>(std::to_chars(text, text + sizeof text, number).ptr - text);
    return size;
}
