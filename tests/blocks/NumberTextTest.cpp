#include "blocks/NumberText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>

namespace io {
namespace {

using Kind = NumberText::Kind;

TEST(NumberTextTest, WholeNumbersHaveNeitherPointNorExponentAndFit64Bits) {
    struct Row {
        const char* m_Text;
        int64_t m_Value;
    };
    // clang-format off
    const Row rows[] = {
        {"0",                      0},
        {"7",                      7},
        {"007",                    7},
        {"+7",                     7},
        {"-7",                     -7},
        {"-0",                     0},
        {"+0",                     0},
        {"2147483648",             2147483648},
        {"999999999999999999",     999999999999999999},  // 18 digits
        {"1000000000000000000",    1000000000000000000}, // 19 digits
        {"9223372036854775807",    std::numeric_limits<int64_t>::max()},
        {"+9223372036854775807",   std::numeric_limits<int64_t>::max()},
        {"-9223372036854775808",   std::numeric_limits<int64_t>::min()},
        {"000000000000000000000000000012", 12},
        {"-00000000000000000000000000012", -12},
    };
    // clang-format on
    for (const Row& row : rows) {
        const NumberText number = ParseNumber_G(row.m_Text);
        EXPECT_EQ(number.m_Kind, Kind::k_Whole) << row.m_Text;
        EXPECT_EQ(number.m_Whole, row.m_Value) << row.m_Text;
        EXPECT_EQ(number.m_Real, static_cast<double>(row.m_Value)) << row.m_Text;
    }
}

TEST(NumberTextTest, DigitsAloneAreUpTo18OfThem) {
    EXPECT_EQ(ParseDigits_G("007"), std::optional<int64_t>(7));
    EXPECT_EQ(ParseDigits_G("-12"), std::optional<int64_t>(-12));
    EXPECT_EQ(ParseDigits_G("+12"), std::optional<int64_t>(12));
    EXPECT_EQ(ParseDigits_G("-0"), std::optional<int64_t>(0));
    EXPECT_EQ(ParseDigits_G("999999999999999999"), std::optional<int64_t>(999999999999999999));
    for (const char* text : {"", "-", "+", "1.0", "1a", "a1", "1 ", "1/", "1:", "--1", "1000000000000000000"})
        EXPECT_EQ(ParseDigits_G(text), std::nullopt) << text;
    EXPECT_EQ(ParseDigits_G(std::string_view("1234").substr(1, 2)), std::optional<int64_t>(23)) << "no more than given";
}

TEST(NumberTextTest, AllOtherNumbersAreReal) {
    struct Row {
        const char* m_Text;
        double m_Value;
    };
    // clang-format off
    const Row rows[] = {
        {"1.5",                    1.5},
        {"+1.5",                   1.5},
        {"-1.5",                   -1.5},
        {"1.50",                   1.5},
        {"1.",                     1.0},
        {"-1.",                    -1.0},
        {".5",                     0.5},
        {"+.5",                    0.5},
        {"-.5",                    -0.5},
        {"1e3",                    1000.0},
        {"1E3",                    1000.0},
        {"1e+3",                   1000.0},
        {"1e-3",                   0.001},
        {"1.e3",                   1000.0},
        {".5e1",                   5.0},
        {"0.0",                    0.0},
        {"0e400",                  0.0},
        {"9223372036854775808",    9223372036854775808.0},
        {"-9223372036854775809",   -9223372036854775808.0},
        {"123456789012345678901234567890", 123456789012345678901234567890.0},
        {"1.7976931348623157e308", 1.7976931348623157e308},
        {"5e-324",                 5e-324},
        {"2.2250738585072011e-308", 2.2250738585072011e-308},
        {"1e-400",                 0.0},
        {"0.1",                    0.1},
    };
    // clang-format on
    for (const Row& row : rows) {
        const NumberText number = ParseNumber_G(row.m_Text);
        EXPECT_EQ(number.m_Kind, Kind::k_Real) << row.m_Text;
        EXPECT_EQ(number.m_Real, row.m_Value) << row.m_Text;
        EXPECT_EQ(number.m_Whole, 0) << row.m_Text;
    }
}

TEST(NumberTextTest, EverythingElseIsAWord) {
    // clang-format off
    const char* rows[] = {
        "", "+", "-", ".", "+.", "-.", "e5", ".e5", "+e5", "1e", "1e+", "1e-", "1.5e", "1e5.0", "1e5e5", "1..5", "1.5.2",
        "--1", "++1", "+-1", "-+1", "1-", "1+", "1 ", " 1", "1,5", "1f", "1_000", "0x10", "0x1p3",
        "inf", "-inf", "INF", "infinity", "nan", "NaN", "1e400", "-1e400", "1.7976931348623159e308",
        "+5V", "-12V", "0mm3", "N$54", "2.5\"", "BRAKE/", "10/08/12", "1.3x3.6", "\xC2\xB2", "1\xC2\xB2",
    };
    // clang-format on
    for (const char* row : rows) {
        const NumberText number = ParseNumber_G(row);
        EXPECT_EQ(number.m_Kind, Kind::k_None) << row;
        EXPECT_EQ(number.m_Real, 0.0) << row;
        EXPECT_EQ(number.m_Whole, 0) << row;
    }
}

TEST(NumberTextTest, MinusZeroKeepsItsSignAsARealOnly) {
    EXPECT_TRUE(std::signbit(ParseNumber_G("-0.0").m_Real));
    EXPECT_TRUE(std::signbit(ParseNumber_G("-0.").m_Real));
    EXPECT_TRUE(std::signbit(ParseNumber_G("-0e5").m_Real));
    EXPECT_FALSE(std::signbit(ParseNumber_G("-0").m_Real));
    EXPECT_FALSE(std::signbit(ParseNumber_G("-0000000000000000000000").m_Real));
}

TEST(NumberTextTest, ANulIsNoEnd) {
    EXPECT_EQ(ParseNumber_G(std::string_view("1\0", 2)).m_Kind, Kind::k_None);
    EXPECT_EQ(ParseNumber_G(std::string_view("1\0002", 3)).m_Kind, Kind::k_None);
}

TEST(NumberTextTest, OnlyTheGivenTextIsRead) {
    EXPECT_EQ(ParseNumber_G(std::string_view("12345").substr(0, 2)).m_Whole, 12);
    EXPECT_EQ(ParseNumber_G(std::string_view("1.57e9").substr(0, 3)).m_Real, 1.5);
}

TEST(NumberTextTest, ALongFractionIsRoundedToTheNearest) {
    const std::string justAboveHalf =
        "1.00000000000000011102230246251565404236316680908203125" + std::string(900, '0') + "1";
    EXPECT_EQ(ParseNumber_G(justAboveHalf).m_Real, 1.0 + std::numeric_limits<double>::epsilon());
    EXPECT_EQ(ParseNumber_G("1.00000000000000011102230246251565404236316680908203125").m_Real, 1.0);
}

} // namespace
} // namespace io
