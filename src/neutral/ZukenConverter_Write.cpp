#include "blocks/CToken_ostream.h"
#include "neutral/Keywords.h"
#include "neutral/ZukenConverter.h"

bool ZukenConverter::Write(ZukenPCBParser& parser) {
    io::CToken_ostream stream(outName, io::CToken_ostream::k_Text);
    WriteText(parser, stream);
    stream.Close();
    return false;
}

/// The items of the large sections are made while they are written, in the order of the file.
void ZukenConverter::WriteText(ZukenPCBParser& parser, io::CAbstract_ostream& stream) {
    io::CBlock root(keyword::k_QuorelNeutralFile);
    WriteHeader(parser, root);
    Pads pads;
    parser.GetPads(pads);
    WritePadShapes(pads, root);
    Layers layers;
    parser.GetConductiveLayers(layers);
    Padstacks padstacks;
    parser.GetPadstacks(padstacks);
    WritePadstacks(padstacks, layers, root);
    Footprints footprints;
    parser.GetFootprints(footprints);
    WriteFootprints(footprints, root);
    Components components;
    parser.GetComponents(components);
    Nets nets;
    parser.GetNets(nets);
    WriteComponents(components, root);
    NameNamelessNets(nets);
    WriteLayoutData(components, nets, layers, root);
    root.write(stream);
}

void ZukenConverter::WriteHeader(const ZukenPCBParser& parser, io::CBlock& root) {
    constexpr int k_Major = 4;
    constexpr int k_Minor = 0;
    io::CBlock_func version(keyword::k_Version);
    version << k_Major << k_Minor;
    root << version;
    io::CBlock_func source(keyword::k_Source);
    source << "Zuken"
           << ""
           << "";
    root << source;
    root << io::CBlock_named_value(keyword::k_DefaultUnits, parser.GetUnitName());
}

void ZukenConverter::NameNamelessNets(const Nets& nets) {
    for (Net* net : nets)
        if (net->name.empty())
            net->name = Net::k_NoNet;
}

void ZukenConverter::WriteLayoutData(
    const Components& components, const Nets& nets, const Layers& layers, io::CBlock& root) {
    io::CBlockPtr layoutData(keyword::k_LayoutData);
    io::CBlockPtr layoutCell(keyword::k_LayoutCell);
    WriteLayoutCell(components, nets, layers, *layoutCell);
    *layoutData << layoutCell;
    io::CBlock design(keyword::k_Design);
    WriteDesign(layers, design);
    *layoutData << design;
    root << layoutData;
}

void ZukenConverter::WriteDesign(const Layers& layers, io::CBlock& design) {
    design << io::CBlock_named_value(keyword::k_Name, "ZukenBoard");
    io::CBlock topLayout(keyword::k_TopLayout);
    WriteLayers(layers, topLayout);
    design << topLayout;
}
