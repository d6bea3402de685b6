#include "model/PadCircle.h"
#include "tests/zuken/LibraryText.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr char k_Technology[] = "(technologyContainer (technology t (footprintLayer"
                                " (layer TOP (type CONDUCTIVE)) (layer BOT (type CONDUCTIVE)))))";

/// A library with one disc of radius 0.5, in its own unit, and the given header.
std::string DiscLibrary(const std::string& header) {
    return "(ftf lib " + header + "(footprintContainer (pads (pad disc (geometry (circle 0.5))))))";
}

double DiameterOf(const ZukenPCBParser& parser) {
    return dynamic_cast<const PadCircle&>(*parser.FindPad("disc")).diameter;
}

/// A library whose padstack names both layers, made of sections in the given order.
std::string PadstackLibrary(const std::string& ahead, const std::string& behind) {
    return "(ftf lib " + ahead +
           "(footprintContainer (pads (pad disc (geometry (circle 1))))"
           " (padstacks (padstack via (padSet (footLayer TOP) (connect (pad disc)))"
           " (padSet (footLayer BOT) (connect (pad disc))))))" +
           behind + ")";
}

} // namespace

TEST(ZukenPCBParser_FootprintFileTest, EmptyTreeGivesTrueAndEmptyLists) {
    const auto parser = ParseLibrary("");
    EXPECT_THAT(PadsOf(*parser), IsEmpty());
    EXPECT_THAT(PadstacksOf(*parser), IsEmpty());
    EXPECT_THAT(FootprintsOf(*parser), IsEmpty());
    EXPECT_FALSE(parser->HasFootprintLayer("TOP"));
}

TEST(ZukenPCBParser_FootprintFileTest, UnitInSmallLettersIsReadLikeInCapitals) {
    EXPECT_EQ("mil", ParseLibrary(DiscLibrary("(header (unit mil))"))->GetUnitName().QRL_ANSI());
}

TEST(ZukenPCBParser_FootprintFileTest, UnknownUnitLeavesTheScaleAtOneAndMillimetres) {
    const auto parser = ParseLibrary(DiscLibrary("(header (unit FURLONG))"));
    EXPECT_EQ("mm", parser->GetUnitName().QRL_ANSI());
    EXPECT_EQ(1.0, DiameterOf(*parser));
}

TEST(ZukenPCBParser_FootprintFileTest, DatabaseUnitsBecomeMillimetres) {
    EXPECT_DOUBLE_EQ(1e-5, DiameterOf(*ParseLibrary(DiscLibrary("(header (unit DBUNIT))"))));
}

TEST(ZukenPCBParser_FootprintFileTest, MissingHeaderLeavesTheScaleAtOne) {
    EXPECT_EQ(1.0, DiameterOf(*ParseLibrary(DiscLibrary(""))));
}

TEST(ZukenPCBParser_FootprintFileTest, HeaderBehindThePadsComesTooLateForThem) {
    const std::string text = DiscLibrary("");
    const auto parser = ParseLibrary(text.substr(0, text.size() - 1) + "(header (unit DBUNIT)))");
    EXPECT_EQ(1.0, DiameterOf(*parser));
}

TEST(ZukenPCBParser_FootprintFileTest, LayerOfAnotherTypeBetweenTwoConductiveOnesTakesNoNumber) {
    const auto parser = ParseLibrary("(ftf lib (technologyContainer (technology t (footprintLayer"
                                     " (layer TOP (type CONDUCTIVE)) (layer MASK (type RESIST))"
                                     " (layer BOT (type CONDUCTIVE))))))");
    EXPECT_EQ(1U, parser->GetFootprintLayerNumber("TOP"));
    EXPECT_FALSE(parser->HasFootprintLayer("MASK"));
    EXPECT_EQ(2U, parser->GetFootprintLayerNumber("BOT"));
}

TEST(ZukenPCBParser_FootprintFileTest, LayerWithoutATypeTakesNoNumber) {
    const auto parser = ParseLibrary("(ftf lib (technologyContainer (technology t (footprintLayer"
                                     " (layer BARE) (layer TOP (type conductive))))))");
    EXPECT_FALSE(parser->HasFootprintLayer("BARE"));
    EXPECT_EQ(1U, parser->GetFootprintLayerNumber("TOP"));
}

TEST(ZukenPCBParser_FootprintFileTest, OnlyLayerListsAreLayers) {
    const auto parser = ParseLibrary("(ftf lib (technologyContainer (technology t (footprintLayer TOP 7"
                                     " (plane BOT (type CONDUCTIVE)) (LAYER MID (TYPE CONDUCTIVE))))))");
    EXPECT_FALSE(parser->HasFootprintLayer("BOT"));
    EXPECT_EQ(1U, parser->GetFootprintLayerNumber("MID"));
}

TEST(ZukenPCBParser_FootprintFileTest, LayerNamedByANumberHasAnEmptyName) {
    const auto parser = ParseLibrary("(ftf lib (technologyContainer (technology t (footprintLayer"
                                     " (layer 3 (type CONDUCTIVE))))))");
    EXPECT_EQ(1U, parser->GetFootprintLayerNumber(""));
}

TEST(ZukenPCBParser_FootprintFileTest, FootprintLayersAreToldApartFromTheBoards) {
    const auto parser = ParseLibrary(PadstackLibrary(k_Technology, ""));
    const FPLayer* top = parser->FindFootprintLayer("TOP");
    EXPECT_TRUE(top->IsFPLayer());
    EXPECT_EQ(0U, top->type);
    EXPECT_EQ(0.0, top->thickness);
    EXPECT_THAT(top->conductiveNumbers, IsEmpty());
    EXPECT_THAT(LayersOf(*parser), IsEmpty());
}

TEST(ZukenPCBParser_FootprintFileTest, SecondTechnologyCountsFromOneAgain) {
    const auto parser = ParseLibrary("(ftf lib (technologyContainer (technology t (footprintLayer"
                                     " (layer TOP (type CONDUCTIVE)) (layer BOT (type CONDUCTIVE)))))"
                                     " (technologyContainer (technology u (footprintLayer"
                                     " (layer MID (type CONDUCTIVE))))))");
    EXPECT_EQ(2U, parser->GetFootprintLayerNumber("BOT"));
    EXPECT_EQ(1U, parser->GetFootprintLayerNumber("MID"));
}

TEST(ZukenPCBParser_FootprintFileTest, TechnologyWithoutLayersToNumberIsFalse) {
    ZukenPCBParser parser{io::CBlock(), io::CBlock()};
    EXPECT_FALSE(parser.ReadTechnology(ListOf("(technologyContainer)")));
    EXPECT_FALSE(parser.ReadTechnology(ListOf("(technologyContainer (technology t))")));
    EXPECT_TRUE(parser.ReadTechnology(ListOf("(technologyContainer (technology t (footprintLayer)))")));
}

TEST(ZukenPCBParser_FootprintFileTest, WithoutATechnologyPadstacksHaveNoLayers) {
    const auto parser = ParseLibrary(PadstackLibrary("(technologyContainer)", ""));
    ASSERT_THAT(PadstacksOf(*parser), SizeIs(1));
    EXPECT_THAT(PadstacksOf(*parser)[0]->connectPads, IsEmpty());
}

TEST(ZukenPCBParser_FootprintFileTest, ContainerAheadOfTheTechnologyGivesPadstacksWithoutLayers) {
    const auto late = ParseLibrary(PadstackLibrary("", k_Technology));
    ASSERT_THAT(PadstacksOf(*late), SizeIs(1));
    EXPECT_THAT(PadstacksOf(*late)[0]->connectPads, IsEmpty());
    EXPECT_TRUE(late->HasFootprintLayer("TOP"));

    const auto early = ParseLibrary(PadstackLibrary(k_Technology, ""));
    ASSERT_THAT(PadstacksOf(*early), SizeIs(1));
    EXPECT_THAT(PadstacksOf(*early)[0]->connectPads, SizeIs(2));
}

TEST(ZukenPCBParser_FootprintFileTest, PadsBehindThePadstacksComeTooLateForThem) {
    const auto parser = ParseLibrary(std::string("(ftf lib ") + k_Technology +
                                     "(footprintContainer (padstacks (padstack via (padSet (footLayer TOP)"
                                     " (connect (pad disc))))) (pads (pad disc (geometry (circle 1))))))");
    ASSERT_THAT(PadstacksOf(*parser), SizeIs(1));
    ASSERT_NE(nullptr, PadstacksOf(*parser)[0]->connectPads[0]);
    EXPECT_EQ(nullptr, PadstacksOf(*parser)[0]->connectPads[0]->pad);
}

TEST(ZukenPCBParser_FootprintFileTest, EachLibraryListIsReadAndOthersArePassedOver) {
    const auto parser = ParseLibrary("stray (other (footprintContainer (pads (pad lost (geometry (circle 1))))))"
                                     "(ftf a 1 (unknown) (footprintContainer (pads (pad one (geometry (circle 1))))))"
                                     "(FTF b (FOOTPRINTCONTAINER (PADS (PAD two (GEOMETRY (CIRCLE 1))))))");
    EXPECT_THAT(NamesOf_T(PadsOf(*parser)), ElementsAre("one", "two"));
}

TEST(ZukenPCBParser_FootprintFileTest, ContainerPassesOverWhatItDoesNotKnow) {
    const auto parser = ParseLibrary("(ftf lib (footprintContainer 7 word (symbols (pad lost (geometry (circle 1))))"
                                     " (footprints (footprint kept))))");
    EXPECT_THAT(PadsOf(*parser), IsEmpty());
    EXPECT_THAT(NamesOf_T(FootprintsOf(*parser)), ElementsAre("kept"));
}
