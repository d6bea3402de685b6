#include "model/UsedNames.h"

#include <gtest/gtest.h>

#include <random>
#include <set>
#include <string>

namespace {

/// What the numbering means, number by number.
std::string AddNumberedByWalking(std::set<std::string>& taken, const std::string& base, int n) {
    std::string name;
    do
        name = base + '_' + std::to_string(++n);
    while (!taken.insert(name).second);
    return name;
}

} // namespace

TEST(UsedNamesTest, NameIsTakenOnce) {
    UsedNames used;
    EXPECT_FALSE(used.Contains("A"));
    EXPECT_TRUE(used.Add("A"));
    EXPECT_TRUE(used.Contains("A"));
    EXPECT_FALSE(used.Add("A"));
    EXPECT_FALSE(used.Contains("a"));
}

TEST(UsedNamesTest, NumberedNameIsTakenToo) {
    UsedNames used;
    EXPECT_EQ("A_1", used.AddNumbered("A", 0).QRL_ANSI());
    EXPECT_TRUE(used.Contains("A_1"));
    EXPECT_FALSE(used.Contains("A"));
}

TEST(UsedNamesTest, NumbersGoOnFromEachStart) {
    UsedNames used;
    used.Add("A_2");
    EXPECT_EQ("A_1", used.AddNumbered("A", 0).QRL_ANSI());
    EXPECT_EQ("A_3", used.AddNumbered("A", 0).QRL_ANSI());
    EXPECT_EQ("A_11", used.AddNumbered("A", 10).QRL_ANSI());
    EXPECT_EQ("A_4", used.AddNumbered("A", 1).QRL_ANSI());
    EXPECT_EQ("B_1", used.AddNumbered("B", 0).QRL_ANSI());
}

TEST(UsedNamesTest, NameThatIsTakenBehindASearchIsSeenByTheNext) {
    UsedNames used;
    EXPECT_EQ("A_1", used.AddNumbered("A", 0).QRL_ANSI());
    used.Add("A_2");
    EXPECT_EQ("A_3", used.AddNumbered("A", 0).QRL_ANSI());
}

TEST(UsedNamesTest, NumberWrapsAround) {
    UsedNames used;
    EXPECT_EQ("A_2147483647", used.AddNumbered("A", 2147483646).QRL_ANSI());
    EXPECT_EQ("A_-2147483648", used.AddNumbered("A", 2147483646).QRL_ANSI());
}

TEST(UsedNamesTest, AnswersAreThoseOfAWalk) {
    std::mt19937 random(4711); // NOLINT(cert-msc51-cpp): the same names in every run
    UsedNames used;
    std::set<std::string> taken;
    for (int i = 0; i < 2000; ++i) {
        const std::string base(1, static_cast<char>('A' + random() % 3));
        const int n = static_cast<int>(random() % 50) - 10;
        if (random() % 4 == 0) {
            const std::string name = base + '_' + std::to_string(n + static_cast<int>(random() % 2000));
            ASSERT_EQ(taken.insert(name).second, used.Add(name.c_str())) << name;
        } else {
            ASSERT_EQ(AddNumberedByWalking(taken, base, n), used.AddNumbered(base.c_str(), n).QRL_ANSI()) << i;
        }
    }
}

TEST(UsedNamesTest, ManyEqualNamesAreNotSlow) {
    UsedNames used;
    for (int i = 1; i <= 100000; ++i)
        ASSERT_EQ("1_" + std::to_string(i), used.AddNumbered("1", 0).QRL_ANSI());
    // From the middle of what is taken, each time from elsewhere.
    for (int i = 1; i <= 100000; ++i)
        ASSERT_EQ("1_" + std::to_string(100000 + i), used.AddNumbered("1", i).QRL_ANSI());
}
