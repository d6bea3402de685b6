#ifndef QRL_NEUTRAL_ZUKENCONVERTER_H
#define QRL_NEUTRAL_ZUKENCONVERTER_H

#include "blocks/CBlock.h"
#include "blocks/LongFileName.h"
#include "model/ZukenPCBParser.h"

#include <cstddef>
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
    /// Puts the text of that file on a stream.
    void WriteText(ZukenPCBParser& parser, io::CAbstract_ostream& stream);

    using Pads = std::vector<BasePad*>;
    using Padstacks = std::vector<Padstack*>;
    using Footprints = std::vector<Footprint*>;
    using Components = std::vector<Component*>;
    using Nets = std::vector<Net*>;
    using Layers = std::vector<Layer*>;

    // The sections. Each appends one block to the one that it is given. What it returns, nobody looks at: always true
    // unless it says otherwise.

    static void WriteHeader(const ZukenPCBParser& parser, io::CBlock& root);
    /// Gives nets without a name the one that stands for no net.
    static void NameNamelessNets(const Nets& nets);
    void WriteLayoutData(const Components& components, const Nets& nets, const Layers& layers, io::CBlock& root);
    static void WriteDesign(const Layers& layers, io::CBlock& design);

    // ZukenConverter_Pads.cpp

    /// The shapes of all pads, the pad of no copper first.
    static bool WritePadShapes(const Pads& pads, io::CBlock& root);

    // ZukenConverter_Padstacks.cpp

    /// For each padstack its drill and its pads on each of `layers`.
    static bool WritePadstacks(const Padstacks& padstacks, const Layers& layers, io::CBlock& root);

    // ZukenConverter_Footprints.cpp

    static bool WriteFootprints(const Footprints& footprints, io::CBlock& root);
    static bool WriteFootprint(const Footprint& footprint, io::CBlock& block);

    // ZukenConverter_Components.cpp

    static bool WriteComponents(const Components& components, io::CBlock& root);
    /// False, with nothing written, for a component without a footprint.
    static bool WriteComponentDef(const Component& component, io::CBlock& block);

    // ZukenConverter_LayoutCell.cpp: the netlist and the board

    /// Appends the netlist and the layout.
    bool WriteLayoutCell(const Components& components, const Nets& nets, const Layers& layers, io::CBlock& layoutCell);
    static void WriteNetlist(const Components& components, const Nets& nets, io::CBlock& layoutCell);
    static bool WriteLayoutComponents(const Components& components, io::CBlock& layout);

    // ZukenConverter_Layers.cpp: the stackup

    /// Each layer, and a dielectric between each two.
    static bool WriteLayers(const Layers& layers, io::CBlock& parent);
    /// The place of the first layer that isn't a bond wire layer, which is the top one; 0 when there is none.
    static size_t FindTop(const Layers& layers);

    // ZukenConverter_LayoutNets.cpp: the copper of the nets

    void WriteLayoutNets(const Nets& nets, io::CBlock& parent);
    /// The name, then vias, then surfaces, then traces: the order of the ids.
    void WriteLayoutNet(const Net& net, io::CBlock& block);
    void WriteLayoutNetItem(const Net& net, size_t index, io::CBlock& block);
    /// Nothing for a via without a padstack.
    void WriteVia(const Via& via, io::CBlock& block);

    // ZukenConverter_Graphics.cpp: surfaces and traces

    void WriteSurfaceGraphics(const Surface& surface, io::CBlock& block);
    void WriteSurfaceWithVoids(const Surface& surface, io::CBlock& block);
    void WriteTraceGraphics(const Trace& trace, io::CBlock& block);

private:
    int32_t TakeId() { return nextId++; }

    LongFileName ftfName;
    LongFileName pcfName;
    LongFileName txtName;
    LongFileName outName;
    int32_t nextId = 1; ///< the id of the next via, path, circle or polygon
};

#endif
