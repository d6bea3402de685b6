#include "fuzz/FuzzTarget.h"
#include "fuzz/MemoryBoard.h"

/// Any side file amends a board of three components, whose output stays whole.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    BeQuiet();
    std::string board =
        "(pcf b (boardContainer (components (component (reference R1) (footprint F)) (component (reference U2) (part "
        "P)) "
        "(component (reference A_1)))))\n====\n(ftf l (footprintContainer (footprints (footprint F))))\n====\n";
    board += TextOfInput(data, size);
    const std::string output = MemoryBoard(board).Translate();
    Require(IsNeutralText(output), "the output is read strictly and written back to the same bytes");
    return 0;
}
