// Changes boards as a board designer's tool or a careless editor might: whole lists move, vanish and come twice,
// keywords take each other's place, numbers meet. Most of what comes out still reads as lists, so that the readers
// behind the list reader are reached, which random bytes hardly do.

#include "fuzz/FuzzTarget.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <random>
#include <string>
#include <vector>

/// libFuzzer's own changes of bytes.
extern "C" size_t LLVMFuzzerMutate(uint8_t* data, size_t size, size_t maxSize);

namespace {

constexpr std::string_view k_Keywords[] = {
#include "fuzz/Keywords.inc"
};

/// Numbers at which something may change: signs, quarter turns, limits of types.
constexpr double k_Landmarks[] = {0, -0.0, 1, 90, 180, 360, 1e-10, 1e-300, 5e-324, 1e15, 1e300, 1.7e308, 2147483647,
    -2147483648.0, 4294967296.0, 9223372036854775807.0};

constexpr std::string_view k_Blanks = " \t\r\n\v\f";

/// A list with its parentheses, or a word, in a text.
struct Piece {
    size_t m_Begin = 0;
    size_t m_End = 0;
};

class ListMutator {
public:
    ListMutator(std::string_view text, unsigned seed) : m_Text(text), m_Random(seed) { FindPieces(); }

    bool HasLists() const { return !m_Lists.empty(); }
    const std::string& GetText() const { return m_Text; }

    /// Changes one thing.
    void Mutate();
    /// Puts a list of another board somewhere into this one.
    void GraftFrom(ListMutator& other) { Graft(other.Get(other.Pick(other.m_Lists))); }

private:
    void FindPieces();
    size_t SkipWord(size_t at) const;
    bool ReadNumber(Piece word, double& value) const;

    void SwapLists();
    void Graft(const std::string& list);
    void ExchangeWord();
    void ChangeNumber();
    double ChangeValue(double value);
    double MoveALittle(double value);

    size_t Roll(size_t sides) { return m_Random() % sides; }
    Piece Pick(const std::vector<Piece>& pieces) { return pieces[Roll(pieces.size())]; }
    std::string Get(Piece piece) const { return m_Text.substr(piece.m_Begin, piece.m_End - piece.m_Begin); }
    void Replace(Piece piece, const std::string& text) {
        m_Text.replace(piece.m_Begin, piece.m_End - piece.m_Begin, text);
    }

    std::string m_Text;
    std::minstd_rand m_Random;
    std::vector<Piece> m_Lists;
    std::vector<Piece> m_Words; ///< numbers too
    std::vector<Piece> m_Numbers;
};

void ListMutator::FindPieces() {
    m_Lists.clear();
    m_Words.clear();
    m_Numbers.clear();
    std::vector<size_t> open;
    for (size_t at = 0; at < m_Text.size();) {
        const char c = m_Text[at];
        if (c == ';' || c == '"') {
            at = std::min(m_Text.find(c == ';' ? '\n' : '"', at + 1), m_Text.size() - 1) + 1;
        } else if (c == '(') {
            open.push_back(at++);
        } else if (c == ')') {
            ++at;
            if (open.empty())
                continue;
            m_Lists.push_back({open.back(), at});
            open.pop_back();
        } else if (k_Blanks.find(c) != std::string_view::npos) {
            ++at;
        } else {
            const Piece word = {at, SkipWord(at)};
            double value = 0;
            m_Words.push_back(word);
            if (ReadNumber(word, value))
                m_Numbers.push_back(word);
            at = word.m_End;
        }
    }
}

size_t ListMutator::SkipWord(size_t at) const {
    return std::min(m_Text.find_first_of(" \t\r\n\v\f();", at), m_Text.size());
}

bool ListMutator::ReadNumber(Piece word, double& value) const {
    const char* end = m_Text.data() + word.m_End;
    const std::from_chars_result result = std::from_chars(m_Text.data() + word.m_Begin, end, value);
    return result.ec == std::errc() && result.ptr == end && std::isfinite(value);
}

void ListMutator::Mutate() {
    switch (Roll(8)) {
    case 0:
        SwapLists();
        break;
    case 1:
        Replace(Pick(m_Lists), "");
        break;
    case 2: {
        const Piece list = Pick(m_Lists);
        m_Text.insert(list.m_End, Get(list));
        break;
    }
    case 3:
        Graft(Get(Pick(m_Lists)));
        break;
    case 4:
        ExchangeWord();
        break;
    default:
        ChangeNumber();
    }
    FindPieces();
}

/// Two lists of which one holds the other change nothing.
void ListMutator::SwapLists() {
    Piece first = Pick(m_Lists);
    Piece second = Pick(m_Lists);
    if (second.m_Begin < first.m_Begin)
        std::swap(first, second);
    if (second.m_Begin < first.m_End)
        return;
    const std::string firstText = Get(first);
    const std::string secondText = Get(second);
    Replace(second, firstText);
    Replace(first, secondText);
}

/// In place of a list, ahead of it, or as its last element.
void ListMutator::Graft(const std::string& list) {
    const Piece place = Pick(m_Lists);
    switch (Roll(3)) {
    case 0:
        Replace(place, list);
        break;
    case 1:
        m_Text.insert(place.m_Begin, list);
        break;
    default:
        m_Text.insert(place.m_End - 1, list);
    }
}

/// By a word that the readers know, or by another one of the board: names find each other, numbers meet names.
void ListMutator::ExchangeWord() {
    if (m_Words.empty())
        return;
    const std::string word = Roll(2) == 0 ? std::string(k_Keywords[Roll(std::size(k_Keywords))]) : Get(Pick(m_Words));
    Replace(Pick(m_Words), word);
}

void ListMutator::ChangeNumber() {
    if (m_Numbers.empty())
        return;
    const Piece place = Pick(m_Numbers);
    double value = 0;
    ReadNumber(place, value);
    char text[40];
    const std::to_chars_result result = std::to_chars(std::begin(text), std::end(text), ChangeValue(value));
    Replace(place, std::string(text, result.ptr));
}

double ListMutator::ChangeValue(double value) {
    double other = 0;
    switch (Roll(6)) {
    case 0:
        return k_Landmarks[Roll(std::size(k_Landmarks))];
    case 1:
        return -value;
    case 2:
        return Roll(2) == 0 ? value * 2 : value / 2;
    case 3:
        ReadNumber(Pick(m_Numbers), other);
        return other;
    case 4:
        ReadNumber(Pick(m_Numbers), other);
        return MoveALittle(other);
    default:
        return MoveALittle(value);
    }
}

/// Across some tolerance: by a power of ten from 1 to 1e-16, absolute or relative, or by a unit in the last place.
double ListMutator::MoveALittle(double value) {
    const double step = std::pow(10.0, -static_cast<double>(Roll(17))) * (Roll(2) == 0 ? 1 : -1);
    switch (Roll(3)) {
    case 0:
        return value + step;
    case 1:
        return value * (1 + step);
    default:
        return std::nextafter(value, std::numeric_limits<double>::infinity() * step);
    }
}

/// Puts the board into `data`, and gives its size. Gives 0 for one that is too long for it.
size_t CopyOut(const ListMutator& board, uint8_t* data, size_t maxSize) {
    const std::string& text = board.GetText();
    if (text.size() > maxSize)
        return 0;
    std::copy(text.begin(), text.end(), data);
    return text.size();
}

} // namespace

/// Called by the fuzzer in place of its own changes, which still make a quarter of all.
extern "C" size_t LLVMFuzzerCustomMutator(uint8_t* data, size_t size, size_t maxSize, unsigned seed) {
    constexpr unsigned k_Kinds = 4; ///< none, so that it is the fuzzer's turn, or one to three changes
    ListMutator board(TextOfInput(data, size), seed);
    const unsigned changes = seed % k_Kinds;
    for (unsigned i = 0; i != changes && board.HasLists(); ++i)
        board.Mutate();
    const size_t newSize = changes == 0 ? 0 : CopyOut(board, data, maxSize);
    return newSize != 0 ? newSize : LLVMFuzzerMutate(data, size, maxSize);
}

/// Called by the fuzzer with two boards of its corpus.
extern "C" size_t LLVMFuzzerCustomCrossOver(const uint8_t* data1, size_t size1, const uint8_t* data2, size_t size2,
    uint8_t* out, size_t maxSize, unsigned seed) {
    ListMutator board(TextOfInput(data1, size1), seed);
    ListMutator other(TextOfInput(data2, size2), seed + 1);
    if (!board.HasLists() || !other.HasLists())
        return 0;
    board.GraftFrom(other);
    return CopyOut(board, out, maxSize);
}
