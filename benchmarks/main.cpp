// SPDX-License-Identifier: MIT
#include "benchmarks/RatioReporter.h"

#include <QApplication>

#include <benchmark/benchmark.h>
#include <vector>

namespace {

// Arguments of the command line come later and so override these.
std::vector<char*> WithDefaults(int argc, char** argv)
{
    static char repetitions[] = "--benchmark_repetitions=5";
    static char interleaving[] = "--benchmark_enable_random_interleaving=true";
    static char minTime[] = "--benchmark_min_time=0.05";
    std::vector<char*> arguments = {argv[0], repetitions, interleaving, minTime};
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    return arguments;
}

} // namespace

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    std::vector<char*> arguments = WithDefaults(argc, argv);
    int count = int(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 1;
    QApplication application(count, arguments.data());
    Orvane::Benchmarks::RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
