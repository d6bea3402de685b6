#include "model/PadCircle.h"
#include "model/PadMultiLoop.h"
#include "model/PadObround.h"
#include "model/PadPolygon.h"
#include "model/PadRectangle.h"
#include "model/PadRoundThermal.h"
#include "tests/neutral/SectionText.h"

#include <gtest/gtest.h>

namespace {

std::string Write(const std::vector<BasePad*>& pads) {
    io::CBlock root("R");
    EXPECT_TRUE(ZukenConverter::WritePadShapes(pads, root));
    return TextOf(root);
}

/// The polygon of a triangle, one of whose sides has the given height.
geom::Polygon Triangle(double height) {
    const geom::Point a(0, 0);
    const geom::Point b(10, 0);
    const geom::Point c(10, 5);
    return geom::Polygon(std::vector{geom::Arc(a, b, 0), geom::Arc(b, c, height), geom::Arc(c, a, 0)}, true);
}

} // namespace

TEST(ZukenConverter_PadsTest, NoPadsGiveTheNullPadAlone) {
    EXPECT_EQ(Write({}), R"(R {
	PadShapes {
		NULLPAD(Circle(0))
	}
}
)");
}

TEST(ZukenConverter_PadsTest, EveryClassHasItsFormInTheOrderOfThePads) {
    PadRectangle rectangle(4.0, 2.0, 45.0, 1, "rect");
    PadCircle circle(1.5, 0, "round");
    PadObround obround(6.0, 3.0, 0.25, 3, "obround");
    PadRoundThermal thermal(2.5, 2.0, 4, 0.3, 45.0, "thermal");
    EXPECT_EQ(Write({&rectangle, &circle, &obround, &thermal}), R"(R {
	PadShapes {
		NULLPAD(Circle(0))
		rect(Rectangle(4.0, 2.0))
		round(Circle(1.5))
		obround(Obround(6.0, 3.0, 1.5))
		thermal(Circle(5.0))
	}
}
)");
}

TEST(ZukenConverter_PadsTest, OffsetsAreNotWrittenWithTheShape) {
    PadRectangle pad(4.0, 2.0, 0.0, 1, "rect");
    pad.offsetX = 7.0;
    pad.offsetY = 8.0;
    EXPECT_EQ(Write({&pad}), R"(R {
	PadShapes {
		NULLPAD(Circle(0))
		rect(Rectangle(4.0, 2.0))
	}
}
)");
}

TEST(ZukenConverter_PadsTest, PolygonHasAVertexForEachPieceAndAnArcForCurvedOnes) {
    PadPolygon pad(Triangle(-1.0), 2, "poly");
    EXPECT_EQ(Write({&pad}), R"(R {
	PadShapes {
		NULLPAD(Circle(0))
		poly(Polygon(
			Vertex(0.0, 0.0),
			Vertex(10.0, 0.0),
			Arc(-1.0),
			Vertex(10.0, 5.0)))
	}
}
)");
}

TEST(ZukenConverter_PadsTest, APieceThatIsStraightButForRoundingHasNoArc) {
    PadPolygon pad(Triangle(-1e-14), 2, "poly"); // the tolerance of a size of 10 is about 2e-12
    EXPECT_EQ(Write({&pad}), R"(R {
	PadShapes {
		NULLPAD(Circle(0))
		poly(Polygon(
			Vertex(0.0, 0.0),
			Vertex(10.0, 0.0),
			Vertex(10.0, 5.0)))
	}
}
)");
}

TEST(ZukenConverter_PadsTest, APolygonThatIsACircleIsWrittenAsOne) {
    const geom::Point east(5, 4);
    const geom::Point west(1, 4);
    // Two half circles that miss each other's centre by less than the outline's tolerance.
    const std::vector halves = {geom::Arc(east, west, -2.0), geom::Arc(west, east, -2.0000000000001)};
    PadPolygon pad(geom::Polygon(halves, true), 2, "poly");
    EXPECT_EQ(Write({&pad}), R"(R {
	PadShapes {
		NULLPAD(Circle(0))
		poly(Circle(4.0))
	}
}
)");
}

TEST(ZukenConverter_PadsTest, APolygonWithoutPiecesHasNoVertices) {
    PadPolygon pad(geom::Polygon(), 2, "poly");
    EXPECT_EQ(Write({&pad}), R"(R {
	PadShapes {
		NULLPAD(Circle(0))
		poly(Polygon())
	}
}
)");
}

TEST(ZukenConverter_PadsTest, AMultiLoopPadIsItsNameAlone) {
    PadMultiLoop pad({geom::Polygon(geom::Box(geom::k_Origin, 2), 0)}, 7, "loops");
    EXPECT_EQ(Write({&pad}), R"(R {
	PadShapes {
		NULLPAD(Circle(0))
		loops()
	}
}
)");
}

TEST(ZukenConverter_PadsTest, ANameThatIsNoWordIsQuoted) {
    PadCircle pad(1.0, 0, "C 1.0");
    EXPECT_EQ(Write({&pad}), R"(R {
	PadShapes {
		NULLPAD(Circle(0))
		"C 1.0"(Circle(1.0))
	}
}
)");
}
