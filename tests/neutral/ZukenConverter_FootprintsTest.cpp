#include "tests/neutral/SectionText.h"

#include <gtest/gtest.h>

namespace {

std::string Write(const std::vector<Footprint*>& footprints) {
    io::CBlock root("R");
    EXPECT_TRUE(ZukenConverter::WriteFootprints(footprints, root));
    return TextOf(root);
}

} // namespace

TEST(ZukenConverter_FootprintsTest, AFootprintWithoutPinsHasEmptyFpPins) {
    Footprint footprint("SOT", {});
    EXPECT_EQ(Write({&footprint}), R"(R {
	Footprints {
		SOT {
			FpPins {
			}
		}
	}
}
)");
}

TEST(ZukenConverter_FootprintsTest, EachPinHasAnFpPinDefOfItsOwn) {
    Padstack padstack("drill", geom::Polygon(), {}, {}, {});
    FootprintPin first(&padstack, "1", geom::Point(1.5, -2), geom::Point(), 90.0);
    FootprintPin second(&padstack, "A", geom::Point(0, 0), geom::Point(5, 6), 0.0);
    Footprint sot("SOT", {&first, &second});
    Footprint other("0402", {&second});
    EXPECT_EQ(Write({&sot, &other}), R"(R {
	Footprints {
		SOT {
			FpPins {
				FpPinDef {
					FpPin("1", 1.5, -2.0, "drill", 90.0)
				}
				FpPinDef {
					FpPin("A", 0.0, 0.0, "drill", 0.0)
				}
			}
		}
		"0402" {
			FpPins {
				FpPinDef {
					FpPin("A", 0.0, 0.0, "drill", 0.0)
				}
			}
		}
	}
}
)");
}

TEST(ZukenConverter_FootprintsTest, APinWithoutPadstackIsLeftOutAndStillCounts) {
    Padstack padstack("drill", geom::Polygon(), {}, {}, {});
    FootprintPin bare(nullptr, "1", geom::Point(), geom::Point(), 0.0);
    FootprintPin pin(&padstack, "2", geom::Point(), geom::Point(), 0.0);
    Footprint footprint("SOT", {&bare, &pin});
    EXPECT_EQ(Write({&footprint}), R"(R {
	Footprints {
		SOT {
			FpPins {
				FpPinDef {
					FpPin("2", 0.0, 0.0, "drill", 0.0)
				}
			}
		}
	}
}
)");
    EXPECT_EQ(footprint.GetPinIndex("2"), 1);
}
