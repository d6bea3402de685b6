#include "driver/CommandLine.h"

#include <csignal>

int main(int argc, char** argv) {
    // A reader that goes away and a limit on the size of files are failures of a write like any other.
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    return RunCommandLine(argc, argv);
}
