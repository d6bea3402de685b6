// make_board MEGABYTES PREFIX [SEED [LINES_PER_NET]]: writes PREFIX.pcf, PREFIX.ftf and PREFIX.txt.

#include "benchmarks/BoardGenerator.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>

namespace {

template <class Write>
void WriteFile(const std::string& name, const Write& write) {
    std::ofstream file(name, std::ios::binary);
    write([&file](std::string_view text) { file.write(text.data(), static_cast<std::streamsize>(text.size())); });
    file.close();
    if (!file) {
        std::perror(name.c_str());
        std::exit(1);
    }
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::cerr << "usage: make_board MEGABYTES PREFIX [SEED [LINES_PER_NET]]\n";
        return 2;
    }
    BoardGenerator::Settings settings;
    settings.m_Megabytes = std::strtod(argv[1], nullptr);
    if (argc > 3)
        settings.m_Seed = std::strtoull(argv[3], nullptr, 10);
    if (argc > 4)
        settings.m_LinesPerNet = std::strtoull(argv[4], nullptr, 10);
    BoardGenerator generator(settings);
    const std::string prefix = argv[2];
    WriteFile(prefix + ".pcf", [&](const auto& sink) { generator.WriteBoardFile(sink); });
    WriteFile(prefix + ".ftf", [&](const auto& sink) { generator.WriteFootprintFile(sink); });
    WriteFile(prefix + ".txt", [&](const auto& sink) { generator.WriteSideFile(sink); });
    std::cout << generator.GetComponentCount() << " components, " << generator.GetNetCount() << " nets, "
              << generator.GetLineCount() << " lines, " << generator.GetViaCount() << " vias, "
              << generator.GetSurfaceCount() + 1 << " surfaces\n";
    return 0;
}
