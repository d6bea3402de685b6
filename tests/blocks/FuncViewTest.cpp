#include "blocks/FuncView.h"

#include "tests/blocks/BlockText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace io {
namespace {

/// The first numbers of the funcs in a func, each in brackets.
std::string NumbersOf(FuncView parent) {
    std::string text;
    for (FuncView func : parent.Funcs()) {
        int number = 0;
        func >> number;
        text += '[' + std::to_string(number) + ']';
    }
    return text;
}

TEST(FuncViewTest, NothingIsNamelessAndEmpty) {
    FuncView nothing;
    double number = 5.0;
    nothing >> number;
    EXPECT_FALSE(nothing);
    EXPECT_FALSE(nothing.NameIs(""));
    EXPECT_EQ(5.0, number);
    EXPECT_EQ("", nothing.GetText());
    EXPECT_FALSE(nothing.Find("a"));
    EXPECT_EQ("", NumbersOf(nothing));
}

TEST(FuncViewTest, NameMatchesInAnyCase) {
    const CBlock_func func = FuncOf("(Line 1)");
    EXPECT_TRUE(FuncView(func).NameIs("line"));
    EXPECT_FALSE(FuncView(func).NameIs("lines"));
    EXPECT_FALSE(FuncView(func).NameIs("Lane"));
}

TEST(FuncViewTest, ValuesAreReadInTurn) {
    const CBlock_func func = FuncOf("(f 1 -2.5 word \"quoted\" 7)");
    FuncView view(func);
    int whole = 0;
    double real = 0.0;
    AString word;
    AString quoted;
    view >> whole >> real >> word >> quoted;
    EXPECT_EQ(1, whole);
    EXPECT_EQ(-2.5, real);
    EXPECT_EQ("word", word.QRL_ANSI());
    EXPECT_EQ("quoted", quoted.QRL_ANSI());
    view >> real;
    EXPECT_EQ(7.0, real);
}

TEST(FuncViewTest, WhatIsOfAnotherKindOrMissingIsNotReadAndStaysNext) {
    const CBlock_func func = FuncOf("(f word 3)");
    FuncView view(func);
    double real = 9.0;
    int whole = 9;
    AString text;
    view >> real >> whole >> text >> real >> whole;
    EXPECT_EQ("word", text.QRL_ANSI());
    EXPECT_EQ(3.0, real);
    EXPECT_EQ(9, whole) << "nothing is left";
    view >> text;
    EXPECT_EQ("word", text.QRL_ANSI());
}

TEST(FuncViewTest, NumbersOfAnyFormAreRead) {
    const CBlock_func func = FuncOf("(f -0 +12 1e3 123456789012345678901234567890 .5)");
    FuncView view(func);
    double values[5] = {};
    for (double& value : values)
        view >> value;
    EXPECT_EQ(0.0, values[0]);
    EXPECT_FALSE(std::signbit(values[0])) << "a whole number has no minus zero";
    EXPECT_EQ(12.0, values[1]);
    EXPECT_EQ(1000.0, values[2]);
    EXPECT_EQ(123456789012345678901234567890.0, values[3]);
    EXPECT_EQ(0.5, values[4]);
}

TEST(FuncViewTest, NumberInQuotesIsAText) {
    const CBlock_func func = FuncOf("(f \"12\")");
    FuncView view(func);
    double real = 9.0;
    view >> real;
    EXPECT_EQ(9.0, real);
    EXPECT_EQ("12", view.GetText());
}

TEST(FuncViewTest, TextIsThatAtTheReadPosition) {
    const CBlock_func func = FuncOf("(f 1 CW (g))");
    FuncView view(func);
    EXPECT_EQ("", view.GetText()) << "a number is no text";
    int number = 0;
    view >> number;
    EXPECT_EQ("CW", view.GetText());
    EXPECT_EQ("CW", view.GetText()) << "looking doesn't read";
}

TEST(FuncViewTest, FirstFuncOfANameIsFound) {
    const CBlock_func func = FuncOf("(f b (a 1) (B 2) (b 3))");
    int number = 0;
    FuncView(func).Find("b") >> number;
    EXPECT_EQ(2, number);
    EXPECT_TRUE(FuncView(func).Find("a"));
    EXPECT_FALSE(FuncView(func).Find("c"));
}

TEST(FuncViewTest, FuncsAreWalkedWhateverStandsBetweenThem) {
    EXPECT_EQ(
        "[1][2][0][3]", NumbersOf(FuncOf("(f 5 (a 1) word (b 2) \"a text that is too long for a node\" () (c 3))")));
    EXPECT_EQ("", NumbersOf(FuncOf("(f 5 word)")));
}

TEST(FuncViewTest, AFuncThatWasReadIsFoundBehindTheReadPosition) {
    const CBlock_func func = FuncOf("(pt 1 2 (width 3))");
    FuncView view(func);
    int x = 0;
    int y = 0;
    view >> x >> y;
    EXPECT_EQ("[3]", NumbersOf(view));
    EXPECT_TRUE(view.Find("width"));
}

TEST(FuncViewTest, FuncAheadOfTheValuesStaysInTheWay) {
    const CBlock_func func = FuncOf("(pt (width 3) 1)");
    FuncView view(func);
    int x = 9;
    view >> x;
    EXPECT_EQ(9, x);
    EXPECT_EQ("[3]", NumbersOf(view));
}

TEST(FuncViewTest, ReferencesAreFuncsAndNullPointersArePassedOver) {
    CBlock_func func("f");
    CBlockFuncPtr referenced("r");
    *referenced << 4;
    func << CBlock_ptr<CBlock_func>() << referenced << CBlock_ptr<CBlock_func>() << CBlock_func("s");
    EXPECT_EQ("[4][0]", NumbersOf(func));
    int number = 0;
    FuncView(func).Find("R") >> number;
    EXPECT_EQ(4, number);
}

TEST(FuncViewTest, ReadingStartsAtTheFirstArgumentWhereverTheFuncIsRead) {
    CBlock_func func = FuncOf("(f 1 2)");
    int number = 0;
    func >> number;
    FuncView(func) >> number;
    EXPECT_EQ(1, number);
}

} // namespace
} // namespace io
