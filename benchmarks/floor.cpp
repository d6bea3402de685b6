// floor STEP BOARD OUTPUT: the least that a part of a translation can cost, as plain loops, in a process of its own.
//
//   read       the file into fresh memory
//   tokens     the same, and its tokens counted
//   numbers    the same, and its whole numbers decoded
//   composite  the same, every number printed once as millimetres, and twice the bytes of the file written

#include "benchmarks/Floors.h"
#include "lib/utils/LargeMemory.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace {

[[noreturn]] void Fail(const char* what) {
    std::perror(what);
    std::exit(1);
}

/// The text of a file, in huge pages where there are any, for the rest of the process.
std::string_view ReadFile(const char* name) {
    const int file = open(name, O_RDONLY | O_CLOEXEC);
    struct stat status = {};
    if (file < 0 || fstat(file, &status) != 0)
        Fail(name);
    const auto size = static_cast<size_t>(status.st_size);
    auto* text = static_cast<char*>(base::AllocateLarge(size + 1));
    size_t done = 0;
    while (done < size) {
        const ssize_t count = read(file, text + done, size - done);
        if (count <= 0)
            Fail(name);
        done += static_cast<size_t>(count);
    }
    close(file);
    return {text, size};
}

void WriteFile(const char* name, size_t size) {
    static char piece[size_t{256} * 1024];
    std::memset(piece, 'x', sizeof piece);
    const int file = open(name, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    if (file < 0)
        Fail(name);
    for (size_t done = 0; done < size; done += sizeof piece)
        if (write(file, piece, sizeof piece) != static_cast<ssize_t>(sizeof piece))
            Fail(name);
    close(file);
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 4) {
        std::fputs("usage: floor read|tokens|numbers|composite BOARD OUTPUT\n", stderr);
        return 2;
    }
    const std::string step = argv[1];
    const std::string_view text = ReadFile(argv[2]);
    size_t result = text.size();
    if (step == "tokens")
        result = CountTokens(text);
    else if (step == "numbers")
        result = DecodeNumbers(text);
    else if (step == "composite")
        result = PrintMillimetres(text);
    if (step == "composite")
        WriteFile(argv[3], 2 * text.size());
    std::printf("%zu\n", result);
    return 0;
}
