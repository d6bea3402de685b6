#include "tests/zuken/BoardSections.h"

#include "model/PadMultiLoop.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// Pin 1 and pin A1 are plain. Pin M has a pad of two loops, and a further pin M_1 from the same source pin. Pin S has
/// a further pin S_1. Pin 8 has no padstack.
const LibraryText& Library() {
    static const LibraryText library{.m_Pads =
                                         "(pad dot (geometry (circle 0.5)))"
                                         "(pad two (geometry (circle 1)) (geometry (rectangle (width 2) (height 2))))",
        .m_Padstacks = "(padstack TWO (padSet (footLayer TOP) (connect (pad two))))",
        .m_Footprints =
            "(footprint U (toeprint (pin 1 (layout (layer (footLayer TOP) (fPad dot))))"
            " (pin A1 (layout (layer (footLayer TOP) (fPad dot))))"
            " (pin M (layout (layer (fpadstack (pt 3 4) (padstackGroup (padstack TWO))) (footLayer BOT) (fPad dot))))"
            " (pin S (layout (layer (footLayer TOP) (fPad dot) (footLayer BOT) (fPad dot))))"
            " (pin 8 (layout (layer (fPad dot))))))"};
    return library;
}

constexpr char k_Components[] = "(component (reference U1) (footprint U) (location (pt 10 20)) (angle 90))"
                                "(component (reference A.) (footprint U))"
                                "(component (reference NoPrint) (footprint NOWHERE))"
                                "(component (reference 17) (footprint U))";

BoardResult ReadNets(const std::string& nets) {
    return ReadBoard({.m_Components = k_Components, .m_Nets = nets}, Library());
}

std::vector<std::string> PinsOf(const BoardResult& board, const char* net) {
    return PinRefsOf(*board.m_Parser->GetNet(net));
}

} // namespace

TEST(ZukenPCBParser_NetsTest, PinOfANamelessNetGoesToTheDummy) {
    const BoardResult board = ReadNets("(net \"\" (comp U1 (pin 1)))");
    EXPECT_THAT(NetNamesOf(*board.m_Parser), ElementsAre("ZUKEN_DUMMY"));
    EXPECT_THAT(PinsOf(board, "ZUKEN_DUMMY"), ElementsAre("U1.0"));
}

TEST(ZukenPCBParser_NetsTest, NetWhoseNameIsANumberIsTheDummy) {
    EXPECT_THAT(NetNamesOf(*ReadNets("(net 5 (comp U1 (pin 1)))").m_Parser), ElementsAre("ZUKEN_DUMMY"));
}

TEST(ZukenPCBParser_NetsTest, NetWithoutPinsIsMade) {
    const BoardResult board = ReadNets("(net N1)");
    EXPECT_THAT(NetNamesOf(*board.m_Parser), ElementsAre("N1"));
    EXPECT_THAT(PinsOf(board, "N1"), IsEmpty());
}

TEST(ZukenPCBParser_NetsTest, UnknownComponentIsNotedWithAnEmptyNameAndNothingElse) {
    const BoardResult board = ReadNets("(net N1 (comp X9 (pin 1)))");
    EXPECT_TRUE(board.m_Parser->GetNameMap().HasReference("X9"));
    EXPECT_EQ("", board.m_Parser->GetComponentName("X9").QRL_ANSI());
    EXPECT_THAT(NetNamesOf(*board.m_Parser), ElementsAre("N1"));
    EXPECT_THAT(PinsOf(board, "N1"), IsEmpty());
    EXPECT_EQ("", board.m_Output);
}

TEST(ZukenPCBParser_NetsTest, SamePinTwiceIsOneEntry) {
    EXPECT_THAT(PinsOf(ReadNets("(net N1 (comp U1 (pin 1)) (comp U1 (pin 1)) (comp U1 (pin \"1\")))"), "N1"),
        ElementsAre("U1.0"));
}

TEST(ZukenPCBParser_NetsTest, PinIsNotedByItsIndex) {
    EXPECT_THAT(PinsOf(ReadNets("(net N1 (comp U1 (pin A1)) (comp U1 (pin a1)))"), "N1"), ElementsAre("U1.1"));
    EXPECT_THAT(PinsOf(ReadNets("(net N1 (comp U1 (pin 001)))"), "N1"), ElementsAre("U1.0"));
}

TEST(ZukenPCBParser_NetsTest, NetsKeepTheOrderOfTheirFirstMention) {
    const BoardResult board = ReadBoard(
        {.m_Components = "(component (reference U1) (footprint U) (pin 1 (layout (layer (padstack X (net C))))))",
            .m_Nets = "(net B) (net A) (net c) (net B)",
            .m_Layout = "(layer (conductive 1) (line (net D)) (line (net A)))"},
        Library());
    EXPECT_THAT(NetNamesOf(*board.m_Parser), ElementsAre("C", "B", "A", "D"));
}

TEST(ZukenPCBParser_NetsTest, UnknownPinIsLostWithoutAWord) {
    const BoardResult board = ReadNets("(net N1 (comp U1 (pin 99)) (comp U1 (pin)) (comp U1) (comp U1 (pin A1)))");
    EXPECT_THAT(PinsOf(board, "N1"), ElementsAre("U1.1"));
    EXPECT_EQ("", board.m_Output);
}

TEST(ZukenPCBParser_NetsTest, ComponentWithoutAFootprintIsPassedOver) {
    EXPECT_THAT(PinsOf(ReadNets("(net N1 (comp NoPrint (pin 1)))"), "N1"), IsEmpty());
}

TEST(ZukenPCBParser_NetsTest, ReferenceThatIsANumberIsNotRead) {
    EXPECT_THAT(PinsOf(ReadNets("(net N1 (comp 17 (pin 1)))"), "N1"), IsEmpty());
    EXPECT_THAT(PinsOf(ReadNets("(net N1 (comp \"17\" (pin 1)))"), "N1"), ElementsAre("17.0"));
}

TEST(ZukenPCBParser_NetsTest, ComponentIsFoundByItsReferenceAndNamedByItsName) {
    EXPECT_THAT(PinsOf(ReadNets("(net N1 (comp A. (pin 1)))"), "N1"), ElementsAre("A_.0"));
    EXPECT_THAT(PinsOf(ReadNets("(net N1 (comp A_ (pin 1)))"), "N1"), IsEmpty());
}

TEST(ZukenPCBParser_NetsTest, PinsOfOneSourcePinAreConnectedTogether) {
    EXPECT_THAT(PinsOf(ReadNets("(net N1 (comp U1 (pin S)))"), "N1"), ElementsAre("U1.4", "U1.5"));
    EXPECT_THAT(PinsOf(ReadNets("(net N1 (comp U1 (pin S_1)))"), "N1"), ElementsAre("U1.5")) << "it has no siblings";
}

TEST(ZukenPCBParser_NetsTest, MultiLoopPadBecomesCopperWhereItStandsNeitherTurnedNorMirrored) {
    const BoardResult board = ReadNets("(net N1 (comp U1 (pin M)))");
    const Net* net = board.m_Parser->GetNet("N1");
    EXPECT_THAT(PinRefsOf(*net), ElementsAre("U1.3")) << "the sibling alone";
    ASSERT_THAT(net->surfaces, SizeIs(2));
    EXPECT_EQ("Conductive_1", net->surfaces[0]->layer.QRL_ANSI());
    EXPECT_EQ(geom::Box(geom::Point(13, 24), 2, 2), net->surfaces[0]->outline.polygon.GetBox());
    EXPECT_EQ(geom::Box(geom::Point(13, 24), 2, 2), net->surfaces[1]->outline.polygon.GetBox());
    EXPECT_THAT(net->surfaces[0]->outline.polygon.GetArcs(), SizeIs(1)) << "the circle";
    EXPECT_THAT(net->surfaces[1]->outline.polygon.GetArcs(), SizeIs(4)) << "the square";
}

TEST(ZukenPCBParser_NetsTest, PinWithoutAPadstackIsNoted) {
    EXPECT_THAT(PinsOf(ReadNets("(net N1 (comp U1 (pin 8)))"), "N1"), ElementsAre("U1.6"));
}

TEST(ZukenPCBParser_NetsTest, WhatIsNoNetIsPassedOver) {
    EXPECT_THAT(NetNamesOf(*ReadNets("(shape A) word 7 (NET B (shape U1 (pin 1)))").m_Parser), ElementsAre("B"));
}
