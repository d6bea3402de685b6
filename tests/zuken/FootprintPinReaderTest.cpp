#include "model/PadRectangle.h"
#include "tests/zuken/LibraryText.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr char k_Pads[] = "(pad small (geometry (circle 1))) (pad large (geometry (circle 2)))";

/// A drilled padstack, one with pads on two layers and no hole, and one with a pad on one layer.
constexpr char k_Padstacks[] =
    "(padstack drilled (hole (geometry (circle 0.5)))"
    " (padSet (footLayer TOP) (connect (pad small))) (padSet (footLayer BOT) (connect (pad small))))"
    "(padstack edge (padSet (footLayer TOP) (connect (pad small))) (padSet (footLayer BOT) (connect (pad large))))"
    "(padstack land (padSet (footLayer TOP) (connect (pad small))))";

/// One footprint of the given pins, and the parser that it lives in.
struct ParsedPins {
    explicit ParsedPins(const std::string& pins)
        : m_Parser(ParseLibrary(TextOf({.m_Pads = k_Pads,
              .m_Padstacks = k_Padstacks,
              .m_Footprints = "(footprint part (toeprint " + pins + "))"}))) {}

    const std::vector<FootprintPin*>& Pins() const { return FootprintsOf(*m_Parser).at(0)->pins; }

    /// Each pin as "NAME PADSTACK x,y ANGLE", with "-" for no padstack.
    std::vector<std::string> Show() const {
        std::vector<std::string> shown;
        for (const FootprintPin* pin : Pins()) {
            char place[100];
            std::snprintf(place, sizeof place, "%g,%g %g", double(pin->location.GetX()), double(pin->location.GetY()),
                pin->angle);
            shown.push_back(pin->name.QRL_ANSI() + ' ' +
                            (pin->padstack == nullptr ? "-" : pin->padstack->GetName().QRL_ANSI()) + ' ' + place);
        }
        return shown;
    }

    std::unique_ptr<ZukenPCBParser> m_Parser;
};

/// Pin 1 at 10,20 with these lists in its layer.
ParsedPins PinOf(const std::string& items) { return ParsedPins("(pin 1 (pt 10 20) (layout (layer " + items + ")))"); }

std::string Fpadstack(const std::string& name) {
    return "(fpadstack (pt 3 4) (angle 90) (padstackGroup (padstack " + name + ")))";
}

/// The names of the pads that strokes have made.
std::vector<std::string> StrokePadsOf(const ParsedPins& pins) {
    std::vector<BasePad*> pads = PadsOf(*pins.m_Parser);
    pads.erase(pads.begin(), pads.begin() + 2);
    return NamesOf_T(pads);
}

} // namespace

TEST(FootprintPinReaderTest, DrilledPadstackMakesOnePin) {
    EXPECT_THAT(PinOf(Fpadstack("drilled")).Show(), ElementsAre("1 drilled 3,4 90"));
}

TEST(FootprintPinReaderTest, PadstackWithOnePadMakesOnePin) {
    EXPECT_THAT(PinOf(Fpadstack("land")).Show(), ElementsAre("1 land 3,4 90"));
}

TEST(FootprintPinReaderTest, PadstackOfSeveralLayersWithoutAHoleMakesNoneAndItsPadsFollow) {
    EXPECT_THAT(PinOf(Fpadstack("edge")).Show(), IsEmpty());
    EXPECT_THAT(PinOf(Fpadstack("edge") + "(footLayer TOP) (fPad small (pt 1 2) (angle 45))"
                                          " (footLayer BOT) (fPad large (pt 5 6) (angle 135))")
                    .Show(),
        ElementsAre("1 small_TOP 1,2 45", "1_1 large_BOT 5,6 135"));
}

TEST(FootprintPinReaderTest, UnknownPadstackMakesAPinWithoutOne) {
    EXPECT_THAT(PinOf(Fpadstack("missing")).Show(), ElementsAre("1 - 3,4 90"));
}

TEST(FootprintPinReaderTest, EachPadstackOfAPinMakesAPin) {
    EXPECT_THAT(
        PinOf(Fpadstack("land") + Fpadstack("drilled")).Show(), ElementsAre("1 land 3,4 90", "1_1 drilled 3,4 90"));
}

TEST(FootprintPinReaderTest, PadstackKeywordInCapitalsIsPassedOver) {
    EXPECT_THAT(PinOf("(FPADSTACK (pt 3 4) (padstackGroup (padstack drilled)))").Show(), IsEmpty());
    EXPECT_THAT(PinOf("(FPADSTACK) " + Fpadstack("drilled")).Show(), ElementsAre("1 drilled 3,4 90"));
    EXPECT_THAT(PinOf("(fPadstack (padstackGroup (padstack drilled)))").Show(), IsEmpty());
}

TEST(FootprintPinReaderTest, OtherKeywordsMatchInAnyCase) {
    EXPECT_THAT(ParsedPins("(PIN 1 (PT 9 9) (LAYOUT (LAYER (FOOTLAYER top) (FPAD SMALL (PT 1 2) (ANGLE 30)))))").Show(),
        ElementsAre("1 SMALL_top 1,2 30"));
}

TEST(FootprintPinReaderTest, TwoPadsOfOnePinGiveSiblings) {
    const ParsedPins pins("(pin N (layout (layer (footLayer TOP) (fPad small) (footLayer BOT) (fPad large))))");
    EXPECT_THAT(pins.Show(), ElementsAre("N small_TOP 0,0 0", "N_1 large_BOT 0,0 0"));
    EXPECT_THAT(pins.Pins()[0]->siblingPins, ElementsAre(pins.Pins()[1]));
    EXPECT_THAT(pins.Pins()[1]->siblingPins, IsEmpty());
}

TEST(FootprintPinReaderTest, AllSiblingsHangOnTheFirst) {
    const ParsedPins pins = PinOf("(footLayer TOP) (fPad small) (fPad large) (fPad small)");
    EXPECT_THAT(pins.Show(), ElementsAre("1 small_TOP 0,0 0", "1_1 large_TOP 0,0 0", "1_2 small_TOP 0,0 0"));
    EXPECT_THAT(pins.Pins()[0]->siblingPins, ElementsAre(pins.Pins()[1], pins.Pins()[2]));
}

TEST(FootprintPinReaderTest, PinsOfOneNameAreSiblingsToo) {
    const std::string layout = "(layout (layer (footLayer TOP) (fPad small)))";
    const ParsedPins pins("(pin 7 " + layout + ") (pin 8 " + layout + ") (pin 7 " + layout + ")");
    EXPECT_THAT(NamesOf_T(pins.Pins()), ElementsAre("7", "8", "7_1"));
    EXPECT_THAT(pins.Pins()[0]->siblingPins, ElementsAre(pins.Pins()[2]));
    EXPECT_THAT(pins.Pins()[1]->siblingPins, IsEmpty());
}

TEST(FootprintPinReaderTest, NamesThatDifferInCaseAreNoSiblingsUntilOneRepeats) {
    const std::string layout = "(layout (layer (footLayer TOP) (fPad small)))";
    const ParsedPins pins("(pin a " + layout + ") (pin A " + layout + ") (pin A " + layout + ")");
    EXPECT_THAT(NamesOf_T(pins.Pins()), ElementsAre("a", "A", "A_1"));
    EXPECT_THAT(pins.Pins()[0]->siblingPins, ElementsAre(pins.Pins()[2])) << "the first that differs in case only";
    EXPECT_THAT(pins.Pins()[1]->siblingPins, IsEmpty());
}

TEST(FootprintPinReaderTest, NameThatWasMadeForASiblingHasSiblingsOfItsOwn) {
    const std::string layout = "(layout (layer (footLayer TOP) (fPad small)))";
    const ParsedPins pins("(pin 1 " + layout + ") (pin 1 " + layout + ") (pin \"1_1\" " + layout + ")");
    EXPECT_THAT(NamesOf_T(pins.Pins()), ElementsAre("1", "1_1", "1_2"));
    EXPECT_THAT(pins.Pins()[0]->siblingPins, ElementsAre(pins.Pins()[1]));
    EXPECT_THAT(pins.Pins()[1]->siblingPins, ElementsAre(pins.Pins()[2]));
}

TEST(FootprintPinReaderTest, NamesCountAnewInEachFootprint) {
    const std::string footprint = "(toeprint (pin 1 (layout (layer (footLayer TOP) (fPad small)))))";
    const auto parser = ParseLibrary(
        TextOf({.m_Pads = k_Pads, .m_Footprints = "(footprint a " + footprint + ") (footprint b " + footprint + ")"}));
    EXPECT_THAT(NamesOf_T(FootprintsOf(*parser).at(1)->pins), ElementsAre("1"));
    EXPECT_THAT(FootprintsOf(*parser).at(0)->pins.at(0)->siblingPins, IsEmpty());
}

TEST(FootprintPinReaderTest, NameMayBeAnything) {
    const std::string layout = "(layout (layer (footLayer TOP) (fPad small)))";
    const ParsedPins pins("(pin 007 " + layout + ") (pin A1 " + layout + ") (pin 1.50 " + layout + ") (pin \"x y\" " +
                          layout + ") (pin " + layout + ") (pin 99999999999 " + layout + ")");
    EXPECT_THAT(NamesOf_T(pins.Pins()), ElementsAre("7", "A1", "1.50", "x y", "", "99999999999"));
}

TEST(FootprintPinReaderTest, PinWithoutALayoutOrLayerLeavesNoTrace) {
    const ParsedPins pins("(pin 1) (pin) (pin 2 (layout)) (pin 3 (layout (layer)))"
                          " (pin 1 (layout (layer (footLayer TOP) (fPad small))))");
    EXPECT_THAT(NamesOf_T(pins.Pins()), ElementsAre("1"));
    EXPECT_EQ(0, FootprintsOf(*pins.m_Parser)[0]->GetPinIndex("1"));
}

TEST(FootprintPinReaderTest, OnlyTheFirstLayoutAndLayerAreRead) {
    const ParsedPins pins("(pin 1 (layout (layer (footLayer TOP) (fPad small)) (layer (footLayer BOT) (fPad large)))"
                          " (layout (layer (footLayer BOT) (fPad large))))");
    EXPECT_THAT(pins.Show(), ElementsAre("1 small_TOP 0,0 0"));
}

TEST(FootprintPinReaderTest, WhatIsUnknownIsPassedOver) {
    const ParsedPins pins("7 word (other 1) (pin 1 (layout (layer 5 word (text 1) (footLayer TOP) (fPad small))))");
    EXPECT_THAT(pins.Show(), ElementsAre("1 small_TOP 0,0 0"));
}

TEST(FootprintPinReaderTest, UnknownPadOnAKnownLayerStillGeneratesItsPadstack) {
    const ParsedPins pins = PinOf("(footLayer TOP) (fPad missing)");
    EXPECT_THAT(pins.Show(), ElementsAre("1 missing_TOP 0,0 0"));
    EXPECT_EQ(nullptr, pins.Pins()[0]->padstack->connectPads.at(0)->pad);
}

TEST(FootprintPinReaderTest, PadOnAnUnknownLayerTakesTheLastPadstackOfThePin) {
    EXPECT_THAT(PinOf(Fpadstack("edge") + "(footLayer MASK) (fPad small)").Show(), ElementsAre("1 edge 0,0 0"));
    EXPECT_THAT(PinOf("(footLayer TOP) (fPad small) (footLayer MASK) (fPad large)").Show(),
        ElementsAre("1 small_TOP 0,0 0", "1_1 small_TOP 0,0 0"));
}

TEST(FootprintPinReaderTest, PadOnAnUnknownLayerHasNoPadstackWhereThePinHasNone) {
    const ParsedPins pins = PinOf("(footLayer MASK) (fPad small)");
    EXPECT_THAT(pins.Show(), ElementsAre("1 - 0,0 0"));
    EXPECT_THAT(PadstacksOf(*pins.m_Parser), SizeIs(3)) << "no padstack was generated";
}

TEST(FootprintPinReaderTest, PadAheadOfAnyLayerTakesTheLastPadstackOfThePin) {
    EXPECT_THAT(PinOf("(fPad small) (footLayer TOP)").Show(), ElementsAre("1 - 0,0 0"));
    EXPECT_THAT(PinOf(Fpadstack("edge") + "(fPad small)").Show(), ElementsAre("1 edge 0,0 0"));
}

TEST(FootprintPinReaderTest, EachPinStartsAfresh) {
    const ParsedPins pins("(pin 1 (layout (layer (footLayer TOP) (fPad small (angle 90)))))"
                          " (pin 2 (layout (layer (fPad small))))"
                          " (pin 3 (layout (layer (line (geometry (line (vertex (pt 0 0 (width 1)) (pt 2 0))))))))");
    EXPECT_THAT(pins.Show(), ElementsAre("1 small_TOP 0,0 90", "2 - 0,0 0", "3 - 0,0 0"));
}

TEST(FootprintPinReaderTest, AngleIsThatOfTheItemAndStaysForStrokes) {
    const std::string stroke = "(line (geometry (line (vertex (pt 0 0 (width 1)) (pt 2 0)))))";
    EXPECT_THAT(PinOf("(footLayer TOP) (fPad small (angle 30)) (fPad small)" + stroke).Show(),
        ElementsAre("1 small_TOP 0,0 30", "1_1 small_TOP 0,0 0", "1_2 2.000000X1.000000_TOP 10,20 0"));
    EXPECT_THAT(PinOf("(footLayer TOP)" + stroke + Fpadstack("edge") + stroke).Show(),
        ElementsAre("1 2.000000X1.000000_TOP 10,20 0", "1_1 2.000000X1.000000_TOP 10,20 90"));
}

TEST(FootprintPinReaderTest, StrokeMakesAPadNamedAfterItsSizeAndAPinAtTheLocation) {
    const ParsedPins pins = PinOf("(footLayer TOP) (line (geometry (line (penShape SQUARE)"
                                  " (vertex (pt 1 1 (width 0.2)) (pt 2.5 1)))))");
    EXPECT_THAT(StrokePadsOf(pins), ElementsAre("1.500000X0.200000"));
    EXPECT_THAT(pins.Show(), ElementsAre("1 1.500000X0.200000_TOP 10,20 0"));
    const auto& pad = dynamic_cast<const PadRectangle&>(*pins.Pins()[0]->padstack->connectPads.at(0)->pad);
    EXPECT_EQ(1.5, pad.width);
    EXPECT_EQ(0.2, pad.height);
    EXPECT_EQ(0.0, pad.angle);
    EXPECT_EQ(1U, pad.kind);
}

TEST(FootprintPinReaderTest, UprightStrokeIsAsWideAsItsPen) {
    EXPECT_THAT(StrokePadsOf(PinOf("(line (geometry (line (vertex (pt 0 0 (width 0.2)) (pt 0 1.5)))))")),
        ElementsAre("0.200000X1.500000"));
    EXPECT_THAT(StrokePadsOf(PinOf("(line (geometry (line (vertex (pt 0 0 (width 0.2)) (pt 7 1.5)))))")),
        ElementsAre("0.200000X1.500000"));
}

TEST(FootprintPinReaderTest, EveryStrokeAddsAPadAndTheFirstOfANameIsUsed) {
    const std::string stroke = "(line (geometry (line (vertex (pt 0 0 (width 0.2)) (pt 1.5 0)))))";
    const ParsedPins pins = PinOf("(footLayer TOP)" + stroke + "(footLayer BOT)" + stroke);
    EXPECT_THAT(StrokePadsOf(pins), ElementsAre("1.500000X0.200000", "1.500000X0.200000"));
    const BasePad* first = PadsOf(*pins.m_Parser)[2];
    EXPECT_EQ(first, pins.Pins()[0]->padstack->connectPads.at(0)->pad);
    EXPECT_EQ(first, pins.Pins()[1]->padstack->connectPads.at(1)->pad);
}

TEST(FootprintPinReaderTest, StrokeOfNothingMakesAPadToo) {
    EXPECT_THAT(StrokePadsOf(PinOf("(line)")), ElementsAre("0.000000X0.000000"));
}

TEST(FootprintPinReaderTest, LengthsAreScaledAndAnglesAreNot) {
    ZukenPCBParser parser{io::CBlock(), io::CBlock()};
    parser.ReadUnits(ListOf("(header (unit DBUNIT))"));
    parser.ReadFootprints(
        ListOf("(footprints (footprint part (toeprint (pin 1 (pt 100000 200000) (layout (layer"
               " (fpadstack (pt 300000 400000) (angle 45)) (fPad small (pt 500000 600000) (angle 135))"
               " (line (geometry (line (vertex (pt 0 0 (width 20000)) (pt 150000 0)))))))))))"));
    const auto& pins = FootprintsOf(parser).at(0)->pins;
    ASSERT_THAT(pins, SizeIs(3));
    EXPECT_TRUE(pins[0]->location.IsEqualTo({3, 4}, 1e-14));
    EXPECT_EQ(45.0, pins[0]->angle);
    EXPECT_TRUE(pins[1]->location.IsEqualTo({5, 6}, 1e-14));
    EXPECT_EQ(135.0, pins[1]->angle);
    EXPECT_TRUE(pins[2]->location.IsEqualTo({1, 2}, 1e-14));
    EXPECT_THAT(NamesOf_T(PadsOf(parser)), ElementsAre("1.500000X0.200000"));
}

TEST(FootprintPinReaderTest, PinIsNotDisplaced) {
    EXPECT_EQ(geom::k_Origin, PinOf(Fpadstack("drilled")).Pins().at(0)->displacement);
}

TEST(FootprintPinReaderTest, HugeStrokeIsNamedInFull) {
    const std::string name =
        StrokePadsOf(PinOf("(line (geometry (line (vertex (pt 0 0 (width -1e308)) (pt 1e308 0)))))")).at(0);
    EXPECT_THAT(name, SizeIs(309 + 7 + 1 + 1 + 309 + 7));
}
