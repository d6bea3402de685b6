#include "lib/math/geometry/PolyArc.h"

#include "lib/math/geometry/Line.h"
#include "lib/math/geometry/Rotation.h"
#include "lib/math/geometry/Transformation.h"
#include "tests/AssertionRecorder.h"
#include "tests/GeometryFixtures.h"

#include <gmock/gmock.h>

#include <cmath>
#include <utility>
#include <vector>

namespace {

using namespace geom;
using fixtures::ArcOf;
using fixtures::ArcsOf;
using fixtures::CircumferenceOf;
using fixtures::SegmentOf;
using testing::ElementsAre;
using testing::IsEmpty;
using Arcs = std::vector<Arc>;
using Points = std::vector<Point>;

const Points k_Square = {{0, 0}, {1, 0}, {1, 1}, {0, 1}};

/// A box of 4 by 2 whose upper side is a half circle.
PolyArc GetKeyhole() {
    return {k_Closed, Arcs{ArcOf("0,0 4,0"), ArcOf("4,0 4,2"), ArcOf("4,2 0,2 h-2"), ArcOf("0,2 0,0")}};
}

TEST(PolyArcTest, HoldsTwoHandles) { EXPECT_EQ(sizeof(PolyArc), 4 * sizeof(void*)); }

TEST(PolyArcTest, NeverFilledHasAnEmptyBoxAndNoArcs) {
    const PolyArc none;
    EXPECT_TRUE(none.empty());
    EXPECT_EQ(none.GetArcCount(), 0U);
    EXPECT_EQ(none.GetBox(), k_EmptyBox);
    EXPECT_EQ(none.GetEpsilon(), k_NullUnit);
    EXPECT_THAT(none.GetArcs(), IsEmpty());
    EXPECT_EQ(none.begin(), none.end());
}

TEST(PolyArcTest, EmptyKeepsWhetherItIsClosed) {
    EXPECT_EQ(PolyArc(k_Closed).GetOpenClosed(), k_Closed);
    EXPECT_EQ(PolyArc(k_Open).GetOpenClosed(), k_Open);
    EXPECT_TRUE(PolyArc(k_Closed).empty());
    EXPECT_EQ(PolyArc(k_Closed).GetBox(), k_EmptyBox);
    EXPECT_EQ(PolyArc(k_Closed).begin(), PolyArc(k_Closed).end());
}

TEST(PolyArcTest, ArcsComeBackInOrder) {
    const Arcs arcs = {ArcOf("0,0 4,0"), ArcOf("4,0 4,2 h-1"), ArcOf("4,2 0,0")};
    const PolyArc chain(k_Open, arcs);
    EXPECT_EQ(chain.GetArcs(), arcs);
    EXPECT_EQ(chain.GetArcCount(), 3U);
    EXPECT_EQ(chain.GetStart(), Point(0, 0));
    EXPECT_EQ(chain.GetEnd(), Point(0, 0));
    EXPECT_EQ(chain.GetBox(), Box(0, 0, 5, 2)); // with the half circle of radius 1
    EXPECT_EQ(chain.GetEpsilon(), Unit(5).GetEpsilon());
}

TEST(PolyArcTest, ClosedTriangleOfThreeOrFourVerticesHasThreeArcs) {
    const Arcs sides = ArcsOf("0,0 4,0 0,3 0,0");
    EXPECT_EQ(PolyArc(k_Closed, Points{{0, 0}, {4, 0}, {0, 3}}).GetArcs(), sides);
    EXPECT_EQ(PolyArc(k_Closed, Points{{0, 0}, {4, 0}, {0, 3}, {0, 0}}).GetArcs(), sides);
}

TEST(PolyArcTest, OpenVerticesGetNoClosingPiece) {
    EXPECT_EQ(PolyArc(k_Open, Points{{0, 0}, {4, 0}, {0, 3}}).GetArcs(), ArcsOf("0,0 4,0 0,3"));
    EXPECT_EQ(PolyArc(k_Open, Points{{0, 0}, {4, 0}, {0, 3}}).GetEnd(), Point(0, 3));
}

TEST(PolyArcTest, OneVertexIsAPoint) {
    for (const OpenClosed open_closed : {k_Open, k_Closed})
        EXPECT_THAT(PolyArc(open_closed, Points{{3, 4}}).GetArcs(), ElementsAre(ArcOf("3,4 3,4")));
}

TEST(PolyArcTest, NoVerticesAreReported) {
    const AssertionRecorder assertions;
    EXPECT_TRUE(PolyArc(k_Closed, Points()).empty());
    EXPECT_THAT(AssertionRecorder::Take(), ElementsAre("vertices.size() > 0, PolyArc"));
}

TEST(PolyArcTest, SegmentsBecomeStraightArcs) {
    const PolyArc chain(k_Open, std::vector<Segment>{SegmentOf("0,0 4,0"), SegmentOf("4,0 4,2")});
    EXPECT_EQ(chain.GetArcs(), ArcsOf("0,0 4,0 4,2"));
}

TEST(PolyArcTest, ClosedSingleArcDoublesBack) {
    const Arc arc = ArcOf("0,0 4,0 h1");
    EXPECT_THAT(PolyArc(k_Closed, arc).GetArcs(), ElementsAre(arc, arc.GetReversed()));
    EXPECT_THAT(PolyArc(k_Open, arc).GetArcs(), ElementsAre(arc));
    const Arc circle = ArcOf("1,0 1,0 h-2 a180");
    EXPECT_THAT(PolyArc(k_Closed, circle).GetArcs(), ElementsAre(circle));
}

TEST(PolyArcTest, ClosedSegmentDoublesBack) {
    EXPECT_EQ(PolyArc(k_Closed, SegmentOf("0,0 4,0")).GetArcs(), ArcsOf("0,0 4,0 0,0"));
    EXPECT_EQ(PolyArc(k_Open, SegmentOf("0,0 4,0")).GetArcs(), ArcsOf("0,0 4,0"));
    EXPECT_EQ(PolyArc(k_Closed, SegmentOf("3,4 3,4")).GetArcs(), ArcsOf("3,4 3,4"));
}

TEST(PolyArcTest, PointIsAPointLikeArc) {
    EXPECT_THAT(PolyArc(k_Closed, Point(3, 4)).GetArcs(), ElementsAre(ArcOf("3,4 3,4")));
}

TEST(PolyArcTest, CircumferenceIsOneClosedArc) {
    const PolyArc circle(CircumferenceOf("0,0 r1"), k_CW, k_Azimuth_90);
    EXPECT_EQ(circle.GetOpenClosed(), k_Closed);
    EXPECT_THAT(circle.GetArcs(), ElementsAre(ArcOf("0,1 0,1 h2 a270")));
}

TEST(PolyArcTest, CircumferenceOfNoRadiusIsAPoint) {
    const PolyArc point(CircumferenceOf("3,4 r0"), k_CCW, k_Azimuth_0);
    EXPECT_EQ(point.GetOpenClosed(), k_Closed);
    EXPECT_THAT(point.GetArcs(), ElementsAre(ArcOf("3,4 3,4")));
}

TEST(PolyArcTest, CopiesShareTheirArcs) {
    const PolyArc original(k_Closed, k_Square);
    const PolyArc copy(original); // NOLINT(performance-unnecessary-copy-initialization)
    PolyArc assigned;
    assigned = original;
    EXPECT_EQ(&*copy.begin(), &*original.begin());
    EXPECT_EQ(&*assigned.begin(), &*original.begin());
}

TEST(PolyArcTest, CopyOutlivesTheOriginal) {
    PolyArc copy;
    {
        const PolyArc original(k_Closed, k_Square);
        EXPECT_FALSE(original.begin() == original.end());
        copy = original;
    }
    EXPECT_EQ(copy.GetArcs(), ArcsOf("0,0 1,0 1,1 0,1 0,0"));
    EXPECT_FALSE(copy.begin() == copy.end()); // the end that the original has made
    const AssertionRecorder assertions;
    EXPECT_EQ(*copy.end(), Arc());
    EXPECT_THAT(AssertionRecorder::Take(),
        ElementsAre("IsDereferenceable(), AvlPolyArcImplementation", "m_CurrentNode, AvlTree.h"));
}

TEST(PolyArcTest, MovedFromOwnsNothing) {
    PolyArc chain(k_Closed, k_Square);
    const PolyArc taken(std::move(chain));
    EXPECT_TRUE(chain.empty()); // NOLINT(bugprone-use-after-move,clang-analyzer-cplusplus.Move)
    EXPECT_EQ(taken.GetArcCount(), 4U);
}

TEST(PolyArcTest, OpenAndClosedWithEqualArcsAreEqual) {
    const Arcs arcs = ArcsOf("0,0 1,0 1,1 0,0");
    EXPECT_TRUE(PolyArc(k_Open, arcs) == PolyArc(k_Closed, arcs));
}

TEST(PolyArcTest, EqualityComparesArcsInOrder) {
    const PolyArc square(k_Closed, k_Square);
    EXPECT_TRUE(square == PolyArc(square));
    EXPECT_TRUE(square == PolyArc(k_Closed, k_Square));
    EXPECT_FALSE(square == square.GetReversed());
    EXPECT_FALSE(square == PolyArc(k_Closed, Points{{0, 0}, {1, 0}, {1, 1}}));
    EXPECT_FALSE(square == PolyArc(k_Closed, Points{{0, 0}, {1, 0}, {1, 1}, {0, fixtures::Up(1)}}));
}

TEST(PolyArcTest, OneThatOwnsNothingEqualsOnlyItsLike) {
    EXPECT_TRUE(PolyArc() == PolyArc());
    EXPECT_FALSE(PolyArc() == PolyArc(k_Closed));
    EXPECT_FALSE(PolyArc(k_Closed) == PolyArc());
    EXPECT_TRUE(PolyArc(k_Open) == PolyArc(k_Closed));
}

TEST(PolyArcTest, AreaOfACounterClockwiseUnitSquareIsOneAndReversedMinusOne) {
    const PolyArc square(k_Closed, k_Square);
    EXPECT_EQ(square.GetArea(), Area(1));
    EXPECT_EQ(square.GetReversed().GetArea(), Area(-1));
}

TEST(PolyArcTest, AreaOfAFullCircleOfRadiusOneIsPi) {
    EXPECT_DOUBLE_EQ(double(PolyArc(CircumferenceOf("0,0 r1"), k_CCW, k_Azimuth_0).GetArea()), k_Pi);
    EXPECT_DOUBLE_EQ(double(PolyArc(CircumferenceOf("7,-2 r1"), k_CW, k_Azimuth_90).GetArea()), -k_Pi);
}

TEST(PolyArcTest, AreaAddsTheSlicesOfCurvedSides) {
    EXPECT_DOUBLE_EQ(double(GetKeyhole().GetArea()), 4 * 2 + 2 * k_Pi);
    // The same half circle bulging inward, through (2, 0), where it touches the opposite side.
    const PolyArc dented(k_Closed, Arcs{ArcOf("0,0 4,0"), ArcOf("4,0 4,2"), ArcOf("4,2 0,2 h2"), ArcOf("0,2 0,0")});
    EXPECT_DOUBLE_EQ(double(dented.GetArea()), 4 * 2 - 2 * k_Pi);
}

TEST(PolyArcTest, AreaThereAndBackIsNothing) {
    EXPECT_NEAR(double(PolyArc(k_Closed, ArcOf("0,0 4,0 h1")).GetArea()), 0, 1e-14);
}

TEST(PolyArcTest, AreaOfAnOpenChainIsReportedAndSummed) {
    const AssertionRecorder assertions;
    EXPECT_EQ(PolyArc(k_Open, k_Square).GetArea(), Area(1));
    EXPECT_THAT(AssertionRecorder::Take(), ElementsAre("GetOpenClosed() == k_Closed, PolyArc"));
}

TEST(PolyArcTest, AreaOfNoArcsIsReported) {
    const AssertionRecorder assertions;
    EXPECT_EQ(PolyArc(k_Closed).GetArea(), k_Area_0);
    EXPECT_THAT(AssertionRecorder::Take(), ElementsAre("!empty(), PolyArc"));
}

TEST(PolyArcTest, QuestionsToOneThatOwnsNothingAreReported) {
    const AssertionRecorder assertions;
    const PolyArc none;
    EXPECT_EQ(none.GetOpenClosed(), k_Open);
    EXPECT_EQ(none.GetStart(), k_Origin);
    EXPECT_EQ(none.GetEnd(), k_Origin);
    EXPECT_THAT(AssertionRecorder::Take(),
        ElementsAre("!m_ImplRefCounter.IsNull(), PolyArc", "!empty(), PolyArc", "!empty(), PolyArc"));
}

TEST(PolyArcTest, ReversedRunsBackwards) {
    EXPECT_EQ(GetKeyhole().GetReversed().GetArcs(),
        (Arcs{ArcOf("0,0 0,2"), ArcOf("0,2 4,2 h2"), ArcOf("4,2 4,0"), ArcOf("4,0 0,0")}));
    EXPECT_EQ(PolyArc(k_Open, k_Square).GetReversed().GetOpenClosed(), k_Open);
    EXPECT_EQ(GetKeyhole().GetReversed().GetReversed(), GetKeyhole());
}

TEST(PolyArcTest, EmptyOnesAreCopiedByEveryChange) {
    const Rotation rotation(Point(1, 2), k_Angle_90);
    for (const PolyArc& chain : {PolyArc(), PolyArc(k_Closed)}) {
        EXPECT_EQ(chain.GetReversed(), chain);
        EXPECT_EQ(chain.GetTransformed(Transformation(rotation)), chain);
        EXPECT_EQ(chain.GetRotated(rotation), chain);
    }
}

TEST(PolyArcTest, ChangesThatDoNothingShareTheArcs) {
    const PolyArc square(k_Closed, k_Square);
    EXPECT_EQ(&*square.GetTransformed(Transformation()).begin(), &*square.begin());
    EXPECT_EQ(&*square.GetRotated(Rotation(Point(5, 5), k_Angle_0)).begin(), &*square.begin());
}

TEST(PolyArcTest, TransformationMovesEveryArc) {
    const PolyArc moved = GetKeyhole().GetTransformed(Transformation(Vector(10, 20)));
    EXPECT_EQ(moved.GetArcs(),
        (Arcs{ArcOf("10,20 14,20"), ArcOf("14,20 14,22"), ArcOf("14,22 10,22 h-2"), ArcOf("10,22 10,20")}));
    EXPECT_EQ(moved.GetOpenClosed(), k_Closed);
}

TEST(PolyArcTest, MirroredStaysCounterClockwise) {
    // x becomes -x, and the way is turned round.
    const PolyArc mirrored = GetKeyhole().GetTransformed(Transformation(k_Azimuth_90));
    EXPECT_EQ(
        mirrored.GetArcs(), (Arcs{ArcOf("0,0 0,2"), ArcOf("0,2 -4,2 h-2"), ArcOf("-4,2 -4,0"), ArcOf("-4,0 0,0")}));
    EXPECT_DOUBLE_EQ(double(mirrored.GetArea()), double(GetKeyhole().GetArea()));
}

TEST(PolyArcTest, RotationTurnsEveryArc) {
    EXPECT_EQ(GetKeyhole().GetRotated(Rotation(k_Origin, k_Angle_90)).GetArcs(),
        (Arcs{ArcOf("0,0 0,4"), ArcOf("0,4 -2,4"), ArcOf("-2,4 -2,0 h-2"), ArcOf("-2,0 0,0")}));
}

struct CircleCase {
    const char* m_Name;
    PolyArc m_Chain;
    double m_Accuracy;
    bool m_IsCircle;
};

TEST(PolyArcTest, IsCircleTable) {
    // All that are circles are the one about (1, 0) with radius 1.
    const Arc lower = ArcOf("0,0 2,0 h-1");
    const Arc upper = ArcOf("2,0 0,0 h-1");
    // clang-format off
    const std::vector<CircleCase> cases = {
        {"Nothing",                 PolyArc(),                                                     0,    false},
        {"NoArcs",                  PolyArc(k_Closed),                                             0,    false},
        {"FullCircle",              PolyArc(k_Open, ArcOf("2,0 2,0 h-2 a180")),                    0,    true},
        {"HalfCircle",              PolyArc(k_Open, lower),                                        9,    false},
        {"TwoHalves",               PolyArc(k_Closed, Arcs{lower, upper}),                         0,    true},
        {"TwoHalvesOpen",           PolyArc(k_Open, Arcs{lower, upper}),                           0,    true},
        {"TwoHalvesClockwise",      PolyArc(k_Closed, Arcs{lower, upper}).GetReversed(),           0,    true},
        {"OtherSense",              PolyArc(k_Closed, Arcs{lower, lower.GetReversed()}),           9,    false},
        {"OpenWithAGap",            PolyArc(k_Open, Arcs{lower, ArcOf("2,0 0.25,0 h-0.875")}),     0.2,  false},
        {"OpenWithAGapInReach",     PolyArc(k_Open, Arcs{lower, ArcOf("2,0 0.25,0 h-0.875")}),     0.25, true},
        {"OtherRadius",             PolyArc(k_Closed, Arcs{lower, ArcOf("2,0 0.25,0 h-0.875")}),   0.12, false},
        {"StraightFirst",           PolyArc(k_Closed, Arcs{ArcOf("0,0 2,0"), upper}),              9,    false},
        {"StraightLast",            PolyArc(k_Closed, Arcs{upper, ArcOf("0,0 2,0")}),              9,    false},
        {"SameRadiusOtherCenter",   PolyArc(k_Closed, Arcs{lower, ArcOf("2,0 4,0 h-1")}),          1,    false},
        {"SameCenterOtherRadius",   PolyArc(k_Closed, Arcs{lower, ArcOf("3,0 -1,0 h-2")}),         0.5,  false},
    };
    // clang-format on
    for (const CircleCase& row : cases) {
        Circumference circumference = CircumferenceOf("7,7 r7");
        EXPECT_EQ(row.m_Chain.IsCircle(row.m_Accuracy, &circumference), row.m_IsCircle) << row.m_Name;
        EXPECT_EQ(row.m_Chain.IsCircle(row.m_Accuracy), row.m_IsCircle) << row.m_Name;
        EXPECT_EQ(circumference.GetCenter(), row.m_IsCircle ? Point(1, 0) : Point(7, 7)) << row.m_Name;
        EXPECT_EQ(circumference.GetRadius(), Unit(row.m_IsCircle ? 1 : 7)) << row.m_Name;
    }
}

TEST(PolyArcTest, PointIsACircleOfNoRadius) {
    Circumference circumference = CircumferenceOf("7,7 r7");
    EXPECT_TRUE(PolyArc(k_Closed, Point(3, 4)).IsCircle(k_Unit_0, &circumference));
    EXPECT_EQ(circumference.GetCenter(), Point(3, 4));
    EXPECT_EQ(circumference.GetRadius(), k_Unit_0);
}

} // namespace
