#include "lib/math/geometry/Segment.h"

#include "lib/math/geometry/Box.h"
#include "lib/math/geometry/Line.h"
#include "lib/math/geometry/Rotation.h"
#include "lib/math/geometry/Transformation.h"
#include "tests/AssertionRecorder.h"
#include "tests/GeometryFixtures.h"

#include <gtest/gtest.h>

#include <random>
#include <type_traits>

namespace {

using namespace geom;
using fixtures::BitsOf;
using fixtures::Down;
using fixtures::k_PointLikeSegment;
using fixtures::k_RightwardSegment;
using fixtures::k_SlopedSegment;
using fixtures::k_UpwardSegment;
using fixtures::SegmentOf;
using fixtures::Up;
using Texts = std::vector<std::string>;

TEST(SegmentTest, IsTwoPoints) {
    static_assert(sizeof(Segment) == 4 * sizeof(double) && std::is_trivially_copyable_v<Segment>);
    EXPECT_EQ(k_SlopedSegment.GetStart(), Point(0, 0));
    EXPECT_EQ(k_SlopedSegment.GetEnd(), Point(3, 4));
    EXPECT_EQ(k_SlopedSegment.GetVector(), Vector(3, 4));
    EXPECT_EQ(k_SlopedSegment.GetReversed(), SegmentOf("3,4 0,0"));
    EXPECT_EQ(SegmentOf("3,0 0,4").GetBox(), Box(0, 0, 3, 4));
    EXPECT_EQ(SegmentResult().m_Success, 0U);
    EXPECT_EQ(SegmentResult().m_Segment, Segment());
}

TEST(SegmentTest, LengthAlongAnAxisIsExact) {
    EXPECT_EQ(k_UpwardSegment.GetLength(), Unit(5));
    EXPECT_EQ(SegmentOf("7,2 -1,2").GetLength(), Unit(8));
    EXPECT_EQ(SegmentOf("1,0 1,1e-200").GetLength(), Unit(1e-200));
}

TEST(SegmentTest, Lengths) {
    EXPECT_EQ(k_SlopedSegment.GetLength(), Unit(5));
    EXPECT_EQ(k_SlopedSegment.GetLengthSquare(), Area(25));
    EXPECT_EQ(k_PointLikeSegment.GetLength(), Unit(0));
}

TEST(SegmentTest, MidPointsOfBothDirectionsAreBitIdentical) {
    std::mt19937 random(3);
    std::uniform_real_distribution<double> number(-1e3, 1e3);
    for (int i = 0; i < 500; ++i) {
        const Segment segment({number(random), number(random)}, {number(random), number(random)});
        EXPECT_EQ(BitsOf(segment.GetMidPoint()), BitsOf(segment.GetReversed().GetMidPoint()));
    }
    const Segment signedZeros({0.0, -0.0}, {-0.0, 5});
    EXPECT_EQ(BitsOf(signedZeros.GetMidPoint()), BitsOf(signedZeros.GetReversed().GetMidPoint()));
}

TEST(SegmentTest, MidPointKeepsACoordinateThatBothEndsShare) {
    EXPECT_EQ(SegmentOf("1e308,2 1e308,7").GetMidPoint(), Point(1e308, 4.5));
    EXPECT_EQ(SegmentOf("2,1e308 7,1e308").GetMidPoint(), Point(4.5, 1e308));
    EXPECT_EQ(k_SlopedSegment.GetMidPoint(), Point(1.5, 2));
}

TEST(SegmentTest, PointsAlongTheWay) {
    EXPECT_EQ(k_SlopedSegment.GetPointAt(0), Point(0, 0));
    EXPECT_EQ(k_SlopedSegment.GetPointAt(1), Point(3, 4));
    EXPECT_EQ(k_SlopedSegment.GetPointAt(0.5), Point(1.5, 2));
    EXPECT_EQ(k_SlopedSegment.GetPointAt(0.25), Point(0.75, 1));
    EXPECT_EQ(k_SlopedSegment.GetPointAt(-1), Point(-3, -4));
    EXPECT_EQ(k_PointLikeSegment.GetPointAt(0.3), Point(3, 4));
}

TEST(SegmentTest, TheEndIsReachedWithoutRounding) {
    const Segment segment({0.1, 0.3}, {0.7, 1e-17});
    EXPECT_EQ(segment.GetPointAt(1), segment.GetEnd());
}

TEST(SegmentTest, SubSegmentMayTurnRound) {
    EXPECT_EQ(k_RightwardSegment.GetSubSegment(0.25, 1), SegmentOf("2.5,0 10,0"));
    EXPECT_EQ(k_RightwardSegment.GetSubSegment(1, 0.5), SegmentOf("10,0 5,0"));
}

TEST(SegmentTest, ParameterIsTheFootsWay) {
    EXPECT_EQ(k_RightwardSegment.GetParameter({2.5, 77}), 0.25);
    EXPECT_EQ(k_RightwardSegment.GetParameter({20, 0}), 2);
    EXPECT_EQ(k_PointLikeSegment.GetParameter({20, 0}), 0);
}

TEST(SegmentTest, DistanceSquareBeyondAnEndIsThatToTheEnd) {
    EXPECT_EQ(k_RightwardSegment.GetDistanceSquareTo({13, 4}), Area(25));
    EXPECT_EQ(k_RightwardSegment.GetDistanceSquareTo({-3, 4}), Area(25));
    EXPECT_EQ(k_RightwardSegment.GetDistanceSquareTo({10, 3}), Area(9));
}

TEST(SegmentTest, DistanceSquareBesideTheSegmentIsThatToItsLine) {
    EXPECT_EQ(k_RightwardSegment.GetDistanceSquareTo({4, -3}), Area(9));
    EXPECT_EQ(k_RightwardSegment.GetDistanceSquareTo({4, 0}), Area(0));
    EXPECT_EQ(k_PointLikeSegment.GetDistanceSquareTo({0, 0}), Area(25));
}

TEST(SegmentTest, NearestPoint) {
    EXPECT_EQ(k_RightwardSegment.GetNearestPoint({4, -3}), Point(4, 0));
    EXPECT_EQ(k_RightwardSegment.GetNearestPoint({13, 4}), Point(10, 0));
    EXPECT_EQ(k_RightwardSegment.GetNearestPoint({-3, 4}), Point(0, 0));
    EXPECT_EQ(k_PointLikeSegment.GetNearestPoint({9, 9}), Point(3, 4));
}

TEST(SegmentTest, NearestPointOfAPointOnTheSegmentIsThatPoint) {
    const Point on(0.1 * 3, 0.1 * 4);
    const Segment segment({0, 0}, {3 * (0.1 * 3), 3 * (0.1 * 4)});
    ASSERT_TRUE(segment.Contains(on, 0));
    EXPECT_EQ(segment.GetNearestPoint(on), on);
    // Six of eleven steps of (9, 2).
    EXPECT_EQ(Segment({-1, 0}, {98, 22}).GetNearestPoint({53, 12}), Point(53, 12));
}

TEST(SegmentTest, EndIsNearestToThePointsAcrossIt) {
    // The vector (4.8, -1) to the end and (0.1, 0.48) from there on stand across each other.
    const Segment segment({-2.2, -1.7}, {2.6, -2.7});
    ASSERT_NE(segment.GetStart() + segment.GetVector(), segment.GetEnd()) << "a sum that is rounded";
    EXPECT_EQ(segment.GetNearestPoint({2.7, -2.22}), segment.GetEnd());
}

TEST(SegmentTest, AFootThatRoundingBringsBesideTheSegmentIsReported) {
    // Seen from so far off, both ends and the length beyond the end drown in the rounding of the squares.
    const AssertionRecorder recorder;
    const Segment segment({0, 0}, {1e-5, 1e-5 * -15});
    const Point far(9977.851592, 665.189907);
    ASSERT_NEAR(segment.GetParameter(far), 1.32, 0.01);
    const Texts expected = {"offset >= -0.1 && offset <= 1.1, Segment"};
    EXPECT_EQ(segment.GetNearestPoint(far), segment.GetEnd());
    EXPECT_EQ(recorder.Take(), expected);
    EXPECT_EQ(segment.GetReversed().GetNearestPoint(far), segment.GetEnd());
    EXPECT_EQ(recorder.Take(), expected);
}

TEST(SegmentTest, BisectorRunsClockwiseAcross) {
    const Line bisector = k_RightwardSegment.GetBisector();
    EXPECT_EQ(bisector.GetDirection(), Vector(0, -1));
    EXPECT_TRUE(bisector.Contains({5, 3}, 0));
    EXPECT_EQ(bisector.GetSignedDistance({9, 0}), Unit(4));
}

TEST(SegmentTest, MovesByTransformationAndRotation) {
    EXPECT_EQ(k_SlopedSegment.GetTransformed(Transformation(Vector(1, 1))), SegmentOf("1,1 4,5"));
    EXPECT_EQ(k_SlopedSegment.GetRotated(Rotation({0, 0}, k_Angle_90)), SegmentOf("0,0 -4,3"));
    const Segment turned = k_PointLikeSegment.GetRotated(Rotation({1, 2}, k_Angle_30));
    EXPECT_EQ(turned.GetStart(), turned.GetEnd());
    EXPECT_EQ(turned.GetStart(), Point(3, 4).GetRotated(Rotation({1, 2}, k_Angle_30)));
}

TEST(SegmentTest, IsPointWhenTheEndsAreEqualWithinTheAccuracy) {
    Point point;
    EXPECT_TRUE(SegmentOf("1,1 2,2").IsPoint(1, &point));
    EXPECT_EQ(point, Point(1, 1));
    EXPECT_FALSE(SegmentOf("5,5 7,5").IsPoint(1, &point));
    EXPECT_EQ(point, Point(1, 1));
    EXPECT_TRUE(k_PointLikeSegment.IsPoint(0));
    EXPECT_FALSE(Segment({1, 1}, {1, Up(1)}).IsPoint(0));
}

TEST(SegmentTest, EqualityComparesStartsAndEnds) {
    EXPECT_TRUE(k_SlopedSegment == SegmentOf("0,0 3,4"));
    EXPECT_FALSE(k_SlopedSegment == k_SlopedSegment.GetReversed());
    EXPECT_TRUE(k_SlopedSegment.IsEqualTo(SegmentOf("1,1 2,3"), 1));
    EXPECT_FALSE(k_SlopedSegment.IsEqualTo(SegmentOf("1,1 2,2.5"), 1));
    EXPECT_FALSE(k_SlopedSegment.IsEqualTo(SegmentOf("1.5,0 3,4"), 1));
}

TEST(SegmentTest, SameWay) {
    EXPECT_TRUE(k_RightwardSegment.IsSameWayAs(k_SlopedSegment));
    EXPECT_FALSE(k_RightwardSegment.IsSameWayAs(k_UpwardSegment));
    EXPECT_FALSE(k_RightwardSegment.IsSameWayAs(k_SlopedSegment.GetReversed()));
}

TEST(SegmentTest, ContainsAnExactEndWithoutAVectorProduct) {
    // The products overflow for these ends: infinity minus infinity would compare with no number.
    const Segment segment({-1e200, 3e200}, {2e200, -1e200});
    EXPECT_TRUE(segment.Contains(segment.GetStart(), 0));
    EXPECT_TRUE(segment.Contains(segment.GetEnd(), 0));
    EXPECT_TRUE(k_SlopedSegment.Contains({3, 4}, 0));
    EXPECT_TRUE(k_SlopedSegment.Contains({0, 0}, 0));
}

TEST(SegmentTest, ContainsComparesTheDistanceFromTheLine) {
    EXPECT_TRUE(k_RightwardSegment.Contains({4, 0}, 0));
    EXPECT_FALSE(k_RightwardSegment.Contains({4, DBL_TRUE_MIN}, 0));
    EXPECT_TRUE(k_RightwardSegment.Contains({4, 0.5}, 0.5));
    EXPECT_FALSE(k_RightwardSegment.Contains({4, Up(0.5)}, 0.5));
    EXPECT_TRUE(k_SlopedSegment.Contains({1.5, 2}, 0));
    EXPECT_FALSE(k_SlopedSegment.Contains({2, 2}, 0.39)); // 2 / 5 away
    EXPECT_TRUE(k_SlopedSegment.Contains({2, 2}, 0.41));
}

TEST(SegmentTest, ContainsNothingBeyondItsExpandedBox) {
    EXPECT_FALSE(k_RightwardSegment.Contains({12, 0}, 1));
    EXPECT_FALSE(k_RightwardSegment.Contains({Up(10), 0}, 0));
    EXPECT_TRUE(k_RightwardSegment.Contains({11, 0}, 1));
    // The corner of the expanded box is farther than 1 from the end, but only 1 from the line.
    EXPECT_TRUE(k_RightwardSegment.Contains({11, 1}, 1));
}

TEST(SegmentTest, APointLikeSegmentContainsADisc) {
    EXPECT_TRUE(k_PointLikeSegment.Contains({3, 5}, 1));
    EXPECT_FALSE(k_PointLikeSegment.Contains({4, 5}, 1));
    EXPECT_TRUE(k_PointLikeSegment.Contains({3, 4}, 0));
}

TEST(SegmentTest, ContainsEndMeasuresTheDistance) {
    EXPECT_TRUE(k_RightwardSegment.ContainsEnd({13, 4}, 5));
    EXPECT_FALSE(k_RightwardSegment.ContainsEnd({13, 4}, 4.9));
    EXPECT_TRUE(k_RightwardSegment.ContainsEnd({-3, 4}, 5));
    EXPECT_FALSE(k_RightwardSegment.ContainsEnd({5, 0}, 1));
}

TEST(SegmentTest, ProjectsIntoItsSpan) {
    EXPECT_TRUE(k_RightwardSegment.ProjectsInto({4, 100}, 0));
    EXPECT_TRUE(k_RightwardSegment.ProjectsInto({10, 100}, 0));
    EXPECT_TRUE(k_RightwardSegment.ProjectsInto({0, -100}, 0));
    EXPECT_FALSE(k_RightwardSegment.ProjectsInto({11, 1}, 0));
    EXPECT_FALSE(k_RightwardSegment.ProjectsInto({-1, 1}, 0));
}

TEST(SegmentTest, WhatItContainsProjectsIntoItAlsoBeyondAnEnd) {
    EXPECT_TRUE(k_RightwardSegment.ProjectsInto({10.5, 0}, 1));
    EXPECT_FALSE(k_RightwardSegment.ProjectsInto({10.5, 0}, 0));
    EXPECT_FALSE(k_RightwardSegment.ProjectsInto({12, 0}, 1));
}

TEST(SegmentTest, WhatLiesAtInfinityHasNoFoot) {
    EXPECT_FALSE(k_RightwardSegment.ProjectsInto({k_InfiniteUnit, k_InfiniteUnit}, 0));
    EXPECT_FALSE(k_RightwardSegment.ProjectsInto({5, k_InfiniteUnit}, 0));
    EXPECT_FALSE(k_RightwardSegment.ProjectsInto({fixtures::k_NaN, 0}, 0));
    // One distance out of range is enough: to the far end only, and to the far start only.
    EXPECT_FALSE(Segment({0, 0}, {1e200, 0}).ProjectsInto({0, 1}, 0));
    EXPECT_FALSE(Segment({1e200, 0}, {0, 0}).ProjectsInto({0, 1}, 0));
}

struct MeetingCase {
    const char* m_Name;
    const char* m_Other;
    bool m_Meets;
};

TEST(SegmentTest, IntersectsWithAnother) {
    // clang-format off
    const MeetingCase rows[] = {
        {"crossing",                   "5,-1 6,1",    true},
        {"its end on the segment",     "5,0 5,7",     true},
        {"ends meet",                  "10,0 12,5",   true},
        {"overlapping",                "8,0 20,0",    true},
        {"inside it",                  "2,0 3,0",     true},
        {"holding it",                 "-2,0 13,0",   true},
        {"the same",                   "10,0 0,0",    true},
        {"parallel",                   "0,1 10,1",    false},
        {"in line, apart",             "11,0 12,0",   false},
        {"boxes apart",                "5,1 6,9",     false},
        {"crossing its line outside",  "9,-2 12,3",   false},
    };
    // clang-format on
    for (const MeetingCase& row : rows) {
        SCOPED_TRACE(row.m_Name);
        const Segment other = SegmentOf(row.m_Other);
        EXPECT_EQ(k_RightwardSegment.IntersectsWith(other, 0), row.m_Meets);
        EXPECT_EQ(other.IntersectsWith(k_RightwardSegment, 0), row.m_Meets);
        EXPECT_EQ(k_RightwardSegment.GetReversed().IntersectsWith(other.GetReversed(), 0), row.m_Meets);
    }
}

TEST(SegmentTest, BoxesThatMeetAreNotEnough) {
    EXPECT_FALSE(k_SlopedSegment.IntersectsWith(SegmentOf("2,0 3,1"), 0)); // on one side of the sloped one
    EXPECT_FALSE(SegmentOf("2,0 3,1").IntersectsWith(k_SlopedSegment, 0));
    EXPECT_FALSE(k_SlopedSegment.IntersectsWith(SegmentOf("2,5 5,3.5"), 0)); // has the sloped one on one side
}

TEST(SegmentTest, AnEndExactlyOnTheOtherIsAnIntersection) {
    // (1.5, 2) lies on the sloped segment; the vector product is exactly 0.
    EXPECT_TRUE(k_SlopedSegment.IntersectsWith(SegmentOf("1.5,2 9,2"), 0));
    EXPECT_FALSE(k_SlopedSegment.IntersectsWith(Segment({Up(1.5), 2}, {9, 2}), 0));
}

TEST(SegmentTest, AnEndOnTheOthersLineOutsideItIsNoIntersection) {
    EXPECT_FALSE(SegmentOf("0,0 4,4").IntersectsWith(SegmentOf("5,5 0,3"), 0));
    EXPECT_FALSE(SegmentOf("5,5 0,3").IntersectsWith(SegmentOf("0,0 4,4"), 0));
}

TEST(SegmentTest, IntersectsWithinAnAccuracy) {
    EXPECT_TRUE(k_RightwardSegment.IntersectsWith(SegmentOf("0,1 10,1"), 1));
    EXPECT_FALSE(k_RightwardSegment.IntersectsWith(SegmentOf("0,1.5 10,1.5"), 1));
    EXPECT_TRUE(k_RightwardSegment.IntersectsWith(SegmentOf("10.5,0 12,0"), 1));
    // One end alone within the accuracy: start or end, of the one or the other.
    for (const Segment& upright : {SegmentOf("5,0.5 6,9"), SegmentOf("6,9 5,0.5")}) {
        EXPECT_TRUE(k_RightwardSegment.IntersectsWith(upright, 1));
        EXPECT_TRUE(upright.IntersectsWith(k_RightwardSegment, 1));
        EXPECT_FALSE(k_RightwardSegment.IntersectsWith(upright, 0));
        EXPECT_FALSE(upright.IntersectsWith(k_RightwardSegment, 0));
    }
}

TEST(SegmentTest, CommonPointLiesHalfWayToTheSegment) {
    const PointResult result = k_RightwardSegment.GetCommonPoint({4, 1}, 1);
    EXPECT_EQ(result.m_Success, 1U);
    EXPECT_EQ(result.m_Point, Point(4, 0.5));
    EXPECT_EQ(k_RightwardSegment.GetCommonPoint({10, 0}, 0).m_Point, Point(10, 0));
}

TEST(SegmentTest, CommonPointOfAPointLikeSegmentIsTheCentroid) {
    const PointResult result = SegmentOf("0,0 0.5,0").GetCommonPoint({0, 1}, 1);
    EXPECT_EQ(result.m_Success, 1U);
    EXPECT_EQ(result.m_Point, Point(0.5 * 0.3333333333333333, 0.3333333333333333));
}

TEST(SegmentTest, APointOffTheSegmentHasNoneInCommon) {
    const PointResult result = k_RightwardSegment.GetCommonPoint({4, 2}, 1);
    EXPECT_EQ(result.m_Success, 0U);
    EXPECT_EQ(result.m_Point, k_Origin);
}

TEST(SegmentTest, DistancesAgreeWithSamples) {
    std::mt19937 random(4);
    std::uniform_real_distribution<double> number(-10, 10);
    for (int i = 0; i < 200; ++i) {
        const Segment segment({number(random), number(random)}, {number(random), number(random)});
        const Point point(number(random), number(random));
        double nearest = 1e9;
        for (int step = 0; step <= 1000; ++step)
            nearest = std::min(nearest, double(Vector(point, segment.GetPointAt(step / 1000.0)).GetLengthSquare()));
        // A sample lies at most half a step from the foot.
        const double error = double(segment.GetLengthSquare()) / 4e6 + 1e-12;
        EXPECT_NEAR(double(segment.GetDistanceSquareTo(point)), nearest, error);
        EXPECT_NEAR(double(segment.GetNearestPoint(point).GetDistanceSquare(point)), nearest, error);
    }
}

} // namespace
