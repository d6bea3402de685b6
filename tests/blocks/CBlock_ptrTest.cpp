#include "blocks/CBlock_ptr.h"

#include "tests/blocks/BlockText.h"

#include <gtest/gtest.h>

#include <utility>

namespace io {
namespace {

/// A func "a" of which no other pointer is left.
CBlock_ptr<CBlock_func> NewFunc() {
    CToken_istream stream = ListStream("a)");
    CBlock_ptr<CBlock_func> func;
    ReadFunc(stream, func);
    return func;
}

TEST(CBlock_ptrTest, TheDefaultHoldsNothing) {
    CBlock_ptr<CBlock_func> pointer;
    EXPECT_EQ(pointer.Item(), nullptr);
    EXPECT_EQ(std::as_const(pointer).Item(), nullptr);
    const CBlock_ptr<CBlock_func> copy = pointer;
    EXPECT_EQ(copy.Item(), nullptr);
}

TEST(CBlock_ptrTest, TheLastPointerDeletesTheObject) {
    int alive = 0;
    {
        CBlock_ptr<CBlock_func> first = NewCounted("a", alive);
        {
            const CBlock_ptr<CBlock_func> second = first;
            EXPECT_EQ(second.Item(), first.Item());
            first = CBlock_ptr<CBlock_func>();
            EXPECT_EQ(alive, 1);
            EXPECT_EQ(second->Name().QRL_ANSI(), "a");
        }
        EXPECT_EQ(alive, 0);
    }
    EXPECT_EQ(alive, 0);
}

TEST(CBlock_ptrTest, AssignmentExchangesTheObject) {
    int alive = 0;
    CBlock_ptr<CBlock_func> pointer = NewCounted("a", alive);
    pointer = NewCounted("b", alive);
    EXPECT_EQ(alive, 1);
    EXPECT_EQ(pointer->Name().QRL_ANSI(), "b");
    const CBlock_ptr<CBlock_func>& same = pointer;
    pointer = same;
    EXPECT_EQ(alive, 1);
    EXPECT_EQ(pointer->Name().QRL_ANSI(), "b");
}

TEST(CBlock_ptrTest, AMoveTakesTheObjectOver) {
    int alive = 0;
    CBlock_ptr<CBlock_func> pointer = NewCounted("a", alive);
    const CBlock_ptr<CBlock_func> taken = std::move(pointer);
    EXPECT_EQ(taken->Name().QRL_ANSI(), "a");
    pointer = CBlock_ptr<CBlock_func>();
    EXPECT_EQ(alive, 1);
}

TEST(CBlock_ptrTest, TheArrowReachesTheVirtualOperations) {
    CBlock_ptr<CBlock_func> pointer = NewFunc();
    pointer->Name("b");
    const CBlock_ptr<CBlock_item> item(pointer);
    EXPECT_EQ(item->Name().QRL_ANSI(), "b");
    EXPECT_TRUE(item->IsFunc());
}

TEST(CBlock_ptrTest, ACheckedCastIsEmptyWhereTheObjectIsOfAnotherKind) {
    const CBlock_func func = FuncOf("(f 7 (g))");
    NodeIterator at = func.begin();
    const CBlock_ptr<CBlock_func_arg> number = func.Item(at);
    const CBlock_ptr<CBlock_func_arg> inner = func.Item(++at);
    EXPECT_EQ(CBlock_ptr<CBlock_value>(number).Item(), number.Item());
    EXPECT_EQ(CBlock_ptr<CBlock_func>(number).Item(), nullptr);
    EXPECT_EQ(CBlock_ptr<CBlock_value>(inner).Item(), nullptr);
    EXPECT_EQ(CBlock_ptr<CBlock_func>(inner).Item(), inner.Item());
    EXPECT_EQ(CBlock_ptr<CBlock_value>(CBlock_ptr<CBlock_func_arg>()).Item(), nullptr);
}

TEST(CBlock_ptrTest, ACheckedCastSharesTheObject) {
    int alive = 0;
    {
        CBlock_ptr<CBlock_item> item;
        {
            const CBlock_ptr<CBlock_func> func = NewCounted("a", alive);
            item = CBlock_ptr<CBlock_item>(func);
        }
        EXPECT_EQ(alive, 1);
    }
    EXPECT_EQ(alive, 0);
}

TEST(CBlock_ptrTest, ACopyOfTheObjectHasACountOfItsOwn) {
    const CBlock_ptr<CBlock_func> pointer = NewFunc();
    const CBlock_ptr<CBlock_func> second = pointer;
    {
        const CBlock_ptr<CBlock_func> copy(new CBlock_func(*pointer.Item()));
        EXPECT_NE(copy.Item(), pointer.Item());
    }
    EXPECT_EQ(second->Name().QRL_ANSI(), "a");
}

TEST(CBlock_ownerTest, AFreshObjectHasTheName) {
    CBlockFuncPtr func("f");
    CBlockPtr block("B");
    EXPECT_EQ((*func).Name().QRL_ANSI(), "f");
    EXPECT_TRUE((*func).Empty());
    EXPECT_EQ((*block).Name().QRL_ANSI(), "B");
    EXPECT_TRUE((*block).Empty());
    *func << 1;
    EXPECT_EQ(Outline(*std::as_const(func)), "f(1)");
}

TEST(CBlock_ownerTest, CopiesOwnTheSameObject) {
    CBlockFuncPtr func("f");
    const CBlockFuncPtr copy = func;
    *func << 1;
    EXPECT_EQ(Outline(*copy), "f(1)");
    EXPECT_EQ(&*copy, copy.GetPtr().Item());
}

} // namespace
} // namespace io
