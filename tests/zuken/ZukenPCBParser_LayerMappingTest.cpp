#include "tests/AssertionRecorder.h"
#include "tests/zuken/LibraryText.h"
#include "tests/zuken/PadstackText.h"

#include <gmock/gmock.h>

#include <string>

namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsNull;
using testing::SizeIs;

constexpr char k_Pads[] = "(pad small (geometry (circle 1))) (pad large (geometry (circle 2)))"
                          " (pad ring (geometry (roundThermal (out 2))))";

/// A pad on each of the footprint layers TOP and BOT, which have the numbers 1 and 2.
constexpr char k_Via[] = "(padstack via (padSet (footLayer TOP) (connect (pad small)))"
                         " (padSet (footLayer BOT) (connect (pad large))))";

/// (correspondence ...) of a footprint layer with these numbers.
std::string Tie(const std::string& footLayer, const std::vector<std::string>& numbers) {
    std::string text = "(correspondence (footLayer " + footLayer + ") (boardLayer";
    for (const std::string& number : numbers)
        text += " (conductive " + number + ")";
    return text + "))";
}

/// A board whose conductive layers count from 1, with these maps.
std::string BoardText(int layerCount, const std::string& maps) {
    std::string layers;
    for (int i = 1; i <= layerCount; ++i)
        layers += "(layerNumber " + std::to_string(i) + " (type POSI))";
    return "(pcf board (technologyContainer (technology tech (conductiveLayer " + layers + ") (layerMapping " + maps +
           "))))";
}

/// A library with these padstacks on a board, read step by step.
class Mapping {
public:
    Mapping(const std::string& padstacks, int layerCount, const std::string& maps)
        : m_Parser(ParseLibrary(TextOf({.m_Pads = k_Pads, .m_Padstacks = padstacks}))) {
        for (int i = 1; i <= layerCount; ++i)
            m_Parser->ReadConductiveLayers(
                ListOf("(conductiveLayer (layerNumber " + std::to_string(i) + " (type POSI)))"));
        EXPECT_TRUE(m_Parser->ReadLayerMapping(ListOf("(layerMapping " + maps + ")")));
    }

    Mapping& Correspond() {
        EXPECT_TRUE(m_Parser->ReadCorrespondence());
        return *this;
    }
    ZukenPCBParser& Parser() { return *m_Parser; }
    const Padstack& First() const { return *PadstacksOf(*m_Parser).at(0); }
    const std::set<int32_t>& NumbersOf(const char* footLayer) const {
        return m_Parser->FindFootprintLayer(footLayer)->conductiveNumbers;
    }
    std::vector<int32_t> LayerNumbers() const {
        std::vector<int32_t> numbers;
        for (const Layer* layer : LayersOf(*m_Parser))
            numbers.push_back(layer->number);
        return numbers;
    }

private:
    std::unique_ptr<ZukenPCBParser> m_Parser;
};

std::string MapA(const std::string& ties) { return "(map A " + ties + ")"; }

} // namespace

TEST(ZukenPCBParser_LayerMappingTest, MapsAAndAThruAddUp) {
    const Mapping mapping(k_Via, 3, MapA(Tie("TOP", {"1"})) + "(map A_THRU " + Tie("TOP", {"3", "2", "1"}) + ")");
    EXPECT_THAT(mapping.NumbersOf("TOP"), ElementsAre(1, 2, 3));
}

TEST(ZukenPCBParser_LayerMappingTest, MapsOfOtherNamesArePassedOver) {
    const Mapping mapping(k_Via, 3,
        "(map B " + Tie("TOP", {"1"}) + ") (map " + Tie("TOP", {"2"}) + ") (map 5 " + Tie("TOP", {"3"}) + ") (list A " +
            Tie("TOP", {"3"}) + ") A 7");
    EXPECT_THAT(mapping.NumbersOf("TOP"), IsEmpty());
}

TEST(ZukenPCBParser_LayerMappingTest, KeywordsAndMapNamesMatchInAnyCase) {
    const Mapping mapping(k_Via, 3,
        "(MAP a (CORRESPONDENCE (FOOTLAYER top) (BOARDLAYER (CONDUCTIVE 2)))) (Map a_thru " + Tie("Top", {"3"}) + ")");
    EXPECT_THAT(mapping.NumbersOf("TOP"), ElementsAre(2, 3));
}

TEST(ZukenPCBParser_LayerMappingTest, WhatIsNoTieIsPassedOver) {
    const Mapping mapping(k_Via, 3,
        MapA("7 word (other (footLayer TOP) (boardLayer (conductive 1)))"
             "(correspondence (footLayer TOP) (boardLayer 1 (nonConductive MASK) (conductive 2)))"
             "(correspondence (footLayer TOP))"));
    EXPECT_THAT(mapping.NumbersOf("TOP"), ElementsAre(2));
}

TEST(ZukenPCBParser_LayerMappingTest, TieOfAnUnknownFootprintLayerIsPassedOver) {
    const Mapping mapping(
        k_Via, 2, MapA(Tie("MASK", {"1"}) + Tie("NONE", {"1"}) + "(correspondence (boardLayer (conductive 1)))"));
    EXPECT_THAT(mapping.NumbersOf("TOP"), IsEmpty());
    EXPECT_THAT(mapping.NumbersOf("BOT"), IsEmpty());
}

TEST(ZukenPCBParser_LayerMappingTest, ConductiveWithoutANumberIsZero) {
    const Mapping mapping(k_Via, 2,
        MapA("(correspondence (footLayer TOP) (boardLayer (conductive)))"
             "(correspondence (footLayer BOT) (boardLayer (conductive word)))"));
    EXPECT_THAT(mapping.NumbersOf("TOP"), ElementsAre(0));
    EXPECT_THAT(mapping.NumbersOf("BOT"), ElementsAre(0));
}

TEST(ZukenPCBParser_LayerMappingTest, PadStandsOnEveryLayerOfItsFootprintLayerAsAnEntryOfItsOwn) {
    Mapping mapping(
        "(padstack via (padSet (footLayer TOP) (connect (pad small))))", 3, MapA(Tie("TOP", {"1", "2", "3"})));
    const Padstack::LayerPads pads = mapping.Correspond().First().connectPads;
    EXPECT_THAT(Show(pads), ElementsAre("1:small", "2:small", "3:small"));
    EXPECT_NE(pads[0], pads[1]);
    EXPECT_NE(pads[1], pads[2]);
    EXPECT_EQ(0.0, pads[2]->angle);
}

TEST(ZukenPCBParser_LayerMappingTest, ClearancesAndThermalsAreTurnedLikeConnectingPads) {
    Mapping mapping("(padstack via (padSet (footLayer TOP) (noconnect (pad large)) (thermal (pad ring)))"
                    " (padSet (footLayer BOT) (connect (pad small)) (thermal (pad ring))))",
        4, MapA(Tie("TOP", {"1"}) + Tie("BOT", {"3", "4"})));
    const Padstack& via = mapping.Correspond().First();
    EXPECT_THAT(Show(via.connectPads), ElementsAre("-", "-", "3:small", "4:small"));
    EXPECT_THAT(Show(via.noConnectPads), ElementsAre("1:large", "-", "-", "-"));
    EXPECT_THAT(Show(via.thermalPads), ElementsAre("1:ring", "-", "3:ring", "4:ring"));
}

TEST(ZukenPCBParser_LayerMappingTest, LaterFootprintLayerWinsTheSamePlace) {
    Mapping mapping(k_Via, 3, MapA(Tie("TOP", {"1", "3"}) + Tie("BOT", {"3"})));
    EXPECT_THAT(Show(mapping.Correspond().First().connectPads), ElementsAre("1:small", "-", "3:large"));
}

TEST(ZukenPCBParser_LayerMappingTest, NumberThatAnEarlierFootprintLayerStandsForIsTakenForThatOne) {
    // BOT has the number 2 itself, but TOP, which stands for the board's layer 2, comes first.
    Mapping mapping(k_Via, 4, MapA(Tie("TOP", {"1", "2"}) + Tie("BOT", {"4"})));
    EXPECT_THAT(Show(mapping.Correspond().First().connectPads), ElementsAre("1:large", "2:large", "-", "-"));
}

TEST(ZukenPCBParser_LayerMappingTest, EntryWithoutAPadIsTurnedToo) {
    Mapping mapping("(padstack via (padSet (footLayer TOP) (connect (pad missing))))", 2, MapA(Tie("TOP", {"2"})));
    EXPECT_THAT(Show(mapping.Correspond().First().connectPads), ElementsAre("-", "2:?"));
}

TEST(ZukenPCBParser_LayerMappingTest, PadstackWithoutPadsGetsTheNewLengthOnly) {
    Mapping mapping("(padstack via)", 5, MapA(Tie("TOP", {"1"})));
    const Padstack& via = mapping.Correspond().First();
    for (const Padstack::LayerPads* pads : {&via.connectPads, &via.noConnectPads, &via.thermalPads}) {
        ASSERT_THAT(*pads, SizeIs(5));
        EXPECT_THAT(*pads, Each(IsNull()));
    }
}

TEST(ZukenPCBParser_LayerMappingTest, WithoutAMapEveryPadstackLosesItsPads) {
    for (const std::string& maps : {std::string(), "(map B " + Tie("TOP", {"1"}) + ")"}) {
        Mapping mapping(k_Via, 3, maps);
        EXPECT_THAT(Show(mapping.Correspond().First().connectPads), ElementsAre("-", "-", "-")) << maps;
    }
}

TEST(ZukenPCBParser_LayerMappingTest, PadsOfALayerThatNoTieNamesAreLostAndTheRestStay) {
    Mapping mapping(k_Via, 2, MapA(Tie("MASK", {"1"}) + Tie("BOT", {"2"})));
    EXPECT_THAT(Show(mapping.Correspond().First().connectPads), ElementsAre("-", "2:large"));
}

TEST(ZukenPCBParser_LayerMappingTest, NumbersOutsideTheBoardAreAbsent) {
    Mapping mapping(k_Via, 3, MapA(Tie("TOP", {"0", "-1", "3", "4", "2147483647", "-2147483648"})));
    EXPECT_THAT(Show(mapping.Correspond().First().connectPads), ElementsAre("-", "-", "3:small"));
}

TEST(ZukenPCBParser_LayerMappingTest, SequencesAreEmptyOnABoardWithoutLayers) {
    Mapping mapping(k_Via, 0, MapA(Tie("TOP", {"1"})));
    EXPECT_THAT(mapping.Correspond().First().connectPads, IsEmpty());
}

TEST(ZukenPCBParser_LayerMappingTest, TwoBondwireLayersMoveLayersAndPadsByTwo) {
    Mapping mapping("(padstack via (padSet (footLayer TOP) (connect (pad small))))", 2, MapA(Tie("TOP", {"1"})));
    const Layer* first = mapping.Parser().GetBondwireLayer(1);
    const Layer* second = mapping.Parser().GetBondwireLayer(2);
    const Layer* conductive = LayersOf(mapping.Parser()).at(0);
    EXPECT_EQ(0.0, first->thickness);
    mapping.Correspond();
    EXPECT_THAT(
        NamesOf_T(LayersOf(mapping.Parser())), ElementsAre("bondwire_1", "bondwire_2", "Conductive_1", "Conductive_2"));
    EXPECT_EQ(first, LayersOf(mapping.Parser())[0]);
    EXPECT_EQ(second, LayersOf(mapping.Parser())[1]);
    EXPECT_EQ(3, conductive->number);
    EXPECT_THAT(mapping.LayerNumbers(), ElementsAre(1, 2, 3, 4));
    EXPECT_THAT(Show(mapping.First().connectPads), ElementsAre("-", "-", "3:small", "-"));
}

TEST(ZukenPCBParser_LayerMappingTest, LookupsFollowTheMovedNumbers) {
    Mapping mapping(k_Via, 2, MapA(Tie("TOP", {"1"})));
    mapping.Parser().GetBondwireLayer(7);
    mapping.Correspond();
    EXPECT_EQ("Conductive_1", mapping.Parser().GetConductiveLayerName(2).QRL_ANSI());
    EXPECT_EQ("Conductive_2", mapping.Parser().GetConductiveLayerName(3).QRL_ANSI());
    EXPECT_EQ("bondwire_7", mapping.Parser().GetConductiveLayerName(7).QRL_ANSI());
    EXPECT_EQ("Conductive_1", mapping.Parser().GetTopConductiveLayer()->GetName().QRL_ANSI());
}

TEST(ZukenPCBParser_LayerMappingTest, SecondPassMovesThePadsBehindTheBondwireLayers) {
    Mapping mapping(k_Via, 2, MapA(Tie("TOP", {"1"}) + Tie("BOT", {"2"})));
    EXPECT_THAT(Show(mapping.Correspond().First().connectPads), ElementsAre("1:small", "2:large"));
    mapping.Parser().GetBondwireLayer(1);
    EXPECT_THAT(Show(mapping.Correspond().First().connectPads), ElementsAre("-", "2:small", "3:large"));
}

TEST(ZukenPCBParser_LayerMappingTest, SecondPassTakesABoardNumberForThatOfAnEarlierFootprintLayer) {
    Mapping mapping(k_Via, 3, MapA(Tie("TOP", {"3"}) + Tie("BOT", {"1"})));
    EXPECT_THAT(Show(mapping.Correspond().First().connectPads), ElementsAre("1:large", "-", "3:small"));
    // The number 1 is that of TOP itself, so that the large pad goes to 3, where the small one, which comes later and
    // is of TOP too, takes its place.
    EXPECT_THAT(Show(mapping.Correspond().First().connectPads), ElementsAre("-", "-", "3:small"));
}

TEST(ZukenPCBParser_LayerMappingTest, SecondPassDropsPadsOnANumberThatNobodyKnows) {
    Mapping mapping(k_Via, 4, MapA(Tie("TOP", {"3"}) + Tie("BOT", {"4"})));
    mapping.Parser().GetBondwireLayer(1);
    EXPECT_THAT(Show(mapping.Correspond().First().connectPads), ElementsAre("-", "-", "-", "4:small", "5:large"));
    // The number 4 is in the set of BOT, which puts the small pad on 4 + 1; 5 is nobody's.
    EXPECT_THAT(Show(mapping.Correspond().First().connectPads), ElementsAre("-", "-", "-", "-", "5:small", "-"));
}

TEST(ZukenPCBParser_LayerMappingTest, BondwireLayersComeInAnewOnEveryPass) {
    Mapping mapping(k_Via, 1, "");
    const Layer* bondwire = mapping.Parser().GetBondwireLayer(1);
    mapping.Correspond().Correspond();
    EXPECT_THAT(NamesOf_T(LayersOf(mapping.Parser())), ElementsAre("bondwire_1", "bondwire_1", "Conductive_1"));
    EXPECT_THAT(mapping.LayerNumbers(), ElementsAre(2, 2, 3));
    EXPECT_EQ(bondwire, mapping.Parser().GetBondwireLayer(2)) << "found by the number that it has now";
}

TEST(ZukenPCBParser_LayerMappingTest, NumbersWrapAround) {
    Mapping mapping(k_Via, 1, MapA(Tie("TOP", {"2147483647", "1"})));
    mapping.Parser().ReadConductiveLayers(ListOf("(conductiveLayer (layerNumber 2147483647))"));
    mapping.Parser().GetBondwireLayer(1);
    mapping.Correspond();
    EXPECT_THAT(mapping.LayerNumbers(), ElementsAre(1, 2, -2147483647 - 1));
    EXPECT_THAT(Show(mapping.First().connectPads), ElementsAre("-", "2:small", "-"));
}

TEST(ZukenPCBParser_LayerMappingTest, BoardFileTurnsThePadstacks) {
    const AssertionRecorder recorder;
    const auto parser = ParseBoard(
        BoardText(3, MapA(Tie("TOP", {"1"}) + Tie("BOT", {"3"}))), TextOf({.m_Pads = k_Pads, .m_Padstacks = k_Via}));
    EXPECT_THAT(Show(PadstacksOf(*parser).at(0)->connectPads), ElementsAre("1:small", "-", "3:large"));
}

TEST(ZukenPCBParser_LayerMappingTest, BoardFileWithoutAMappingTakesThePadsAway) {
    const AssertionRecorder recorder;
    const auto parser = ParseBoard("(pcf board (technologyContainer (technology tech (conductiveLayer"
                                   " (layerNumber 1 (type POSI)) (layerNumber 2 (type POSI))))))",
        TextOf({.m_Pads = k_Pads, .m_Padstacks = k_Via}));
    EXPECT_THAT(Show(PadstacksOf(*parser).at(0)->connectPads), ElementsAre("-", "-"));
}

TEST(ZukenPCBParser_LayerMappingTest, BoardFileWithoutATechnologyStillTurnsThePadstacks) {
    const AssertionRecorder recorder;
    const auto parser =
        ParseBoard("(pcf board (technologyContainer))", TextOf({.m_Pads = k_Pads, .m_Padstacks = k_Via}));
    EXPECT_THAT(PadstacksOf(*parser).at(0)->connectPads, IsEmpty());
}

TEST(ZukenPCBParser_LayerMappingTest, BoardFileWithoutATechnologyContainerLeavesThePadstacks) {
    const AssertionRecorder recorder;
    const auto parser = ParseBoard("(pcf board)", TextOf({.m_Pads = k_Pads, .m_Padstacks = k_Via}));
    EXPECT_THAT(Show(PadstacksOf(*parser).at(0)->connectPads), ElementsAre("1:small", "2:large"));
}

TEST(ZukenPCBParser_LayerMappingTest, BondwiresOfComponentsMakeTheBoardFileTurnThePadstacksOnceMore) {
    const AssertionRecorder recorder;
    std::string pcf = BoardText(2, MapA(Tie("TOP", {"1"}) + Tie("BOT", {"2"})));
    pcf.insert(pcf.size() - 1, "(boardContainer (components (component (reference U1) (footprint die)"
                               " (pin 1 (bondwire (bondwire 1 (pt 0 0) (pt 1 0)))))))");
    const auto parser = ParseBoard(
        pcf, TextOf({.m_Pads = k_Pads,
                 .m_Padstacks = k_Via,
                 .m_Footprints = "(footprint die (toeprint (pin 1 (layout (layer (footLayer TOP) (fPad small))))))"}));
    EXPECT_THAT(NamesOf_T(LayersOf(*parser)), ElementsAre("bondwire_1", "Conductive_1", "Conductive_2"));
    EXPECT_THAT(Show(parser->FindPadstack("via")->connectPads), ElementsAre("-", "2:small", "3:large"));
    EXPECT_THAT(Show(parser->FindPadstack("small_TOP")->connectPads), ElementsAre("-", "2:small", "-"));
}
