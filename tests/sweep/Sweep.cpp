// SPDX-License-Identifier: MIT
#include "sweep/Sweep.h"

#include "store/ILayerStore.h"
#include "store/opening/LayerStores.h"
#include "sweep/FileFaults.h"
#include "sweep/FolderState.h"
#include "sweep/RoomFault.h"

#include <QFile>

#include <cstdio>
#include <stdexcept>
#include <utility>

namespace Orvane::Testing {

namespace {

constexpr int MostCalls = 5000; // more than any command makes
constexpr qint64 RoomStep = 509; // bytes; a prime, so that it meets any place in a page

// Never destroyed: GDAL keeps a database of its own open until the program ends.
FailingFiles& FilesOfTheProgram()
{
    static auto* const files = new FailingFiles;
    return *files;
}

std::string ErrorOf(const std::function<void()>& act)
{
    try {
        act();
        return {};
    } catch (const std::exception& error) {
        return *error.what() ? error.what() : "an error without a text";
    }
}

void PrintLoss(const std::string& loss, int number, const IFault& fault)
{
    std::printf("  LOST at call %d, %s:\n    %s\n", number, fault.FirstFailure().c_str(), loss.c_str());
}

} // namespace

Sweep::Sweep(const SweepOptions& options, std::vector<SweepCommand> commands)
    : m_options(options), m_commands(std::move(commands)), m_files(FilesOfTheProgram()),
      m_faults(MakeFileFaults(m_files))
{
    auto host = std::make_unique<HostFault>();
    m_host = host.get();
    m_faults.push_back(std::move(host));
    m_faults.push_back(std::make_unique<RoomFault>(RoomStep));
    m_files.SkipSleep();
}

void Sweep::List() const
{
    for (const SweepCommand& command : m_commands)
        std::printf("%s\n", command.name.c_str());
    for (const auto& fault : m_faults)
        std::printf("%s\n", fault->Name().c_str());
}

int Sweep::Run()
{
    if (m_options.every > 1)
        std::printf("Each %dth call, from call %d.\n", m_options.every, m_options.from);
    for (const SweepCommand& command : m_commands)
        SweepCommandThrough(command);
    std::printf("%d runs, %d survivors.\n", m_total.runs, m_total.survivors);
    return m_total.runs > 0 && m_total.runs == m_total.survivors && m_unswept == 0 ? 0 : 1;
}

void Sweep::SweepCommandThrough(const SweepCommand& command)
{
    const bool isNamed = m_options.Takes(command.name);
    Expected expected;
    int runs = 0;
    for (const auto& fault : m_faults) {
        if (!isNamed && !m_options.Takes(fault->Name()))
            continue;
        if (expected.after.empty())
            expected = RunWithoutFaults(command);
        const Counts counts = SweepWith(command, expected, *fault);
        runs += counts.runs;
        m_total.runs += counts.runs;
        m_total.survivors += counts.survivors;
    }
    if (isNamed && m_options.every == 1 && runs == 0) {
        std::printf("%s: nothing ever failed\n", command.name.c_str());
        ++m_unswept;
    }
}

// Where nothing fails at once the fault is none of this command, and no run counts.
Sweep::Counts Sweep::SweepWith(const SweepCommand& command, const Expected& expected, IFault& fault)
{
    Counts counts;
    for (int number = m_options.from; number < MostCalls; number += m_options.every) {
        const Outcome outcome = RunOnce(command.prepare, &fault, number);
        const std::string loss = WhatIsLost(outcome, expected, fault.HasFailed());
        if (!fault.HasFailed() && loss.empty())
            break;
        ++counts.runs;
        counts.survivors += loss.empty() ? 1 : 0;
        if (!loss.empty())
            PrintLoss(loss, number, fault);
        if (!fault.HasFailed())
            break;
    }
    if (counts.runs > 0)
        std::printf(
            "%-42s %-24s %5d runs, %5d survivors\n", command.name.c_str(), fault.Name().c_str(), counts.runs,
            counts.survivors);
    std::fflush(stdout);
    return counts;
}

Sweep::Expected Sweep::RunWithoutFaults(const SweepCommand& command)
{
    const auto idle = [&](const SweepBench& bench) {
        PreparedCommand prepared = command.prepare(bench);
        prepared.act = [opened = std::move(prepared.act)] {};
        return prepared;
    };
    const Outcome before = RunOnce(idle, nullptr, 0);
    const Outcome between = command.firstStep ? RunOnce(command.firstStep, nullptr, 0) : Outcome();
    const Outcome after = RunOnce(command.prepare, nullptr, 0);
    for (const Outcome* outcome : {&before, &between, &after}) {
        if (!outcome->error.empty())
            throw std::runtime_error(command.name + " fails by itself: " + outcome->error);
    }
    if (before.state == after.state)
        throw std::runtime_error(command.name + " changes nothing");
    return {before.state, between.state, after.state};
}

Sweep::Outcome Sweep::RunOnce(const CommandPreparation& prepare, IFault* fault, int number)
{
    m_folder.Reset();
    Outcome outcome;
    {
        const PreparedCommand prepared = prepare({m_folder, *m_host});
        if (fault)
            fault->Arm(number);
        outcome.error = ErrorOf(prepared.act);
        if (fault)
            fault->Disarm();
        outcome.laterError = LaterErrorOf(prepared);
    }
    outcome.state = FolderState(m_folder.Path());
    outcome.laterEdits = CountLaterEdits(m_folder.MapPath());
    return outcome;
}

std::string Sweep::LaterErrorOf(const PreparedCommand& prepared) const
{
    return ErrorOf([&] {
        const auto opened = prepared.store ? nullptr : LayerStores::Open(m_folder.MapPath());
        ILayerStore& store = prepared.store ? *prepared.store : *opened;
        store.Execute(QStringLiteral("INSERT INTO %1 VALUES (1)").arg(QLatin1String(TableOfLaterEdits)));
    });
}

std::string Sweep::WhatIsLost(const Outcome& outcome, const Expected& expected, bool hasFailed)
{
    const std::string told = outcome.error.empty() ? "" : " (" + outcome.error + ")";
    if (!outcome.error.empty() && !hasFailed)
        return "an error without a failure" + told;
    if (outcome.error.empty() && outcome.state != expected.after)
        return "success, but something else is stored:\n" + StateDifferences(expected.after, outcome.state);
    const bool isBetween = !expected.between.empty() && outcome.state == expected.between;
    if (outcome.state != expected.before && outcome.state != expected.after && !isBetween)
        return "neither as before nor as after" + told + ", compared with before:\n"
            + StateDifferences(expected.before, outcome.state);
    if (!outcome.laterError.empty())
        return "a later edit fails: " + outcome.laterError;
    return outcome.laterEdits == 1 ? "" : "a later edit is not stored";
}

} // namespace Orvane::Testing
