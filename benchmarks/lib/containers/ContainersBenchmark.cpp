// Balanced trees of 10 to 1,000,000 elements beside a plain vector of the same elements.

#include "benchmarks/Beside.h"
#include "lib/containers/RangeAvlTree.h"
#include "tests/lib/containers/Interval.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <random>
#include <vector>

namespace {

using Tree = base::AvlTree<int>;
using RangeTree = base::RangeAvlTree<Item, Interval>;

std::vector<int> MakeNumbers(std::int64_t count) {
    std::vector<int> numbers(static_cast<std::size_t>(count));
    for (std::size_t i = 0; i < numbers.size(); ++i)
        numbers[i] = static_cast<int>(i);
    return numbers;
}

/// Items side by side, each three wide, so that neighbours overlap.
std::vector<Item> MakeItems(std::int64_t count) {
    std::vector<Item> items;
    for (int i = 0; i < static_cast<int>(count); ++i)
        items.push_back({i, {2 * i, 2 * i + 3}});
    return items;
}

void BM_TreeBuild(benchmark::State& state) {
    const std::vector<int> numbers = MakeNumbers(state.range(0));
    RunBeside(
        state,
        [&] {
            const Tree tree(numbers);
            benchmark::DoNotOptimize(tree.GetSize());
        },
        [&] {
            std::vector<int> copy(numbers);
            benchmark::DoNotOptimize(copy.data());
        });
}

void BM_TreeInsertAtEnd(benchmark::State& state) {
    const std::vector<int> numbers = MakeNumbers(state.range(0));
    RunBeside(
        state,
        [&] {
            Tree tree;
            for (const int number : numbers)
                tree.InsertBefore(tree.end(), number);
            benchmark::DoNotOptimize(tree.GetSize());
        },
        [&] {
            std::vector<int> list;
            for (const int number : numbers)
                list.push_back(number);
            benchmark::DoNotOptimize(list.data());
        });
}

void BM_TreeWalk(benchmark::State& state) {
    const std::vector<int> numbers = MakeNumbers(state.range(0));
    const Tree tree(numbers);
    RunBeside(
        state,
        [&] {
            std::int64_t sum = 0;
            for (Tree::Iterator it = tree.begin(); !(it == tree.end()); ++it)
                sum += *it;
            benchmark::DoNotOptimize(sum);
        },
        [&] {
            std::int64_t sum = 0;
            for (const int number : numbers)
                sum += number;
            benchmark::DoNotOptimize(sum);
        });
}

/// A walk that asks for the items near one place, over a look at every item.
void BM_RangeTreeFilteredWalk(benchmark::State& state) {
    const std::vector<Item> items = MakeItems(state.range(0));
    const RangeTree tree(items, true);
    const int middle = static_cast<int>(state.range(0));
    const Interval filter{middle, middle + 4};
    RunBeside(
        state,
        [&] {
            std::int64_t sum = 0;
            for (auto it = tree.begin(base::k_SkipOutside, filter); !(it == tree.end()); ++it)
                sum += it->m_Id;
            benchmark::DoNotOptimize(sum);
        },
        [&] {
            std::int64_t sum = 0;
            for (const Item& item : items)
                sum += item.m_Place.Intersects(filter) ? item.m_Id : 0;
            benchmark::DoNotOptimize(sum);
        });
}

/// Items in no order, each put where the bounds stay tight.
void BM_RangeTreeInsert(benchmark::State& state) {
    std::vector<Item> items = MakeItems(state.range(0));
    std::shuffle(items.begin(), items.end(), std::mt19937(1)); // the same order in each run
    RunBeside(
        state,
        [&] {
            RangeTree tree;
            for (const Item& item : items)
                tree.Insert(item);
            benchmark::DoNotOptimize(tree.GetSize());
        },
        [&] {
            std::vector<Item> list;
            for (const Item& item : items)
                list.push_back(item);
            benchmark::DoNotOptimize(list.data());
        });
}

void SetSizes(benchmark::internal::Benchmark* benchmark) {
    benchmark->RangeMultiplier(10)->Range(10, 1000000)->UseRealTime();
}

BENCHMARK(BM_TreeBuild)->Apply(SetSizes);
BENCHMARK(BM_TreeInsertAtEnd)->Apply(SetSizes);
BENCHMARK(BM_TreeWalk)->Apply(SetSizes);
BENCHMARK(BM_RangeTreeFilteredWalk)->Apply(SetSizes);
BENCHMARK(BM_RangeTreeInsert)->Apply(SetSizes);

} // namespace

BENCHMARK_MAIN();
