#include "blocks/CBlock.h"
#include "tests/neutral/WrittenBoard.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

/// The names of the items of the root block, in order.
std::vector<std::string> RootItems(const std::string& text) {
    io::CBlock root;
    EXPECT_TRUE(root.Unpack(AString(text.c_str()))) << text;
    EXPECT_EQ(root.Name(), AString("QuorelNeutralFile"));
    std::vector<std::string> names;
    for (const io::Node& item : root)
        names.emplace_back(item.GetText());
    return names;
}

TEST(ZukenConverter_FrameTest, TheFileBeginsWithItsVersionSourceAndUnit) {
    const std::pair<const char*, const char*> units[] = {
        {"DBUNIT", "mm"}, {"MM", "mm"}, {"MIL", "mil"}, {"INCH", "in"}, {"FOO", "mm"}};
    for (const auto& [unit, text] : units) {
        BoardOf board("(pcf b (header (unit " + std::string(unit) + ")))");
        const std::string expected = "QuorelNeutralFile {\n"
                                     "\tVersion(4, 0)\n"
                                     "\tSource(\"Zuken\", \"\", \"\")\n"
                                     "\tDefaultUnits = \"" +
                                     std::string(text) + "\"\n";
        EXPECT_EQ(WrittenText(board).substr(0, expected.size()), expected) << unit;
    }
}

TEST(ZukenConverter_FrameTest, ABoardWithoutAHeaderHasNoUnit) {
    BoardOf board("");
    EXPECT_NE(WrittenText(board).find("\tDefaultUnits = \"\"\n"), std::string::npos);
}

TEST(ZukenConverter_FrameTest, LayoutDataIsTheLastTopLevelBlock) {
    for (const char* pcf : {"", "(pcf b (header (unit MM)))"}) {
        BoardOf board(pcf);
        const std::string text = WrittenText(board);
        const std::vector<std::string> items = RootItems(text);
        ASSERT_GE(items.size(), 4U);
        EXPECT_EQ(items[0], "Version");
        EXPECT_EQ(items[1], "Source");
        EXPECT_EQ(items[2], "DefaultUnits");
        EXPECT_EQ(items.back(), "LayoutData");
        EXPECT_TRUE(text.ends_with("\n\t}\n}\n"));
    }
}

TEST(ZukenConverter_FrameTest, TheDesignHoldsItsNameAndTheStackup) {
    BoardOf board(BoardWithLayers(1));
    const std::vector<std::string> designs = BlocksOf(WrittenText(board), "Design");
    ASSERT_EQ(designs.size(), 1U);
    EXPECT_EQ(designs.front(), "Design {\n"
                               "\tName = \"ZukenBoard\"\n"
                               "\tTopLayout {\n"
                               "\t\tLayers {\n"
                               "\t\t\tStackupLayer(\"Conductive_1\", \"Signal\", \"Top\", 0.2, \"Copper\")\n"
                               "\t\t}\n"
                               "\t}\n"
                               "}\n");
}

TEST(ZukenConverter_FrameTest, TheCellStandsAheadOfTheDesign) {
    BoardOf board(BoardWithLayers(1));
    const std::vector<std::string> blocks = BlocksOf(WrittenText(board), "LayoutData");
    ASSERT_EQ(blocks.size(), 1U);
    EXPECT_TRUE(blocks.front().starts_with("LayoutData {\n\tLayoutCell {\n"));
    EXPECT_NE(blocks.front().find("\n\t}\n\tDesign {\n"), std::string::npos);
    EXPECT_TRUE(blocks.front().ends_with("\n\t}\n}\n"));
}

TEST(ZukenConverter_FrameTest, ABoardWithoutLayersHasEmptyStackups) {
    BoardOf board("");
    EXPECT_EQ(BlocksOf(WrittenText(board), "Layers"), std::vector<std::string>(2, "Layers {\n}\n"));
}

TEST(ZukenConverter_FrameTest, AModelCanBeWrittenTwice) {
    BoardOf board(BoardWithLayers(3));
    const std::string first = WrittenText(board);
    EXPECT_EQ(WrittenText(board), first);
}

TEST(ZukenConverter_FrameTest, WhatCannotBeWrittenIsFalseAsWell) {
    BoardOf board("");
    ZukenConverter converter(LongFileName(), LongFileName(), LongFileName(), LongFileName(AString("away/out.qrl")));
    testing::internal::CaptureStderr();
    EXPECT_FALSE(converter.Write(board));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "away/out.qrl: No such file or directory\n");
}

} // namespace
