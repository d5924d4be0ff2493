// Times whole exports from a model in memory to a finished file, beside one plain sequential write of the
// same bytes in the same round. Files lie in the current folder's file system, and in the page cache.

#include "BenchModels.h"
#include "ProcessMemory.h"

#include "embedded/EmbeddedHost.h"
#include "export/OrvaneExporter.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <stdexcept>
#include <string>
#include <unistd.h>
#include <utility>
#include <vector>

namespace orvane {
namespace {

using Clock = std::chrono::steady_clock;

constexpr const char* kTarget = "orvane-bench/scene.glb";
constexpr const char* kPlainFile = "orvane-bench/plain";

double secondsSince(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

double median(std::vector<double> values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
}

/// Exports once, from the open host to the finished file.
double exportSeconds(HostApplication& host, bool withAnimations) {
    std::filesystem::remove(kTarget);
    COrvaneExporter exporter({.host = host});
    exporter.setRequest({.exportPath = kTarget});
    exporter.setOptions({.exportAnimations = withAnimations ? kSwitchOn : kSwitchOff});
    const auto start = Clock::now();
    exporter.exportActiveDocument();
    const double seconds = secondsSince(start);
    if (exporter.report().writtenFile.empty()) {
        throw std::runtime_error(std::string(exporter.report().firstError()));
    }
    return seconds;
}

/// Writes the target's bytes as another file in one go.
double plainWriteSeconds() {
    std::ifstream file(kTarget, std::ios::binary);
    const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
    std::filesystem::remove(kPlainFile);
    const auto start = Clock::now();
    const int descriptor = open(kPlainFile, O_WRONLY | O_CREAT | O_TRUNC, 0666);
    for (std::size_t done = 0; done < bytes.size();) {
        const ssize_t step = write(descriptor, bytes.data() + done, bytes.size() - done);
        if (step <= 0) {
            throw std::runtime_error("the plain write failed");
        }
        done += static_cast<std::size_t>(step);
    }
    close(descriptor);
    return secondsSince(start);
}

/// Rounds of an export and a plain write in turn. Reports the medians in milliseconds and the median of the
/// rounds' ratios; the memory is the most that an export took beyond what the host held before it.
void runExport(benchmark::State& state, const std::function<Model()>& makeModel) {
    std::filesystem::create_directory("orvane-bench");
    Model model = makeModel();
    const bool withAnimations = !model.documents.front()->motionStudies.empty();
    const HostRef<HostApplication> host = openEmbeddedHost(std::move(model));
    exportSeconds(*host, withAnimations);
    std::vector<double> exports, writes, ratios;
    std::int64_t memory = 0;
    for (auto round : state) {
        (void)round;
        resetPeakMemory();
        const std::int64_t held = residentMemory();
        exports.push_back(exportSeconds(*host, withAnimations));
        memory = std::max(memory, peakMemory() - held);
        writes.push_back(plainWriteSeconds());
        ratios.push_back(exports.back() / writes.back());
        state.SetIterationTime(exports.back());
    }
    state.counters["export_ms"] = 1000 * median(exports);
    state.counters["write_ms"] = 1000 * median(writes);
    state.counters["ratio"] = median(ratios);
    state.counters["file_MB"] = static_cast<double>(std::filesystem::file_size(kTarget)) / 1e6;
    state.counters["memory_MB"] = static_cast<double>(memory) / 1e6;
    std::filesystem::remove_all("orvane-bench");
}

void oneNode(benchmark::State& state) {
    runExport(state, [&] { return singlePart(static_cast<std::size_t>(state.range(0))); });
}

void manyNodes(benchmark::State& state) {
    runExport(state, [&] { return flatAssembly(static_cast<std::size_t>(state.range(0)), 100); });
}

void smallNodes(benchmark::State& state) {
    runExport(state, [&] { return flatAssembly(static_cast<std::size_t>(state.range(0)), 1); });
}

void equalNames(benchmark::State& state) {
    runExport(state, [&] { return flatAssembly(static_cast<std::size_t>(state.range(0)), 1, true); });
}

void nestedNodes(benchmark::State& state) {
    runExport(state, [&] { return nestedAssembly(static_cast<std::size_t>(state.range(0))); });
}

void scenes(benchmark::State& state) {
    runExport(state, [&] { return configuredAssembly(100, static_cast<std::size_t>(state.range(0))); });
}

/// Appearances, then faces.
void paintedFaces(benchmark::State& state) {
    runExport(state, [&] {
        return paintedPart(static_cast<std::size_t>(state.range(0)), static_cast<std::size_t>(state.range(1)),
                           false);
    });
}

void paintedBodies(benchmark::State& state) {
    runExport(state, [&] {
        return paintedPart(static_cast<std::size_t>(state.range(0)), static_cast<std::size_t>(state.range(1)),
                           true);
    });
}

/// Components, then frames.
void movingNodes(benchmark::State& state) {
    runExport(state, [&] {
        return movingAssembly(static_cast<std::size_t>(state.range(0)),
                              static_cast<std::size_t>(state.range(1)), 1);
    });
}

void movingChains(benchmark::State& state) {
    runExport(state, [&] {
        return movingAssembly(static_cast<std::size_t>(state.range(0)),
                              static_cast<std::size_t>(state.range(1)), 200);
    });
}

void motions(benchmark::internal::Benchmark* bench) {
    bench->Args({1'000, 1'000})->Args({1'000, 500})->Args({400, 1'000})->Args({200, 1'000})->Args({200, 500});
}

void colours(benchmark::internal::Benchmark* bench) {
    bench->Args({0, 200'000})
        ->Args({5'000, 100'000})
        ->Args({5'000, 200'000})
        ->Args({10'000, 200'000})
        ->Args({10'000, 400'000});
}

void asRounds(benchmark::internal::Benchmark* bench) {
    bench->Iterations(7)->UseManualTime()->Unit(benchmark::kMillisecond);
}

BENCHMARK(oneNode)->Arg(2'000'000)->Apply(asRounds);
BENCHMARK(manyNodes)->Arg(20'000)->Apply(asRounds);
BENCHMARK(smallNodes)->Arg(50'000)->Arg(100'000)->Arg(200'000)->Apply(asRounds);
BENCHMARK(equalNames)->Arg(50'000)->Arg(100'000)->Arg(200'000)->Apply(asRounds);
BENCHMARK(nestedNodes)->Arg(50'000)->Arg(100'000)->Arg(200'000)->Apply(asRounds);
BENCHMARK(paintedFaces)->Apply(colours)->Apply(asRounds);
BENCHMARK(paintedBodies)->Apply(colours)->Apply(asRounds);
BENCHMARK(movingNodes)->Apply(motions)->Apply(asRounds);
BENCHMARK(movingChains)->Apply(motions)->Apply(asRounds);
BENCHMARK(scenes)->Arg(500)->Arg(1'000)->Arg(2'000)->Apply(asRounds);

} // namespace
} // namespace orvane

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    orvane::warmMemory();
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
