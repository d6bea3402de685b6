#include "model/ZukenPCBParser.h"

#include "tests/AssertionRecorder.h"
#include "tests/BoardText.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

namespace {

/// Checks the mirror images of a stackup of as many layers as `images` has; `images[i]` is the index of the i-th's.
void ExpectMirrored(const std::vector<size_t>& images) {
    const BoardOf board(BoardWithLayers(static_cast<int>(images.size())));
    const std::vector<Layer*> layers = LayersOf(board);
    ASSERT_EQ(layers.size(), images.size());
    for (size_t i = 0; i < images.size(); ++i)
        EXPECT_EQ(board.MirrorConductiveLayer(layers[i]), layers[images[i]]) << i << " of " << images.size();
}

TEST(ZukenPCBParser_LayersTest, IsEmptyBeforeAnythingIsRead) {
    const ZukenPCBParser parser(ReadListText(""), ReadListText(BoardWithLayers(2)));
    EXPECT_TRUE(LayersOf(parser).empty());
    EXPECT_EQ(parser.GetUnitScale(), 1.0);
    EXPECT_TRUE(parser.GetUnitName().empty());
}

TEST(ZukenPCBParser_LayersTest, KeepsCopiesOfItsTrees) {
    io::CBlock tree = ReadListText(BoardWithLayers(2));
    ZukenPCBParser parser(ReadListText(""), tree);
    tree.Clear();
    const AssertionRecorder emptyBoard; // nothing on it has a size
    parser.ParseBoardFile();
    EXPECT_EQ(LayersOf(parser).size(), 2U);
}

TEST(ZukenPCBParser_LayersTest, ALayerIsFoundByItsNumber) {
    const BoardOf board("(pcf (technologyContainer (technology (conductiveLayer"
                        " (layerNumber 8) (layerNumber 3) (layerNumber -1)))))");
    const std::vector<Layer*> layers = LayersOf(board);
    EXPECT_EQ(board.FindConductiveLayer(8), layers[0]);
    EXPECT_EQ(board.FindConductiveLayer(3), layers[1]);
    EXPECT_EQ(board.FindConductiveLayer(-1), layers[2]);
    EXPECT_EQ(board.FindConductiveLayer(1), nullptr);
    EXPECT_EQ(board.FindConductiveLayer(0), nullptr);
}

TEST(ZukenPCBParser_LayersTest, TheFirstOfLayersWithOneNumberIsFound) {
    const BoardOf board("(pcf (technologyContainer (technology (conductiveLayer (layerNumber 5)"
                        " (layerNumber 2 (type POSINEGA)) (layerNumber 2)))))");
    EXPECT_EQ(board.FindConductiveLayer(2), LayersOf(board)[1]);
}

TEST(ZukenPCBParser_LayersTest, ALayerNameIsEmptyForAnUnknownNumber) {
    const BoardOf board(BoardWithLayers(2));
    EXPECT_EQ(board.GetConductiveLayerName(2), AString("Conductive_2"));
    EXPECT_TRUE(board.GetConductiveLayerName(3).empty());
    EXPECT_TRUE(BoardOf("").GetConductiveLayerName(1).empty());
}

TEST(ZukenPCBParser_LayersTest, MirrorSwapsTheOuterAndTheInnerLayersOfFour) { ExpectMirrored({3, 2, 1, 0}); }

TEST(ZukenPCBParser_LayersTest, MirrorKeepsTheMiddleLayerOfThree) { ExpectMirrored({2, 1, 0}); }

TEST(ZukenPCBParser_LayersTest, MirrorSwapsTheLayersOfTwo) { ExpectMirrored({1, 0}); }

TEST(ZukenPCBParser_LayersTest, MirrorKeepsTheOnlyLayer) { ExpectMirrored({0}); }

TEST(ZukenPCBParser_LayersTest, MirrorGoesByThePlaceInTheStackupAndNotByTheNumber) {
    const BoardOf board("(pcf (technologyContainer (technology (conductiveLayer"
                        " (layerNumber 3) (layerNumber 3) (layerNumber 1)))))");
    const std::vector<Layer*> layers = LayersOf(board);
    EXPECT_EQ(board.MirrorConductiveLayer(layers[0]), layers[2]);
    EXPECT_EQ(board.MirrorConductiveLayer(layers[1]), layers[1]);
}

TEST(ZukenPCBParser_LayersTest, MirrorGivesBackALayerThatIsNotInTheStackup) {
    Layer stranger("Conductive_1", 1, Layer::k_Conductive, 0.0);
    EXPECT_EQ(BoardOf(BoardWithLayers(4)).MirrorConductiveLayer(&stranger), &stranger);
    EXPECT_EQ(BoardOf("").MirrorConductiveLayer(&stranger), &stranger);
    EXPECT_EQ(BoardOf(BoardWithLayers(4)).MirrorConductiveLayer(nullptr), nullptr);
}

TEST(ZukenPCBParser_LayersTest, AnEmptyStackupHasNoOuterLayers) {
    const BoardOf board("");
    EXPECT_EQ(board.GetTopConductiveLayer(), nullptr);
    EXPECT_EQ(board.GetBottomConductiveLayer(), nullptr);
}

TEST(ZukenPCBParser_LayersTest, TheOuterLayersAreTheFirstAndTheLast) {
    const BoardOf board(BoardWithLayers(3));
    const std::vector<Layer*> layers = LayersOf(board);
    EXPECT_EQ(board.GetTopConductiveLayer(), layers[0]);
    EXPECT_EQ(board.GetBottomConductiveLayer(), layers[2]);
}

TEST(ZukenPCBParser_LayersTest, TheOnlyLayerIsBothOuterLayers) {
    const BoardOf board(BoardWithLayers(1));
    EXPECT_EQ(board.GetTopConductiveLayer(), LayersOf(board)[0]);
    EXPECT_EQ(board.GetBottomConductiveLayer(), LayersOf(board)[0]);
}

TEST(ZukenPCBParser_LayersTest, GetConductiveLayersReplacesWhatWasThere) {
    const BoardOf board(BoardWithLayers(2));
    std::vector<Layer*> layers(5, nullptr);
    EXPECT_EQ(board.GetConductiveLayers(layers), 2);
    ASSERT_EQ(layers.size(), 2U);
    EXPECT_EQ(layers[1]->name, AString("Conductive_2"));
}

TEST(ZukenPCBParser_LayersTest, WithoutFootprintLayersEveryLookupOfThemFails) {
    const BoardOf board(BoardWithLayers(2));
    EXPECT_FALSE(board.HasFootprintLayer("PAD_A"));
    EXPECT_EQ(board.FindFootprintLayer("PAD_A"), nullptr);
    EXPECT_EQ(board.GetFootprintLayerNumber("PAD_A"), std::numeric_limits<uint32_t>::max());
    EXPECT_EQ(board.FindFootprintLayerByConductive(1), nullptr);
}

} // namespace
