#include "zuken/ArcRing.h"

#include <algorithm>
#include <bit>
#include <functional>

namespace {

/// Room between the orders of two neighbours, for arcs that come between them.
constexpr int64_t k_OrderStep = int64_t{1} << 20;

constexpr size_t k_FewestSlots = 16;
constexpr size_t k_SlotsPerStart = 2; ///< at least: a search then ends after a slot or two

size_t HashOf(geom::Point point) {
    constexpr size_t k_Spread = 0x9E3779B97F4A7C15; // 2^64 over the golden ratio: neighbours end far apart
    const std::hash<double> hash;
    const size_t mixed = (hash(double(point.GetX())) * k_Spread) ^ hash(double(point.GetY()));
    return (mixed * k_Spread) >> 32;
}

} // namespace

/// Entered from the end, each arc comes ahead of all that have its start.
ArcRing::ArcRing(const std::vector<geom::Arc>& arcs, size_t corners) {
    const auto count = static_cast<Index>(arcs.size());
    if (count == 0)
        return;
    m_First = 0;
    m_Nodes.reserve(count + 2 * corners);
    m_Nodes.resize(count);
    GrowStarts((count + corners) * k_SlotsPerStart);
    for (Index i = count; i-- > 0;) {
        m_Nodes[i] = {arcs[i], i == 0 ? count - 1 : i - 1, i + 1 == count ? 0 : i + 1, k_None, i * k_OrderStep};
        EnterStart(i);
    }
}

ArcRing::Index ArcRing::FindByStart(geom::Point start) const {
    return m_Starts.empty() ? k_None : m_Starts[FindSlot(start)].m_First;
}

/// The slot of the start, or the free one in which it would stand.
size_t ArcRing::FindSlot(geom::Point start) const {
    size_t slot = HashOf(start) & (m_Starts.size() - 1);
    while (m_Starts[slot].m_Bringer != k_None && m_Nodes[m_Starts[slot].m_Bringer].m_Arc.GetStart() != start)
        slot = (slot + 1) & (m_Starts.size() - 1);
    return slot;
}

void ArcRing::GrowStarts(size_t slots) {
    std::vector<Start> old(std::bit_ceil(std::max(slots, k_FewestSlots)));
    old.swap(m_Starts);
    for (const Start& start : old)
        if (start.m_Bringer != k_None)
            m_Starts[FindSlot(m_Nodes[start.m_Bringer].m_Arc.GetStart())] = start;
}

void ArcRing::ReplaceCorner(Index index, const geom::Arc& before, const geom::Arc& rounding, const geom::Arc* after) {
    const Index previous = GetPrevious(index);
    if (previous != index) {
        if (index == m_First)
            MoveLastToFront();
        Remove(index);
    }
    m_Nodes[previous].m_Arc = before;
    const Index middle = InsertBehind(previous, rounding);
    if (after != nullptr)
        InsertBehind(middle, *after);
}

std::vector<geom::Arc> ArcRing::GetArcs() const {
    std::vector<geom::Arc> arcs;
    if (m_First == k_None)
        return arcs;
    arcs.reserve(m_Nodes.size());
    Index index = m_First;
    do {
        arcs.push_back(m_Nodes[index].m_Arc);
        index = GetNext(index);
    } while (index != m_First);
    return arcs;
}

ArcRing::Index ArcRing::InsertBehind(Index index, const geom::Arc& arc) {
    const int64_t order = GetOrderBehind(index);
    const auto inserted = static_cast<Index>(m_Nodes.size());
    const Index next = GetNext(index);
    m_Nodes.push_back({arc, index, next, k_None, order});
    m_Nodes[index].m_Next = inserted;
    m_Nodes[next].m_Previous = inserted;
    EnterStart(inserted);
    return inserted;
}

/// The place of a removed arc isn't used again.
void ArcRing::Remove(Index index) {
    LeaveStart(index);
    const Node& node = m_Nodes[index];
    m_Nodes[node.m_Previous].m_Next = node.m_Next;
    m_Nodes[node.m_Next].m_Previous = node.m_Previous;
    if (index == m_First)
        m_First = node.m_Next;
}

void ArcRing::MoveLastToFront() {
    const Index last = GetPrevious(m_First);
    LeaveStart(last);
    m_Nodes[last].m_Order = m_Nodes[m_First].m_Order - k_OrderStep;
    m_First = last;
    EnterStart(last);
}

/// An order between the arc and the next one. Where there is no room left, all arcs get new orders.
int64_t ArcRing::GetOrderBehind(Index index) {
    const Index next = GetNext(index);
    if (next == m_First)
        return m_Nodes[index].m_Order + k_OrderStep;
    if (m_Nodes[next].m_Order - m_Nodes[index].m_Order < 2)
        SpreadOrder();
    return m_Nodes[index].m_Order + (m_Nodes[next].m_Order - m_Nodes[index].m_Order) / 2;
}

void ArcRing::SpreadOrder() {
    int64_t order = 0;
    Index index = m_First;
    do {
        m_Nodes[index].m_Order = order;
        order += k_OrderStep;
        index = GetNext(index);
    } while (index != m_First);
}

/// A start that isn't a number is never found.
void ArcRing::EnterStart(Index index) {
    Node& node = m_Nodes[index];
    if (node.m_Arc.GetStart() != node.m_Arc.GetStart())
        return;
    if (m_StartCount * k_SlotsPerStart >= m_Starts.size())
        GrowStarts(2 * m_Starts.size());
    Start& start = m_Starts[FindSlot(node.m_Arc.GetStart())];
    if (start.m_Bringer == k_None) {
        start.m_Bringer = index;
        ++m_StartCount;
    }
    Index* link = &start.m_First;
    while (*link != k_None && m_Nodes[*link].m_Order < node.m_Order)
        link = &m_Nodes[*link].m_NextOfSameStart;
    node.m_NextOfSameStart = *link;
    *link = index;
}

void ArcRing::LeaveStart(Index index) {
    Index* link = &m_Starts[FindSlot(m_Nodes[index].m_Arc.GetStart())].m_First;
    while (*link != k_None && *link != index)
        link = &m_Nodes[*link].m_NextOfSameStart;
    if (*link == index)
        *link = m_Nodes[index].m_NextOfSameStart;
}
