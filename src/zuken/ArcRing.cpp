#include "zuken/ArcRing.h"

#include <functional>

namespace {

/// Room between the orders of two neighbours, for arcs that come between them.
constexpr int64_t k_OrderStep = int64_t{1} << 20;

} // namespace

/// Entered from the end, each arc comes ahead of all that have its start.
ArcRing::ArcRing(const std::vector<geom::Arc>& arcs) {
    const auto count = static_cast<Index>(arcs.size());
    if (count == 0)
        return;
    m_First = 0;
    m_Nodes.resize(count);
    m_ByStart.reserve(count);
    for (Index i = count; i-- > 0;) {
        m_Nodes[i] = {arcs[i], i == 0 ? count - 1 : i - 1, i + 1 == count ? 0 : i + 1, k_None, i * k_OrderStep};
        EnterStart(i);
    }
}

size_t ArcRing::PointHash::operator()(geom::Point point) const {
    constexpr size_t k_Spread = 0x9E3779B97F4A7C15; // 2^64 over the golden ratio: neighbours end far apart
    const std::hash<double> hash;
    return (hash(double(point.GetX())) * k_Spread) ^ hash(double(point.GetY()));
}

ArcRing::Index ArcRing::FindByStart(geom::Point start) const {
    const auto found = m_ByStart.find(start);
    return found == m_ByStart.end() ? k_None : found->second;
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

void ArcRing::EnterStart(Index index) {
    Node& node = m_Nodes[index];
    Index* link = &m_ByStart.try_emplace(node.m_Arc.GetStart(), k_None).first->second;
    while (*link != k_None && m_Nodes[*link].m_Order < node.m_Order)
        link = &m_Nodes[*link].m_NextOfSameStart;
    node.m_NextOfSameStart = *link;
    *link = index;
}

/// A start that isn't a number is never found, and stays.
void ArcRing::LeaveStart(Index index) {
    const auto found = m_ByStart.find(m_Nodes[index].m_Arc.GetStart());
    if (found == m_ByStart.end())
        return;
    Index* link = &found->second;
    while (*link != index)
        link = &m_Nodes[*link].m_NextOfSameStart;
    *link = m_Nodes[index].m_NextOfSameStart;
    if (found->second == k_None)
        m_ByStart.erase(found);
}
