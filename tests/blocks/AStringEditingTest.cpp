#include "blocks/AString.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace std::string_literals;

std::vector<std::string> NarrowOf(const std::vector<AString>& texts) {
    std::vector<std::string> narrow;
    for (const AString& text : texts)
        narrow.push_back(text.QRL_ANSI());
    return narrow;
}

TEST(AStringTest, FindGivesTheFirstPlaceAtOrBehindFrom) {
    const AString text("a.b.c");
    EXPECT_EQ(text.find("."), 1U);
    EXPECT_EQ(text.find(".", 1), 1U);
    EXPECT_EQ(text.find(".", 2), 3U);
    EXPECT_EQ(text.find(".", 4), AString::npos);
    EXPECT_EQ(text.find("b.c"), 2U);
    EXPECT_EQ(text.find("B"), AString::npos);
    EXPECT_EQ(text.find("", 5), 5U);
    EXPECT_EQ(text.find("", 6), AString::npos);
}

TEST(AStringTest, ReplaceExchangesUnits) {
    struct Row {
        size_t m_At;
        size_t m_Count;
        const char* m_Text;
        const char* m_Result;
    };
    // clang-format off
    const Row rows[] = {
        {1, 1, "xyz", "axyzc"},
        {0, 3, "",    ""},
        {1, 0, "-",   "a-bc"},
        {2, 9, "!",   "ab!"},
        {3, 1, "d",   "abcd"},
        {4, 1, "d",   "abc"},
        {1, AString::npos, "", "a"},
    };
    // clang-format on
    for (const Row& row : rows) {
        AString text("abc");
        text.replace(row.m_At, row.m_Count, row.m_Text);
        EXPECT_EQ(text.QRL_ANSI(), row.m_Result) << row.m_At << ' ' << row.m_Count;
    }
}

TEST(AStringTest, APartCanBeReplacedByTheTextItself) {
    AString text("abc");
    const AString copy = text;
    text.replace(1, 1, text);
    EXPECT_EQ(text.QRL_ANSI(), "aabcc");
    text.replace(0, 1, copy);
    EXPECT_EQ(text.QRL_ANSI(), "abcabcc");
    EXPECT_EQ(copy.QRL_ANSI(), "abc");
}

TEST(AStringTest, FormatPutsTextsAndNumbersInPlace) {
    AString text("before");
    text.Format(L"%s", AString("x").c_str());
    EXPECT_EQ(text.QRL_ANSI(), "x");
    text.Format(L"%d", -42);
    EXPECT_EQ(text.QRL_ANSI(), "-42");
    text.Format(L"%d|%d", std::numeric_limits<long>::min(), std::numeric_limits<long>::max());
    EXPECT_EQ(text.QRL_ANSI(), "-9223372036854775808|9223372036854775807");
    text.Format(L"%s_%d", AString("R\xC3\xA9").c_str(), 7);
    EXPECT_EQ(text.QRL_ANSI(), "R\xC3\xA9_7");
    text.Format(L"<%s|%s|%d>", AString(), AString("%d"), 2147483647L);
    EXPECT_EQ(text.QRL_ANSI(), "<|%d|2147483647>");
    text.Format(L"100%% of %d%%", 3);
    EXPECT_EQ(text.QRL_ANSI(), "100% of 3%");
}

TEST(AStringTest, FormatLeavesPlaceholdersWithoutArguments) {
    AString text;
    text.Format(L"%d %s %x %", 1);
    EXPECT_EQ(text.QRL_ANSI(), "1 %s %x %");
    text.Format(L"none", 1, 2);
    EXPECT_EQ(text.QRL_ANSI(), "none");
}

TEST(AStringTest, FormatCanReadItsOwnText) {
    AString text("ab");
    text.Format(L"%s-%s", text, text);
    EXPECT_EQ(text.QRL_ANSI(), "ab-ab");
}

TEST(AStringTest, FormatKeepsANulOfAText) {
    AString text;
    text.Format(L"%s!", AString(std::string_view("a\0b", 3)));
    EXPECT_EQ(text.QRL_ANSI(), "a\0b!"s);
}

TEST(AStringTest, TrimRemovesBlanksAtBothEnds) {
    struct Row {
        std::string m_Text;
        std::string m_Result;
    };
    const Row rows[] = {
        {" \t\r\n\v\fa b\tc \t\r\n\v\f", "a b\tc"},
        {"", ""},
        {" \t\r\n\v\f", ""},
        {"a", "a"},
        {" a", "a"},
        {"a ", "a"},
        {"\xC2\xA0 a \xC2\xA0", "\xC2\xA0 a \xC2\xA0"},
        {"\0 a"s, "\0 a"s},
    };
    for (const Row& row : rows) {
        AString text{std::string_view(row.m_Text)};
        text.Trim();
        EXPECT_EQ(text.QRL_ANSI(), row.m_Result) << row.m_Text;
    }
}

TEST(AStringTest, MatchTestsTheWholeTextAgainstAPattern) {
    struct Row {
        const char* m_Text;
        const char* m_Pattern;
        bool m_IsMatch;
    };
    // clang-format off
    const Row rows[] = {
        {"",         "",       true},
        {"",         "*",      true},
        {"",         "**",     true},
        {"",         "?",      false},
        {"a",        "",       false},
        {"a",        "a",      true},
        {"a",        "A",      false},
        {"ab",       "a",      false},
        {"a",        "ab",     false},
        {"abc",      "a?c",    true},
        {"ac",       "a?c",    false},
        {"abc",      "a*",     true},
        {"a",        "a*",     true},
        {"abc",      "*c",     true},
        {"abcb",     "*c",     false},
        {"abc",      "*b*",    true},
        {"abc",      "?*?",    true},
        {"a",        "?*?",    false},
        {"aXbXc",    "*X*X*",  true},
        {"aXbc",     "*X*X*",  false},
        {"abab",     "*ab",    true},
        {"aab",      "*ab",    true},
        {"mississippi", "m*iss*ip?i", true},
        {"mississippi", "m*iss*is?i", false},
        {"R1.",      "*.",     true},
        {"R1.2",     "*.",     false},
        {"R1.2",     "*.*",    true},
        {"R12",      "*.*",    false},
        {"*",        "?",      true},
        {"a+b",      "a+b",    true},
        {"[a]",      "[a]",    true},
    };
    // clang-format on
    for (const Row& row : rows)
        EXPECT_EQ(AString(row.m_Text).Match(row.m_Pattern), row.m_IsMatch)
            << row.m_Text << " against " << row.m_Pattern;
}

TEST(AStringTest, MatchOfManyStarsTakesNoExponentialTime) {
    const AString text{std::string_view(std::string(2000, 'a'))};
    EXPECT_FALSE(text.Match("*a*a*a*a*a*a*a*a*a*a*b"));
}

TEST(AStringTest, TokenizeStringSplitsAndDropsEmptyPieces) {
    struct Row {
        const char* m_Text;
        const char* m_Delimiters;
        std::vector<std::string> m_Pieces;
    };
    // clang-format off
    const Row rows[] = {
        {"",                 "_",   {}},
        {"_",                "_",   {}},
        {"A",                "_",   {"A"}},
        {"A_3",              "_",   {"A", "3"}},
        {"A__3",             "_",   {"A", "3"}},
        {"_A_3_",            "_",   {"A", "3"}},
        {"R1 \"10 k\" x",    " \"", {"R1", "10", "k", "x"}},
        {"a b",              "",    {"a b"}},
        {"\xC3\xA9_\xE2\x82\xAC", "_", {"\xC3\xA9", "\xE2\x82\xAC"}},
    };
    // clang-format on
    for (const Row& row : rows) {
        std::vector<AString> pieces;
        EXPECT_EQ(AString(row.m_Text).TokenizeString(row.m_Delimiters, pieces), static_cast<int>(row.m_Pieces.size()));
        EXPECT_EQ(NarrowOf(pieces), row.m_Pieces) << row.m_Text;
    }
}

TEST(AStringTest, TokenizeStringAppendsToTheVector) {
    std::vector<AString> pieces = {"before"};
    EXPECT_EQ(AString("a b").TokenizeString(" ", pieces, false), 2);
    EXPECT_EQ(NarrowOf(pieces), (std::vector<std::string>{"before", "a", "b"}));
}

TEST(AStringTest, TokenizeStringCanKeepEmptyPieces) {
    std::vector<AString> pieces;
    EXPECT_EQ(AString("_A__3").TokenizeString("_", pieces, true), 4);
    EXPECT_EQ(NarrowOf(pieces), (std::vector<std::string>{"", "A", "", "3"}));
}

TEST(AStringTest, IsNumberWantsASignAndDigitsOnly) {
    constexpr int k_Untouched = -77;
    struct Row {
        const char* m_Text;
        int m_Base;
        bool m_IsNumber;
        int m_Value;
    };
    // clang-format off
    const Row rows[] = {
        {"0",            10, true,  0},
        {"42",           10, true,  42},
        {"+42",          10, true,  42},
        {"-42",          10, true,  -42},
        {"-0",           10, true,  0},
        {"007",          10, true,  7},
        {"2147483647",   10, true,  2147483647},
        {"-2147483648",  10, true,  -2147483647 - 1},
        {"2147483648",   10, false, k_Untouched},
        {"-2147483649",  10, false, k_Untouched},
        {"99999999999999999999", 10, false, k_Untouched},
        {"",             10, false, k_Untouched},
        {"+",            10, false, k_Untouched},
        {"-",            10, false, k_Untouched},
        {"+-1",          10, false, k_Untouched},
        {"-+1",          10, false, k_Untouched},
        {"--1",          10, false, k_Untouched},
        {" 1",           10, false, k_Untouched},
        {"1 ",           10, false, k_Untouched},
        {"1.0",          10, false, k_Untouched},
        {"1e2",          10, false, k_Untouched},
        {"1x",           10, false, k_Untouched},
        {"a",            10, false, k_Untouched},
        {"\xC2\xB2",     10, false, k_Untouched},
        {"ff",           16, true,  255},
        {"FF",           16, true,  255},
        {"-Ff",          16, true,  -255},
        {"fg",           16, false, k_Untouched},
        {"0x1F",         16, false, k_Untouched},
        {"102",           2, false, k_Untouched},
        {"101",           2, true,  5},
        {"789",           8, false, k_Untouched},
        {"zz",           36, true,  1295},
    };
    // clang-format on
    for (const Row& row : rows) {
        int value = k_Untouched;
        EXPECT_EQ(AString(row.m_Text).IsNumber(value, row.m_Base), row.m_IsNumber) << row.m_Text;
        EXPECT_EQ(value, row.m_Value) << row.m_Text;
    }
}

} // namespace
