#include "blocks/CToken_istream.h"

#include "tests/blocks/BlockText.h"
#include "tests/blocks/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <thread>
#include <vector>

namespace io {
namespace {

using namespace std::string_literals;

CToken_istream SideStream(std::string_view text) {
    CToken_grammar grammar;
    grammar.CommentCharSet("#");
    return CToken_istream(text, grammar, CToken_istream::k_SideText);
}

LongFileName NameOf(const std::string& path) { return LongFileName(AString(std::string_view(path))); }

CToken_istream FileStream(const std::string& path) {
    return CToken_istream(NameOf(path), ListGrammar(), CToken_istream::k_Expressions);
}

/// All tokens of `text`, with quotes put around those that had some.
std::vector<std::string> TokensOf(std::string_view text) {
    CToken_istream stream = ListStream(text);
    std::vector<std::string> tokens;
    while (!stream.AtEnd()) {
        CToken token;
        stream >> token;
        const bool isQuoted = token.GetKind() == NodeKind::k_Text;
        tokens.push_back(isQuoted ? '"' + token.GetNarrow() + '"' : token.GetNarrow());
    }
    return tokens;
}

std::string LineOf(CToken_istream& stream) {
    AString line("before");
    stream.NewLine(line);
    return line.QRL_ANSI();
}

TEST(CBase_grammarTest, EveryByteHasItsMeaning) {
    const CDelimiter_grammar grammar = ListGrammar();
    for (int byte = 0; byte < 256; ++byte) {
        const char c = static_cast<char>(byte);
        const bool isBlank = " \t\r\n\v\f"s.find(c) != std::string::npos;
        const CBase_grammar::Class expected = isBlank                ? CBase_grammar::k_Blank
                                              : c == '(' || c == ')' ? CBase_grammar::k_Delimiter
                                              : c == ';'             ? CBase_grammar::k_Comment
                                                                     : CBase_grammar::k_Ordinary;
        EXPECT_EQ(grammar.GetClass(c), expected) << byte;
    }
}

TEST(CBase_grammarTest, APlainGrammarKnowsBlanksOnly) {
    const CToken_grammar grammar;
    EXPECT_EQ(grammar.GetClass(' '), CBase_grammar::k_Blank);
    EXPECT_EQ(grammar.GetClass('('), CBase_grammar::k_Ordinary);
    EXPECT_EQ(grammar.GetClass(';'), CBase_grammar::k_Ordinary);
}

TEST(CToken_istreamTest, TextsSplitIntoTokens) {
    struct Row {
        const char* m_Name;
        std::string m_Text;
        std::vector<std::string> m_Tokens;
    };
    // clang-format off
    const Row rows[] = {
        {"nothing",                  "",                     {}},
        {"blanks of each kind",      "a\tb\rc\nd\ve\ff g",   {"a", "b", "c", "d", "e", "f", "g"}},
        {"delimiters stand alone",   "(a(b)c)",              {"(", "a", "(", "b", ")", "c", ")"}},
        {"comment",                  "a ; b ) \"\nc",        {"a", "c"}},
        {"comment behind a word",    "a;b\nc",               {"a", "c"}},
        {"comment at the end",       "a;b",                  {"a"}},
        {"only comments",            ";a\n;b\n ;c",          {}},
        {"comment to a lone CR",     "a;b\rc\nd",            {"a", "d"}},
        {"quoted",                   "\"a b\"",              {"\"a b\""}},
        {"quoted blanks and marks",  "\"( ) ; '\"",          {"\"( ) ; '\""}},
        {"quoted nothing",           "\"\"",                 {"\"\""}},
        {"quoted over line ends",    "\"a\r\nb\n\"",         {"\"a\r\nb\n\""}},
        {"no escapes",               "\"a\\\"b",             {"\"a\\\"", "b"}},
        {"Shift-JIS ahead of quote", "\"\x83\x5C\" x",       {"\"\x83\x5C\"", "x"}},
        {"quote inside a word",      "2.5\" a\"b\"",         {"2.5\"", "a\"b\""}},
        {"quote behind a delimiter", "(\"a\")",              {"(", "\"a\"", ")"}},
        {"quoted texts side by side","\"a\"\"b\"c",          {"\"a\"", "\"b\"", "c"}},
        {"apostrophes never quote",  "'a b' ')",             {"'a", "b'", "'", ")"}},
        {"NUL",                      "a\0b \0 \"\0\""s,      {"a\0b"s, "\0"s, "\"\0\""s}},
        {"byte order mark",          "\xEF\xBB\xBF(a",       {"(", "a"}},
        {"mark later on",            "a \xEF\xBB\xBF",       {"a", "\xEF\xBB\xBF"}},
        {"two marks",                "\xEF\xBB\xBF\xEF\xBB\xBFx", {"\xEF\xBB\xBFx"}},
        {"bytes above 0x7F",         "\xC3\xA9 \xFF\xA0",    {"\xC3\xA9", "\xFF\xA0"}},
        {"words of the format",      "+5V N$54 BRAKE/ 10/08/12 a,b", {"+5V", "N$54", "BRAKE/", "10/08/12", "a,b"}},
    };
    // clang-format on
    for (const Row& row : rows)
        EXPECT_EQ(TokensOf(row.m_Text), row.m_Tokens) << row.m_Name;
}

TEST(CToken_istreamTest, APlainGrammarSplitsAtBlanks) {
    CToken_istream stream("(a) ; \"b c\"", CToken_grammar(), CToken_istream::k_Expressions);
    AString token;
    std::vector<std::string> tokens;
    while (!stream.AtEnd()) {
        stream >> token;
        tokens.push_back(token.QRL_ANSI());
    }
    EXPECT_EQ(tokens, (std::vector<std::string>{"(a)", ";", "b c"}));
}

TEST(CToken_istreamTest, AWordAndANumberAreToldApart) {
    CToken_istream stream = ListStream("1.50 +5V \"7\"");
    CToken number;
    CToken word;
    CToken quoted;
    stream >> number >> word >> quoted;
    EXPECT_TRUE(number.IsNumber());
    EXPECT_EQ(number.GetNarrow(), "1.50");
    EXPECT_FALSE(word.IsNumber());
    EXPECT_FALSE(quoted.IsNumber());
    EXPECT_EQ(quoted.GetNarrow(), "7");
}

TEST(CToken_istreamTest, ATextIsReadFromParenthesesToo) {
    CToken_istream stream = ListStream("(a \")\" )");
    std::string all;
    for (int i = 0; i < 4; ++i) {
        AString token;
        stream >> token;
        all += token.QRL_ANSI() + '|';
    }
    EXPECT_EQ(all, "(|a|)|)|");
}

TEST(CToken_istreamTest, ReadsBehindTheEndGiveNothing) {
    CToken_istream stream = ListStream("a ; rest");
    stream.Skip();
    AString text("before");
    CToken token = CToken::OfWord("before");
    stream >> text >> token;
    EXPECT_TRUE(text.empty());
    EXPECT_TRUE(token.IsEmpty());
    stream.Skip();
    EXPECT_TRUE(stream.AtEnd());
}

TEST(CToken_istreamTest, NextIsLooksBehindBlanksAndComments) {
    CToken_istream stream = ListStream(" ; (\n\t( a");
    EXPECT_TRUE(stream.NextIs('('));
    EXPECT_FALSE(stream.NextIs(')'));
    EXPECT_FALSE(stream.NextIs(' '));
    stream.Skip();
    EXPECT_TRUE(stream.NextIs('a'));
    stream.Skip();
    EXPECT_FALSE(stream.NextIs('a'));
    EXPECT_FALSE(stream.NextIs('\n'));
    EXPECT_FALSE(stream.NextIs('\0'));
}

TEST(CToken_istreamTest, LookingAheadConsumesNothing) {
    CToken_istream stream = ListStream(" \n ; c\n ( a");
    EXPECT_TRUE(stream.NextIs('('));
    EXPECT_FALSE(stream.AtEnd());
    EXPECT_FALSE(stream.Ended());
    EXPECT_FALSE(stream.NextIsName());
    EXPECT_FALSE(stream.NextIsWord());
    EXPECT_FALSE(stream.NextIsString());
    EXPECT_EQ(stream.LineNumber(), 1);
    EXPECT_EQ(LineOf(stream), " ");
    EXPECT_EQ(LineOf(stream), " ; c");
    EXPECT_EQ(LineOf(stream), " ( a");
}

TEST(CToken_istreamTest, TheKindTestsTellWordsAndStrings) {
    struct Row {
        const char* m_Text;
        bool m_IsName;
        bool m_IsWord;
        bool m_IsString;
    };
    // clang-format off
    const Row rows[] = {
        {"a",        true,  true,  false},
        {"7",        true,  true,  false},
        {"-1.5e3",   true,  true,  false},
        {"+",        true,  true,  false},
        {"'a'",      true,  true,  false},
        {"\"a\"",    true,  false, true},
        {"\"open",   true,  false, true},
        {"(",        false, false, false},
        {")",        false, false, false},
        {"",         false, false, false},
        {" ; a\n",   false, false, false},
        {" ; a\n b", true,  true,  false},
    };
    // clang-format on
    for (const Row& row : rows) {
        CToken_istream stream = ListStream(row.m_Text);
        EXPECT_EQ(stream.NextIsName(), row.m_IsName) << row.m_Text;
        EXPECT_EQ(stream.NextIsWord(), row.m_IsWord) << row.m_Text;
        EXPECT_EQ(stream.NextIsString(), row.m_IsString) << row.m_Text;
    }
}

TEST(CToken_istreamTest, TheEndIsSeenAcrossBlanksAndComments) {
    CToken_istream stream = ListStream("a \n ; c");
    EXPECT_FALSE(stream.AtEnd());
    stream.Skip();
    EXPECT_TRUE(stream.AtEnd());
    EXPECT_TRUE(stream.Ended());
    EXPECT_TRUE(ListStream("").AtEnd());
    EXPECT_TRUE(ListStream(" \r\n").AtEnd());
    EXPECT_TRUE(ListStream("\xEF\xBB\xBF").AtEnd());
    EXPECT_FALSE(ListStream("\0"s).AtEnd());
}

TEST(CToken_istreamTest, AnOpenStringThrowsAndLeavesTheStreamWhereItOpens) {
    CToken_istream stream = ListStream("a\n ; c\n  \"b\nc");
    stream.Skip();
    EXPECT_THROW(stream.Skip(), XStreamioError);
    EXPECT_EQ(stream.LineNumber(), 3);
    EXPECT_TRUE(stream.NextIsString());
    AString text("before");
    EXPECT_THROW(stream >> text, XStreamioError);
    EXPECT_EQ(text.QRL_ANSI(), "before");
    EXPECT_EQ(LineOf(stream), "\"b");
}

TEST(CToken_istreamTest, TheErrorCarriesItsNumber) {
    CToken_istream stream = ListStream("\"");
    try {
        stream.Skip();
        FAIL() << "an open string was read";
    } catch (const XStreamioError& error) {
        EXPECT_EQ(error.GetCode(), 0);
        EXPECT_STREQ(error.what(), "unreadable text");
    }
}

TEST(CToken_istreamTest, TheLineNumberIsThatOfTheLastToken) {
    CToken_istream stream = ListStream("a b\r\n\r\n\"c\nd\" e\n");
    EXPECT_EQ(stream.LineNumber(), 1);
    stream.Skip();
    EXPECT_EQ(stream.LineNumber(), 1);
    stream.Skip();
    EXPECT_EQ(stream.LineNumber(), 1);
    stream.Skip();
    EXPECT_EQ(stream.LineNumber(), 4);
    stream.Skip();
    EXPECT_EQ(stream.LineNumber(), 4);
    stream.Skip();
    EXPECT_EQ(stream.LineNumber(), 4);
}

TEST(CToken_istreamTest, NewLineGivesTheRestOfTheLine) {
    CToken_istream stream = ListStream("a  b ; c \r\n\nd\r\r\n e");
    stream.Skip();
    EXPECT_EQ(LineOf(stream), "  b ; c ");
    EXPECT_EQ(stream.LineNumber(), 2);
    EXPECT_EQ(LineOf(stream), "");
    EXPECT_EQ(stream.LineNumber(), 3);
    EXPECT_EQ(LineOf(stream), "d\r");
    EXPECT_FALSE(stream.eof());
    EXPECT_EQ(stream.LineNumber(), 4);
    EXPECT_EQ(LineOf(stream), " e");
    EXPECT_EQ(stream.LineNumber(), 5) << "the end of the text counts as a line end";
    EXPECT_TRUE(stream.eof());
}

TEST(CToken_istreamTest, NewLineKeepsNulBytes) {
    CToken_istream stream = ListStream("a\0b\nc"s);
    EXPECT_EQ(LineOf(stream), "a\0b"s);
}

TEST(CToken_istreamTest, TheEndOfFileIsSeenBehindTheLastLine) {
    CToken_istream stream = ListStream("a\nb\n");
    EXPECT_FALSE(stream.eof());
    LineOf(stream);
    EXPECT_FALSE(stream.eof());
    LineOf(stream);
    EXPECT_TRUE(stream.eof());
    EXPECT_EQ(stream.LineNumber(), 3);
    EXPECT_TRUE(ListStream("").eof());
}

TEST(CToken_istreamTest, ACommentLineOfTheSideTextComesBackEmpty) {
    CToken_istream stream = SideStream("# a\r\n \t# b\nR1 \"10#5\" # x\n\n# end");
    EXPECT_EQ(LineOf(stream), "");
    EXPECT_EQ(LineOf(stream), "");
    EXPECT_EQ(LineOf(stream), "R1 \"10#5\" # x");
    EXPECT_EQ(LineOf(stream), "");
    EXPECT_FALSE(stream.eof());
    EXPECT_EQ(LineOf(stream), "");
    EXPECT_TRUE(stream.eof());
}

TEST(CToken_istreamTest, TheSideTextGivesRawLines) {
    CToken_istream stream = SideStream("\xEF\xBB\xBF  R1 ; \"x  y\"  \r\n\xEF\xBB\xBF\n");
    EXPECT_EQ(LineOf(stream), "  R1 ; \"x  y\"  ");
    EXPECT_EQ(LineOf(stream), "\xEF\xBB\xBF");
    EXPECT_TRUE(stream.eof());
}

TEST(CToken_istreamTest, ACommentLineOfAListFileIsGivenAsItIs) {
    CToken_istream stream = ListStream("; a\n");
    EXPECT_EQ(LineOf(stream), "; a");
}

TEST(CToken_istreamTest, AFileIsRead) {
    const TemporaryFolder folder;
    CToken_istream stream = FileStream(folder.Put("board.pcf", "(pcf\0x"s + std::string(200000, 'y') + ")"));
    EXPECT_FALSE(stream.fail());
    AString text;
    stream >> text >> text;
    EXPECT_EQ(text.size(), 200005U);
    EXPECT_TRUE(stream.NextIs(')'));
}

TEST(CToken_istreamTest, AnEmptyFileIsReadAndAtItsEnd) {
    const TemporaryFolder folder;
    CToken_istream stream = FileStream(folder.Put("empty", ""));
    EXPECT_FALSE(stream.fail());
    EXPECT_TRUE(stream.AtEnd());
    EXPECT_TRUE(stream.eof());
}

TEST(CToken_istreamTest, ABrokenLinkAMissingFileAndADirectoryFail) {
    const TemporaryFolder folder;
    std::filesystem::create_symlink("gone", folder.PathOf("link"));
    for (const char* name : {"none", "none/file", "link", ""}) {
        CToken_istream stream = FileStream(folder.PathOf(name));
        EXPECT_TRUE(stream.fail()) << name;
        EXPECT_TRUE(stream.AtEnd()) << name;
        EXPECT_TRUE(stream.eof()) << name;
    }
    EXPECT_TRUE(FileStream("").fail());
}

TEST(CToken_istreamTest, APipeIsReadToItsEnd) {
    const TemporaryFolder folder;
    const std::string path = folder.PathOf("pipe");
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    const std::string content = '(' + std::string(300000, 'x') + ')';
    std::thread writer([&] { std::ofstream(path) << content; });
    CToken_istream stream = FileStream(path);
    writer.join();
    EXPECT_FALSE(stream.fail());
    EXPECT_EQ(stream.GetRest(), content);
}

TEST(CToken_istreamTest, AClosedStreamIsEmpty) {
    CToken_istream stream = ListStream("(a");
    stream.Skip();
    stream.Close();
    EXPECT_FALSE(stream.fail());
    EXPECT_TRUE(stream.AtEnd());
    EXPECT_TRUE(stream.eof());
}

TEST(CToken_istreamTest, TheTextOfTheCallerIsCopied) {
    std::string text = "abc def";
    CToken_istream stream = ListStream(text);
    text.assign(7, 'z');
    AString token;
    stream >> token;
    EXPECT_EQ(token.QRL_ANSI(), "abc");
    EXPECT_EQ(stream.GetRest(), " def");
    stream.Advance(2);
    EXPECT_EQ(stream.GetRest(), "ef");
    stream >> token;
    EXPECT_EQ(token.QRL_ANSI(), "ef");
}

} // namespace
} // namespace io
