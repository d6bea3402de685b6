#include "model/Surface.h"
#include "model/Net.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

geom::Polygon Square(double side) { return geom::Polygon(geom::Box(geom::k_Origin, side), 0); }

} // namespace

TEST(SurfaceTest, HasAnOutlineWithoutWidthAndNoVoidsWhenMade) {
    Net net("GND");
    Surface surface(&net, "Conductive_1", Square(4.0));
    EXPECT_TRUE(surface.GetOutline().polygon == Square(4.0));
    EXPECT_EQ(surface.GetOutline().halfWidth, 0.0);
    EXPECT_EQ(surface.GetLayer(), AString("Conductive_1"));
    EXPECT_THAT(surface.voids, IsEmpty());
    EXPECT_EQ(surface.net, &net);
    EXPECT_THAT(net.surfaces, ElementsAre(&surface));
}

TEST(SurfaceTest, CanBeWithoutNet) {
    const Surface surface(nullptr, "Conductive_1", Square(4.0));
    EXPECT_EQ(surface.net, nullptr);
}

TEST(SurfaceTest, GetVoidsReplacesWhatWasThere) {
    Surface surface(nullptr, "Conductive_1", Square(4.0));
    surface.AddVoid(Square(1.0), 0.25);
    surface.AddVoid(Square(2.0), 0.5);
    std::vector<SurfaceLoop> voids(5);
    EXPECT_EQ(surface.GetVoids(voids), 2);
    ASSERT_EQ(voids.size(), 2U);
    EXPECT_TRUE(voids[0].polygon == Square(1.0));
    EXPECT_EQ(voids[0].halfWidth, 0.25);
    EXPECT_TRUE(voids[1].polygon == Square(2.0));
    EXPECT_EQ(voids[1].halfWidth, 0.5);
}

TEST(SurfaceTest, ACopyOfALoopKeepsAllFields) {
    const SurfaceLoop loop{Square(1.0), 0.25};
    const SurfaceLoop copy = loop; // NOLINT(performance-unnecessary-copy-initialization): the copy is what is tested
    EXPECT_TRUE(copy.polygon == Square(1.0));
    EXPECT_EQ(copy.halfWidth, 0.25);
}
