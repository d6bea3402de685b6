#ifndef QRL_BLOCKS_ASTRING_H
#define QRL_BLOCKS_ASTRING_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// The wide string of the system: a sequence of 16-bit units.
///
/// Narrow text is UTF-8. Any narrow text survives the way in and out unchanged: a byte that isn't part of valid UTF-8
/// is held as the lone unit 0xDC00 + byte, and goes back out as that byte. Positions and sizes count units, so that a
/// character outside the basic plane counts twice.
///
/// A handle: copies share the text until one of them changes, and cost one increment. So all that lies on a layer
/// shares the layer's name. For one thread at a time.
class AString {
public:
    static constexpr size_t npos = std::u16string::npos;

    AString() = default;
    AString(const AString& other) : m_Text(other.Share()) {}
    AString(AString&& other) noexcept : m_Text(std::exchange(other.m_Text, nullptr)) {}
    AString& operator=(const AString& other) {
        AString share(other);
        std::swap(m_Text, share.m_Text);
        return *this;
    }
    AString& operator=(AString&& other) noexcept {
        std::swap(m_Text, other.m_Text);
        return *this;
    }
    // The analyzer doesn't follow the count.
    // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDelete,clang-analyzer-cplusplus.NewDeleteLeaks)
    ~AString() { Release(m_Text); }
    AString(const char* narrow) : AString(std::string_view(narrow)) {} // NOLINT(google-explicit-constructor)
    AString(const wchar_t* wide);                                      // NOLINT(google-explicit-constructor)
    /// Widens `narrow`, which may hold any bytes, NUL included.
    explicit AString(std::string_view narrow);
    explicit AString(std::u16string_view units);

    /// Replaces the text.
    void assign(const char* narrow) { *this = AString(narrow); }
    void assign(const wchar_t* wide) { *this = AString(wide); }

    size_t size() const { return GetUnits().size(); }
    size_t length() const { return size(); }
    bool empty() const { return m_Text == nullptr; }
    const char16_t* c_str() const { return GetUnits().data(); }
    /// The unit at `index`, which must be below `size()`. Through the reference of the first, which is good until the
    /// text is replaced, the unit can be changed; copies don't notice.
    char16_t& operator[](size_t index);
    char16_t operator[](size_t index) const { return GetUnits()[index]; }

    /// The first or last `n` units. An `n` outside 0 to `size()` takes what there is.
    AString Left(ptrdiff_t n) const;
    AString Right(ptrdiff_t n) const;

    AString operator+(const AString& tail) const;
    bool operator==(const AString& other) const { return m_Text == other.m_Text || GetUnits() == other.GetUnits(); }
    /// Unit by unit; the order of a net's pins.
    bool operator<(std::u16string_view other) const { return GetUnits() < other; }
    bool operator<(const AString& other) const { return GetUnits() < other.GetUnits(); }

    /// 0 for equal texts, else the sign of the unit by unit comparison. `CompareNoCase` folds the letters A to Z only.
    /// A key is the same for texts that are equal, or equal but for that case.
    int Compare(const AString& other) const;
    int CompareNoCase(const AString& other) const;
    int CompareNoCase(const char* narrow) const;
    uint64_t GetKey() const;
    uint64_t GetKeyNoCase() const;

    /// Position of the first `text` at or behind `from`, `npos` when there is none.
    size_t find(const AString& text, size_t from = 0) const { return GetUnits().find(text.GetUnits(), from); }
    /// Replaces `count` units from `pos` on by `text`. A `pos` behind the end changes nothing.
    void replace(size_t pos, size_t count, const AString& text);

    /// Sets the text from `format`, in which each `%s` and `%d` takes the next argument, whatever its type, and `%%`
    /// stands for a percent sign. A placeholder without an argument stays as it is; arguments without one are dropped.
    template <class... Args>
    void Format(const wchar_t* format, const Args&... args) {
        FormatPieces(format, {Piece(args)...});
    }

    /// Removes space, tab, CR, LF, VT and FF at both ends.
    void Trim();

    /// Wildcard test of the whole text against `pattern`: `*` is any run of characters, also an empty one, `?` any
    /// single one. Case matters.
    bool Match(const AString& pattern) const;

    /// Splits the text at each unit that stands in `delimiters`, appends the pieces to `pieces` and returns how many
    /// there were. Empty pieces are dropped unless `keepEmpty`.
    int TokenizeString(const AString& delimiters, std::vector<AString>& pieces, bool keepEmpty = false) const;

    /// True when the whole text is a number in `base` (2 to 36): an optional sign, then digits, nothing else, with a
    /// value that fits 32 bits. Sets `value` only then.
    bool IsNumber(int& value, int base) const;

    /// The narrow form, the only way to narrow output. All copies share it.
    std::string QRL_ANSI() const { return std::string(GetNarrow()); }
    /// The same in the memory of the text, which lives as long as one of its handles. Never a null pointer.
    std::string_view GetNarrow() const;

private:
    /// What the copies share, in one piece of memory: behind this the units with a NUL, and behind that the narrow
    /// form. An empty text has none.
    struct Text {
        uint32_t m_Users;
        bool m_IsOpen; ///< someone may hold a reference to a unit: not to be shared any more
        uint32_t m_Size;
        uint32_t m_NarrowSize; ///< of one that is open, as of when it was last asked for

        char16_t* GetUnits() { return reinterpret_cast<char16_t*>(this + 1); }
        char* GetNarrow() { return reinterpret_cast<char*>(GetUnits() + m_Size + 1); }
    };

    /// An argument of a format.
    class Piece {
    public:
        explicit Piece(long number);
        explicit Piece(int number) : Piece(static_cast<long>(number)) {}
        explicit Piece(const char16_t* text) : m_Text(text) {}
        explicit Piece(const AString& text) : m_Text(text.GetUnits()) {}
        Piece(const Piece&) = delete;
        Piece& operator=(const Piece&) = delete;
        ~Piece() = default;

        std::u16string_view GetText() const { return m_Text; }

    private:
        std::array<char16_t, 20> m_Digits = {}; ///< of the longest number, with its sign
        std::u16string_view m_Text;
    };

    Text* Share() const {
        if (m_Text == nullptr || m_Text->m_IsOpen)
            return Make(GetUnits());
        ++m_Text->m_Users;
        return m_Text;
    }
    static void Release(Text* text) {
        if (text != nullptr && --text->m_Users == 0)
            ::operator delete(text);
    }
    /// A text with room for both forms, which are to be filled in.
    static Text* Allocate(size_t size, size_t narrowSize);
    static Text* Make(std::u16string_view units);
    static Text* MakeOpen(std::u16string_view units);
    std::u16string_view GetUnits() const {
        return m_Text == nullptr ? std::u16string_view(u"") : std::u16string_view(m_Text->GetUnits(), m_Text->m_Size);
    }
    void FormatPieces(const wchar_t* format, std::initializer_list<Piece> pieces);

    Text* m_Text = nullptr;
};

namespace io {

/// Whether a key tells the whole text, as that of up to seven plain characters does: texts with this key are equal. Any
/// other key is a hash.
constexpr bool IsWholeKey_G(uint64_t key) { return key >> 63 == 0; }
/// What `AString(narrow).GetKeyNoCase()` gives, without making it. Nothing where a character isn't of 7 bits.
std::optional<uint64_t> KeyNoCase_G(std::string_view narrow);

/// Whether two narrow texts are equal when the letters A to Z are folded: what `AString::CompareNoCase` tells of their
/// wide forms, without making them. `HasEqualLettersNoCase_G` is its part for texts of one size. Most texts that differ
/// do so in their first letter, and most that are equal are so in their case too.
bool HasEqualLettersNoCase_G(std::string_view a, std::string_view b);
inline bool EqualsNoCase_G(std::string_view a, std::string_view b) {
    constexpr int k_CaseBit = 'a' - 'A';
    if (a.size() != b.size() || (!a.empty() && ((a.front() ^ b.front()) & ~k_CaseBit) != 0))
        return false;
    return a == b || HasEqualLettersNoCase_G(a, b);
}

} // namespace io

#endif
