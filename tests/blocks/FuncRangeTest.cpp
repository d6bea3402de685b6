#include "blocks/FuncRange.h"

#include "tests/blocks/BlockText.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace io {
namespace {

template <class Parent>
std::string OutlinesOf(const Parent& parent) {
    std::string text;
    for (const CBlock_func& func : parent.Funcs())
        text += Outline(func) + ' ';
    return text;
}

TEST(FuncRangeTest, ValuesArePassedOver) {
    EXPECT_EQ(
        OutlinesOf(FuncOf("(f 1 (a 2) \"x\" (b (c)) () averyveryverylongword (a))")), "a(2) b(c()) __NIL__() a() ");
    EXPECT_EQ(OutlinesOf(FuncOf("(f)")), "");
    EXPECT_EQ(OutlinesOf(FuncOf("(f 1 2)")), "");
}

TEST(FuncRangeTest, OnlyTheFuncsOfABlockAreWalked) {
    CBlock block("B");
    CBlock inner("Inner");
    inner << CBlock_func("deep");
    block << inner << CBlock_func("f") << CBlock_named_value("n", AString("averyveryverylongtext")) << CBlockPtr("P")
          << CBlockFuncPtr("g") << CBlock_ptr<CBlock_func>();
    EXPECT_EQ(OutlinesOf(block), "f() g() ");
}

TEST(FuncRangeTest, ReferencesAreWalkedAndNullPointersPassedOver) {
    CBlock_func func("f");
    CBlockFuncPtr referenced("r");
    *referenced << 1;
    func << CBlock_ptr<CBlock_func>() << referenced << CBlock_ptr<CBlock_func>() << CBlock_func("s");
    EXPECT_EQ(OutlinesOf(func), "r(1) s() ");
}

TEST(FuncRangeTest, EachFuncIsReadFromItsFirstArgumentInEveryWalk) {
    const CBlock_func parent = FuncOf("(f (a 1 2) (a 3 4))");
    for (int walk = 0; walk < 2; ++walk) {
        std::vector<int> firsts;
        for (CBlock_func& func : parent.Funcs()) {
            int number = 0;
            func >> number;
            firsts.push_back(number);
        }
        EXPECT_EQ(firsts, (std::vector<int>{1, 3}));
    }
}

TEST(FuncRangeTest, AFuncThatIsCopiedStaysWhenTheWalkGoesOn) {
    std::vector<CBlock_func> kept;
    for (const CBlock_func& func : FuncOf("(f (a 1) (b 2) (c 3))").Funcs())
        kept.push_back(func);
    ASSERT_EQ(kept.size(), 3U);
    EXPECT_EQ(Outline(kept[0]), "a(1)");
    EXPECT_EQ(Outline(kept[2]), "c(3)");
}

TEST(FuncRangeTest, AChangeOnTheWayReachesNeitherTheParentNorTheNextFunc) {
    CBlock_func parent = FuncOf("(f (a 1) (b 2))");
    std::string seen;
    for (CBlock_func& func : parent.Funcs()) {
        func << 9;
        seen += Outline(func) + ' ';
        parent << 5;
    }
    EXPECT_EQ(seen, "a(1 9) b(2 9) ");
    EXPECT_EQ(Outline(parent), "f(a(1) b(2) 5 5)");
}

TEST(FuncRangeTest, TheParentCanBeReplacedOnTheWay) {
    CBlock_func parent = FuncOf("(f (a 1) (b 2))");
    std::string seen;
    for (const CBlock_func& func : parent.Funcs()) {
        parent = CBlock_func("other");
        seen += Outline(func) + ' ';
    }
    EXPECT_EQ(seen, "a(1) b(2) ");
}

TEST(FuncRangeTest, ThePartOfAWalkCanBeWalkedItself) {
    std::string names;
    for (const CBlock_func& outer : FuncOf("(f (a (b) (c)) (d (e)))").Funcs())
        for (const CBlock_func& inner : outer.Funcs())
            names += outer.Name().QRL_ANSI() + inner.Name().QRL_ANSI() + ' ';
    EXPECT_EQ(names, "ab ac de ");
}

} // namespace
} // namespace io
