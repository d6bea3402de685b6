// read_tree FILE: reads a file of nested lists into a tree, in a process of its own.

#include "neutral/ZukenConverter.h"

#include <cstdio>

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: read_tree FILE\n", stderr);
        return 2;
    }
    io::CBlock block("data");
    return ZukenConverter::ReadFile(LongFileName(AString(argv[1])), block) ? 0 : 1;
}
