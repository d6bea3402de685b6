#ifndef QRL_LIB_UTILS_ASSERT_H
#define QRL_LIB_UTILS_ASSERT_H

/// When set, no failed assertion reaches ProcessAssertFailure_G: all of them are only counted.
extern bool IgnoreAllAsserts_G;

/// Reports a failed assertion: one line `Assertion failed: TEXT, FILE:LINE` on standard error, FILE without its
/// folder. Sets `ignoreThis`, so that each assertion site reports once in a run. Never stops the program.
void ProcessAssertFailure_G(const char* file, int line, const char* expression, bool& ignoreThis);

/// Counts a failed assertion whose site is to be ignored. Prints nothing.
void LogAssertFailure_G(const char* file, int line, const char* expression);

namespace base {

/// What is told of one failed assertion. The texts belong to the assertion site and live for the whole run.
struct AssertFailure {
    const char* m_File = "";       ///< source file as the site names it
    int m_Line = 0;                ///< line of the site
    const char* m_Expression = ""; ///< the condition that did not hold, as text
};

/// Receives each reported failure in place of the line on standard error.
using AssertReceiver = void (*)(const AssertFailure&);

/// Replaces the receiver of reports and returns the one before; null stands for the line on standard error.
/// While a receiver is set, sites aren't silenced after their first report: a test sees every failure.
AssertReceiver SetAssertReceiver(AssertReceiver receiver);

/// How many failures LogAssertFailure_G has counted since the start of the program.
unsigned long GetLoggedAssertFailures();

/// What a failed assertion does: it is reported, or only counted where its site or all of them are to be ignored.
void HandleAssertFailure(const char* file, int line, const char* expression, bool& ignoreThis) noexcept;

} // namespace base

/// Checks `condition`. `file` is the source file that the report names, `text` the condition as it is to be reported.
/// Execution goes on with the next statement in every case; what follows must cope with a condition that failed.
#define QRL_ASSERT(file, text, condition)                                                                              \
    do {                                                                                                               \
        static bool ignoreThis = false;                                                                                \
        if (!(condition)) [[unlikely]]                                                                                 \
            base::HandleAssertFailure(file, __LINE__, text, ignoreThis);                                               \
    } while (false)

#endif
