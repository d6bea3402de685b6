#include "lib/math/geometry/Polygon.h"
#include "lib/math/geometry/Segment.h"
#include "tests/AssertionRecorder.h"
#include "tests/GeometryFixtures.h"

#include <gmock/gmock.h>

#include <cmath>
#include <vector>

namespace {

using namespace geom;
using fixtures::ArcOf;
using fixtures::ArcsOf;
using fixtures::CircleOf;
using fixtures::k_RightwardSegment;
using testing::ElementsAre;

TEST(SegmentPolygonTest, RoundCapsOfEqualWidth) {
    EXPECT_THAT(k_RightwardSegment.GetPolygon(2, false, 2, false).GetArcs(),
        ElementsAre(ArcOf("0,-1 10,-1"), ArcOf("10,-1 10,1 h-1"), ArcOf("10,1 0,1"), ArcOf("0,1 0,-1 h-1")));
}

TEST(SegmentPolygonTest, SquareCapsAreStraightAndDoNotReachOut) {
    EXPECT_EQ(k_RightwardSegment.GetPolygon(2, true, 2, true).GetArcs(), ArcsOf("0,-1 10,-1 10,1 0,1 0,-1"));
}

TEST(SegmentPolygonTest, EachEndHasItsOwnCapAndWidth) {
    EXPECT_THAT(k_RightwardSegment.GetPolygon(2, true, 4, false).GetArcs(),
        ElementsAre(ArcOf("0,-1 10,-2"), ArcOf("10,-2 10,2 h-2"), ArcOf("10,2 0,1"), ArcOf("0,1 0,-1")));
    EXPECT_THAT(k_RightwardSegment.GetPolygon(2, false, 4, true).GetArcs(),
        ElementsAre(ArcOf("0,-1 10,-2"), ArcOf("10,-2 10,2"), ArcOf("10,2 0,1"), ArcOf("0,1 0,-1 h-1")));
}

TEST(SegmentPolygonTest, EndOfNoWidthHasNoCap) {
    EXPECT_THAT(k_RightwardSegment.GetPolygon(2, true, 0, false).GetArcs(),
        ElementsAre(ArcOf("0,-1 10,0"), ArcOf("10,0 0,1"), ArcOf("0,1 0,-1")));
    EXPECT_THAT(k_RightwardSegment.GetPolygon(0, true, 2, true).GetArcs(),
        ElementsAre(ArcOf("0,0 10,-1"), ArcOf("10,-1 10,1"), ArcOf("10,1 0,0")));
}

TEST(SegmentPolygonTest, NoWidthAtAllIsThereAndBack) {
    EXPECT_EQ(k_RightwardSegment.GetPolygon(0, false, 0, false).GetArcs(), ArcsOf("0,0 10,0 0,0"));
}

TEST(SegmentPolygonTest, SlopedTrackHasTheAreaOfAnObround) {
    const Polygon track = Segment({1, 2}, {4, 6}).GetPolygon(2, false, 2, false);
    EXPECT_NEAR(double(track.GetArea()), 5 * 2 + k_Pi, 1e-12);
    EXPECT_EQ(track.GetOpenClosed(), k_Closed);
}

TEST(SegmentPolygonTest, PointIsReportedAndGivesACircleOfTheWholeWidthAsRadius) {
    const AssertionRecorder assertions;
    EXPECT_EQ(fixtures::k_PointLikeSegment.GetPolygon(2, false, 7, true), Polygon(CircleOf("3,4 r2")));
    EXPECT_THAT(AssertionRecorder::Take(), ElementsAre("!center_segment.IsPoint(0, NULL), Segment"));
}

} // namespace
