#include "tests/AssertionRecorder.h"
#include "tests/zuken/BoardSections.h"

#include <gmock/gmock.h>

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

const LibraryText& Library() {
    static const LibraryText library{.m_Pads = "(pad dot (geometry (circle 1)))"
                                               "(pad bar (geometry (rectangle (width 4) (height 2))))"
                                               "(pad two (geometry (circle 1)) (geometry (circle 2)))",
        .m_Padstacks = "(padstack LAND (padSet (footLayer TOP) (connect (pad dot))))"};
    return library;
}

BoardResult ReadLayers(const std::string& layers) { return ReadBoard({.m_Layout = layers}, Library()); }

/// What stands on conductive layer 2 of a board.
BoardResult ReadItems(const std::string& items) { return ReadLayers("(layer (conductive 2) " + items + ")"); }

const Net& NetOf(const BoardResult& board, const char* name) { return *board.m_Parser->GetNet(name); }

constexpr char k_Triangle[] = "(vertex (pt 0 0) (pt 2 0) (pt 0 1))";

} // namespace

TEST(ZukenPCBParser_LayoutTest, EveryItemOfAConductiveLayerIsReadWithItsNet) {
    const std::string shape = k_Triangle;
    const BoardResult board = ReadItems("(line (net A) (geometry (line (vertex (pt 0 0) (pt 1 0)))))"
                                        "(surface (net B) (geometry (surface " +
                                        shape +
                                        ")))"
                                        "(meshplane (net C) (geometry (meshplane " +
                                        shape +
                                        ")))"
                                        "(refer (surface (net D) (geometry (surface " +
                                        shape +
                                        "))))"
                                        "(pad dot (net E) (pt 1 2))"
                                        "(text (net F)) word 7");
    EXPECT_THAT(NetNamesOf(*board.m_Parser), ElementsAre("A", "B", "C", "D", "E"));
    EXPECT_EQ("Conductive_2", NetOf(board, "A").traces.at(0)->layer.QRL_ANSI());
    for (const char* name : {"B", "C", "D", "E"}) {
        ASSERT_THAT(NetOf(board, name).surfaces, SizeIs(1)) << name;
        EXPECT_EQ("Conductive_2", NetOf(board, name).surfaces[0]->layer.QRL_ANSI()) << name;
    }
}

TEST(ZukenPCBParser_LayoutTest, ItemWithoutANetBelongsToTheDummy) {
    EXPECT_THAT(NetNamesOf(*ReadItems("(line) (surface) (refer)").m_Parser), ElementsAre("ZUKEN_DUMMY"));
}

TEST(ZukenPCBParser_LayoutTest, LineWithoutAGeometryIsAnEmptyTrace) {
    const BoardResult board = ReadItems("(line (net A)) (line (net A) (geometry))");
    ASSERT_THAT(NetOf(board, "A").traces, SizeIs(2));
    EXPECT_THAT(NetOf(board, "A").traces[0]->vertices, IsEmpty());
}

TEST(ZukenPCBParser_LayoutTest, SurfaceAndMeshplaneLookForAShapeOfTheirName) {
    const std::string shape = k_Triangle;
    EXPECT_THAT(NetOf(ReadItems("(surface (net A) (geometry (meshplane " + shape + ")))"), "A").surfaces, IsEmpty());
    EXPECT_THAT(NetOf(ReadItems("(meshplane (net A) (geometry (surface " + shape + ")))"), "A").surfaces, IsEmpty());
}

TEST(ZukenPCBParser_LayoutTest, UnknownLayerNumberGivesAnEmptyName) {
    const BoardResult board = ReadLayers("(layer (conductive 9) (line (net A))) (layer (conductive) (line (net A)))");
    ASSERT_THAT(NetOf(board, "A").traces, SizeIs(2));
    EXPECT_EQ("", NetOf(board, "A").traces[0]->layer.QRL_ANSI());
    EXPECT_EQ("", NetOf(board, "A").traces[1]->layer.QRL_ANSI());
}

TEST(ZukenPCBParser_LayoutTest, OnlySystemLayersOfTypePadstackAreReadForPadstacks) {
    EXPECT_THAT(NetNamesOf(*ReadLayers("(layer (systemLayer (type HOLE)) (padstack LAND (net A)))"
                                       "(layer (systemLayer) (padstack LAND (net B)))"
                                       "(layer (padstack LAND (net C)))"
                                       "(shape (systemLayer (type PADSTACK)) (padstack LAND (net D)))"
                                       "(LAYER (SYSTEMLAYER (TYPE padstack)) (PADSTACK land (NET E)))")
                                .m_Parser),
        ElementsAre("E"));
}

TEST(ZukenPCBParser_LayoutTest, ConductiveLayerIsNotReadForPadstacks) {
    EXPECT_THAT(
        NetNamesOf(
            *ReadLayers("(layer (systemLayer (type PADSTACK)) (conductive 1) (padstack LAND (net A)))").m_Parser),
        IsEmpty());
}

TEST(ZukenPCBParser_LayoutTest, PadstacksCanBeSkipped) {
    const BoardResult board = ReadLayers("");
    const io::CBlock_func block = ListOf("(pin (layout (layer (systemLayer (type PADSTACK)) (padstack LAND (net A)))"
                                         " (layer (conductive 1) (line (net B)))))");
    EXPECT_TRUE(board.m_Parser->ReadLayout(block, true, false, nullptr, geom::k_Origin, 0.0, false));
    EXPECT_THAT(NetNamesOf(*board.m_Parser), ElementsAre("B"));
}

TEST(ZukenPCBParser_LayoutTest, MissingLayoutIsTold) {
    EXPECT_FALSE(MakeParser()->ReadLayout(ListOf("(pin 1)"), false, false, nullptr, geom::k_Origin, 0.0, false));
}

TEST(ZukenPCBParser_LayoutTest, OnlyReferencesArePlaced) {
    const std::string shape = k_Triangle;
    const auto parser = MakeParser();
    parser->ReadLayout(ListOf("(component (layout (layer (conductive 1)"
                              " (surface (net A) (geometry (surface " +
                              shape +
                              ")))"
                              " (refer (surface (net B) (geometry (surface " +
                              shape + ")))))))"),
        false, false, nullptr, geom::Point(10, 20), 180, false);
    EXPECT_THAT(CornersOf(parser->GetNet("A")->surfaces.at(0)->outline.polygon),
        ElementsAre(geom::Point(0, 0), geom::Point(2, 0), geom::Point(0, 1)));
    EXPECT_THAT(CornersOf(parser->GetNet("B")->surfaces.at(0)->outline.polygon),
        ElementsAre(geom::Point(10, 20), geom::Point(8, 20), geom::Point(10, 19)));
}

TEST(ZukenPCBParser_LayoutTest, ReferenceWithoutAGeometryIsTheShapeItself) {
    const BoardResult board = ReadItems(std::string("(refer (surface (net A) ") + k_Triangle + "))");
    EXPECT_THAT(NetOf(board, "A").surfaces, SizeIs(1));
}

TEST(ZukenPCBParser_LayoutTest, PadIsTurnedAboutItsPoint) {
    const BoardResult board = ReadItems("(pad bar (net A) (pt 10 20) (angle 90))");
    ASSERT_THAT(NetOf(board, "A").surfaces, SizeIs(1));
    EXPECT_EQ(geom::Box(9, 18, 11, 22), NetOf(board, "A").surfaces[0]->outline.polygon.GetBox());
    EXPECT_EQ(0.0, NetOf(board, "A").surfaces[0]->outline.halfWidth);
}

TEST(ZukenPCBParser_LayoutTest, PadOfSeveralLoopsIsASurfaceForEach) {
    const BoardResult board = ReadItems("(pad two (net A) (pt 10 20))");
    ASSERT_THAT(NetOf(board, "A").surfaces, SizeIs(2));
    EXPECT_EQ(geom::Box(geom::Point(10, 20), 2), NetOf(board, "A").surfaces[0]->outline.polygon.GetBox());
    EXPECT_EQ(geom::Box(geom::Point(10, 20), 4), NetOf(board, "A").surfaces[1]->outline.polygon.GetBox());
}

TEST(ZukenPCBParser_LayoutTest, UnknownPadGivesNothingAndNoMessage) {
    const BoardResult board = ReadItems("(pad nowhere (net A) (pt 10 20))");
    EXPECT_EQ("", board.m_Output);
    EXPECT_THAT(NetNamesOf(*board.m_Parser), ElementsAre("A")) << "only its net has been met";
    EXPECT_THAT(NetOf(board, "A").surfaces, IsEmpty());
}

TEST(ZukenPCBParser_LayoutTest, UnknownPadstackGivesAMessage) {
    EXPECT_EQ("Padstack nowhere not found in ftf file\n",
        ReadLayers("(layer (systemLayer (type PADSTACK)) (padstack nowhere (net A)))").m_Output);
}

TEST(ZukenPCBParser_LayoutTest, OneNetNameIsReportedAndReadAllTheSame) {
    const std::string report = "netName.CompareNoCase ( \"SATA1_TX_DN\" ), ZukenPCBParser";
    const auto parser = MakeParser();
    AssertionRecorder recorder;
    parser->ReadLayout(ListOf("(board (layout (layer (conductive 1) (line (net sata1_tx_dn)))))"), false, false,
        nullptr, geom::k_Origin, 0.0, false);
    EXPECT_THAT(AssertionRecorder::Take(), ElementsAre(report));
    EXPECT_THAT(parser->GetNet("SATA1_TX_DN")->traces, SizeIs(1));
    parser->ReadLayout(
        ListOf("(board (layout (layer (conductive 1) (line (net SATA1_TX_DP)) (surface (net SATA1_TX_DN)))))"), false,
        false, nullptr, geom::k_Origin, 0.0, false);
    EXPECT_THAT(AssertionRecorder::Take(), Not(Contains(report)));
}
