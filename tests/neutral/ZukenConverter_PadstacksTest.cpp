#include "model/PadCircle.h"
#include "model/PadRectangle.h"
#include "tests/neutral/SectionText.h"

#include <gtest/gtest.h>

namespace {

const geom::Polygon k_NoHole;

/// Pads, layers and entries for the padstacks of a test.
struct ZukenConverter_PadstacksTest : testing::Test {
    PadCircle m_Pad{1.0, 0, "P"};
    PadCircle m_Clearance{2.0, 0, "C"};
    PadstackLayerPad m_Entry{1, &m_Pad, 0.0, 0.0, 0.0};
    PadstackLayerPad m_NoPad{1, nullptr, 0.0, 0.0, 0.0};
    PadstackLayerPad m_Anti{1, &m_Clearance, 0.0, 0.0, 0.0};
    Layer m_Conductive{"Conductive_1", 1, Layer::k_Conductive, 0.0};
    Layer m_Plane{"Conductive_2", 2, Layer::k_Plane, 0.0};
    Layer m_Wire{"bondwire_1", 1, Layer::k_Bondwire, 0.0};

    static std::string Write(const std::vector<Padstack*>& padstacks, const std::vector<Layer*>& layers) {
        io::CBlock root("R");
        EXPECT_TRUE(ZukenConverter::WritePadstacks(padstacks, layers, root));
        return TextOf(root);
    }
    /// A padstack with pads on all layers, which has to be what `Words` tells.
    std::string WriteOnAll(const std::vector<Layer*>& layers) {
        const Padstack::LayerPads pads(layers.size(), &m_NoPad);
        Padstack padstack("S", k_NoHole, pads, pads, pads);
        return Write({&padstack}, layers);
    }
};

} // namespace

TEST_F(ZukenConverter_PadstacksTest, NoPadstacksGiveAnEmptyBlock) {
    EXPECT_EQ(Write({}, {&m_Conductive}), R"(R {
	Padstacks {
	}
}
)");
}

TEST_F(ZukenConverter_PadstacksTest, TwoLayersAreTopAndBottom) {
    Padstack padstack("S", k_NoHole, {&m_Entry, &m_Entry}, {nullptr, nullptr}, {&m_Anti, &m_Anti});
    EXPECT_EQ(Write({&padstack}, {&m_Conductive, &m_Conductive}), R"(R {
	Padstacks {
		S {
			Hole(0.0)
			Top("P", 0.0, 0.0, 0.0,
				Thermal(),
				Nonconnect())
			Bottom("P", 0.0, 0.0, 0.0,
				Thermal(),
				Nonconnect())
		}
	}
}
)");
}

TEST_F(ZukenConverter_PadstacksTest, TheMiddleOfThreeLayersIsSignal) {
    EXPECT_EQ(WriteOnAll({&m_Conductive, &m_Plane, &m_Conductive}), R"(R {
	Padstacks {
		S {
			Hole(0.0)
			Top("NULLPAD", 0, 0, 0)
			Signal("NULLPAD", 0, 0, 0)
			Bottom("NULLPAD", 0, 0, 0)
		}
	}
}
)");
}

TEST_F(ZukenConverter_PadstacksTest, OneLayerIsTop) {
    EXPECT_EQ(WriteOnAll({&m_Conductive}), R"(R {
	Padstacks {
		S {
			Hole(0.0)
			Top("NULLPAD", 0, 0, 0)
		}
	}
}
)");
}

TEST_F(ZukenConverter_PadstacksTest, ABondWireLayerAtTheEndIsBottom) {
    EXPECT_EQ(WriteOnAll({&m_Conductive, &m_Wire, &m_Wire}), R"(R {
	Padstacks {
		S {
			Hole(0.0)
			Top("NULLPAD", 0, 0, 0)
			Wirebond("NULLPAD", 0, 0, 0)
			Bottom("NULLPAD", 0, 0, 0)
		}
	}
}
)");
}

TEST_F(ZukenConverter_PadstacksTest, BondWireLayersAheadOfTheTopAreWirebond) {
    EXPECT_EQ(WriteOnAll({&m_Wire, &m_Plane, &m_Conductive}), R"(R {
	Padstacks {
		S {
			Hole(0.0)
			Wirebond("NULLPAD", 0, 0, 0)
			Top("NULLPAD", 0, 0, 0)
			Bottom("NULLPAD", 0, 0, 0)
		}
	}
}
)");
}

TEST_F(ZukenConverter_PadstacksTest, WithoutARealLayerTheFirstIsTop) {
    EXPECT_EQ(WriteOnAll({&m_Wire, &m_Wire}), R"(R {
	Padstacks {
		S {
			Hole(0.0)
			Top("NULLPAD", 0, 0, 0)
			Bottom("NULLPAD", 0, 0, 0)
		}
	}
}
)");
}

TEST_F(ZukenConverter_PadstacksTest, EntriesBeyondTheLayersAreSignal) {
    const Padstack::LayerPads pads(3, nullptr);
    Padstack padstack("S", k_NoHole, pads, pads, pads);
    EXPECT_EQ(Write({&padstack}, {&m_Wire}), R"(R {
	Padstacks {
		S {
			Hole(0.0)
			Top("NULLPAD", 0, 0, 0)
			Signal("NULLPAD", 0, 0, 0)
			Bottom("NULLPAD", 0, 0, 0)
		}
	}
}
)");
}

TEST_F(ZukenConverter_PadstacksTest, AMissingEntryAndOneWithoutPadAreTheNullPad) {
    Padstack padstack("S", k_NoHole, {nullptr, &m_NoPad}, {&m_Anti, &m_Anti}, {nullptr, nullptr});
    EXPECT_EQ(Write({&padstack}, {&m_Conductive, &m_Conductive}), R"(R {
	Padstacks {
		S {
			Hole(0.0)
			Top("NULLPAD", 0, 0, 0)
			Bottom("NULLPAD", 0, 0, 0)
		}
	}
}
)");
}

TEST_F(ZukenConverter_PadstacksTest, TheClearanceStandsInNonconnect) {
    Padstack padstack("S", k_NoHole, {&m_Entry, &m_Entry}, {&m_Anti, &m_NoPad}, {nullptr, nullptr});
    EXPECT_EQ(Write({&padstack}, {&m_Conductive, &m_Conductive}), R"(R {
	Padstacks {
		S {
			Hole(0.0)
			Top("P", 0.0, 0.0, 0.0,
				Thermal(),
				Nonconnect("C", 0, 0, 0))
			Bottom("P", 0.0, 0.0, 0.0,
				Thermal(),
				Nonconnect())
		}
	}
}
)");
}

TEST_F(ZukenConverter_PadstacksTest, OffsetAndAngleStandInTheEntry) {
    PadRectangle rectangle(4.0, 2.0, 30.0, 1, "rect");
    rectangle.offsetX = 1.5;
    rectangle.offsetY = -2.0;
    PadstackLayerPad entry(1, &rectangle, 0.0, 90.0, 0.0);
    Padstack padstack("S", k_NoHole, {&entry}, {nullptr}, {nullptr});
    EXPECT_EQ(Write({&padstack}, {&m_Conductive}), R"(R {
	Padstacks {
		S {
			Hole(0.0)
			Top("rect", 1.5, -2.0, 90.0,
				Thermal(),
				Nonconnect())
		}
	}
}
)");
}

TEST_F(ZukenConverter_PadstacksTest, ARoundHoleIsItsDiameter) {
    Padstack padstack("S", geom::Polygon(geom::Circle(geom::k_Origin, 0.25)), {}, {}, {});
    EXPECT_EQ(Write({&padstack}, {&m_Conductive}), R"(R {
	Padstacks {
		S {
			Hole(0.5)
		}
	}
}
)");
}

TEST_F(ZukenConverter_PadstacksTest, ASquareHoleIsNone) {
    Padstack padstack("S", geom::Polygon(geom::Box(geom::k_Origin, 1), 0), {}, {}, {});
    EXPECT_EQ(Write({&padstack}, {&m_Conductive}), R"(R {
	Padstacks {
		S {
			Hole(0.0)
		}
	}
}
)");
}
