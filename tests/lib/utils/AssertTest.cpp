#include "lib/utils/Assert.h"
#include "tests/AssertionRecorder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

/// One assertion site that a test can reach again.
int CheckPositive(int value) {
    QRL_ASSERT("Some/Folder/Site.h", "value > 0", value > 0);
    return value + 1;
}

TEST(AssertTest, AFailedConditionDoesNotStopTheProgram) {
    AssertionRecorder recorder;
    EXPECT_EQ(CheckPositive(-3), -2);
    EXPECT_EQ(recorder.Take(), std::vector<std::string>{"value > 0, Some/Folder/Site.h"});
}

TEST(AssertTest, AConditionThatHoldsReportsNothing) {
    AssertionRecorder recorder;
    EXPECT_EQ(CheckPositive(3), 4);
    EXPECT_TRUE(recorder.Take().empty());
}

TEST(AssertTest, EverySiteReportsOnceAndIsCountedAfterwards) {
    const unsigned long before = base::GetLoggedAssertFailures();
    testing::internal::CaptureStderr();
    for (int i = 0; i < 3; ++i)
        QRL_ASSERT("Some/Folder/Other.cpp", "i > 5", i > 5);
    const std::string text = testing::internal::GetCapturedStderr();
    EXPECT_THAT(text, testing::MatchesRegex("Assertion failed: i > 5, Other.cpp:[0-9]+\n"));
    EXPECT_EQ(base::GetLoggedAssertFailures() - before, 2U);
}

TEST(AssertTest, AFileThatIsNamedWithoutAFolderIsReportedAsItIs) {
    testing::internal::CaptureStderr();
    QRL_ASSERT("Plain", "false", false);
    EXPECT_THAT(
        testing::internal::GetCapturedStderr(), testing::MatchesRegex("Assertion failed: false, Plain:[0-9]+\n"));
}

TEST(AssertTest, TheGlobalSwitchSilencesAllSites) {
    const unsigned long before = base::GetLoggedAssertFailures();
    AssertionRecorder recorder;
    IgnoreAllAsserts_G = true;
    CheckPositive(-1);
    IgnoreAllAsserts_G = false;
    EXPECT_TRUE(recorder.Take().empty());
    EXPECT_EQ(base::GetLoggedAssertFailures() - before, 1U);
}

} // namespace
