#include "blocks/NeutralWriter.h"

#include "blocks/CBlock_open_func.h"
#include "tests/blocks/BlockText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <string_view>

namespace io {
namespace {

/// A func of a name with arguments.
template <class... Args>
CBlock_func F(const char* name, const Args&... args) {
    CBlock_func func(name);
    static_cast<void>((func << ... << args));
    return func;
}

/// A block of a name with items.
template <class... Items>
CBlock B(const char* name, const Items&... items) {
    CBlock block(name);
    static_cast<void>((block << ... << items));
    return block;
}

CBlock_named_value N(const char* name, const char* text) { return {name, AString(text)}; }

CBlock_ptr<CBlock_func> Null() { return {}; }

TEST(NeutralWriterTest, TheExampleOfTheFormat) {
    const CBlock pads = B("PadShapes", F("NULLPAD", F("Circle", 0)), F("C1.5", F("Circle", 1.5)),
        F("TRI", F("Polygon", F("Vertex", 0.0, 0.0), F("Arc", 0.25), F("Vertex", 1.0, 0.0), F("Vertex", 0.0, 1.0))));
    const CBlock_func path = F("Path", 7, F("Vertex", 0.0, 0.0, 0.2, 0.2, "Round", "Radiallymitered", 0.0),
        F("Arc", -0.5), F("Vertex", 2.0, 0.0, 0.2, 0.2, "Round", "Radiallymitered", 0.0));
    const CBlock net = B("LayoutNet", N("Name", "GND"), F("Graphics", "Conductive_1", path));
    const CBlock file = B("QuorelNeutralFile", F("Version", 4, 0), F("Source", "Zuken", "", ""),
        N("DefaultUnits", "mm"), pads, B("Layout", B("LayoutNets", net)));
    EXPECT_EQ(TextOf(file), "QuorelNeutralFile {\n"
                            "\tVersion(4, 0)\n"
                            "\tSource(\"Zuken\", \"\", \"\")\n"
                            "\tDefaultUnits = \"mm\"\n"
                            "\tPadShapes {\n"
                            "\t\tNULLPAD(Circle(0))\n"
                            "\t\t\"C1.5\"(Circle(1.5))\n"
                            "\t\tTRI(Polygon(\n"
                            "\t\t\tVertex(0.0, 0.0),\n"
                            "\t\t\tArc(0.25),\n"
                            "\t\t\tVertex(1.0, 0.0),\n"
                            "\t\t\tVertex(0.0, 1.0)))\n"
                            "\t}\n"
                            "\tLayout {\n"
                            "\t\tLayoutNets {\n"
                            "\t\t\tLayoutNet {\n"
                            "\t\t\t\tName = \"GND\"\n"
                            "\t\t\t\tGraphics(\"Conductive_1\",\n"
                            "\t\t\t\t\tPath(7,\n"
                            "\t\t\t\t\t\tVertex(0.0, 0.0, 0.2, 0.2, \"Round\", \"Radiallymitered\", 0.0),\n"
                            "\t\t\t\t\t\tArc(-0.5),\n"
                            "\t\t\t\t\t\tVertex(2.0, 0.0, 0.2, 0.2, \"Round\", \"Radiallymitered\", 0.0)))\n"
                            "\t\t\t}\n"
                            "\t\t}\n"
                            "\t}\n"
                            "}\n");
}

TEST(NeutralWriterTest, TheArgumentsOfAFuncDecideItsLines) {
    struct Row {
        const char* m_Name;
        CBlock_func m_Func;
        const char* m_Text;
    };
    // clang-format off
    const Row rows[] = {
        {"nothing",                  F("A"),                             "A()\n"},
        {"one value",                F("A", 1),                          "A(1)\n"},
        {"values",                   F("A", 1, "x", 2.0, true),          "A(1, \"x\", 2.0, true)\n"},
        {"only a func",              F("A", F("B")),                     "A(B())\n"},
        {"only funcs in one another",F("A", F("B", F("C", 1, 2))),       "A(B(C(1, 2)))\n"},
        {"two funcs",                F("A", F("B"), F("C")),             "A(\n\tB(),\n\tC())\n"},
        {"value, func",              F("A", 1, F("B")),                  "A(1,\n\tB())\n"},
        {"values, func",             F("A", 1, 2, F("B")),               "A(1, 2,\n\tB())\n"},
        {"func, value",              F("A", F("B"), 1),                  "A(\n\tB(),\n\t1)\n"},
        {"values behind a func too", F("A", 1, F("B"), 2, 3, F("C"), 4), "A(1,\n\tB(),\n\t2,\n\t3,\n\tC(),\n\t4)\n"},
        {"broken in broken",         F("A", 1, F("B", 2, F("C", 3))),    "A(1,\n\tB(2,\n\t\tC(3)))\n"},
        {"broken in an only func",   F("A", F("B", 1, F("C", 2))),       "A(B(1,\n\tC(2)))\n"},
        {"only func in broken",      F("A", F("B"), F("C", F("D", F("E"), 1))),
            "A(\n\tB(),\n\tC(D(\n\t\tE(),\n\t\t1)))\n"},
        {"behind a broken func",     F("A", F("B", 1, F("C")), F("D")),  "A(\n\tB(1,\n\t\tC()),\n\tD())\n"},
        {"null alone",               F("A", Null()),                     "A()\n"},
        {"null ahead of a value",    F("A", Null(), 1),                  "A(1)\n"},
        {"null behind a value",      F("A", 1, Null()),                  "A(1)\n"},
        {"null between values",      F("A", 1, Null(), Null(), 2),       "A(1, 2)\n"},
        {"nulls around a func",      F("A", Null(), F("B"), Null()),     "A(B())\n"},
        {"null among funcs",         F("A", 1, Null(), F("B")),          "A(1,\n\tB())\n"},
        {"reference alone",          F("A", CBlockFuncPtr("B")),         "A(B())\n"},
        {"value, reference",         F("A", 1, CBlockFuncPtr("B")),      "A(1,\n\tB())\n"},
    };
    // clang-format on
    for (const Row& row : rows)
        EXPECT_EQ(TextOf(row.m_Func), row.m_Text) << row.m_Name;
}

TEST(NeutralWriterTest, TheItemsOfABlockStandOneTabDeeper) {
    EXPECT_EQ(TextOf(B("A")), "A {\n}\n");
    EXPECT_EQ(TextOf(B("A", B("B"))), "A {\n\tB {\n\t}\n}\n");
    EXPECT_EQ(TextOf(B("A", F("f"), N("n", "x"), B("B", F("g", 1, F("h"))), F("i"))),
        "A {\n\tf()\n\tn = \"x\"\n\tB {\n\t\tg(1,\n\t\t\th())\n\t}\n\ti()\n}\n");
    EXPECT_EQ(TextOf(B("A", CBlockPtr("B"), CBlockFuncPtr("f"), Null())), "A {\n\tB {\n\t}\n\tf()\n}\n");
}

TEST(NeutralWriterTest, AFuncThatStandsByReferenceIsWrittenAsIfItStoodThere) {
    CBlockFuncPtr path("Path");
    CBlock block = B("A", F("G", "x", path));
    *path << 7 << F("V", 1) << CBlockFuncPtr("W");
    EXPECT_EQ(TextOf(block), "A {\n\tG(\"x\",\n\t\tPath(7,\n\t\t\tV(1),\n\t\t\tW()))\n}\n");
}

TEST(NeutralWriterTest, APartOfATreeIsWrittenFromTheMargin) {
    const CBlock_func func = FuncOf("(a (b 1 (c)) 2)");
    CBlock_func part("b");
    func >> part;
    EXPECT_EQ(TextOf(part), "b(1,\n\tc())\n");
}

TEST(NeutralWriterTest, NamesAreQuotedUnlessTheyAreIdentifiers) {
    struct Row {
        const char* m_Name;
        const char* m_Text;
    };
    // clang-format off
    const Row rows[] = {
        {"A",          "A"},
        {"z",          "z"},
        {"_",          "_"},
        {"_a1Z",       "_a1Z"},
        {"true",       "true"},
        {"nan",        "nan"},
        {"",           "\"\""},
        {"1a",         "\"1a\""},
        {"a b",        "\"a b\""},
        {"a-b",        "\"a-b\""},
        {"C1.5",       "\"C1.5\""},
        {"a\"",        "\"a\\\"\""},
        {"a\n",        "\"a\\n\""},
        {"@",          "\"@\""},
        {"[",          "\"[\""},
        {"`",          "\"`\""},
        {"{",          "\"{\""},
        {"a/",         "\"a/\""},
        {"a:",         "\"a:\""},
        {"\xC3\xA9",   "\"\xC3\xA9\""},
        {"\xFF",       "\"\xFF\""},
    };
    // clang-format on
    for (const Row& row : rows) {
        const std::string text = row.m_Text;
        EXPECT_EQ(TextOf(F(row.m_Name)), text + "()\n");
        EXPECT_EQ(TextOf(F("f", F(row.m_Name))), "f(" + text + "())\n");
        EXPECT_EQ(TextOf(B(row.m_Name)), text + " {\n}\n");
        EXPECT_EQ(TextOf(N(row.m_Name, "x")), text + " = \"x\"\n");
    }
}

TEST(NeutralWriterTest, TextsAreQuotedAndEscaped) {
    const auto written = [](std::string_view text) {
        const std::string line = TextOf(CBlock_value(CToken::OfText(text)));
        EXPECT_EQ(line.front(), '"');
        EXPECT_EQ(line.back(), '"');
        return line.substr(1, line.size() - 2);
    };
    EXPECT_EQ(written(""), "");
    EXPECT_EQ(written("a\"b\\c\nd\re\tf"), "a\\\"b\\\\c\\nd\\re\\tf");
    EXPECT_EQ(written("true"), "true");
    constexpr char k_Digits[] = "0123456789ABCDEF";
    for (unsigned byte = 0; byte < 256; ++byte) {
        const std::string text(1, static_cast<char>(byte));
        std::string expected = text;
        if (byte == '\n' || byte == '\r' || byte == '\t' || byte == '"' || byte == '\\')
            expected = byte == '\n' ? "\\n" : byte == '\r' ? "\\r" : byte == '\t' ? "\\t" : '\\' + text;
        else if (byte < 0x20 || byte == 0x7F)
            expected = std::string("\\x") + k_Digits[byte / 16] + k_Digits[byte % 16];
        EXPECT_EQ(written(text), expected) << byte;
        EXPECT_EQ(written("a" + text + text + "b"), "a" + expected + expected + "b") << byte;
    }
}

TEST(NeutralWriterTest, DoublesAreTheShortestTextThatShowsItsKind) {
    struct Row {
        double m_Value;
        const char* m_Text;
    };
    using Limits = std::numeric_limits<double>;
    // clang-format off
    const Row rows[] = {
        {10000.0,               "10000.0"},
        {100000.0,              "1e+05"},
        {0.001,                 "0.001"},
        {0.0001,                "1e-04"},
        {0x1p70,                "1180591620717411303424.0"},
        {0.0,                   "0.0"},
        {-0.0,                  "-0.0"},
        {1.0,                   "1.0"},
        {-1.0,                  "-1.0"},
        {0.1,                   "0.1"},
        {0.1 + 0.2,             "0.30000000000000004"},
        {1.0 / 3.0,             "0.3333333333333333"},
        {25400.0,               "25400.0"},
        {120000.0,              "120000.0"},
        {200000.0,              "2e+05"},
        {-200000.0,             "-2e+05"},
        {1234567.0,             "1234567.0"},
        {1e15,                  "1e+15"},
        {9007199254740993e0,    "9007199254740992.0"},
        {0.00012,               "0.00012"},
        {0.00001,               "1e-05"},
        {0.000015,              "1.5e-05"},
        {1.5e300,               "1.5e+300"},
        {Limits::max(),         "1.7976931348623157e+308"},
        {Limits::min(),         "2.2250738585072014e-308"},
        {Limits::denorm_min(),  "5e-324"},
        {Limits::infinity(),    "inf"},
        {-Limits::infinity(),   "-inf"},
        {Limits::quiet_NaN(),   "nan"},
        {-Limits::quiet_NaN(),  "nan"},
        {std::nan("77"),        "nan"},
    };
    // clang-format on
    for (const Row& row : rows)
        EXPECT_EQ(TextOf(F("f", row.m_Value)), std::string("f(") + row.m_Text + ")\n");
}

TEST(NeutralWriterTest, IntsAndTruthValuesStandBare) {
    EXPECT_EQ(TextOf(F("f", 0, -1, 2147483647, -2147483647 - 1)), "f(0, -1, 2147483647, -2147483648)\n");
    EXPECT_EQ(TextOf(F("f", true, false)), "f(true, false)\n");
}

TEST(NeutralWriterTest, TokensOfAnInputGetTheFormOfTheirValue) {
    struct Row {
        const char* m_Word;
        const char* m_Text;
    };
    // clang-format off
    const Row rows[] = {
        {"007",        "7"},
        {"+5",         "5"},
        {"-0",         "0"},
        {"-0.0",       "-0.0"},
        {"1.50",       "1.5"},
        {"2.",         "2.0"},
        {"1e3",        "1000.0"},
        {"3000000000", "3e+09"},
        {"1e400",      "\"1e400\""},
        {"GND",        "\"GND\""},
        {"true",       "\"true\""},
        {"averyveryverylongword", "\"averyveryverylongword\""},
    };
    // clang-format on
    for (const Row& row : rows)
        EXPECT_EQ(TextOf(F("f", CToken::OfWord(row.m_Word))), std::string("f(") + row.m_Text + ")\n");
    EXPECT_EQ(TextOf(F("f", CToken::OfText("007"), CToken())), "f(\"007\", \"\")\n");
}

TEST(NeutralWriterTest, BytesThatAreNoUtf8GoOutAsTheyCameIn) {
    EXPECT_EQ(TextOf(F("f", AString("\x83\x5C\xFF\xC3\xA9"))), "f(\"\x83\\\\\xFF\xC3\xA9\")\n");
}

TEST(NeutralWriterTest, TextsAroundTheSizeOfTheBufferComeOutWhole) {
    constexpr size_t k_Buffer = 256 * 1024;
    for (const size_t size :
        {k_Buffer - 10, k_Buffer - 3, k_Buffer - 2, k_Buffer - 1, k_Buffer, k_Buffer + 1, 3 * k_Buffer}) {
        const std::string text(size, 'x');
        EXPECT_TRUE(TextOf(F("f", 1, CToken::OfText(text), 2)) == "f(1, \"" + text + "\", 2)\n") << size;
        EXPECT_TRUE(TextOf(F(text.c_str(), 2)) == text + "(2)\n") << size;
    }
}

TEST(NeutralWriterTest, WhatIsCopiedWithItsPaddingComesOutWholeAtTheEndOfTheBuffer) {
    constexpr size_t k_Buffer = 256 * 1024;
    static constexpr Keyword k_Word("Word");
    for (size_t distance = 0; distance < 48; ++distance) {
        const std::string text(k_Buffer - distance, 'x');
        CBlock block("B");
        {
            CBlock_open_func outer(block, "o");
            outer << text;
            CBlock_open_func func(outer, "n");
            func << "t" << k_Word << 0.5;
        }
        EXPECT_TRUE(TextOf(block) == "B {\n\to(\"" + text + "\",\n\t\tn(\"t\", \"Word\", 0.5))\n}\n") << distance;
    }
}

TEST(NeutralWriterTest, ManyValuesComeOutInOrder) {
    CBlock_func func("f");
    std::string expected = "f(0";
    func << 0;
    for (int i = 1; i < 200000; ++i) {
        func << i;
        expected += ", " + std::to_string(i);
    }
    EXPECT_TRUE(TextOf(func) == expected + ")\n");
}

} // namespace
} // namespace io
