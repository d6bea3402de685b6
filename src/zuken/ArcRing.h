#ifndef QRL_ZUKEN_ARCRING_H
#define QRL_ZUKEN_ARCRING_H

#include "lib/math/geometry/Arc.h"

#include <cstddef>
#include <cstdint>
#include <vector>

/// A list of arcs that is taken as cyclic, and in which corners are rounded.
///
/// Arcs are found by their start, and a corner is replaced where it stands: a line of a million points with a rounding
/// at each takes time in proportion to its length. Each arc keeps its `Index` as long as it is in the list. An index is
/// no position: the list runs from `GetFirst()` along `GetNext()` until it comes round.
class ArcRing {
public:
    using Index = uint32_t;
    static constexpr Index k_None = UINT32_MAX;

    /// At most 2^30 arcs, of which about `corners` are to be replaced.
    explicit ArcRing(const std::vector<geom::Arc>& arcs, size_t corners = 0);

    const geom::Arc& operator[](Index index) const { return m_Nodes[index].m_Arc; }
    /// The arc ahead of the first is the last. A single arc is its own neighbour.
    Index GetPrevious(Index index) const { return m_Nodes[index].m_Previous; }
    Index GetNext(Index index) const { return m_Nodes[index].m_Next; }

    /// The first arc of the list whose start is exactly `start`, -0.0 and 0.0 being equal; k_None when there is none.
    Index FindByStart(geom::Point start) const;
    /// The next arc of the list with the same start; k_None when there is none.
    Index GetNextOfSameStart(Index index) const { return m_Nodes[index].m_NextOfSameStart; }

    /// Puts the pieces of a rounded corner in place of the arc at `index` and the one ahead of it: `before`, which has
    /// the start of the latter, `rounding` and, unless null, `after`. At the first arc of the list it is the last one
    /// that is replaced; the list then begins with `before`.
    void ReplaceCorner(Index index, const geom::Arc& before, const geom::Arc& rounding, const geom::Arc* after);

    std::vector<geom::Arc> GetArcs() const;

private:
    struct Node {
        geom::Arc m_Arc;
        Index m_Previous = k_None;
        Index m_Next = k_None;
        Index m_NextOfSameStart = k_None;
        int64_t m_Order = 0; ///< grows along the list
    };
    /// A start, and the arcs of the list that have it. An arc's start never changes, so that a start is known by the
    /// first arc that brought it, also when that has left.
    struct Start {
        Index m_Bringer = k_None; ///< none: nobody uses this slot
        Index m_First = k_None;   ///< of the list
    };

    Index InsertBehind(Index index, const geom::Arc& arc);
    void Remove(Index index);
    void MoveLastToFront();
    int64_t GetOrderBehind(Index index);
    void SpreadOrder();
    void EnterStart(Index index);
    void LeaveStart(Index index);
    size_t FindSlot(geom::Point start) const;
    void GrowStarts(size_t slots);

    std::vector<Node> m_Nodes;
    Index m_First = k_None;
    std::vector<Start> m_Starts; ///< a hash table with open addressing: a start stands in its slot or one of the next
    size_t m_StartCount = 0;
};

#endif
