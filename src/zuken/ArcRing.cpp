#include "zuken/ArcRing.h"

#include "lib/utils/HashFactor.h"

#include <algorithm>
#include <bit>
#include <cstdint>

namespace {

/// Room between the orders of two neighbours, for arcs that come between them.
constexpr int64_t k_OrderStep = int64_t{1} << 20;

constexpr size_t k_FewestSlots = 16;

/// How full the table of starts gets: a search without a find then passes some eight slots, which lie side by side.
constexpr size_t k_FullNumerator = 3;
constexpr size_t k_FullDenominator = 4;

uint64_t Mix(uint64_t bits) {
    bits = (bits ^ bits >> 32) * base::k_HashFactor;
    bits = (bits ^ bits >> 32) * base::k_HashFactor;
    return bits ^ bits >> 32;
}

/// The sum makes a negative zero a positive one.
uint64_t GetBits(geom::Unit value) { return std::bit_cast<uint64_t>(double(value) + 0.0); }

uint32_t HashOf(geom::Point point) {
    return static_cast<uint32_t>(Mix(Mix(GetBits(point.GetX())) ^ GetBits(point.GetY())));
}

} // namespace

/// Entered from the end, each arc comes ahead of all that have its start. A corner takes up two new starts at most, and
/// one place.
ArcRing::ArcRing(size_t count, size_t corners, const std::function<geom::Arc(size_t)>& getArc) {
    if (count == 0)
        return;
    m_First = 0;
    m_Nodes.reserve(count + corners);
    m_Nodes.resize(count);
    MakeRoomForStarts(count + 2 * corners);
    const auto end = static_cast<Index>(count);
    for (Index i = end; i-- > 0;) {
        m_Nodes[i] = {getArc(i), i == 0 ? end - 1 : i - 1, i + 1 == end ? 0 : i + 1, k_None, i * k_OrderStep};
        EnterStart(i);
    }
}

ArcRing::Index ArcRing::FindByStart(geom::Point start) const {
    if (m_Starts.empty())
        return k_None;
    const Index first = m_Starts[FindSlot(start, HashOf(start))].m_First;
    return first == k_Left ? k_None : first;
}

void ArcRing::Expect(geom::Point start) const {
    if (!m_Starts.empty())
        __builtin_prefetch(&m_Starts[HashOf(start) & (m_Starts.size() - 1)]);
}

/// The slot of the start, or the free one in which it would stand.
size_t ArcRing::FindSlot(geom::Point start, uint32_t hash) const {
    const auto isHere = [&](const Start& slot) {
        return slot.m_Hash == hash && slot.m_First != k_Left && m_Nodes[slot.m_First].m_Arc.GetStart() == start;
    };
    size_t at = hash & (m_Starts.size() - 1);
    while (m_Starts[at].m_First != k_None && !isHere(m_Starts[at]))
        at = (at + 1) & (m_Starts.size() - 1);
    return at;
}

/// Slots that were left are free again in the new table.
void ArcRing::MakeRoomForStarts(size_t count) {
    const size_t slots = std::bit_ceil(std::max(count * k_FullDenominator / k_FullNumerator + 1, k_FewestSlots));
    std::pmr::vector<Start> old(slots, &m_Memory);
    old.swap(m_Starts);
    m_UsedSlots = 0;
    for (const Start& start : old) {
        if (start.m_First == k_None || start.m_First == k_Left)
            continue;
        m_Starts[FindSlot(m_Nodes[start.m_First].m_Arc.GetStart(), start.m_Hash)] = start;
        ++m_UsedSlots;
    }
}

void ArcRing::ReplaceCorner(Index index, const geom::Arc& before, const geom::Arc& rounding, const geom::Arc* after) {
    Expect(rounding.GetStart());
    if (after != nullptr)
        Expect(after->GetStart());
    const Index previous = GetPrevious(index);
    Index middle = index;
    if (previous == index) {
        m_Nodes[index].m_Arc = before;
        middle = InsertBehind(index, rounding);
    } else {
        if (index == m_First)
            MoveLastToFront();
        m_Nodes[previous].m_Arc = before;
        ReplaceArc(index, rounding);
    }
    if (after != nullptr)
        InsertBehind(middle, *after);
}

void ArcRing::ReplaceArc(Index index, const geom::Arc& arc) {
    LeaveStart(index);
    m_Nodes[index].m_Arc = arc;
    EnterStart(index);
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
    const geom::Point start = m_Nodes[index].m_Arc.GetStart();
    if (start != start)
        return;
    if (m_UsedSlots * k_FullDenominator >= m_Starts.size() * k_FullNumerator)
        MakeRoomForStarts(2 * m_Nodes.size());
    const uint32_t hash = HashOf(start);
    Start& slot = m_Starts[FindSlot(start, hash)];
    if (slot.m_First == k_None) {
        slot.m_Hash = hash;
        ++m_UsedSlots;
    }
    Index* link = &slot.m_First;
    while (*link != k_None && m_Nodes[*link].m_Order < m_Nodes[index].m_Order)
        link = &m_Nodes[*link].m_NextOfSameStart;
    m_Nodes[index].m_NextOfSameStart = *link;
    *link = index;
}

void ArcRing::LeaveStart(Index index) {
    const geom::Point start = m_Nodes[index].m_Arc.GetStart();
    if (start != start)
        return;
    Start& slot = m_Starts[FindSlot(start, HashOf(start))];
    Index* link = &slot.m_First;
    while (*link != index)
        link = &m_Nodes[*link].m_NextOfSameStart;
    *link = m_Nodes[index].m_NextOfSameStart;
    if (slot.m_First == k_None)
        slot.m_First = k_Left;
}
