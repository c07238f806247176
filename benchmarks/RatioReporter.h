// SPDX-License-Identifier: MIT
#pragma once

#include "benchmarks/FigureTable.h"

#include <benchmark/benchmark.h>
#include <vector>

namespace Orvane::Benchmarks {

/// Prints each run as it ends, and after the last one the machine and the table of all figures.
class RatioReporter : public benchmark::ConsoleReporter
{
public:
    /// table: gets the times. Not owned, outlives this object.
    explicit RatioReporter(FigureTable& table) : m_table(table) { }

    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

    /// True when a run has ended with an error.
    bool HasFailed() const { return m_hasFailed; }

private:
    void Take(const Run& run);

    FigureTable& m_table;
    bool m_hasFailed = false;
};

} // namespace Orvane::Benchmarks
