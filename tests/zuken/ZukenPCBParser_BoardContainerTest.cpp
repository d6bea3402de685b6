#include "tests/zuken/BoardSections.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

TEST(ZukenPCBParser_BoardContainerTest, SectionsAreReadInAFixedOrder) {
    const auto parser = ParseBoard(
        "(pcf b (technologyContainer (technology t (conductiveLayer (layerNumber 1 (type POSI)))))"
        " (boardContainer (boardLayout (layout (layer (conductive 1) (line (net LAYOUT) (geometry (line"
        " (vertex (pt 0 0) (pt 1 1)))))))) (nets (net NETS (comp U1 (pin 1)))) (components (component (reference U1)"
        " (footprint U) (pin 1 (layout (layer (padstack X (net COMPONENTS)))))))))",
        TextOf(LibraryText{.m_Footprints = "(footprint U (toeprint (pin 1 (layout (layer (fPad dot))))))"}));
    EXPECT_THAT(NetNamesOf(*parser), ElementsAre("COMPONENTS", "NETS", "LAYOUT"));
    EXPECT_THAT(PinRefsOf(*parser->GetNet("NETS")), ElementsAre("U1.0")) << "components exist ahead of nets";
}

TEST(ZukenPCBParser_BoardContainerTest, EverySectionIsOptional) {
    const auto parser = ParseBoard("(pcf b (BOARDCONTAINER (NETS (net A)))"
                                   " (boardContainer (components (component (reference R1))))"
                                   " (boardContainer) (boardContainer (boardLayout)))");
    EXPECT_THAT(NetNamesOf(*parser), ElementsAre("A"));
    EXPECT_EQ(1U, ComponentsOf(*parser).size());
}

TEST(ZukenPCBParser_BoardContainerTest, FirstSectionOfANameCounts) {
    EXPECT_THAT(NetNamesOf(*ParseBoard("(pcf b (boardContainer (nets (net A)) (nets (net B))))")), ElementsAre("A"));
}

TEST(ZukenPCBParser_BoardContainerTest, BondwireLayersAreEnteredInThePadstacksAtTheEnd) {
    const BoardResult board =
        ReadBoard({.m_Components = "(component (reference U1) (footprint U) (pin 1 (bondwire (bondwire 1 (pt 0 0)))))"},
            {.m_Pads = "(pad dot (geometry (circle 1)))",
                .m_Padstacks = "(padstack LAND (padSet (footLayer TOP) (connect (pad dot))))",
                .m_Footprints = "(footprint U)"});
    EXPECT_EQ(3U, board.m_Parser->FindPadstack("LAND")->connectPads.size()) << "a place for the bond wire layer";
}
