#include "blocks/ValueText.h"

#include "blocks/PlainDecimal.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstring>

namespace io {

namespace {

char* Put(char* to, std::string_view text) { return std::copy(text.begin(), text.end(), to); }

constexpr bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_'; }
constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }

constexpr auto k_IsLetterOrDigit = [] {
    std::array<bool, 256> table = {};
    for (size_t i = 0; i < table.size(); ++i)
        table[i] = IsLetter(static_cast<char>(i)) || IsDigit(static_cast<char>(i));
    return table;
}();

} // namespace

char* PutDouble(char* to, double value) {
    if (char* end = TryPutDecimal(to, value))
        return end;
    if (!std::isfinite(value))
        return Put(to, std::isnan(value) ? "nan" : value > 0 ? "inf" : "-inf");
    char* end = std::to_chars(to, to + k_NumberRoom, value).ptr;
    const bool showsKind = std::any_of(to, end, [](char c) { return c == '.' || c == 'e'; });
    return showsKind ? end : Put(end, ".0");
}

char* PutInt(char* to, int value) { return std::to_chars(to, to + k_NumberRoom, value).ptr; }

/// Looks at all of the name, as nearly all of them are identifiers: that is quicker than to stop at the first.
bool IsIdentifier(std::string_view name) {
    bool isIdentifier = !name.empty() && !IsDigit(name.front());
    for (const char c : name)
        isIdentifier &= k_IsLetterOrDigit[static_cast<unsigned char>(c)];
    return isIdentifier;
}

std::string ValueText(const Node& node) {
    char text[k_NumberRoom];
    switch (node.GetKind()) {
    case NodeKind::k_Int:
        return {text, PutInt(text, node.GetInt())};
    case NodeKind::k_Double:
        return {text, PutDouble(text, node.GetDouble())};
    case NodeKind::k_Bool:
        return node.GetBool() ? "true" : "false";
    default:
        return {};
    }
}

} // namespace io
