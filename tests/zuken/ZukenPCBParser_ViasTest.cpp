#include "tests/zuken/BoardSections.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// VIA has a hole and pads on both layers. LAND has no hole and one pad, THRU no hole and pads on both layers. LOOPS
/// has one pad of two loops. GHOST has a pad that doesn't exist besides one that does.
const LibraryText& Library() {
    static const LibraryText library{
        .m_Pads = "(pad dot (geometry (circle 1))) (pad bar (geometry (rectangle (width 4) (height 2))))"
                  "(pad two (geometry (circle 1)) (geometry (circle 2)))",
        .m_Padstacks =
            "(padstack VIA (hole (geometry (circle 0.5)))"
            " (padSet (footLayer TOP) (connect (pad dot))) (padSet (footLayer BOT) (connect (pad dot))))"
            "(padstack LAND (padSet (footLayer TOP) (connect (pad dot))))"
            "(padstack THRU (padSet (footLayer TOP) (connect (pad dot))) (padSet (footLayer BOT) (connect (pad bar))))"
            "(padstack LOOPS (padSet (footLayer TOP) (connect (pad two))))"
            "(padstack GHOST (padSet (footLayer TOP) (connect (pad nowhere)))"
            " (padSet (footLayer BOT) (connect (pad dot))))",
        .m_Footprints = "(footprint U (toeprint (pin 1 (layout (layer (fpadstack (padstackGroup (padstack VIA))))))))"};
    return library;
}

/// A board of three layers with these padstack instances.
BoardResult ReadVias(const std::string& instances) {
    return ReadBoard(
        {.m_LayerCount = 3, .m_Layout = "(layer (systemLayer (type PADSTACK)) " + instances + ")"}, Library());
}

const Net& NetOf(const BoardResult& board) { return *board.m_Parser->GetNet("A"); }

const Via& OnlyViaOf(const BoardResult& board) {
    EXPECT_THAT(NetOf(board).vias, SizeIs(1));
    return *NetOf(board).vias.at(0);
}

/// Layer and box of each surface.
std::vector<std::pair<std::string, geom::Box>> SurfacesOf(const BoardResult& board) {
    std::vector<std::pair<std::string, geom::Box>> surfaces;
    for (const Surface* surface : NetOf(board).surfaces) {
        EXPECT_EQ(0.0, surface->outline.halfWidth);
        surfaces.emplace_back(surface->layer.QRL_ANSI(), surface->outline.polygon.GetBox());
    }
    return surfaces;
}

} // namespace

TEST(ZukenPCBParser_ViasTest, PadstackWithAHoleIsAVia) {
    const BoardResult board = ReadVias("(padstack VIA (net A) (pt 10 20) (angle 30) (fromTo 1 3))");
    const Via& via = OnlyViaOf(board);
    EXPECT_EQ(board.m_Parser->FindPadstack("VIA"), via.padstack);
    EXPECT_EQ("Conductive_1", via.fromLayer.QRL_ANSI());
    EXPECT_EQ("Conductive_3", via.toLayer.QRL_ANSI());
    EXPECT_EQ(geom::Point(10, 20), via.location);
    EXPECT_EQ(30.0, via.angle);
    EXPECT_EQ(&NetOf(board), via.net);
    EXPECT_THAT(via.noConnectLayers, IsEmpty());
    EXPECT_THAT(NetOf(board).surfaces, IsEmpty());
}

TEST(ZukenPCBParser_ViasTest, LayersWithoutAConnectionMeanNothingToAPadstackThatIsDrawn) {
    const BoardResult board = ReadVias(
        "(padstack THRU (net A) (fromTo 1 3) (conductive (layerNumber 1 (STATUS NOCONNECT)) (layerNumber 3)))");
    EXPECT_THAT(NetOf(board).vias, IsEmpty());
    EXPECT_THAT(SurfacesOf(board), SizeIs(2));
    EXPECT_EQ("", board.m_Output);
}

TEST(ZukenPCBParser_ViasTest, SpanOfOneNumberIsOneLayer) {
    const BoardResult board = ReadVias("(padstack VIA (net A) (fromTo 2))");
    EXPECT_EQ("Conductive_2", OnlyViaOf(board).fromLayer.QRL_ANSI());
    EXPECT_EQ("Conductive_2", OnlyViaOf(board).toLayer.QRL_ANSI());
}

TEST(ZukenPCBParser_ViasTest, SpanOfAnUnknownLayerHasAnEmptyName) {
    const BoardResult board = ReadVias("(padstack VIA (net A) (fromTo 1 9))");
    EXPECT_EQ("Conductive_1", OnlyViaOf(board).fromLayer.QRL_ANSI());
    EXPECT_EQ("", OnlyViaOf(board).toLayer.QRL_ANSI());
}

TEST(ZukenPCBParser_ViasTest, MissingSpanIsLayerZeroToZero) {
    const BoardResult board = ReadVias("(padstack VIA (net A))");
    EXPECT_EQ("", OnlyViaOf(board).fromLayer.QRL_ANSI());
    EXPECT_EQ("", OnlyViaOf(board).toLayer.QRL_ANSI());
    EXPECT_EQ("", OnlyViaOf(ReadVias("(padstack VIA (net A) (fromTo top 3))")).toLayer.QRL_ANSI());
}

TEST(ZukenPCBParser_ViasTest, PadOnOneLayerWithoutAHoleIsAVia) {
    const BoardResult board = ReadVias("(padstack LAND (net A) (fromTo 1))");
    EXPECT_THAT(NetOf(board).vias, SizeIs(1));
    EXPECT_THAT(NetOf(board).surfaces, IsEmpty());
}

TEST(ZukenPCBParser_ViasTest, PadsOnTwoLayersWithoutAHoleAreSurfaces) {
    const BoardResult board = ReadVias("(padstack THRU (net A) (pt 10 20) (angle 90) (fromTo 1 3))");
    EXPECT_THAT(NetOf(board).vias, IsEmpty());
    EXPECT_THAT(SurfacesOf(board), ElementsAre(std::pair(std::string("Conductive_1"), geom::Box(9, 19, 11, 21)),
                                       std::pair(std::string("Conductive_3"), geom::Box(9, 18, 11, 22))));
}

TEST(ZukenPCBParser_ViasTest, PadThatDoesNotExistCountsAsNone) {
    EXPECT_THAT(NetOf(ReadVias("(padstack GHOST (net A) (fromTo 1 3))")).vias, SizeIs(1));
}

TEST(ZukenPCBParser_ViasTest, MultiLoopPadIsASurfaceForEachLoop) {
    const BoardResult board = ReadVias("(padstack LOOPS (net A) (pt 10 20))");
    EXPECT_THAT(NetOf(board).vias, IsEmpty());
    EXPECT_THAT(SurfacesOf(board), ElementsAre(std::pair(std::string("Conductive_1"), geom::Box(9, 19, 11, 21)),
                                       std::pair(std::string("Conductive_1"), geom::Box(8, 18, 12, 22))));
}

TEST(ZukenPCBParser_ViasTest, PadstackAtTheOriginStaysAsItIs) {
    const BoardResult board = ReadVias("(padstack LOOPS (net A) (pt 0 0) (angle 0))");
    std::vector<geom::Polygon> polygons;
    ZukenPCBParser::GetPadPolygons(*board.m_Parser->FindPad("two"), polygons);
    ASSERT_THAT(NetOf(board).surfaces, SizeIs(2));
    EXPECT_EQ(polygons.at(0), NetOf(board).surfaces[0]->outline.polygon);
    EXPECT_EQ(polygons.at(1), NetOf(board).surfaces[1]->outline.polygon);
}

TEST(ZukenPCBParser_ViasTest, UnknownPadstackIsReportedAndLeavesItsNet) {
    const BoardResult board = ReadVias("(padstack NOWHERE (net B)) (padstack 7 (net C)) (padstack LAND (net A))");
    EXPECT_EQ("Padstack NOWHERE not found in ftf file\nPadstack  not found in ftf file\n", board.m_Output);
    EXPECT_THAT(NetNamesOf(*board.m_Parser), ElementsAre("B", "C", "A"));
    EXPECT_THAT(NetOf(board).vias, SizeIs(1));
}

TEST(ZukenPCBParser_ViasTest, OrdinaryPadstackOfAPinIsNothingAtAll) {
    const BoardResult board = ReadVias("");
    FootprintPin* pin = board.m_Parser->FindFootprint("U")->FindPin("1");
    ASSERT_NE(nullptr, pin);
    EXPECT_TRUE(board.m_Parser->ReadPadstackLayer(
        ListOf("(layer (padstack VIA (net A) (fromTo 1 3)) (padstack LAND (net A)))"), false, pin));
    EXPECT_THAT(NetOf(board).vias, IsEmpty());
    EXPECT_THAT(NetOf(board).surfaces, IsEmpty());
    board.m_Parser->ReadPadstackLayer(ListOf("(layer (padstack LOOPS (net A)))"), false, pin);
    EXPECT_THAT(NetOf(board).surfaces, SizeIs(2)) << "a multi-loop one is drawn all the same";
}

TEST(ZukenPCBParser_ViasTest, OrdinaryPadstackOfAnUnknownPinIsAVia) {
    const BoardResult board = ReadVias("");
    board.m_Parser->ReadPadstackLayer(ListOf("(layer (padstack VIA (net A) (fromTo 1 3)))"), false, nullptr);
    EXPECT_THAT(NetOf(board).vias, SizeIs(1));
}

TEST(ZukenPCBParser_ViasTest, LayersOfABottomPinAreMirrored) {
    const BoardResult board = ReadVias("");
    board.m_Parser->ReadPadstackLayer(ListOf("(layer (padstack THRU (net A)))"), true, nullptr);
    EXPECT_THAT(SurfacesOf(board), ElementsAre(std::pair(std::string("Conductive_3"), geom::Box(-1, -1, 1, 1)),
                                       std::pair(std::string("Conductive_1"), geom::Box(-2, -1, 2, 1))));
}

TEST(ZukenPCBParser_ViasTest, OnlyNoConnectLayersAreKept) {
    const BoardResult board = ReadVias("(padstack VIA (net A) (fromTo 1 3) (conductive (layerNumber 1)"
                                       " (layerNumber 2 (STATUS NOCONNECT)) (layerNumber 3 (STATUS CONNECT))"
                                       " (layerNumber 1 (status)) (number 1 (STATUS NOCONNECT))"
                                       " (LAYERNUMBER 3 (status NoConnect)) (layerNumber 9 (STATUS NOCONNECT))))");
    EXPECT_THAT(TextsOf(OnlyViaOf(board).noConnectLayers), ElementsAre("Conductive_2", "Conductive_3", ""));
}

TEST(ZukenPCBParser_ViasTest, NoConnectLayersAreAppendedAndCounted) {
    std::vector<AString> names{"before"};
    const BoardResult board = ReadVias("");
    EXPECT_EQ(1, board.m_Parser->ReadNoConnectLayers(ListOf("(padstack VIA)"), names));
    EXPECT_EQ(2, board.m_Parser->ReadNoConnectLayers(
                     ListOf("(padstack VIA (conductive (layerNumber 2 (STATUS NOCONNECT))))"), names));
    EXPECT_THAT(TextsOf(names), ElementsAre("before", "Conductive_2"));
}

TEST(ZukenPCBParser_ViasTest, PadstackThatIsAViaIsNotDrawn) {
    const BoardResult board = ReadVias("");
    ZukenPCBParser& parser = *board.m_Parser;
    parser.AddPadstackSurfaces(parser.GetNet("A"), parser.FindPadstack("VIA"), geom::Transformation(), false);
    parser.AddPadstackSurfaces(parser.GetNet("A"), nullptr, geom::Transformation(), false);
    EXPECT_THAT(NetOf(board).surfaces, IsEmpty());
}

TEST(ZukenPCBParser_ViasTest, PadOfALayerThatTheStackupDoesNotHaveIsPassedOver) {
    const auto parser = ParseLibrary(TextOf(Library()));
    parser->AddPadstackSurfaces(parser->GetNet("A"), parser->FindPadstack("THRU"), geom::Transformation(), false);
    EXPECT_THAT(parser->GetNet("A")->surfaces, IsEmpty()) << "no stackup has been read";
}

TEST(ZukenPCBParser_ViasTest, WhatIsNoPadstackIsPassedOver) {
    EXPECT_THAT(NetNamesOf(*ReadVias("word 7 (pad dot (net B)) (PADSTACK land (net A))").m_Parser), ElementsAre("A"));
}
