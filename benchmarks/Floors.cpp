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

} // namespace

size_t CountTokens(std::string_view text) {
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
        case k_Word:
            ++tokens;
            while (at != end && IsInWord(*at))
                ++at;
            break;
        }
    }
    return tokens;
}

size_t PrintNumbers(const std::vector<double>& numbers) {
    char text[32];
    size_t size = 0;
    for (const double number : numbers)
        size += static_cast<size_t>(std::to_chars(text, text + sizeof text, number).ptr - text);
    return size;
}
