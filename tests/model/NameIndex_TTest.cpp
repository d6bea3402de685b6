#include "model/NameIndex_T.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <random>
#include <string>

namespace {

/// All names have the same hash.
struct OneKey {
    static uint64_t GetKey(const AString& /*name*/) { return ~uint64_t{0}; }
    static bool AreEqual(const AString& a, const AString& b) { return a == b; }
};

} // namespace

TEST(NameIndex_TTest, EmptyIndexHasNoName) {
    const NameIndex_T<int> index;
    EXPECT_EQ(nullptr, index.Find("A"));
    EXPECT_EQ(nullptr, index.Find(""));
}

TEST(NameIndex_TTest, FirstValueOfANameStays) {
    NameIndex_T<int> index;
    const auto [value, isNew] = index.TryAdd("A1", 7);
    EXPECT_TRUE(isNew);
    EXPECT_EQ(7, *value);
    const auto [again, isNewAgain] = index.TryAdd("A1", 8);
    EXPECT_FALSE(isNewAgain);
    EXPECT_EQ(7, *again);
    EXPECT_EQ(7, *index.Find("A1"));
}

TEST(NameIndex_TTest, CaseIsIgnoredUnlessItMatters) {
    NameIndex_T<int> ignoring;
    NameIndex_T<int, CaseMatters> minding;
    ignoring.TryAdd("Net-7z", 1);
    minding.TryAdd("Net-7z", 1);
    EXPECT_FALSE(ignoring.TryAdd("NET-7Z", 2).second);
    EXPECT_TRUE(minding.TryAdd("NET-7Z", 2).second);
    EXPECT_EQ(1, *ignoring.Find("nET-7Z"));
    EXPECT_EQ(nullptr, minding.Find("nET-7Z"));
    EXPECT_EQ(2, *minding.Find("NET-7Z"));
    EXPECT_EQ(nullptr, ignoring.Find("Net-7")) << "a part of a name is another name";
}

TEST(NameIndex_TTest, ValueCanBeChanged) {
    NameIndex_T<AString> index;
    *index.TryAdd("A", "x").first = "y";
    EXPECT_EQ(AString("y"), *index.Find("a"));
    *index.Find("A") = "z";
    EXPECT_EQ(AString("z"), *index.Find("a"));
}

TEST(NameIndex_TTest, NameIsTheOneThatWasEntered) {
    NameIndex_T<int> index;
    AString name = "A";
    index.TryAdd(name, 1);
    name[0] = u'B';
    EXPECT_NE(nullptr, index.Find("A"));
    EXPECT_EQ(nullptr, index.Find("B"));
}

TEST(NameIndex_TTest, EmptyNameIsANameLikeAnyOther) {
    NameIndex_T<int> index;
    EXPECT_TRUE(index.TryAdd("", 3).second);
    EXPECT_EQ(3, *index.Find(""));
    EXPECT_EQ(nullptr, index.Find("A"));
}

TEST(NameIndex_TTest, NarrowNameIsFoundLikeAWideOne) {
    NameIndex_T<int> index;
    EXPECT_EQ(nullptr, index.FindNarrow("GND"));
    index.TryAdd("Gnd", 1);
    index.TryAdd("A_longer_name", 2);
    index.TryAdd("\xC3\x84rger", 3);
    EXPECT_EQ(1, *index.FindNarrow("GND"));
    EXPECT_EQ(2, *index.FindNarrow("a_LONGER_name"));
    EXPECT_EQ(3, *index.FindNarrow("\xC3\x84RGER"));
    EXPECT_EQ(nullptr, index.FindNarrow("\xC3\xA4rger")) << "only A to Z are folded";
    EXPECT_EQ(nullptr, index.FindNarrow("GN"));
    EXPECT_EQ(nullptr, index.FindNarrow("a_longer_nam_"));
}

TEST(NameIndex_TTest, NamesWithOneHashAreToldApart) {
    NameIndex_T<int, OneKey> index;
    index.TryAdd("A_first_name", 1);
    index.TryAdd("A_second_name", 2);
    EXPECT_EQ(1, *index.Find("A_first_name"));
    EXPECT_EQ(2, *index.Find("A_second_name"));
    EXPECT_EQ(nullptr, index.Find("A_third_name"));
}

TEST(NameIndex_TTest, AnswersAreThoseOfAMap) {
    std::mt19937 random(7);
    std::map<std::string, int> expected;
    NameIndex_T<int, CaseMatters> index;
    for (int i = 0; i < 20000; ++i) {
        const std::string name = "N" + std::to_string(random() % 15000);
        EXPECT_EQ(expected.try_emplace(name, i).second, index.TryAdd(name.c_str(), i).second);
    }
    for (int i = 0; i < 15000; ++i) {
        const std::string name = "N" + std::to_string(i);
        const auto found = expected.find(name);
        const int* value = index.Find(name.c_str());
        ASSERT_EQ(found != expected.end(), value != nullptr) << name;
        if (value != nullptr) {
            EXPECT_EQ(found->second, *value) << name;
        }
    }
}
