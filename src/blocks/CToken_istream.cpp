#include "blocks/CToken_istream.h"

#include <algorithm>

namespace io {

CToken_istream::CToken_istream(const LongFileName& fileName, const CBase_grammar& grammar, int flags)
    : m_Grammar(grammar), m_IsReadByLines(flags == k_SideText) {
    m_HasFailed = !m_Text.Read(fileName.FilePath().QRL_ANSI());
    if (m_HasFailed)
        m_Text = FileText(std::string_view());
    Start();
}

CToken_istream::CToken_istream(std::string_view text, const CBase_grammar& grammar, int flags)
    : m_Grammar(grammar), m_Text(text), m_IsReadByLines(flags == k_SideText) {
    Start();
}

void CToken_istream::Start() {
    constexpr std::string_view k_ByteOrderMark = "\xEF\xBB\xBF";
    m_At = m_Text.GetBegin();
    if (GetRest().starts_with(k_ByteOrderMark))
        m_At += k_ByteOrderMark.size();
    m_Counted = m_At;
    m_Ahead = nullptr;
}

void CToken_istream::Close() {
    m_Text = FileText(std::string_view());
    Start();
}

void CToken_istream::NewLine(AString& text) {
    const char* end = GetEnd();
    const char* lineEnd = std::find(m_At, end, '\n');
    std::string_view line(m_At, static_cast<size_t>(lineEnd - m_At));
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    const auto isBlank = [this](char c) { return m_Grammar.GetClass(c) == CBase_grammar::k_Blank; };
    const auto first = std::find_if_not(line.begin(), line.end(), isBlank);
    if (m_IsReadByLines && first != line.end() && m_Grammar.GetClass(*first) == CBase_grammar::k_Comment)
        line = {};
    text = AString(line);
    if (lineEnd == end)
        ++m_Line;
    MoveTo(lineEnd == end ? end : lineEnd + 1);
}

long CToken_istream::LineNumber() {
    m_Line += static_cast<long>(std::count(m_Counted, m_At, '\n'));
    m_Counted = m_At;
    return m_Line;
}

CToken_istream& CToken_istream::operator>>(AString& text) {
    text = AString(ReadToken().m_Text);
    return *this;
}

CToken_istream& CToken_istream::operator>>(CToken& token) {
    const Token read = ReadToken();
    if (read.m_Kind == NodeKind::k_Empty)
        token = CToken();
    else
        token = read.m_Kind == NodeKind::k_Text ? CToken::OfText(read.m_Text) : CToken::OfWord(read.m_Text);
    return *this;
}

std::string_view CToken_istream::ReadQuoted() {
    MoveTo(m_Ahead);
    const char* first = m_At + 1;
    const char* quote = std::find(first, GetEnd(), '"');
    if (quote == GetEnd())
        throw XStreamioError(0);
    MoveTo(quote + 1);
    return {first, static_cast<size_t>(quote - first)};
}

} // namespace io
