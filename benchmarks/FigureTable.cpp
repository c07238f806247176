// SPDX-License-Identifier: MIT
#include "benchmarks/FigureTable.h"

#include "benchmarks/Figures.h"

#include <QString>

namespace Orvane::Benchmarks {

namespace {

template <typename... Values> std::string Formatted(const char* format, Values... values)
{
    return QString::asprintf(format, values...).toStdString();
}

std::string TimesText(const std::vector<double>& milliseconds)
{
    const Spread spread = SpreadOf(milliseconds);
    const int digits = spread.median < 10 ? 3 : spread.median < 1000 ? 1 : 0;
    return Formatted(
        "%9.*f [%.*f - %.*f]", digits, spread.median, digits, spread.lower, digits, spread.upper);
}

std::string RatioText(const std::vector<double>& times, const std::vector<double>& bare)
{
    const double divisor = SpreadOf(bare).median;
    return divisor > 0 ? Formatted("%8.2f", SpreadOf(times).median / divisor) : Formatted("%8s", "-");
}

std::string NumberOrDash(double number, int width)
{
    return number > 0 ? Formatted("%*.0f", width, number) : Formatted("%*s", width, "-");
}

} // namespace

void FigureTable::Add(
    const std::string& job, const std::string& level, const JobSize& size, const Sample& sample)
{
    Figure& figure = m_figures[job][size][level];
    figure.wall.push_back(sample.wall);
    figure.processor.push_back(sample.processor);
}

void FigureTable::SetMemory(
    const std::string& job, const std::string& level, const JobSize& size, const MemoryUse& memory)
{
    m_figures[job][size][level].memory = memory;
}

std::vector<std::string> FigureTable::WithoutBareLoop() const
{
    std::vector<std::string> found;
    for (const auto& [job, sizes] : m_figures) {
        for (const auto& [size, levels] : sizes) {
            if (!levels.contains(BareLevel))
                found.push_back(job + Formatted("/%d/%d", size.layers, size.members));
        }
    }
    return found;
}

std::string FigureTable::Text() const
{
    std::string text = Formatted(
        "\n%-22s %8s %8s  %-7s %-30s %-30s %8s %8s %8s %7s\n", "job", "layers", "members", "level",
        "wall ms [quartiles]", "processor ms [quartiles]", "x wall", "x proc", "B/layer", "peak MB");
    for (const auto& [job, sizes] : m_figures) {
        for (const auto& [size, levels] : sizes)
            text += CaseText(job, size, levels);
    }
    return text + GrowthText();
}

std::string FigureTable::CaseText(const std::string& job, const JobSize& size, const Levels& levels)
{
    const auto bare = levels.find(BareLevel);
    const Figure* divisor = bare == levels.end() ? nullptr : &bare->second;
    std::string text;
    for (const auto& [level, figure] : levels) {
        text += Formatted("%-22s %8d %8d  ", job.c_str(), size.layers, size.members);
        text += LevelText(level, figure, level == BareLevel ? nullptr : divisor);
    }
    return text;
}

std::string FigureTable::LevelText(const std::string& level, const Figure& figure, const Figure* bare)
{
    const std::string wallRatio = RatioText(figure.wall, bare ? bare->wall : std::vector<double>());
    const std::string ratio = RatioText(figure.processor, bare ? bare->processor : std::vector<double>());
    return Formatted(
               "%-7s %-30s %-30s ", level.c_str(), TimesText(figure.wall).c_str(),
               TimesText(figure.processor).c_str())
        + wallRatio + ' ' + ratio + ' ' + NumberOrDash(figure.memory.bytesEach, 8) + ' '
        + NumberOrDash(figure.memory.peakMegabytes, 7) + '\n';
}

std::string FigureTable::GrowthText() const
{
    std::string text = "\nprocessor time grows with the size to the power of\n";
    bool isAny = false;
    for (const auto& [job, sizes] : m_figures) {
        for (const auto& [level, figure] : sizes.rbegin()->second) {
            double over = 0;
            const std::optional<double> exponent = GrowthOf(job, level, &over);
            if (exponent)
                text += Formatted(
                    "%-22s %-7s %5.2f  (sizes over a factor of %.0f)\n", job.c_str(), level.c_str(),
                    *exponent, over);
            isAny = isAny || exponent;
        }
    }
    return isAny ? text : std::string();
}

// Of groups only those of the largest map count: the size of the map is then the same for all.
std::optional<double>
FigureTable::GrowthOf(const std::string& job, const std::string& level, double* over) const
{
    const auto& sizes = m_figures.at(job);
    const JobSize largest = sizes.rbegin()->first;
    std::vector<std::pair<double, double>> points;
    for (const auto& [size, levels] : sizes) {
        const auto found = levels.find(level);
        if (found == levels.end() || (size.members > 0 && size.layers != largest.layers))
            continue;
        const double time = SpreadOf(found->second.processor).median;
        if (time > 0)
            points.emplace_back(size.Worked(), time);
    }
    if (points.size() > 1)
        *over = points.back().first / points.front().first;
    return GrowthExponent(points);
}

} // namespace Orvane::Benchmarks
