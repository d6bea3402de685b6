#include "model/Via.h"
#include "lib/math/geometry/Polygon.h"
#include "model/Net.h"
#include "model/Padstack.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

TEST(ViaTest, HoldsWhatItIsGiven) {
    Net net("GND");
    Padstack padstack("drill", geom::Polygon(), {}, {}, {});
    Via via(&padstack, "Conductive_1", "Conductive_2", geom::Point(3, 4), 90.0, &net);
    EXPECT_EQ(via.padstack, &padstack);
    EXPECT_EQ(via.fromLayer, AString("Conductive_1"));
    EXPECT_EQ(via.toLayer, AString("Conductive_2"));
    EXPECT_EQ(via.location, geom::Point(3, 4));
    EXPECT_EQ(via.angle, 90.0);
    EXPECT_EQ(via.net, &net);
    EXPECT_THAT(via.noConnectLayers, IsEmpty());
    EXPECT_THAT(net.vias, ElementsAre(&via));
}

TEST(ViaTest, CanBeWithoutNet) {
    const Via via(nullptr, "", "", geom::Point(), 0.0, nullptr);
    EXPECT_EQ(via.net, nullptr);
}

TEST(ViaTest, GetNoConnectLayersReplacesWhatWasThere) {
    Via via(nullptr, "", "", geom::Point(), 0.0, nullptr);
    via.noConnectLayers = {"Conductive_2", "Conductive_1"};
    std::vector<AString> layers(5);
    EXPECT_EQ(via.GetNoConnectLayers(layers), 2);
    EXPECT_THAT(layers, ElementsAre(AString("Conductive_2"), AString("Conductive_1")));
}
