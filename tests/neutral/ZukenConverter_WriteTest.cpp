#include "tests/neutral/SectionText.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

/// The file that is written for a board, whole.
std::string Write(ZukenPCBParser& parser) {
    const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
    const std::filesystem::path path = std::filesystem::path(testing::TempDir()) / (std::string(test->name()) + ".qrl");
    const LongFileName output{AString(path.string())};
    const LongFileName noFile;
    EXPECT_FALSE(ZukenConverter(noFile, noFile, noFile, output).Write(parser));
    std::ifstream file(path, std::ios::binary);
    const std::string text((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    std::filesystem::remove(path);
    return text;
}

} // namespace

TEST(ZukenConverter_WriteTest, AnEmptyBoardHasAllItsSectionsAndTheNullPad) {
    ZukenPCBParser parser{io::CBlock(), io::CBlock()};
    EXPECT_EQ(Write(parser), R"(QuorelNeutralFile {
	Version(4, 0)
	Source("Zuken", "", "")
	DefaultUnits = ""
	PadShapes {
		NULLPAD(Circle(0))
	}
	Padstacks {
	}
	Footprints {
	}
	Components {
	}
	LayoutData {
		LayoutCell {
			Netlist {
			}
			Layout {
				Layers {
				}
				LayoutComponents {
				}
				LayoutNets {
				}
			}
		}
		Design {
			Name = "ZukenBoard"
			TopLayout {
				Layers {
				}
			}
		}
	}
}
)");
}

TEST(ZukenConverter_WriteTest, ANamelessNetIsWrittenAsTheNetOfNoNet) {
    ZukenPCBParser parser{io::CBlock(), io::CBlock()};
    Net* first = parser.GetNet("A");
    Net* second = parser.GetNet("B");
    parser.GetNet("C");
    first->name = AString();
    second->name = AString();
    EXPECT_EQ(Write(parser), R"(QuorelNeutralFile {
	Version(4, 0)
	Source("Zuken", "", "")
	DefaultUnits = ""
	PadShapes {
		NULLPAD(Circle(0))
	}
	Padstacks {
	}
	Footprints {
	}
	Components {
	}
	LayoutData {
		LayoutCell {
			Netlist {
				Net {
					ZUKEN_DUMMY("Signal")
				}
				Net {
					ZUKEN_DUMMY("Signal")
				}
				Net {
					C("Signal")
				}
			}
			Layout {
				Layers {
				}
				LayoutComponents {
				}
				LayoutNets {
					LayoutNet {
						Name = "ZUKEN_DUMMY"
					}
					LayoutNet {
						Name = "ZUKEN_DUMMY"
					}
					LayoutNet {
						Name = "C"
					}
				}
			}
		}
		Design {
			Name = "ZukenBoard"
			TopLayout {
				Layers {
				}
			}
		}
	}
}
)");
    EXPECT_EQ(first->name, AString("ZUKEN_DUMMY"));
}

TEST(ZukenConverter_WriteTest, BothStackupsAreEqualAndNumberDielectricsFromOne) {
    Layer top("Conductive_1", 1, Layer::k_Conductive, 0.0);
    Layer plane("Conductive_2", 2, Layer::k_Plane, 0.0);
    io::CBlock root("R");
    ZukenConverter converter = SectionConverter();
    converter.WriteLayoutData({}, {}, {&top, &plane}, root);
    EXPECT_EQ(TextOf(root), R"(R {
	LayoutData {
		LayoutCell {
			Netlist {
			}
			Layout {
				Layers {
					StackupLayer("Conductive_1", "Signal", "Top", 0.2, "Copper")
					StackupLayer("Dielectric_1", "Dielectric", "Neither", 1.0, "FR4")
					StackupLayer("Conductive_2", "MetalizedSignal", "Bottom", 0.2, "Copper")
				}
				LayoutComponents {
				}
				LayoutNets {
				}
			}
		}
		Design {
			Name = "ZukenBoard"
			TopLayout {
				Layers {
					StackupLayer("Conductive_1", "Signal", "Top", 0.2, "Copper")
					StackupLayer("Dielectric_1", "Dielectric", "Neither", 1.0, "FR4")
					StackupLayer("Conductive_2", "MetalizedSignal", "Bottom", 0.2, "Copper")
				}
			}
		}
	}
}
)");
}
