#include "neutral/Keywords.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string_view>

namespace {

// clang-format off
constexpr std::string_view k_Vocabulary[] = {
    // Pads and thermals
    "FIDUCIAL", "QRELSMALLPAD", "4_WEB_SQUARE_THERMAL_90", "4_WEB_SQUARE_THERMAL_45", "4_WEB_ROUND_THERMAL_90",
    "4_WEB_ROUND_THERMAL_45", "NonConnect", "Square", "Sq90", "Sq45", "Rnd90", "Rnd45", "Oblong", "Bullet",
    "PIN_SMD", "PIN_THROUGH", "MOUNTING_HOLE", "PadStacks", "FpPindef", "Pin", "Cut",
    // Layers
    "neither", "SolderMask", "SolderPaste", "SilkScreen", "Assembly", "Placement", "ASSEMBLY_TOP", "ASSEMBLY_BOTTOM",
    "SOLDERPASTE_TOP", "SOLDERPASTE_BOTTOM", "SOLDERMASK_TOP", "SOLDERMASK_BOTTOM", "SILKSCREEN_TOP",
    "SILKSCREEN_BOTTOM", "PLACEMENT_TOP", "PLACEMENT_BOTTOM", "OPP_SIDE", "Materials", "copper", "POSITIVE", "Power",
    // Texts and properties
    "Text", "Right", "Left", "Center", "Parasitic_Resistance", "Parasitic_Capacitance", "Parasitic_Inductance",
    "PhysicalDimensions", "Unknown", "User", "Date", "mm",
    // The design
    "Symbols", "Board", "Trace", "Compinst", "SchematicData", "CellName", "Template", "LayoutPorts", "_XMirrored",
    "Instances", "FpGraphics",
};
// clang-format on

TEST(KeywordsTest, EveryReservedWordIsInTheTable) {
    for (const std::string_view word : k_Vocabulary)
        EXPECT_EQ(std::count(keyword::k_Reserved.begin(), keyword::k_Reserved.end(), word), 1) << word;
    EXPECT_EQ(keyword::k_Reserved.size(), 65U);
    EXPECT_EQ(std::size(k_Vocabulary), 65U);
}

TEST(KeywordsTest, NoWordThatIsWrittenIsReserved) {
    const std::set<std::string_view> reserved(keyword::k_Reserved.begin(), keyword::k_Reserved.end());
    for (const std::string_view word :
        {keyword::k_QuorelNeutralFile, keyword::k_Version, keyword::k_Source, keyword::k_DefaultUnits,
            keyword::k_LayoutData, keyword::k_LayoutCell, keyword::k_Netlist, keyword::k_Layout, keyword::k_Design,
            keyword::k_TopLayout, keyword::k_Name, keyword::k_Layers, keyword::k_StackupLayer, keyword::k_Signal,
            keyword::k_MetalizedSignal, keyword::k_Bondwire, keyword::k_Dielectric, keyword::k_Top, keyword::k_Bottom,
            keyword::k_Neither, keyword::k_Copper, keyword::k_FR4})
        EXPECT_FALSE(reserved.contains(word)) << word;
}

} // namespace
