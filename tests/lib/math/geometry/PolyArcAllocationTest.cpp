#include "lib/math/geometry/AvlPolyArcImplementation.h"
#include "lib/math/geometry/Exception.h"
#include "lib/math/geometry/Polygon.h"
#include "tests/GeometryFixtures.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdlib>
#include <new>
#include <stdexcept>
#include <vector>

namespace {

long g_Allocations = 0;
/// Called once, when the implementation of a chain is allocated, if it isn't null.
void (*g_OnImplementation)() = nullptr;

} // namespace

// Counts what is allocated, and lets a test throw from inside the constructor of a chain. In a program of its own.
void* operator new(std::size_t size) {
    ++g_Allocations;
    if (g_OnImplementation && size == sizeof(geom::AvlPolyArcImplementation)) {
        auto* action = g_OnImplementation;
        g_OnImplementation = nullptr;
        action();
    }
    if (void* memory = std::malloc(size))
        return memory;
    throw std::bad_alloc();
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    ++g_Allocations;
    return std::malloc(size);
}
// Inlined into a caller of new, the pair of new and free looks mismatched to the compiler.
[[gnu::noinline]] void operator delete(void* memory) noexcept { std::free(memory); }
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace {

using namespace geom;
using fixtures::ArcsOf;
using fixtures::k_RightwardSegment;

TEST(PolyArcAllocationTest, CopyAllocatesNothing) {
    const PolyArc original(k_Closed, ArcsOf("0,0 1,0 1,1 0,0"));
    const PolyArc::Iterator end = original.end();
    PolyArc assigned;
    const long before = g_Allocations;
    const PolyArc copy(original); // NOLINT(performance-unnecessary-copy-initialization)
    assigned = copy;
    const bool isSameEnd = assigned.end() == end;
    EXPECT_EQ(g_Allocations, before);
    EXPECT_TRUE(isSameEnd);
}

TEST(PolyArcAllocationTest, LongChainTakesItsNodesInFewBlocks) {
    std::vector<Arc> arcs;
    for (int i = 0; i < 10000; ++i)
        arcs.emplace_back(Segment({1.0 * i, 0}, {1.0 * (i + 1), 0}));
    const long before = g_Allocations;
    const PolyArc chain(k_Open, arcs);
    // The implementation, the count and for each of 12 blocks, 4 + 8 + ... + 8192 slots, its header and its array.
    EXPECT_EQ(g_Allocations - before, 2 + 2 * 12);
}

TEST(PolyArcAllocationTest, TrackWhoseOutlineCannotBeMadeIsTheBareSegment) {
    g_OnImplementation = [] { throw Exception(); };
    const Polygon track = k_RightwardSegment.GetPolygon(2, false, 2, false);
    EXPECT_EQ(g_OnImplementation, nullptr);
    EXPECT_EQ(track.GetArcs(), ArcsOf("0,0 10,0 0,0"));
}

TEST(PolyArcAllocationTest, OtherExceptionsPassOnFromTheOutlineOfATrack) {
    g_OnImplementation = [] { throw std::runtime_error("other"); };
    EXPECT_THROW(k_RightwardSegment.GetPolygon(2, false, 2, false), std::runtime_error);
}

} // namespace
