#include "lib/utils/Assert.h"

#include <gtest/gtest.h>

namespace {

/// Fails the test in which an assertion fires that no AssertionRecorder waits for.
class UnexpectedAssertions : public testing::Environment {
public:
    void SetUp() override { m_Before = base::SetAssertReceiver(&Fail); }
    void TearDown() override { base::SetAssertReceiver(m_Before); }

private:
    static void Fail(const base::AssertFailure& failure) {
        ADD_FAILURE() << "assertion failed: " << failure.m_Expression << ", " << failure.m_File << ":"
                      << failure.m_Line;
    }

    base::AssertReceiver m_Before = nullptr;
};

const testing::Environment* const g_Environment = testing::AddGlobalTestEnvironment(new UnexpectedAssertions);

} // namespace
