#include "model/PadCircle.h"
#include "model/PadMultiLoop.h"
#include "model/PadRoundThermal.h"
#include "tests/zuken/LibraryText.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

std::unique_ptr<ZukenPCBParser> ParsePads(const std::string& pads) { return ParseLibrary(TextOf({.m_Pads = pads})); }

/// The outlines of the one pad that `pads` gives, which has to be one of several loops.
std::vector<geom::Polygon> LoopsOf(const std::string& pads) {
    const auto parser = ParsePads(pads);
    EXPECT_THAT(PadsOf(*parser), SizeIs(1));
    return dynamic_cast<const PadMultiLoop&>(*PadsOf(*parser).at(0)).polygons;
}

/// A parser of millimetres, for readers that are called alone.
ZukenPCBParser EmptyParser() { return {io::CBlock(), io::CBlock()}; }

} // namespace

TEST(ZukenPCBParser_PadsTest, OnlyPadListsArePads) {
    const auto parser = ParsePads("7 word (land a (geometry (circle 1))) (PAD b (geometry (circle 1)))");
    EXPECT_THAT(NamesOf_T(PadsOf(*parser)), ElementsAre("b"));
}

TEST(ZukenPCBParser_PadsTest, PadWithoutGeometryOrWithUnknownShapesLeavesNoRecord) {
    const auto parser = ParsePads("(pad a) (pad b (geometry)) (pad c (geometry (hexagon 1) 5 word))"
                                  "(pad d (circle 1)) (pad e (shape (circle 1)))");
    EXPECT_THAT(PadsOf(*parser), IsEmpty());
    EXPECT_EQ(nullptr, parser->FindPad("a"));
}

TEST(ZukenPCBParser_PadsTest, NameOfABareNumberIsEmpty) {
    const auto parser = ParsePads("(pad 160 (geometry (circle 1))) (pad \"161\" (geometry (circle 1)))");
    EXPECT_THAT(NamesOf_T(PadsOf(*parser)), ElementsAre("", "161"));
}

TEST(ZukenPCBParser_PadsTest, EqualNamesGiveTwoRecordsOfWhichTheFirstIsFound) {
    const auto parser = ParsePads("(pad a (geometry (circle 1))) (pad A (geometry (circle 2)))");
    ASSERT_THAT(PadsOf(*parser), SizeIs(2));
    EXPECT_EQ(PadsOf(*parser)[0], parser->FindPad("A"));
}

TEST(ZukenPCBParser_PadsTest, ShapesOfOneGeometryAndOfSeveralAddUp) {
    EXPECT_THAT(LoopsOf("(pad a (geometry (circle 1) (circle 2)))"), SizeIs(2));
    EXPECT_THAT(LoopsOf("(pad a (geometry (circle 1)) (geometry (circle 2) (circle 3)))"), SizeIs(3));
}

TEST(ZukenPCBParser_PadsTest, JoinedPadBearsTheNameAndTheKind) {
    const auto parser = ParsePads("(pad star (geometry (circle 1) (circle 2)))");
    ASSERT_THAT(NamesOf_T(PadsOf(*parser)), ElementsAre("star"));
    EXPECT_TRUE(PadsOf(*parser)[0]->IsMultiLoop());
    EXPECT_EQ(7U, PadsOf(*parser)[0]->kind);
}

TEST(ZukenPCBParser_PadsTest, LoopsStandInTheOrderOfTheShapes) {
    const auto loops = LoopsOf("(pad a (geometry (rectangle (pt 5 0) (width 2) (height 4) (rAngle 90)))"
                               " (geometry (circle 3)))");
    ASSERT_THAT(loops, SizeIs(2));
    EXPECT_EQ(geom::Box(-2, 4, 2, 6), loops[0].GetBox()) << "turned about the pad's origin";
    EXPECT_EQ(geom::Box(-3, -3, 3, 3), loops[1].GetBox());
}

TEST(ZukenPCBParser_PadsTest, DiscAndThermalJoinIntoOneLoop) {
    EXPECT_THAT(LoopsOf("(pad a (geometry (circle 1)) (geometry (roundThermal (out 2) (in 1))))"), SizeIs(1));
}

TEST(ZukenPCBParser_PadsTest, TwoThermalsJoinIntoAPadWithoutLoops) {
    EXPECT_THAT(LoopsOf("(pad a (geometry (roundThermal (out 2) (in 1)) (roundThermal (out 4) (in 3))))"), IsEmpty());
}

TEST(ZukenPCBParser_PadsTest, ThermalAloneStaysAThermal) {
    const auto parser = ParsePads("(pad a (geometry (roundThermal (out 2) (in 1))))");
    ASSERT_THAT(PadsOf(*parser), SizeIs(1));
    EXPECT_TRUE(PadsOf(*parser)[0]->IsRoundThermal());
}

TEST(ZukenPCBParser_PadsTest, ShapeThatVanishesDoesNotCount) {
    const auto parser = ParsePads("(pad a (geometry (line (vertex (pt 0 0 (width 1)) (pt 0 0))) (circle 1)))");
    ASSERT_THAT(PadsOf(*parser), SizeIs(1));
    EXPECT_TRUE(PadsOf(*parser)[0]->IsCircle());
}

TEST(ZukenPCBParser_PadsTest, OutlineClosesAndTurnsCounterClockwise) {
    geom::Polygon outline;
    const auto func = ListOf("(shape (vertex (pt 0 0) 7 (PT 0 2) (arc) (pt 3 0)))");
    EXPECT_TRUE(EmptyParser().ReadPolygonOutline(func, outline));
    EXPECT_THAT(outline.GetArcs(), SizeIs(3));
    EXPECT_EQ(geom::Area(3), outline.GetArea());
}

TEST(ZukenPCBParser_PadsTest, OutlineIsScaled) {
    ZukenPCBParser parser = EmptyParser();
    parser.ReadUnits(ListOf("(header (unit DBUNIT))"));
    geom::Polygon outline;
    EXPECT_TRUE(parser.ReadPolygonOutline(ListOf("(s (vertex (pt 0 0) (pt 100000 0) (pt 100000 200000)))"), outline));
    EXPECT_NEAR(1.0, double(outline.GetBox().GetXRange().GetMax()), 1e-15);
    EXPECT_NEAR(2.0, double(outline.GetBox().GetYRange().GetMax()), 1e-15);
}

TEST(ZukenPCBParser_PadsTest, OutlineOfTwoPointsDoublesBack) {
    geom::Polygon outline;
    EXPECT_TRUE(EmptyParser().ReadPolygonOutline(ListOf("(shape (vertex (pt 0 0) (pt 3 4)))"), outline));
    EXPECT_THAT(outline.GetArcs(), SizeIs(2));
}

TEST(ZukenPCBParser_PadsTest, OutlineOfFewerThanTwoPointsFailsAndLeavesTheTarget) {
    const geom::Polygon before(geom::Box(0, 0, 1, 1), 0);
    for (const char* text : {"(shape)", "(shape (vertex))", "(shape (vertex (pt 1 1)))"}) {
        geom::Polygon outline = before;
        EXPECT_FALSE(EmptyParser().ReadPolygonOutline(ListOf(text), outline)) << text;
        EXPECT_EQ(before, outline) << text;
    }
}
