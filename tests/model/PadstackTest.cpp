#include "model/Padstack.h"
#include "lib/math/geometry/Circle.h"
#include "model/PadCircle.h"
#include "model/PadMultiLoop.h"

#include <gtest/gtest.h>

namespace {

using LayerPads = Padstack::LayerPads;

const geom::Polygon k_NoHole;

/// Pads and entries for the padstacks of a test.
struct PadstackTest : testing::Test {
    PadCircle m_Small{1.0, 0, "small"};
    PadCircle m_Large{2.0, 0, "large"};
    PadMultiLoop m_Loops{{}, 7, "loops"};
    PadstackLayerPad m_Top{1, &m_Small, 0.0, 0.0, 0.0};
    PadstackLayerPad m_Bottom{2, &m_Small, 0.0, 0.0, 0.0};
    PadstackLayerPad m_LargeTop{1, &m_Large, 0.0, 0.0, 0.0};
    PadstackLayerPad m_LoopsTop{1, &m_Loops, 0.0, 0.0, 0.0};
    PadstackLayerPad m_NoPad{2, nullptr, 0.0, 0.0, 0.0};
    geom::Polygon m_Drill{geom::Circle(geom::k_Origin, 0.5)};

    /// Whether padstacks with one connecting pad each are equal.
    static bool AreEqual(PadstackLayerPad a, PadstackLayerPad b) {
        const Padstack first("a", k_NoHole, {&a}, {nullptr}, {nullptr});
        const Padstack second("b", k_NoHole, {&b}, {nullptr}, {nullptr});
        return first.IsEqual(second);
    }
};

} // namespace

TEST_F(PadstackTest, HoldsWhatItIsGiven) {
    const Padstack padstack("via", m_Drill, {&m_Top, nullptr}, {nullptr, &m_Bottom}, {&m_LargeTop, nullptr});
    EXPECT_EQ(padstack.GetName(), AString("via"));
    EXPECT_TRUE(padstack.GetHole() == m_Drill);
    LayerPads out(5);
    EXPECT_EQ(padstack.GetConnectPads(out), 2);
    EXPECT_EQ(out, LayerPads({&m_Top, nullptr}));
    EXPECT_EQ(padstack.GetNoConnectPads(out), 2);
    EXPECT_EQ(out, LayerPads({nullptr, &m_Bottom}));
    EXPECT_EQ(padstack.GetThermalPads(out), 2);
    EXPECT_EQ(out, LayerPads({&m_LargeTop, nullptr}));
}

TEST_F(PadstackTest, SequencesCanBeReplaced) {
    Padstack padstack("via", m_Drill, {}, {}, {});
    padstack.SetConnectPads({&m_Top});
    padstack.SetNoConnectPads({&m_Bottom});
    padstack.SetThermalPads({&m_LargeTop});
    EXPECT_EQ(padstack.connectPads, LayerPads({&m_Top}));
    EXPECT_EQ(padstack.noConnectPads, LayerPads({&m_Bottom}));
    EXPECT_EQ(padstack.thermalPads, LayerPads({&m_LargeTop}));
}

TEST_F(PadstackTest, WithAHoleItIsNotMultiLayerWithoutHole) {
    EXPECT_FALSE(Padstack("a", m_Drill, {&m_Top, &m_Bottom}, {}, {}).IsMultiLayerWithoutHole());
}

TEST_F(PadstackTest, TwoPadsWithoutAHoleAreMultiLayerWithoutHole) {
    EXPECT_TRUE(Padstack("a", k_NoHole, {&m_Top, nullptr, &m_Bottom}, {}, {}).IsMultiLayerWithoutHole());
    EXPECT_FALSE(
        Padstack("a", k_NoHole, {&m_Top, nullptr}, {&m_Top, &m_Bottom}, {&m_Top, &m_Bottom}).IsMultiLayerWithoutHole());
}

TEST_F(PadstackTest, AnEntryWithoutPadCountsAsAbsent) {
    const Padstack padstack("a", k_NoHole, {&m_Top, &m_NoPad}, {}, {});
    EXPECT_FALSE(padstack.IsMultiLayerWithoutHole());
    EXPECT_FALSE(padstack.HasMultiLoopPad());
    EXPECT_TRUE(Padstack("a", k_NoHole, {&m_NoPad, &m_LoopsTop}, {}, {}).HasMultiLoopPad());
}

TEST_F(PadstackTest, OnlyConnectingPadsMakeItMultiLoop) {
    EXPECT_TRUE(Padstack("a", k_NoHole, {nullptr, &m_LoopsTop}, {}, {}).HasMultiLoopPad());
    EXPECT_FALSE(Padstack("a", k_NoHole, {&m_Top}, {&m_LoopsTop}, {&m_LoopsTop}).HasMultiLoopPad());
    EXPECT_FALSE(Padstack("MIS-EPA1616-RD100", k_NoHole, {&m_Top}, {}, {}).HasMultiLoopPad());
}

TEST_F(PadstackTest, IsEqualWhateverTheClearances) {
    const Padstack first("a", k_NoHole, {&m_Top}, {&m_Top}, {nullptr});
    const Padstack second("a", k_NoHole, {&m_Top}, {&m_LargeTop}, {nullptr});
    EXPECT_TRUE(first.IsEqual(second));
}

TEST_F(PadstackTest, ClearancesBeyondTheConnectingPadsAreCompared) {
    const Padstack first("a", k_NoHole, {&m_Top}, {nullptr, &m_Top}, {});
    const Padstack second("a", k_NoHole, {&m_Top}, {nullptr, &m_LargeTop}, {});
    EXPECT_FALSE(first.IsEqual(second));
    EXPECT_FALSE(first.IsEqual(Padstack("a", k_NoHole, {&m_Top}, {nullptr}, {})));
}

TEST_F(PadstackTest, NumberOfConnectingPadsMattersAlone) {
    const Padstack one("a", k_NoHole, {&m_Top}, {}, {});
    const Padstack two("a", k_NoHole, {&m_Top, &m_Bottom}, {}, {});
    EXPECT_FALSE(one.IsEqual(two));
    EXPECT_FALSE(two.IsEqual(one));
}

TEST_F(PadstackTest, IsEqualWhateverNameHoleAndThermalPads) {
    const Padstack first("a", k_NoHole, {&m_Top, nullptr}, {nullptr, nullptr}, {nullptr, nullptr});
    const Padstack second("b", m_Drill, {&m_Top, nullptr}, {nullptr, nullptr}, {&m_Top, nullptr});
    EXPECT_TRUE(first.IsEqual(second));
}

TEST_F(PadstackTest, ConnectingPadsTellPadstacksApart) {
    EXPECT_TRUE(AreEqual({1, &m_Small, 1.0, 2.0, 3.0}, {1, &m_Small, 1.0, 2.0, 3.0}));
    EXPECT_FALSE(AreEqual({1, &m_Small, 1.0, 2.0, 3.0}, {2, &m_Small, 1.0, 2.0, 3.0}));
    EXPECT_FALSE(AreEqual({1, &m_Small, 1.0, 2.0, 3.0}, {1, &m_Small, 0.0, 2.0, 3.0}));
    EXPECT_FALSE(AreEqual({1, &m_Small, 1.0, 2.0, 3.0}, {1, &m_Small, 1.0, 0.0, 3.0}));
    EXPECT_FALSE(AreEqual({1, &m_Small, 1.0, 2.0, 3.0}, {1, &m_Small, 1.0, 2.0, 0.0}));
    EXPECT_FALSE(AreEqual({1, &m_Small, 1.0, 2.0, 3.0}, {1, &m_Large, 1.0, 2.0, 3.0}));
}

TEST_F(PadstackTest, EntriesWithoutPadAreNotEqualButAbsentEntriesAre) {
    EXPECT_FALSE(AreEqual(m_NoPad, m_NoPad));
    EXPECT_FALSE(AreEqual(m_NoPad, m_Bottom));
    const Padstack absent("a", k_NoHole, {nullptr}, {nullptr}, {});
    const Padstack present("a", k_NoHole, {&m_Top}, {nullptr}, {});
    EXPECT_TRUE(absent.IsEqual(absent));
    EXPECT_FALSE(absent.IsEqual(present));
    EXPECT_FALSE(present.IsEqual(absent));
    EXPECT_FALSE(absent.IsEqual(Padstack("a", k_NoHole, {nullptr, nullptr}, {nullptr, nullptr}, {})));
}

TEST_F(PadstackTest, AMultiLoopPadMakesEveryPadstackUnequal) {
    const Padstack padstack("a", k_NoHole, {&m_LoopsTop}, {nullptr}, {});
    EXPECT_FALSE(padstack.IsEqual(padstack));
}
