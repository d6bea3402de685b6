#include "tests/AssertionRecorder.h"
#include "tests/zuken/BoardSections.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// A board of these layers and this layout, with the padstack LAND of one pad, which is 8 wide.
std::unique_ptr<ZukenPCBParser> Parse(const std::string& layers, const std::string& layout) {
    return ParseBoard("(pcf b (technologyContainer (technology t (conductiveLayer " + layers +
                          "))) (boardContainer (boardLayout (layout " + layout + "))))",
        TextOf(LibraryText{.m_Pads = "(pad dot (geometry (circle 4)))",
            .m_Padstacks = "(padstack LAND (padSet (footLayer TOP) (connect (pad dot))))"}));
}

constexpr char k_Layers[] = "(layerNumber 1 (type POSI)) (layerNumber 2 (type POSINEGA) (signalName VCC))"
                            "(layerNumber 3 (type FULLSURF) (signalName GND)) (layerNumber 4 (type FULLSURF))"
                            "(layerNumber 5 (type FULLSURF) (signalName gnd))";

/// A line from (10, 20) to (30, 60).
constexpr char k_Line[] =
    "(layer (conductive 1) (line (net A) (geometry (line (vertex (pt 10 20 (width 6)) (pt 30 60))))))";

} // namespace

TEST(ZukenPCBParser_FinishTest, FullSurfaceFillsTheBoard) {
    const auto parser = Parse(k_Layers, k_Line);
    EXPECT_THAT(NetNamesOf(*parser), ElementsAre("A", "GND"));
    const std::vector<Surface*>& planes = parser->GetNet("GND")->surfaces;
    ASSERT_THAT(planes, SizeIs(2));
    EXPECT_EQ("Conductive_3", planes[0]->layer.QRL_ANSI());
    EXPECT_EQ("Conductive_5", planes[1]->layer.QRL_ANSI());
    for (const Surface* plane : planes) {
        // About the centre (20, 40) of the line's box, 20 * 1.1 wide and 40 * 1.1 high: neither widths nor the planes
        // themselves count.
        EXPECT_EQ(geom::Box(geom::Point(20, 40), 20 * 1.1, 40 * 1.1), plane->outline.polygon.GetBox());
        EXPECT_THAT(plane->outline.polygon.GetArcs(), SizeIs(4));
        EXPECT_EQ(0.0, plane->outline.halfWidth);
    }
}

TEST(ZukenPCBParser_FinishTest, LayerOfAFullSurfaceIsAPlaneOfItsNet) {
    const auto parser = Parse("(layerNumber 3 (type FULLSURF) (signalName GND))", k_Line);
    const Layer* layer = LayersOf(*parser).at(0);
    EXPECT_EQ("Conductive_3", layer->name.QRL_ANSI());
    EXPECT_EQ(Layer::k_Plane, layer->type);
    EXPECT_EQ("GND", layer->signalName.QRL_ANSI());
    EXPECT_THAT(parser->GetNet("GND")->surfaces, SizeIs(1));
}

TEST(ZukenPCBParser_FinishTest, BoardHoldsViasSurfacesAndVerticesOfAllNets) {
    const auto parser = Parse("(layerNumber 3 (type FULLSURF) (signalName GND))",
        std::string(k_Line) +
            "(layer (conductive 1) (surface (net B) (geometry (surface (vertex (pt -70 0) (pt 0 5) (pt 0 9))))))"
            "(layer (systemLayer (type PADSTACK)) (padstack LAND (net C) (pt 30 100)))");
    // From (-70, 0) to (30, 100); the via's pad doesn't count.
    EXPECT_EQ(geom::Box(geom::Point(-20, 50), 100 * 1.1, 100 * 1.1),
        parser->GetNet("GND")->surfaces.at(0)->outline.polygon.GetBox());
}

TEST(ZukenPCBParser_FinishTest, EmptyBoardTreeIsReported) {
    ZukenPCBParser parser{io::CBlock(), io::CBlock()};
    AssertionRecorder recorder;
    EXPECT_TRUE(parser.ParseBoardFile());
    EXPECT_THAT(AssertionRecorder::Take(), ElementsAre("!IsEmpty(), Range_T"));
    EXPECT_THAT(NetNamesOf(parser), IsEmpty());
}

TEST(ZukenPCBParser_FinishTest, BoardWithoutNetObjectsIsReportedAndHasEmptyPlanes) {
    ZukenPCBParser parser(io::CBlock(), ReadListText("(pcf b (technologyContainer (technology t (conductiveLayer"
                                                     " (layerNumber 3 (type FULLSURF) (signalName GND))))))"));
    AssertionRecorder recorder;
    parser.ParseBoardFile();
    EXPECT_THAT(AssertionRecorder::Take(), ElementsAre("!IsEmpty(), Range_T"));
    ASSERT_THAT(parser.GetNet("GND")->surfaces, SizeIs(1));
    EXPECT_TRUE(parser.GetNet("GND")->surfaces[0]->outline.polygon.empty());
}

TEST(ZukenPCBParser_FinishTest, BoardOfOnePointIsThatPoint) {
    const auto parser = Parse("(layerNumber 3 (type FULLSURF) (signalName GND))",
        "(layer (systemLayer (type PADSTACK)) (padstack LAND (net C) (pt 30 100)))");
    EXPECT_EQ(geom::Box(geom::Point(30, 100)), parser->GetNet("GND")->surfaces.at(0)->outline.polygon.GetBox());
}
