#include "fuzz/FuzzTarget.h"
#include "fuzz/MemoryBoard.h"

#include "model/ZukenPCBParser.h"

/// Any footprint file gives records that can be looked up.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    BeQuiet();
    ZukenPCBParser parser(ReadLists(TextOfInput(data, size)), io::CBlock("board"));
    parser.ParseFootprintFile();
    std::vector<Padstack*> padstacks;
    parser.GetPadstacks(padstacks);
    for (const Padstack* padstack : padstacks)
        Require(parser.FindPadstack(padstack->name) != nullptr, "a padstack is found by its name");
    std::vector<Footprint*> footprints;
    parser.GetFootprints(footprints);
    for (const Footprint* footprint : footprints)
        Require(parser.FindFootprint(footprint->name) != nullptr, "a footprint is found by its name");
    return 0;
}
