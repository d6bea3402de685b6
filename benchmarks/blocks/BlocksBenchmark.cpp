// Reading nested lists into a tree and writing a tree, each beside its floor, which is measured in the same loop: the
// counter "ratio" is our time over the floor's, and holds on a noisy machine too.

#include "benchmarks/BoardGenerator.h"
#include "benchmarks/ChildProcess.h"
#include "benchmarks/Floors.h"
#include "blocks/CAbstract_ostream.h"
#include "blocks/FileText.h"
#include "neutral/ZukenConverter.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>

namespace {

using Clock = std::chrono::steady_clock;

constexpr double k_Megabyte = 1e6;

/// The files of a generated board, which go with the object.
class BoardFiles {
public:
    explicit BoardFiles(int64_t megabytes) : m_Folder(std::filesystem::temp_directory_path() / "qrl-benchmark") {
        std::filesystem::create_directories(m_Folder);
        BoardGenerator generator({.m_Megabytes = static_cast<double>(megabytes)});
        Write(".pcf", [&](const auto& sink) { generator.WriteBoardFile(sink); });
        Write(".ftf", [&](const auto& sink) { generator.WriteFootprintFile(sink); });
    }
    ~BoardFiles() { std::filesystem::remove_all(m_Folder); }
    BoardFiles(const BoardFiles&) = delete;
    BoardFiles& operator=(const BoardFiles&) = delete;

    LongFileName GetName(const std::string& extension) const {
        return LongFileName(AString(std::string_view((m_Folder / ("board" + extension)).native())));
    }
    double GetSize() const { return static_cast<double>(std::filesystem::file_size(m_Folder / "board.pcf")); }

private:
    template <class WriteText>
    void Write(const std::string& extension, const WriteText& writeText) {
        std::ofstream file(m_Folder / ("board" + extension), std::ios::binary);
        writeText(
            [&file](std::string_view text) { file.write(text.data(), static_cast<std::streamsize>(text.size())); });
    }

    std::filesystem::path m_Folder;
};

/// Times something on the side and adds it up.
class StopWatch {
public:
    template <class Work>
    double Time(const Work& work) {
        const Clock::time_point start = Clock::now();
        work();
        const double seconds = std::chrono::duration<double>(Clock::now() - start).count();
        m_Seconds += seconds;
        return seconds;
    }
    double GetSeconds() const { return m_Seconds; }

private:
    double m_Seconds = 0.0;
};

void ReadTree(const LongFileName& name, io::CBlock& block) { ZukenConverter::ReadFile(name, block); }

/// A file of the given megabytes into a tree, opening and reading it included, over a tokenizer that only counts.
void BM_ReadTree(benchmark::State& state) {
    const BoardFiles files(state.range(0));
    io::FileText text;
    text.Read(files.GetName(".pcf").FilePath().QRL_ANSI());
    const std::string_view view(text.GetBegin(), static_cast<size_t>(text.GetEnd() - text.GetBegin()));
    size_t tokens = 0;
    StopWatch ours;
    StopWatch floor;
    for (auto _ : state) {
        floor.Time([&] { benchmark::DoNotOptimize(tokens = CountTokens(view)); });
        io::CBlock block("pcbData");
        state.SetIterationTime(ours.Time([&] { ReadTree(files.GetName(".pcf"), block); }));
    }
    const double runs = static_cast<double>(state.iterations());
    state.counters["MB/s"] = files.GetSize() / k_Megabyte * runs / ours.GetSeconds();
    state.counters["ns/token"] = ours.GetSeconds() * 1e9 / runs / static_cast<double>(tokens);
    state.counters["floor_ns/token"] = floor.GetSeconds() * 1e9 / runs / static_cast<double>(tokens);
    state.counters["ratio"] = ours.GetSeconds() / floor.GetSeconds();
    state.counters["peak_x"] = MeasurePeakMemory([&] {
        io::CBlock block("pcbData");
        ReadTree(files.GetName(".pcf"), block);
    }) / files.GetSize();
}
BENCHMARK(BM_ReadTree)->Arg(10)->Arg(100)->UseManualTime()->Unit(benchmark::kMillisecond);

/// The neutral form of traces: each vertex has two coordinates of the file's grid, widths and words.
io::CBlock MakeLayoutNets(int64_t traces, std::vector<double>& numbers) {
    constexpr double k_Scale = 1e-5;
    io::CBlock nets("LayoutNets");
    for (int64_t i = 0; i < traces; ++i) {
        io::CBlock_func path("Path");
        path << static_cast<int>(i);
        for (int64_t k = 0; k < 5; ++k) {
            const double x = static_cast<double>((i * 104729 + k * 1299709) % 35000000) * k_Scale;
            const double y = static_cast<double>((i * 611953 + k * 15485863) % 35000000) * k_Scale;
            io::CBlock_func vertex("Vertex");
            vertex << x << y << 0.12 << 0.12 << "Round"
                   << "Radiallymitered" << 0.0;
            numbers.insert(numbers.end(), {x, y, 0.12, 0.12, 0.0});
            path << vertex;
        }
        io::CBlock_func graphics("Graphics");
        graphics << "Conductive_1" << path;
        nets << graphics;
    }
    return nets;
}

/// Counts what is written and drops it.
class CountingStream : public io::CAbstract_ostream {
public:
    void Put(std::string_view text) override { m_Size += text.size(); }
    size_t GetSize() const { return m_Size; }

private:
    size_t m_Size = 0;
};

/// A tree of the given number of traces as text in memory, over `to_chars` of its doubles.
void BM_WriteTree(benchmark::State& state) {
    std::vector<double> numbers;
    const io::CBlock nets = MakeLayoutNets(state.range(0), numbers);
    CountingStream stream;
    StopWatch ours;
    StopWatch floor;
    for (auto _ : state) {
        floor.Time([&] { benchmark::DoNotOptimize(PrintNumbers(numbers)); });
        state.SetIterationTime(ours.Time([&] { nets.write(stream); }));
    }
    state.counters["MB/s"] = static_cast<double>(stream.GetSize()) / k_Megabyte / ours.GetSeconds();
    state.counters["ratio"] = ours.GetSeconds() / floor.GetSeconds();
}
BENCHMARK(BM_WriteTree)->Arg(20000)->Arg(200000)->UseManualTime()->Unit(benchmark::kMillisecond);

/// A whole conversion of a board of the given megabytes, output included.
void BM_WholeRun(benchmark::State& state) {
    const BoardFiles files(state.range(0));
    const auto run = [&files] {
        ZukenConverter(files.GetName(".ftf"), files.GetName(".pcf"), files.GetName(".txt"), files.GetName(".qrl"))
            .Run();
    };
    for (auto _ : state)
        run();
    state.counters["MB/s"] =
        benchmark::Counter(files.GetSize() / k_Megabyte, benchmark::Counter::kIsIterationInvariantRate);
}
BENCHMARK(BM_WholeRun)->Arg(10)->Arg(100)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
