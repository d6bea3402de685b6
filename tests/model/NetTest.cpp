#include "model/Net.h"
#include "lib/math/geometry/Polygon.h"
#include "model/Surface.h"
#include "model/Trace.h"
#include "model/Via.h"

#include <gmock/gmock.h>

#include <memory>
#include <vector>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

PathVertex VertexAt(double x, double y) {
    PathVertex vertex;
    vertex.x = x;
    vertex.y = y;
    return vertex;
}

} // namespace

TEST(NetTest, IsEmptyWhenMade) {
    const Net net("GND");
    EXPECT_EQ(net.GetName(), AString("GND"));
    EXPECT_THAT(net.vias, IsEmpty());
    EXPECT_THAT(net.surfaces, IsEmpty());
    EXPECT_THAT(net.traces, IsEmpty());
    EXPECT_THAT(net.pinRefs, IsEmpty());
    EXPECT_TRUE(net.ComputeBox().IsEmpty());
}

TEST(NetTest, PinRefIsHeldOnce) {
    Net net("GND");
    net.AddPinRef("U1.3");
    net.AddPinRef("U1.3");
    EXPECT_THAT(net.pinRefs, ElementsAre(AString("U1.3")));
}

TEST(NetTest, PinRefsAreInTheOrderOfText) {
    Net net("GND");
    for (const char* ref : {"U1.2", "u1.0", "U1.10", "R1.1"})
        net.AddPinRef(ref);
    EXPECT_THAT(net.pinRefs, ElementsAre(AString("R1.1"), AString("U1.10"), AString("U1.2"), AString("u1.0")));
}

TEST(NetTest, RecordsEnterThemselvesInTheirNet) {
    Net net("GND");
    Via via(nullptr, "", "", geom::Point(), 0.0, &net);
    Surface surface(&net, "", geom::Polygon());
    Trace first({}, "", &net);
    Trace second({}, "", &net);
    std::vector<Via*> vias(3);
    EXPECT_EQ(net.GetVias(vias), 1);
    EXPECT_THAT(vias, ElementsAre(&via));
    std::vector<Surface*> surfaces(3);
    EXPECT_EQ(net.GetSurfaces(surfaces), 1);
    EXPECT_THAT(surfaces, ElementsAre(&surface));
    std::vector<Trace*> traces(3);
    EXPECT_EQ(net.GetTraces(traces), 2);
    EXPECT_THAT(traces, ElementsAre(&first, &second));
}

TEST(NetTest, BoxHoldsViasSurfacesAndVertices) {
    Net net("GND");
    const Via via(nullptr, "", "", geom::Point(-1, 2), 0.0, &net);
    EXPECT_EQ(net.ComputeBox(), geom::Box(-1, 2, -1, 2));
    const Surface surface(&net, "", geom::Polygon(geom::Box(0, 0, 5, 3), 0));
    EXPECT_EQ(net.ComputeBox(), geom::Box(-1, 0, 5, 3));
    const Trace trace({VertexAt(2, 7), VertexAt(6, 1)}, "", &net);
    EXPECT_EQ(net.ComputeBox(), geom::Box(-1, 0, 6, 7));
}

TEST(NetTest, BoxHoldsTheTracesOfALongWalkAmongEmptyOnes) {
    Net net("GND");
    std::vector<std::unique_ptr<Trace>> traces;
    for (int i = 0; i < 60; ++i) {
        std::vector<PathVertex> vertices;
        for (int j = 0; j < i % 12; ++j)
            vertices.push_back(VertexAt(i, -j));
        traces.push_back(std::make_unique<Trace>(vertices, "L1", &net));
    }
    EXPECT_EQ(geom::Box(1.0, -10.0, 59.0, 0.0), net.ComputeBox()) << "every twelfth trace has no vertex";
}

TEST(NetTest, BoxIgnoresWidthsAndHeightsOfTraces) {
    Net net("GND");
    PathVertex start = VertexAt(0, 0);
    start.startWidth = start.endWidth = 2.0;
    start.height = 5.0;
    const Trace trace({start, VertexAt(10, 0)}, "", &net);
    EXPECT_EQ(net.ComputeBox(), geom::Box(0, 0, 10, 0));
}
