#include "blocks/CBlock.h"

#include "tests/blocks/BlockText.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace io {
namespace {

TEST(CBlockTest, ABlockStartsEmpty) {
    const CBlock block;
    EXPECT_TRUE(block.Name().empty());
    EXPECT_TRUE(block.Empty());
    EXPECT_EQ(block.Size(), 0);
    EXPECT_TRUE(block.begin() == block.end());
    EXPECT_EQ(CBlock("Nets").Name().QRL_ANSI(), "Nets");
    EXPECT_EQ(CBlock(AString("a\xFF")).Name().QRL_ANSI(), "a\xFF");
}

TEST(CBlockTest, ABlockIsABlock) {
    const CBlock block("B");
    EXPECT_TRUE(block.IsBlock());
    EXPECT_TRUE(block.IsNamed());
    EXPECT_FALSE(block.IsFunc());
    EXPECT_FALSE(block.IsValue());
    EXPECT_FALSE(block.IsNamedValue());
    EXPECT_FALSE(block.IsVec());
}

TEST(CBlockTest, EveryKindOfItemIsKeptInOrder) {
    CBlock inner("Inner");
    inner << CBlock_named_value("n", AString("x"));
    CBlock_func func("f");
    func << 1;
    CBlockPtr blockPtr("P");
    CBlockFuncPtr funcPtr("fp");
    CBlock block("B");
    block << inner << func << CBlock_named_value("u", AString("mm")) << blockPtr << funcPtr
          << CBlock_ptr<CBlock_func>(new CBlock_func("cp"));
    EXPECT_EQ(Outline(block), "B{Inner{n=\"x\"} f(1) u=\"mm\" P{} fp() cp()}");
    EXPECT_EQ(block.Size(), 6);
}

TEST(CBlockTest, AppendedObjectsAreCopies) {
    CBlock inner("Inner");
    CBlock_func func("f");
    CBlock_named_value value("u", AString("mm"));
    CBlock block("B");
    block << inner << func << value;
    inner << func;
    func << 1;
    value.Clear();
    EXPECT_EQ(Outline(block), "B{Inner{} f() u=\"mm\"}");
}

TEST(CBlockTest, AppendedPointersAreReferences) {
    CBlockPtr inner("Inner");
    CBlockFuncPtr func("f");
    const CBlock_ptr<CBlock_func> shared(new CBlock_func("g"));
    *func << 1;
    CBlock block("B");
    block << inner << func << shared;
    *inner << CBlock_func("late");
    *func << 2;
    CBlock_ptr<CBlock_func>(shared).Item()->Name("renamed");
    EXPECT_EQ(Outline(block), "B{Inner{late()} f(1 2) renamed()}");
}

TEST(CBlockTest, AnItemThatStandsByReferenceIsTheObjectItself) {
    CBlock block("B");
    const CBlockPtr inner("Inner");
    const CBlockFuncPtr func("f");
    block << inner << func;
    NodeIterator at = block.begin();
    EXPECT_EQ(block.Item(at).Item(), &*inner);
    EXPECT_EQ(block.Item(++at).Item(), &*func);
}

TEST(CBlockTest, ANullPointerGivesANullItem) {
    CBlock block("B");
    block << CBlock_ptr<CBlock_func>() << CBlock_func("f");
    NodeIterator at = block.begin();
    EXPECT_EQ(block.Item(at).Item(), nullptr);
    EXPECT_NE(block.Item(++at).Item(), nullptr);
    EXPECT_EQ(Outline(block), "B{null f()}");
    EXPECT_EQ(TextOf(block), "B {\n\tf()\n}\n");
}

TEST(CBlockTest, AChangeOfAnItemStaysWithThatItem) {
    CBlock block("B");
    block << CBlock_func("f");
    CBlock_ptr<CBlock_item> item = block.Item(block.begin());
    item->Name("renamed");
    EXPECT_EQ(Outline(block), "B{f()}");
    EXPECT_EQ(item->Name().QRL_ANSI(), "renamed");
}

TEST(CBlockTest, AnItemOutlivesItsBlock) {
    CBlock_ptr<CBlock_item> item;
    {
        CBlock block("B");
        CBlock_func func("f");
        func << "averyveryverylongtext";
        block << func;
        item = block.Item(block.begin());
    }
    EXPECT_EQ(OutlineOfArgument(dynamic_cast<const CBlock_func_arg*>(item.Item())), "f(\"averyveryverylongtext\")");
}

TEST(CBlockTest, AnAssignedBlockStaysValidWhenItsSourceIsGone) {
    CBlock block("old");
    block << CBlock_func("gone");
    {
        auto source = std::make_unique<CBlock>("B");
        *source << FuncOf("(f 1 (g \"averyveryverylongtext\"))") << CBlockFuncPtr("p");
        block = *source;
    }
    EXPECT_EQ(Outline(block), "B{f(1 g(\"averyveryverylongtext\")) p()}");
}

TEST(CBlockTest, ACopyDoesNotSeeLaterChanges) {
    CBlock block("B");
    block << CBlock_func("f");
    const CBlock copy = block;
    CBlock assigned;
    assigned = block;
    block << CBlock_func("g");
    block.Name("renamed");
    EXPECT_EQ(Outline(block), "renamed{f() g()}");
    EXPECT_EQ(Outline(copy), "B{f()}");
    assigned << CBlock_named_value("n", AString("x"));
    EXPECT_EQ(Outline(assigned), "B{f() n=\"x\"}");
    EXPECT_EQ(Outline(copy), "B{f()}");
}

TEST(CBlockTest, ABlockCanBeAppendedToItself) {
    CBlock block("B");
    block << CBlock_func("f");
    block << block;
    EXPECT_EQ(Outline(block), "B{f() B{f()}}");
}

TEST(CBlockTest, ABlockCanBeAssignedFromAnItemThatItAloneKeeps) {
    CBlock block("Outer");
    CBlock* raw = nullptr;
    {
        CBlockPtr inner("Inner");
        *inner << CBlock_func("averyveryverylongname");
        block << inner;
        raw = &*inner;
    }
    block = *raw;
    EXPECT_EQ(Outline(block), "Inner{averyveryverylongname()}");
}

TEST(CBlockTest, CopiesShareWhatStandsByReference) {
    int alive = 0;
    {
        CBlock block("B");
        block << NewCounted("f", alive);
        CBlock copy = block;
        copy << CBlock_func("g");
        CBlock outer("Outer");
        outer << copy;
        EXPECT_EQ(alive, 1);
        block.Clear();
        copy.Clear();
        EXPECT_EQ(alive, 1);
        EXPECT_EQ(Outline(outer), "Outer{B{f() g()}}");
    }
    EXPECT_EQ(alive, 0);
}

TEST(CBlockTest, AReferenceThatStandsTwiceGoesWithItsLastPlace) {
    int alive = 0;
    CBlock second("C");
    {
        CBlock first("B");
        const CBlock_ptr<CBlock_func> shared = NewCounted("f", alive);
        first << shared << shared;
        second << shared;
    }
    EXPECT_EQ(alive, 1);
    second.Clear();
    EXPECT_EQ(alive, 0);
}

TEST(CBlockTest, ANameCanBeReplaced) {
    CBlock block("B");
    block << CBlock_func("f") << CBlock_named_value("n", AString("averyveryverylongtext"));
    EXPECT_EQ(block.NameToken().GetNarrow(), "B");
    block.Name("a very very very long name");
    EXPECT_EQ(block.NameToken().GetNarrow(), "a very very very long name");
    EXPECT_EQ(Outline(block), "a very very very long name{f() n=\"averyveryverylongtext\"}");
    block = CBlock("C");
    EXPECT_EQ(block.NameToken().GetNarrow(), "C");
}

TEST(CBlockTest, ClearDropsTheItemsAndKeepsTheName) {
    CBlock block("B");
    block << CBlock_func("f");
    block.Clear();
    EXPECT_EQ(Outline(block), "B{}");
    EXPECT_TRUE(block.Empty());
}

TEST(CBlockTest, TheMemoryOfTheTreeIsCountedOnDemand) {
    CBlock block("B");
    block << CBlock_func("f");
    EXPECT_EQ(block.SizeOf(false), sizeof(CBlock));
    EXPECT_GE(block.SizeOf(true), sizeof(CBlock) + 2 * sizeof(Node));
    EXPECT_LT(block.SizeOf(true), sizeof(CBlock) + 100 * sizeof(Node)) << "little is set aside for growth";
}

TEST(CBlockTest, TheTextFormIsReadBack) {
    CBlock block("old");
    EXPECT_TRUE(block.Unpack("B {\n\tf(1)\n}\n"));
    EXPECT_EQ(Outline(block), "B{f(1)}");
    EXPECT_FALSE(block.Unpack("f(1)\n")) << "a func is no block";
    EXPECT_EQ(Outline(block), "B{f(1)}");
    CBlock_func func("old");
    EXPECT_FALSE(func.Unpack("B {\n}\n"));
    EXPECT_TRUE(func.Unpack("f(1)\n"));
    EXPECT_EQ(Outline(func), "f(1)");
}

TEST(CBlockTest, ObjectsAreReadFromAStreamOneBehindTheOther) {
    TextIstream stream("B {\n}\nf(1)\nn = \"x\"\n7rest");
    CBlock block;
    CBlock_func func("");
    CBlock_named_value named("", AString());
    CBlock_value value;
    EXPECT_FALSE(func.read(stream));
    EXPECT_TRUE(block.read(stream));
    EXPECT_TRUE(func.read(stream));
    EXPECT_FALSE(block.read(stream));
    EXPECT_TRUE(named.read(stream));
    EXPECT_EQ(stream.GetRest(), "7rest") << "a failed read consumes nothing";
    EXPECT_FALSE(value.read(stream)) << "7rest is no value";
    EXPECT_EQ(Outline(func), "f(1)");
    EXPECT_EQ(TextOf(named), "n = \"x\"\n");
}

TEST(CStreamio_objectTest, PackIndentsAndCuts) {
    CBlock block("B");
    CBlock_func func("f");
    func << "a\nb";
    block << func;
    EXPECT_EQ(block.Pack().QRL_ANSI(), "B {\n\tf(\"a\\nb\")\n}\n");
    EXPECT_EQ(block.Pack(2, -1).QRL_ANSI(), "\t\tB {\n\t\t\tf(\"a\\nb\")\n\t\t}\n");
    EXPECT_EQ(block.Pack(1, 5).QRL_ANSI(), "\tB {\n");
    EXPECT_EQ(block.Pack(-1, 0).QRL_ANSI(), "");
    EXPECT_EQ(block.Pack(0, 1000).QRL_ANSI(), block.Pack().QRL_ANSI());
}

TEST(CStreamio_objectTest, TheBinaryFormIsTheTextForm) {
    CBlock_func func("f");
    func << AString("\xFF");
    EXPECT_EQ(func.BinaryPack(), "f(\"\xFF\")\n");
    EXPECT_EQ(func.BinarySize(TextOstream()), 7U);
}

} // namespace
} // namespace io
