#include "tests/zuken/BoardSections.h"

namespace {

std::string MadeName(const char* reference) { return MakeParser()->MakeComponentName(reference).QRL_ANSI(); }

std::string Replaced(const char* text, const char* from, const char* to) {
    return ZukenPCBParser::ReplaceAll(text, from, to).QRL_ANSI();
}

} // namespace

TEST(ZukenPCBParser_ComponentNamesTest, DotWithinANameStays) { EXPECT_EQ("A.1", MadeName("A.1")); }

TEST(ZukenPCBParser_ComponentNamesTest, DotAtTheEndOfANameBecomesAnUnderscore) { EXPECT_EQ("A_", MadeName("A.")); }

TEST(ZukenPCBParser_ComponentNamesTest, AllDotsOfANameThatEndsInOneAreReplaced) {
    EXPECT_EQ("_A_1_", MadeName(".A.1."));
    EXPECT_EQ("_", MadeName("."));
}

TEST(ZukenPCBParser_ComponentNamesTest, EmptyReferenceIsAName) { EXPECT_EQ("", MadeName("")); }

TEST(ZukenPCBParser_ComponentNamesTest, NameIsFoundByTheReferenceAsTheFilesSpellIt) {
    const auto parser = MakeParser();
    parser->MakeComponentName("A.");
    parser->MakeComponentName("B");
    EXPECT_EQ("A_", parser->GetComponentName("A.").QRL_ANSI());
    EXPECT_EQ("B", parser->GetComponentName("B").QRL_ANSI());
    EXPECT_EQ("", parser->GetComponentName("b").QRL_ANSI()) << "case matters";
}

TEST(ZukenPCBParser_ComponentNamesTest, TwoReferencesCanEndWithOneName) {
    const auto parser = MakeParser();
    EXPECT_EQ("A_", parser->MakeComponentName("A_").QRL_ANSI());
    EXPECT_EQ("A_", parser->MakeComponentName("A.").QRL_ANSI());
}

TEST(ZukenPCBParser_ComponentNamesTest, UnknownReferenceIsNotedWithAnEmptyName) {
    const auto parser = MakeParser();
    EXPECT_FALSE(parser->GetNameMap().HasReference("X9"));
    EXPECT_EQ("", parser->GetComponentName("X9").QRL_ANSI());
    EXPECT_TRUE(parser->GetNameMap().HasReference("X9"));
}

TEST(ZukenPCBParser_ComponentNamesTest, EveryOccurrenceIsReplaced) {
    EXPECT_EQ("a_b_c", Replaced("a.b.c", ".", "_"));
    EXPECT_EQ("abc", Replaced("abc", ".", "_"));
    EXPECT_EQ("", Replaced("", ".", "_"));
    EXPECT_EQ("bc", Replaced("aabc", "a", ""));
}

TEST(ZukenPCBParser_ComponentNamesTest, OccurrenceThatAReplacementMakesIsReplacedToo) {
    EXPECT_EQ("aa", Replaced("aabb", "ab", "a"));
    EXPECT_EQ("a", Replaced("aab", "aab", "a"));
    EXPECT_EQ("x", Replaced("aabb", "ab", "").append("x")) << "the inner ab goes first and leaves another";
}

TEST(ZukenPCBParser_ComponentNamesTest, LongNamesOfDotsTakeNoTime) {
    const std::string dots(1000000, '.');
    EXPECT_EQ(std::string(1000000, '_'), MadeName(dots.c_str()));
}
