#include "model/ZukenPCBParser.h"
#include "tests/AssertionRecorder.h"
#include "tests/BoardText.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// A footprint file with the conductive layers PAD_A, of number 1, and PAD_B, of number 2.
constexpr char k_FootprintLayers[] = R"(
(ftf library
  (technologyContainer (technology std
    (footprintLayer (layer PAD_A (type CONDUCTIVE)) (layer PAD_B (type CONDUCTIVE))))))
)";

/// A board of `count` plain layers.
std::unique_ptr<ZukenPCBParser> BoardOfLayers(int count) {
    std::string layers;
    for (int number = 1; number <= count; ++number)
        layers += "(layerNumber " + std::to_string(number) + " (type POSI))";
    return ParseBoard("(pcf board (technologyContainer (technology tech (conductiveLayer " + layers + "))))");
}

} // namespace

TEST(ZukenPCBParserTest, FindComponentIgnoresCase) {
    const auto parser = ParseBoard("(pcf board (boardContainer (Components (Component (reference U1)))))");
    std::vector<Component*> components;
    ASSERT_EQ(parser->GetComponents(components), 1);
    EXPECT_EQ(parser->FindComponent("u1"), components[0]);
    EXPECT_EQ(parser->FindComponent("u2"), nullptr);
}

TEST(ZukenPCBParserTest, TheFirstOfTwoFootprintsOfOneNameAnswersForBoth) {
    const auto parser =
        ParseBoard("", "(ftf library (footprintContainer (footprints (footprint sot) (footprint SOT))))");
    std::vector<Footprint*> footprints;
    ASSERT_EQ(parser->GetFootprints(footprints), 2);
    EXPECT_EQ(footprints[0]->name, AString("sot"));
    EXPECT_EQ(footprints[1]->name, AString("SOT"));
    EXPECT_EQ(parser->FindFootprint("sot"), footprints[0]);
    EXPECT_EQ(parser->FindFootprint("SOT"), footprints[0]);
    EXPECT_EQ(parser->FindFootprint("Sot"), footprints[0]);
}

TEST(ZukenPCBParserTest, FindsFootprintLayersInAnyCase) {
    const auto parser = ParseBoard("", k_FootprintLayers);
    EXPECT_TRUE(parser->HasFootprintLayer("pad_b"));
    EXPECT_EQ(parser->GetFootprintLayerNumber("pad_b"), 2U);
    EXPECT_EQ(parser->FindFootprintLayer("pad_b")->name, AString("PAD_B"));
    EXPECT_FALSE(parser->HasFootprintLayer("PAD_C"));
    EXPECT_EQ(parser->GetFootprintLayerNumber("PAD_C"), 0xFFFFFFFFU);
    EXPECT_EQ(parser->FindFootprintLayer("PAD_C"), nullptr);
}

TEST(ZukenPCBParserTest, TheFirstFootprintLayerThatStandsForANumberWins) {
    const auto parser = ParseBoard("", k_FootprintLayers);
    FPLayer* first = parser->FindFootprintLayer("PAD_A");
    FPLayer* second = parser->FindFootprintLayer("PAD_B");
    EXPECT_EQ(parser->FindFootprintLayerByConductive(2), second);
    EXPECT_EQ(parser->FindFootprintLayerByConductive(7), nullptr);
    second->conductiveNumbers = {7};
    EXPECT_EQ(parser->FindFootprintLayerByConductive(7), second);
    first->conductiveNumbers = {2, 7}; // stands ahead of the layer whose own number is 2
    EXPECT_EQ(parser->FindFootprintLayerByConductive(7), first);
    EXPECT_EQ(parser->FindFootprintLayerByConductive(2), first);
}

TEST(ZukenPCBParserTest, FourLayersAreMirroredPairwise) {
    const auto parser = BoardOfLayers(4);
    EXPECT_EQ(parser->MirrorConductiveLayer(parser->FindConductiveLayer(1)), parser->FindConductiveLayer(4));
    EXPECT_EQ(parser->MirrorConductiveLayer(parser->FindConductiveLayer(2)), parser->FindConductiveLayer(3));
}

TEST(ZukenPCBParserTest, TheMiddleOfThreeLayersIsItsOwnMirror) {
    const auto parser = BoardOfLayers(3);
    Layer* middle = parser->FindConductiveLayer(2);
    ASSERT_NE(middle, nullptr);
    EXPECT_EQ(parser->MirrorConductiveLayer(middle), middle);
}

TEST(ZukenPCBParserTest, AnEmptyBoardAnswersWithNothing) {
    ZukenPCBParser parser{io::CBlock(), io::CBlock()};
    EXPECT_EQ(parser.GetTopConductiveLayer(), nullptr);
    EXPECT_EQ(parser.GetBottomConductiveLayer(), nullptr);
    EXPECT_EQ(parser.FindConductiveLayer(1), nullptr);
    EXPECT_TRUE(parser.GetConductiveLayerName(1).empty());
    EXPECT_EQ(parser.FindComponent("U1"), nullptr);
    EXPECT_EQ(parser.FindPadstack("U1"), nullptr);
    EXPECT_EQ(parser.FindFootprint("U1"), nullptr);
    EXPECT_EQ(parser.FindPad("U1"), nullptr);
    EXPECT_FALSE(parser.HasFootprintLayer("Top"));
    EXPECT_EQ(parser.FindFootprintLayer("Top"), nullptr);
    EXPECT_EQ(parser.GetFootprintLayerNumber("Top"), 0xFFFFFFFFU);
    EXPECT_EQ(parser.FindFootprintLayerByConductive(1), nullptr);
    EXPECT_TRUE(parser.GetUnitName().empty());
    EXPECT_EQ(parser.GetUnitScale(), 1.0);
}

TEST(ZukenPCBParserTest, AccessorsReplaceWhatWasThere) {
    const ZukenPCBParser parser{io::CBlock(), io::CBlock()};
    std::vector<Net*> nets(3);
    EXPECT_EQ(parser.GetNets(nets), 0);
    EXPECT_THAT(nets, IsEmpty());
    std::vector<Layer*> layers(3);
    EXPECT_EQ(parser.GetConductiveLayers(layers), 0);
    EXPECT_THAT(layers, IsEmpty());
}

TEST(ZukenPCBParserTest, GetNetIgnoresCaseAndKeepsTheFirstSpelling) {
    ZukenPCBParser parser{io::CBlock(), io::CBlock()};
    Net* net = parser.GetNet("gnd");
    EXPECT_EQ(parser.GetNet("GND"), net);
    EXPECT_EQ(net->name, AString("gnd"));
    std::vector<Net*> nets;
    EXPECT_EQ(parser.GetNets(nets), 1);
}

TEST(ZukenPCBParserTest, NetsAreInTheOrderOfTheirFirstMention) {
    ZukenPCBParser parser{io::CBlock(), io::CBlock()};
    Net* second = parser.GetNet("VCC");
    Net* first = parser.GetNet("GND");
    parser.GetNet("VCC");
    std::vector<Net*> nets;
    parser.GetNets(nets);
    EXPECT_THAT(nets, ElementsAre(second, first));
}

TEST(ZukenPCBParserTest, AnEmptyNetNameStandsForTheNetOfNoNet) {
    ZukenPCBParser parser{io::CBlock(), io::CBlock()};
    Net* net = parser.GetNet("");
    EXPECT_EQ(net->name, AString("ZUKEN_DUMMY"));
    EXPECT_EQ(parser.GetNet("zuken_dummy"), net);
}

TEST(ZukenPCBParserTest, APartNumberOfTheBoardWinsOverTheSideFile) {
    const std::filesystem::path path = std::filesystem::path(testing::TempDir()) / "PartNumberOfTheBoard.txt";
    std::ofstream(path) << "REF PART VALUE\nU1 SIDE-1 10k\nU2 SIDE-2 22k\n";
    const auto parser = ParseBoard("(pcf b (boardContainer (Components (Component (reference U1)) "
                                   "(Component (reference U2) (part OWN)))))");
    parser->ParseTextFile(LongFileName(AString(path.string())));
    std::filesystem::remove(path);
    EXPECT_EQ(parser->FindComponent("U1")->partNumber, AString("SIDE-1"));
    EXPECT_EQ(parser->FindComponent("U2")->partNumber, AString("OWN"));
}

TEST(ZukenPCBParserTest, KeepsItsInputWhenTheSourceIsGone) {
    io::CBlock footprints;
    std::unique_ptr<ZukenPCBParser> parser;
    {
        const io::CBlock board = ReadListText("(pcf b (technologyContainer (technology t (conductiveLayer "
                                              "(layerNumber 7 (type POSI))))))");
        parser = std::make_unique<ZukenPCBParser>(footprints, board);
    }
    const AssertionRecorder emptyBoard; // nothing on it has a size
    parser->ParseBoardFile();
    EXPECT_EQ(parser->GetConductiveLayerName(7), AString("Conductive_7"));
}
