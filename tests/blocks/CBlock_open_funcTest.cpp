#include "blocks/CBlock_open_func.h"

#include "tests/blocks/BlockText.h"

#include <gtest/gtest.h>

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
