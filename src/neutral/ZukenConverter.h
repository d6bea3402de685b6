#ifndef QRL_NEUTRAL_ZUKENCONVERTER_H
#define QRL_NEUTRAL_ZUKENCONVERTER_H

#include "blocks/CBlock.h"
#include "blocks/LongFileName.h"
#include "model/ZukenPCBParser.h"

#include <cstdint>
#include <vector>

/// One conversion: two input files and perhaps a side file become one neutral file. For one board and one run.
class ZukenConverter {
public:
    /// The names of the footprint file, the board file, the side file (which may be missing) and the output.
    ZukenConverter(LongFileName ftf, LongFileName pcf, LongFileName txt, LongFileName out)
        : ftfName(std::move(ftf)), pcfName(std::move(pcf)), txtName(std::move(txt)), outName(std::move(out)) {}

    // driver/ZukenConverter.cpp

    /// Reads, parses and writes. False when one of the two input files doesn't exist; nothing is written then.
    bool Run();
    /// Reads a file of nested lists into `block`. False when it can't be opened; `block` is then unchanged. Text that
    /// can't be read is told on standard output, and what was complete before it is kept.
    static bool ReadFile(const LongFileName& fileName, io::CBlock& block);

    // ZukenConverter_Write.cpp: the frame of the output

    /// Writes the neutral file of the board. Always false.
    bool Write(ZukenPCBParser& parser);

private:
    using Layers = std::vector<Layer*>;

    static void WriteHeader(const ZukenPCBParser& parser, io::CBlock& root);
    static void WriteLayoutData(const Layers& layers, io::CBlock& root);
    static void WriteLayoutCell(const Layers& layers, io::CBlock& layoutCell);
    static void WriteDesign(const Layers& layers, io::CBlock& design);

    // ZukenConverter_Layers.cpp: the stackup

    /// Appends the block of the stackup to `parent`: each layer, and a dielectric between each two. Always true.
    static bool WriteLayers(const Layers& layers, io::CBlock& parent);

    LongFileName ftfName;
    LongFileName pcfName;
    LongFileName txtName;
    LongFileName outName;
    int32_t nextId = 1; ///< the id of the next via, path, circle or polygon
};

#endif
