// SPDX-License-Identifier: MIT
#include "benchmarks/Measurement.h"

#include "benchmarks/BenchmarkMap.h"
#include "benchmarks/Machine.h"

#include <benchmark/benchmark.h>
#include <string>

namespace Orvane::Benchmarks {

namespace {

std::vector<JobSize> SizesOf(Job job)
{
    std::vector<JobSize> sizes;
    for (const int layers : {1000, 10000, 100000}) {
        if (job != Job::SelectGroup && job != Job::ApplyToGroup) {
            sizes.push_back({layers, 0});
            continue;
        }
        for (const int members : {50, 1000, layers}) {
            if (sizes.empty() || sizes.back().layers != layers || sizes.back().members != members)
                sizes.push_back({layers, members});
        }
    }
    return sizes;
}

void Measure(benchmark::State& state, const MakeRun& makeRun)
{
    const JobSize size{int(state.range(0)), int(state.range(1))};
    const Run run = makeRun(BenchmarkMap(size.layers), size);
    run(); // prepares statements and caches pages, equally at all levels
    ResetPeakMemory();
    for ([[maybe_unused]] auto _ : state)
        run();
    state.counters["peak_MB"] = PeakMemoryInMegabytes();
}

} // namespace

const char* NameOf(Job job)
{
    switch (job) {
    case Job::OpenFlatList:
        return "Open flat list";
    case Job::OpenGroupedTree:
        return "Open grouped tree";
    case Job::SelectGroup:
        return "Select group";
    case Job::ApplyToGroup:
        return "Apply to group";
    case Job::ScrollFlatList:
        return "Scroll flat list";
    case Job::FindInFlatList:
        return "Find in flat list";
    case Job::FindInGroupedTree:
        return "Find in grouped tree";
    }
    return "";
}

Registration::Registration(Job job, const char* level, const MakeRun& makeRun)
{
    const std::string name = std::string(NameOf(job)) + "/" + level;
    auto* measured = benchmark::RegisterBenchmark(
        name.c_str(), [makeRun](benchmark::State& state) { Measure(state, makeRun); });
    measured->Unit(benchmark::kMillisecond);
    for (const JobSize& size : SizesOf(job))
        measured->Args({size.layers, size.members});
}

} // namespace Orvane::Benchmarks
