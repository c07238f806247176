// SPDX-License-Identifier: MIT
#include "benchmarks/Measurement.h"

#include "benchmarks/Machine.h"

#include <benchmark/benchmark.h>
#include <memory>
#include <set>

namespace Orvane::Benchmarks {

namespace {

constexpr int LeastForBytesEach = 10000; // of fewer, a page of memory more or less would decide
constexpr int Million = 1000000;
constexpr int RepetitionsOfMillion = 3;

struct Announced {
    Measured measured;
    bool isLarge;
};

// Constants of other files add to it, so it is made at the first use.
std::vector<Announced>& AllAnnounced()
{
    static std::vector<Announced> all;
    return all;
}

void Do(const Work& work)
{
    if (work.before)
        work.before();
    work.act();
}

// In a pass of its own, because giving memory back to the system makes the next run slower.
MemoryUse MemoryOf(const Work& work, const JobSize& size)
{
    if (work.before)
        work.before();
    GiveMemoryBack();
    ResetPeakMemory();
    const double before = PeakMemoryInMegabytes();
    work.act();
    const double peak = PeakMemoryInMegabytes();
    const bool isPrecise = size.Worked() >= LeastForBytesEach;
    return {peak, isPrecise ? (peak - before) * 1024 * 1024 / size.Worked() : 0};
}

void MeasureTime(benchmark::State& state, const Work& work)
{
    for ([[maybe_unused]] auto _ : state) {
        if (work.before) {
            state.PauseTiming();
            work.before();
            state.ResumeTiming();
        }
        work.act();
    }
}

/// Measures one job at one level; memory only once, and not for what mostly waits.
class Measurer
{
public:
    Measurer(const Measured& measured, const Choice& choice, FigureTable& table)
        : m_measured(measured), m_choice(choice), m_table(table)
    {
    }

    void operator()(benchmark::State& state)
    {
        const JobSize size{int(state.range(0)), int(state.range(1))};
        const Work work = m_measured.makeWork(size);
        if (!m_choice.isSmoke)
            Do(work); // prepares statements and caches pages, equally at all levels
        if (!m_measured.isOnTheClock && m_withMemory->insert(size).second)
            m_table.SetMemory(m_measured.job, m_measured.level, size, MemoryOf(work, size));
        MeasureTime(state, work);
    }

private:
    Measured m_measured;
    Choice m_choice;
    FigureTable& m_table;
    std::shared_ptr<std::set<JobSize>> m_withMemory = std::make_shared<std::set<JobSize>>();
};

void Register(
    const Measured& measured, const std::vector<JobSize>& sizes, const Choice& choice, FigureTable& table)
{
    const std::string name = measured.job + '/' + measured.level;
    for (const JobSize& size : sizes) {
        auto* registered = benchmark::RegisterBenchmark(name.c_str(), Measurer(measured, choice, table));
        registered->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->Args({size.layers, size.members});
        if (measured.isOnTheClock)
            registered->UseRealTime();
        if (choice.isSmoke)
            registered->Iterations(1)->Repetitions(1);
        else if (size.layers >= Million)
            registered->Iterations(1)->Repetitions(RepetitionsOfMillion);
    }
}

} // namespace

Announcement::Announcement(Measured measured, bool isLarge)
{
    AllAnnounced().push_back({std::move(measured), isLarge});
}

void RegisterAnnounced(const Choice& choice, FigureTable& table)
{
    for (const auto& [measured, isLarge] : AllAnnounced()) {
        if (isLarge && !choice.isMillion)
            continue;
        if (choice.isSmoke)
            Register(measured, {measured.sizes.front()}, choice, table);
        else
            Register(measured, measured.sizes, choice, table);
    }
}

} // namespace Orvane::Benchmarks
