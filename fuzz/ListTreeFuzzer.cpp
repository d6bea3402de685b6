#include "fuzz/FuzzTarget.h"
#include "fuzz/MemoryBoard.h"

#include "blocks/FuncRange.h"
#include "blocks/TextStreams.h"

/// Any text becomes a tree, which is walked, copied and written. What is done to copies of its parts leaves it alone.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    BeQuiet();
    const io::CBlock tree = ReadLists(TextOfInput(data, size));
    io::TextOstream text;
    tree.write(text);
    io::CBlock changed = tree;
    for (io::CBlock_func& func : tree.Funcs())
        for (io::CBlock_func& child : func.Funcs()) {
            io::CBlock_func copy = child;
            int number = 0;
            copy >> number;
            copy << number;
            changed << copy;
        }
    io::TextOstream again;
    tree.write(again);
    Require(again.GetText() == text.GetText(), "the change of a copy doesn't reach the tree");
    changed.write(again);
    return 0;
}
