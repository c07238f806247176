// SPDX-License-Identifier: MIT
#pragma once

#include "benchmarks/JobSize.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace Orvane::Benchmarks {

/// The name of the level that all others are compared to.
inline constexpr const char* BareLevel = "bare";

/// What one repetition gave.
struct Sample {
    double wall = 0; ///< milliseconds on the clock
    double processor = 0; ///< milliseconds of all threads of the program
};

/// What a work needed at its peak besides what was there before.
struct MemoryUse {
    double peakMegabytes = 0; ///< of the whole program; 0 if it is not known
    double bytesEach = 0; ///< for each layer of the map, or member of the group; 0 if it is not known
};

/// Collects what was measured and writes it as tables: for each job, size and level the median and the
/// quartiles of both times, the ratio of both to the bare loop of the same job and size, and the memory; then
/// how the time of each level grows with the size.
class FigureTable
{
public:
    void Add(const std::string& job, const std::string& level, const JobSize& size, const Sample& sample);
    void
    SetMemory(const std::string& job, const std::string& level, const JobSize& size, const MemoryUse& memory);

    /// The jobs with a size that nothing can be compared to: "Scroll flat list/100000/0".
    std::vector<std::string> WithoutBareLoop() const;
    bool IsEmpty() const { return m_figures.empty(); }
    /// Both tables, for a terminal of 132 columns.
    std::string Text() const;

private:
    struct Figure {
        std::vector<double> wall;
        std::vector<double> processor;
        MemoryUse memory;
    };
    using Levels = std::map<std::string, Figure>;

    static std::string CaseText(const std::string& job, const JobSize& size, const Levels& levels);
    static std::string LevelText(const std::string& level, const Figure& figure, const Figure* bare);
    std::string GrowthText() const;
    std::optional<double> GrowthOf(const std::string& job, const std::string& level, double* over) const;

    std::map<std::string, std::map<JobSize, Levels>> m_figures; // by job
};

} // namespace Orvane::Benchmarks
