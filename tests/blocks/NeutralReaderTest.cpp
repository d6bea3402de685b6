#include "blocks/NeutralReader.h"

#include "tests/blocks/BlockText.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <string_view>

namespace io {
namespace {

using namespace std::string_literals;

/// Whether `text` is taken, as a whole, for a block or func.
bool IsAccepted(std::string_view text) {
    NeutralReader reader(text);
    return reader.ReadTree().has_value() && reader.GetConsumed() == text.size();
}

/// The tree of a text that has to be accepted, written again.
std::string Rewritten(std::string_view text) {
    CBlock block;
    CBlock_func func("");
    TextIstream blockText(text);
    TextIstream funcText(text);
    if (block.read(blockText))
        return TextOf(block);
    EXPECT_TRUE(func.read(funcText)) << text;
    return TextOf(func);
}

constexpr const char* k_Sample = "Root {\n"
                                 "\tVersion(4, 0)\n"
                                 "\tUnit = \"mm\"\n"
                                 "\t\"C1.5\" {\n"
                                 "\t\tNULLPAD(Circle(-1.5e+20, true))\n"
                                 "\t\tEmpty {\n"
                                 "\t\t}\n"
                                 "\t\t\"a b\" = \"\\\"\\\\\\n\\x1F\xC3\xA9\"\n"
                                 "\t}\n"
                                 "\tPath(7, -inf,\n"
                                 "\t\tVertex(0.0),\n"
                                 "\t\tfalse,\n"
                                 "\t\tArc(Deep(\"x\",\n"
                                 "\t\t\tDeeper())))\n"
                                 "}\n";

TEST(NeutralReaderTest, ASampleIsReadBackWithItsKinds) {
    CBlock block;
    ASSERT_TRUE(block.Unpack(k_Sample));
    EXPECT_EQ(Outline(block), "Root{Version(4 0) Unit=\"mm\" C1.5{NULLPAD(Circle(-1.5e+20 true)) Empty{} "
                              "a b=\"\"\\\n\x1F\xC3\xA9\"} Path(7 -inf Vertex(0.0) false Arc(Deep(\"x\" Deeper())))}");
    EXPECT_EQ(TextOf(block), k_Sample);
}

TEST(NeutralReaderTest, ValuesKeepTheirKind) {
    CBlock_func func("");
    ASSERT_TRUE(func.Unpack("f(7, 7.0, \"7\", true, \"true\", nan, \"nan\", -2147483648, 1e+05)\n"));
    const NodeKind kinds[] = {NodeKind::k_Int, NodeKind::k_Double, NodeKind::k_Text, NodeKind::k_Bool, NodeKind::k_Text,
        NodeKind::k_Double, NodeKind::k_Text, NodeKind::k_Int, NodeKind::k_Double};
    size_t index = 0;
    for (NodeIterator at = func.begin(); at != func.end(); ++at)
        EXPECT_EQ(at->GetKind(), kinds[index++]) << index;
    EXPECT_EQ(index, std::size(kinds));
}

TEST(NeutralReaderTest, ExactlyTheFormOfTheWriterIsAccepted) {
    // clang-format off
    const char* rows[] = {
        "f()\n", "f(0)\n", "f(-1)\n", "f(1, 2)\n", "f(g())\n", "f(1,\n\tg())\n", "f(\n\tg(),\n\th())\n",
        "\"1\"()\n", "\"\"()\n", "f(\"\")\n", "f(\"\\x00\")\n", "f(\"\\x7F\")\n", "f(\"\xFF\")\n",
        "f(-0.0)\n", "f(5e-324)\n", "f(1.7976931348623157e+308)\n", "f(1180591620717411303424.0)\n",
        "true(false)\n", "nan(inf)\n", "B {\n}\n", "B {\n\tf()\n}\n", "B {\n\tn = \"x\"\n}\n",
        "B {\n\tn = 7\n}\n", "\"B C\" {\n\tC {\n\t}\n}\n",
    };
    // clang-format on
    for (const char* row : rows) {
        EXPECT_TRUE(IsAccepted(row)) << row;
        EXPECT_EQ(Rewritten(row), row);
    }
}

TEST(NeutralReaderTest, NearMissesAreRefused) {
    struct Row {
        const char* m_Name;
        std::string m_Text;
    };
    // clang-format off
    const Row rows[] = {
        {"nothing",                  ""},
        {"a line end",               "\n"},
        {"a name",                   "f"},
        {"a name and its end",       "f\n"},
        {"a value",                  "7\n"},
        {"a named value",            "n = \"x\"\n"},
        {"byte order mark",          "\xEF\xBB\xBF" "f()\n"},
        {"no line end",              "f()"},
        {"two line ends",            "f()\n\n"},
        {"CR LF",                    "f()\r\n"},
        {"trailing text",            "f()\ng()\n"},
        {"trailing NUL",             "f()\n\0"s},
        {"blank ahead",              " f()\n"},
        {"blank behind",             "f() \n"},
        {"blank behind the name",    "f ()\n"},
        {"blank in parentheses",     "f( )\n"},
        {"blank ahead of a value",   "f( 1)\n"},
        {"blank behind a value",     "f(1 )\n"},
        {"no blank behind a comma",  "f(1,2)\n"},
        {"two blanks",               "f(1,  2)\n"},
        {"blank ahead of a comma",   "f(1 , 2)\n"},
        {"no comma",                 "f(1 2)\n"},
        {"comma at the end",         "f(1,)\n"},
        {"comma at the start",       "f(, 1)\n"},
        {"two commas",               "f(1,, 2)\n"},
        {"not closed",               "f(1\n"},
        {"closed twice",             "f(1))\n"},
        {"closed by a brace",        "f(1}\n"},
        {"leading zero",             "f(007)\n"},
        {"negative leading zero",    "f(-07)\n"},
        {"minus zero",               "f(-0)\n"},
        {"plus",                     "f(+1)\n"},
        {"sign alone",               "f(-)\n"},
        {"int of 33 bits",           "f(2147483648)\n"},
        {"negative int of 33 bits",  "f(-2147483649)\n"},
        {"no digit behind a point",  "f(1.)\n"},
        {"no digit ahead",           "f(.5)\n"},
        {"zero too many",            "f(1.50)\n"},
        {"zero ahead",               "f(01.5)\n"},
        {"digits too many",          "f(0.10000000000000001)\n"},
        {"exponent without sign",    "f(1e5)\n"},
        {"exponent of one digit",    "f(1e+5)\n"},
        {"exponent of three digits", "f(1e+005)\n"},
        {"big E",                    "f(1E+05)\n"},
        {"long instead of short",    "f(100000.0)\n"},
        {"short instead of long",    "f(1e+04)\n"},
        {"point and exponent",       "f(1.0e+05)\n"},
        {"double out of range",      "f(1e+400)\n"},
        {"double below range",       "f(1e-400)\n"},
        {"hexadecimal",              "f(0x1)\n"},
        {"NaN",                      "f(NaN)\n"},
        {"minus nan",                "f(-nan)\n"},
        {"nan of a kind",            "f(nan(1))\n\n"},
        {"infinity",                 "f(infinity)\n"},
        {"plus inf",                 "f(+inf)\n"},
        {"big True",                 "f(True)\n"},
        {"bare word",                "f(abc)\n"},
        {"named value in a func",    "f(a = 1)\n"},
        {"apostrophes",              "f('a')\n"},
        {"escaped letter",           "f(\"\\x41\")\n"},
        {"escaped high byte",        "f(\"\\xFF\")\n"},
        {"small digits",             "f(\"\\x1f\")\n"},
        {"line end in digits",       "f(\"\\x0A\")\n"},
        {"quote in digits",          "f(\"\\x22\")\n"},
        {"one digit",                "f(\"\\x1\")\n"},
        {"no digits",                "f(\"\\x\")\n"},
        {"sign for a digit",         "f(\"\\x+1\")\n"},
        {"big X",                    "f(\"\\X1F\")\n"},
        {"unknown escape",           "f(\"\\a\")\n"},
        {"escape of an apostrophe",  "f(\"\\'\")\n"},
        {"escape at the end",        "f(\"\\"},
        {"digits at the end",        "f(\"\\x1"},
        {"open text",                "f(\"a\n"},
        {"line end in a text",       "f(\"a\nb\")\n"},
        {"tab in a text",            "f(\"a\tb\")\n"},
        {"NUL in a text",            "f(\"a\0b\")\n"s},
        {"delete in a text",         "f(\"\x7F\")\n"},
        {"needless quotes",          "\"f\"()\n"},
        {"needless quotes within",   "f(\"g\"())\n"},
        {"missing quotes",           "C1.5()\n"},
        {"name of digits",           "1()\n"},
        {"name of no ASCII",         "\xC3\xA9()\n"},
        {"no name",                  "()\n"},
        {"funcs on one line",        "f(g(), h())\n"},
        {"value and func on a line", "f(1, g())\n"},
        {"func and value on a line", "f(\n\tg(), 1)\n"},
        {"only func on its own",     "f(\n\tg())\n"},
        {"values on lines",          "f(1,\n\t2)\n"},
        {"value on its own line",    "f(\n\t1,\n\tg())\n"},
        {"no tab",                   "f(1,\ng())\n"},
        {"two tabs",                 "f(1,\n\t\tg())\n"},
        {"blanks for a tab",         "f(1,\n    g())\n"},
        {"blank ahead of line end",  "f(1, \n\tg())\n"},
        {"CR LF within",             "f(1,\r\n\tg())\n"},
        {"closed on its own line",   "f(1,\n\tg()\n)\n"},
        {"block in a func",          "f(B {\n})\n"},
        {"empty block on one line",  "B {}\n"},
        {"no blank at the brace",    "B{\n}\n"},
        {"two blanks at the brace",  "B  {\n}\n"},
        {"brace on its own line",    "B\n{\n}\n"},
        {"block without line end",   "B {\n}"},
        {"block not closed",         "B {\n"},
        {"block closed twice",       "B {\n}\n}\n"},
        {"closed by a parenthesis",  "B {\n)\n"},
        {"inner block not closed",   "B {\n\tC {\n\t}\n"},
        {"empty line in a block",    "B {\n\n}\n"},
        {"CR LF in a block",         "B {\r\n}\r\n"},
        {"item at the margin",       "B {\nf()\n}\n"},
        {"item two deeper",          "B {\n\t\tf()\n}\n"},
        {"item behind blanks",       "B {\n    f()\n}\n"},
        {"brace too deep",           "B {\n\tf()\n\t}\n"},
        {"brace on the item's line", "B {\n\tf()}\n"},
        {"items on one line",        "B {\n\tf() g()\n}\n"},
        {"comma between items",      "B {\n\tf(),\n\tg()\n}\n"},
        {"value in a block",         "B {\n\t7\n}\n"},
        {"text in a block",          "B {\n\t\"x\"\n}\n"},
        {"no blanks at the sign",    "B {\n\tn=\"x\"\n}\n"},
        {"no value",                 "B {\n\tn = \n}\n"},
        {"bare value",               "B {\n\tn = mm\n}\n"},
        {"func for a value",         "B {\n\tn = f()\n}\n"},
        {"two values",               "B {\n\tn = 1 2\n}\n"},
        {"needless quotes at block", "\"B\" {\n}\n"},
        {"needless quotes at value", "B {\n\t\"n\" = 1\n}\n"},
        {"trailing block",           "B {\n}\nC {\n}\n"},
        {"comment",                  "B {\n\t; x\n}\n"},
    };
    // clang-format on
    for (const Row& row : rows)
        EXPECT_FALSE(IsAccepted(row.m_Text)) << row.m_Name;
}

TEST(NeutralReaderTest, ATextThatIsCutAnywhereIsRefused) {
    const std::string_view sample = k_Sample;
    for (size_t size = 0; size < sample.size(); ++size)
        EXPECT_FALSE(IsAccepted(sample.substr(0, size))) << size;
    EXPECT_TRUE(IsAccepted(sample));
}

TEST(NeutralReaderTest, AChangedByteIsRefusedOrWrittenBack) {
    int accepted = 0;
    for (size_t at = 0; at < std::string_view(k_Sample).size(); ++at)
        for (const char c : "a1 \t\n\r\"\\(){},=.-ex\xFF\x7F"s) {
            std::string text = k_Sample;
            text[at] = c;
            if (!IsAccepted(text))
                continue;
            ++accepted;
            EXPECT_EQ(Rewritten(text), text);
        }
    EXPECT_GT(accepted, 100);
}

/// Random trees of the kinds that a program writes.
class TreeMaker {
public:
    explicit TreeMaker(unsigned seed) : m_Random(seed) {}

    CBlock MakeBlock(int depth) {
        CBlock block(MakeText());
        for (unsigned i = Roll(5); i != 0; --i) {
            const unsigned kind = Roll(depth > 0 ? 4 : 2);
            if (kind == 0)
                block << CBlock_named_value(MakeText(), MakeText());
            else if (kind == 1)
                block << MakeFunc(3);
            else if (kind == 2)
                block << MakeBlock(depth - 1);
            else
                AppendByReference(block);
        }
        return block;
    }

private:
    unsigned Roll(unsigned sides) { return static_cast<unsigned>(m_Random()) % sides; }

    AString MakeText() {
        constexpr std::string_view k_Bytes = "aZ_09 \"\\\n\r\t\x01\x1F\x7F\xC3\xA9\xFF(){},=.+-;";
        std::string text(Roll(3) == 0 ? Roll(30) : Roll(4), 'a');
        if (Roll(2) == 0)
            for (char& c : text)
                c = k_Bytes[Roll(static_cast<unsigned>(k_Bytes.size()))];
        if (Roll(20) == 0)
            text += '\0';
        return AString(std::string_view(text));
    }

    CBlock_func MakeFunc(int depth) {
        CBlock_func func(MakeText());
        for (unsigned i = Roll(6); i != 0; --i)
            AppendArgument(func, depth);
        return func;
    }

    void AppendArgument(CBlock_func& func, int depth) {
        switch (Roll(depth > 0 ? 7 : 5)) {
        case 0:
            func << static_cast<int>(m_Random());
            break;
        case 1:
            func << std::bit_cast<double>(uint64_t{m_Random()} << 32 | m_Random());
            break;
        case 2:
            func << static_cast<int>(Roll(2000)) / 100.0;
            break;
        case 3:
            func << (Roll(2) == 0);
            break;
        case 4:
            func << MakeText();
            break;
        case 5:
            func << MakeFunc(depth - 1);
            break;
        default:
            func << CBlock_ptr<CBlock_func>(new CBlock_func(MakeFunc(depth - 1)));
        }
    }

    void AppendByReference(CBlock& block) {
        CBlockPtr pointer("x");
        *pointer = MakeBlock(0);
        block << pointer;
    }

    std::mt19937 m_Random;
};

TEST(NeutralReaderTest, RandomTreesAreReadBackAsTheyWereWritten) {
    TreeMaker maker(12345);
    size_t written = 0;
    for (int i = 0; i < 2000; ++i) {
        const CBlock block = maker.MakeBlock(3);
        const std::string text = TextOf(block);
        written += text.size();
        CBlock back("other");
        TextIstream stream(text);
        ASSERT_TRUE(back.read(stream)) << text;
        EXPECT_TRUE(stream.GetRest().empty());
        ASSERT_EQ(Outline(back), Outline(block));
        ASSERT_EQ(TextOf(back), text);
    }
    EXPECT_GT(written, 100000U);
}

/// How many digits a decimal text needs to be read back as `value`.
int DigitsNeeded(double value) {
    for (int digits = 1; digits < 17; ++digits) {
        char text[40];
        std::snprintf(text, sizeof text, "%.*e", digits - 1, value);
        if (std::strtod(text, nullptr) == value)
            return digits;
    }
    return 17;
}

/// Digits of a decimal text without zeros at either end.
int DigitsOf(const std::string& text) {
    std::string digits;
    for (const char c : text.substr(0, text.find('e')))
        if (c >= '0' && c <= '9' && (c != '0' || !digits.empty()))
            digits += c;
    return static_cast<int>(digits.find_last_not_of('0') + 1);
}

TEST(NeutralReaderTest, RandomDoublesTakeTheFewestDigitsAndKeepTheirBits) {
    std::mt19937_64 random(99);
    for (int i = 0; i < 5000; ++i) {
        const double value =
            i % 2 == 0 ? std::bit_cast<double>(random()) : static_cast<double>(random() % 1000000) / 1000;
        if (!std::isfinite(value))
            continue;
        const std::string text = TextOf(CBlock_value(CToken::OfNode(Node(NodeKind::k_Double, value))));
        ASSERT_EQ(std::bit_cast<uint64_t>(std::strtod(text.c_str(), nullptr)), std::bit_cast<uint64_t>(value)) << text;
        const bool isWhole = text.find('e') == std::string::npos && text.ends_with(".0");
        if (value != 0.0 && (!isWhole || std::abs(value) < 0x1p53)) {
            ASSERT_EQ(DigitsOf(text), DigitsNeeded(value)) << text;
        }
        CBlock_value back;
        double read = 0.0;
        ASSERT_TRUE(back.Unpack(AString(std::string_view(text)))) << text;
        ASSERT_TRUE(back.Query(read));
        ASSERT_EQ(std::bit_cast<uint64_t>(read), std::bit_cast<uint64_t>(value)) << text;
    }
}

TEST(NeutralReaderTest, TreesAreReadOneBehindTheOther) {
    NeutralReader reader("f(1)\nn = \"x\"\nB {\n}\n7");
    ASSERT_TRUE(reader.ReadTree().has_value());
    EXPECT_EQ(reader.GetConsumed(), 5U);
    const std::optional<NeutralReader::NamedValue> named = reader.ReadNamedValue();
    ASSERT_TRUE(named.has_value());
    EXPECT_EQ(named->m_Name, "n");
    EXPECT_EQ(named->m_Value, CToken::OfText("x"));
    ASSERT_TRUE(reader.ReadTree().has_value());
    const std::optional<CToken> value = reader.ReadValue();
    ASSERT_TRUE(value.has_value());
    EXPECT_EQ(*value, CToken::OfNode(Node(NodeKind::k_Int, 7)));
    EXPECT_EQ(reader.GetConsumed(), 20U) << "5 for the func, 8 for the named value, 6 for the block, 1 for the value";
}

} // namespace
} // namespace io
