#include "blocks/NumberMemo.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace {

std::string Plain(double value) {
    char text[io::k_NumberRoom];
    return {text, io::PutDouble(text, value)};
}

std::string Remembered(io::NumberMemo& memo, double value) {
    char text[io::k_NumberRoom];
    return {text, memo.Put(text, value)};
}

} // namespace

TEST(NumberMemoTest, ATextIsTheSameWhetherItIsRememberedOrNot) {
    const auto memo = std::make_unique<io::NumberMemo>();
    std::mt19937_64 random(3);
    std::vector<double> numbers = {0.0, -0.0, 1e300, -1e-300, std::numeric_limits<double>::infinity(), std::nan("")};
    for (int i = 0; i < 2000; ++i)
        numbers.push_back(static_cast<double>(random() % 100'000) * 1e-5);
    for (int round = 0; round < 3; ++round) {
        for (const double number : numbers) {
            EXPECT_EQ(Remembered(*memo, number), Plain(number));
            EXPECT_EQ(Remembered(*memo, number), Plain(number));
        }
    }
}

TEST(NumberMemoTest, TheTwoZerosAreToldApart) {
    const auto memo = std::make_unique<io::NumberMemo>();
    EXPECT_EQ(Remembered(*memo, 0.0), "0.0");
    EXPECT_EQ(Remembered(*memo, -0.0), "-0.0");
    EXPECT_EQ(Remembered(*memo, 0.0), "0.0");
}
