#include "tests/AssertionRecorder.h"
#include "tests/zuken/LibraryText.h"
#include "tests/zuken/PadstackText.h"

#include <gmock/gmock.h>

namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsNull;
using testing::SizeIs;

constexpr char k_Pads[] = "(pad small (geometry (circle 1))) (pad large (geometry (circle 2)))"
                          " (pad ring (geometry (roundThermal (out 2))))";

std::unique_ptr<ZukenPCBParser> ParsePadstacks(const std::string& padstacks) {
    return ParseLibrary(TextOf({.m_Pads = k_Pads, .m_Padstacks = padstacks}));
}

/// The one padstack that `parts` make up, and the parser that it lives in.
struct ParsedPadstack {
    explicit ParsedPadstack(const std::string& parts) : m_Parser(ParsePadstacks("(padstack via " + parts + ")")) {}
    const Padstack& operator*() const { return *PadstacksOf(*m_Parser).at(0); }
    const Padstack* operator->() const { return PadstacksOf(*m_Parser).at(0); }

    std::unique_ptr<ZukenPCBParser> m_Parser;
};

/// The box of the drill that `shape` makes.
geom::Box HoleBoxOf(const std::string& shape) {
    return ParsedPadstack("(hole (geometry " + shape + "))")->hole.GetBox();
}

geom::Box Disc(double radius) { return {-radius, -radius, radius, radius}; }

} // namespace

TEST(ZukenPCBParser_PadstacksTest, OnlyPadstackListsArePadstacks) {
    const auto parser = ParsePadstacks("7 word (via a) (PADSTACK b) (padstack c)");
    EXPECT_THAT(NamesOf_T(PadstacksOf(*parser)), ElementsAre("b", "c"));
}

TEST(ZukenPCBParser_PadstacksTest, NameOfABareNumberIsEmpty) {
    EXPECT_THAT(NamesOf_T(PadstacksOf(*ParsePadstacks("(padstack 12)"))), ElementsAre(""));
}

TEST(ZukenPCBParser_PadstacksTest, EqualNamesGiveTwoRecordsOfWhichTheFirstIsFound) {
    const auto parser = ParsePadstacks("(padstack via) (padstack VIA)");
    ASSERT_THAT(PadstacksOf(*parser), SizeIs(2));
    EXPECT_EQ(PadstacksOf(*parser)[0], parser->FindPadstack("VIA"));
}

TEST(ZukenPCBParser_PadstacksTest, CircleGivesADrillOfItsRadiusAndAnOvalOneOfItsSmallerSide) {
    EXPECT_EQ(Disc(0.5), HoleBoxOf("(circle 0.5)"));
    EXPECT_EQ(Disc(0.5), HoleBoxOf("(oval (width 1.0) (height 0.5))"));
    EXPECT_EQ(Disc(0.5), HoleBoxOf("(oval (width 0.5) (height 1.0))"));
}

TEST(ZukenPCBParser_PadstacksTest, DrillIsACircle) {
    EXPECT_THAT(ParsedPadstack("(hole (geometry (rectangle (width 1) (height 2))))")->hole.GetArcs(), SizeIs(1));
}

TEST(ZukenPCBParser_PadstacksTest, SquareHoleGivesADrillWithItsSideForARadius) {
    EXPECT_EQ(Disc(2), HoleBoxOf("(squareHole (width 2) (height 2))"));
}

TEST(ZukenPCBParser_PadstacksTest, RectangleGivesADrillOfItsSmallerSide) {
    EXPECT_EQ(Disc(3), HoleBoxOf("(rectangle (width 4) (height 3))"));
}

TEST(ZukenPCBParser_PadstacksTest, HoleKeywordsMatchInAnyCase) {
    EXPECT_EQ(Disc(2), ParsedPadstack("(HOLE (Geometry (SQUAREHOLE (Width 2) (HEIGHT 3))))")->hole.GetBox());
    EXPECT_EQ(Disc(2), HoleBoxOf("(Circle 2)"));
}

TEST(ZukenPCBParser_PadstacksTest, HoleIsScaled) {
    ZukenPCBParser parser{io::CBlock(), io::CBlock()};
    parser.ReadUnits(ListOf("(header (unit DBUNIT))"));
    parser.ReadPadstacks(ListOf("(padstacks (padstack a (hole (geometry (circle 100000))))"
                                " (padstack b (hole (geometry (oval (width 300000) (height 200000))))))"));
    EXPECT_TRUE(Disc(1).IsEqualTo(PadstacksOf(parser).at(0)->hole.GetBox(), 1e-15));
    EXPECT_TRUE(Disc(2).IsEqualTo(PadstacksOf(parser).at(1)->hole.GetBox(), 1e-15));
}

TEST(ZukenPCBParser_PadstacksTest, FirstKnownShapeOfAGeometryCounts) {
    EXPECT_EQ(Disc(2), HoleBoxOf("7 (hexagon 1) (circle 2) (circle 3) (oval (width 4) (height 4))"));
    EXPECT_EQ(Disc(4), HoleBoxOf("(oval (width 4) (height 4)) (circle 3)"));
}

TEST(ZukenPCBParser_PadstacksTest, LaterHoleReplacesAnEarlierOne) {
    EXPECT_EQ(Disc(3), ParsedPadstack("(hole (geometry (circle 2))) (hole (geometry (circle 3)))")->hole.GetBox());
}

TEST(ZukenPCBParser_PadstacksTest, HoleWithoutAKnownShapeLeavesTheOneBefore) {
    EXPECT_EQ(Disc(2), ParsedPadstack("(hole (geometry (circle 2))) (hole (geometry (hexagon 3)))")->hole.GetBox());
    EXPECT_EQ(Disc(2), ParsedPadstack("(hole (geometry (circle 2))) (hole)")->hole.GetBox());
    EXPECT_TRUE(ParsedPadstack("(hole (geometry (hexagon 3)))")->hole.empty());
}

TEST(ZukenPCBParser_PadstacksTest, WithoutAHoleThereIsNoDrill) {
    const ParsedPadstack padstack("(padSet (footLayer TOP) (connect (pad small)))"
                                  "(padSet (footLayer BOT) (connect (pad small)))");
    EXPECT_TRUE(padstack->hole.empty());
    EXPECT_TRUE(padstack->IsMultiLayerWithoutHole());
}

TEST(ZukenPCBParser_PadstacksTest, HoleWithoutANumberIsAPointAndADrill) {
    EXPECT_EQ(Disc(0), HoleBoxOf("(circle)"));
    EXPECT_FALSE(ParsedPadstack("(hole (geometry (circle)))")->hole.empty());
}

TEST(ZukenPCBParser_PadstacksTest, NegativeRadiusIsReported) {
    const AssertionRecorder recorder;
    const ParsedPadstack padstack("(hole (geometry (circle -1)))");
    EXPECT_THAT(AssertionRecorder::Take(), testing::Contains("m_Radius >= k_Unit_0, Circle.h"));
}

TEST(ZukenPCBParser_PadstacksTest, EachKindOfPadFillsItsSequence) {
    const ParsedPadstack padstack("(padSet (footLayer TOP) (connect (pad small)) (noconnect (pad large))"
                                  " (thermal (pad ring)))");
    EXPECT_THAT(Show(padstack->connectPads), ElementsAre("1:small", "-"));
    EXPECT_THAT(Show(padstack->noConnectPads), ElementsAre("1:large", "-"));
    EXPECT_THAT(Show(padstack->thermalPads), ElementsAre("1:ring", "-"));
}

TEST(ZukenPCBParser_PadstacksTest, ClearanceFillsTheSequenceOfNoconnect) {
    const ParsedPadstack padstack("(padSet (footLayer TOP) (noconnect (pad small)))"
                                  " (padSet (footLayer BOT) (clearance (pad large)))");
    EXPECT_THAT(Show(padstack->noConnectPads), ElementsAre("1:small", "2:large"));
    EXPECT_THAT(padstack->connectPads, Each(IsNull()));
}

TEST(ZukenPCBParser_PadstacksTest, PadKeywordsMatchInAnyCaseAndOthersAreLost) {
    const ParsedPadstack padstack("(PADSET (FOOTLAYER top) (CONNECT (PAD SMALL)) (other (pad large)) 7 word)");
    EXPECT_THAT(Show(padstack->connectPads), ElementsAre("1:small", "-"));
    EXPECT_THAT(padstack->noConnectPads, Each(IsNull()));
    EXPECT_THAT(padstack->thermalPads, Each(IsNull()));
}

TEST(ZukenPCBParser_PadstacksTest, EntriesCarryNoAngle) {
    const ParsedPadstack padstack("(padSet (footLayer TOP) (connect (pad small)))");
    const PadstackLayerPad& entry = *padstack->connectPads.at(0);
    EXPECT_EQ(0.0, entry.value1);
    EXPECT_EQ(0.0, entry.angle);
    EXPECT_EQ(0.0, entry.value2);
}

TEST(ZukenPCBParser_PadstacksTest, LastOfTwoConnectPadsOfALayerStands) {
    EXPECT_THAT(
        Show(ParsedPadstack("(padSet (footLayer TOP) (connect (pad small)) (connect (pad large)))")->connectPads),
        ElementsAre("1:large", "-"));
    EXPECT_THAT(Show(ParsedPadstack("(padSet (footLayer TOP) (connect (pad small)))"
                                    "(padSet (footLayer TOP) (connect (pad large)))")
                         ->connectPads),
        ElementsAre("1:large", "-"));
}

TEST(ZukenPCBParser_PadstacksTest, PadSetOnAnUnknownLayerIsPassedOverAsAWhole) {
    const ParsedPadstack padstack("(padSet (footLayer MASK) (connect (pad small)) (noconnect (pad small)))"
                                  " (padSet (connect (pad small)) (thermal (pad ring)))");
    EXPECT_THAT(padstack->connectPads, Each(IsNull()));
    EXPECT_THAT(padstack->noConnectPads, Each(IsNull()));
    EXPECT_THAT(padstack->thermalPads, Each(IsNull()));
}

TEST(ZukenPCBParser_PadstacksTest, UnknownPadLeavesAnEntryWithoutAPad) {
    const ParsedPadstack padstack("(padSet (footLayer TOP) (connect (pad missing)))"
                                  " (padSet (footLayer BOT) (connect))");
    EXPECT_THAT(Show(padstack->connectPads), ElementsAre("1:?", "2:?"));
    EXPECT_FALSE(padstack->IsMultiLayerWithoutHole());
    EXPECT_FALSE(padstack->HasMultiLoopPad());
}

TEST(ZukenPCBParser_PadstacksTest, WithoutPadSetsAllPlacesAreEmpty) {
    const ParsedPadstack padstack("(through PLATED)");
    EXPECT_THAT(Show(padstack->connectPads), ElementsAre("-", "-"));
    EXPECT_THAT(Show(padstack->noConnectPads), ElementsAre("-", "-"));
    EXPECT_THAT(Show(padstack->thermalPads), ElementsAre("-", "-"));
}

TEST(ZukenPCBParser_PadstacksTest, WithoutFootprintLayersSequencesAreEmptyAndPadSetsPassedOver) {
    ZukenPCBParser parser{io::CBlock(), io::CBlock()};
    EXPECT_TRUE(parser.ReadPadstacks(ListOf("(padstacks (padstack a (padSet (footLayer TOP) (connect (pad p)))))")));
    ASSERT_THAT(PadstacksOf(parser), SizeIs(1));
    EXPECT_THAT(PadstacksOf(parser)[0]->connectPads, IsEmpty());
    EXPECT_THAT(PadstacksOf(parser)[0]->noConnectPads, IsEmpty());
    EXPECT_THAT(PadstacksOf(parser)[0]->thermalPads, IsEmpty());
}
