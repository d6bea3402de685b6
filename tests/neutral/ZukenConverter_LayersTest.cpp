#include "tests/neutral/WrittenBoard.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Types = std::vector<uint32_t>;

/// The block of a stackup whose layers are numbered from 1 and have these types, top to bottom.
std::string WrittenStackup(const Types& types) {
    BoardOf board(BoardWithLayers(static_cast<int>(types.size())));
    const std::vector<Layer*> layers = LayersOf(board);
    for (size_t i = 0; i < types.size(); ++i)
        layers[i]->type = types[i];
    const std::vector<std::string> blocks = BlocksOf(WrittenText(board), "Layers");
    EXPECT_EQ(blocks.size(), 2U);
    return blocks.empty() ? std::string() : blocks.front();
}

struct StackupRow {
    const char* m_Name;
    Types m_Types;
    const char* m_Text;
};

// clang-format off
const StackupRow k_Stackups[] = {
    {"no layer", {},
        "Layers {\n"
        "}\n"},
    {"one layer is the top only", {0},
        "Layers {\n"
        "\tStackupLayer(\"Conductive_1\", \"Signal\", \"Top\", 0.2, \"Copper\")\n"
        "}\n"},
    {"two layers with a dielectric between", {0, 0},
        "Layers {\n"
        "\tStackupLayer(\"Conductive_1\", \"Signal\", \"Top\", 0.2, \"Copper\")\n"
        "\tStackupLayer(\"Dielectric_1\", \"Dielectric\", \"Neither\", 1.0, \"FR4\")\n"
        "\tStackupLayer(\"Conductive_2\", \"Signal\", \"Bottom\", 0.2, \"Copper\")\n"
        "}\n"},
    {"planes within", {0, 1, 1, 0},
        "Layers {\n"
        "\tStackupLayer(\"Conductive_1\", \"Signal\", \"Top\", 0.2, \"Copper\")\n"
        "\tStackupLayer(\"Dielectric_1\", \"Dielectric\", \"Neither\", 1.0, \"FR4\")\n"
        "\tStackupLayer(\"Conductive_2\", \"MetalizedSignal\", \"Neither\", 0.2, \"Copper\")\n"
        "\tStackupLayer(\"Dielectric_2\", \"Dielectric\", \"Neither\", 1.0, \"FR4\")\n"
        "\tStackupLayer(\"Conductive_3\", \"MetalizedSignal\", \"Neither\", 0.2, \"Copper\")\n"
        "\tStackupLayer(\"Dielectric_3\", \"Dielectric\", \"Neither\", 1.0, \"FR4\")\n"
        "\tStackupLayer(\"Conductive_4\", \"Signal\", \"Bottom\", 0.2, \"Copper\")\n"
        "}\n"},
    {"planes outside", {1, 0, 1},
        "Layers {\n"
        "\tStackupLayer(\"Conductive_1\", \"MetalizedSignal\", \"Top\", 0.2, \"Copper\")\n"
        "\tStackupLayer(\"Dielectric_1\", \"Dielectric\", \"Neither\", 1.0, \"FR4\")\n"
        "\tStackupLayer(\"Conductive_2\", \"Signal\", \"Neither\", 0.2, \"Copper\")\n"
        "\tStackupLayer(\"Dielectric_2\", \"Dielectric\", \"Neither\", 1.0, \"FR4\")\n"
        "\tStackupLayer(\"Conductive_3\", \"MetalizedSignal\", \"Bottom\", 0.2, \"Copper\")\n"
        "}\n"},
    {"a bond wire layer ahead of the top", {2, 0, 0},
        "Layers {\n"
        "\tStackupLayer(\"Conductive_1\", \"wirebond\", \"Neither\", 0.2, \"Copper\")\n"
        "\tStackupLayer(\"Dielectric_1\", \"Dielectric\", \"Neither\", 1.0, \"FR4\")\n"
        "\tStackupLayer(\"Conductive_2\", \"Signal\", \"Top\", 0.2, \"Copper\")\n"
        "\tStackupLayer(\"Dielectric_2\", \"Dielectric\", \"Neither\", 1.0, \"FR4\")\n"
        "\tStackupLayer(\"Conductive_3\", \"Signal\", \"Bottom\", 0.2, \"Copper\")\n"
        "}\n"},
    {"a plane behind bond wire layers is the top", {2, 2, 1},
        "Layers {\n"
        "\tStackupLayer(\"Conductive_1\", \"wirebond\", \"Neither\", 0.2, \"Copper\")\n"
        "\tStackupLayer(\"Dielectric_1\", \"Dielectric\", \"Neither\", 1.0, \"FR4\")\n"
        "\tStackupLayer(\"Conductive_2\", \"wirebond\", \"Neither\", 0.2, \"Copper\")\n"
        "\tStackupLayer(\"Dielectric_2\", \"Dielectric\", \"Neither\", 1.0, \"FR4\")\n"
        "\tStackupLayer(\"Conductive_3\", \"MetalizedSignal\", \"Top\", 0.2, \"Copper\")\n"
        "}\n"},
    {"a bond wire layer is the bottom when it is last", {0, 2},
        "Layers {\n"
        "\tStackupLayer(\"Conductive_1\", \"Signal\", \"Top\", 0.2, \"Copper\")\n"
        "\tStackupLayer(\"Dielectric_1\", \"Dielectric\", \"Neither\", 1.0, \"FR4\")\n"
        "\tStackupLayer(\"Conductive_2\", \"wirebond\", \"Bottom\", 0.2, \"Copper\")\n"
        "}\n"},
    {"bond wire layers alone have the first for a top", {2, 2, 2},
        "Layers {\n"
        "\tStackupLayer(\"Conductive_1\", \"wirebond\", \"Top\", 0.2, \"Copper\")\n"
        "\tStackupLayer(\"Dielectric_1\", \"Dielectric\", \"Neither\", 1.0, \"FR4\")\n"
        "\tStackupLayer(\"Conductive_2\", \"wirebond\", \"Neither\", 0.2, \"Copper\")\n"
        "\tStackupLayer(\"Dielectric_2\", \"Dielectric\", \"Neither\", 1.0, \"FR4\")\n"
        "\tStackupLayer(\"Conductive_3\", \"wirebond\", \"Bottom\", 0.2, \"Copper\")\n"
        "}\n"},
    {"a type without a word leaves it out and is no top", {7, 0},
        "Layers {\n"
        "\tStackupLayer(\"Conductive_1\", \"Neither\", 0.2, \"Copper\")\n"
        "\tStackupLayer(\"Dielectric_1\", \"Dielectric\", \"Neither\", 1.0, \"FR4\")\n"
        "\tStackupLayer(\"Conductive_2\", \"Signal\", \"Top\", 0.2, \"Copper\")\n"
        "}\n"},
    {"one layer without a word", {3},
        "Layers {\n"
        "\tStackupLayer(\"Conductive_1\", \"Top\", 0.2, \"Copper\")\n"
        "}\n"},
};
// clang-format on

TEST(ZukenConverter_LayersTest, EveryStackupIsWrittenWhole) {
    for (const StackupRow& row : k_Stackups)
        EXPECT_EQ(WrittenStackup(row.m_Types), row.m_Text) << row.m_Name;
}

TEST(ZukenConverter_LayersTest, BothBlocksOfAFileAreEqualAndNumberTheirDielectricsFromOne) {
    for (const int count : {0, 1, 2, 3, 12}) {
        BoardOf board(BoardWithLayers(count));
        const std::vector<std::string> blocks = BlocksOf(WrittenText(board), "Layers");
        ASSERT_EQ(blocks.size(), 2U) << count;
        EXPECT_EQ(blocks[0], blocks[1]) << count;
        EXPECT_EQ(blocks[0].find("\"Dielectric_1\"") != std::string::npos, count > 1) << count;
    }
}

TEST(ZukenConverter_LayersTest, ThereIsOneDielectricLessThanLayers) {
    const int count = 30;
    BoardOf board(BoardWithLayers(count));
    const std::string block = BlocksOf(WrittenText(board), "Layers").front();
    for (int number = 1; number < count; ++number)
        EXPECT_NE(block.find("(\"Dielectric_" + std::to_string(number) + "\", "), std::string::npos) << number;
    EXPECT_EQ(block.find("Dielectric_30"), std::string::npos);
    EXPECT_EQ(block.find("Dielectric_0"), std::string::npos);
}

TEST(ZukenConverter_LayersTest, ThicknessesAreTheSameInEveryUnit) {
    for (const char* unit : {"DBUNIT", "MM", "MIL", "INCH"}) {
        BoardOf board("(pcf (header (unit " + std::string(unit) + "))" + BoardWithLayers(2).substr(6));
        const std::string text = WrittenText(board);
        EXPECT_NE(text.find("\"Top\", 0.2, \"Copper\")"), std::string::npos) << unit;
        EXPECT_NE(text.find("\"Neither\", 1.0, \"FR4\")"), std::string::npos) << unit;
    }
}

} // namespace
