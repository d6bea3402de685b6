#include "model/Layer.h"

#include <gtest/gtest.h>

namespace {

TEST(LayerTest, KeepsWhatItIsMadeOfAndBelongsToNoNet) {
    const Layer layer("Conductive_3", 3, Layer::k_Plane, 0.25);
    EXPECT_EQ(layer.name, AString("Conductive_3"));
    EXPECT_EQ(layer.number, 3);
    EXPECT_EQ(layer.type, 1U);
    EXPECT_EQ(layer.thickness, 0.25);
    EXPECT_TRUE(layer.signalName.empty());
}

TEST(LayerTest, OnlyAFootprintLayerIsOne) {
    const Layer layer("a", 1, Layer::k_Conductive, 0.0);
    const FPLayer footprintLayer("b", 2, Layer::k_Conductive, 0.0);
    EXPECT_FALSE(layer.IsFPLayer());
    EXPECT_TRUE(static_cast<const Layer&>(footprintLayer).IsFPLayer());
}

TEST(FPLayerTest, StandsForNoLayerOfTheBoardAtFirst) {
    const FPLayer layer("PAD_A", 4, Layer::k_Bondwire, 1.5);
    EXPECT_EQ(layer.GetName(), AString("PAD_A"));
    EXPECT_EQ(layer.number, 4);
    EXPECT_EQ(layer.type, 2U);
    EXPECT_EQ(layer.thickness, 1.5);
    EXPECT_TRUE(layer.conductiveNumbers.empty());
}

} // namespace
