#include "tests/neutral/SectionText.h"

#include <gtest/gtest.h>

namespace {

std::string WriteNetlist(const std::vector<Component*>& components, const std::vector<Net*>& nets) {
    io::CBlock root("R");
    ZukenConverter::WriteNetlist(components, nets, root);
    return TextOf(root);
}

std::string WriteLayoutComponents(const std::vector<Component*>& components) {
    io::CBlock root("R");
    EXPECT_TRUE(ZukenConverter::WriteLayoutComponents(components, root));
    return TextOf(root);
}

/// A component of the footprint "SOT" on the top layer.
struct ZukenConverter_LayoutCellTest : testing::Test {
    Footprint m_Footprint{"SOT", {}};
    Component m_Component{"U1", &m_Footprint, geom::Point(1.5, -2), 270.0, true};

    ZukenConverter_LayoutCellTest() {
        m_Component.id = "Component_7";
        m_Component.layerName = "Conductive_4";
    }
};

} // namespace

TEST_F(ZukenConverter_LayoutCellTest, AComponentWithNothingToSayHasEmptyProperties) {
    EXPECT_EQ(WriteNetlist({&m_Component}, {}), R"(R {
	Netlist {
		CompInst {
			U1("Component_7")
			Properties {
			}
		}
	}
}
)");
}

TEST_F(ZukenConverter_LayoutCellTest, PropertiesTellPartNumberValueAndInactivity) {
    m_Component.partNumber = "4711-A";
    m_Component.value = "10k";
    m_Component.active = false;
    EXPECT_EQ(WriteNetlist({&m_Component}, {}), R"(R {
	Netlist {
		CompInst {
			U1("Component_7")
			Properties {
				TextProp("PART_NUMBER", "4711-A")
				TextProp("Value", "10k")
				CheckboxProp("ACTIVATE", false)
			}
		}
	}
}
)");
}

TEST_F(ZukenConverter_LayoutCellTest, AComponentWithoutFootprintIsInTheNetlistOnly) {
    m_Component.footprint = nullptr;
    EXPECT_EQ(WriteNetlist({&m_Component}, {}), R"(R {
	Netlist {
		CompInst {
			U1("Component_7")
			Properties {
			}
		}
	}
}
)");
    EXPECT_EQ(WriteLayoutComponents({&m_Component}), R"(R {
	LayoutComponents {
	}
}
)");
}

TEST_F(ZukenConverter_LayoutCellTest, NetPinsAreInTheOrderOfText) {
    Net net("+3V3");
    net.AddPinRef("U1.2");
    net.AddPinRef("U1.10");
    EXPECT_EQ(WriteNetlist({}, {&net}), R"(R {
	Netlist {
		Net {
			"+3V3"("Signal")
			NetPin = "U1.10"
			NetPin = "U1.2"
		}
	}
}
)");
}

TEST_F(ZukenConverter_LayoutCellTest, ANetWithoutPinsIsInNetlistAndLayoutNets) {
    Net net("GND");
    io::CBlock cell("LayoutCell");
    ZukenConverter converter = SectionConverter();
    EXPECT_TRUE(converter.WriteLayoutCell({}, {&net}, {}, cell));
    EXPECT_EQ(TextOf(cell), R"(LayoutCell {
	Netlist {
		Net {
			GND("Signal")
		}
	}
	Layout {
		Layers {
		}
		LayoutComponents {
		}
		LayoutNets {
			LayoutNet {
				Name = "GND"
			}
		}
	}
}
)");
}

TEST_F(ZukenConverter_LayoutCellTest, APlacedComponentGoesOutAsItStands) {
    EXPECT_EQ(WriteLayoutComponents({&m_Component}), R"(R {
	LayoutComponents {
		LayoutComp {
			LayoutCompInst("Conductive_4", "SOT", "U1", 1.5, -2.0, 270.0, true)
		}
	}
}
)");
}

TEST_F(ZukenConverter_LayoutCellTest, PinsTellTheLayersOnWhichTheyMakeNoConnection) {
    m_Component.mirrored = false;
    m_Component.pins = {{"1", {"Conductive_2", "Conductive_3"}}, {"2", {}}, {"3", {"Conductive_2"}}};
    EXPECT_EQ(WriteLayoutComponents({&m_Component}), R"(R {
	LayoutComponents {
		LayoutComp {
			LayoutCompInst("Conductive_4", "SOT", "U1", 1.5, -2.0, 270.0, false)
			fpPinInst("1",
				RemoveThermalVoids("Conductive_2", 15, "Conductive_3", 15))
			fpPinInst("3",
				RemoveThermalVoids("Conductive_2", 15))
		}
	}
}
)");
}

TEST_F(ZukenConverter_LayoutCellTest, APinWithoutSuchLayersIsNotWritten) {
    m_Component.pins = {{"1", {}}};
    EXPECT_EQ(WriteLayoutComponents({&m_Component}), R"(R {
	LayoutComponents {
		LayoutComp {
			LayoutCompInst("Conductive_4", "SOT", "U1", 1.5, -2.0, 270.0, true)
		}
	}
}
)");
}
