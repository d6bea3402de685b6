#include "zuken/ListValues.h"

#include "tests/BoardText.h"

TEST(ListValuesTest, ChildIsTheFirstOfItsName) {
    io::CBlock_func child = GetChild_G(ListOf("(a (b 1) (C 2) (c 3))"), "c");
    int value = 0;
    child >> value;
    EXPECT_EQ(2, value);
}

TEST(ListValuesTest, MissingChildIsAnEmptyList) {
    const io::CBlock_func child = GetChild_G(ListOf("(a c (b 1))"), "c");
    EXPECT_TRUE(child.NameIs("c"));
    EXPECT_EQ(0, child.Size());
}

TEST(ListValuesTest, RealIsWhatTheChildBeginsWith) {
    EXPECT_EQ(1.5, GetRealOf_G(ListOf("(a (width 1.5 2.5))"), "width"));
    EXPECT_EQ(7.0, GetRealOf_G(ListOf("(a (width 7))"), "width"));
    EXPECT_EQ(0.0, GetRealOf_G(ListOf("(a (width wide 2))"), "width"));
    EXPECT_EQ(0.0, GetRealOf_G(ListOf("(a (width))"), "width"));
    EXPECT_EQ(0.0, GetRealOf_G(ListOf("(a 7)"), "width"));
}

TEST(ListValuesTest, TextIsNoNumber) {
    EXPECT_EQ("TOP", GetTextOf_G(ListOf("(a (footLayer TOP))"), "footLayer").QRL_ANSI());
    EXPECT_EQ("7", GetTextOf_G(ListOf("(a (footLayer \"7\"))"), "footLayer").QRL_ANSI());
    EXPECT_TRUE(GetTextOf_G(ListOf("(a (footLayer 7))"), "footLayer").empty());
    EXPECT_TRUE(GetTextOf_G(ListOf("(a)"), "footLayer").empty());
}

TEST(ListValuesTest, PointIsScaled) { EXPECT_EQ(geom::Point(3, -4), GetPointOf_G(ListOf("(a (pt 6 -8))"), 0.5)); }

TEST(ListValuesTest, MissingCoordinateIsZero) {
    EXPECT_EQ(geom::Point(6, 0), GetPointOf_G(ListOf("(a (pt 6))"), 1.0));
    EXPECT_EQ(geom::Point(6, 0), GetPointOf_G(ListOf("(a (pt 6 word 8))"), 1.0));
    EXPECT_EQ(geom::k_Origin, GetPointOf_G(ListOf("(a (pt word 8))"), 1.0)) << "the word stands in the way of both";
    EXPECT_EQ(geom::k_Origin, GetPointOf_G(ListOf("(a)"), 1.0));
}

TEST(ListValuesTest, FoundChildFillsTheQuery) {
    io::CBlock_func query("c");
    EXPECT_TRUE(FindChild_G(ListOf("(a (C 2) (c 3))"), query));
    int value = 0;
    query >> value;
    EXPECT_EQ(2, value);
    EXPECT_FALSE(FindChild_G(ListOf("(a (b 1))"), query));
    query.ResetRead();
    query >> value;
    EXPECT_EQ(2, value) << "it stays as it was";
}

TEST(ListValuesTest, AnyTextIsWhatStandsInTheFile) {
    const auto textOf = [](std::string_view list) {
        AString text("before");
        ReadAnyText_G(ListOf(list), text);
        return text.QRL_ANSI();
    };
    EXPECT_EQ("1.50", textOf("(part 1.50)"));
    EXPECT_EQ("a b", textOf("(part \"a b\")"));
    EXPECT_EQ("word", textOf("(part word 7)"));
    EXPECT_EQ("before", textOf("(part (x 7))"));
    EXPECT_EQ("before", textOf("(part)"));
}

TEST(ListValuesTest, PinNameIsAWholeNumberOrAnyText) {
    const auto nameOf = [](std::string_view list) {
        io::CBlock_func pin = ListOf(list);
        return ReadPinName_G(pin).QRL_ANSI();
    };
    EXPECT_EQ("7", nameOf("(pin 007)"));
    EXPECT_EQ("A1", nameOf("(pin A1)"));
    EXPECT_EQ("007", nameOf("(pin \"007\")"));
    EXPECT_EQ("1.50", nameOf("(pin 1.50)"));
    EXPECT_EQ("", nameOf("(pin (layout))"));
    EXPECT_EQ("", nameOf("(pin)"));
}

TEST(ListValuesTest, NameIsATextOrAWholeNumber) {
    const auto nameOf = [](std::string_view text) {
        AString name("before");
        io::CBlock_func list = ListOf(text);
        ReadName_G(list, name);
        return name.QRL_ANSI();
    };
    EXPECT_EQ("R17", nameOf("(reference R17)"));
    EXPECT_EQ("17", nameOf("(reference 017)"));
    EXPECT_EQ("017", nameOf("(reference \"017\")"));
    EXPECT_EQ("", nameOf("(reference \"\")"));
    EXPECT_EQ("before", nameOf("(reference 1.7)"));
    EXPECT_EQ("before", nameOf("(reference)"));
    EXPECT_EQ("before", nameOf("(reference (pt 1))"));
}
