#include "blocks/LongFileName.h"

#include "tests/blocks/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <sys/stat.h>

namespace {

LongFileName NameOf(const std::string& path) { return LongFileName(AString(std::string_view(path))); }

TEST(LongFileNameTest, ADefaultNameIsEmptyAndNamesNoFile) {
    const LongFileName name;
    EXPECT_TRUE(name.FilePath().empty());
    EXPECT_FALSE(name.Exists());
    EXPECT_FALSE(NameOf("").Exists());
}

TEST(LongFileNameTest, FilePathIsTheWholePathAsGiven) {
    EXPECT_EQ(NameOf("../a b/\xC3\xA9//board.pcf").FilePath().QRL_ANSI(), "../a b/\xC3\xA9//board.pcf");
}

TEST(LongFileNameTest, ChangeExtWorksOnTheLastComponent) {
    struct Row {
        const char* m_Path;
        const char* m_Changed;
    };
    // clang-format off
    const Row rows[] = {
        {"board.pcf",           "board.ftf"},
        {"board",               "board.ftf"},
        {"board.",              "board.ftf"},
        {"board.rev2.pcf",      "board.rev2.ftf"},
        {".hidden",             ".hidden.ftf"},
        {".hidden.pcf",         ".hidden.ftf"},
        {"dir.d/board",         "dir.d/board.ftf"},
        {"dir.d/board.pcf",     "dir.d/board.ftf"},
        {"dir/.hidden",         "dir/.hidden.ftf"},
        {"dir.d/",              "dir.d/.ftf"},
        {"../board",            "../board.ftf"},
        {"/a.b/c.d",            "/a.b/c.ftf"},
        {"\xC3\xA9.\xC3\xA9",   "\xC3\xA9.ftf"},
        {"\xFF.pcf",            "\xFF.ftf"},
        {"",                    ".ftf"},
    };
    // clang-format on
    for (const Row& row : rows) {
        LongFileName name = NameOf(row.m_Path);
        name.ChangeExt(".ftf");
        EXPECT_EQ(name.FilePath().QRL_ANSI(), row.m_Changed) << row.m_Path;
    }
}

TEST(LongFileNameTest, ChangeExtToNothingRemovesTheExtension) {
    LongFileName name = NameOf("dir/board.pcf");
    name.ChangeExt("");
    EXPECT_EQ(name.FilePath().QRL_ANSI(), "dir/board");
}

TEST(LongFileNameTest, ACopyDoesNotSeeLaterChanges) {
    LongFileName name = NameOf("board.pcf");
    const LongFileName copy = name;
    LongFileName assigned;
    assigned = name;
    name.ChangeExt(".txt");
    EXPECT_EQ(name.FilePath().QRL_ANSI(), "board.txt");
    EXPECT_EQ(copy.FilePath().QRL_ANSI(), "board.pcf");
    EXPECT_EQ(assigned.FilePath().QRL_ANSI(), "board.pcf");
}

TEST(LongFileNameTest, AFileExistsWhateverItHolds) {
    const TemporaryFolder folder;
    EXPECT_TRUE(NameOf(folder.Put("full", "x")).Exists());
    EXPECT_TRUE(NameOf(folder.Put("empty", "")).Exists());
    EXPECT_TRUE(NameOf(folder.Put("\xFF\x80", "x")).Exists());
}

TEST(LongFileNameTest, AFileThatMayNotBeReadExists) {
    const TemporaryFolder folder;
    const std::string path = folder.Put("secret", "x");
    ASSERT_EQ(chmod(path.c_str(), 0), 0);
    EXPECT_TRUE(NameOf(path).Exists());
}

TEST(LongFileNameTest, PipesAndDevicesExist) {
    const TemporaryFolder folder;
    ASSERT_EQ(mkfifo(folder.PathOf("pipe").c_str(), 0600), 0);
    EXPECT_TRUE(NameOf(folder.PathOf("pipe")).Exists());
    EXPECT_TRUE(NameOf("/dev/null").Exists());
}

TEST(LongFileNameTest, ADirectoryDoesNotExistAsAFile) {
    const TemporaryFolder folder;
    EXPECT_FALSE(NameOf(folder.PathOf("")).Exists());
    std::filesystem::create_directory_symlink(".", folder.PathOf("link"));
    EXPECT_FALSE(NameOf(folder.PathOf("link")).Exists());
}

TEST(LongFileNameTest, WhatIsNotThereDoesNotExist) {
    const TemporaryFolder folder;
    const std::string file = folder.Put("file", "x");
    EXPECT_FALSE(NameOf(folder.PathOf("other")).Exists());
    EXPECT_FALSE(NameOf(folder.PathOf("none/file")).Exists());
    EXPECT_FALSE(NameOf(file + "/below").Exists());
}

TEST(LongFileNameTest, ALinkCountsAsWhatItPointsAt) {
    const TemporaryFolder folder;
    folder.Put("file", "x");
    std::filesystem::create_symlink("file", folder.PathOf("link"));
    std::filesystem::create_symlink("gone", folder.PathOf("dangling"));
    std::filesystem::create_symlink("loop", folder.PathOf("loop"));
    EXPECT_TRUE(NameOf(folder.PathOf("link")).Exists());
    EXPECT_FALSE(NameOf(folder.PathOf("dangling")).Exists());
    EXPECT_FALSE(NameOf(folder.PathOf("loop")).Exists());
}

} // namespace
