#include "model/ZukenPCBParser.h"
#include "tests/AssertionRecorder.h"
#include "tests/BoardText.h"

#include <gtest/gtest.h>

namespace {

// 2^30 database units of 1e-5 mm, of which a millimetre has 100000 and a mil 2540, in each unit.
constexpr double k_RangeInDatabaseUnits = 1073741824.0;
constexpr double k_RangeInMillimetres = 10737.41824;
constexpr double k_RangeInMils = 1073741824.0 / 2540.0;
constexpr double k_ScaleBefore = 1.0;

/// A parser that holds nothing.
class EmptyBoard : public ZukenPCBParser {
public:
    EmptyBoard() : ZukenPCBParser(io::CBlock("fpData"), io::CBlock("pcbData")) {}
};

struct UnitRow {
    const char* m_Name;
    const char* m_Header;
    const char* m_UnitName;
    double m_UnitScale;
};

// clang-format off
const UnitRow k_UnitRows[] = {
    {"database units",         "(header (unit DBUNIT))",          "mm",  k_RangeInDatabaseUnits},
    {"millimetres",            "(header (unit MM))",              "mm",  k_RangeInMillimetres},
    {"mils",                   "(header (unit MIL))",             "mil", k_RangeInMils},
    {"inches",                 "(header (unit INCH))",            "in",  k_ScaleBefore},
    {"an unknown unit",        "(header (unit FOO))",             "mm",  k_ScaleBefore},
    {"an unknown longer unit", "(header (unit MILS))",            "mm",  k_ScaleBefore},
    {"database, small",        "(header (unit dbunit))",          "mm",  k_RangeInDatabaseUnits},
    {"millimetres, small",     "(header (unit mm))",              "mm",  k_RangeInMillimetres},
    {"mils, mixed",            "(header (unit Mil))",             "mil", k_RangeInMils},
    {"inches, mixed",          "(header (unit iNcH))",            "in",  k_ScaleBefore},
    {"keywords, other case",   "(HEADER (UNIT MIL))",             "mil", k_RangeInMils},
    {"quoted",                 "(header (unit \"MIL\"))",         "mil", k_RangeInMils},
    {"quoted with a blank",    "(header (unit \" MIL\"))",        "mm",  k_ScaleBefore},
    {"no unit",                "(header (version 11.0))",         "mm",  k_ScaleBefore},
    {"empty header",           "(header)",                        "mm",  k_ScaleBefore},
    {"empty unit",             "(header (unit))",                 "mm",  k_ScaleBefore},
    {"number for a unit",      "(header (unit 25.4 MIL))",        "mm",  k_ScaleBefore},
    {"list for a unit",        "(header (unit (MIL)))",           "mm",  k_ScaleBefore},
    {"unit that is no list",   "(header unit MIL)",               "mm",  k_ScaleBefore},
    {"more behind the unit",   "(header (unit MIL MM))",          "mil", k_RangeInMils},
    {"two units",              "(header (unit MIL) (unit MM))",   "mil", k_RangeInMils},
    {"among others",           "(header b 1 (a (unit MM)) (unit MIL))", "mil", k_RangeInMils},
};
// clang-format on

TEST(ZukenPCBParser_BoardTest, EveryUnitHasItsNameAndScale) {
    for (const UnitRow& row : k_UnitRows) {
        EmptyBoard board;
        board.ReadUnits(ListOf(row.m_Header));
        EXPECT_EQ(board.GetUnitName().QRL_ANSI(), row.m_UnitName) << row.m_Name;
        EXPECT_EQ(board.GetUnitScale(), row.m_UnitScale) << row.m_Name;
    }
}

TEST(ZukenPCBParser_BoardTest, AUnitWithoutAScaleKeepsThePreviousOne) {
    // clang-format off
    const UnitRow before[] = {
        {"millimetres",    "(header (unit MM))",     "mm",  k_RangeInMillimetres},
        {"mils",           "(header (unit MIL))",    "mil", k_RangeInMils},
        {"database units", "(header (unit DBUNIT))", "mm",  k_RangeInDatabaseUnits},
    };
    // clang-format on
    for (const UnitRow& first : before)
        for (const UnitRow& second : k_UnitRows) {
            EmptyBoard board;
            board.ReadUnits(ListOf(first.m_Header));
            board.ReadUnits(ListOf(second.m_Header));
            const bool keeps = second.m_UnitScale == k_ScaleBefore;
            EXPECT_EQ(board.GetUnitScale(), keeps ? first.m_UnitScale : second.m_UnitScale)
                << first.m_Name << ", then " << second.m_Name;
            EXPECT_EQ(board.GetUnitName().QRL_ANSI(), second.m_UnitName) << first.m_Name << ", then " << second.m_Name;
        }
}

TEST(ZukenPCBParser_BoardTest, InchesBehindMillimetresKeepTheScaleOfMillimetres) {
    EmptyBoard board;
    board.ReadUnits(ListOf("(header (unit MM))"));
    board.ReadUnits(ListOf("(header (unit INCH))"));
    EXPECT_EQ(board.GetUnitScale(), 10737.41824);
    EXPECT_EQ(board.GetUnitName(), AString("in"));
}

TEST(ZukenPCBParser_BoardTest, TheHeaderOfTheBoardFileIsRead) {
    EXPECT_EQ(BoardOf("(pcf b (header (unit dbunit)))").GetUnitScale(), k_RangeInDatabaseUnits);
    EXPECT_EQ(BoardOf("(pcf b (header (unit MIL)))").GetUnitName(), AString("mil"));
    EXPECT_EQ(BoardOf("(pcf b (header (unit FOO)))").GetUnitName(), AString("mm"));
}

TEST(ZukenPCBParser_BoardTest, TheLastHeaderHolds) {
    const BoardOf board("(pcf b (header (unit MIL)) (header (unit INCH))) (pcf c (header (unit FOO)))");
    EXPECT_EQ(board.GetUnitName(), AString("mm"));
    EXPECT_EQ(board.GetUnitScale(), k_RangeInMils);
}

/// A layer as one line of text, to compare whole stackups.
std::string Describe(const Layer& layer) {
    const std::string signal = layer.signalName.QRL_ANSI();
    return layer.name.QRL_ANSI() + " is " + std::to_string(layer.number) + " of type " + std::to_string(layer.type) +
           (signal.empty() ? "" : " for " + signal);
}

std::vector<std::string> StackupOf(const ZukenPCBParser& parser) {
    std::vector<std::string> lines;
    for (const Layer* layer : LayersOf(parser)) {
        EXPECT_EQ(layer->thickness, 0.0);
        EXPECT_FALSE(layer->IsFPLayer());
        lines.push_back(Describe(*layer));
    }
    return lines;
}

struct LayerRow {
    const char* m_Name;
    const char* m_Text;
    const char* m_Layer;
};

TEST(ZukenPCBParser_BoardTest, ALayerIsReadFromItsList) {
    // clang-format off
    const LayerRow rows[] = {
        {"plain",                   "(layerNumber 1 (type POSI))",                             "Conductive_1 is 1 of type 0"},
        {"without a type",          "(layerNumber 1)",                                         "Conductive_1 is 1 of type 0"},
        {"empty type",              "(layerNumber 1 (type))",                                  "Conductive_1 is 1 of type 0"},
        {"number for a type",       "(layerNumber 1 (type 1))",                                "Conductive_1 is 1 of type 0"},
        {"plane",                   "(layerNumber 2 (type POSINEGA))",                         "Conductive_2 is 2 of type 1"},
        {"plane, small",            "(LAYERNUMBER 2 (TYPE posinega))",                         "Conductive_2 is 2 of type 1"},
        {"plane with a net",        "(layerNumber 2 (type POSINEGA) (signalName GND))",        "Conductive_2 is 2 of type 1"},
        {"plain with a net",        "(layerNumber 2 (type POSI) (signalName GND))",            "Conductive_2 is 2 of type 0"},
        {"full plane",              "(layerNumber 3 (type FULLSURF) (signalName GND))",        "Conductive_3 is 3 of type 1 for GND"},
        {"full plane, small",       "(layerNumber 3 (type fullsurf) (SIGNALNAME gnd))",        "Conductive_3 is 3 of type 1 for gnd"},
        {"full plane, net ahead",   "(layerNumber 3 (signalName GND) (type FULLSURF))",        "Conductive_3 is 3 of type 1 for GND"},
        {"full plane, quoted net",  "(layerNumber 3 (type FULLSURF) (signalName \"A B\"))",    "Conductive_3 is 3 of type 1 for A B"},
        {"full plane without net",  "(layerNumber 3 (type FULLSURF))",                         "Conductive_3 is 3 of type 1"},
        {"full plane, empty net",   "(layerNumber 3 (type FULLSURF) (signalName))",            "Conductive_3 is 3 of type 1"},
        {"full plane, empty text",  "(layerNumber 3 (type FULLSURF) (signalName \"\"))",       "Conductive_3 is 3 of type 1"},
        {"full plane, number",      "(layerNumber 3 (type FULLSURF) (signalName 5))",          "Conductive_3 is 3 of type 1"},
        {"two types",               "(layerNumber 3 (type POSI) (type FULLSURF))",             "Conductive_3 is 3 of type 0"},
        {"two nets",                "(layerNumber 3 (type FULLSURF) (signalName A) (signalName B))", "Conductive_3 is 3 of type 1 for A"},
        {"no number",               "(layerNumber (type POSINEGA))",                           "Conductive_0 is 0 of type 1"},
        {"word for a number",       "(layerNumber X 4)",                                       "Conductive_0 is 0 of type 0"},
        {"text for a number",       "(layerNumber \"4\")",                                     "Conductive_0 is 0 of type 0"},
        {"fraction",                "(layerNumber 4.0)",                                       "Conductive_0 is 0 of type 0"},
        {"number of 33 bits",       "(layerNumber 4294967297)",                                "Conductive_0 is 0 of type 0"},
        {"below zero",              "(layerNumber -5)",                                        "Conductive_-5 is -5 of type 0"},
        {"with zeros",              "(layerNumber 007)",                                       "Conductive_7 is 7 of type 0"},
        {"number behind the type",  "(layerNumber (type POSINEGA) 4)",                         "Conductive_0 is 0 of type 1"},
    };
    // clang-format on
    for (const LayerRow& row : rows) {
        EmptyBoard board;
        EXPECT_TRUE(board.ReadConductiveLayers(ListOf("(conductiveLayer " + std::string(row.m_Text) + ")")));
        EXPECT_EQ(StackupOf(board), std::vector<std::string>{row.m_Layer}) << row.m_Name;
    }
}

TEST(ZukenPCBParser_BoardTest, LayersKeepTheOrderOfTheFileAndRepeatedNumbers) {
    EmptyBoard board;
    EXPECT_TRUE(board.ReadConductiveLayers(
        ListOf("(conductiveLayer (layerNumber 4) (layerNumber 1) (layerNumber 4 (type POSINEGA)))")));
    const std::vector<std::string> expected = {
        "Conductive_4 is 4 of type 0", "Conductive_1 is 1 of type 0", "Conductive_4 is 4 of type 1"};
    EXPECT_EQ(StackupOf(board), expected);
}

TEST(ZukenPCBParser_BoardTest, WhatIsNoLayerIsPassedOver) {
    EmptyBoard board;
    EXPECT_TRUE(board.ReadConductiveLayers(
        ListOf("(conductiveLayer 7 word \"text\" (layer 2) () (other (layerNumber 3)) (layerNumber 1))")));
    EXPECT_EQ(StackupOf(board), std::vector<std::string>{"Conductive_1 is 1 of type 0"});
}

TEST(ZukenPCBParser_BoardTest, AnEmptyListMakesAnEmptyStackup) {
    EmptyBoard board;
    EXPECT_TRUE(board.ReadConductiveLayers(ListOf("(conductiveLayer)")));
    EXPECT_TRUE(StackupOf(board).empty());
}

TEST(ZukenPCBParser_BoardTest, EveryPcfListIsWalked) {
    const BoardOf board("(pcf a (technologyContainer (technology t (conductiveLayer (layerNumber 1)))))"
                        "(pcf b (technologyContainer (technology t (conductiveLayer (layerNumber 2)))))");
    const std::vector<std::string> expected = {"Conductive_1 is 1 of type 0", "Conductive_2 is 2 of type 0"};
    EXPECT_EQ(StackupOf(board), expected);
}

TEST(ZukenPCBParser_BoardTest, EveryTechnologyContainerOfAListIsRead) {
    const BoardOf board("(pcf a (technologyContainer (technology t (conductiveLayer (layerNumber 1))))"
                        " (technologyContainer (technology t (conductiveLayer (layerNumber 2)))))");
    EXPECT_EQ(StackupOf(board).size(), 2U);
}

TEST(ZukenPCBParser_BoardTest, OnlyTheFirstTechnologyOfAContainerIsRead) {
    const BoardOf board("(pcf a (technologyContainer"
                        " (technology t (conductiveLayer (layerNumber 1)) (conductiveLayer (layerNumber 2)))"
                        " (technology u (conductiveLayer (layerNumber 3)))))");
    EXPECT_EQ(StackupOf(board), std::vector<std::string>{"Conductive_1 is 1 of type 0"});
}

TEST(ZukenPCBParser_BoardTest, KeywordsMayBeInAnyCase) {
    const BoardOf board(
        "(PCF a (Header (UNIT mil))"
        " (TECHNOLOGYCONTAINER (Technology t (CONDUCTIVElayer (LayerNumber 1 (TYPE FullSurf) (SignalNAME A))))))");
    EXPECT_EQ(StackupOf(board), std::vector<std::string>{"Conductive_1 is 1 of type 1 for A"});
    EXPECT_EQ(board.GetUnitName(), AString("mil"));
}

TEST(ZukenPCBParser_BoardTest, AbsentSectionsLeaveTheModelEmpty) {
    for (const char* text : {"", "()", "word", "(pcf)", "(pcf b)", "(pcf b (technologyContainer))", "(pcf b ())",
             "(pcf b (technologyContainer (technology)))", "(pcf b (technologyContainer (technology t)))",
             "(pcf b (technologyContainer (conductiveLayer (layerNumber 1))))",
             "(pcf b (technologyContainer (technology t (conductiveLayer))))",
             "(pcf b (technologyContainer technology))"}) {
        const BoardOf board(text);
        EXPECT_TRUE(StackupOf(board).empty()) << text;
        EXPECT_TRUE(board.GetUnitName().empty()) << text;
        EXPECT_EQ(board.GetUnitScale(), 1.0) << text;
    }
}

TEST(ZukenPCBParser_BoardTest, SectionsOutsideOfAPcfListArePassedOver) {
    const BoardOf board("(header (unit MM)) (pcfs b (header (unit MM)))"
                        " (ftf (technologyContainer (technology t (conductiveLayer (layerNumber 1)))))"
                        " (a (pcf b (header (unit MM)))) (pcf b (a (header (unit MM))))");
    EXPECT_TRUE(StackupOf(board).empty());
    EXPECT_TRUE(board.GetUnitName().empty());
}

TEST(ZukenPCBParser_BoardTest, ListsAmongTheSectionsArePassedOver) {
    const BoardOf board("(other) word (pcf b 1 (other (pcf)) (header (unit MIL)) \"text\" ()"
                        " (technologyContainer (other) (technology (conductiveLayer (layerNumber 1)))))");
    EXPECT_EQ(StackupOf(board), std::vector<std::string>{"Conductive_1 is 1 of type 0"});
    EXPECT_EQ(board.GetUnitName(), AString("mil"));
}

TEST(ZukenPCBParser_BoardTest, ReadingTheTreeAgainReadsAllOfIt) {
    BoardOf board("(pcf b (technologyContainer (technology t (conductiveLayer (layerNumber 6 (type POSINEGA))))))");
    const AssertionRecorder recorder; // of a board without copper
    EXPECT_TRUE(board.ParseBoardFile());
    EXPECT_EQ(StackupOf(board), std::vector<std::string>(2, "Conductive_6 is 6 of type 1"));
}

} // namespace
