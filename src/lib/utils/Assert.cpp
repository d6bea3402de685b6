#include "lib/utils/Assert.h"

#include <cstdio>
#include <cstring>

bool IgnoreAllAsserts_G = false;

namespace {

base::AssertReceiver g_Receiver = nullptr;
unsigned long g_LoggedFailures = 0;

const char* WithoutFolder(const char* file) {
    const char* slash = std::strrchr(file, '/');
    return slash == nullptr ? file : slash + 1;
}

} // namespace

void ProcessAssertFailure_G(const char* file, int line, const char* expression, bool& ignoreThis) {
    if (g_Receiver != nullptr) {
        g_Receiver({file, line, expression});
        return;
    }
    ignoreThis = true;
    std::fprintf(stderr, "Assertion failed: %s, %s:%d\n", expression, WithoutFolder(file), line);
}

void LogAssertFailure_G(const char* /*file*/, int /*line*/, const char* /*expression*/) { ++g_LoggedFailures; }

base::AssertReceiver base::SetAssertReceiver(AssertReceiver receiver) {
    AssertReceiver before = g_Receiver;
    g_Receiver = receiver;
    return before;
}

unsigned long base::GetLoggedAssertFailures() { return g_LoggedFailures; }

void base::HandleAssertFailure(const char* file, int line, const char* expression, bool& ignoreThis) noexcept {
    if (!ignoreThis && !IgnoreAllAsserts_G)
        ProcessAssertFailure_G(file, line, expression, ignoreThis);
    else
        LogAssertFailure_G(file, line, expression);
}
