#include "model/Component.h"
#include "model/Footprint.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

TEST(ComponentTest, IsActiveAndBareWhenMade) {
    Footprint footprint("SOT", {});
    const Component component("U1", &footprint, geom::Point(3, 4), 270.0, true);
    EXPECT_EQ(component.GetName(), AString("U1"));
    EXPECT_EQ(component.footprint, &footprint);
    EXPECT_EQ(component.location, geom::Point(3, 4));
    EXPECT_EQ(component.angle, 270.0);
    EXPECT_TRUE(component.mirrored);
    EXPECT_TRUE(component.active);
    EXPECT_TRUE(component.GetId().empty());
    EXPECT_TRUE(component.GetValue().empty());
    EXPECT_TRUE(component.GetPartNumber().empty());
    EXPECT_TRUE(component.GetLayerName().empty());
    EXPECT_THAT(component.pins, IsEmpty());
}

TEST(ComponentTest, GetPinsReplacesWhatWasThere) {
    Component component("U1", nullptr, geom::Point(), 0.0, false);
    component.pins = {{"1", {}}, {"2", {"Conductive_1", "Conductive_2"}}};
    std::vector<ComponentPin> pins(5);
    EXPECT_EQ(component.GetPins(pins), 2);
    EXPECT_EQ(pins[0].name, AString("1"));
    EXPECT_THAT(pins[0].noConnectLayers, IsEmpty());
    EXPECT_EQ(pins[1].name, AString("2"));
    EXPECT_THAT(pins[1].noConnectLayers, ElementsAre(AString("Conductive_1"), AString("Conductive_2")));
}
