#ifndef QRL_ZUKEN_ARCRING_H
#define QRL_ZUKEN_ARCRING_H

#include "lib/math/geometry/Arc.h"

#include <cstddef>
#include <cstdint>
#include <unordered_map>
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

    /// At most 2^31 arcs.
    explicit ArcRing(const std::vector<geom::Arc>& arcs);

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
    struct PointHash {
        size_t operator()(geom::Point point) const;
    };

    Index InsertBehind(Index index, const geom::Arc& arc);
    void Remove(Index index);
    void MoveLastToFront();
    int64_t GetOrderBehind(Index index);
    void SpreadOrder();
    void EnterStart(Index index);
    void LeaveStart(Index index);

    std::vector<Node> m_Nodes;
    Index m_First = k_None;
    std::unordered_map<geom::Point, Index, PointHash> m_ByStart; ///< the first arc of the list for each start
};

#endif
