#include "lib/math/geometry/ArcSequence.h"

#include "tests/AssertionRecorder.h"
#include "tests/GeometryFixtures.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace geom;
using fixtures::ArcOf;
using fixtures::ArcsOf;
using testing::ElementsAre;
using testing::IsEmpty;

const char* const k_NoSequenceReport = "IsPolyArcSequence_G (to, k_Open), Arc";

TEST(ArcSequenceTest, NoArcsAreASequence) {
    EXPECT_TRUE(IsPolyArcSequence_G({}, k_Open));
    EXPECT_TRUE(IsPolyArcSequence_G({}, k_Closed));
}

TEST(ArcSequenceTest, OpenSequenceNeedsExactJoins) {
    EXPECT_TRUE(IsPolyArcSequence_G(ArcsOf("0,0 1,0 1,1"), k_Open));
    EXPECT_FALSE(IsPolyArcSequence_G({ArcOf("0,0 1,0"), ArcOf("1,1 2,2")}, k_Open));
    EXPECT_TRUE(IsPolyArcSequence_G({ArcOf("0,0 2,0 h1"), ArcOf("2,0 0,0 h-1")}, k_Open));
}

TEST(ArcSequenceTest, ClosedSequenceReturnsToItsStart) {
    EXPECT_TRUE(IsPolyArcSequence_G(ArcsOf("0,0 1,0 1,1 0,0"), k_Closed));
    EXPECT_FALSE(IsPolyArcSequence_G(ArcsOf("0,0 1,0 1,1"), k_Closed));
    EXPECT_TRUE(IsPolyArcSequence_G({ArcOf("1,0 1,0 h2 a180")}, k_Closed));
    EXPECT_FALSE(IsPolyArcSequence_G({ArcOf("0,0 1,0")}, k_Closed));
}

TEST(ArcSequenceTest, JoinWithinToleranceIsNoSequence) {
    const std::vector<Arc> arcs = {ArcOf("0,0 1,0"), Arc({fixtures::Up(1), 0}, {2, 0}, 0)};
    EXPECT_FALSE(IsPolyArcSequence_G(arcs, k_Open));
    EXPECT_TRUE(arcs[0].GetEnd().IsEqualTo(arcs[1].GetStart(), arcs[0].GetEpsilon()));
}

TEST(ArcSequenceTest, JoinsAheadOfTheGivenArcAreNotLookedAt) {
    const std::vector<Arc> arcs = {ArcOf("0,0 1,0"), ArcOf("9,9 2,0"), ArcOf("2,0 3,0")};
    EXPECT_FALSE(IsPolyArcSequence_G(arcs, k_Open, 0));
    EXPECT_TRUE(IsPolyArcSequence_G(arcs, k_Open, 1));
    EXPECT_TRUE(IsPolyArcSequence_G(arcs, k_Open, 3));
}

TEST(ArcSequenceTest, AppendKeepsAnArcThatJoins) {
    std::vector<Arc> arcs;
    AppendToSequence(arcs, ArcOf("0,0 2,0 h1"));
    AppendToSequence(arcs, ArcOf("2,0 3,0"));
    EXPECT_THAT(arcs, ElementsAre(ArcOf("0,0 2,0 h1"), ArcOf("2,0 3,0")));
}

TEST(ArcSequenceTest, AppendSnapsNearlyMatchingStart) {
    std::vector<Arc> arcs = {ArcOf("0,0 2,0 h1")};
    AppendToSequence(arcs, Arc({fixtures::Up(2), 1e-13}, {4, 0}, -1));
    EXPECT_THAT(arcs, ElementsAre(ArcOf("0,0 2,0 h1"), ArcOf("2,0 4,0 h-1")));
}

TEST(ArcSequenceTest, AppendMovesFullCircleAsAWhole) {
    std::vector<Arc> arcs = {ArcOf("0,0 2,0")};
    AppendToSequence(arcs, ArcOf("2.5,0 2.5,0 h2 a90"));
    EXPECT_THAT(arcs, ElementsAre(ArcOf("0,0 2,0"), ArcOf("2,0 2,0 h2 a90")));
}

TEST(ArcSequenceTest, AppendDropsPoints) {
    std::vector<Arc> arcs;
    AppendToSequence(arcs, ArcOf("3,4 3,4"));
    EXPECT_THAT(arcs, IsEmpty());
    AppendToSequence(arcs, {ArcOf("0,0 1,0"), ArcOf("1,0 1,0"), ArcOf("1,0 2,0")});
    EXPECT_THAT(arcs, ElementsAre(ArcOf("0,0 1,0"), ArcOf("1,0 2,0")));
}

TEST(ArcSequenceTest, AppendedListIsJoinedArcByArc) {
    std::vector<Arc> arcs = {ArcOf("0,0 1,0")};
    AppendToSequence(arcs, {ArcOf("1.5,0 2,0"), ArcOf("2.5,0 3,0")});
    EXPECT_THAT(arcs, ElementsAre(ArcOf("0,0 1,0"), ArcOf("1,0 2,0"), ArcOf("2,0 3,0")));
    EXPECT_TRUE(IsPolyArcSequence_G(arcs, k_Open));
}

TEST(ArcSequenceTest, AppendToNoSequenceIsReported) {
    const AssertionRecorder recorder;
    std::vector<Arc> arcs = {ArcOf("0,0 1,0"), ArcOf("5,5 6,6")};
    AppendToSequence(arcs, ArcOf("6,6 7,7"));
    EXPECT_THAT(recorder.Take(), ElementsAre(k_NoSequenceReport));
    AppendToSequence(arcs, {ArcOf("7,7 8,8")});
    EXPECT_THAT(recorder.Take(), ElementsAre(k_NoSequenceReport));
    EXPECT_EQ(arcs.size(), 4U);
}

} // namespace
