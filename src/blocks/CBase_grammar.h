#ifndef QRL_BLOCKS_CBASE_GRAMMAR_H
#define QRL_BLOCKS_CBASE_GRAMMAR_H

#include <array>
#include <cstdint>
#include <string_view>

namespace io {

/// What each byte means to a token stream. Space, tab, CR, LF, VT and FF are blanks; without more, all else makes
/// words.
class CBase_grammar {
public:
    enum Class : uint8_t { k_Ordinary, k_Blank, k_Delimiter, k_Comment };

    /// Each character of `text` begins a comment that runs to the end of its line.
    void CommentCharSet(std::string_view text) { Set(text, k_Comment); }

    Class GetClass(char c) const { return m_Classes[static_cast<uint8_t>(c)]; }

protected:
    CBase_grammar() { Set(" \t\r\n\v\f", k_Blank); }

    void Set(std::string_view text, Class meaning) {
        for (const char c : text)
            m_Classes[static_cast<uint8_t>(c)] = meaning;
    }

private:
    std::array<Class, 256> m_Classes = {};
};

/// Text in which each of some characters is a token by itself wherever it stands outside a quoted string.
class CDelimiter_grammar : public CBase_grammar {
public:
    explicit CDelimiter_grammar(std::string_view delimiters) { Set(delimiters, k_Delimiter); }
};

/// Plain text with blanks between its tokens.
class CToken_grammar : public CBase_grammar {};

} // namespace io

#endif
