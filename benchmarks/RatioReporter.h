// SPDX-License-Identifier: MIT
#pragma once

#include <benchmark/benchmark.h>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace Orvane::Benchmarks {

/// Prints each run as it ends, and after the last one a table that compares each level with the bare loop.
///
/// Times are processor times, the minimum of all repetitions: other programs on the machine slow down both
/// sides unevenly, and they disturb the minimum least.
class RatioReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

private:
    struct Figure {
        double milliseconds = 0;
        double peakMegabytes = 0;
    };
    using Case = std::pair<std::string, std::pair<int, int>>; // job, layers and members

    void Take(const Run& run);
    void PrintCase(const Case& measured, const std::map<std::string, Figure>& levels);

    std::map<Case, std::map<std::string, Figure>> m_figures;
};

} // namespace Orvane::Benchmarks
