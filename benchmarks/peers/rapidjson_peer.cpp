// Reads the same lists as nested arrays with RapidJSON, from Debian's rapidjson-dev.

#include <cstdio>
#include <fstream>
#include <rapidjson/document.h>
#include <string>

int main(int argc, char** argv) {
    if (argc != 2)
        return 2;
    std::ifstream file(argv[1], std::ios::binary);
    std::string text(std::istreambuf_iterator<char>(file), {});
    rapidjson::Document document;
    document.ParseInsitu(text.data());
    std::printf("%u\n", document.HasParseError() ? 0 : document.Size());
    return document.HasParseError() ? 1 : 0;
}
