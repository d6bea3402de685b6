#include "blocks/NeutralReader.h"

#include "blocks/NeutralWriter.h"
#include "blocks/TextStreams.h"
#include "blocks/ValueText.h"

#include <algorithm>
#include <charconv>

namespace io {

namespace {

constexpr bool IsNameStart(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_'; }
constexpr bool IsBareChar(char c) {
    return IsNameStart(c) || (c >= '0' && c <= '9') || c == '+' || c == '-' || c == '.';
}

} // namespace

std::optional<TreeView> NeutralReader::ReadTree() {
    const std::optional<std::string> name = ReadName();
    const bool isBlock = name && Take('{');
    if (!name || (!isBlock && !Take('(')))
        return {};
    TreeView tree(isBlock ? NodeKind::k_Block : NodeKind::k_Func, *name);
    NodeList& nodes = tree.Own();
    for (bool isDone = false; !isDone;) {
        const bool inBlock = nodes.GetInnermost().GetKind() == NodeKind::k_Block;
        if (Take(inBlock ? '}' : ')')) {
            isDone = !nodes.HasOpen();
            if (!isDone)
                nodes.Close();
        } else if (!(inBlock ? ReadItem(nodes) : ReadArgument(nodes))) {
            return {};
        }
    }
    TextOstream written;
    NeutralWriter(written).Write(tree);
    return Accept(written.GetText()) ? std::optional(tree) : std::nullopt;
}

std::optional<NeutralReader::NamedValue> NeutralReader::ReadNamedValue() {
    const std::optional<std::string> name = ReadName();
    if (!name || !Take('='))
        return {};
    const std::optional<CToken> value = ParseValue();
    if (!value)
        return {};
    TextOstream written;
    NeutralWriter(written).WriteNamedValue(*name, *value);
    return Accept(written.GetText()) ? std::optional(NamedValue{*name, *value}) : std::nullopt;
}

std::optional<CToken> NeutralReader::ReadValue() {
    std::optional<CToken> value = ParseValue();
    if (!value)
        return {};
    TextOstream written;
    NeutralWriter(written).WriteValue(*value);
    const bool isAllWritten = written.GetText().size() == m_At - m_Accepted;
    return isAllWritten && Accept(written.GetText()) ? value : std::nullopt;
}

/// An item of a block: a name, and behind it what tells the three kinds apart.
bool NeutralReader::ReadItem(NodeList& nodes) {
    const std::optional<std::string> name = ReadName();
    if (!name)
        return false;
    if (!Take('='))
        return Open(nodes, *name);
    const std::optional<CToken> value = ParseValue();
    if (!value)
        return false;
    nodes.Open(NodeKind::k_NamedValue, *name);
    nodes.AppendToken(*value);
    nodes.Close();
    return true;
}

/// An argument of a func, with the comma ahead of it unless it is the first. A name with a parenthesis behind it is a
/// func.
bool NeutralReader::ReadArgument(NodeList& nodes) {
    if (!nodes.IsInnermostEmpty() && !Take(','))
        return false;
    const size_t start = m_At;
    const std::optional<std::string> name = ReadName();
    if (name && Peek() == '(')
        return Open(nodes, *name);
    m_At = start;
    const std::optional<CToken> value = ParseValue();
    if (value)
        nodes.AppendToken(*value);
    return value.has_value();
}

bool NeutralReader::Open(NodeList& nodes, const std::string& name) {
    const bool isBlock = Take('{');
    if (!isBlock && !Take('('))
        return false;
    nodes.Open(isBlock ? NodeKind::k_Block : NodeKind::k_Func, name);
    return true;
}

std::optional<std::string> NeutralReader::ReadName() {
    SkipBlanks();
    if (Peek() == '"')
        return ReadString();
    const size_t start = m_At;
    while (IsBareChar(Peek()))
        ++m_At;
    const std::string_view bare = m_Text.substr(start, m_At - start);
    return IsIdentifier(bare) ? std::optional(std::string(bare)) : std::nullopt;
}

std::optional<CToken> NeutralReader::ParseValue() {
    SkipBlanks();
    if (Peek() == '"') {
        const std::optional<std::string> text = ReadString();
        return text ? std::optional(CToken::OfText(*text)) : std::nullopt;
    }
    const size_t start = m_At;
    while (IsBareChar(Peek()))
        ++m_At;
    return ParseBareValue(m_Text.substr(start, m_At - start));
}

std::optional<CToken> NeutralReader::ParseBareValue(std::string_view text) {
    if (text == "true" || text == "false")
        return CToken::OfNode(Node(NodeKind::k_Bool, text == "true"));
    int whole = 0;
    const char* end = text.data() + text.size();
    const auto [wholeEnd, wholeError] = std::from_chars(text.data(), end, whole);
    if (wholeError == std::errc() && wholeEnd == end)
        return CToken::OfNode(Node(NodeKind::k_Int, whole));
    double number = 0.0;
    const auto [numberEnd, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || numberEnd != end)
        return {};
    return CToken::OfNode(Node(NodeKind::k_Double, number));
}

std::optional<std::string> NeutralReader::ReadString() {
    std::string text;
    for (++m_At; m_At < m_Text.size(); ++m_At) {
        const char c = m_Text[m_At];
        if (c == '"') {
            ++m_At;
            return text;
        }
        if (c != '\\') {
            text += c;
            continue;
        }
        const std::optional<char> escaped = ReadEscape();
        if (!escaped)
            return {};
        text += *escaped;
    }
    return {};
}

/// The character that an escape stands for. Starts at the backslash and ends at the last character of the escape.
std::optional<char> NeutralReader::ReadEscape() {
    constexpr std::string_view k_Letters = "\"\\nrt";
    constexpr std::string_view k_Meanings = "\"\\\n\r\t";
    ++m_At;
    const size_t letter = k_Letters.find(Peek());
    if (m_At < m_Text.size() && letter != std::string_view::npos)
        return k_Meanings[letter];
    const std::string_view digits = m_Text.substr(std::min(m_At + 1, m_Text.size()), 2);
    unsigned byte = 0;
    const char* end = digits.data() + digits.size();
    if (Peek() != 'x' || digits.size() != 2 || std::from_chars(digits.data(), end, byte, 16).ptr != end)
        return {};
    m_At += 2;
    return static_cast<char>(static_cast<unsigned char>(byte));
}

void NeutralReader::SkipBlanks() {
    while (Peek() == ' ' || Peek() == '\t' || Peek() == '\n')
        ++m_At;
}

bool NeutralReader::Take(char c) {
    SkipBlanks();
    const bool isThere = Peek() == c;
    if (isThere)
        ++m_At;
    return isThere;
}

bool NeutralReader::Accept(std::string_view written) {
    if (!m_Text.substr(m_Accepted).starts_with(written))
        return false;
    m_Accepted += written.size();
    m_At = m_Accepted;
    return true;
}

} // namespace io
