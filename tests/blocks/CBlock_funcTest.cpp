#include "blocks/CBlock_func.h"

#include "tests/blocks/BlockText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <string_view>
#include <vector>

namespace io {
namespace {

/// What a read of `func` as a `T` gives, told apart from the target's earlier value.
template <class T>
struct Read {
    explicit Read(CBlock_func& func, T before) : m_Value(before) { func >> m_Value >> Query_ok(m_IsOk); }
    T m_Value;
    bool m_IsOk = false;
};

int ReadInt(CBlock_func& func) { return Read<int>(func, -777).m_Value; }

std::string ReadText(CBlock_func& func) { return Read<AString>(func, "before").m_Value.QRL_ANSI(); }

/// Whether `func >> query` finds something.
bool Finds(const CBlock_func& func, CBlock_func& query) {
    bool isOk = false;
    func >> query >> Query_ok(isOk);
    return isOk;
}

TEST(CBlock_funcTest, ANameAloneMakesAnEmptyFunc) {
    const CBlock_func func("geometry");
    EXPECT_EQ(func.Name().QRL_ANSI(), "geometry");
    EXPECT_EQ(func.Size(), 0);
    EXPECT_TRUE(func.Empty());
    EXPECT_TRUE(func.begin() == func.end());
    EXPECT_EQ(CBlock_func(AString("a\xFF")).Name().QRL_ANSI(), "a\xFF");
}

TEST(CBlock_funcTest, AFuncIsAFuncWithPositions) {
    const CBlock_func func("a");
    EXPECT_TRUE(func.IsFunc());
    EXPECT_TRUE(func.IsVec());
    EXPECT_TRUE(func.IsNamed());
    EXPECT_FALSE(func.IsBlock());
    EXPECT_FALSE(func.IsValue());
    EXPECT_FALSE(func.IsNamedValue());
}

TEST(CBlock_funcTest, SevenAbcIsReadAsAnIntAndAText) {
    CBlock_func func = FuncOf("(f 7 abc)");
    int number = 0;
    AString text;
    bool isOk = false;
    func >> number >> text >> Query_ok(isOk);
    EXPECT_TRUE(isOk);
    EXPECT_EQ(number, 7);
    EXPECT_EQ(text.QRL_ANSI(), "abc");
}

TEST(CBlock_funcTest, SevenIsNoTextAndCanBeReadAsAnIntAfterAReset) {
    CBlock_func func = FuncOf("(f 7 abc)");
    const Read<AString> asText(func, "before");
    EXPECT_FALSE(asText.m_IsOk);
    EXPECT_EQ(asText.m_Value.QRL_ANSI(), "before");
    func.ResetRead();
    const Read<int> asInt(func, 0);
    EXPECT_TRUE(asInt.m_IsOk);
    EXPECT_EQ(asInt.m_Value, 7);
}

TEST(CBlock_funcTest, AQueryFindsTheFirstOfLikeNamesAndLeavesTheReadPosition) {
    CBlock_func func = FuncOf("(f 1 (pt 10) 2 (pt 20) 3)");
    EXPECT_EQ(ReadInt(func), 1);
    CBlock_func query("pt");
    EXPECT_TRUE(Finds(func, query));
    EXPECT_EQ(Outline(query), "pt(10)");
    int next = -777;
    func >> next;
    EXPECT_EQ(next, -777) << "the next argument is still the first pt";
    func.ResetRead();
    EXPECT_EQ(ReadInt(func), 1);
}

TEST(CBlock_funcTest, AQueryThatFindsNothingStaysAsItWas) {
    CBlock_func func = FuncOf("(f pt \"pt\" (other (pt 1)))");
    CBlock_func query("pt");
    query << 5;
    EXPECT_FALSE(Finds(func, query));
    EXPECT_EQ(Outline(query), "pt(5)");
}

TEST(CBlock_funcTest, ReadsByTypeTellTheKindsApart) {
    struct Row {
        const char* m_Argument;
        bool m_IsInt;
        bool m_IsDouble;
        bool m_IsText;
    };
    // clang-format off
    const Row rows[] = {
        {"7",           true,  true,  false},
        {"-7",          true,  true,  false},
        {"007",         true,  true,  false},
        {"2147483647",  true,  true,  false},
        {"2147483648",  false, true,  false},
        {"1.5",         false, true,  false},
        {"2.0",         false, true,  false},
        {"1e3",         false, true,  false},
        {"1e400",       false, false, true},
        {"abc",         false, false, true},
        {"+5V",         false, false, true},
        {"-",           false, false, true},
        {"\"7\"",       false, false, true},
        {"\"\"",        false, false, true},
        {"(7)",         false, false, false},
        {"()",          false, false, false},
        {"",            false, false, false},
    };
    // clang-format on
    for (const Row& row : rows) {
        const CBlock_func func = FuncOf(std::string("(f ") + row.m_Argument + ")");
        CBlock_func copy = func;
        EXPECT_EQ(Read<int>(copy, 5).m_IsOk, row.m_IsInt) << row.m_Argument;
        copy = func;
        EXPECT_EQ(Read<double>(copy, 5).m_IsOk, row.m_IsDouble) << row.m_Argument;
        copy = func;
        EXPECT_EQ(Read<AString>(copy, "x").m_IsOk, row.m_IsText) << row.m_Argument;
    }
}

TEST(CBlock_funcTest, AFailedReadLeavesTargetAndPosition) {
    CBlock_func func = FuncOf("(f abc 1.5 7 (g))");
    const Read<int> first(func, 5);
    EXPECT_FALSE(first.m_IsOk);
    EXPECT_EQ(first.m_Value, 5);
    EXPECT_EQ(ReadText(func), "abc");
    EXPECT_EQ(Read<int>(func, 5).m_Value, 5);
    EXPECT_EQ(Read<double>(func, 5).m_Value, 1.5);
    EXPECT_EQ(Read<AString>(func, "x").m_Value.QRL_ANSI(), "x");
    EXPECT_EQ(ReadInt(func), 7);
    EXPECT_FALSE(Read<int>(func, 5).m_IsOk) << "a func is no value";
    EXPECT_FALSE(Read<AString>(func, "x").m_IsOk);
}

TEST(CBlock_funcTest, ReadsBehindTheLastArgumentFail) {
    CBlock_func func = FuncOf("(f 7)");
    EXPECT_EQ(ReadInt(func), 7);
    EXPECT_FALSE(Read<int>(func, 5).m_IsOk);
    EXPECT_EQ(Read<double>(func, 5.0).m_Value, 5.0);
    func << 8;
    EXPECT_EQ(ReadInt(func), 8) << "what is appended comes next";
}

TEST(CBlock_funcTest, AChildWithoutItsNumberLeavesTheDefault) {
    const CBlock_func func = FuncOf("(pt 1 2 (width))");
    CBlock_func width("width");
    EXPECT_TRUE(Finds(func, width));
    double value = 0.0;
    width >> value;
    EXPECT_EQ(value, 0.0);
}

TEST(CBlock_funcTest, LongTextsAreReadPastInOneStep) {
    const std::string text(50, 't');
    CBlock_func func("f");
    func << AString(std::string_view(text)) << 7;
    EXPECT_EQ(ReadText(func), text);
    EXPECT_EQ(ReadInt(func), 7);
}

TEST(CBlock_funcTest, AWholeNumberBecomesADoubleByWayOfTheInteger) {
    CBlock_func func = FuncOf("(f -0 -0.0 9007199254740993)");
    EXPECT_FALSE(std::signbit(Read<double>(func, 5.0).m_Value));
    EXPECT_TRUE(std::signbit(Read<double>(func, 5.0).m_Value));
    EXPECT_EQ(Read<double>(func, 5.0).m_Value, 9007199254740992.0) << "the even neighbour";
}

TEST(CBlock_funcTest, ValuesThatWereAppendedCanBeRead) {
    CBlock_func func("f");
    func << 7 << 1.5 << "text" << true << L"wide" << AString("a\xFF");
    EXPECT_EQ(ReadInt(func), 7);
    EXPECT_EQ(Read<double>(func, 5.0).m_Value, 1.5);
    EXPECT_EQ(ReadText(func), "text");
    EXPECT_FALSE(Read<int>(func, 5).m_IsOk) << "a truth value is no number";
    EXPECT_FALSE(Read<AString>(func, "x").m_IsOk);
    EXPECT_EQ(Outline(func), "f(7 1.5 \"text\" true \"wide\" \"a\xFF\")");
}

TEST(CBlock_funcTest, QueryOkTellsOfTheLastReadOnly) {
    CBlock_func func = FuncOf("(f 7 abc)");
    bool isOk = false;
    func >> Query_ok(isOk);
    EXPECT_TRUE(isOk) << "nothing has failed yet";
    AString text;
    int number = 0;
    func >> text >> Query_ok(isOk);
    EXPECT_FALSE(isOk);
    func >> number >> Query_ok(isOk);
    EXPECT_TRUE(isOk);
    func >> number;
    func.ResetRead();
    func >> Query_ok(isOk);
    EXPECT_FALSE(isOk) << "a reset is no read";
}

TEST(CBlock_funcTest, AQueryIgnoresCaseAndTakesTheNameThatItFinds) {
    const CBlock_func func = FuncOf("(f (PolyGon 1))");
    CBlock_func query("polygon");
    EXPECT_TRUE(Finds(func, query));
    EXPECT_EQ(Outline(query), "PolyGon(1)");
}

TEST(CBlock_funcTest, AQueryLooksAtFuncsOfThisLevelOnly) {
    const CBlock_func func = FuncOf("(f g \"g\" (h (g 1)) (g 2))");
    CBlock_func query("g");
    EXPECT_TRUE(Finds(func, query));
    EXPECT_EQ(Outline(query), "g(2)");
}

TEST(CBlock_funcTest, AFoundFuncIsReadFromItsFirstArgument) {
    CBlock_func func = FuncOf("(f (pt 1 2))");
    CBlock_func query("pt");
    EXPECT_TRUE(Finds(func, query));
    EXPECT_EQ(ReadInt(query), 1);
    EXPECT_TRUE(Finds(func, query));
    EXPECT_EQ(ReadInt(query), 1) << "as often as it is asked for";
    EXPECT_EQ(ReadInt(query), 2);
}

TEST(CBlock_funcTest, AQueryStepsDownANestingOfLikeNames) {
    CBlock_func surface = FuncOf("(surface 1 (geometry (surface 2 (geometry (surface 3)))))");
    CBlock_func geometry("geometry");
    std::vector<int> numbers;
    bool isOk = true;
    while (isOk) {
        numbers.push_back(ReadInt(surface));
        surface >> geometry >> Query_ok(isOk);
        if (isOk)
            geometry >> surface;
    }
    EXPECT_EQ(numbers, (std::vector<int>{1, 2, 3}));
    EXPECT_EQ(Outline(surface), "surface(3)");
    EXPECT_EQ(Outline(geometry), "geometry(surface(3))") << "not found any more, so it keeps its content";
}

TEST(CBlock_funcTest, AFuncCanBeItsOwnQuery) {
    CBlock_func func = FuncOf("(a 1 (a 2 (b) (a 3)))");
    func >> func;
    EXPECT_EQ(Outline(func), "a(2 b() a(3))");
    func >> func;
    EXPECT_EQ(Outline(func), "a(3)");
    EXPECT_EQ(ReadInt(func), 3);
    EXPECT_FALSE(Finds(func, func));
    EXPECT_EQ(Outline(func), "a(3)");
}

TEST(CBlock_funcTest, AFuncThatHoldsItsQueryByReferenceCanBeItsOwnQuery) {
    CBlock_func func("a");
    {
        CBlock_func deep("x");
        deep << 1;
        CBlockFuncPtr inner("a");
        *inner << 2 << deep;
        func << inner;
    }
    func >> func;
    EXPECT_EQ(Outline(func), "a(2 x(1))");
}

TEST(CBlock_funcTest, AQueryLooksThroughReferencesAndPastNullPointers) {
    CBlock_func func("f");
    CBlockFuncPtr referenced("g");
    func << CBlock_ptr<CBlock_func>() << 1 << referenced;
    *referenced << 5;
    CBlock_func query("G");
    EXPECT_TRUE(Finds(func, query));
    EXPECT_EQ(Outline(query), "g(5)");
}

TEST(CBlock_funcTest, AFuncThatWasFoundOutlivesItsParent) {
    CBlock_func query("b");
    {
        const CBlock_func func = FuncOf("(a (b 1 (c averyveryverylongword)))");
        EXPECT_TRUE(Finds(func, query));
    }
    EXPECT_EQ(Outline(query), "b(1 c(averyveryverylongword))");
}

TEST(CBlock_funcTest, AChangeOfAFoundFuncDoesNotReachItsParent) {
    const CBlock_func func = FuncOf("(a (b 1) (c))");
    CBlock_func query("b");
    EXPECT_TRUE(Finds(func, query));
    query << 2;
    EXPECT_EQ(Outline(query), "b(1 2)");
    EXPECT_EQ(Outline(func), "a(b(1) c())");
    EXPECT_EQ(ReadInt(query), 1);
    EXPECT_EQ(ReadInt(query), 2);
}

TEST(CBlock_funcTest, AChangeInTheMiddleOfReadingKeepsTheReadPosition) {
    CBlock_func func = FuncOf("(averyveryverylongname (g 1 2 3))");
    CBlock_func query("g");
    EXPECT_TRUE(Finds(func, query));
    EXPECT_EQ(ReadInt(query), 1);
    query << 4;
    query.Name("anotherveryverylongname");
    EXPECT_EQ(ReadInt(query), 2);
    EXPECT_EQ(ReadInt(query), 3);
    EXPECT_EQ(ReadInt(query), 4);
}

TEST(CBlock_funcTest, IteratorsWalkTheArgumentsInOrder) {
    const CBlock_func func = FuncOf("(f 1 (g (h) 2) \"averyveryverylongtext\" () x)");
    std::vector<std::string> arguments;
    for (NodeIterator at = func.begin(); at != func.end(); ++at)
        arguments.push_back(OutlineOfArgument(func.Item(at).Item()));
    EXPECT_EQ(arguments, (std::vector<std::string>{"1", "g(h() 2)", "\"averyveryverylongtext\"", "__NIL__()", "x"}));
    EXPECT_EQ(func.Size(), 5);
}

TEST(CBlock_funcTest, NamesCanBeAskedOfEveryArgument) {
    const CBlock_func func = FuncOf("(f 1 abc \"q\" (pt 2))");
    std::string names;
    for (NodeIterator at = func.begin(); at != func.end(); ++at)
        names += func.Item(at)->Name().QRL_ANSI() + '|';
    EXPECT_EQ(names, "|||pt|");
}

TEST(CBlock_funcTest, TextsCanBeAskedOfEveryArgument) {
    const CBlock_func func = FuncOf("(f 007 abc \"q r\" (pt 2))");
    std::string texts;
    for (NodeIterator at = func.begin(); at != func.end(); ++at) {
        AString text("unchanged");
        const bool isOk = func.Item(at)->Query(text);
        texts += text.QRL_ANSI() + (isOk ? "|" : "!");
    }
    EXPECT_EQ(texts, "007|abc|q r|unchanged!");
}

TEST(CBlock_funcTest, EveryQueryOfAFuncFailsAndLeavesItsTarget) {
    const CBlock_func func = FuncOf("(f 7)");
    const auto isRefused = [&func](auto before) {
        auto value = before;
        return !func.Query(value) && value == before;
    };
    EXPECT_TRUE(isRefused(true));
    EXPECT_TRUE(isRefused(AString("x")));
    EXPECT_TRUE(isRefused(5ULL));
    EXPECT_TRUE(isRefused(5LL));
    EXPECT_TRUE(isRefused(5UL));
    EXPECT_TRUE(isRefused(5U));
    EXPECT_TRUE(isRefused(static_cast<unsigned short>(5)));
    EXPECT_TRUE(isRefused(5L));
    EXPECT_TRUE(isRefused(5));
    EXPECT_TRUE(isRefused(static_cast<short>(5)));
    EXPECT_TRUE(isRefused(5.0F));
    EXPECT_TRUE(isRefused(5.0));
    wchar_t text[] = L"x";
    EXPECT_FALSE(func.Query(text));
    EXPECT_STREQ(text, L"x");
}

} // namespace
} // namespace io
