#include "model/NameMap.h"

#include <gtest/gtest.h>

TEST(NameMapTest, ReferenceThatWasNeverMetEntersWithAnEmptyName) {
    NameMap names;
    EXPECT_FALSE(names.HasReference("R1"));
    EXPECT_FALSE(names.HasName(""));
    EXPECT_TRUE(names.Get("R1").empty());
    EXPECT_TRUE(names.HasReference("R1"));
    EXPECT_TRUE(names.HasName(""));
}

TEST(NameMapTest, CaseMattersInAReferenceAndNotInAName) {
    NameMap names;
    names.Set("r1", "Name");
    EXPECT_EQ("Name", names.Get("r1").QRL_ANSI());
    EXPECT_FALSE(names.HasReference("R1"));
    EXPECT_TRUE(names.HasName("nAME"));
}

TEST(NameMapTest, NewNameReplacesTheOneBefore) {
    NameMap names;
    names.Set("R1", "old");
    names.Set("R1", "new");
    EXPECT_EQ("new", names.Get("R1").QRL_ANSI());
    EXPECT_FALSE(names.HasName("old"));
    EXPECT_TRUE(names.HasName("new"));
}

TEST(NameMapTest, NameStaysAsLongAsAReferenceHasIt) {
    NameMap names;
    names.Set("R1", "both");
    names.Set("R2", "BOTH");
    names.Set("R1", "other");
    EXPECT_TRUE(names.HasName("both"));
    names.Set("R2", "both");
    EXPECT_TRUE(names.HasName("both")) << "given the name that it has";
    names.Set("R2", "other");
    EXPECT_FALSE(names.HasName("both"));
}

TEST(NameMapTest, EmptyNameIsReplacedByASetOne) {
    NameMap names;
    names.Get("R1");
    names.Set("R1", "R1");
    EXPECT_EQ("R1", names.Get("R1").QRL_ANSI());
    EXPECT_FALSE(names.HasName(""));
}
