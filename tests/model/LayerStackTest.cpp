#include "model/LayerStack.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// Layers numbered 1 to 4, of which the tests make stacks.
struct LayerStackTest : testing::Test {
    Layer m_First{"Conductive_1", 1, Layer::k_Conductive, 0.0};
    Layer m_Second{"Conductive_2", 2, Layer::k_Plane, 0.0};
    Layer m_Third{"Conductive_3", 3, Layer::k_Conductive, 0.0};
    Layer m_Fourth{"Conductive_4", 4, Layer::k_Conductive, 0.0};
    Layer m_Wire{"bondwire_1", 1, Layer::k_Bondwire, 0.0};
    Layer m_OtherWire{"bondwire_2", 2, Layer::k_Bondwire, 0.0};

    static LayerStack StackOf(const std::vector<Layer*>& layers) {
        LayerStack stack;
        for (Layer* layer : layers)
            stack.Append(layer);
        return stack;
    }
};

} // namespace

TEST_F(LayerStackTest, AnEmptyStackHasNothing) {
    const LayerStack stack;
    EXPECT_TRUE(stack.IsEmpty());
    EXPECT_EQ(stack.GetTop(), nullptr);
    EXPECT_EQ(stack.GetBottom(), nullptr);
    EXPECT_EQ(stack.Find(1), nullptr);
    EXPECT_EQ(stack.GetPosition(&m_First), -1);
    EXPECT_EQ(stack.GetMirrored(&m_First), &m_First);
    std::vector<Layer*> layers(3);
    EXPECT_EQ(stack.CopyTo(layers), 0);
    EXPECT_THAT(layers, IsEmpty());
}

TEST_F(LayerStackTest, KeepsTheOrder) {
    const LayerStack stack = StackOf({&m_Third, &m_First});
    EXPECT_EQ(stack.GetSize(), 2U);
    EXPECT_EQ(stack[0], &m_Third);
    EXPECT_EQ(stack[1], &m_First);
    std::vector<Layer*> layers(3);
    EXPECT_EQ(stack.CopyTo(layers), 2);
    EXPECT_THAT(layers, ElementsAre(&m_Third, &m_First));
    EXPECT_THAT(std::vector<Layer*>(stack.begin(), stack.end()), ElementsAre(&m_Third, &m_First));
}

TEST_F(LayerStackTest, FindsTheFirstOfEqualNumbers) {
    const LayerStack stack = StackOf({&m_Wire, &m_First, &m_Second});
    EXPECT_EQ(stack.Find(1), &m_Wire);
    EXPECT_EQ(stack.Find(2), &m_Second);
    EXPECT_EQ(stack.Find(3), nullptr);
}

TEST_F(LayerStackTest, FourLayersAreMirroredPairwise) {
    const LayerStack stack = StackOf({&m_First, &m_Second, &m_Third, &m_Fourth});
    EXPECT_EQ(stack.GetMirrored(&m_First), &m_Fourth);
    EXPECT_EQ(stack.GetMirrored(&m_Second), &m_Third);
    EXPECT_EQ(stack.GetMirrored(&m_Third), &m_Second);
    EXPECT_EQ(stack.GetMirrored(&m_Fourth), &m_First);
}

TEST_F(LayerStackTest, TheMiddleOfThreeLayersIsItsOwnMirror) {
    const LayerStack stack = StackOf({&m_First, &m_Second, &m_Third});
    EXPECT_EQ(stack.GetMirrored(&m_First), &m_Third);
    EXPECT_EQ(stack.GetMirrored(&m_Second), &m_Second);
}

TEST_F(LayerStackTest, AForeignLayerIsItsOwnMirror) {
    const LayerStack stack = StackOf({&m_First, &m_Second});
    EXPECT_EQ(stack.GetMirrored(&m_Third), &m_Third);
    EXPECT_EQ(stack.GetMirrored(nullptr), nullptr);
}

TEST_F(LayerStackTest, TopAndBottomAreNoBondWires) {
    const LayerStack stack = StackOf({&m_Wire, &m_First, &m_Second, &m_OtherWire});
    EXPECT_EQ(stack.GetTop(), &m_First);
    EXPECT_EQ(stack.GetBottom(), &m_Second);
    const LayerStack wires = StackOf({&m_Wire, &m_OtherWire});
    EXPECT_EQ(wires.GetTop(), nullptr);
    EXPECT_EQ(wires.GetBottom(), nullptr);
}

TEST_F(LayerStackTest, ReplaceTakesNumbersAsTheyAreThen) {
    LayerStack stack = StackOf({&m_First, &m_Second, &m_Third});
    m_First.number += 2;
    m_Second.number += 2;
    stack.Replace({&m_Wire, &m_OtherWire, &m_First, &m_Second});
    EXPECT_EQ(stack.GetSize(), 4U);
    EXPECT_EQ(stack.Find(1), &m_Wire);
    EXPECT_EQ(stack.Find(2), &m_OtherWire);
    EXPECT_EQ(stack.Find(3), &m_First);
    EXPECT_EQ(stack.Find(4), &m_Second);
    EXPECT_EQ(stack.GetPosition(&m_First), 2);
    EXPECT_EQ(stack.GetPosition(&m_Third), -1);
    EXPECT_EQ(stack.GetTop(), &m_First);
    EXPECT_EQ(stack.GetBottom(), &m_Second);
}

TEST_F(LayerStackTest, ALayerThatStandsTwiceIsWhereItStandsFirst) {
    const LayerStack stack = StackOf({&m_First, &m_Second, &m_First});
    EXPECT_EQ(stack.GetPosition(&m_First), 0);
    EXPECT_EQ(stack.GetMirrored(&m_First), &m_First);
}
