#include "model/ZukenPCBParser.h"
#include "tests/BoardText.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// Two footprints whose names differ in case, the first with pin "1", the second with pin "2".
constexpr char k_Footprints[] = R"(
(ftf parts
  (footprintContainer
    (footprints
      (footprint sot (heelprint (layout (layer (footprintLayer Top) (pin 1 (pt 0 0))))))
      (footprint SOT (heelprint (layout (layer (footprintLayer Top) (pin 2 (pt 0 0)))))))))
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
    const auto parser = ParseBoard("", k_Footprints);
    std::vector<Footprint*> footprints;
    ASSERT_EQ(parser->GetFootprints(footprints), 2);
    EXPECT_EQ(footprints[0]->name, AString("sot"));
    EXPECT_EQ(footprints[1]->name, AString("SOT"));
    EXPECT_EQ(parser->FindFootprint("sot"), footprints[0]);
    EXPECT_EQ(parser->FindFootprint("SOT"), footprints[0]);
    EXPECT_EQ(parser->FindFootprint("Sot"), footprints[0]);
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

TEST(ZukenPCBParserTest, KeepsItsInputWhenTheSourceIsGone) {
    io::CBlock footprints;
    std::unique_ptr<ZukenPCBParser> parser;
    {
        const io::CBlock board = ReadListText("(pcf b (technologyContainer (technology t (conductiveLayer "
                                              "(layerNumber 7 (type POSI))))))");
        parser = std::make_unique<ZukenPCBParser>(footprints, board);
    }
    parser->ParseBoardFile();
    EXPECT_EQ(parser->GetConductiveLayerName(7), AString("Conductive_7"));
}
