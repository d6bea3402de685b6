#include "tests/neutral/SectionText.h"

#include <gtest/gtest.h>

namespace {

std::string Write(const std::vector<Net*>& nets) {
    io::CBlock root("R");
    ZukenConverter converter = SectionConverter();
    converter.WriteLayoutNets(nets, root);
    return TextOf(root);
}

geom::Polygon Square(double x, double y, double side) { return geom::Polygon(geom::Box(geom::Point(x, y), side), 0); }

PathVertex VertexAt(double x, double y) {
    PathVertex vertex;
    vertex.x = x;
    vertex.y = y;
    vertex.startWidth = vertex.endWidth = 0.5;
    return vertex;
}

} // namespace

TEST(ZukenConverter_LayoutNetsTest, ANetWithoutObjectsHasItsNameAlone) {
    Net net("GND");
    EXPECT_EQ(Write({&net}), R"(R {
	LayoutNets {
		LayoutNet {
			Name = "GND"
		}
	}
}
)");
}

TEST(ZukenConverter_LayoutNetsTest, AViaWithoutPadstackIsLeftOutAndTakesNoId) {
    Net net("GND");
    Padstack padstack("drill", geom::Polygon(), {}, {}, {});
    const Via bare(nullptr, "Conductive_1", "Conductive_2", geom::Point(), 0.0, &net);
    const Via via(&padstack, "Conductive_1", "Conductive_2", geom::Point(1.5, -2), 90.0, &net);
    EXPECT_EQ(Write({&net}), R"(R {
	LayoutNets {
		LayoutNet {
			Name = "GND"
			Via(1, "Conductive_1", "Conductive_2", 1.5, -2.0, "drill", 90.0)
		}
	}
}
)");
}

TEST(ZukenConverter_LayoutNetsTest, AViaTellsTheLayersOnWhichItMakesNoConnection) {
    Net net("GND");
    Padstack padstack("drill", geom::Polygon(), {}, {}, {});
    Via via(&padstack, "Conductive_1", "Conductive_4", geom::Point(), 0.0, &net);
    via.noConnectLayers = {"Conductive_3", "Conductive_2"};
    EXPECT_EQ(Write({&net}), R"(R {
	LayoutNets {
		LayoutNet {
			Name = "GND"
			Via(1, "Conductive_1", "Conductive_4", 0.0, 0.0, "drill", 0.0,
				RemoveThermalVoids("Conductive_3", 15, "Conductive_2", 15))
		}
	}
}
)");
}

TEST(ZukenConverter_LayoutNetsTest, IdsAreTakenInTheOrderOfWriting) {
    Net net("GND");
    Padstack padstack("drill", geom::Polygon(), {}, {}, {});
    const Trace trace({VertexAt(0, 0)}, "L1", &net);
    Surface surface(&net, "L1", Square(0, 0, 10));
    surface.AddVoid(Square(0, 0, 2), 0.0);
    surface.AddVoid(geom::Polygon(geom::Circle(geom::Point(3, 4), 0.5)), 0.25);
    const Via first(&padstack, "L1", "L2", geom::Point(1, 1), 0.0, &net);
    const Via second(&padstack, "L1", "L2", geom::Point(2, 2), 0.0, &net);
    EXPECT_EQ(Write({&net}), R"(R {
	LayoutNets {
		LayoutNet {
			Name = "GND"
			Via(1, "L1", "L2", 1.0, 1.0, "drill", 0.0)
			Via(2, "L1", "L2", 2.0, 2.0, "drill", 0.0)
			PolygonWithVoids {
				Layer = "L1"
				Polygon(3, 0.0,
					vertex(5.0, 5.0),
					vertex(-5.0, 5.0),
					vertex(-5.0, -5.0),
					vertex(5.0, -5.0))
				voids {
					Polygon(4, 0.0,
						vertex(1.0, 1.0),
						vertex(-1.0, 1.0),
						vertex(-1.0, -1.0),
						vertex(1.0, -1.0))
					Circle(5, 0.25, 3.0, 4.0, 1.0)
				}
			}
			Graphics("L1",
				Path(6,
					Vertex(0.0, 0.0, 0.5, 0.5, "Round", "Radiallymitered", 0.0)))
		}
	}
}
)");
}

TEST(ZukenConverter_LayoutNetsTest, IdsRunOnFromNetToNetWithoutAGap) {
    Padstack padstack("drill", geom::Polygon(), {}, {}, {});
    Net first("A");
    const Trace empty({}, "L1", &first);
    const Trace trace({VertexAt(0, 0)}, "L1", &first);
    const Surface circle(&first, "L1", geom::Polygon(geom::Circle(geom::Point(3, 4), 2)));
    Net second("B");
    const Surface surface(&second, "L2", geom::Polygon(geom::Box(0, 0, 1, 1), 0));
    const Via via(&padstack, "L1", "L2", geom::Point(1, 1), 0.0, &second);
    EXPECT_EQ(Write({&first, &second}), R"(R {
	LayoutNets {
		LayoutNet {
			Name = "A"
			Graphics("L1",
				Circle(1, 0.0, 3.0, 4.0, 4.0))
			Graphics("L1",
				Path(2,
					Vertex(0.0, 0.0, 0.5, 0.5, "Round", "Radiallymitered", 0.0)))
		}
		LayoutNet {
			Name = "B"
			Via(3, "L1", "L2", 1.0, 1.0, "drill", 0.0)
			Graphics("L2",
				Polygon(4, 0.0,
					vertex(1.0, 1.0),
					vertex(0.0, 1.0),
					vertex(0.0, 0.0),
					vertex(1.0, 0.0),
					vertex(1.0, 1.0)))
		}
	}
}
)");
}
