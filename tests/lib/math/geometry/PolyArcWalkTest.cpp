#include "lib/math/geometry/PolyArc.h"

#include "tests/AssertionRecorder.h"
#include "tests/GeometryFixtures.h"

#include <gmock/gmock.h>

#include <cstddef>
#include <random>
#include <vector>

namespace {

using namespace geom;
using fixtures::ArcOf;
using fixtures::ArcsOf;
using fixtures::BoxOf;
using testing::ElementsAre;
using testing::IsEmpty;
using Arcs = std::vector<Arc>;

Arcs Walk(const PolyArc& chain, base::FilterMode mode, const Box& box) {
    Arcs arcs;
    for (PolyArc::Iterator at = chain.begin(mode, box); !(at == chain.end()); ++at)
        arcs.push_back(*at);
    return arcs;
}

/// Steps of length 10 to the right, from 0 on.
PolyArc GetStaircase(int count) {
    Arcs arcs;
    arcs.reserve(std::size_t(count));
    for (int i = 0; i < count; ++i)
        arcs.emplace_back(Segment({10.0 * i, 1.0 * i}, {10.0 * (i + 1), 1.0 * (i + 1)}));
    return {k_Open, arcs};
}

TEST(PolyArcWalkTest, VisitsAllArcsInOrder) {
    const PolyArc chain(k_Closed, fixtures::ArcsOf("0,0 1,0 1,1 0,0"));
    Arcs arcs;
    for (const Arc& arc : chain)
        arcs.push_back(arc);
    EXPECT_EQ(arcs, chain.GetArcs());
    EXPECT_EQ(Walk(chain, base::k_NoFilter, k_EmptyBox), chain.GetArcs());
}

TEST(PolyArcWalkTest, SkipOutsideVisitsOnlyTheLastArcWhenTheBoxMeetsOnlyIt) {
    // The boxes of its ancestors in the tree meet the filter as well; their own arcs don't.
    const PolyArc chain = GetStaircase(20);
    EXPECT_THAT(Walk(chain, base::k_SkipOutside, BoxOf("195,0 300,300")), ElementsAre(ArcOf("190,19 200,20")));
}

TEST(PolyArcWalkTest, SkipOutsideLooksAtTheArcAndNotAtItsBox) {
    const PolyArc diagonal(k_Open, ArcsOf("0,0 10,10"));
    EXPECT_THAT(Walk(diagonal, base::k_SkipOutside, BoxOf("6,0 10,4")), IsEmpty());
    EXPECT_EQ(Walk(diagonal, base::k_SkipOutside, BoxOf("5,0 10,5")), diagonal.GetArcs());
}

TEST(PolyArcWalkTest, SkipOutsideMeetsWhatBulgesIntoTheBox) {
    const PolyArc bulge(k_Open, ArcOf("0,0 2,0 h1")); // up to (1, 1)
    EXPECT_EQ(Walk(bulge, base::k_SkipOutside, BoxOf("0.5,0.9 1.5,3")), bulge.GetArcs());
    EXPECT_THAT(Walk(bulge, base::k_SkipOutside, BoxOf("0.5,1.1 1.5,3")), IsEmpty());
    EXPECT_THAT(Walk(bulge, base::k_SkipOutside, BoxOf("0.5,0.1 1.5,0.5")), IsEmpty()); // between arc and chord
}

TEST(PolyArcWalkTest, SkipInsidePassesOverArcsInTheBox) {
    const PolyArc chain = GetStaircase(4);
    EXPECT_EQ(Walk(chain, base::k_SkipInside, BoxOf("-1,-1 15,15")), ArcsOf("10,1 20,2 30,3 40,4"));
    EXPECT_THAT(Walk(chain, base::k_SkipInside, BoxOf("-1,-1 41,41")), IsEmpty());
}

TEST(PolyArcWalkTest, SkipInsideKeepsTouchingArcsWhoseSubtreeReachesOut) {
    // Of two arcs the second is the root, and the bound of its subtree reaches beyond the box; its own box only
    // touches, and isn't strictly inside. The first one's subtree is in the box, touching or not.
    const PolyArc chain = GetStaircase(2);
    EXPECT_EQ(Walk(chain, base::k_SkipInside, BoxOf("5,0 20,9")), chain.GetArcs());
    EXPECT_THAT(Walk(chain, base::k_SkipInside, BoxOf("0,0 20,9")), IsEmpty());
}

TEST(PolyArcWalkTest, UnknownFilterModeIsReported) {
    const PolyArc chain(k_Open, ArcsOf("0,0 1,0"));
    const AssertionRecorder assertions;
    EXPECT_EQ(*chain.begin(base::FilterMode(7), BoxOf("5,5 6,6")), ArcOf("0,0 1,0"));
    EXPECT_THAT(AssertionRecorder::Take(), ElementsAre("!\"This should never happen!\", RangeAvlTree.h",
                                               "filter_mode == base::k_SkipInside, AvlPolyArcImplementation"));
}

TEST(PolyArcWalkTest, CopyStaysWhenTheOriginalSteps) {
    const PolyArc chain = GetStaircase(3);
    PolyArc::Iterator at = chain.begin();
    const PolyArc::Iterator copy(at);
    EXPECT_EQ(copy, at);
    ++at;
    EXPECT_EQ(*copy, ArcOf("0,0 10,1"));
    EXPECT_EQ(*at, ArcOf("10,1 20,2"));
    EXPECT_FALSE(copy == at);
}

TEST(PolyArcWalkTest, EndIsTheSameHoweverReached) {
    const PolyArc chain = GetStaircase(1);
    PolyArc::Iterator at = chain.begin();
    EXPECT_EQ(at->GetEnd(), Point(10, 1));
    EXPECT_EQ(++at, chain.end());
    EXPECT_EQ(chain.end(), chain.end());
    EXPECT_EQ(chain.end(), PolyArc().end());
    EXPECT_EQ(chain.begin(base::k_SkipOutside, k_EmptyBox), chain.end());
}

TEST(PolyArcWalkTest, SteppingFromTheEndLeavesTheSharedEndInPlace) {
    const PolyArc chain = GetStaircase(1);
    PolyArc::Iterator at = chain.end();
    const AssertionRecorder assertions;
    ++at;
    EXPECT_EQ(at, chain.end());
    EXPECT_THAT(AssertionRecorder::Take(), ElementsAre("IsDereferenceable(), AvlPolyArcImplementation",
                                               "ParentClass::m_CurrentNode, RangeAvlTree.h", "start, RangeAvlTree.h"));
}

TEST(PolyArcWalkTest, EndHasNoArc) {
    const PolyArc chain = GetStaircase(1);
    const AssertionRecorder assertions;
    EXPECT_EQ(*chain.end(), Arc());
    EXPECT_THAT(AssertionRecorder::Take(),
        ElementsAre("IsDereferenceable(), AvlPolyArcImplementation", "m_CurrentNode, AvlTree.h"));
}

TEST(PolyArcWalkTest, IteratorInNoChainIsReported) {
    PolyArc::Iterator none;
    EXPECT_EQ(none, PolyArc::Iterator());
    EXPECT_FALSE(none == PolyArc().end());
    EXPECT_FALSE(PolyArc().end() == none);
    const AssertionRecorder assertions;
    EXPECT_EQ(*none, Arc());
    EXPECT_EQ(++none, PolyArc::Iterator());
    EXPECT_THAT(AssertionRecorder::Take(),
        ElementsAre("!m_ImplRefCounter.IsNull(), PolyArc", "!m_ImplRefCounter.IsNull(), PolyArc"));
}

TEST(PolyArcWalkTest, RandomWalksVisitWhatABruteForceFilterLetsThrough) {
    std::mt19937 random(4711); // NOLINT(cert-msc32-c,cert-msc51-cpp)
    std::uniform_real_distribution<double> place(0, 100);
    std::uniform_real_distribution<double> shift(-6, 6);
    std::size_t met = 0;
    std::size_t notInside = 0;
    for (int round = 0; round < 100; ++round) {
        Arcs arcs;
        Point from(place(random), place(random));
        for (int i = 0; i < 100; ++i) {
            const Point to = from + Vector(shift(random), shift(random));
            arcs.emplace_back(from, to, i % 3 == 0 ? 0 : shift(random) / 2);
            from = to;
        }
        const PolyArc chain(k_Open, arcs);
        for (int query = 0; query < 10; ++query) {
            const Point corner(place(random), place(random));
            const double size = query < 5 ? 10 : 60;
            const Box box(corner.GetX(), corner.GetY(), corner.GetX() + size, corner.GetY() + size);
            Arcs meeting;
            Arcs reachingOut;
            for (const Arc& arc : arcs) {
                if (arc.IntersectsBox(box, k_Unit_0))
                    meeting.push_back(arc);
                if (arc.GetBox().GetRelationTo(box, k_Unit_0) != k_BoxInside)
                    reachingOut.push_back(arc);
            }
            ASSERT_EQ(Walk(chain, base::k_SkipOutside, box), meeting) << "round " << round;
            ASSERT_EQ(Walk(chain, base::k_SkipInside, box), reachingOut) << "round " << round;
            met += meeting.size();
            notInside += reachingOut.size();
        }
    }
    EXPECT_GT(met, 1000U);
    EXPECT_GT(notInside, 1000U);
}

} // namespace
