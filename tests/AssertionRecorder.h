#ifndef QRL_TESTS_ASSERTIONRECORDER_H
#define QRL_TESTS_ASSERTIONRECORDER_H

#include "lib/utils/Assert.h"

#include <string>
#include <vector>

/// Collects every failed assertion of its lifetime as "TEXT, FILE", in order, and keeps them off standard error.
/// One at a time.
class AssertionRecorder {
public:
    AssertionRecorder() : m_Before(base::SetAssertReceiver(&Record)) { Reports().clear(); }
    ~AssertionRecorder() { base::SetAssertReceiver(m_Before); }
    AssertionRecorder(const AssertionRecorder&) = delete;
    AssertionRecorder& operator=(const AssertionRecorder&) = delete;
    AssertionRecorder(AssertionRecorder&&) = delete;
    AssertionRecorder& operator=(AssertionRecorder&&) = delete;

    /// The failures since construction or the last call, which empties the list.
    static std::vector<std::string> Take() {
        std::vector<std::string> taken;
        taken.swap(Reports());
        return taken;
    }

private:
    static std::vector<std::string>& Reports() {
        static std::vector<std::string> reports;
        return reports;
    }
    static void Record(const base::AssertFailure& failure) {
        Reports().push_back(std::string(failure.m_Expression) + ", " + failure.m_File);
    }

    base::AssertReceiver m_Before;
};

#endif
