#include "tests/zuken/BoardSections.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;
using testing::Pointee;
using testing::SizeIs;

/// Pads, padstacks and a footprint whose pins 1 and 2 have no padstack, while pin 3 has one.
const LibraryText& Library() {
    static const LibraryText library{.m_Pads = "(pad dot (geometry (circle 0.5))) (pad ring (geometry (circle 1)))",
        .m_Padstacks = "(padstack LAND (padSet (footLayer TOP) (connect (pad dot))))"
                       "(padstack OTHER (padSet (footLayer TOP) (connect (pad ring))))",
        .m_Footprints = "(footprint U3 (toeprint (pin 1 (layout (layer (fPad dot (pt -1 0)))))"
                        " (pin 2 (layout (layer (fPad dot (pt 1 0)))))"
                        " (pin 3 (layout (layer (fpadstack (padstackGroup (padstack OTHER))))))))"};
    return library;
}

/// A board with a component U1 at (10, 20), whose list goes on with `pins`.
BoardResult ReadPins(const std::string& pins, const std::string& properties = "") {
    return ReadBoard({.m_LayerCount = 4,
                         .m_Components = "(component (reference U1) (footprint U3) (location (pt 10 20)) " +
                                         properties + " " + pins + ")"},
        Library());
}

const Component& ComponentOf(const BoardResult& board) { return *ComponentsOf(*board.m_Parser).at(0); }

Padstack* PadstackOf(const BoardResult& board, const char* pin) {
    return board.m_Parser->FindFootprint("U3")->FindPin(pin)->padstack;
}

/// A layer of a pin with a padstack.
std::string PinLayer(const std::string& padstack) { return "(layer (padstack " + padstack + "))"; }

constexpr char k_Triangle[] = "(surface (geometry (surface (vertex (pt 0 0) (pt 2 0) (pt 0 1)))))";

std::vector<std::string> LayerNamesOf(const Net& net) {
    std::vector<std::string> names;
    for (const Surface* surface : net.surfaces)
        names.push_back(surface->layer.QRL_ANSI());
    return names;
}

} // namespace

TEST(ZukenPCBParser_ComponentPinsTest, PinsStandInFileOrder) {
    const BoardResult board = ReadPins("(pin 2) (pin A1) (pin 007) (pin \"x y\") (pin (layout)) (pin 1.5)");
    std::vector<std::string> names;
    for (const ComponentPin& pin : ComponentOf(board).pins)
        names.push_back(pin.name.QRL_ANSI());
    EXPECT_THAT(names, ElementsAre("2", "A1", "7", "x y", "", ""));
}

TEST(ZukenPCBParser_ComponentPinsTest, FirstLayerGivesTheFootprintsPinItsPadstack) {
    const BoardResult board = ReadPins("(pin 1 (layout " + PinLayer("LAND") + PinLayer("OTHER") + "))");
    EXPECT_EQ(board.m_Parser->FindPadstack("LAND"), PadstackOf(board, "1"));
    EXPECT_NE(nullptr, PadstackOf(board, "1"));
    EXPECT_EQ(nullptr, PadstackOf(board, "2"));
}

TEST(ZukenPCBParser_ComponentPinsTest, UnknownPadstackLeavesThePinToTheNextLayer) {
    const BoardResult board = ReadPins("(pin 1 (layout " + PinLayer("NOWHERE") + PinLayer("OTHER") + "))");
    EXPECT_EQ(board.m_Parser->FindPadstack("OTHER"), PadstackOf(board, "1"));
}

TEST(ZukenPCBParser_ComponentPinsTest, LayerWithoutAPadstackLeavesThePinWithout) {
    const BoardResult board = ReadPins("(pin 1 (layout (layer (conductive 1))))");
    EXPECT_EQ(nullptr, PadstackOf(board, "1"));
    EXPECT_THAT(ComponentOf(board).pins, SizeIs(1));
}

TEST(ZukenPCBParser_ComponentPinsTest, PadstackOfThePinStays) {
    const BoardResult board = ReadPins("(pin 3 (layout " + PinLayer("LAND") + "))");
    EXPECT_EQ(board.m_Parser->FindPadstack("OTHER"), PadstackOf(board, "3"));
}

TEST(ZukenPCBParser_ComponentPinsTest, LaterComponentDoesNotChangeThePinsPadstack) {
    const BoardResult board = ReadPins("(pin 1 (layout " + PinLayer("LAND") +
                                       ")))"
                                       "(component (reference U2) (footprint U3) (pin 1 (layout " +
                                       PinLayer("OTHER") + "))");
    EXPECT_EQ(board.m_Parser->FindPadstack("LAND"), PadstackOf(board, "1"));
    EXPECT_THAT(ComponentsOf(*board.m_Parser), SizeIs(2));
}

TEST(ZukenPCBParser_ComponentPinsTest, PinThatTheFootprintDoesNotKnowIsRecordedAllTheSame) {
    const BoardResult board = ReadPins("(pin 9 (layout " + PinLayer("LAND") + "))");
    ASSERT_THAT(ComponentOf(board).pins, SizeIs(1));
    EXPECT_EQ("9", ComponentOf(board).pins[0].name.QRL_ANSI());
    EXPECT_EQ("", board.m_Output);
}

TEST(ZukenPCBParser_ComponentPinsTest, NoConnectLayersAreKeptByPin) {
    const BoardResult board =
        ReadPins("(pin 1 (layout " +
                 PinLayer("LAND (conductive (layerNumber 2 (STATUS NOCONNECT)) (layerNumber 3 (STATUS CONNECT)))") +
                 PinLayer("LAND (conductive (layerNumber 4 (STATUS noconnect)))") + ")) (pin 2)");
    EXPECT_THAT(TextsOf(ComponentOf(board).pins.at(0).noConnectLayers), ElementsAre("Conductive_2", "Conductive_4"));
    EXPECT_THAT(ComponentOf(board).pins.at(1).noConnectLayers, IsEmpty());
}

TEST(ZukenPCBParser_ComponentPinsTest, BondwiresAreThinWhateverTheirDiameter) {
    const BoardResult board = ReadPins("(pin 1 (bondwire (bwDiameter 0.025) (bondwire 2 (pt 1 2) (pt 3 4))"
                                       " (bwDiameter 0.5) (bondwire 5 (pt 5 6))) (layout " +
                                       PinLayer("LAND (net GND)") + "))");
    const std::vector<Trace*>& wires = board.m_Parser->GetNet("GND")->traces;
    ASSERT_THAT(wires, SizeIs(2));
    EXPECT_EQ("bondwire_2", wires[0]->layer.QRL_ANSI());
    EXPECT_EQ("bondwire_5", wires[1]->layer.QRL_ANSI());
    EXPECT_THAT(PlacesOf(*wires[0]), ElementsAre(geom::Point(1, 2), geom::Point(3, 4)));
    EXPECT_THAT(PlacesOf(*wires[1]), ElementsAre(geom::Point(5, 6)));
    EXPECT_THAT(WidthsOf(*wires[0]), ElementsAre(1e-6, 1e-6));
    EXPECT_THAT(WidthsOf(*wires[1]), ElementsAre(1e-6));
    EXPECT_THAT(HeightsOf(*wires[0]), ElementsAre(0.0, 0.0));
}

TEST(ZukenPCBParser_ComponentPinsTest, BondwireWithoutANumberHasTheNumberOne) {
    const BoardResult board = ReadPins("(pin 1 (bondwire (bondwire (pt 1 2))) (layout " + PinLayer("LAND") + "))");
    EXPECT_EQ("bondwire_1", board.m_Parser->GetNet("ZUKEN_DUMMY")->traces.at(0)->layer.QRL_ANSI());
}

TEST(ZukenPCBParser_ComponentPinsTest, BondwireEntersItsNetOnceForEachLayer) {
    const BoardResult board = ReadPins("(pin 1 (bondwire (bondwire 1 (pt 1 2))) (layout " + PinLayer("LAND (net A)") +
                                       PinLayer("LAND (net A)") + PinLayer("LAND (net B)") + "))");
    EXPECT_THAT(board.m_Parser->GetNet("A")->traces, SizeIs(2));
    EXPECT_THAT(board.m_Parser->GetNet("B")->traces, SizeIs(1));
    EXPECT_EQ(board.m_Parser->GetNet("B"), board.m_Parser->GetNet("A")->traces.at(0)->net) << "the last one stays";
}

TEST(ZukenPCBParser_ComponentPinsTest, BondwireBehindTheLastLayerStaysWithoutANet) {
    const BoardResult board =
        ReadPins("(pin 1 (layout " + PinLayer("LAND (net GND)") + ") (bondwire (bondwire 1 (pt 1 2))))");
    EXPECT_THAT(board.m_Parser->GetNet("GND")->traces, IsEmpty());
    EXPECT_THAT(LayersOf(*board.m_Parser), SizeIs(5)) << "its layer is there all the same";
}

TEST(ZukenPCBParser_ComponentPinsTest, BondwireLayersComeAheadOfTheStackup) {
    const BoardResult board = ReadPins("(pin 1 (bondwire (bondwire 7) (bondwire 3) (bondwire 7)))");
    EXPECT_THAT(NamesOf_T(LayersOf(*board.m_Parser)),
        ElementsAre("bondwire_7", "bondwire_3", "Conductive_1", "Conductive_2", "Conductive_3", "Conductive_4"));
}

TEST(ZukenPCBParser_ComponentPinsTest, BondwireLayerIsMadeOnFirstDemand) {
    const auto parser = MakeParser();
    const Layer* made = parser->GetBondwireLayer(4);
    EXPECT_EQ("bondwire_4", made->name.QRL_ANSI());
    EXPECT_EQ(4, made->number);
    EXPECT_EQ(Layer::k_Bondwire, made->type);
    EXPECT_EQ(made, parser->GetBondwireLayer(4));
    EXPECT_NE(made, parser->GetBondwireLayer(-4));
}

TEST(ZukenPCBParser_ComponentPinsTest, SurfacesOfAPinArePlacedWithTheComponent) {
    const BoardResult board = ReadPins(std::string("(pin 1 (layout (layer (padstack LAND (net GND)) (conductive 2)"
                                                   " (refer (net VCC) ") +
                                       k_Triangle + "))))");
    // The layout itself, read by itself, puts it on the board's origin and takes the net from the surface.
    EXPECT_THAT(CornersOf(board.m_Parser->GetNet("ZUKEN_DUMMY")->surfaces.at(0)->outline.polygon),
        ElementsAre(geom::Point(0, 0), geom::Point(2, 0), geom::Point(0, 1)));
    const Net* net = board.m_Parser->GetNet("VCC");
    ASSERT_THAT(net->surfaces, SizeIs(1));
    EXPECT_EQ("Conductive_2", net->surfaces[0]->layer.QRL_ANSI());
    EXPECT_THAT(CornersOf(net->surfaces[0]->outline.polygon),
        ElementsAre(geom::Point(10, 20), geom::Point(12, 20), geom::Point(10, 21)));
}

TEST(ZukenPCBParser_ComponentPinsTest, PinAheadOfTheLocationPutsItsSurfacesOnTheOrigin) {
    const BoardResult board = ReadBoard(
        {.m_Components = std::string("(component (reference U1) (footprint U3) (pin 1 (layout (layer (conductive 1)"
                                     " (refer (net VCC) ") +
                         k_Triangle + ")))) (location (pt 10 20)))"},
        Library());
    EXPECT_THAT(CornersOf(board.m_Parser->GetNet("VCC")->surfaces.at(0)->outline.polygon),
        ElementsAre(geom::Point(0, 0), geom::Point(2, 0), geom::Point(0, 1)));
    EXPECT_EQ(geom::Point(10, 20), ComponentOf(board).location);
}

TEST(ZukenPCBParser_ComponentPinsTest, SurfaceTakesTheLayerAheadOfIt) {
    const std::string refer = std::string("(refer (net VCC) ") + k_Triangle + ")";
    const BoardResult board = ReadPins("(pin 1 (layout (layer " + refer + "(conductive 2)" + refer + "(conductive 9)" +
                                       refer + ") (layer " + refer + ")))");
    EXPECT_THAT(LayerNamesOf(*board.m_Parser->GetNet("VCC")), ElementsAre("", "Conductive_2", "Conductive_9", ""));
}

TEST(ZukenPCBParser_ComponentPinsTest, SurfaceOfABottomPinIsMirrored) {
    const BoardResult board =
        ReadPins(std::string("(pin 1 (layout (layer (conductive 1) (refer (net VCC) ") + k_Triangle + "))))",
            "(placementSide B)");
    // Turned by 360 degrees and mirrored about x = 10.
    EXPECT_THAT(CornersOf(board.m_Parser->GetNet("VCC")->surfaces.at(0)->outline.polygon),
        testing::UnorderedElementsAre(geom::Point(10, 20), geom::Point(8, 20), geom::Point(10, 21)));
}

TEST(ZukenPCBParser_ComponentPinsTest, SurfaceWithoutAGeometryIsTheShapeItself) {
    const BoardResult board = ReadPins("(pin 1 (layout (layer (conductive 1)"
                                       " (refer (net VCC) (surface (vertex (pt 0 0) (pt 2 0) (pt 0 1)))))))");
    EXPECT_THAT(board.m_Parser->GetNet("VCC")->surfaces, SizeIs(1));
}

TEST(ZukenPCBParser_ComponentPinsTest, PadstackOfASystemLayerIsTheFootprintsBusiness) {
    const BoardResult board =
        ReadPins("(pin 1 (layout (layer (systemLayer (type PADSTACK)) (padstack LAND (net GND)))))");
    EXPECT_THAT(board.m_Parser->GetNet("GND")->vias, IsEmpty());
    EXPECT_EQ(board.m_Parser->FindPadstack("LAND"), PadstackOf(board, "1"));
}

TEST(ZukenPCBParser_ComponentPinsTest, TwoPadstacksOfASystemLayerAreReadAsSuch) {
    const char k_Layer[] = "(layer (systemLayer (type PADSTACK)) (padstack LAND (net GND) (fromTo 1))"
                           " (padstack NOWHERE (net GND)))";
    EXPECT_EQ(
        "Padstack NOWHERE not found in ftf file\n", ReadPins(std::string("(pin 1 (layout ") + k_Layer + "))").m_Output);
    const BoardResult unknownPin = ReadPins(std::string("(pin 9 (layout ") + k_Layer + "))");
    EXPECT_THAT(unknownPin.m_Parser->GetNet("GND")->vias, SizeIs(1)) << "no pin that the padstack could belong to";
}

TEST(ZukenPCBParser_ComponentPinsTest, TwoPadstacksAreCountedByLayer) {
    constexpr char k_System[] = "(systemLayer (type PADSTACK))";
    const auto hasTwo = [](const std::string& layers) {
        return ZukenPCBParser::PinHasTwoPadstacks(ListOf("(pin 1 " + layers + ")"));
    };
    const std::string system = k_System;
    EXPECT_FALSE(hasTwo(""));
    EXPECT_FALSE(hasTwo("(layout (layer " + system + "(padstack A)))"));
    EXPECT_TRUE(hasTwo("(layout (layer " + system + "(padstack A) (PADSTACK B)))"));
    EXPECT_FALSE(hasTwo("(layout (layer " + system + "(padstack A)) (layer " + system + "(padstack B)))"));
    EXPECT_FALSE(hasTwo("(layout (layer (conductive 1) (padstack A) (padstack B)))"));
    EXPECT_FALSE(hasTwo("(layout (shape " + system + "(padstack A) (padstack B)))"));
}
