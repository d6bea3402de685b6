#include "driver/CommandLine.h"

#include "tests/blocks/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Names = std::vector<std::string>;

/// What the program said on standard output and the status that it gave.
struct Outcome {
    int m_Status;
    std::string m_Output;
};

Outcome RunWith(const Names& arguments) {
    std::vector<const char*> argv = {"zuken2qrl"};
    for (const std::string& argument : arguments)
        argv.push_back(argument.c_str());
    const int argc = static_cast<int>(argv.size());
    argv.push_back(nullptr);
    testing::internal::CaptureStdout();
    const int status = RunCommandLine(argc, argv.data());
    return {status, testing::internal::GetCapturedStdout()};
}

class CommandLineTest : public testing::Test {
protected:
    void Put(const Names& names) const {
        for (const std::string& name : names)
            folder.Put(name, "");
    }
    std::string Missing(const std::string& kind, const std::string& name) const {
        return kind + " file " + folder.PathOf(name) + " does not exist\n";
    }

    TemporaryFolder folder;
    std::string board = folder.PathOf("board.pcf");
};

TEST_F(CommandLineTest, WithoutAnArgumentAsksForOne) {
    const Outcome run = RunWith({});
    EXPECT_EQ(run.m_Status, 0);
    EXPECT_EQ(run.m_Output, " Please specify the Zuken .pcf file as a command line argument \n");
}

TEST_F(CommandLineTest, WithoutItsOwnNameAsksForAnArgument) {
    const char* const none[] = {nullptr};
    testing::internal::CaptureStdout();
    EXPECT_EQ(RunCommandLine(0, none), 0);
    EXPECT_EQ(
        testing::internal::GetCapturedStdout(), " Please specify the Zuken .pcf file as a command line argument \n");
}

TEST_F(CommandLineTest, AMissingBoardFileIsStatusOne) {
    Put({"board.ftf", "board.txt"});
    const Outcome run = RunWith({board});
    EXPECT_EQ(run.m_Status, 1);
    EXPECT_EQ(run.m_Output, Missing("PCF", "board.pcf"));
    EXPECT_EQ(folder.List(), (Names{"board.ftf", "board.txt"}));
}

TEST_F(CommandLineTest, AMissingFootprintFileIsStatusOneAndTheSideFileIsNotTold) {
    Put({"board.pcf"});
    const Outcome run = RunWith({board});
    EXPECT_EQ(run.m_Status, 1);
    EXPECT_EQ(run.m_Output, Missing("FTF", "board.ftf"));
    EXPECT_EQ(folder.List(), Names{"board.pcf"});
}

TEST_F(CommandLineTest, AMissingSideFileIsToldAndTheOutputWritten) {
    Put({"board.pcf", "board.ftf"});
    const Outcome run = RunWith({board});
    EXPECT_EQ(run.m_Status, 0);
    EXPECT_EQ(run.m_Output, Missing("TXT", "board.txt"));
    EXPECT_EQ(folder.List(), (Names{"board.ftf", "board.pcf", "board.qrl"}));
}

TEST_F(CommandLineTest, AnOutputNameIsTakenAsItIs) {
    Put({"board.pcf", "board.ftf", "board.txt"});
    const Outcome run = RunWith({board, folder.PathOf("out.x"), folder.PathOf("ignored")});
    EXPECT_EQ(run.m_Status, 0);
    EXPECT_EQ(run.m_Output, "");
    EXPECT_EQ(folder.List(), (Names{"board.ftf", "board.pcf", "board.txt", "out.x"}));
}

TEST_F(CommandLineTest, QuotesOfTheBoardFileAreDroppedAtBothEndsOrAtOne) {
    Put({"board.pcf", "board.ftf", "board.txt"});
    for (const std::string& argument : {'"' + board + '"', '"' + board, board + '"'}) {
        const Outcome run = RunWith({argument});
        EXPECT_EQ(run.m_Status, 0) << argument;
        EXPECT_EQ(run.m_Output, "") << argument;
        EXPECT_EQ(std::remove(folder.PathOf("board.qrl").c_str()), 0) << argument;
    }
}

TEST_F(CommandLineTest, AnArgumentOfQuotesAloneNamesNoFile) {
    for (const char* argument : {"", "\"", "\"\""}) {
        const Outcome run = RunWith({argument});
        EXPECT_EQ(run.m_Status, 1) << argument;
        EXPECT_EQ(run.m_Output, "PCF file  does not exist\n") << argument;
    }
}

TEST_F(CommandLineTest, ABoardThatCannotBeReadIsStatusZero) {
    folder.Put("board.pcf", "((");
    folder.Put("board.ftf", "(a\n\"b");
    Put({"board.txt"});
    const Outcome run = RunWith({board});
    EXPECT_EQ(run.m_Status, 0);
    EXPECT_EQ(run.m_Output, "Parsing failed at line: 2 near \"b\nParsing failed at line: 1 near (\n");
    EXPECT_EQ(folder.List(), (Names{"board.ftf", "board.pcf", "board.qrl", "board.txt"}));
}

} // namespace
