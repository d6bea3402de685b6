#include "driver/CommandLine.h"

#include "neutral/ZukenConverter.h"

#include <iostream>

namespace {

constexpr char16_t k_Quote = u'"';

/// The name without the double quote that it begins with, and without the one that it ends with.
AString StripQuotes(AString name) {
    const auto allButOne = [&name] { return static_cast<ptrdiff_t>(name.size()) - 1; };
    if (!name.empty() && name[0] == k_Quote)
        name = name.Right(allButOne());
    if (!name.empty() && name[name.size() - 1] == k_Quote)
        name = name.Left(allButOne());
    return name;
}

LongFileName WithExtension(LongFileName name, const AString& extension) {
    name.ChangeExt(extension);
    return name;
}

void PrintMissing(const char* kind, const AString& name) {
    std::cout << kind << " file " << name.QRL_ANSI() << " does not exist" << std::endl;
}

} // namespace

int RunCommandLine(int argc, const char* const* argv) {
    if (argc < 2) {
        std::cout << " Please specify the Zuken .pcf file as a command line argument " << std::endl;
        return 0;
    }
    const AString argument = StripQuotes(AString(argv[1]));
    const LongFileName pcf(argument);
    if (!pcf.Exists()) {
        PrintMissing("PCF", argument);
        return 1;
    }
    const LongFileName ftf = WithExtension(pcf, ".ftf");
    if (!ftf.Exists()) {
        PrintMissing("FTF", ftf.FilePath());
        return 1;
    }
    const LongFileName txt = WithExtension(pcf, ".txt");
    if (!txt.Exists())
        PrintMissing("TXT", txt.FilePath());
    const LongFileName output = argc > 2 ? LongFileName(AString(argv[2])) : WithExtension(ftf, ".qrl");
    ZukenConverter(ftf, pcf, txt, output).Run();
    return 0;
}
