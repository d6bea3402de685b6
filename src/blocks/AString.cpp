#include "blocks/AString.h"

#include "lib/utils/HashFactor.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cstdint>
#include <limits>
#include <new>
#include <stdexcept>
#include <utility>

namespace {

constexpr char16_t k_HighSurrogate = 0xD800;
constexpr char16_t k_LowSurrogate = 0xDC00;
constexpr uint32_t k_FirstSupplementary = 0x10000;

bool IsHighSurrogate(char16_t unit) { return (unit & 0xFC00) == k_HighSurrogate; }
bool IsLowSurrogate(char16_t unit) { return (unit & 0xFC00) == k_LowSurrogate; }
bool IsEscapedByte(char16_t unit) { return unit >= k_LowSurrogate + 0x80 && unit <= k_LowSurrogate + 0xFF; }

void AppendCodePoint(std::u16string& units, uint32_t code) {
    if (code < k_FirstSupplementary) {
        units += static_cast<char16_t>(code);
        return;
    }
    code -= k_FirstSupplementary;
    units += static_cast<char16_t>(k_HighSurrogate + (code >> 10));
    units += static_cast<char16_t>(k_LowSurrogate + (code & 0x3FF));
}

/// Length of the UTF-8 sequence that `text` begins with and its code, or length 0 when it begins with none. The
/// shortest form only, no surrogates, nothing above U+10FFFF.
size_t DecodeUtf8(std::string_view text, uint32_t& code) {
    const auto byte = [&](size_t i) { return static_cast<uint8_t>(text[i]); };
    const uint8_t lead = byte(0);
    if (lead < 0x80) {
        code = lead;
        return 1;
    }
    const size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || text.size() < length)
        return 0;
    code = lead & (0x7FU >> length);
    for (size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0) != 0x80)
            return 0;
        code = code << 6 | (byte(i) & 0x3FU);
    }
    constexpr uint32_t k_Smallest[] = {0, 0, 0x80, 0x800, k_FirstSupplementary};
    const bool isSurrogate = code >= k_HighSurrogate && code <= 0xDFFF;
    return code < k_Smallest[length] || code > 0x10FFFF || isSurrogate ? 0 : length;
}

/// Puts the UTF-8 sequence of the code at `to` and returns its end.
char* PutUtf8(char* to, uint32_t code) {
    const auto put = [&](uint32_t byte) { *to++ = static_cast<char>(static_cast<uint8_t>(byte)); };
    if (code < 0x80) {
        put(code);
    } else if (code < 0x800) {
        put(0xC0 | code >> 6);
        put(0x80 | (code & 0x3F));
    } else if (code < k_FirstSupplementary) {
        put(0xE0 | code >> 12);
        put(0x80 | (code >> 6 & 0x3F));
        put(0x80 | (code & 0x3F));
    } else {
        put(0xF0 | code >> 18);
        put(0x80 | (code >> 12 & 0x3F));
        put(0x80 | (code >> 6 & 0x3F));
        put(0x80 | (code & 0x3F));
    }
    return to;
}

/// Whether both forms of the text have the same numbers.
template <class Text>
bool IsAscii_T(Text text) {
    uint32_t all = 0;
    for (const auto unit : text)
        all |= static_cast<uint32_t>(unit);
    return all < 0x80;
}

constexpr char16_t Fold(char16_t unit) { return unit >= u'A' && unit <= u'Z' ? unit + (u'a' - u'A') : unit; }

constexpr char FoldNarrow(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; }

/// The sign of the comparison with `other`, whose characters are units or ASCII.
template <class Other>
int CompareNoCase_T(std::u16string_view units, Other other) {
    const size_t common = std::min(units.size(), other.size());
    for (size_t i = 0; i < common; ++i) {
        const char16_t a = Fold(units[i]);
        const char16_t b = Fold(static_cast<char16_t>(other[i]));
        if (a != b)
            return a < b ? -1 : 1;
    }
    return (units.size() > other.size()) - (units.size() < other.size());
}

/// Seven plain characters and their number stand in the key itself.
template <class Text, class Change>
uint64_t MakeKey_T(Text text, const Change& change) {
    constexpr uint64_t k_IsHash = uint64_t{1} << 63;
    constexpr size_t k_Packed = 7;
    if (text.size() <= k_Packed && IsAscii_T(text)) {
        uint64_t key = text.size();
        for (const auto unit : text)
            key = key << 8 | static_cast<uint64_t>(change(unit));
        return key;
    }
    uint64_t hash = text.size();
    for (const auto unit : text)
        hash = (std::rotl(hash, 32) ^ static_cast<uint64_t>(change(unit))) * base::k_HashFactor;
    return hash >> 1 | k_IsHash;
}

constexpr std::u16string_view k_Blanks = u" \t\r\n\v\f";

std::u16string Widen(std::string_view narrow) {
    const auto isPlain = [](char c) { return static_cast<uint8_t>(c) < 0x80; };
    const auto firstOther = std::find_if_not(narrow.begin(), narrow.end(), isPlain);
    std::u16string units(narrow.begin(), firstOther);
    narrow = {firstOther, narrow.end()};
    while (!narrow.empty()) {
        uint32_t code = 0;
        const size_t length = DecodeUtf8(narrow, code);
        if (length == 0)
            units += static_cast<char16_t>(k_LowSurrogate + static_cast<uint8_t>(narrow.front()));
        else
            AppendCodePoint(units, code);
        narrow.remove_prefix(std::max<size_t>(length, 1));
    }
    return units;
}

std::u16string Widen(const wchar_t* wide) {
    std::u16string units;
    for (; *wide != L'\0'; ++wide)
        AppendCodePoint(units, static_cast<uint32_t>(*wide));
    return units;
}

/// The most bytes that the narrow form has for a unit. A character outside the basic plane takes four for its two.
constexpr size_t k_MostBytesPerUnit = 3;

/// Puts the narrow form of the units at `to` and returns its end.
char* PutNarrow(char* to, std::u16string_view units) {
    for (size_t i = 0; i < units.size(); ++i) {
        const char16_t unit = units[i];
        if (IsHighSurrogate(unit) && i + 1 < units.size() && IsLowSurrogate(units[i + 1])) {
            ++i;
            const uint32_t high = static_cast<uint32_t>(unit - k_HighSurrogate) << 10;
            to = PutUtf8(to, k_FirstSupplementary + high + static_cast<uint32_t>(units[i] - k_LowSurrogate));
        } else if (IsEscapedByte(unit)) {
            *to++ = static_cast<char>(static_cast<uint8_t>(unit - k_LowSurrogate));
        } else {
            to = PutUtf8(to, unit);
        }
    }
    return to;
}

std::string Narrow(std::u16string_view units) {
    std::string text(units.size() * k_MostBytesPerUnit, '\0');
    text.resize(static_cast<size_t>(PutNarrow(text.data(), units) - text.data()));
    return text;
}

} // namespace

AString::AString(std::u16string_view units) : m_Text(Make(units)) {}

AString::AString(std::string_view narrow) {
    if (!IsAscii_T(narrow)) {
        m_Text = Make(Widen(narrow));
    } else if (!narrow.empty()) {
        m_Text = Allocate(narrow.size(), narrow.size());
        std::copy(narrow.begin(), narrow.end(), m_Text->GetUnits());
        std::copy(narrow.begin(), narrow.end(), m_Text->GetNarrow());
    }
}

AString::AString(const wchar_t* wide) : AString(Widen(wide)) {}

AString::Text* AString::Allocate(size_t size, size_t narrowSize) {
    if (std::max(size, narrowSize) > std::numeric_limits<uint32_t>::max())
        throw std::length_error("AString");
    void* memory = ::operator new(sizeof(Text) + (size + 1) * sizeof(char16_t) + narrowSize);
    Text* text = new (memory) Text{1, false, static_cast<uint32_t>(size), static_cast<uint32_t>(narrowSize)};
    text->GetUnits()[size] = u'\0';
    return text;
}

AString::Text* AString::Make(std::u16string_view units) {
    if (units.empty())
        return nullptr;
    const bool isAscii = IsAscii_T(units);
    const std::string narrow = isAscii ? std::string() : Narrow(units);
    Text* text = Allocate(units.size(), isAscii ? units.size() : narrow.size());
    std::copy(units.begin(), units.end(), text->GetUnits());
    if (isAscii)
        std::transform(
            units.begin(), units.end(), text->GetNarrow(), [](char16_t unit) { return static_cast<char>(unit); });
    else
        std::copy(narrow.begin(), narrow.end(), text->GetNarrow());
    return text;
}

/// With room for the narrow form of whatever becomes of the units.
AString::Text* AString::MakeOpen(std::u16string_view units) {
    Text* text = Allocate(units.size(), units.size() * k_MostBytesPerUnit);
    std::copy(units.begin(), units.end(), text->GetUnits());
    text->m_IsOpen = true;
    return text;
}

char16_t& AString::operator[](size_t index) {
    if (!m_Text->m_IsOpen) {
        AString open;
        open.m_Text = MakeOpen(GetUnits());
        std::swap(m_Text, open.m_Text);
    }
    return m_Text->GetUnits()[index];
}

AString AString::operator+(const AString& tail) const {
    std::u16string sum(GetUnits());
    sum += tail.GetUnits();
    return AString(sum);
}

AString AString::Left(ptrdiff_t n) const {
    const auto size = static_cast<ptrdiff_t>(GetUnits().size());
    return n < 0 || n > size ? *this : AString(GetUnits().substr(0, static_cast<size_t>(n)));
}

AString AString::Right(ptrdiff_t n) const {
    const auto size = static_cast<ptrdiff_t>(GetUnits().size());
    return n < 0 || n > size ? *this : AString(GetUnits().substr(static_cast<size_t>(size - n)));
}

int AString::Compare(const AString& other) const {
    const int order = GetUnits().compare(other.GetUnits());
    return (order > 0) - (order < 0);
}

int AString::CompareNoCase(const AString& other) const { return CompareNoCase_T(GetUnits(), other.GetUnits()); }

/// A keyword needs no text of its own to be compared with.
int AString::CompareNoCase(const char* narrow) const {
    const std::string_view other = narrow;
    return IsAscii_T(other) ? CompareNoCase_T(GetUnits(), other) : CompareNoCase(AString(other));
}

uint64_t AString::GetKey() const {
    return MakeKey_T(GetUnits(), [](char16_t unit) { return unit; });
}

uint64_t AString::GetKeyNoCase() const { return MakeKey_T(GetUnits(), Fold); }

void AString::replace(size_t pos, size_t count, const AString& text) {
    if (pos > size())
        return;
    if (empty()) {
        *this = text;
        return;
    }
    std::u16string units(GetUnits());
    units.replace(pos, count, text.GetUnits());
    *this = AString(units);
}

void AString::Trim() {
    const std::u16string_view units = GetUnits();
    const size_t first = units.find_first_not_of(k_Blanks);
    if (first == npos)
        *this = AString();
    else
        *this = AString(units.substr(first, units.find_last_not_of(k_Blanks) + 1 - first));
}

/// Walks text and pattern together. On a mismatch it goes back to the last `*` and lets that take one unit more. An
/// earlier `*` never has to be tried again, as the last one can take over whatever it would have taken.
bool AString::Match(const AString& pattern) const {
    const std::u16string_view mask = pattern.GetUnits();
    size_t at = 0;
    size_t maskAt = 0;
    size_t star = npos;
    size_t starEnd = 0;
    while (at < size()) {
        if (maskAt < mask.size() && mask[maskAt] == u'*') {
            star = maskAt++;
            starEnd = at;
        } else if (maskAt < mask.size() && (mask[maskAt] == u'?' || mask[maskAt] == GetUnits()[at])) {
            ++at;
            ++maskAt;
        } else if (star != npos) {
            maskAt = star + 1;
            at = ++starEnd;
        } else {
            return false;
        }
    }
    return mask.find_first_not_of(u'*', maskAt) == npos;
}

int AString::TokenizeString(const AString& delimiters, std::vector<AString>& pieces, bool keepEmpty) const {
    const size_t before = pieces.size();
    size_t start = 0;
    while (start <= size()) {
        const size_t end = std::min(GetUnits().find_first_of(delimiters.GetUnits(), start), size());
        const bool isKept = keepEmpty || end > start;
        if (isKept && end - start == size())
            pieces.push_back(*this);
        else if (isKept)
            pieces.emplace_back(GetUnits().substr(start, end - start));
        start = end + 1;
    }
    return static_cast<int>(pieces.size() - before);
}

bool AString::IsNumber(int& value, int base) const {
    const std::string_view text = GetNarrow();
    const bool hasPlus = !text.empty() && text.front() == '+';
    const char* first = text.data() + (hasPlus ? 1 : 0);
    const char* last = text.data() + text.size();
    if (hasPlus && first != last && *first == '-')
        return false;
    int parsed = 0;
    const auto [end, error] = std::from_chars(first, last, parsed, base);
    if (error != std::errc() || end != last)
        return false;
    value = parsed;
    return true;
}

std::string_view AString::GetNarrow() const {
    if (m_Text == nullptr)
        return "";
    char* narrow = m_Text->GetNarrow();
    if (m_Text->m_IsOpen)
        m_Text->m_NarrowSize = static_cast<uint32_t>(PutNarrow(narrow, GetUnits()) - narrow);
    return {narrow, m_Text->m_NarrowSize};
}

AString::Piece::Piece(long number) {
    std::array<char, 20> digits{};
    const char* end = std::to_chars(digits.begin(), digits.end(), number).ptr;
    const auto count = static_cast<size_t>(end - digits.data());
    std::copy_n(digits.begin(), count, m_Digits.begin());
    m_Text = std::u16string_view(m_Digits.data(), count);
}

void AString::FormatPieces(const wchar_t* format, std::initializer_list<Piece> pieces) {
    std::u16string text;
    const Piece* next = pieces.begin();
    for (; *format != L'\0'; ++format) {
        const wchar_t kind = *format == L'%' ? format[1] : L'\0';
        const bool takesPiece = (kind == L's' || kind == L'd') && next != pieces.end();
        if (takesPiece)
            text += (next++)->GetText();
        else
            AppendCodePoint(text, static_cast<uint32_t>(*format));
        if (takesPiece || kind == L'%')
            ++format;
    }
    *this = AString(text);
}

std::optional<uint64_t> io::KeyNoCase_G(std::string_view narrow) {
    return IsAscii_T(narrow) ? std::optional(MakeKey_T(narrow, FoldNarrow)) : std::nullopt;
}

bool io::HasEqualLettersNoCase_G(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) { return FoldNarrow(x) == FoldNarrow(y); });
}
