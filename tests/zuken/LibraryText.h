#ifndef QRL_TESTS_ZUKEN_LIBRARYTEXT_H
#define QRL_TESTS_ZUKEN_LIBRARYTEXT_H

#include "tests/BoardText.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// The sections of a footprint file, as text.
struct LibraryText {
    std::string m_Pads = "";
    std::string m_Padstacks = "";
    std::string m_Footprints = "";
};

/// A footprint file in millimetres with the conductive layers TOP and BOT, numbers 1 and 2, and a MASK between them.
inline std::string TextOf(const LibraryText& library) {
    return "(ftf lib (header (unit MM)) (technologyContainer (technology tech (footprintLayer"
           " (layer TOP (type CONDUCTIVE)) (layer MASK (type RESIST)) (layer BOT (type CONDUCTIVE)))))"
           " (footprintContainer (pads " +
           library.m_Pads + ") (padstacks " + library.m_Padstacks + ") (footprints " + library.m_Footprints + ")))";
}

/// What has been read of a footprint file with this text, and of no board file yet.
inline std::unique_ptr<ZukenPCBParser> ParseLibrary(std::string_view ftfText) {
    auto parser = std::make_unique<ZukenPCBParser>(ReadListText(ftfText), io::CBlock());
    EXPECT_TRUE(parser->ParseFootprintFile());
    return parser;
}

inline std::vector<BasePad*> PadsOf(const ZukenPCBParser& parser) {
    std::vector<BasePad*> pads;
    parser.GetPads(pads);
    return pads;
}

inline std::vector<Padstack*> PadstacksOf(const ZukenPCBParser& parser) {
    std::vector<Padstack*> padstacks;
    parser.GetPadstacks(padstacks);
    return padstacks;
}

inline std::vector<Footprint*> FootprintsOf(const ZukenPCBParser& parser) {
    std::vector<Footprint*> footprints;
    parser.GetFootprints(footprints);
    return footprints;
}

/// The names of records, narrow, in order.
template <class Record>
std::vector<std::string> NamesOf_T(const std::vector<Record*>& records) {
    std::vector<std::string> names;
    for (const Record* record : records)
        names.push_back(record->GetName().QRL_ANSI());
    return names;
}

#endif
