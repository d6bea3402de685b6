#include "blocks/ReadBlock.h"

#include "tests/blocks/BlockText.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace io {
namespace {

using namespace std::string_literals;

std::string OutlineOf(std::string_view text) {
    const ListResult result = ReadLists(text);
    EXPECT_TRUE(result.m_IsOk) << text;
    EXPECT_EQ(result.m_Output, "") << text;
    return Outline(result.m_Block);
}

/// `text` with each line end as CR LF.
std::string WithCarriageReturns(std::string_view text) {
    std::string result;
    for (const char c : text)
        result += c == '\n' ? "\r\n"s : std::string(1, c);
    return result;
}

TEST(ReadBlockTest, EachConstructGivesItsTree) {
    struct Row {
        const char* m_Name;
        std::string m_Text;
        std::string m_Outline;
    };
    // clang-format off
    const Row rows[] = {
        {"nothing",                     "",                         "{}"},
        {"blanks and comments",         " \r\n ; (a)\n\t",          "{}"},
        {"one list",                    "(a)",                      "{a()}"},
        {"lists in file order",         "(a)(b)\n(a)",              "{a() b() a()}"},
        {"stray tokens are dropped",    "x (a) 1 \"(\" (b) ) y",    "{a() b()}"},
        {"only stray tokens",           "x ) ) 7",                  "{}"},
        {"values",                      "(a b 1 -2.50 \"c d\")",    "{a(b 1 -2.50 \"c d\")}"},
        {"values and lists mix",        "(a 1 (b 2) 3 (c) (b))",    "{a(1 b(2) 3 c() b())}"},
        {"nested lists",                "(a(b(c(d 1)))2)",          "{a(b(c(d(1))) 2)}"},
        {"empty list",                  "()",                       "{__NIL__()}"},
        {"empty list around a comment", "( ; x\n )",                "{__NIL__()}"},
        {"number for a head",           "(1.50 x)",                 "{1.50(x)}"},
        {"quoted head",                 "(\"a b\" x)",              "{a b(x)}"},
        {"empty quoted head",           "(\"\" x)",                 "{(x)}"},
        {"comment between elements",    "(a ; b ) (\n c)",          "{a(c)}"},
        {"comment behind a word",       "(a b;c)\n)",               "{a(b)}"},
        {"extra parentheses",           "(a)))(b)",                 "{a() b()}"},
        {"long head",                   "(averyveryverylonghead averyveryverylongword \"a very long text\")",
            "{averyveryverylonghead(averyveryverylongword \"a very long text\")}"},
        {"NUL in words and heads",      "(a\0b \"c\0d\")"s,         "{a\0b(\"c\0d\")}"s},
        {"byte order mark",             "\xEF\xBB\xBF(a)",          "{a()}"},
        {"unknown heads",               "(anything (at all))",      "{anything(at(all))}"},
    };
    // clang-format on
    for (const Row& row : rows) {
        EXPECT_EQ(OutlineOf(row.m_Text), row.m_Outline) << row.m_Name;
        EXPECT_EQ(OutlineOf(WithCarriageReturns(row.m_Text)), row.m_Outline) << row.m_Name << " with CR LF";
    }
}

TEST(ReadBlockTest, ALineEndInAQuotedTextStaysAsItIs) {
    EXPECT_EQ(OutlineOf("(a \"x\r\ny\nz\")"), "{a(\"x\r\ny\nz\")}");
}

TEST(ReadBlockTest, AnEmptyListInsideAListIsNamedNil) {
    const CBlock_func func = FuncOf("(a () (b 7))");
    EXPECT_EQ(Outline(func), "a(__NIL__() b(7))");
    CBlock_func query("b");
    bool isOk = false;
    func >> query >> Query_ok(isOk);
    EXPECT_TRUE(isOk);
    EXPECT_EQ(Outline(query), "b(7)");
}

TEST(ReadBlockTest, AnOpenListWithoutElementsIsKeptWithNoMessage) { EXPECT_EQ(OutlineOf("(pcf"), "{pcf()}"); }

TEST(ReadBlockTest, TheEndOfTheTextClosesEveryOpenList) {
    EXPECT_EQ(OutlineOf("(a (b 1 (c \"x\""), "{a(b(1 c(\"x\")))}");
    EXPECT_EQ(OutlineOf("(a (b) ; c"), "{a(b())}");
    EXPECT_EQ(OutlineOf("(a\n"), "{a()}");
    EXPECT_EQ(OutlineOf("(x) (a ()"), "{x() a(__NIL__())}");
}

TEST(ReadBlockTest, PassingOverAStringEndsAtTheFirstParenthesis) {
    EXPECT_EQ(OutlineOf("(a (b) (string \"x\" (y) z) w)"), "{a(b() string() z)}");
}

TEST(ReadBlockTest, PassingOverAPropertyListLeavesTheRestToItsParent) {
    EXPECT_EQ(OutlineOf("(p (propertys (a 1) (b 2)) c) (d)"), "{p(propertys() b(2)) d()}");
}

TEST(ReadBlockTest, PropertysAndStringArePassedOverWhateverTheirCase) {
    EXPECT_EQ(OutlineOf("(a (Propertys x 1) (STRING y) b)"), "{a(Propertys() STRING() b)}");
    EXPECT_EQ(OutlineOf("(PROPERTYS x) (String y)"), "{PROPERTYS() String()}");
    EXPECT_EQ(OutlineOf("(a (properties x) (strings y))"), "{a(properties(x) strings(y))}");
}

TEST(ReadBlockTest, FlatPropertysAndStringsArePassedOverExactly) {
    EXPECT_EQ(OutlineOf("(a (propertys x \"y\" 1) (string) b)"), "{a(propertys() string() b)}");
    EXPECT_EQ(OutlineOf("(string) (a)"), "{string() a()}");
}

TEST(ReadBlockTest, AQuotedHeadIsPassedOverToo) { EXPECT_EQ(OutlineOf("(a (\"string\" x) b)"), "{a(string() b)}"); }

TEST(ReadBlockTest, AQuotedParenthesisEndsWhatIsPassedOver) {
    EXPECT_EQ(OutlineOf("(a (string \")\" b) c)"), "{a(string() b)}");
    EXPECT_EQ(OutlineOf("(a (string \"))\" b) c)"), "{a(string() c)}");
}

TEST(ReadBlockTest, TheEndOfTheTextEndsWhatIsPassedOver) {
    EXPECT_EQ(OutlineOf("(a (propertys x (y"), "{a(propertys())}");
    EXPECT_EQ(OutlineOf("(string"), "{string()}");
}

TEST(ReadBlockTest, ANumberKeepsItsKindAndItsText) {
    CBlock_func func = FuncOf("(a 007 1.50 +5V)");
    AString text("before");
    bool isOk = true;
    func >> text >> Query_ok(isOk);
    EXPECT_FALSE(isOk);
    int whole = 0;
    double real = 0.0;
    func >> whole >> real >> text >> Query_ok(isOk);
    EXPECT_TRUE(isOk);
    EXPECT_EQ(whole, 7);
    EXPECT_EQ(real, 1.5);
    EXPECT_EQ(text.QRL_ANSI(), "+5V");
    EXPECT_EQ(Outline(func), "a(007 1.50 +5V)");
}

TEST(ReadBlockTest, TheTreeOutlivesTheStream) {
    CBlock block;
    {
        const std::string text = "(" + std::string(30, 'n') + " " + std::string(40, 'w') + " short)";
        CToken_istream stream = ListStream(text);
        ASSERT_TRUE(ReadBlock(stream, block));
        stream.Close();
    }
    EXPECT_EQ(Outline(block), "{" + std::string(30, 'n') + "(" + std::string(40, 'w') + " short)}");
}

TEST(ReadBlockTest, ReadingAppendsToWhatTheBlockHolds) {
    CBlock block("B");
    block << CBlock_func("first");
    CToken_istream stream = ListStream("(second)");
    EXPECT_TRUE(ReadBlock(stream, block));
    EXPECT_EQ(Outline(block), "B{first() second()}");
}

/// A place where reading ends, the line on standard output, and the lists that survive.
struct BrokenRow {
    const char* m_Name;
    std::string m_Text;
    std::string m_Output;
    std::string m_Outline;
};

void ExpectFailure(const BrokenRow& row) {
    for (const std::string& text : {row.m_Text, WithCarriageReturns(row.m_Text)}) {
        const ListResult result = ReadLists(text);
        EXPECT_FALSE(result.m_IsOk) << row.m_Name;
        EXPECT_EQ(result.m_Output, row.m_Output) << row.m_Name;
        EXPECT_EQ(Outline(result.m_Block), row.m_Outline) << row.m_Name;
    }
}

TEST(ReadBlockTest, AListForAHeadEndsTheReading) {
    // clang-format off
    const BrokenRow rows[] = {
        {"first line, alone",          "((",                    "Parsing failed at line: 1 near (\n",        "{}"},
        {"first line with its end",    "((\n",                  "Parsing failed at line: 1 near (\n",        "{}"},
        {"first line of more",         "((a b) c)\n(d)\n",      "Parsing failed at line: 1 near (a b) c)\n", "{}"},
        {"middle line",                "(x)\n(a ((b)) ; c\n(y)\n", "Parsing failed at line: 2 near (b)) ; c\n", "{x()}"},
        {"last line with its end",     "(x)\n(y)\n  ( (a\n",    "Parsing failed at line: 3 near  (a\n",      "{x() y()}"},
        {"last line without",          "(x)\n(y)\n((a",         "Parsing failed at line: 3 near (a\n",       "{x() y()}"},
        {"heads on different lines",   "(x)\n( ; c\n\n(a))\n",  "Parsing failed at line: 2 near  ; c\n",     "{x()}"},
        {"deep in a list",             "(x)\n(a (b (c\n1 (() 2)", "Parsing failed at line: 3 near () 2)\n",  "{x()}"},
    };
    // clang-format on
    for (const BrokenRow& row : rows)
        ExpectFailure(row);
}

TEST(ReadBlockTest, AParenthesisAtTheEndEndsTheReading) {
    // clang-format off
    const BrokenRow rows[] = {
        {"first line, alone",          "(",             "Parsing failed at line: 1 near \n",      "{}"},
        {"first line with its end",    "(\n",           "Parsing failed at line: 1 near \n",      "{}"},
        {"first line, comment behind", "( ; end",       "Parsing failed at line: 1 near  ; end\n", "{}"},
        {"blank lines behind",         "(x) (\n\n\n",   "Parsing failed at line: 1 near \n",      "{x()}"},
        {"middle line",                "(x)\n(a (\n;",  "Parsing failed at line: 2 near \n",      "{x()}"},
        {"last line with its end",     "(x)\n(a\n(\n",  "Parsing failed at line: 3 near \n",      "{x()}"},
        {"last line without",          "(x)\n(a\n(",    "Parsing failed at line: 3 near \n",      "{x()}"},
    };
    // clang-format on
    for (const BrokenRow& row : rows)
        ExpectFailure(row);
}

TEST(ReadBlockTest, AnOpenStringEndsTheReadingOnTheLineWhereItOpens) {
    // clang-format off
    const BrokenRow rows[] = {
        {"first line, alone",         "\"",                   "Parsing failed at line: 1 near \"\n",     "{}"},
        {"first line with its end",   "(a \"b\n",             "Parsing failed at line: 1 near \"b\n",    "{}"},
        {"first line of more",        "(a \"b)\n(c)\n",       "Parsing failed at line: 1 near \"b)\n",   "{}"},
        {"stray, behind a list",      "(a)\n \"b\n",          "Parsing failed at line: 2 near \"b\n",    "{a()}"},
        {"as a head",                 "(x)\n(\"a b)\n",       "Parsing failed at line: 2 near \"a b)\n", "{x()}"},
        {"head on a line of its own", "(x)\n(\n\"a\n",        "Parsing failed at line: 3 near \"a\n",    "{x()}"},
        {"middle line",               "(x)\n(a\n  \"b\n)\n",  "Parsing failed at line: 3 near \"b\n",    "{x()}"},
        {"behind a comment",          "(x)\n(a ; c\n\"b)\n",  "Parsing failed at line: 3 near \"b)\n",   "{x()}"},
        {"behind a string of lines",  "(a \"b\nc\" \"d)\n",   "Parsing failed at line: 2 near \"d)\n",   "{}"},
        {"in what is passed over",    "(x)\n(string\n1 \"b)", "Parsing failed at line: 3 near \"b)\n",   "{x()}"},
        {"last line with its end",    "(x)\n(a\n\"b)\n",      "Parsing failed at line: 3 near \"b)\n",   "{x()}"},
        {"last line without",         "(x)\n(a\n\"b)",        "Parsing failed at line: 3 near \"b)\n",   "{x()}"},
        {"last character",            "(x)\n(a\n\"",          "Parsing failed at line: 3 near \"\n",     "{x()}"},
    };
    // clang-format on
    for (const BrokenRow& row : rows)
        ExpectFailure(row);
}

TEST(ReadBlockTest, AFailureOnLineTenNamesLineTen) {
    std::string text = "(pcf\n";
    for (int line = 2; line < 10; ++line)
        text += "(a)\n";
    EXPECT_EQ(ReadLists(text + "((b)\n(c))\n").m_Output, "Parsing failed at line: 10 near (b)\n");
}

TEST(ReadBlockTest, AFailureOnALastLineWithoutLineEndNamesThatLine) {
    std::string text = "(pcf\n";
    for (int line = 2; line < 10; ++line)
        text += "(a)\n";
    EXPECT_EQ(ReadLists(text + "((b)").m_Output, "Parsing failed at line: 10 near (b)\n");
}

TEST(ReadBlockTest, AFailureDropsTheTopLevelListInProgressOnly) {
    const ListResult result = ReadLists("(x 1)\n(pcf (a) (b) ((c)))\n(y)\n");
    EXPECT_FALSE(result.m_IsOk);
    EXPECT_EQ(Outline(result.m_Block), "{x(1)}");
}

TEST(ReadBlockTest, TheFailureLineGivesAnyBytesUnchanged) {
    EXPECT_EQ(
        ReadLists("((\0\xFF\x83\x5C\xC3\xA9"s).m_Output, "Parsing failed at line: 1 near (\0\xFF\x83\x5C\xC3\xA9\n"s);
}

TEST(ReadBlockTest, ABoardCutAfterAnyByteEndsCleanly) {
    const std::string text = "(pcf b\n (h (u DB) \"q r\")\n () (string x) (c -1.5 \"\"))\n";
    for (size_t size = 0; size <= text.size(); ++size) {
        const ListResult result = ReadLists(text.substr(0, size));
        EXPECT_EQ(result.m_IsOk, result.m_Output.empty()) << size;
        EXPECT_EQ(result.m_Block.Size(), result.m_IsOk && size != 0 ? 1 : 0) << size;
    }
}

TEST(ReadFuncTest, ReadsOneListBehindItsParenthesis) {
    CToken_istream stream = ListStream("a 1 (b)) rest");
    CBlock_ptr<CBlock_func> func;
    ReadFunc(stream, func);
    EXPECT_EQ(Outline(*func.Item()), "a(1 b())");
    EXPECT_EQ(stream.GetRest(), " rest");
}

TEST(ReadFuncTest, AClosingParenthesisAloneGivesANamelessList) {
    CToken_istream stream = ListStream(") rest");
    CBlock_ptr<CBlock_func> func;
    ReadFunc(stream, func);
    EXPECT_EQ(Outline(*func.Item()), "__NIL__()");
    EXPECT_EQ(stream.GetRest(), " rest");
}

TEST(ReadFuncTest, AListForAHeadThrows) {
    for (const char* text : {"(b) c)", "", " ; c", "a (b (("}) {
        CToken_istream stream = ListStream(text);
        CBlock_ptr<CBlock_func> func;
        EXPECT_THROW(ReadFunc(stream, func), XStreamioError) << text;
        EXPECT_EQ(func.Item(), nullptr) << text;
    }
}

TEST(ReadFuncTest, TheFuncOfAPointerThatWasInUseIsReplaced) {
    CBlock_ptr<CBlock_func> func(new CBlock_func("old"));
    const CBlock_ptr<CBlock_func> old = func;
    CToken_istream stream = ListStream("a)");
    ReadFunc(stream, func);
    EXPECT_EQ(Outline(*func.Item()), "a()");
    EXPECT_EQ(Outline(*old.Item()), "old()");
}

} // namespace
} // namespace io
