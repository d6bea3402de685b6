#include "blocks/CBlock_open_func.h"

#include "blocks/FuncRange.h"
#include "tests/blocks/BlockText.h"

#include <gtest/gtest.h>

#include <string>

namespace io {
namespace {

TEST(CBlock_open_funcTest, ValuesOfEveryKindAreArguments) {
    CBlock block("B");
    {
        CBlock_open_func func(block, "F");
        func << true << 7 << 0.5 << "text" << std::string_view("view") << AString("wide") << false;
    }
    EXPECT_EQ(TextOf(block), "B {\n\tF(true, 7, 0.5, \"text\", \"view\", \"wide\", false)\n}\n");
}

TEST(CBlock_open_funcTest, FuncsNestToAnyDepthAndGoOnBehindEachOther) {
    CBlock block("B");
    {
        CBlock_open_func outer(block, "Outer");
        outer << 1;
        {
            CBlock_open_func inner(outer, "Inner");
            CBlock_open_func innermost(inner, "Innermost");
            innermost << 2;
        }
        outer << 3;
    }
    { CBlock_open_func next(block, "Next"); }
    EXPECT_EQ(TextOf(block), "B {\n\tOuter(1,\n\t\tInner(Innermost(2)),\n\t\t3)\n\tNext()\n}\n");
}

TEST(CBlock_open_funcTest, KeywordIsATextLikeAnyOther) {
    static constexpr Keyword k_Short("Round");
    static constexpr Keyword k_Longest("Exactly16Letters");
    CBlock block("B");
    {
        CBlock_open_func func(block, "F");
        func << k_Short << k_Longest << 1 << k_Short;
    }
    EXPECT_EQ(TextOf(block), "B {\n\tF(\"Round\", \"Exactly16Letters\", 1, \"Round\")\n}\n");
    const CBlock copy = block;
    std::string texts;
    for (CBlock_func& func : copy.Funcs())
        for (NodeIterator at = func.begin(); at != func.end(); ++at) {
            AString text;
            func.Item(at)->Query(text);
            texts += text.QRL_ANSI() + ' ';
        }
    EXPECT_EQ(texts, "Round Exactly16Letters 1 Round ");
}

TEST(CBlock_open_funcTest, KeywordIsReadLikeAText) {
    static constexpr Keyword k_Word("Word");
    CBlock block("B");
    {
        CBlock_open_func func(block, "F");
        func << k_Word << 5;
    }
    CBlock_func func = *block.Funcs().begin();
    AString text;
    int number = 0;
    func >> text >> number;
    EXPECT_EQ(text.QRL_ANSI(), "Word");
    EXPECT_EQ(number, 5);
}

TEST(CBlock_open_funcTest, RowIsWhatItsValuesAreOneByOne) {
    static constexpr Keyword k_Word("Word");
    CBlock rows("B");
    CBlock singles("B");
    for (int i = 0; i < 100; ++i) {
        CBlock_open_func row(rows, "F");
        row.AppendRow(i, 0.5 * i, i % 2 == 0, k_Word);
        CBlock_open_func single(singles, "F");
        single << i << 0.5 * i << (i % 2 == 0) << k_Word;
    }
    EXPECT_EQ(TextOf(rows), TextOf(singles)) << "also where the memory grows";
    EXPECT_EQ(TextOf(rows).substr(0, 31), "B {\n\tF(0, 0.0, true, \"Word\")\n\tF");
}

TEST(CBlock_open_funcTest, LongNamesAndTextsAreKept) {
    const AString name("a name that doesn't fit a node of its own");
    CBlock block("B");
    {
        CBlock_open_func func(block, name);
        func << "a text that doesn't fit a node of its own";
    }
    EXPECT_EQ(TextOf(block),
        "B {\n\t\"a name that doesn't fit a node of its own\"(\"a text that doesn't fit a node of its "
        "own\")\n}\n");
}

TEST(CBlock_open_funcTest, ACopyOfTheBlockDoesNotSeeIt) {
    CBlock block("B");
    block << CBlock_func("First");
    const CBlock copy = block;
    {
        CBlock_open_func func(block, "Second");
        func << 1;
    }
    EXPECT_EQ(TextOf(copy), "B {\n\tFirst()\n}\n");
    EXPECT_EQ(TextOf(block), "B {\n\tFirst()\n\tSecond(1)\n}\n");
}

} // namespace
} // namespace io
