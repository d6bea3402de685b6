// rewrite_neutral_file: reads a neutral file from standard input and writes it to standard output.

#include "blocks/CBlock.h"
#include "blocks/TextStreams.h"

#include <iostream>
#include <iterator>
#include <string>

int main() {
    const std::string text(std::istreambuf_iterator<char>(std::cin), {});
    io::TextIstream input(text);
    io::CBlock root;
    if (!root.read(input) || !input.GetRest().empty()) {
        std::cerr << "not a neutral file\n";
        return 1;
    }
    io::TextOstream output;
    root.write(output);
    std::cout << output.GetText();
    return 0;
}
