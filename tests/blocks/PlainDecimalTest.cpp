#include "blocks/PlainDecimal.h"

#include <gtest/gtest.h>

#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>

namespace {

/// The text of the C++ library, with a ".0" behind a whole number.
std::string LibraryText(double value) {
    char text[32];
    std::string result(text, std::to_chars(text, text + sizeof text, value).ptr);
    return result.find_first_of(".e") == std::string::npos ? result + ".0" : result;
}

/// The text of `value`, or that it was left to others.
std::string TextOf(double value) {
    char text[32];
    const char* end = io::TryPutDecimal(text, value);
    return end == nullptr ? "left" : std::string(static_cast<const char*>(text), end);
}

/// Counts what was left to others, and compares the rest with the library, of either sign.
class Comparison {
public:
    void Compare(double value) {
        const std::string text = TextOf(value);
        ++m_Count;
        if (text == "left")
            ++m_Left;
        else
            EXPECT_EQ(text, LibraryText(value));
    }
    void ComparePair(double value) {
        Compare(value);
        Compare(-value);
    }
    double GetShareLeft() const { return static_cast<double>(m_Left) / static_cast<double>(m_Count); }

private:
    size_t m_Count = 0;
    size_t m_Left = 0;
};

} // namespace

TEST(PlainDecimalTest, CoordinatesOfABoardHaveTheirShortestText) {
    struct Row {
        double value;
        const char* text;
    };
    // clang-format off
    for (const Row& row : {
             Row{0.0, "0.0"}, Row{-0.0, "-0.0"}, Row{3.0, "3.0"}, Row{-12.5, "-12.5"}, Row{0.12, "0.12"}, Row{0.05, "0.05"},
             Row{100.0 / 3.0, "33.333333333333336"}, Row{12000 * 1e-5, "0.12000000000000001"}, Row{99999.0, "99999.0"},
             Row{43.43068, "43.43068"}, Row{0.1 + 0.2, "0.30000000000000004"}, Row{100000.5, "100000.5"}}) {
        // clang-format on
        EXPECT_EQ(TextOf(row.value), row.text);
    }
}

TEST(PlainDecimalTest, WhatHasAnExponentOrIsNoUsualLengthIsLeftToOthers) {
    for (const double value : {100000.0, 1e6, 2e300, 0.001, 1e-5, std::numeric_limits<double>::denorm_min(),
             std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()})
        EXPECT_EQ(TextOf(value), "left") << value;
}

TEST(PlainDecimalTest, CoordinatesHaveTheTextOfTheLibrary) {
    std::mt19937_64 random(1);
    Comparison coordinates;
    for (int i = 0; i < 200'000; ++i) {
        const auto units = static_cast<double>(random() % 9'999'999'999);
        coordinates.ComparePair(units * 1e-5);
        coordinates.ComparePair(units / 1e5);
        coordinates.ComparePair(units * 2.54e-5);
        coordinates.ComparePair(units * 1e-5 * std::cos(units));
    }
    EXPECT_LT(coordinates.GetShareLeft(), 0.01);
}

TEST(PlainDecimalTest, AnyBitsOfAUsualExponentHaveTheTextOfTheLibrary) {
    std::mt19937_64 random(2);
    Comparison numbers;
    for (int i = 0; i < 500'000; ++i) {
        const uint64_t exponent = 1015 + random() % 30;
        numbers.ComparePair(std::bit_cast<double>(exponent << 52 | random() >> 12));
    }
    EXPECT_LT(numbers.GetShareLeft(), 0.4);
}

/// Few digits, and the doubles beside such numbers, where 15, 16 and 17 digits meet.
TEST(PlainDecimalTest, NeighboursOfRoundNumbersHaveTheTextOfTheLibrary) {
    Comparison numbers;
    for (const double scale : {1e-2, 1e-1, 1.0, 1e1, 1e2, 1e3, 1e4, 1e5}) {
        for (int digits = 1; digits < 10'000; ++digits) {
            double above = digits * scale / 1e3;
            double below = above;
            for (int i = 0; i < 3; ++i) {
                numbers.ComparePair(above);
                numbers.ComparePair(below);
                above = std::nextafter(above, 1e7);
                below = std::nextafter(below, 0.0);
            }
        }
    }
    EXPECT_LT(numbers.GetShareLeft(), 0.4);
}

TEST(PlainDecimalTest, BinaryFractionsHaveTheTextOfTheLibrary) {
    Comparison numbers;
    for (int exponent = -60; exponent <= 20; ++exponent)
        for (int odd = 1; odd < 4096; odd += 2)
            numbers.ComparePair(std::ldexp(odd, exponent));
    EXPECT_LT(numbers.GetShareLeft(), 1.0);
}
