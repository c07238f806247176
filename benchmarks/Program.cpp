// SPDX-License-Identifier: MIT
#include "benchmarks/Program.h"

#include "benchmarks/FigureTable.h"
#include "benchmarks/Measurement.h"
#include "benchmarks/RatioReporter.h"

#include <QApplication>

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstring>
#include <vector>

namespace Orvane::Benchmarks {

namespace {

using Arguments = std::vector<char*>;

// Arguments of the command line come later and so override these.
Arguments WithDefaults(int argc, char** argv)
{
    static char repetitions[] = "--benchmark_repetitions=5";
    static char interleaving[] = "--benchmark_enable_random_interleaving=true";
    static char minTime[] = "--benchmark_min_time=0.05";
    Arguments arguments = {argv[0], repetitions, interleaving, minTime};
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    return arguments;
}

// Without a screen, windows are not raised and have no size hints; that is not worth a line each time.
void PrintMessage(QtMsgType, const QMessageLogContext&, const QString& text)
{
    if (!text.startsWith(QLatin1String("This plugin does not support")))
        std::fprintf(stderr, "%s\n", qPrintable(text));
}

// Takes the argument out of the list; false if it is not there.
bool Take(Arguments& arguments, const char* wanted)
{
    return std::erase_if(arguments, [wanted](const char* given) { return !std::strcmp(given, wanted); }) > 0;
}

// What a run of all jobs must have done.
bool IsWhole(const FigureTable& table, size_t count)
{
    const std::vector<std::string> lacking = table.WithoutBareLoop();
    for (const std::string& name : lacking)
        std::fprintf(stderr, "there is no bare loop for %s\n", name.c_str());
    if (count == 0 || table.IsEmpty())
        std::fprintf(stderr, "nothing was measured\n");
    return count > 0 && !table.IsEmpty() && lacking.empty();
}

} // namespace

int RunMeasurements(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    Arguments arguments = WithDefaults(argc, argv);
    Choice choice;
    choice.isSmoke = Take(arguments, "--smoke");
    choice.isMillion = Take(arguments, "--million");
    int count = int(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 1;
    qInstallMessageHandler(PrintMessage);
    const QApplication application(count, arguments.data());
    FigureTable table;
    RegisterAnnounced(choice, table);
    RatioReporter reporter(table);
    const size_t measured = benchmark::RunSpecifiedBenchmarks(&reporter);
    const bool isGood = !choice.isSmoke || IsWhole(table, measured);
    return isGood && !reporter.HasFailed() ? 0 : 1;
}

} // namespace Orvane::Benchmarks
