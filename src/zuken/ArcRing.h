#ifndef QRL_ZUKEN_ARCRING_H
#define QRL_ZUKEN_ARCRING_H

#include "lib/math/geometry/Arc.h"
#include "lib/utils/Arena.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory_resource>
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

    /// The arcs `getArc(i)` for each i below `count`, of which about `corners` are to be replaced. At most 2^30.
    ArcRing(size_t count, size_t corners, const std::function<geom::Arc(size_t)>& getArc);
    explicit ArcRing(const std::vector<geom::Arc>& arcs, size_t corners = 0)
        : ArcRing(arcs.size(), corners, [&arcs](size_t index) { return arcs[index]; }) {}

    const geom::Arc& operator[](Index index) const { return m_Nodes[index].m_Arc; }
    size_t GetSize() const { return m_Nodes.size(); }
    /// k_None when there is none.
    Index GetFirst() const { return m_First; }
    /// The arc ahead of the first is the last. A single arc is its own neighbour.
    Index GetPrevious(Index index) const { return m_Nodes[index].m_Previous; }
    Index GetNext(Index index) const { return m_Nodes[index].m_Next; }

    /// The first arc of the list whose start is exactly `start`, -0.0 and 0.0 being equal; k_None when there is none.
    Index FindByStart(geom::Point start) const;
    /// Has the memory at hand that a search for `start` looks at first.
    void Expect(geom::Point start) const;
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
    /// A start that arcs have or had. With the hash at hand no other arc is looked at but one that has the start.
    struct Start {
        uint32_t m_Hash = 0;
        Index m_First = k_None; ///< of the arcs that have it, in the order of the list; k_Left when none has any more
    };
    static constexpr Index k_Left = k_None - 1;

    Index InsertBehind(Index index, const geom::Arc& arc);
    void ReplaceArc(Index index, const geom::Arc& arc);
    void MoveLastToFront();
    int64_t GetOrderBehind(Index index);
    void SpreadOrder();
    void EnterStart(Index index);
    void LeaveStart(Index index);
    size_t FindSlot(geom::Point start, uint32_t hash) const;
    void MakeRoomForStarts(size_t count);

    base::Arena m_Memory; ///< goes back as a whole with the ring; a table that is outgrown stays until then
    std::pmr::vector<Node> m_Nodes{&m_Memory};
    Index m_First = k_None;
    /// A hash table with open addressing: a start stands in the slot of its hash or one of the next. A slot that is
    /// left isn't used again.
    std::pmr::vector<Start> m_Starts{&m_Memory};
    size_t m_UsedSlots = 0;
};

#endif
