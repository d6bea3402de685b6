// Takes the place of the fuzzer where the corpus is replayed: fuzz_TARGET FOLDER calls the target with each file of the
// folder, in the order of their names. A find ends the program, and the last name on standard error is the file's.

#include "fuzz/FuzzTarget.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "Usage: fuzz_TARGET FOLDER\n";
        return 2;
    }
    std::vector<std::filesystem::path> paths;
    for (const auto& entry : std::filesystem::directory_iterator(argv[1]))
        paths.push_back(entry.path());
    std::sort(paths.begin(), paths.end());
    for (const std::filesystem::path& path : paths) {
        std::cerr << path.filename().string() << std::endl;
        std::ifstream file(path, std::ios::binary);
        const std::string input{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
        LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(input.data()), input.size());
    }
    return paths.empty() ? 1 : 0;
}
