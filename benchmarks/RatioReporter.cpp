// SPDX-License-Identifier: MIT
#include "benchmarks/RatioReporter.h"

#include "benchmarks/Machine.h"

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
    m_hasFailed = m_hasFailed || run.error_occurred;
    const std::vector<std::string> level = SplitAtSlash(run.run_name.function_name);
    const std::vector<std::string> size = SplitAtSlash(run.run_name.args);
    if (run.run_type != Run::RT_Iteration || run.error_occurred || level.size() != 2 || size.size() != 2)
        return;
    m_table.Add(
        level[0], level[1], {std::stoi(size[0]), std::stoi(size[1])},
        {run.GetAdjustedRealTime(), run.GetAdjustedCPUTime()});
}

void RatioReporter::Finalize()
{
    ConsoleReporter::Finalize();
    std::printf("\n%s%s", MachineDescription().c_str(), m_table.Text().c_str());
    std::fflush(stdout);
}

} // namespace Orvane::Benchmarks
