#include "model/Trace.h"
#include "model/Net.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

TEST(TraceTest, ATraceWithoutVerticesIsLegal) {
    Net net("GND");
    Trace trace({}, "Conductive_1", &net);
    std::vector<PathVertex> vertices(3);
    EXPECT_EQ(trace.GetVertices(vertices), 0);
    EXPECT_THAT(vertices, IsEmpty());
    EXPECT_THAT(net.traces, ElementsAre(&trace));
}

TEST(TraceTest, HoldsWhatItIsGiven) {
    PathVertex vertex;
    vertex.x = 3.0;
    const Trace trace({vertex, vertex}, "Conductive_1", nullptr);
    std::vector<PathVertex> vertices;
    EXPECT_EQ(trace.GetVertices(vertices), 2);
    EXPECT_EQ(vertices[1].x, 3.0);
    EXPECT_EQ(trace.GetLayer(), AString("Conductive_1"));
    EXPECT_EQ(trace.net, nullptr);
}

TEST(TraceTest, CanGetItsNetLater) {
    Net net("GND");
    Trace trace({}, "bondwire_1", nullptr);
    trace.SetNet(&net);
    EXPECT_EQ(trace.net, &net);
    EXPECT_THAT(net.traces, ElementsAre(&trace));
}

TEST(TraceTest, ANullNetChangesNothing) {
    Net net("GND");
    Trace trace({}, "bondwire_1", &net);
    trace.SetNet(nullptr);
    EXPECT_EQ(trace.net, &net);
    EXPECT_THAT(net.traces, ElementsAre(&trace));
}

TEST(TraceTest, EntersItsNetEachTimeThatItIsGivenOne) {
    Net net("GND");
    Trace trace({}, "bondwire_1", &net);
    trace.SetNet(&net);
    EXPECT_THAT(net.traces, ElementsAre(&trace, &trace));
}
