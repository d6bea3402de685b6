#ifndef QRL_BLOCKS_CTOKEN_ISTREAM_H
#define QRL_BLOCKS_CTOKEN_ISTREAM_H

#include "blocks/CAbstract_istream.h"
#include "blocks/CBase_grammar.h"
#include "blocks/CToken.h"
#include "blocks/FileText.h"
#include "blocks/LongFileName.h"

#include <exception>
#include <string_view>

namespace io {

/// A token stream or a reader on it met text that can't be read.
class XStreamioError : public std::exception {
public:
    explicit XStreamioError(int code) : m_Code(code) {}
    const char* what() const noexcept override { return "unreadable text"; }
    int GetCode() const { return m_Code; }

private:
    int m_Code;
};

/// A text file as a sequence of tokens, or of lines.
///
/// The stream stands behind the last token or line that was consumed, and holds the whole text in memory. Looking ahead
/// consumes nothing, not even blanks. A byte order mark at the start is skipped. A quoted string begins with `"` where
/// a token begins and ends at the next `"`; nothing in it has a meaning. Consuming one that is never closed throws
/// `XStreamioError` and leaves the stream at the `"` that opens it.
class CToken_istream : public CAbstract_istream {
public:
    static constexpr int k_SideText = 1;      ///< flags: a file that is read by lines
    static constexpr int k_Expressions = 256; ///< flags: a file that is read by tokens

    /// Opens and reads a file. `fail()` tells whether that went wrong; the stream is then empty.
    CToken_istream(const LongFileName& fileName, const CBase_grammar& grammar, int flags);
    /// Stands on a copy of `text`.
    CToken_istream(std::string_view text, const CBase_grammar& grammar, int flags);

    bool fail() const { return m_HasFailed; }
    /// True when no line is left.
    bool eof() const { return m_At == GetEnd(); }
    /// Gives back the memory of the text. The stream is empty afterwards.
    void Close();

    /// The text up to the end of the line without its CR, and the move behind it; the end of the text counts as a line
    /// end. A line whose first character but blanks begins a comment gives an empty text in a file that is read by
    /// lines.
    void NewLine(AString& text);
    /// Number of the line that the stream stands on, first line 1. Costs a count of the line ends since the last call.
    long LineNumber();

    /// Consumes the next token and gives its text, or an empty text at the end.
    CToken_istream& operator>>(AString& text);
    /// Consumes the next token, or gives the empty token at the end.
    CToken_istream& operator>>(CToken& token);
    /// Consumes the next token, if there is one.
    void Skip() { ReadToken(); }

    /// Whether, behind blanks and comments, the next character is `c`.
    bool NextIs(char c) { return *LookAhead() == c && m_Ahead != GetEnd(); }
    /// Whether nothing but blanks and comments is left.
    bool AtEnd() { return LookAhead() == GetEnd(); }
    bool Ended() { return AtEnd(); }
    /// Whether the next token can head a list: a word, a number or a quoted string.
    bool NextIsName() { return NextIsWord() || NextIsString(); }
    /// Whether the next token is a word or a number.
    bool NextIsWord() {
        return !AtEnd() && m_Grammar.GetClass(*m_Ahead) == CBase_grammar::k_Ordinary && *m_Ahead != '"';
    }
    bool NextIsString() { return NextIs('"'); }

    /// A token in the memory of the stream, valid as long as the stream is open. Its text can be read for
    /// `FileText::k_Padding` bytes, however short it is.
    struct Token {
        NodeKind m_Kind = NodeKind::k_Empty;
        std::string_view m_Text;
    };
    /// Consumes the next token; the empty one at the end.
    Token ReadToken();

    std::string_view GetRest() const final { return {m_At, static_cast<size_t>(GetEnd() - m_At)}; }
    void Advance(size_t count) override { MoveTo(m_At + count); }

private:
    void Start();
    const char* GetEnd() const { return m_Text.GetEnd(); }
    void MoveTo(const char* at) {
        m_At = at;
        m_Ahead = nullptr;
    }
    /// Where the next token begins; the end when there is none.
    const char* LookAhead() {
        if (m_Ahead == nullptr)
            m_Ahead = SkipBlanks(m_At);
        return m_Ahead;
    }
    const char* SkipBlanks(const char* at) const;
    std::string_view ReadQuoted();

    CBase_grammar m_Grammar;
    FileText m_Text;
    const char* m_At = nullptr;
    const char* m_Ahead = nullptr;   ///< what `LookAhead` found; null when it hasn't looked
    const char* m_Counted = nullptr; ///< up to here the line ends are in `m_Line`
    long m_Line = 1;
    bool m_IsReadByLines;
    bool m_HasFailed = false;
};

inline const char* CToken_istream::SkipBlanks(const char* at) const {
    const char* end = GetEnd();
    for (;;) {
        while (m_Grammar.GetClass(*at) == CBase_grammar::k_Blank && at != end)
            ++at;
        if (at == end || m_Grammar.GetClass(*at) != CBase_grammar::k_Comment)
            return at;
        at = static_cast<const char*>(std::memchr(at, '\n', static_cast<size_t>(end + 1 - at)));
    }
}

inline CToken_istream::Token CToken_istream::ReadToken() {
    const char* first = LookAhead();
    if (first == GetEnd())
        return {};
    if (*first == '"')
        return {NodeKind::k_Text, ReadQuoted()};
    const char* last = first + 1;
    if (m_Grammar.GetClass(*first) == CBase_grammar::k_Ordinary)
        while (m_Grammar.GetClass(*last) == CBase_grammar::k_Ordinary)
            ++last;
    MoveTo(last);
    return {NodeKind::k_Word, {first, static_cast<size_t>(last - first)}};
}

} // namespace io

#endif
