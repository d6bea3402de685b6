#ifndef QRL_BLOCKS_KEYWORD_H
#define QRL_BLOCKS_KEYWORD_H

#include <cstddef>
#include <cstring>
#include <string_view>

namespace io {

/// A word of the program's own that stands millions of times in a tree: of letters and digits, 16 at most. A tree holds
/// its address, and nobody has to look whether it needs escaping.
class Keyword {
public:
    template <size_t size>
    consteval explicit Keyword(const char (&word)[size]) : m_Size(size - 1) {
        static_assert(size - 1 <= k_Room);
        for (size_t i = 0; i < m_Size; ++i)
            m_Text[i] = IsPlain(word[i]) ? word[i] : throw "a keyword has letters and digits only";
    }

    constexpr std::string_view GetText() const { return {m_Text, m_Size}; }
    /// Puts the text at `to`, which has room for `k_Room` characters, and returns its end. To copy a known size is
    /// quicker than to copy no more than the text.
    char* Put(char* to) const {
        std::memcpy(to, m_Text, k_Room);
        return to + m_Size;
    }

    static constexpr size_t k_Room = 16;

private:
    static constexpr bool IsPlain(char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
    }

    char m_Text[k_Room] = {};
    size_t m_Size;
};

} // namespace io

#endif
