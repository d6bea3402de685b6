#include "blocks/OutputFile.h"

#include "tests/blocks/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace io {
namespace {

using Names = std::vector<std::string>;

/// What `action` puts on standard error.
std::string ErrorsOf(const std::function<void()>& action) {
    testing::internal::CaptureStderr();
    action();
    return testing::internal::GetCapturedStderr();
}

/// Writes a file as a whole and gives what went to standard error.
std::string WriteFile(const std::string& path, std::string_view content) {
    return ErrorsOf([&] {
        OutputFile file(path);
        file.Write(content);
        file.Commit();
    });
}

/// Runs `action` in a process of its own and gives its exit status.
int StatusOf(const std::function<int()>& action) {
    const pid_t child = fork();
    if (child == 0)
        _exit(action());
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status)) << "signal " << WTERMSIG(status);
    return WEXITSTATUS(status);
}

mode_t ModeOf(const std::string& path) {
    struct stat info = {};
    EXPECT_EQ(stat(path.c_str(), &info), 0) << path;
    return info.st_mode & ALLPERMS;
}

/// Sets the umask of the process for a scope.
class UmaskScope {
public:
    explicit UmaskScope(mode_t mask) : m_Before(umask(mask)) {}
    UmaskScope(const UmaskScope&) = delete;
    UmaskScope& operator=(const UmaskScope&) = delete;
    ~UmaskScope() { umask(m_Before); }

private:
    mode_t m_Before;
};

/// Makes a folder the current one for a scope.
class CurrentFolderScope {
public:
    explicit CurrentFolderScope(const std::string& path) { std::filesystem::current_path(path); }
    CurrentFolderScope(const CurrentFolderScope&) = delete;
    CurrentFolderScope& operator=(const CurrentFolderScope&) = delete;
    ~CurrentFolderScope() { std::filesystem::current_path(m_Before); }

private:
    std::filesystem::path m_Before = std::filesystem::current_path();
};

TEST(OutputFileTest, ANewFileHoldsWhatWasWritten) {
    const TemporaryFolder folder;
    const std::string path = folder.PathOf("out.qrl");
    EXPECT_EQ(ErrorsOf([&] {
        OutputFile file(path);
        file.Write("one ");
        file.Write("");
        file.Write(std::string_view("t\0o", 3));
        file.Commit();
        EXPECT_FALSE(file.HasFailed());
    }),
        "");
    EXPECT_EQ(ContentOf(path), std::string("one t\0o", 7));
    EXPECT_EQ(folder.List(), Names{"out.qrl"});
}

TEST(OutputFileTest, AFileThatNothingWasWrittenToIsEmpty) {
    const TemporaryFolder folder;
    OutputFile file(folder.Put("out", "old"));
    file.Commit();
    EXPECT_EQ(ContentOf(folder.PathOf("out")), "");
}

TEST(OutputFileTest, NothingIsTouchedBeforeTheFirstWrite) {
    const TemporaryFolder folder;
    const OutputFile file(folder.PathOf("out"));
    EXPECT_EQ(folder.List(), Names{});
}

TEST(OutputFileTest, AReaderSeesTheOldFileUntilTheCommit) {
    const TemporaryFolder folder;
    const std::string path = folder.Put("out", "old");
    OutputFile file(path);
    file.Write("new");
    EXPECT_EQ(ContentOf(path), "old");
    const Names during = folder.List();
    ASSERT_EQ(during.size(), 2U);
    EXPECT_EQ(during[0].front(), '.') << "the temporary file stands hidden in the same folder";
    file.Commit();
    EXPECT_EQ(ContentOf(path), "new");
    EXPECT_EQ(folder.List(), Names{"out"});
}

TEST(OutputFileTest, AReaderThatHasTheOldFileOpenKeepsIt) {
    const TemporaryFolder folder;
    std::ifstream reader(folder.Put("out", "old"));
    EXPECT_EQ(WriteFile(folder.PathOf("out"), "new"), "");
    std::string seen;
    reader >> seen;
    EXPECT_EQ(seen, "old");
}

TEST(OutputFileTest, WithoutACommitNothingStays) {
    const TemporaryFolder folder;
    folder.Put("old", "old");
    for (const char* name : {"old", "new"}) {
        OutputFile file(folder.PathOf(name));
        file.Write("x");
    }
    EXPECT_EQ(folder.List(), Names{"old"});
    EXPECT_EQ(ContentOf(folder.PathOf("old")), "old");
}

TEST(OutputFileTest, WhatComesBehindTheCommitIsIgnored) {
    const TemporaryFolder folder;
    OutputFile file(folder.PathOf("out"));
    file.Write("x");
    file.Commit();
    file.Write("y");
    file.Commit();
    EXPECT_EQ(ContentOf(folder.PathOf("out")), "x");
    EXPECT_EQ(folder.List(), Names{"out"});
}

TEST(OutputFileTest, FilesOfTheTemporaryNameAreLeftAlone) {
    const TemporaryFolder folder;
    const std::string taken = ".qrl-" + std::to_string(getpid()) + "-0";
    folder.Put(taken, "mine");
    EXPECT_EQ(WriteFile(folder.PathOf("out"), "x"), "");
    EXPECT_EQ(folder.List(), (Names{taken, "out"}));
    EXPECT_EQ(ContentOf(folder.PathOf(taken)), "mine");
    EXPECT_EQ(ContentOf(folder.PathOf("out")), "x");
}

TEST(OutputFileTest, TwoFilesCanBeWrittenSideBySide) {
    const TemporaryFolder folder;
    OutputFile first(folder.PathOf("first"));
    OutputFile second(folder.PathOf("second"));
    first.Write("1");
    second.Write("2");
    first.Commit();
    second.Commit();
    EXPECT_EQ(ContentOf(folder.PathOf("first")), "1");
    EXPECT_EQ(ContentOf(folder.PathOf("second")), "2");
    EXPECT_EQ(folder.List().size(), 2U);
}

TEST(OutputFileTest, ANameWithoutAFolderStandsInTheCurrentOne) {
    const TemporaryFolder folder;
    const CurrentFolderScope current(folder.PathOf(""));
    EXPECT_EQ(WriteFile("out", "x"), "");
    EXPECT_EQ(folder.List(), Names{"out"});
}

TEST(OutputFileTest, ANewFileHasThePermissionsThatTheUmaskGives) {
    const TemporaryFolder folder;
    const UmaskScope mask(027);
    EXPECT_EQ(WriteFile(folder.PathOf("out"), "x"), "");
    EXPECT_EQ(ModeOf(folder.PathOf("out")), 0640U);
}

TEST(OutputFileTest, AReplacedFileKeepsItsPermissions) {
    const TemporaryFolder folder;
    const UmaskScope mask(077);
    for (const mode_t mode : {0604U, 0777U, 0444U}) {
        const std::string path = folder.Put("out" + std::to_string(mode), "old");
        ASSERT_EQ(chmod(path.c_str(), mode), 0);
        EXPECT_EQ(WriteFile(path, "new"), "");
        EXPECT_EQ(ModeOf(path), mode);
        EXPECT_EQ(ContentOf(path), "new");
    }
}

TEST(OutputFileTest, ALinkStaysAndItsTargetIsReplaced) {
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder.PathOf("sub"));
    const std::string target = folder.Put("sub/target", "old");
    ASSERT_EQ(chmod(target.c_str(), 0604), 0);
    std::filesystem::create_symlink("target", folder.PathOf("sub/second"));
    std::filesystem::create_symlink("sub/second", folder.PathOf("relative"));
    std::filesystem::create_symlink(target, folder.PathOf("absolute"));
    for (const char* name : {"relative", "absolute"}) {
        EXPECT_EQ(WriteFile(folder.PathOf(name), name), "");
        EXPECT_TRUE(std::filesystem::is_symlink(folder.PathOf(name)));
        EXPECT_TRUE(std::filesystem::is_symlink(folder.PathOf("sub/second")));
        EXPECT_FALSE(std::filesystem::is_symlink(target));
        EXPECT_EQ(ContentOf(target), name);
        EXPECT_EQ(ModeOf(target), 0604U);
    }
}

TEST(OutputFileTest, ADanglingLinkGetsItsTarget) {
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder.PathOf("sub"));
    std::filesystem::create_symlink("sub/target", folder.PathOf("link"));
    EXPECT_EQ(WriteFile(folder.PathOf("link"), "x"), "");
    EXPECT_TRUE(std::filesystem::is_symlink(folder.PathOf("link")));
    EXPECT_EQ(ContentOf(folder.PathOf("sub/target")), "x");
}

TEST(OutputFileTest, ALinkIntoAMissingFolderFails) {
    const TemporaryFolder folder;
    std::filesystem::create_symlink("none/target", folder.PathOf("link"));
    EXPECT_EQ(WriteFile(folder.PathOf("link"), "x"), folder.PathOf("link") + ": No such file or directory\n");
    EXPECT_EQ(folder.List(), Names{"link"});
}

TEST(OutputFileTest, ALoopOfLinksFailsAndStays) {
    const TemporaryFolder folder;
    std::filesystem::create_symlink("b", folder.PathOf("a"));
    std::filesystem::create_symlink("a", folder.PathOf("b"));
    EXPECT_EQ(WriteFile(folder.PathOf("a"), "x"), folder.PathOf("a") + ": Too many levels of symbolic links\n");
    EXPECT_TRUE(std::filesystem::is_symlink(folder.PathOf("a")));
    EXPECT_TRUE(std::filesystem::is_symlink(folder.PathOf("b")));
    EXPECT_EQ(folder.List(), (Names{"a", "b"}));
}

TEST(OutputFileTest, APipeIsWrittenStraightTo) {
    const TemporaryFolder folder;
    const std::string path = folder.PathOf("pipe");
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    std::string received;
    std::thread reader([&] { received = ContentOf(path); });
    const std::string content(300000, 'x');
    EXPECT_EQ(WriteFile(path, content), "");
    reader.join();
    EXPECT_EQ(received, content);
    EXPECT_TRUE(std::filesystem::is_fifo(path));
    EXPECT_EQ(folder.List(), Names{"pipe"});
}

TEST(OutputFileTest, APipeWithoutANameIsWrittenToByWayOfItsDescriptor) {
    int ends[2] = {};
    ASSERT_EQ(pipe(ends), 0);
    EXPECT_EQ(WriteFile("/proc/self/fd/" + std::to_string(ends[1]), "x"), "");
    char received = '\0';
    EXPECT_EQ(read(ends[0], &received, 1), 1);
    EXPECT_EQ(received, 'x');
    close(ends[0]);
    close(ends[1]);
}

TEST(OutputFileTest, APipeThatNobodyReadsAnyMoreFails) {
    const TemporaryFolder folder;
    const std::string path = folder.PathOf("pipe");
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    const int reader = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    ASSERT_GE(reader, 0);
    const auto before = std::signal(SIGPIPE, SIG_IGN);
    EXPECT_EQ(ErrorsOf([&] {
        OutputFile file(path);
        file.Write("x");
        close(reader);
        file.Write("y");
        EXPECT_TRUE(file.HasFailed());
    }),
        path + ": Broken pipe\n");
    std::signal(SIGPIPE, before);
    EXPECT_TRUE(std::filesystem::is_fifo(path));
}

TEST(OutputFileTest, ADeviceIsWrittenStraightTo) {
    EXPECT_EQ(WriteFile("/dev/null", "x"), "");
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/null"));
    const TemporaryFolder folder;
    std::filesystem::create_symlink("/dev/null", folder.PathOf("link"));
    EXPECT_EQ(WriteFile(folder.PathOf("link"), "x"), "");
    EXPECT_TRUE(std::filesystem::is_symlink(folder.PathOf("link")));
}

TEST(OutputFileTest, AFullDeviceFails) {
    EXPECT_EQ(WriteFile("/dev/full", "x"), "/dev/full: No space left on device\n");
}

TEST(OutputFileTest, AFailureIsReportedOnceAndEndsTheWriting) {
    EXPECT_EQ(ErrorsOf([] {
        OutputFile file("/dev/full");
        EXPECT_FALSE(file.HasFailed());
        file.Write("x");
        EXPECT_TRUE(file.HasFailed());
        file.Write("y");
        file.Commit();
        EXPECT_TRUE(file.HasFailed());
    }),
        "/dev/full: No space left on device\n");
}

TEST(OutputFileTest, PlacesWhereNoFileCanBeFail) {
    const TemporaryFolder folder;
    folder.Put("file", "x");
    std::filesystem::create_directory(folder.PathOf("dir"));
    std::filesystem::create_symlink("dir", folder.PathOf("link"));
    struct Row {
        const char* m_Name;
        const char* m_Reason;
    };
    // clang-format off
    const Row rows[] = {
        {"none/out", "No such file or directory"},
        {"none/",    "No such file or directory"},
        {"file/out", "Not a directory"},
        {"dir",      "Is a directory"},
        {"dir/",     "Is a directory"},
        {"link",     "Is a directory"},
    };
    // clang-format on
    for (const Row& row : rows) {
        const std::string path = folder.PathOf(row.m_Name);
        EXPECT_EQ(WriteFile(path, "x"), path + ": " + row.m_Reason + "\n");
    }
    EXPECT_EQ(folder.List(), (Names{"dir", "file", "link"}));
    EXPECT_TRUE(std::filesystem::is_empty(folder.PathOf("dir")));
    EXPECT_EQ(ContentOf(folder.PathOf("file")), "x");
}

TEST(OutputFileTest, TheEmptyNameFailsAndLeavesNothing) {
    const TemporaryFolder folder;
    const CurrentFolderScope current(folder.PathOf(""));
    EXPECT_EQ(WriteFile("", "x"), ": No such file or directory\n");
    EXPECT_EQ(folder.List(), Names{});
}

TEST(OutputFileTest, AFailureToCommitLeavesNoTemporaryFile) {
    const TemporaryFolder folder;
    const std::string path = folder.PathOf("out");
    EXPECT_EQ(ErrorsOf([&] {
        OutputFile file(path);
        file.Write("x");
        std::filesystem::create_directory(path);
        file.Commit();
        EXPECT_TRUE(file.HasFailed());
    }),
        path + ": Is a directory\n");
    EXPECT_EQ(folder.List(), Names{"out"});
}

TEST(OutputFileTest, AllThatIsBeingWrittenCanBeRemovedAtOnce) {
    const TemporaryFolder folder;
    EXPECT_EQ(ErrorsOf([&] {
        OutputFile first(folder.PathOf("first"));
        OutputFile untouched(folder.PathOf("untouched"));
        OutputFile committed(folder.PathOf("committed"));
        OutputFile last(folder.PathOf("last"));
        for (OutputFile* file : {&first, &committed, &last})
            file->Write("x");
        {
            OutputFile gone(folder.PathOf("gone"));
            gone.Write("x");
        }
        committed.Commit();
        EXPECT_EQ(folder.List().size(), 3U);
        OutputFile::DiscardAll();
        EXPECT_EQ(folder.List(), Names{"committed"});
    }),
        "");
    EXPECT_EQ(folder.List(), Names{"committed"});
}

TEST(OutputFileTest, AFileThatGrowsTooLargeLeavesTheOldOne) {
    const TemporaryFolder folder;
    const std::string path = folder.Put("out", "old");
    const std::string errors = ErrorsOf([&] {
        EXPECT_EQ(StatusOf([&] {
            std::signal(SIGXFSZ, SIG_IGN);
            const rlimit limit = {4096, 4096};
            setrlimit(RLIMIT_FSIZE, &limit);
            OutputFile file(path);
            file.Write(std::string(3000, 'x'));
            const bool hadFailed = file.HasFailed();
            file.Write(std::string(3000, 'y'));
            file.Commit();
            return !hadFailed && file.HasFailed() ? 7 : 1;
        }),
            7);
    });
    EXPECT_EQ(errors, path + ": File too large\n");
    EXPECT_EQ(ContentOf(path), "old");
    EXPECT_EQ(folder.List(), Names{"out"});
}

TEST(OutputFileTest, AFolderThatMayNotBeWrittenToFails) {
    const TemporaryFolder folder;
    const std::string path = folder.Put("out", "old");
    ASSERT_EQ(chmod(folder.PathOf("").c_str(), 0555), 0);
    const std::string errors = ErrorsOf([&] {
        EXPECT_EQ(StatusOf([&] {
            constexpr uid_t k_Nobody = 65534;
            if (geteuid() == 0 && setuid(k_Nobody) != 0)
                return 1;
            OutputFile file(path);
            file.Write("new");
            file.Commit();
            return file.HasFailed() ? 7 : 2;
        }),
            7);
    });
    ASSERT_EQ(chmod(folder.PathOf("").c_str(), 0755), 0);
    EXPECT_EQ(errors, path + ": Permission denied\n");
    EXPECT_EQ(ContentOf(path), "old");
    EXPECT_EQ(folder.List(), Names{"out"});
}

} // namespace
} // namespace io
