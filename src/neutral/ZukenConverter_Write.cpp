#include "blocks/CToken_ostream.h"
#include "neutral/Keywords.h"
#include "neutral/ZukenConverter.h"

bool ZukenConverter::Write(ZukenPCBParser& parser) {
    io::CToken_ostream stream(outName, io::CToken_ostream::k_Text);
    io::CBlock root(keyword::k_QuorelNeutralFile);
    WriteHeader(parser, root);
    Layers layers;
    parser.GetConductiveLayers(layers);
    WriteLayoutData(layers, root);
    stream << root;
    stream.Close();
    return false;
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

/// Large blocks go into their parents by reference: a copy would cost the memory of the whole layout once more.
void ZukenConverter::WriteLayoutData(const Layers& layers, io::CBlock& root) {
    io::CBlockPtr layoutData(keyword::k_LayoutData);
    io::CBlockPtr layoutCell(keyword::k_LayoutCell);
    WriteLayoutCell(layers, *layoutCell);
    *layoutData << layoutCell;
    io::CBlock design(keyword::k_Design);
    WriteDesign(layers, design);
    *layoutData << design;
    root << layoutData;
}

void ZukenConverter::WriteLayoutCell(const Layers& layers, io::CBlock& layoutCell) {
    io::CBlockPtr layout(keyword::k_Layout);
    WriteLayers(layers, *layout);
    layoutCell << layout;
}

void ZukenConverter::WriteDesign(const Layers& layers, io::CBlock& design) {
    design << io::CBlock_named_value(keyword::k_Name, "ZukenBoard");
    io::CBlock topLayout(keyword::k_TopLayout);
    WriteLayers(layers, topLayout);
    design << topLayout;
}
