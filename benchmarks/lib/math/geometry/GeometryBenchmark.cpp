// The classes of the kernel over shapes with a name, and chains of 10 to 1,000,000 arcs beside a plain vector of arcs.

#include "benchmarks/Beside.h"
#include "lib/math/geometry/CircleSlice.h"
#include "lib/math/geometry/Polygon.h"
#include "lib/math/geometry/Rotation.h"
#include "lib/math/geometry/RoundedArcs.h"
#include "lib/math/geometry/Transformation.h"
#include "tests/GeometryFixtures.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace {

using namespace geom;
using fixtures::CircumferenceOf;
using fixtures::LineOf;
using fixtures::PointOf;

/// Registers `operation` under its name. The shape is hidden from the optimiser, and so is what comes of it.
template <class TShape, class TOperation>
void Measure(const std::string& name, const TShape& shape, const TOperation& operation) {
    benchmark::RegisterBenchmark(name.c_str(), [shape, operation](benchmark::State& state) {
        TShape hidden = shape;
        for (auto _ : state) {
            benchmark::DoNotOptimize(hidden);
            benchmark::DoNotOptimize(operation(hidden));
        }
    });
}

void MeasureStraightShapes() {
    const Segment segment = fixtures::k_SlopedSegment;
    const Box box = fixtures::k_TallBox;
    const Transformation turn(k_Angle_45, PointOf("7,-3"));
    Measure("Point/GetTransformed", PointOf("1,2"), [turn](Point point) { return point.GetTransformed(turn); });
    Measure("Vector/GetAbs/Sloped", Vector(3, 4), [](Vector vector) { return vector.GetAbs(); });
    Measure("Vector/GetAbs/AlongAxis", Vector(3, 0), [](Vector vector) { return vector.GetAbs(); });
    Measure("Vector/GetAzimuth", Vector(3, 4), [](Vector vector) { return vector.GetAzimuth(); });
    Measure("Segment/GetDistanceSquareTo", segment, [](const Segment& hidden) {
        return hidden.GetDistanceSquareTo({4, 1});
    });
    Measure("Segment/IntersectsWith/Crossing", segment, [](const Segment& hidden) {
        return hidden.IntersectsWith({{0, 3}, {3, 1}}, 0);
    });
    Measure("Segment/IntersectsWith/Apart", segment, [](const Segment& hidden) {
        return hidden.IntersectsWith({{10, 3}, {13, 1}}, 0);
    });
    Measure("Line/FromSegment", segment, [](const Segment& hidden) { return Line(hidden); });
    Measure("Line/GetIntersection", LineOf("0,0 3,4"),
        [other = LineOf("0,3 3,1")](const Line& line) { return line.GetIntersection(other); });
    Measure("Box/Intersects", box, [](const Box& hidden) { return hidden.Intersects({5, 5, 30, 30}); });
    Measure("Box/GetClipped/Across", box, [](const Box& hidden) { return hidden.GetClipped({{-5, -3}, {20, 30}}, 0); });
    Measure("Circumference/GetIntersections/Segment", CircumferenceOf("0,0 r5"), [](const Circumference& circle) {
        return circle.GetIntersections(Segment({-9, 1}, {9, 3}), 0);
    });
    Measure("Circumference/GetIntersections/Circumference", CircumferenceOf("0,0 r5"),
        [other = CircumferenceOf("4,3 r4")](const Circumference& circle) { return circle.GetIntersections(other, 0); });
    Measure("Transformation/GetComposed", turn,
        [](const Transformation& hidden) { return hidden.GetComposed(Transformation(k_Angle_30)); });
}

void MeasureArcs() {
    for (const fixtures::NamedArc& named : fixtures::CanonicalArcs()) {
        const Arc arc = named.m_Arc;
        const std::string name = named.m_Name;
        Measure("Arc/GetBox/" + name, arc, [](const Arc& hidden) { return hidden.GetBox(); });
        Measure("Arc/GetMidPoint/" + name, arc, [](const Arc& hidden) { return hidden.GetMidPoint(); });
        if (arc.IsSegment(0))
            continue;
        Measure("Arc/GetCircumference/" + name, arc, [](const Arc& hidden) { return hidden.GetCircumference(); });
        Measure("Arc/GetSweep/" + name, arc, [](const Arc& hidden) { return hidden.GetSweep(); });
        Measure("CircleSlice/GetArea/" + name, arc, [](const Arc& hidden) { return CircleSlice(hidden).GetArea(); });
    }
    const Arc quarter(Point(0, 1), Point(1, 0), 1 - std::sqrt(0.5));
    Measure("Arc/GetSubArc/Quarter", quarter, [](const Arc& arc) { return arc.GetSubArc(0.25, 0.5); });
    Measure("Arc/IntersectsBox/Quarter", quarter, [](const Arc& arc) {
        return arc.IntersectsBox({0.5, 0.5, 2, 2}, 0);
    });
    Measure("Arc/IntersectsSegment/Quarter", quarter, [](const Arc& arc) {
        return arc.IntersectsSegment({{0, 0}, {1, 1}}, 0);
    });
}

void MeasureOutlines() {
    Measure("Polygon/FromBox", fixtures::k_SquareBox, [](const Box& box) { return Polygon(box, 1); });
    Measure(
        "Polygon/FromSegment", fixtures::k_SlopedSegment, [](const Segment& segment) { return Polygon(segment, 1); });
    const Polygon obround(fixtures::k_SlopedSegment, 1);
    Measure("Polygon/GetArea/Obround", obround, [](const Polygon& polygon) { return polygon.GetArea(); });
    Measure("Polygon/GetRotated/Obround", obround, [](const Polygon& polygon) {
        return polygon.GetRotated(Rotation({1, 2}, k_Angle_45));
    });
    Measure("GetRoundedArcs/Square", fixtures::ArcsOf("0,0 10,0 10,10 0,10 0,0"),
        [](const std::vector<Arc>& arcs) { return GetRoundedArcs(arcs, 1, 0.5, k_Closed); });
}

/// A band that waves to the right: every second piece is an arc, and every piece advances by one.
std::vector<Arc> MakeWave(std::int64_t count) {
    std::vector<Arc> arcs;
    arcs.reserve(std::size_t(count));
    for (std::int64_t i = 0; i < count; ++i) {
        const double x = double(i);
        arcs.emplace_back(Point(x, double(i % 7)), Point(x + 1, double((i + 1) % 7)), i % 2 == 0 ? 0 : 0.25);
    }
    return arcs;
}

template <class TIterator, class TEnd>
double SumHeights(TIterator it, const TEnd& end) {
    double sum = 0;
    for (; !(it == end); ++it)
        sum += double((*it).GetHeight());
    return sum;
}

/// What a walk without a tree has to do: look at the box of every arc.
double SumHeightsIn(const std::vector<Arc>& arcs, const Box& filter) {
    double sum = 0;
    for (const Arc& arc : arcs)
        if (arc.GetBox().Intersects(filter))
            sum += double(arc.GetHeight());
    return sum;
}

void BM_ChainBuild(benchmark::State& state) {
    const std::vector<Arc> arcs = MakeWave(state.range(0));
    RunBeside(
        state, [&] { benchmark::DoNotOptimize(PolyArc(k_Open, arcs)); },
        [&] {
            std::vector<Arc> copy(arcs);
            benchmark::DoNotOptimize(copy.data());
        });
}

void BM_ChainCopy(benchmark::State& state) {
    const std::vector<Arc> arcs = MakeWave(state.range(0));
    const PolyArc chain(k_Open, arcs);
    constexpr int k_Repeated = 1000;
    RunBeside(
        state,
        [&] {
            PolyArc copy(chain);
            benchmark::DoNotOptimize(copy);
        },
        [&] {
            std::vector<Arc> copy(arcs);
            benchmark::DoNotOptimize(copy.data());
        },
        k_Repeated);
}

void BM_ChainWalk(benchmark::State& state) {
    const std::vector<Arc> arcs = MakeWave(state.range(0));
    const PolyArc chain(k_Open, arcs);
    RunBeside(
        state, [&] { benchmark::DoNotOptimize(SumHeights(chain.begin(), chain.end())); },
        [&] { benchmark::DoNotOptimize(SumHeights(arcs.begin(), arcs.end())); });
}

/// A walk that asks for the arcs near one place in the middle.
void BM_ChainFilteredWalk(benchmark::State& state) {
    const std::vector<Arc> arcs = MakeWave(state.range(0));
    const PolyArc chain(k_Open, arcs);
    const Box filter(Point(double(state.range(0)) / 2, 3), 4);
    RunBeside(
        state, [&] { benchmark::DoNotOptimize(SumHeights(chain.begin(base::k_SkipOutside, filter), chain.end())); },
        [&] { benchmark::DoNotOptimize(SumHeightsIn(arcs, filter)); });
}

void SetSizes(benchmark::internal::Benchmark* benchmark) {
    benchmark->RangeMultiplier(10)->Range(10, 1000000)->UseRealTime();
}

BENCHMARK(BM_ChainBuild)->Apply(SetSizes);
BENCHMARK(BM_ChainCopy)->Apply(SetSizes);
BENCHMARK(BM_ChainWalk)->Apply(SetSizes);
BENCHMARK(BM_ChainFilteredWalk)->Apply(SetSizes);

} // namespace

int main(int argc, char** argv) {
    MeasureStraightShapes();
    MeasureArcs();
    MeasureOutlines();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
