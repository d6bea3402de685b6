#include "fuzz/FuzzTarget.h"

#include "lib/utils/Assert.h"

#include <cstdio>
#include <cstdlib>
#include <iostream>

void BeQuiet() {
    base::SetAssertReceiver([](const base::AssertFailure&) {});
    std::cout.rdbuf(nullptr);
}

void Require(bool condition, const char* what) {
    if (condition)
        return;
    std::fprintf(stderr, "What should hold doesn't: %s\n", what);
    std::abort();
}
