#include "blocks/CBlock_value.h"
#include "blocks/TextStreams.h"

#include "tests/blocks/BlockText.h"

#include <gtest/gtest.h>

#include <string>

namespace io {
namespace {

TEST(CBlock_valueTest, TheDefaultHoldsNothing) {
    const CBlock_value value;
    EXPECT_TRUE(value.Empty());
    EXPECT_EQ(value.Size(), 0);
    AString text("before");
    EXPECT_FALSE(value.Query(text));
    EXPECT_EQ(text.QRL_ANSI(), "before");
    wchar_t wide[] = L"x";
    EXPECT_FALSE(value.Query(wide));
    EXPECT_STREQ(wide, L"x");
}

TEST(CBlock_valueTest, ATextIsHeldAndQueried) {
    const CBlock_value value(AString("a\xFF b"));
    AString text;
    EXPECT_TRUE(value.Query(text));
    EXPECT_EQ(text.QRL_ANSI(), "a\xFF b");
    EXPECT_EQ(value.Size(), 1);
    EXPECT_FALSE(value.Empty());
    int number = 5;
    EXPECT_FALSE(CBlock_value(AString("7")).Query(number)) << "a text of digits stays a text";
    EXPECT_EQ(number, 5);
}

TEST(CBlock_valueTest, AValueIsAValueWithoutAName) {
    CBlock_value value(AString("x"));
    EXPECT_TRUE(value.IsValue());
    EXPECT_FALSE(value.IsNamed());
    EXPECT_FALSE(value.IsFunc());
    EXPECT_FALSE(value.IsBlock());
    EXPECT_FALSE(value.IsNamedValue());
    EXPECT_FALSE(value.IsVec());
    value.Name("named");
    EXPECT_TRUE(value.Name().empty());
    EXPECT_TRUE(value.NameToken().IsEmpty());
}

TEST(CBlock_valueTest, TheTokenTurnsToAStringWhateverItsKind) {
    const CBlock_func func = FuncOf("(f 1.50 GND \"a b\")");
    std::string all;
    for (NodeIterator at = func.begin(); at != func.end(); ++at) {
        const CBlock_ptr<CBlock_value> value(func.Item(at));
        const CToken token = value->GetToken();
        all += token.GetAString().QRL_ANSI() + '|';
    }
    EXPECT_EQ(all, "1.50|GND|a b|");
}

TEST(CBlock_valueTest, EqualValuesHaveTheSameKindAndText) {
    EXPECT_TRUE(CBlock_value(AString("a")) == CBlock_value(AString("a")));
    EXPECT_TRUE(CBlock_value() == CBlock_value());
    EXPECT_FALSE(CBlock_value(AString("a")) == CBlock_value(AString("b")));
    EXPECT_FALSE(CBlock_value(AString("7")) == CBlock_value(CToken::OfWord("7")));
    EXPECT_FALSE(CBlock_value(AString("")) == CBlock_value());
}

TEST(CBlock_valueTest, EveryQueryReadsItsType) {
    const CBlock_value value(CToken::OfWord("7"));
    const auto reads = [&value](auto target) { return value.Query(target) && target == 7; };
    EXPECT_TRUE(reads(0ULL));
    EXPECT_TRUE(reads(0LL));
    EXPECT_TRUE(reads(0UL));
    EXPECT_TRUE(reads(0U));
    EXPECT_TRUE(reads(static_cast<unsigned short>(0)));
    EXPECT_TRUE(reads(0L));
    EXPECT_TRUE(reads(0));
    EXPECT_TRUE(reads(static_cast<short>(0)));
    EXPECT_TRUE(reads(0.0F));
    EXPECT_TRUE(reads(0.0));
    bool truth = false;
    EXPECT_FALSE(value.Query(truth));
    EXPECT_TRUE(CBlock_value(CToken::OfNode(Node(NodeKind::k_Bool, true))).Query(truth));
    EXPECT_TRUE(truth);
}

TEST(CBlock_valueTest, ATextIsQueriedIntoAWideBuffer) {
    wchar_t buffer[8] = L"#######";
    EXPECT_TRUE(CBlock_value(AString("a\xE2\x82\xAC")).Query(buffer));
    EXPECT_STREQ(buffer, L"a\u20AC");
    EXPECT_EQ(buffer[3], L'#');
}

TEST(CBlock_valueTest, ClearLeavesNothing) {
    CBlock_value value(AString("x"));
    value.Clear();
    EXPECT_TRUE(value.Empty());
    EXPECT_EQ(value.SizeOf(true), sizeof(CBlock_value));
}

TEST(CBlock_valueTest, TheTextFormIsReadBack) {
    CBlock_value value;
    EXPECT_TRUE(value.Unpack("\"a\\n\""));
    EXPECT_TRUE(value == CBlock_value(AString("a\n")));
    EXPECT_EQ(TextOf(value), "\"a\\n\"");
    EXPECT_TRUE(value.Unpack("-2.5"));
    double number = 0.0;
    EXPECT_TRUE(value.Query(number));
    EXPECT_EQ(number, -2.5);
    EXPECT_FALSE(value.Unpack("-2.5 "));
    EXPECT_FALSE(value.Unpack("abc"));
    EXPECT_EQ(TextOf(value), "-2.5") << "unchanged where the text is refused";
}

/// `write` puts none of these, though each begins like a value.
TEST(CBlock_valueTest, ANumberThatIsNotInItsShortestFormIsRefused) {
    for (const char* text : {"1.50", "infinity", "0099999999999", "99999999999", "-0"}) {
        CBlock_value value(AString("kept"));
        TextIstream stream(text);
        EXPECT_FALSE(value.read(stream)) << text;
        EXPECT_EQ(stream.GetRest(), text);
        EXPECT_TRUE(value == CBlock_value(AString("kept"))) << text;
    }
}

} // namespace
} // namespace io
