#include "model/PadCircle.h"
#include "tests/zuken/LibraryText.h"

#include <gmock/gmock.h>

namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsNull;
using testing::SizeIs;

constexpr char k_Pads[] = "(pad small (geometry (circle 1))) (pad large (geometry (circle 2)))";

std::unique_ptr<ZukenPCBParser> ParseFootprints(const std::string& footprints) {
    return ParseLibrary(TextOf({.m_Pads = k_Pads, .m_Footprints = footprints}));
}

/// What MakeUniqueName makes of each name in turn.
std::vector<std::string> UniqueNames(const std::vector<std::string>& names) {
    UsedNames used;
    std::vector<std::string> unique;
    for (const std::string& name : names)
        unique.push_back(ZukenPCBParser::MakeUniqueName(used, AString(name.c_str())).QRL_ANSI());
    return unique;
}

} // namespace

TEST(ZukenPCBParser_FootprintsTest, OnlyFootprintListsAreFootprints) {
    const auto parser = ParseFootprints("7 word (shape a) (FOOTPRINT b) (footprint c)");
    EXPECT_THAT(NamesOf_T(FootprintsOf(*parser)), ElementsAre("b", "c"));
}

TEST(ZukenPCBParser_FootprintsTest, NumberAsANameGivesItsText) {
    EXPECT_THAT(
        NamesOf_T(FootprintsOf(*ParseFootprints("(footprint 402) (footprint 0603)"))), ElementsAre("402", "603"));
}

TEST(ZukenPCBParser_FootprintsTest, FootprintWithANameAndNoPinsIsKept) {
    const auto parser = ParseFootprints("(footprint fiducial) (footprint logo (toeprint))");
    ASSERT_THAT(NamesOf_T(FootprintsOf(*parser)), ElementsAre("fiducial", "logo"));
    EXPECT_THAT(FootprintsOf(*parser)[0]->pins, IsEmpty());
}

TEST(ZukenPCBParser_FootprintsTest, FootprintWithNeitherANameNorPinsIsDropped) {
    EXPECT_THAT(FootprintsOf(*ParseFootprints("(footprint) (footprint \"\" (toeprint)) (footprint 1.5)")), IsEmpty());
}

TEST(ZukenPCBParser_FootprintsTest, FootprintWithPinsAndNoNameIsKept) {
    const auto parser = ParseFootprints("(footprint (toeprint (pin 1 (layout (layer (footLayer TOP) (fPad small))))))");
    ASSERT_THAT(NamesOf_T(FootprintsOf(*parser)), ElementsAre(""));
    EXPECT_THAT(FootprintsOf(*parser)[0]->pins, SizeIs(1));
}

TEST(ZukenPCBParser_FootprintsTest, EqualNamesGiveTwoRecordsOfWhichTheFirstIsFound) {
    const auto parser = ParseFootprints("(footprint so8) (footprint SO8)");
    ASSERT_THAT(FootprintsOf(*parser), SizeIs(2));
    EXPECT_EQ(FootprintsOf(*parser)[0], parser->FindFootprint("SO8"));
}

TEST(ZukenPCBParser_FootprintsTest, GeneratedPadstackHasOnePadOnOneLayerAndNoHole) {
    const auto parser = ParseFootprints("");
    const Padstack* padstack = parser->GetGeneratedPadstack("small", "BOT");
    ASSERT_NE(nullptr, padstack);
    EXPECT_EQ("small_BOT", padstack->GetName().QRL_ANSI());
    EXPECT_TRUE(padstack->hole.empty());
    ASSERT_THAT(padstack->connectPads, SizeIs(2));
    EXPECT_EQ(nullptr, padstack->connectPads[0]);
    ASSERT_NE(nullptr, padstack->connectPads[1]);
    EXPECT_EQ(2, padstack->connectPads[1]->layer);
    EXPECT_EQ(parser->FindPad("small"), padstack->connectPads[1]->pad);
    EXPECT_EQ(0.0, padstack->connectPads[1]->angle);
    ASSERT_THAT(padstack->noConnectPads, SizeIs(2));
    EXPECT_THAT(padstack->noConnectPads, Each(IsNull()));
    ASSERT_THAT(padstack->thermalPads, SizeIs(2));
    EXPECT_THAT(padstack->thermalPads, Each(IsNull()));
}

TEST(ZukenPCBParser_FootprintsTest, GeneratedPadstackIsMadeOnce) {
    const auto parser = ParseFootprints("");
    const Padstack* first = parser->GetGeneratedPadstack("small", "TOP");
    EXPECT_EQ(first, parser->GetGeneratedPadstack("SMALL", "top"));
    EXPECT_THAT(PadstacksOf(*parser), SizeIs(1));
    EXPECT_NE(first, parser->GetGeneratedPadstack("small", "BOT"));
    EXPECT_NE(first, parser->GetGeneratedPadstack("large", "TOP"));
    EXPECT_THAT(NamesOf_T(PadstacksOf(*parser)), ElementsAre("small_TOP", "small_BOT", "large_TOP"));
}

TEST(ZukenPCBParser_FootprintsTest, PadstackOfTheFileServesWhereTheNameFits) {
    const auto parser =
        ParseLibrary(TextOf({.m_Pads = k_Pads, .m_Padstacks = "(padstack small_MASK) (padstack small_TOP)"}));
    EXPECT_EQ(PadstacksOf(*parser)[0], parser->GetGeneratedPadstack("small", "MASK")) << "the layer isn't asked for";
    EXPECT_EQ(PadstacksOf(*parser)[1], parser->GetGeneratedPadstack("small", "TOP"));
    EXPECT_THAT(PadstacksOf(*parser), SizeIs(2));
}

TEST(ZukenPCBParser_FootprintsTest, GeneratedPadstackOfAnUnknownPadHasAnEntryWithoutAPad) {
    const auto parser = ParseFootprints("");
    const Padstack* padstack = parser->GetGeneratedPadstack("missing", "TOP");
    ASSERT_NE(nullptr, padstack);
    ASSERT_NE(nullptr, padstack->connectPads.at(0));
    EXPECT_EQ(nullptr, padstack->connectPads[0]->pad);
}

TEST(ZukenPCBParser_FootprintsTest, NoPadstackIsGeneratedOnAnUnknownLayer) {
    const auto parser = ParseFootprints("");
    EXPECT_EQ(nullptr, parser->GetGeneratedPadstack("small", "MASK"));
    EXPECT_THAT(PadstacksOf(*parser), IsEmpty());
}

TEST(ZukenPCBParser_FootprintsTest, SamePadOnTheSameLayerInTwoFootprintsIsOnePadstack) {
    const std::string pin = "(toeprint (pin 1 (layout (layer (footLayer TOP) (fPad small)))))";
    const auto parser = ParseFootprints("(footprint a " + pin + ") (footprint b " + pin + ")");
    ASSERT_THAT(FootprintsOf(*parser), SizeIs(2));
    EXPECT_THAT(NamesOf_T(PadstacksOf(*parser)), ElementsAre("small_TOP"));
    EXPECT_EQ(FootprintsOf(*parser)[0]->pins.at(0)->padstack, FootprintsOf(*parser)[1]->pins.at(0)->padstack);
}

TEST(ZukenPCBParser_FootprintsTest, UniqueNameIsANewNameItself) {
    EXPECT_THAT(UniqueNames({"1", "2", "A_3", "", "_"}), ElementsAre("1", "2", "A_3", "", "_"));
}

TEST(ZukenPCBParser_FootprintsTest, UniqueNameCountsFromOne) {
    EXPECT_THAT(UniqueNames({"1", "1", "1"}), ElementsAre("1", "1_1", "1_2"));
}

TEST(ZukenPCBParser_FootprintsTest, UniqueNameCountsOnFromTheNumberThatItHas) {
    EXPECT_THAT(UniqueNames({"A_3", "A_3", "A_3"}), ElementsAre("A_3", "A_4", "A_5"));
}

TEST(ZukenPCBParser_FootprintsTest, UniqueNamePassesOverNamesThatAreTaken) {
    EXPECT_THAT(UniqueNames({"1", "1_1", "1_3", "1", "1", "1"}), ElementsAre("1", "1_1", "1_3", "1_2", "1_4", "1_5"));
    EXPECT_THAT(UniqueNames({"1", "1", "1_1"}), ElementsAre("1", "1_1", "1_2"));
}

TEST(ZukenPCBParser_FootprintsTest, UniqueNameOfAWordBehindTheUnderscoreCountsFromOne) {
    EXPECT_THAT(UniqueNames({"A_x", "A_x", "A_x"}), ElementsAre("A_x", "A_1", "A_2"));
}

TEST(ZukenPCBParser_FootprintsTest, UniqueNameLosesFurtherPieces) {
    EXPECT_THAT(UniqueNames({"A_3_7", "A_3_7"}), ElementsAre("A_3_7", "A_4"));
    EXPECT_THAT(UniqueNames({"_A", "_A", "A__3", "A__3"}), ElementsAre("_A", "A_1", "A__3", "A_4"));
}

TEST(ZukenPCBParser_FootprintsTest, UniqueNameOfNothingButUnderscoresComesBack) {
    EXPECT_THAT(UniqueNames({"_", "_", "_"}), ElementsAre("_", "_", "_"));
    EXPECT_THAT(UniqueNames({"", ""}), ElementsAre("", ""));
}

TEST(ZukenPCBParser_FootprintsTest, UniqueNameMindsTheCase) {
    EXPECT_THAT(UniqueNames({"a", "A", "a", "A"}), ElementsAre("a", "A", "a_1", "A_1"));
}

TEST(ZukenPCBParser_FootprintsTest, UniqueNameReadsSigns) {
    EXPECT_THAT(UniqueNames({"A_-3", "A_-3", "A_+5", "A_+5"}), ElementsAre("A_-3", "A_-2", "A_+5", "A_6"));
}

TEST(ZukenPCBParser_FootprintsTest, UniqueNameWrapsAround) {
    EXPECT_THAT(UniqueNames({"A_2147483647", "A_2147483647"}), ElementsAre("A_2147483647", "A_-2147483648"));
    EXPECT_THAT(UniqueNames({"A_2147483648", "A_2147483648"}), ElementsAre("A_2147483648", "A_1"))
        << "no number of 32 bits";
}
