#include "fuzz/FuzzTarget.h"
#include "fuzz/MemoryBoard.h"

/// A whole board becomes a whole neutral file, the same one each time.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    BeQuiet();
    const MemoryBoard board(TextOfInput(data, size));
    const std::string output = board.Translate();
    Require(IsNeutralText(output), "the output is read strictly and written back to the same bytes");
    Require(AreIdsInOrder(output), "ids count from 1");
    Require(board.Translate() == output, "the same board gives the same output");
    return 0;
}
