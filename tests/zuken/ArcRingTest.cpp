#include "zuken/ArcRing.h"

#include "tests/GeometryFixtures.h"

#include <gmock/gmock.h>

#include <limits>
#include <random>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// An arc that is told by the x of its ends.
geom::Arc Piece(double from, double to) { return geom::Arc(geom::Point(from, 0), geom::Point(to, 0), 0); }

/// Positions in the list of the arcs that begin at `x`, by the ring's index.
std::vector<size_t> PositionsOf(const ArcRing& ring, double x) {
    const std::vector<geom::Arc> arcs = ring.GetArcs();
    std::vector<size_t> positions;
    for (ArcRing::Index i = ring.FindByStart(geom::Point(x, 0)); i != ArcRing::k_None; i = ring.GetNextOfSameStart(i)) {
        size_t position = 0;
        while (position < arcs.size() && !(arcs[position] == ring[i]))
            ++position;
        positions.push_back(position);
    }
    return positions;
}

} // namespace

TEST(ArcRingTest, EmptyRingHasNothing) {
    const ArcRing ring({});
    EXPECT_THAT(ring.GetArcs(), IsEmpty());
    EXPECT_EQ(ArcRing::k_None, ring.FindByStart(geom::k_Origin));
}

TEST(ArcRingTest, NeighboursComeRound) {
    const ArcRing ring({Piece(0, 1), Piece(1, 2), Piece(2, 3)});
    const ArcRing::Index first = ring.FindByStart(geom::Point(0, 0));
    EXPECT_EQ(Piece(2, 3), ring[ring.GetPrevious(first)]);
    EXPECT_EQ(Piece(1, 2), ring[ring.GetNext(first)]);
    EXPECT_EQ(first, ring.GetNext(ring.GetPrevious(first)));
}

TEST(ArcRingTest, WalkFromTheFirstMeetsAsManyArcsAsThereAre) {
    EXPECT_EQ(0U, ArcRing({}).GetSize());
    EXPECT_EQ(ArcRing::k_None, ArcRing({}).GetFirst());
    ArcRing ring({Piece(0, 1), Piece(1, 2), Piece(2, 0)});
    const geom::Arc after = Piece(9, 2);
    ring.ReplaceCorner(ring.FindByStart(geom::Point(1, 0)), Piece(0, 8), Piece(8, 9), &after);
    EXPECT_EQ(4U, ring.GetSize());
    std::vector<geom::Arc> met;
    ArcRing::Index index = ring.GetFirst();
    for (size_t i = 0; i < ring.GetSize(); ++i, index = ring.GetNext(index))
        met.push_back(ring[index]);
    EXPECT_THAT(met, ElementsAre(Piece(0, 8), Piece(8, 9), after, Piece(2, 0)));
    EXPECT_EQ(ring.GetFirst(), index);
}

TEST(ArcRingTest, StartThatWasLeftCanComeBack) {
    ArcRing ring({Piece(0, 1), Piece(1, 2), Piece(2, 0)});
    ring.ReplaceCorner(ring.FindByStart(geom::Point(1, 0)), Piece(0, 8), Piece(8, 2), nullptr);
    EXPECT_THAT(PositionsOf(ring, 1), IsEmpty());
    ring.ReplaceCorner(ring.FindByStart(geom::Point(8, 0)), Piece(0, 1), Piece(1, 2), nullptr);
    EXPECT_THAT(PositionsOf(ring, 1), ElementsAre(1));
    EXPECT_THAT(PositionsOf(ring, 8), IsEmpty());
}

TEST(ArcRingTest, SingleArcIsItsOwnNeighbour) {
    ArcRing ring({Piece(0, 9)});
    const ArcRing::Index only = ring.FindByStart(geom::k_Origin);
    EXPECT_EQ(only, ring.GetPrevious(only));
    EXPECT_EQ(only, ring.GetNext(only));
    const geom::Arc after = Piece(5, 9);
    ring.ReplaceCorner(only, Piece(0, 3), Piece(3, 5), &after);
    EXPECT_THAT(ring.GetArcs(), ElementsAre(Piece(0, 3), Piece(3, 5), after));
}

TEST(ArcRingTest, ArcsOfOneStartAreFoundInListOrder) {
    const ArcRing ring({Piece(7, 1), Piece(1, 7), Piece(7, 2), Piece(2, 7), Piece(7, 3)});
    EXPECT_THAT(PositionsOf(ring, 7), ElementsAre(0, 2, 4));
    EXPECT_THAT(PositionsOf(ring, 3), IsEmpty()) << "an end alone";
}

TEST(ArcRingTest, SignOfZeroDoesNotMatter) {
    EXPECT_NE(ArcRing::k_None, ArcRing({Piece(-0.0, 1)}).FindByStart(geom::Point(0.0, -0.0)));
}

TEST(ArcRingTest, StartThatIsNoNumberIsNeverFound) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    ArcRing ring({Piece(0, nan), Piece(nan, 2), Piece(2, 3)});
    EXPECT_EQ(ArcRing::k_None, ring.FindByStart(geom::Point(nan, 0)));
    ring.ReplaceCorner(ring.GetNext(ring.FindByStart(geom::k_Origin)), Piece(0, 1), Piece(1, 2), nullptr);
    EXPECT_THAT(ring.GetArcs(), ElementsAre(Piece(0, 1), Piece(1, 2), Piece(2, 3)));
}

TEST(ArcRingTest, CornerOfTheFirstArcMovesTheLastToTheFront) {
    ArcRing ring({Piece(0, 1), Piece(1, 2), Piece(2, 0)});
    ring.ReplaceCorner(ring.FindByStart(geom::k_Origin), Piece(2, 8), Piece(8, 9), nullptr);
    EXPECT_THAT(ring.GetArcs(), ElementsAre(Piece(2, 8), Piece(8, 9), Piece(1, 2)));
}

TEST(ArcRingTest, ArcThatMovedToTheFrontIsFoundFirst) {
    ArcRing ring({Piece(0, 7), Piece(7, 1), Piece(1, 7), Piece(7, 0)});
    EXPECT_THAT(PositionsOf(ring, 7), ElementsAre(1, 3));
    ring.ReplaceCorner(ring.FindByStart(geom::k_Origin), Piece(7, 8), Piece(8, 9), nullptr);
    EXPECT_THAT(ring.GetArcs(), ElementsAre(Piece(7, 8), Piece(8, 9), Piece(7, 1), Piece(1, 7)));
    EXPECT_THAT(PositionsOf(ring, 7), ElementsAre(0, 2));
}

TEST(ArcRingTest, MoreCornersThanAnnouncedAreReplacedAndFound) {
    constexpr int k_Corners = 15;
    std::vector<geom::Arc> arcs;
    for (int i = 0; i <= k_Corners; ++i)
        arcs.push_back(Piece(10 * i, 10 * i + 10));
    ArcRing ring(arcs);
    for (int i = 1; i <= k_Corners; ++i) {
        const double corner = 10 * i;
        const ArcRing::Index index = ring.FindByStart(geom::Point(corner, 0));
        ASSERT_NE(ArcRing::k_None, index);
        const geom::Arc before(ring[ring.GetPrevious(index)].GetStart(), geom::Point(corner - 1, 0), 0);
        const geom::Arc after = Piece(corner + 1, corner + 10);
        ring.ReplaceCorner(index, before, Piece(corner - 1, corner + 1), &after);
    }
    for (size_t i = 1; i <= k_Corners; ++i) {
        const auto corner = 10 * static_cast<double>(i);
        EXPECT_THAT(PositionsOf(ring, corner - 1), ElementsAre(2 * i - 1));
        EXPECT_THAT(PositionsOf(ring, corner), IsEmpty());
        EXPECT_THAT(PositionsOf(ring, corner + 1), ElementsAre(2 * i));
    }
}

TEST(ArcRingTest, SamePlaceCanBeCutAgainAndAgain) {
    // Each time the arc that begins at 7 is replaced by two that begin there, so that orders run out of room.
    ArcRing ring({Piece(0, 7), Piece(7, 1), Piece(1, 0)});
    for (int i = 0; i < 100; ++i) {
        const geom::Arc after = Piece(7, 1);
        ring.ReplaceCorner(ring.FindByStart(geom::Point(7, 0)), Piece(0, 7), Piece(7, 100 + i), &after);
        ASSERT_EQ(Piece(7, 100 + i), ring[ring.FindByStart(geom::Point(7, 0))]) << i;
        ring.ReplaceCorner(ring.GetNext(ring.FindByStart(geom::Point(7, 0))), Piece(7, 100 + i), Piece(7, 1), nullptr);
    }
    EXPECT_EQ(Piece(1, 0), ring.GetArcs().back());
}

TEST(ArcRingTest, AnswersWhatAListThatIsRebuiltWould) {
    // A list of arcs between six places, and the same cuts on both: before, rounding and, at random, after.
    std::mt19937 random(7);
    const auto pick = [&random](int count) { return static_cast<double>(random() % static_cast<unsigned>(count)); };
    for (int round = 0; round < 200; ++round) {
        std::vector<geom::Arc> list;
        const auto count = static_cast<int>(pick(8)) + 1;
        for (int i = 0; i < count; ++i)
            list.push_back(Piece(pick(6), pick(6)));
        ArcRing ring(list);
        for (int cut = 0; cut < 30; ++cut) {
            const double place = pick(6);
            size_t i = 0;
            while (i < list.size() && double(list[i].GetStart().GetX()) != place)
                ++i;
            const ArcRing::Index index = ring.FindByStart(geom::Point(place, 0));
            ASSERT_EQ(i == list.size(), index == ArcRing::k_None);
            if (i == list.size())
                continue;
            const size_t previous = i == 0 ? list.size() - 1 : i - 1;
            const geom::Arc before(list[previous].GetStart(), geom::Point(pick(6), 0), pick(100));
            const geom::Arc rounding(geom::Point(pick(6), 0), geom::Point(pick(6), 0), pick(100));
            const geom::Arc after(geom::Point(pick(6), 0), list[i].GetEnd(), pick(100));
            const bool hasAfter = pick(2) == 1;

            std::vector<geom::Arc> rebuilt;
            for (size_t k = 0; k + 1 < i; ++k)
                rebuilt.push_back(list[k]);
            rebuilt.push_back(before);
            rebuilt.push_back(rounding);
            if (hasAfter)
                rebuilt.push_back(after);
            const size_t end = previous < i + 1 ? list.size() : list.size() - 1;
            for (size_t k = i + 1; k < end; ++k)
                rebuilt.push_back(list[k]);
            list = rebuilt;

            ring.ReplaceCorner(index, before, rounding, hasAfter ? &after : nullptr);
            ASSERT_EQ(list, ring.GetArcs()) << "round " << round << ", cut " << cut;
            for (double x = 0; x < 6; ++x) {
                std::vector<geom::Arc> expected;
                for (const geom::Arc& arc : list)
                    if (double(arc.GetStart().GetX()) == x)
                        expected.push_back(arc);
                std::vector<geom::Arc> found;
                for (ArcRing::Index k = ring.FindByStart(geom::Point(x, 0)); k != ArcRing::k_None;
                     k = ring.GetNextOfSameStart(k))
                    found.push_back(ring[k]);
                ASSERT_EQ(expected, found) << "round " << round << ", cut " << cut << ", place " << x;
            }
        }
    }
}
