// SPDX-License-Identifier: MIT
#include "benchmarks/RatioReporter.h"

#include "benchmarks/Machine.h"

#include <algorithm>
#include <cstdio>

namespace Orvane::Benchmarks {

namespace {

std::vector<std::string> SplitAtSlash(const std::string& text)
{
    std::vector<std::string> parts;
    size_t begin = 0;
    for (size_t end = text.find('/'); end != std::string::npos; end = text.find('/', begin)) {
        parts.push_back(text.substr(begin, end - begin));
        begin = end + 1;
    }
    parts.push_back(text.substr(begin));
    return parts;
}

} // namespace

void RatioReporter::ReportRuns(const std::vector<Run>& runs)
{
    for (const Run& run : runs)
        Take(run);
    ConsoleReporter::ReportRuns(runs);
}

void RatioReporter::Take(const Run& run)
{
    const std::vector<std::string> level = SplitAtSlash(run.run_name.function_name);
    const std::vector<std::string> size = SplitAtSlash(run.run_name.args);
    if (run.run_type != Run::RT_Iteration || run.error_occurred || level.size() != 2 || size.size() != 2)
        return;
    const Case measured{level[0], {std::stoi(size[0]), std::stoi(size[1])}};
    const auto [place, isNew] = m_figures[measured].try_emplace(level[1]);
    Figure& figure = place->second;
    const bool isOnTheClock = !run.run_name.time_type.empty();
    const double milliseconds = isOnTheClock ? run.GetAdjustedRealTime() : run.GetAdjustedCPUTime();
    figure.milliseconds = isNew ? milliseconds : std::min(figure.milliseconds, milliseconds);
    if (const auto peak = run.counters.find("peak_MB"); peak != run.counters.end())
        figure.peakMegabytes = std::max(figure.peakMegabytes, double(peak->second));
}

void RatioReporter::Finalize()
{
    ConsoleReporter::Finalize();
    std::printf("\n%s", MachineDescription().c_str());
    std::printf(
        "\nProcessor time against the bare SQLite loop over the same file; for servers, time on the clock\n"
        "against libpq alone (least of all repetitions)\n");
    std::printf("%-18s %8s %8s %10s  levels\n", "job", "layers", "members", "bare");
    for (const auto& [measured, levels] : m_figures)
        PrintCase(measured, levels);
    std::fflush(stdout);
}

void RatioReporter::PrintCase(const Case& measured, const std::map<std::string, Figure>& levels)
{
    const auto bare = levels.find("bare");
    if (bare == levels.end())
        return;
    const auto& [layers, members] = measured.second;
    std::printf("%-18s %8d %8d %7.2f ms", measured.first.c_str(), layers, members, bare->second.milliseconds);
    for (const auto& [level, figure] : levels) {
        if (level == "bare")
            continue;
        std::printf(
            "  %s %7.2f ms %5.2f x %4.0f MB", level.c_str(), figure.milliseconds,
            figure.milliseconds / bare->second.milliseconds, figure.peakMegabytes);
    }
    std::printf("\n");
}

} // namespace Orvane::Benchmarks
