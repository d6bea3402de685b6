#include "tests/neutral/SectionText.h"

#include <gtest/gtest.h>

namespace {

std::string Write(const std::vector<Component*>& components) {
    io::CBlock root("R");
    EXPECT_TRUE(ZukenConverter::WriteComponents(components, root));
    return TextOf(root);
}

/// A component with the id "Component_1".
struct Placed : Component {
    Placed(const AString& componentName, Footprint* componentFootprint)
        : Component(componentName, componentFootprint, geom::Point(), 0.0, false) {
        id = "Component_1";
    }
};

} // namespace

TEST(ZukenConverter_ComponentsTest, AComponentWithoutFootprintHasNoDefinition) {
    Placed component("U1", nullptr);
    EXPECT_EQ(Write({&component}), R"(R {
	Components {
	}
}
)");
    io::CBlock block("B");
    EXPECT_FALSE(ZukenConverter::WriteComponentDef(component, block));
    EXPECT_EQ(block.Size(), 0);
}

TEST(ZukenConverter_ComponentsTest, AFootprintWithoutPinsGivesCompDefAlone) {
    Footprint footprint("SOT", {});
    Placed component("R12", &footprint);
    EXPECT_EQ(Write({&component}), R"(R {
	Components {
		Component_1 {
			CompDef("", "SOT", "", "R", 1)
		}
	}
}
)");
}

TEST(ZukenConverter_ComponentsTest, EveryPinHasATerminalWithOrWithoutPadstack) {
    Padstack padstack("drill", geom::Polygon(), {}, {}, {});
    FootprintPin bare(nullptr, "1", geom::Point(), geom::Point(), 0.0);
    FootprintPin pin(&padstack, "A2", geom::Point(), geom::Point(), 0.0);
    Footprint footprint("SOT", {&bare, &pin});
    Placed component("U1", &footprint);
    EXPECT_EQ(Write({&component}), R"(R {
	Components {
		Component_1 {
			CompDef("", "SOT", "", "U", 1)
			Terminal("1", "1", "A", false)
			Terminal("A2", "A2", "A", false)
		}
	}
}
)");
}

TEST(ZukenConverter_ComponentsTest, AnEmptyNameHasNoLetter) {
    Footprint footprint("SOT", {});
    Placed component("", &footprint);
    EXPECT_EQ(Write({&component}), R"(R {
	Components {
		Component_1 {
			CompDef("", "SOT", "", "", 1)
		}
	}
}
)");
}
