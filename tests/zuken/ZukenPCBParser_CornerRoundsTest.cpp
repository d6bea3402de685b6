#include "tests/AssertionRecorder.h"
#include "tests/zuken/BoardSections.h"

#include "zuken/ArcRing.h"

#include <gmock/gmock.h>

#include <cmath>

namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// Straight pieces from point to point.
std::vector<geom::Arc> Path(const std::vector<geom::Point>& points) {
    std::vector<geom::Arc> arcs;
    for (size_t i = 1; i < points.size(); ++i)
        arcs.emplace_back(points[i - 1], points[i], 0);
    return arcs;
}

/// The height of a left turn by a quarter circle of radius 2.
testing::Matcher<double> QuarterOfRadius2() { return DoubleNear(-2 * (1 - std::sqrt(0.5)), 1e-14); }

/// A square, closed, counter-clockwise from the origin.
std::vector<geom::Arc> Square() {
    return Path({geom::Point(0, 0), geom::Point(10, 0), geom::Point(10, 10), geom::Point(0, 10), geom::Point(0, 0)});
}

std::vector<PathVertex> Vertices(const std::vector<geom::Point>& points) {
    std::vector<PathVertex> vertices;
    for (const geom::Point& point : points)
        vertices.push_back({.x = double(point.GetX()), .y = double(point.GetY()), .startWidth = 9, .endWidth = 9});
    return vertices;
}

/// The starts of the arcs that are left when corners have been rounded.
std::vector<geom::Point> StartsOf(const ArcRing& ring) {
    std::vector<geom::Point> starts;
    for (const geom::Arc& arc : ring.GetArcs())
        starts.push_back(arc.GetStart());
    return starts;
}

} // namespace

TEST(ZukenPCBParser_CornerRoundsTest, CornerBecomesTwoTrimmedPiecesAndAnArc) {
    ArcRing ring(Square());
    EXPECT_TRUE(ZukenPCBParser::RoundCorner(ring, geom::Point(10, 10), 2));
    const std::vector<geom::Arc> arcs = ring.GetArcs();
    ASSERT_THAT(arcs, SizeIs(5));
    EXPECT_EQ(geom::Arc(geom::Point(0, 0), geom::Point(10, 0), 0), arcs[0]);
    EXPECT_EQ(geom::Arc(geom::Point(10, 0), geom::Point(10, 8), 0), arcs[1]);
    EXPECT_EQ(geom::Point(10, 8), arcs[2].GetStart());
    EXPECT_EQ(geom::Point(8, 10), arcs[2].GetEnd());
    EXPECT_THAT(double(arcs[2].GetHeight()), QuarterOfRadius2());
    EXPECT_EQ(geom::Arc(geom::Point(8, 10), geom::Point(0, 10), 0), arcs[3]);
    EXPECT_EQ(geom::Arc(geom::Point(0, 10), geom::Point(0, 0), 0), arcs[4]);
}

TEST(ZukenPCBParser_CornerRoundsTest, FirstArcsCornerMovesTheLastArcToTheFront) {
    ArcRing ring(Square());
    EXPECT_TRUE(ZukenPCBParser::RoundCorner(ring, geom::Point(0, 0), 2));
    EXPECT_THAT(StartsOf(ring),
        ElementsAre(geom::Point(0, 10), geom::Point(0, 2), geom::Point(2, 0), geom::Point(10, 0), geom::Point(10, 10)));
}

TEST(ZukenPCBParser_CornerRoundsTest, LastArcsCornerStaysWhereItIs) {
    ArcRing ring(Square());
    EXPECT_TRUE(ZukenPCBParser::RoundCorner(ring, geom::Point(0, 10), 2));
    EXPECT_THAT(StartsOf(ring),
        ElementsAre(geom::Point(0, 0), geom::Point(10, 0), geom::Point(10, 10), geom::Point(2, 10), geom::Point(0, 8)));
}

TEST(ZukenPCBParser_CornerRoundsTest, TwoArcsAreEachOthersNeighbours) {
    // There and back again along two half circles about (5, 0).
    const std::vector<geom::Arc> circle{
        geom::Arc(geom::Point(0, 0), geom::Point(10, 0), -5), geom::Arc(geom::Point(10, 0), geom::Point(0, 0), -5)};
    ArcRing ring(circle);
    EXPECT_FALSE(ZukenPCBParser::RoundCorner(ring, geom::Point(0, 0), 2)) << "curved on both sides";
    EXPECT_EQ(circle, ring.GetArcs());
}

TEST(ZukenPCBParser_CornerRoundsTest, PointWhereNoArcBeginsIsNoCorner) {
    ArcRing ring(Path({geom::Point(0, 0), geom::Point(10, 0), geom::Point(10, 10)}));
    EXPECT_FALSE(ZukenPCBParser::RoundCorner(ring, geom::Point(10, 10), 2)) << "an end alone";
    EXPECT_FALSE(ZukenPCBParser::RoundCorner(ring, geom::Point(10, std::nextafter(0.0, 1.0)), 2)) << "exact";
    EXPECT_THAT(ring.GetArcs(), SizeIs(2));
}

TEST(ZukenPCBParser_CornerRoundsTest, NoArcsHaveNoCorner) {
    ArcRing ring({});
    EXPECT_FALSE(ZukenPCBParser::RoundCorner(ring, geom::k_Origin, 2));
    EXPECT_THAT(ring.GetArcs(), IsEmpty());
}

TEST(ZukenPCBParser_CornerRoundsTest, RadiusThatIsTooLargeLeavesTheCorner) {
    ArcRing ring(Square());
    EXPECT_FALSE(ZukenPCBParser::RoundCorner(ring, geom::Point(10, 10), 11));
    EXPECT_EQ(Square(), ring.GetArcs());
}

TEST(ZukenPCBParser_CornerRoundsTest, CornerThatFailsIsFollowedByTheNextOfItsPlace) {
    // Through (10, 0) twice: first with pieces of length 1, then with long ones.
    ArcRing ring(Path({geom::Point(9, 0), geom::Point(10, 0), geom::Point(10, 1), geom::Point(30, 1),
        geom::Point(30, 0), geom::Point(10, 0), geom::Point(10, -20)}));
    EXPECT_TRUE(ZukenPCBParser::RoundCorner(ring, geom::Point(10, 0), 5));
    EXPECT_THAT(StartsOf(ring), ElementsAre(geom::Point(9, 0), geom::Point(10, 0), geom::Point(10, 1),
                                    geom::Point(30, 1), geom::Point(30, 0), geom::Point(15, 0), geom::Point(10, -5)));
}

TEST(ZukenPCBParser_CornerRoundsTest, FirstOfTwoEqualCornersIsRoundedFirst) {
    ArcRing ring(Path({geom::Point(0, 0), geom::Point(10, 0), geom::Point(10, 20), geom::Point(30, 20),
        geom::Point(30, 0), geom::Point(10, 0), geom::Point(10, -20)}));
    EXPECT_TRUE(ZukenPCBParser::RoundCorner(ring, geom::Point(10, 0), 2));
    EXPECT_EQ(geom::Point(8, 0), ring.GetArcs().at(1).GetStart());
    EXPECT_TRUE(ZukenPCBParser::RoundCorner(ring, geom::Point(10, 0), 2));
    EXPECT_EQ(geom::Point(12, 0), ring.GetArcs().at(6).GetStart());
    EXPECT_FALSE(ZukenPCBParser::RoundCorner(ring, geom::Point(10, 0), 2));
}

TEST(ZukenPCBParser_CornerRoundsTest, CurvedNeighboursOnBothSidesEndTheSearch) {
    // The half circle from (0, 0) to (10, 0), a straight piece up, and behind that another half circle.
    const std::vector<geom::Arc> arcs{geom::Arc(geom::Point(0, 0), geom::Point(10, 0), 5),
        geom::Arc(geom::Point(10, 0), geom::Point(20, 0), 0), geom::Arc(geom::Point(20, 0), geom::Point(30, 0), 5)};
    ArcRing ring(arcs);
    EXPECT_FALSE(ZukenPCBParser::RoundCorner(ring, geom::Point(10, 0), 1));
    EXPECT_EQ(arcs, ring.GetArcs());
    // Without the second half circle the corner is rounded: curved itself doesn't count.
    ArcRing shorter({arcs[0], arcs[1], geom::Arc(geom::Point(20, 0), geom::Point(30, 0), 0)});
    EXPECT_TRUE(ZukenPCBParser::RoundCorner(shorter, geom::Point(10, 0), 1));
}

TEST(ZukenPCBParser_CornerRoundsTest, ShortPieceBehindTheRoundingIsDropped) {
    ArcRing kept(Path({geom::Point(0, 0), geom::Point(10, 0), geom::Point(10, 2.00002), geom::Point(0, 2.00002)}));
    EXPECT_TRUE(ZukenPCBParser::RoundCorner(kept, geom::Point(10, 0), 2));
    EXPECT_THAT(kept.GetArcs(), SizeIs(4));
    ArcRing dropped(Path({geom::Point(0, 0), geom::Point(10, 0), geom::Point(10, 2.000005), geom::Point(0, 2.000005)}));
    EXPECT_TRUE(ZukenPCBParser::RoundCorner(dropped, geom::Point(10, 0), 2));
    EXPECT_THAT(StartsOf(dropped), ElementsAre(geom::Point(0, 0), geom::Point(8, 0), geom::Point(10, 2.000005)));
}

TEST(ZukenPCBParser_CornerRoundsTest, PieceAheadOfTheRoundingStaysWhateverItsLength) {
    ArcRing ring(Path({geom::Point(8, 0), geom::Point(10, 0), geom::Point(10, 10)}));
    EXPECT_TRUE(ZukenPCBParser::RoundCorner(ring, geom::Point(10, 0), 2));
    const std::vector<geom::Arc> arcs = ring.GetArcs();
    ASSERT_THAT(arcs, SizeIs(3));
    EXPECT_EQ(geom::Arc(geom::Point(8, 0), geom::Point(8, 0), 0), arcs[0]);
}

TEST(ZukenPCBParser_CornerRoundsTest, TrimmedPiecesKeepTheirHeights) {
    // A half circle of radius 5 over (5, 5), then straight on to the right: the rounding stands in their corner.
    ArcRing ring({geom::Arc(geom::Point(0, 0), geom::Point(10, 0), 5),
        geom::Arc(geom::Point(10, 0), geom::Point(30, 0), 0), geom::Arc(geom::Point(30, 0), geom::Point(30, 9), 0)});
    EXPECT_TRUE(ZukenPCBParser::RoundCorner(ring, geom::Point(10, 0), 1));
    const std::vector<geom::Arc> arcs = ring.GetArcs();
    ASSERT_THAT(arcs, SizeIs(4));
    EXPECT_EQ(geom::Unit(5), arcs[0].GetHeight());
    EXPECT_FALSE(arcs[0].GetEnd() == geom::Point(10, 0)) << "although the piece is shorter";
    EXPECT_EQ(arcs[0].GetEnd(), arcs[1].GetStart());
    EXPECT_EQ(arcs[1].GetEnd(), arcs[2].GetStart());
    // The circle of radius 1 that touches the line from above and the circle about (5, 0) from outside has its centre
    // at (x, 1) with (x - 5)^2 + 1 = 36.
    EXPECT_THAT(double(arcs[1].GetEnd().GetX()), DoubleNear(5 + std::sqrt(35.0), 1e-13));
    EXPECT_THAT(double(arcs[1].GetEnd().GetY()), DoubleNear(0, 1e-13));
}

TEST(ZukenPCBParser_CornerRoundsTest, StraightOnGetsAnArcOfNoLength) {
    ArcRing ring(Path({geom::Point(0, 0), geom::Point(10, 0), geom::Point(20, 0)}));
    EXPECT_TRUE(ZukenPCBParser::RoundCorner(ring, geom::Point(10, 0), 2));
    EXPECT_THAT(StartsOf(ring), ElementsAre(geom::Point(0, 0), geom::Point(10, 0), geom::Point(10, 0)));
}

TEST(ZukenPCBParser_CornerRoundsTest, FirstPointOfAnOpenLineIsReportedAndRoundsItsEnd) {
    AssertionRecorder recorder;
    ArcRing ring(Path({geom::Point(0, 0), geom::Point(10, 0), geom::Point(10, 10)}));
    EXPECT_TRUE(ZukenPCBParser::RoundCorner(ring, geom::Point(0, 0), 1));
    EXPECT_THAT(AssertionRecorder::Take(), testing::Contains("a1.GetEnd() == a2.GetStart(), RoundCorner"));
    // The last piece, from (10, 0) up, is taken to go on from its end to (10, 0), back down: straight, so that an arc
    // of no length stands at (10, 10), and the line begins with the last piece.
    EXPECT_THAT(StartsOf(ring), ElementsAre(geom::Point(10, 0), geom::Point(10, 10), geom::Point(10, 10)));
}

TEST(ZukenPCBParser_CornerRoundsTest, RadiusOfZeroIsReported) {
    AssertionRecorder recorder;
    ArcRing ring(Square());
    ZukenPCBParser::RoundCorner(ring, geom::Point(10, 10), 0);
    EXPECT_THAT(AssertionRecorder::Take(), testing::Contains("radius > 0, RoundCorner"));
}

TEST(ZukenPCBParser_CornerRoundsTest, LineGetsOneWidthThroughout) {
    std::vector<PathVertex> vertices = Vertices({geom::Point(0, 0), geom::Point(10, 0), geom::Point(10, 10)});
    ZukenPCBParser::ApplyCornerRounds(vertices, {{10, 0, 2}}, 3);
    const Trace trace(vertices, "", nullptr);
    EXPECT_THAT(
        PlacesOf(trace), ElementsAre(geom::Point(0, 0), geom::Point(8, 0), geom::Point(10, 2), geom::Point(10, 10)));
    EXPECT_THAT(WidthsOf(trace), ElementsAre(3, 3, 3, 3));
    EXPECT_THAT(HeightsOf(trace), ElementsAre(0, QuarterOfRadius2(), 0, 0));
}

TEST(ZukenPCBParser_CornerRoundsTest, RoundingsAreMadeInTheOrderOfTheList) {
    std::vector<PathVertex> vertices =
        Vertices({geom::Point(0, 10), geom::Point(0, 0), geom::Point(10, 0), geom::Point(10, 10)});
    std::vector<PathVertex> reversed = vertices;
    ZukenPCBParser::ApplyCornerRounds(vertices, {{0, 0, 6}, {10, 0, 6}}, 1);
    ZukenPCBParser::ApplyCornerRounds(reversed, {{10, 0, 6}, {0, 0, 6}}, 1);
    EXPECT_THAT(PlacesOf(Trace(vertices, "", nullptr)),
        ElementsAre(geom::Point(0, 10), geom::Point(0, 6), geom::Point(6, 0), geom::Point(10, 0), geom::Point(10, 10)));
    EXPECT_THAT(PlacesOf(Trace(reversed, "", nullptr)),
        ElementsAre(geom::Point(0, 10), geom::Point(0, 0), geom::Point(4, 0), geom::Point(10, 6), geom::Point(10, 10)));
}

TEST(ZukenPCBParser_CornerRoundsTest, FewerThanTwoVerticesLeaveNone) {
    std::vector<PathVertex> one = Vertices({geom::Point(5, 5)});
    ZukenPCBParser::ApplyCornerRounds(one, {{5, 5, 1}}, 1);
    EXPECT_THAT(one, IsEmpty());
    std::vector<PathVertex> none;
    ZukenPCBParser::ApplyCornerRounds(none, {{5, 5, 1}}, 1);
    EXPECT_THAT(none, IsEmpty());
}
