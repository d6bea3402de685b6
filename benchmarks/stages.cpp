// stages BOARD: CPU milliseconds of each stage of a translation, in a process of its own: reading both files into
// trees, making the model, writing the text to nowhere.

#include "blocks/CAbstract_ostream.h"
#include "neutral/ZukenConverter.h"

#include <cstdio>
#include <ctime>
#include <string>

namespace {

/// Drops what is written.
class NoStream : public io::CAbstract_ostream {
public:
    void Put(std::string_view /*text*/) override {}
};

double GetMilliseconds() {
    constexpr double k_PerSecond = 1e3;
    return static_cast<double>(std::clock()) * k_PerSecond / CLOCKS_PER_SEC;
}

LongFileName NameOf(const std::string& board, const char* extension) {
    return LongFileName(AString((board + extension).c_str()));
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: stages BOARD (without extension)\n", stderr);
        return 2;
    }
    const std::string board = argv[1];
    const double start = GetMilliseconds();
    io::CBlock fpData("fpData");
    io::CBlock pcbData("pcbData");
    ZukenConverter::ReadFile(NameOf(board, ".ftf"), fpData);
    ZukenConverter::ReadFile(NameOf(board, ".pcf"), pcbData);
    const double read = GetMilliseconds();
    ZukenPCBParser parser(fpData, pcbData);
    parser.Parse(NameOf(board, ".txt"));
    const double parsed = GetMilliseconds();
    NoStream stream;
    const LongFileName noFile;
    ZukenConverter(noFile, noFile, noFile, noFile).WriteText(parser, stream);
    const double written = GetMilliseconds();
    std::fprintf(stderr, "%.3f %.3f %.3f\n", read - start, parsed - read, written - parsed);
    return 0;
}
