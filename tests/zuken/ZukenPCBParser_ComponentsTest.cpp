#include "tests/zuken/BoardSections.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// Two footprints of one part, for the top and the bottom side, each with the pins 1 and 2.
constexpr char k_Footprints[] = "(footprint R2 (toeprint (pin 1 (layout (layer (fPad dot (pt -1 0)))))"
                                " (pin 2 (layout (layer (fPad dot (pt 1 0)))))))"
                                "(footprint R2_REV (toeprint (pin 1 (layout (layer (fPad dot (pt 1 0)))))"
                                " (pin 2 (layout (layer (fPad dot (pt -1 0)))))))";

BoardResult ReadComponents(const std::string& components, int layerCount = 3) {
    return ReadBoard({.m_LayerCount = layerCount, .m_Components = components},
        {.m_Pads = "(pad dot (geometry (circle 0.5)))", .m_Footprints = k_Footprints});
}

/// The only component of a board.
const Component& OnlyOf(const BoardResult& board) {
    EXPECT_THAT(ComponentsOf(*board.m_Parser), SizeIs(1));
    return *ComponentsOf(*board.m_Parser).at(0);
}

} // namespace

TEST(ZukenPCBParser_ComponentsTest, EveryPropertyIsRead) {
    const BoardResult board = ReadComponents("(component (reference R17) (part \"10k 1%\") (footprint R2)"
                                             " (placementSide A) (location (pt 12.5 -3)) (angle 90) (placed YES))");
    const Component& component = OnlyOf(board);
    EXPECT_EQ("R17", component.name.QRL_ANSI());
    EXPECT_EQ("Component_1", component.id.QRL_ANSI());
    EXPECT_EQ("10k 1%", component.partNumber.QRL_ANSI());
    EXPECT_EQ(board.m_Parser->FindFootprint("R2"), component.footprint);
    EXPECT_EQ(geom::Point(12.5, -3), component.location);
    EXPECT_EQ(90.0, component.angle);
    EXPECT_FALSE(component.mirrored);
    EXPECT_EQ("Conductive_1", component.layerName.QRL_ANSI());
    EXPECT_TRUE(component.value.empty());
    EXPECT_TRUE(component.active);
    EXPECT_THAT(component.pins, IsEmpty());
}

TEST(ZukenPCBParser_ComponentsTest, LocationIsScaledAndAngleIsNot) {
    const auto parser = MakeParser();
    parser->ReadUnits(ListOf("(header (unit DBUNIT))"));
    ASSERT_TRUE(parser->ReadComponent(ListOf("(component (location (pt 300000 -700000)) (angle 45))"), "Component_1"));
    EXPECT_EQ(geom::Point(300000 * 1e-5, -700000 * 1e-5), ComponentsOf(*parser).at(0)->location);
    EXPECT_EQ(45.0, ComponentsOf(*parser).at(0)->angle);
}

TEST(ZukenPCBParser_ComponentsTest, NumberAsAReferenceGivesItsText) {
    EXPECT_EQ("17", OnlyOf(ReadComponents("(component (reference 17))")).name.QRL_ANSI());
}

TEST(ZukenPCBParser_ComponentsTest, WordAsAReferenceIsTheName) {
    EXPECT_EQ("R17", OnlyOf(ReadComponents("(component (reference R17))")).name.QRL_ANSI());
}

TEST(ZukenPCBParser_ComponentsTest, MissingReferenceGivesAnEmptyName) {
    EXPECT_TRUE(OnlyOf(ReadComponents("(component (part X))")).name.empty());
    EXPECT_TRUE(OnlyOf(ReadComponents("(component (reference 1.5))")).name.empty()) << "neither text nor whole number";
}

TEST(ZukenPCBParser_ComponentsTest, PartKeepsItsTextWhateverItsKind) {
    EXPECT_EQ("007", OnlyOf(ReadComponents("(component (part 007))")).partNumber.QRL_ANSI());
    EXPECT_EQ("1.50", OnlyOf(ReadComponents("(component (part 1.50))")).partNumber.QRL_ANSI());
    EXPECT_EQ("LM317", OnlyOf(ReadComponents("(component (part LM317))")).partNumber.QRL_ANSI());
    EXPECT_EQ("", OnlyOf(ReadComponents("(component (part))")).partNumber.QRL_ANSI());
    EXPECT_EQ("", OnlyOf(ReadComponents("(component (part (name LM317)))")).partNumber.QRL_ANSI());
}

TEST(ZukenPCBParser_ComponentsTest, NumberAsAFootprintGivesItsText) {
    const BoardResult board =
        ReadBoard({.m_Components = "(component (reference C1) (footprint 402))"}, {.m_Footprints = "(footprint 402)"});
    EXPECT_EQ(board.m_Parser->FindFootprint("402"), OnlyOf(board).footprint);
    EXPECT_NE(nullptr, OnlyOf(board).footprint);
}

TEST(ZukenPCBParser_ComponentsTest, BottomComponentTurnsTheOtherWay) {
    const Component* component = nullptr;
    const BoardResult quarter = ReadComponents("(component (placementSide B) (angle 90))");
    component = &OnlyOf(quarter);
    EXPECT_EQ(270.0, component->angle);
    EXPECT_TRUE(component->mirrored);
}

TEST(ZukenPCBParser_ComponentsTest, BottomComponentThatIsntTurnedGetsAFullTurn) {
    EXPECT_EQ(360.0, OnlyOf(ReadComponents("(component (placementSide B) (angle 0))")).angle);
}

TEST(ZukenPCBParser_ComponentsTest, BottomComponentWithAReverseFootprintIsOnTheTopLayer) {
    const BoardResult board = ReadComponents("(component (footprint R2) (reverseFootprint R2_REV) (placementSide B))");
    const Component& component = OnlyOf(board);
    EXPECT_TRUE(component.mirrored);
    EXPECT_EQ("Conductive_1", component.layerName.QRL_ANSI());
    EXPECT_EQ(board.m_Parser->FindFootprint("R2_REV"), component.footprint);
}

TEST(ZukenPCBParser_ComponentsTest, BottomComponentWithoutAReverseFootprintIsOnTheLastLayer) {
    const BoardResult board = ReadComponents("(component (footprint R2) (placementSide B))");
    const Component& component = OnlyOf(board);
    EXPECT_TRUE(component.mirrored);
    EXPECT_EQ("Conductive_3", component.layerName.QRL_ANSI());
    EXPECT_EQ(board.m_Parser->FindFootprint("R2"), component.footprint);
}

TEST(ZukenPCBParser_ComponentsTest, UnknownReverseFootprintLeavesTheOtherOne) {
    const BoardResult board =
        ReadComponents("(component (footprint R2) (reverseFootprint NOWHERE) (placementSide B) (pin 1))");
    EXPECT_EQ(board.m_Parser->FindFootprint("R2"), OnlyOf(board).footprint);
    EXPECT_EQ("Conductive_3", OnlyOf(board).layerName.QRL_ANSI());
    EXPECT_EQ("", board.m_Output);
}

TEST(ZukenPCBParser_ComponentsTest, ReverseFootprintOfATopComponentIsntUsed) {
    const BoardResult board = ReadComponents("(component (footprint R2) (reverseFootprint R2_REV) (placementSide A))");
    EXPECT_EQ(board.m_Parser->FindFootprint("R2"), OnlyOf(board).footprint);
}

TEST(ZukenPCBParser_ComponentsTest, SideMatchesInAnyCase) {
    EXPECT_TRUE(OnlyOf(ReadComponents("(component (placementSide b))")).mirrored);
    EXPECT_FALSE(OnlyOf(ReadComponents("(component (placementSide BOTTOM))")).mirrored);
}

TEST(ZukenPCBParser_ComponentsTest, RejectedComponentsTakeUpANumber) {
    const BoardResult board = ReadComponents("(component (reference R1) (footprint R2) (pin 1))"
                                             "(component (reference R2) (footprint NOWHERE) (pin 1))"
                                             "(shape (reference R3))"
                                             "(COMPONENT (reference R4) (footprint R2) (pin 1))");
    const std::vector<Component*> components = ComponentsOf(*board.m_Parser);
    ASSERT_THAT(components, SizeIs(2));
    EXPECT_EQ("Component_1", components[0]->id.QRL_ANSI());
    EXPECT_EQ("Component_3", components[1]->id.QRL_ANSI());
}

TEST(ZukenPCBParser_ComponentsTest, UnknownFootprintOfAComponentWithAPinIsReportedAndDropsIt) {
    const BoardResult board = ReadComponents("(component (reference R.) (footprint NOWHERE) (pin 1) (pin 2))"
                                             "(component (reference R2) (footprint R2) (pin 1))");
    EXPECT_EQ("Unable to find footprint NOWHERE for component R.\n", board.m_Output);
    EXPECT_EQ("R2", OnlyOf(board).name.QRL_ANSI());
    EXPECT_FALSE(board.m_Parser->GetNameMap().HasReference("R."));
}

TEST(ZukenPCBParser_ComponentsTest, UnknownFootprintOfAComponentWithoutPinsLeavesNone) {
    const BoardResult board = ReadComponents("(component (reference R1) (footprint NOWHERE))");
    EXPECT_EQ(nullptr, OnlyOf(board).footprint);
    EXPECT_EQ("", board.m_Output);
}

TEST(ZukenPCBParser_ComponentsTest, PinAheadOfTheFootprintDropsTheComponent) {
    const BoardResult board = ReadComponents("(component (reference R1) (pin 1) (footprint R2))");
    EXPECT_EQ("Unable to find footprint  for component R1\n", board.m_Output);
    EXPECT_THAT(ComponentsOf(*board.m_Parser), IsEmpty());
}

TEST(ZukenPCBParser_ComponentsTest, EmptyStackupLeavesTheLayerNameEmpty) {
    EXPECT_EQ("", OnlyOf(ReadComponents("(component (reference R1))", 0)).layerName.QRL_ANSI());
}

TEST(ZukenPCBParser_ComponentsTest, LayoutIsPlacedByWhatStandsAheadOfIt) {
    constexpr char k_Refer[] = "(layout (layer (conductive 1) (refer (surface (net GND)"
                               " (geometry (surface (vertex (pt 0 0) (pt 2 0) (pt 0 1))))))))";
    const BoardResult before =
        ReadComponents(std::string("(component (reference R1) ") + k_Refer + " (location (pt 10 20)))");
    const BoardResult behind =
        ReadComponents(std::string("(component (reference R1) (location (pt 10 20)) ") + k_Refer + ")");
    EXPECT_THAT(CornersOf(before.m_Parser->GetNet("GND")->surfaces.at(0)->outline.polygon),
        ElementsAre(geom::Point(0, 0), geom::Point(2, 0), geom::Point(0, 1)));
    EXPECT_THAT(CornersOf(behind.m_Parser->GetNet("GND")->surfaces.at(0)->outline.polygon),
        ElementsAre(geom::Point(10, 20), geom::Point(12, 20), geom::Point(10, 21)));
}

TEST(ZukenPCBParser_ComponentsTest, LayoutOfABottomComponentIsMirrored) {
    const BoardResult board =
        ReadComponents("(component (location (pt 10 20)) (angle 90) (placementSide B) (layout (layer (conductive 1)"
                       " (refer (surface (net GND) (geometry (surface (vertex (pt 1 0) (pt 3 0) (pt 1 2))))))))");
    // By 270 degrees about (10, 20): (10, 19), (10, 17), (12, 19). Mirrored about x = 10: (10, 19), (10, 17), (8, 19),
    // and turned round, so that it runs counter-clockwise again.
    EXPECT_THAT(CornersOf(board.m_Parser->GetNet("GND")->surfaces.at(0)->outline.polygon),
        testing::UnorderedElementsAre(geom::Point(10, 19), geom::Point(10, 17), geom::Point(8, 19)));
}

TEST(ZukenPCBParser_ComponentsTest, ReadComponentTellsWhetherARecordWasMade) {
    const auto parser = MakeParser();
    EXPECT_TRUE(parser->ReadComponent(ListOf("(component (reference R1))"), "Component_1"));
    testing::internal::CaptureStdout();
    EXPECT_FALSE(parser->ReadComponent(ListOf("(component (reference R2) (pin 1))"), "Component_2"));
    testing::internal::GetCapturedStdout();
    EXPECT_THAT(ComponentsOf(*parser), SizeIs(1));
}

TEST(ZukenPCBParser_ComponentsTest, ReadComponentsIsAlwaysTrue) {
    EXPECT_TRUE(MakeParser()->ReadComponents(ListOf("(components word 7)")));
}
