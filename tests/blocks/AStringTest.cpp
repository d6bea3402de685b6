#include "blocks/AString.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <random>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace std::string_literals;

std::u16string UnitsOf(const AString& text) { return {text.c_str(), text.size()}; }

std::vector<std::string> NarrowOf(const std::vector<AString>& texts) {
    std::vector<std::string> narrow;
    for (const AString& text : texts)
        narrow.push_back(text.QRL_ANSI());
    return narrow;
}

TEST(AStringTest, ADefaultTextIsEmpty) {
    const AString text;
    EXPECT_TRUE(text.empty());
    EXPECT_EQ(text.size(), 0U);
    EXPECT_EQ(text.c_str()[0], u'\0');
    EXPECT_EQ(text.QRL_ANSI(), "");
}

TEST(AStringTest, NarrowTextIsWidened) {
    EXPECT_EQ(UnitsOf("A\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80"), u"A\u00E9\u20AC\xD83D\xDE00");
}

TEST(AStringTest, WideTextGivesTheSameUnits) {
    EXPECT_EQ(UnitsOf(L"A\u00E9\u20AC\U0001F600"), u"A\u00E9\u20AC\xD83D\xDE00");
    EXPECT_TRUE(AString(L"").empty());
}

TEST(AStringTest, AssignReplacesTheText) {
    AString text("long before");
    text.assign("\xC3\xA9");
    EXPECT_EQ(UnitsOf(text), u"\u00E9");
    text.assign(L"\u20AC!");
    EXPECT_EQ(UnitsOf(text), u"\u20AC!");
}

TEST(AStringTest, ACopyDoesNotSeeLaterChanges) {
    AString text("abc");
    const AString copy = text;
    AString assigned("x");
    assigned = text;
    text[0] = u'Z';
    EXPECT_EQ(text.QRL_ANSI(), "Zbc");
    EXPECT_EQ(copy.QRL_ANSI(), "abc");
    EXPECT_EQ(assigned.QRL_ANSI(), "abc");
}

TEST(AStringTest, AReferenceToAUnitReachesItsTextAlone) {
    AString text("abc");
    const AString before = text;
    char16_t& unit = text[0];
    const AString behind = text;
    EXPECT_EQ(text.QRL_ANSI(), "abc");
    unit = u'Z';
    EXPECT_EQ(text.QRL_ANSI(), "Zbc");
    EXPECT_EQ(before.QRL_ANSI(), "abc");
    EXPECT_EQ(behind.QRL_ANSI(), "abc");
}

TEST(AStringTest, CopiesShareOneNarrowText) {
    const AString text("a text that a copy would have to make anew");
    const AString copy = text;
    EXPECT_EQ(text.GetNarrow(), "a text that a copy would have to make anew");
    EXPECT_EQ(copy.GetNarrow().data(), text.GetNarrow().data());
    EXPECT_EQ(AString().GetNarrow(), "");
}

TEST(AStringTest, SizeCountsUnits) {
    const AString text("A\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80");
    EXPECT_EQ(text.size(), 5U);
    EXPECT_EQ(text.length(), 5U);
    EXPECT_FALSE(text.empty());
}

TEST(AStringTest, AnIndexReachesOneUnit) {
    AString text("abc");
    text[1] = u'\u20AC';
    EXPECT_EQ(text.QRL_ANSI(), "a\xE2\x82\xAC"
                               "c");
    const AString& view = text;
    EXPECT_EQ(view[2], u'c');
}

TEST(AStringTest, ChangedUnitsCanTakeMoreBytes) {
    AString text("ab");
    text[0] = u'\u20AC';
    EXPECT_EQ(text.GetNarrow(), "\xE2\x82\xAC"
                                "b");
    text[1] = u'\u20AC';
    EXPECT_EQ(text.GetNarrow(), "\xE2\x82\xAC\xE2\x82\xAC");
    text[0] = u'a';
    EXPECT_EQ(text.GetNarrow(), "a\xE2\x82\xAC");
}

TEST(AStringTest, BytesThatAreNoUtf8BecomeLoneUnits) {
    struct Row {
        const char* m_Name;
        std::string m_Bytes;
        std::u16string m_Units;
    };
    // clang-format off
    const Row rows[] = {
        {"last of one byte",             "\x7F",                 u"\x007F"},
        {"first of two bytes",           "\xC2\x80",             u"\x0080"},
        {"last of two bytes",            "\xDF\xBF",             u"\x07FF"},
        {"first of three bytes",         "\xE0\xA0\x80",         u"\x0800"},
        {"last ahead of the surrogates", "\xED\x9F\xBF",         u"\xD7FF"},
        {"first behind the surrogates",  "\xEE\x80\x80",         u"\xE000"},
        {"last of three bytes",          "\xEF\xBF\xBF",         u"\xFFFF"},
        {"first of four bytes",          "\xF0\x90\x80\x80",     u"\xD800\xDC00"},
        {"last of all",                  "\xF4\x8F\xBF\xBF",     u"\xDBFF\xDFFF"},
        {"lone continuation",            "\x80",                 u"\xDC80"},
        {"two byte form of a slash",     "\xC0\xAF",             u"\xDCC0\xDCAF"},
        {"two byte form of U+007F",      "\xC1\xBF",             u"\xDCC1\xDCBF"},
        {"three byte form of U+07FF",    "\xE0\x9F\xBF",         u"\xDCE0\xDC9F\xDCBF"},
        {"four byte form of U+FFFF",     "\xF0\x8F\xBF\xBF",     u"\xDCF0\xDC8F\xDCBF\xDCBF"},
        {"first surrogate",              "\xED\xA0\x80",         u"\xDCED\xDCA0\xDC80"},
        {"last surrogate",               "\xED\xBF\xBF",         u"\xDCED\xDCBF\xDCBF"},
        {"first above all",              "\xF4\x90\x80\x80",     u"\xDCF4\xDC90\xDC80\xDC80"},
        {"lead of five bytes",           "\xF8\x88\x80\x80\x80", u"\xDCF8\xDC88\xDC80\xDC80\xDC80"},
        {"byte that never occurs",       "\xFF",                 u"\xDCFF"},
        {"two bytes cut",                "\xC3",                 u"\xDCC3"},
        {"three bytes cut",              "\xE2\x82",             u"\xDCE2\xDC82"},
        {"four bytes cut",               "\xF0\x9F\x98",         u"\xDCF0\xDC9F\xDC98"},
        {"cut by a letter",              "\xE2\x82""A",          u"\xDCE2\xDC82""A"},
        {"cut by the next character",    "\xE2\xC3\xA9",         u"\xDCE2\x00E9"},
        {"Shift-JIS of a katakana",      "\x83\x5C",             u"\xDC83\\"},
    };
    // clang-format on
    for (const Row& row : rows) {
        const AString text{std::string_view(row.m_Bytes)};
        EXPECT_EQ(UnitsOf(text), row.m_Units) << row.m_Name;
        EXPECT_EQ(text.QRL_ANSI(), row.m_Bytes) << row.m_Name;
    }
}

TEST(AStringTest, EveryPairOfBytesPassesUnchanged) {
    for (int first = 0; first < 256; ++first)
        for (int second = 0; second < 256; ++second) {
            const std::string bytes = {static_cast<char>(first), static_cast<char>(second)};
            ASSERT_EQ(AString(std::string_view(bytes)).QRL_ANSI(), bytes) << first << ' ' << second;
        }
}

TEST(AStringTest, AnyBytesPassUnchanged) {
    std::mt19937 random(20240501);
    constexpr std::string_view k_Telling = "\x80\xBF\xC2\xDF\xE0\xED\xEF\xF0\xF4\xA0\x9F\x90\x8F"
                                           "A";
    for (int i = 0; i < 20000; ++i) {
        std::string bytes(random() % 12, '\0');
        for (char& byte : bytes)
            byte = random() % 4 == 0 ? static_cast<char>(random() % 256) : k_Telling[random() % k_Telling.size()];
        ASSERT_EQ(AString(std::string_view(bytes)).QRL_ANSI(), bytes);
    }
}

TEST(AStringTest, ACutCharacterGoesOutAsTheThreeBytesOfItsHalf) {
    const AString face("\xF0\x9F\x98\x80");
    EXPECT_EQ(face.Left(1).QRL_ANSI(), "\xED\xA0\xBD");
    EXPECT_EQ(face.Right(1).QRL_ANSI(), "\xED\xB8\x80");
    EXPECT_EQ((face.Right(1) + face.Left(1)).QRL_ANSI(), "\xED\xB8\x80\xED\xA0\xBD");
}

TEST(AStringTest, TwoHalvesMakeTheCharacterAgain) {
    const AString face("\xF0\x9F\x98\x80");
    EXPECT_EQ((face.Left(1) + face.Right(1)).QRL_ANSI(), "\xF0\x9F\x98\x80");
}

TEST(AStringTest, ANulIsACharacterLikeAnyOther) {
    const AString text(std::string_view("a\0b", 3));
    EXPECT_EQ(text.size(), 3U);
    EXPECT_EQ(text.QRL_ANSI(), "a\0b"s);
    EXPECT_NE(text.Compare("a"), 0);
    EXPECT_NE(text.CompareNoCase("a"), 0);
    EXPECT_TRUE(text.Match("a?b"));
}

TEST(AStringTest, LeftAndRightTakeWhatThereIs) {
    struct Row {
        ptrdiff_t m_Count;
        const char* m_Left;
        const char* m_Right;
    };
    // clang-format off
    const Row rows[] = {
        {0, "",    ""},
        {1, "a",   "c"},
        {2, "ab",  "bc"},
        {3, "abc", "abc"},
        {4, "abc", "abc"},
        {-1, "abc", "abc"},
    };
    // clang-format on
    for (const Row& row : rows) {
        EXPECT_EQ(AString("abc").Left(row.m_Count).QRL_ANSI(), row.m_Left) << row.m_Count;
        EXPECT_EQ(AString("abc").Right(row.m_Count).QRL_ANSI(), row.m_Right) << row.m_Count;
    }
    EXPECT_TRUE(AString().Left(1).empty());
    EXPECT_TRUE(AString().Right(1).empty());
}

TEST(AStringTest, ConcatenationMakesANewText) {
    AString head("Conductive_");
    const AString tail("1");
    EXPECT_EQ((head + tail).QRL_ANSI(), "Conductive_1");
    EXPECT_EQ((tail + head).QRL_ANSI(), "1Conductive_");
    EXPECT_EQ((head + "x" + L"y").QRL_ANSI(), "Conductive_xy");
    EXPECT_EQ(head.QRL_ANSI(), "Conductive_");
    EXPECT_EQ(tail.QRL_ANSI(), "1");
}

TEST(AStringTest, TheOrderGoesUnitByUnit) {
    EXPECT_TRUE(AString("B") < u"a"s);
    EXPECT_FALSE(AString("a") < u"B"s);
    EXPECT_TRUE(AString("a") < u"aa"s);
    EXPECT_FALSE(AString("a") < u"a"s);
    EXPECT_TRUE(AString("\xF0\x9F\x98\x80") < u"\xFFFF"s) << "0xD83D is below 0xFFFF";
    const std::set<AString> sorted = {"b", "", "a10", "a9", "B", "\xFF"};
    EXPECT_EQ(NarrowOf({sorted.begin(), sorted.end()}), (std::vector<std::string>{"", "B", "a10", "a9", "b", "\xFF"}));
}

TEST(AStringTest, TextsAreEqualUnitByUnitWhoeverHoldsThem) {
    const AString text("Layer");
    const AString copy = text;
    EXPECT_TRUE(text == copy);
    EXPECT_TRUE(text == AString("Layer"));
    EXPECT_FALSE(text == AString("layer"));
    EXPECT_FALSE(text == AString());
    EXPECT_TRUE(AString() == AString(""));
}

TEST(AStringTest, CompareMindsCase) {
    EXPECT_EQ(AString("Layer").Compare("Layer"), 0);
    EXPECT_LT(AString("Layer").Compare("layer"), 0);
    EXPECT_GT(AString("layer").Compare("Layer"), 0);
    EXPECT_LT(AString("a").Compare("aa"), 0);
    EXPECT_GT(AString("aa").Compare(""), 0);
    EXPECT_EQ(AString().Compare(""), 0);
}

TEST(AStringTest, CompareNoCaseFoldsTheLettersAToZOnly) {
    struct Row {
        const char* m_A;
        const char* m_B;
        int m_Order;
    };
    // clang-format off
    const Row rows[] = {
        {"",             "",             0},
        {"CONDUCTIVE",   "conductive",   0},
        {"aZ09_",        "Az09_",        0},
        {"a",            "B",            -1},
        {"B",            "a",            1},
        {"_",            "A",            -1}, // the letter counts as 0x61, behind the underscore's 0x5F
        {"a",            "aa",           -1},
        {"AA",           "a",            1},
        {"@",            "`",            -1}, // 0x40 and 0x60 lie just outside of the letters,
        {"[",            "{",            -1}, // 0x5B and 0x7B as well
        {"\xC3\x89",     "\xC3\xA9",     -1},
        {"\xE2\x84\xAA", "k",            1},  // the Kelvin sign is no K
        {"\xC3\xA9",     "\xC3\xA9",     0},
    };
    // clang-format on
    for (const Row& row : rows) {
        EXPECT_EQ(AString(row.m_A).CompareNoCase(row.m_B), row.m_Order) << row.m_A << ' ' << row.m_B;
        EXPECT_EQ(AString(row.m_A).CompareNoCase(AString(row.m_B)), row.m_Order) << row.m_A << ' ' << row.m_B;
        EXPECT_EQ(io::EqualsNoCase_G(row.m_A, row.m_B), row.m_Order == 0) << row.m_A << ' ' << row.m_B;
    }
}

TEST(AStringTest, EqualTextsHaveOneKey) {
    const AString text = "Net-12\xC3\x84";
    EXPECT_EQ(AString("Net-12\xC3\x84").GetKey(), text.GetKey());
    EXPECT_NE(AString("nET-12\xC3\x84").GetKey(), text.GetKey());
    EXPECT_EQ(AString("nET-12\xC3\x84").GetKeyNoCase(), text.GetKeyNoCase());
    EXPECT_NE(AString("nET-12\xC3\xA4").GetKeyNoCase(), text.GetKeyNoCase()) << "only A to Z are folded";
}

TEST(AStringTest, SevenPlainCharactersAreAWholeKeyAndNoTwoOfThemHaveTheSame) {
    const std::string_view texts[] = {"", "a", "b", "ab", "ba", "aa", "1234567", "1234568", std::string_view("\0", 1),
        std::string_view("\0\0", 2), std::string_view("\0a", 2), std::string_view("a\0", 2), std::string_view("\1", 1),
        "\x7F"};
    std::set<uint64_t> keys;
    for (const std::string_view text : texts) {
        const uint64_t key = AString(text).GetKey();
        EXPECT_TRUE(io::IsWholeKey_G(key)) << text;
        EXPECT_TRUE(keys.insert(key).second) << text;
        EXPECT_EQ(AString(text).GetKeyNoCase(), key) << text;
    }
    for (const char* text : {"12345678", "\xC3\xA4", "\xA4", "123456\xC3\xA4"})
        EXPECT_FALSE(io::IsWholeKey_G(AString(text).GetKey())) << text;
    EXPECT_EQ(AString("aBc").GetKeyNoCase(), AString("AbC").GetKeyNoCase());
    EXPECT_NE(AString("aBc").GetKey(), AString("AbC").GetKey());
}

TEST(AStringTest, NarrowPlainTextHasTheKeyOfItsWideForm) {
    for (const char* text : {"", "Gnd", "1234567", "12345678", "A_much_LONGER_name"})
        EXPECT_EQ(io::KeyNoCase_G(text), std::optional(AString(text).GetKeyNoCase())) << text;
    for (const char* text : {"\xC3\xA4", "GND\x80", "\xFF"})
        EXPECT_EQ(io::KeyNoCase_G(text), std::nullopt) << "a character isn't one unit there";
}

TEST(AStringTest, NarrowAndWideAgreeOnEqualityButForCase) {
    std::mt19937 random(7);
    constexpr std::string_view k_Bytes = "aAzZ[{\xC3\x89\xA9\x80";
    int equal = 0;
    for (int i = 0; i < 20000; ++i) {
        std::string a(random() % 4, '\0');
        std::string b(a.size(), '\0');
        for (char& byte : a)
            byte = k_Bytes[random() % k_Bytes.size()];
        for (char& byte : b)
            byte = k_Bytes[random() % k_Bytes.size()];
        const bool isEqual = AString(std::string_view(a)).CompareNoCase(AString(std::string_view(b))) == 0;
        ASSERT_EQ(io::EqualsNoCase_G(a, b), isEqual) << a << ' ' << b;
        equal += isEqual ? 1 : 0;
    }
    EXPECT_GT(equal, 0);
}

} // namespace
