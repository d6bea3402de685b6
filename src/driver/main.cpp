#include "blocks/OutputFile.h"
#include "driver/CommandLine.h"

#include <csignal>
#include <cstdlib>
#include <new>
#include <string_view>
#include <unistd.h>

namespace {

/// Ends the run where memory has run out. An old output stays as it was: whoever threw from here could be taken for a
/// fault of the board, and a part of the board would be written in place of the whole.
[[noreturn]] void EndWithoutMemory() {
    // A stream might ask for memory.
    constexpr std::string_view k_Line = "zuken2qrl: Cannot allocate memory\n";
    [[maybe_unused]] const ssize_t written = write(STDERR_FILENO, k_Line.data(), k_Line.size());
    io::OutputFile::DiscardAll();
    std::abort();
}

} // namespace

int main(int argc, char** argv) {
    // A reader that goes away and a limit on the size of files are failures of a write like any other.
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    std::set_new_handler(EndWithoutMemory);
    return RunCommandLine(argc, argv);
}
