#include "blocks/CBlock_named_value.h"

#include "tests/blocks/BlockText.h"

#include <gtest/gtest.h>

namespace io {
namespace {

TEST(CBlock_named_valueTest, ANameStandsWithOneValue) {
    const CBlock_named_value item("Unit", AString("mm"));
    EXPECT_EQ(item.Name().QRL_ANSI(), "Unit");
    EXPECT_EQ(item.NameToken().GetNarrow(), "Unit");
    EXPECT_TRUE(item.Value() == CBlock_value(AString("mm")));
    EXPECT_TRUE(
        CBlock_named_value("a", CBlock_value(CToken::OfWord("7"))).Value() == CBlock_value(CToken::OfWord("7")));
}

TEST(CBlock_named_valueTest, ItsKindIsNamedValue) {
    const CBlock_named_value item("Unit", AString("mm"));
    EXPECT_TRUE(item.IsNamedValue());
    EXPECT_TRUE(item.IsNamed());
    EXPECT_FALSE(item.IsValue());
    EXPECT_FALSE(item.IsFunc());
    EXPECT_FALSE(item.IsBlock());
    EXPECT_FALSE(item.IsVec());
    EXPECT_EQ(item.Size(), 1);
    EXPECT_EQ(item.SizeOf(true), sizeof(CBlock_named_value));
}

TEST(CBlock_named_valueTest, NameAndValueCanBeChanged) {
    CBlock_named_value item("Unit", AString("mm"));
    item.Name("a very very very long name");
    EXPECT_EQ(TextOf(item), "\"a very very very long name\" = \"mm\"\n");
    item.Clear();
    EXPECT_TRUE(item.Empty());
    EXPECT_EQ(item.Name().QRL_ANSI(), "a very very very long name");
}

TEST(CBlock_named_valueTest, ACopyDoesNotSeeLaterChanges) {
    CBlock_named_value item("Unit", AString("mm"));
    const CBlock_named_value copy = item;
    item.Clear();
    item.Name("x");
    EXPECT_EQ(TextOf(copy), "Unit = \"mm\"\n");
}

TEST(CBlock_named_valueTest, TheTextFormIsReadBack) {
    CBlock_named_value item("x", AString("y"));
    EXPECT_TRUE(item.Unpack("\"a b\" = \"mm\"\n"));
    EXPECT_EQ(item.Name().QRL_ANSI(), "a b");
    EXPECT_TRUE(item.Value() == CBlock_value(AString("mm")));
    for (const char* text :
        {"Unit = \"mm\"", "Unit=\"mm\"\n", "Unit = mm\n", "\"Unit\" = \"mm\"\n", "= \"mm\"\n", "Unit =\n", ""})
        EXPECT_FALSE(item.Unpack(text)) << text;
    EXPECT_EQ(TextOf(item), "\"a b\" = \"mm\"\n") << "unchanged where the text is refused";
    EXPECT_FALSE(item.Unpack("Unit = \"mm\"\n\n")) << "a text that only begins with the form";
}

} // namespace
} // namespace io
