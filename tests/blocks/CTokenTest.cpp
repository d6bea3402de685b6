#include "blocks/CToken.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <string_view>

namespace io {
namespace {

template <class T>
bool CanRead(const CToken& token, T expected) {
    T value = {};
    return NodeValue(token.GetNode(), token.GetText()).Query(value) && value == expected;
}

/// Whether the read fails and leaves its target alone.
template <class T>
bool IsRefused(const CToken& token, T before) {
    T value = before;
    return !NodeValue(token.GetNode(), token.GetText()).Query(value) && value == before;
}

TEST(CTokenTest, TheDefaultIsTheEmptyToken) {
    const CToken token;
    EXPECT_TRUE(token.IsEmpty());
    EXPECT_EQ(static_cast<int>(token.GetKind()), 0);
    EXPECT_FALSE(token.IsNumber());
    EXPECT_TRUE(token.GetAString().empty());
    EXPECT_EQ(token.GetText().data(), CToken::mACharEmptyString);
    EXPECT_TRUE(IsRefused<std::string_view>(token, "before"));
    EXPECT_TRUE(IsRefused(token, 5));
}

TEST(CTokenTest, ABareTextIsANumberWhereItReadsAsOne) {
    EXPECT_TRUE(CToken::OfWord("1.50").IsNumber());
    EXPECT_TRUE(CToken::OfWord("007").IsNumber());
    for (const char* word : {"+5V", "-12V", "0mm3", "1.3x3.6", "+", "-", "N$54", "BRAKE/", "10/08/12", "1e400"})
        EXPECT_FALSE(CToken::OfWord(word).IsNumber()) << word;
}

TEST(CTokenTest, AFloatTakesAllThatItCanHold) {
    constexpr double k_Most = std::numeric_limits<float>::max();
    EXPECT_TRUE(CanRead(CToken::OfNode(Node(NodeKind::k_Double, k_Most)), std::numeric_limits<float>::max()));
    EXPECT_TRUE(CanRead(CToken::OfNode(Node(NodeKind::k_Double, -k_Most)), -std::numeric_limits<float>::max()));
    EXPECT_TRUE(IsRefused(CToken::OfNode(Node(NodeKind::k_Double, std::nextafter(k_Most, 1e300))), 5.0F));
}

TEST(CTokenTest, AQuotedNumberIsAText) {
    const CToken token = CToken::OfText("7");
    EXPECT_FALSE(token.IsNumber());
    EXPECT_TRUE(CanRead<std::string_view>(token, "7"));
    EXPECT_TRUE(IsRefused(token, 5));
    EXPECT_TRUE(IsRefused(token, 5.0));
}

TEST(CTokenTest, GetAStringGivesTheSourceTextOfEveryKind) {
    EXPECT_EQ(CToken::OfWord("1.50").GetAString().QRL_ANSI(), "1.50");
    EXPECT_EQ(CToken::OfWord("007").GetAString().QRL_ANSI(), "007");
    EXPECT_EQ(CToken::OfWord("-0").GetAString().QRL_ANSI(), "-0");
    EXPECT_EQ(CToken::OfWord("GND").GetAString().QRL_ANSI(), "GND");
    EXPECT_EQ(CToken::OfText("a b").GetAString().QRL_ANSI(), "a b");
    EXPECT_EQ(CToken::OfText("").GetAString().QRL_ANSI(), "");
    EXPECT_EQ(CToken::OfNode(Node(NodeKind::k_Int, -3)).GetAString().QRL_ANSI(), "-3");
    EXPECT_EQ(CToken::OfNode(Node(NodeKind::k_Double, 2.0)).GetAString().QRL_ANSI(), "2.0");
    EXPECT_EQ(CToken::OfNode(Node(NodeKind::k_Bool, true)).GetAString().QRL_ANSI(), "true");
    EXPECT_EQ(CToken::OfNode(Node(NodeKind::k_Bool, false)).GetAString().QRL_ANSI(), "false");
}

TEST(CTokenTest, TextsOfEveryLengthAreKept) {
    for (size_t size = 0; size < 70; ++size) {
        const std::string text(size, static_cast<char>('a' + size % 26));
        const CToken word = CToken::OfWord(text);
        const CToken quoted = CToken::OfText(text);
        EXPECT_EQ(word.GetText(), text);
        EXPECT_EQ(quoted.GetNarrow(), text);
        EXPECT_EQ(word.GetNode().HasShortText(), size <= Node::k_ShortText) << size;
    }
}

TEST(CTokenTest, ANulIsKept) {
    const CToken token = CToken::OfText(std::string_view("a\0b", 3));
    EXPECT_EQ(token.GetAString().size(), 3U);
    EXPECT_EQ(token.GetNarrow(), std::string("a\0b", 3));
}

TEST(CTokenTest, ACopyOwnsItsText) {
    for (const std::string& text : {std::string("short"), std::string(40, 'x')}) {
        CToken copy;
        {
            const CToken token = CToken::OfWord(text);
            copy = token;
        }
        const CToken another(copy);
        copy = CToken();
        EXPECT_EQ(another.GetNarrow(), text);
    }
}

TEST(CTokenTest, EqualTokensHaveTheSameKindAndText) {
    EXPECT_EQ(CToken::OfWord("a"), CToken::OfWord("a"));
    EXPECT_EQ(CToken(), CToken());
    EXPECT_EQ(CToken::OfText(std::string(40, 'x')), CToken::OfText(std::string(40, 'x')));
    EXPECT_EQ(CToken::OfNode(Node(NodeKind::k_Int, 3)), CToken::OfNode(Node(NodeKind::k_Int, 3)));
    EXPECT_FALSE(CToken::OfWord("a") == CToken::OfWord("A"));
    EXPECT_FALSE(CToken::OfWord("a") == CToken::OfText("a"));
    EXPECT_FALSE(CToken::OfWord("1.5") == CToken::OfWord("1.50"));
    EXPECT_FALSE(CToken() == CToken::OfText(""));
    EXPECT_FALSE(CToken::OfNode(Node(NodeKind::k_Int, 3)) == CToken::OfNode(Node(NodeKind::k_Double, 3.0)));
    EXPECT_FALSE(CToken::OfText(std::string(40, 'x')) == CToken::OfText(std::string(41, 'x')));
}

TEST(NodeValueTest, AWholeNumberIsReadAsAnyTypeThatHoldsIt) {
    EXPECT_TRUE(CanRead<short>(CToken::OfWord("32767"), 32767));
    EXPECT_TRUE(IsRefused<short>(CToken::OfWord("32768"), 5));
    EXPECT_TRUE(CanRead<unsigned short>(CToken::OfWord("65535"), 65535));
    EXPECT_TRUE(IsRefused<unsigned short>(CToken::OfWord("-1"), 5));
    EXPECT_TRUE(CanRead(CToken::OfWord("2147483647"), 2147483647));
    EXPECT_TRUE(CanRead(CToken::OfWord("-2147483648"), std::numeric_limits<int>::min()));
    EXPECT_TRUE(IsRefused(CToken::OfWord("2147483648"), 5));
    EXPECT_TRUE(IsRefused(CToken::OfWord("-2147483649"), 5));
    EXPECT_TRUE(CanRead(CToken::OfWord("4294967295"), 4294967295U));
    EXPECT_TRUE(IsRefused(CToken::OfWord("4294967296"), 5U));
    EXPECT_TRUE(CanRead(CToken::OfWord("9223372036854775807"), std::numeric_limits<long long>::max()));
    EXPECT_TRUE(CanRead(CToken::OfWord("9223372036854775807"), 9223372036854775807ULL));
    EXPECT_TRUE(CanRead(CToken::OfWord("007"), 7.0));
    EXPECT_TRUE(CanRead(CToken::OfWord("3"), 3.0F));
    EXPECT_TRUE(CanRead(CToken::OfNode(Node(NodeKind::k_Int, -4)), -4L));
    EXPECT_TRUE(CanRead(CToken::OfNode(Node(NodeKind::k_Int, -4)), -4.0));
}

TEST(NodeValueTest, AnyOtherNumberIsReadAsADoubleOnly) {
    const CToken token = CToken::OfWord("1.50");
    EXPECT_TRUE(CanRead(token, 1.5));
    EXPECT_TRUE(CanRead(token, 1.5F));
    EXPECT_TRUE(IsRefused(token, 5));
    EXPECT_TRUE(IsRefused(CToken::OfWord("2.0"), 5));
    EXPECT_TRUE(IsRefused<std::string_view>(token, "before"));
    EXPECT_TRUE(CanRead(CToken::OfNode(Node(NodeKind::k_Double, 2.0)), 2.0));
    EXPECT_TRUE(IsRefused(CToken::OfNode(Node(NodeKind::k_Double, 2.0)), 5));
}

TEST(NodeValueTest, ANumberBeyondAFloatIsRefusedAsOne) {
    EXPECT_TRUE(IsRefused(CToken::OfWord("1e300"), 5.0F));
    EXPECT_TRUE(IsRefused(CToken::OfWord("-1e300"), 5.0F));
    EXPECT_TRUE(CanRead(CToken::OfWord("3e38"), 3e38F));
}

TEST(NodeValueTest, AWordIsReadAsATextOnly) {
    const CToken token = CToken::OfWord("0mm3");
    EXPECT_TRUE(CanRead<std::string_view>(token, "0mm3"));
    EXPECT_TRUE(IsRefused(token, 5));
    EXPECT_TRUE(IsRefused(token, 5.0));
    EXPECT_TRUE(IsRefused(token, true));
    EXPECT_TRUE(IsRefused(CToken::OfWord("true"), false));
}

TEST(NodeValueTest, ATruthValueIsReadAsABoolOnly) {
    const CToken token = CToken::OfNode(Node(NodeKind::k_Bool, true));
    EXPECT_TRUE(CanRead(token, true));
    EXPECT_TRUE(IsRefused(token, 5));
    EXPECT_TRUE(IsRefused(token, 5.0));
    EXPECT_TRUE(IsRefused<std::string_view>(token, "before"));
    EXPECT_TRUE(IsRefused(CToken::OfNode(Node(NodeKind::k_Int, 1)), false));
}

TEST(NodeValueTest, MinusZeroKeepsItsSignWithAPointOnly) {
    double value = 5.0;
    ASSERT_TRUE(NodeValue(CToken::OfWord("-0.0").GetNode(), "-0.0").Query(value));
    EXPECT_TRUE(std::signbit(value));
    ASSERT_TRUE(NodeValue(CToken::OfWord("-0").GetNode(), "-0").Query(value));
    EXPECT_FALSE(std::signbit(value));
}

} // namespace
} // namespace io
