#include "tests/neutral/SectionText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>

namespace {

std::string WriteTrace(const std::vector<PathVertex>& vertices) {
    const Trace trace(vertices, "L1", nullptr);
    io::CBlock root("R");
    ZukenConverter converter = SectionConverter();
    converter.WriteTraceGraphics(trace, root);
    return TextOf(root);
}

std::string WriteSurface(const Surface& surface) {
    io::CBlock root("R");
    ZukenConverter converter = SectionConverter();
    converter.WriteSurfaceGraphics(surface, root);
    return TextOf(root);
}

PathVertex VertexAt(double x, double y, double height = 0.0) { return {x, y, height, 0.5, 0.5, 3, 2, 0.0}; }

geom::Polygon Square(double side) { return geom::Polygon(geom::Box(geom::k_Origin, side), 0); }

/// The circle about (3, 4) with a radius of 2 as two half circles, the second `excess` higher than it should be.
geom::Polygon HalfCircles(double excess) {
    const geom::Point east(5, 4);
    const geom::Point west(1, 4);
    return geom::Polygon(std::vector{geom::Arc(east, west, -2.0), geom::Arc(west, east, -2.0 - excess)}, true);
}

/// The corners of the only polygon of `text`, which has no arcs.
std::vector<geom::Point> CornersOf(const std::string& text) {
    EXPECT_EQ(text.find("Arc("), std::string::npos) << text;
    std::vector<geom::Point> corners;
    for (size_t at = text.find("vertex("); at != std::string::npos; at = text.find("vertex(", at + 1)) {
        double x = 0.0;
        double y = 0.0;
        EXPECT_EQ(std::sscanf(text.c_str() + at, "vertex(%lf, %lf)", &x, &y), 2);
        corners.emplace_back(x, y);
    }
    return corners;
}

} // namespace

TEST(ZukenConverter_GraphicsTest, AnArcStandsBehindTheVertexWhereItBegins) {
    EXPECT_EQ(WriteTrace({VertexAt(0, 0, -1.5), VertexAt(10, 0)}), R"(R {
	Graphics("L1",
		Path(1,
			Vertex(0.0, 0.0, 0.5, 0.5, "Round", "Radiallymitered", 0.0),
			Arc(-1.5),
			Vertex(10.0, 0.0, 0.5, 0.5, "Round", "Radiallymitered", 0.0)))
}
)");
}

TEST(ZukenConverter_GraphicsTest, AVertexHasItsWidthsAndItsReservedNumber) {
    EXPECT_EQ(WriteTrace({{1.0, 2.0, 0.0, 0.25, 0.75, 8, 9, 4.0}}), R"(R {
	Graphics("L1",
		Path(1,
			Vertex(1.0, 2.0, 0.25, 0.75, "Round", "Radiallymitered", 4.0)))
}
)");
}

TEST(ZukenConverter_GraphicsTest, ATraceOfOneVertexHasNoArcWhateverItsHeight) {
    EXPECT_EQ(WriteTrace({VertexAt(0, 0, 5.0)}), R"(R {
	Graphics("L1",
		Path(1,
			Vertex(0.0, 0.0, 0.5, 0.5, "Round", "Radiallymitered", 0.0)))
}
)");
}

TEST(ZukenConverter_GraphicsTest, AHeightOnTheLastVertexIsNotWritten) {
    EXPECT_EQ(WriteTrace({VertexAt(0, 0), VertexAt(10, 0, 5.0)}), R"(R {
	Graphics("L1",
		Path(1,
			Vertex(0.0, 0.0, 0.5, 0.5, "Round", "Radiallymitered", 0.0),
			Vertex(10.0, 0.0, 0.5, 0.5, "Round", "Radiallymitered", 0.0)))
}
)");
}

TEST(ZukenConverter_GraphicsTest, AHeightOfTheThresholdIsStraight) {
    EXPECT_EQ(WriteTrace({VertexAt(0, 0, 1e-10), VertexAt(1, 0, -1e-10), VertexAt(2, 0)}), R"(R {
	Graphics("L1",
		Path(1,
			Vertex(0.0, 0.0, 0.5, 0.5, "Round", "Radiallymitered", 0.0),
			Vertex(1.0, 0.0, 0.5, 0.5, "Round", "Radiallymitered", 0.0),
			Vertex(2.0, 0.0, 0.5, 0.5, "Round", "Radiallymitered", 0.0)))
}
)");
}

TEST(ZukenConverter_GraphicsTest, AHeightAboveTheThresholdIsAnArcOfEitherSign) {
    EXPECT_EQ(WriteTrace({VertexAt(0, 0, 1.5e-10), VertexAt(1, 0, -1.5e-10), VertexAt(2, 0)}), R"(R {
	Graphics("L1",
		Path(1,
			Vertex(0.0, 0.0, 0.5, 0.5, "Round", "Radiallymitered", 0.0),
			Arc(1.5e-10),
			Vertex(1.0, 0.0, 0.5, 0.5, "Round", "Radiallymitered", 0.0),
			Arc(-1.5e-10),
			Vertex(2.0, 0.0, 0.5, 0.5, "Round", "Radiallymitered", 0.0)))
}
)");
}

TEST(ZukenConverter_GraphicsTest, EqualVerticesInARowAreBothWritten) {
    EXPECT_EQ(WriteTrace({VertexAt(1, 2), VertexAt(1, 2)}), R"(R {
	Graphics("L1",
		Path(1,
			Vertex(1.0, 2.0, 0.5, 0.5, "Round", "Radiallymitered", 0.0),
			Vertex(1.0, 2.0, 0.5, 0.5, "Round", "Radiallymitered", 0.0)))
}
)");
}

TEST(ZukenConverter_GraphicsTest, ATraceWithoutVerticesIsNotWritten) {
    EXPECT_EQ(WriteTrace({}), R"(R {
}
)");
}

TEST(ZukenConverter_GraphicsTest, ASquareWithoutVoidsRepeatsItsFirstPoint) {
    EXPECT_EQ(WriteSurface(Surface(nullptr, "L1", Square(2))), R"(R {
	Graphics("L1",
		Polygon(1, 0.0,
			vertex(1.0, 1.0),
			vertex(-1.0, 1.0),
			vertex(-1.0, -1.0),
			vertex(1.0, -1.0),
			vertex(1.0, 1.0)))
}
)");
}

TEST(ZukenConverter_GraphicsTest, ACurvedLastPieceIsFollowedByItsEndToo) {
    const geom::Point a(0, 0);
    const geom::Point b(4, 0);
    const geom::Polygon slice(std::vector{geom::Arc(a, b, 0), geom::Arc(b, a, -1.0)}, false);
    EXPECT_EQ(WriteSurface(Surface(nullptr, "L1", slice)), R"(R {
	Graphics("L1",
		Polygon(1, 0.0,
			vertex(0.0, 0.0),
			vertex(4.0, 0.0),
			Arc(-1.0),
			vertex(0.0, 0.0)))
}
)");
}

TEST(ZukenConverter_GraphicsTest, ASquareWithAVoidDoesNotRepeatItsFirstPoint) {
    Surface surface(nullptr, "L1", Square(4));
    surface.AddVoid(Square(2), 0.25);
    EXPECT_EQ(WriteSurface(surface), R"(R {
	PolygonWithVoids {
		Layer = "L1"
		Polygon(1, 0.0,
			vertex(2.0, 2.0),
			vertex(-2.0, 2.0),
			vertex(-2.0, -2.0),
			vertex(2.0, -2.0))
		voids {
			Polygon(2, 0.25,
				vertex(1.0, 1.0),
				vertex(-1.0, 1.0),
				vertex(-1.0, -1.0),
				vertex(1.0, -1.0))
		}
	}
}
)");
}

TEST(ZukenConverter_GraphicsTest, VoidsDecideTheFormAlsoWithoutAnOutline) {
    Surface surface(nullptr, "L1", geom::Polygon());
    EXPECT_EQ(WriteSurface(surface), R"(R {
	Graphics("L1",
		Polygon(1, 0.0))
}
)");
    surface.AddVoid(geom::Polygon(), 0.0);
    EXPECT_EQ(WriteSurface(surface), R"(R {
	PolygonWithVoids {
		Layer = "L1"
		Polygon(1, 0.0)
		voids {
			Polygon(2, 0.0)
		}
	}
}
)");
}

TEST(ZukenConverter_GraphicsTest, AnExactCircleWithoutVoidsIsACircle) {
    EXPECT_EQ(WriteSurface(Surface(nullptr, "L1", HalfCircles(0.0))), R"(R {
	Graphics("L1",
		Circle(1, 0.0, 3.0, 4.0, 4.0))
}
)");
}

TEST(ZukenConverter_GraphicsTest, ACircleThatIsNotExactIsTwoArcs) {
    EXPECT_EQ(WriteSurface(Surface(nullptr, "L1", HalfCircles(1e-13))), R"(R {
	Graphics("L1",
		Polygon(1, 0.0,
			vertex(5.0, 4.0),
			Arc(-2.0),
			vertex(1.0, 4.0),
			Arc(-2.0000000000001),
			vertex(5.0, 4.0)))
}
)");
}

TEST(ZukenConverter_GraphicsTest, ACircleWithAVoidHas18Corners) {
    Surface surface(nullptr, "L1", geom::Polygon(geom::Circle(geom::Point(3, 4), 2)));
    surface.AddVoid(geom::Polygon(geom::Circle(geom::Point(3, 4), 1)), 0.0);
    const std::string text = WriteSurface(surface);
    EXPECT_TRUE(text.starts_with(R"(R {
	PolygonWithVoids {
		Layer = "L1"
		Polygon(1, 0.0,
			vertex(5.0, 4.0),
)")) << text;
    EXPECT_TRUE(text.ends_with(R"()
		voids {
			Circle(2, 0.0, 3.0, 4.0, 2.0)
		}
	}
}
)")) << text;
    const std::vector<geom::Point> corners = CornersOf(text);
    ASSERT_EQ(corners.size(), 18U);
    for (size_t i = 0; i < corners.size(); ++i) {
        const double angle = static_cast<double>(i) * std::acos(-1.0) / 9.0;
        const geom::Point expected(3.0 + 2.0 * std::cos(angle), 4.0 + 2.0 * std::sin(angle));
        EXPECT_TRUE(corners[i].IsEqualTo(expected, 1e-14)) << "corner " << i;
    }
    EXPECT_EQ(corners[9], geom::Point(1, 4));
}

TEST(ZukenConverter_GraphicsTest, WithAVoidACircleUpToItsToleranceHasCornersToo) {
    Surface surface(nullptr, "L1", HalfCircles(1e-13));
    surface.AddVoid(geom::Polygon(), 0.0);
    EXPECT_EQ(CornersOf(WriteSurface(surface)).size(), 18U);
}

TEST(ZukenConverter_GraphicsTest, AVoidThatIsACircleUpToItsToleranceIsACircle) {
    Surface surface(nullptr, "L1", geom::Polygon(geom::Box(0, 0, 8, 8), 0));
    surface.AddVoid(HalfCircles(1e-13), 0.25);
    EXPECT_EQ(WriteSurface(surface), R"(R {
	PolygonWithVoids {
		Layer = "L1"
		Polygon(1, 0.0,
			vertex(8.0, 8.0),
			vertex(0.0, 8.0),
			vertex(0.0, 0.0),
			vertex(8.0, 0.0))
		voids {
			Circle(2, 0.25, 3.0, 4.0, 4.0)
		}
	}
}
)");
}

TEST(ZukenConverter_GraphicsTest, AVoidThatIsNoCircleKeepsItsArcs) {
    Surface surface(nullptr, "L1", geom::Polygon(geom::Box(0, 0, 8, 8), 0));
    surface.AddVoid(HalfCircles(0.5), 0.0);
    EXPECT_EQ(WriteSurface(surface), R"(R {
	PolygonWithVoids {
		Layer = "L1"
		Polygon(1, 0.0,
			vertex(8.0, 8.0),
			vertex(0.0, 8.0),
			vertex(0.0, 0.0),
			vertex(8.0, 0.0))
		voids {
			Polygon(2, 0.0,
				vertex(5.0, 4.0),
				Arc(-2.0),
				vertex(1.0, 4.0),
				Arc(-2.5))
		}
	}
}
)");
}
