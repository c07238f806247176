// SPDX-License-Identifier: MIT
#include "kill/KillRun.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>

namespace Orvane::Testing {

namespace {

constexpr int LongestWait = 120'000; // ms; a writer that reports nothing for so long is stuck
constexpr int MostReports = 40; // before the first kill of a round
constexpr int MostReportsAlone = 8; // of the writer that is killed last
constexpr int MostDelay = 20; // ms, so that a kill does not always follow a report

int TotalReports(const std::vector<std::unique_ptr<WriterProcess>>& writers)
{
    int total = 0;
    for (const auto& writer : writers)
        total += writer->ReportCount();
    return total;
}

} // namespace

int KillRun::Run(int kills)
{
    QStringList faults;
    try {
        KillMap::Make(m_path);
        while (m_kills < kills && faults.isEmpty())
            faults = RunRound();
        std::printf(
            "%d kills, %d edits reported, %d found.\n", m_kills, m_reportCount, KillMap::EditCount(m_path));
    } catch (const RunTimeError& error) {
        faults << error.Description();
    }
    PrintFaults(faults);
    m_folder.setAutoRemove(faults.isEmpty());
    return faults.isEmpty() ? 0 : 1;
}

QStringList KillRun::RunRound()
{
    Writers writers = Started();
    QStringList faults = WaitForReports(writers, Random(MostReports));
    if (faults.isEmpty()) {
        WaitForRandomMoment(writers);
        faults = KillInTurn(writers);
    }
    while (!writers.empty())
        KillLast(writers);
    // The first to open the file after a kill is a reader every other time.
    const bool readerFirst = m_rounds++ % 2 == 1;
    if (readerFirst)
        faults << KillMap::FindFaults(m_path, OpenMode::ReadOnly, m_reported);
    return faults << KillMap::FindFaults(m_path, OpenMode::ReadWrite, m_reported);
}

KillRun::Writers KillRun::Started() const
{
    Writers writers;
    for (qint32 number = 0; number < WriterCount; ++number)
        writers.push_back(std::make_unique<WriterProcess>(m_path, number));
    return writers;
}

QStringList KillRun::WaitForReports(Writers& writers, int count)
{
    const int expected = TotalReports(writers) + count;
    QElapsedTimer waited;
    waited.start();
    while (TotalReports(writers) < expected) {
        for (const auto& writer : writers) {
            writer->Listen(5);
            if (!writer->IsRunning())
                return {QStringLiteral("A writer ended by itself.")};
        }
        if (waited.hasExpired(LongestWait))
            return {QStringLiteral("The writers are stuck.")};
    }
    return {};
}

void KillRun::WaitForRandomMoment(Writers& writers)
{
    const int delay = Random(MostDelay);
    QElapsedTimer waited;
    waited.start();
    while (!waited.hasExpired(delay)) {
        for (const auto& writer : writers)
            writer->Listen(1);
    }
}

// Every other time both die at once, else the second one has to go on after the first one's death.
QStringList KillRun::KillInTurn(Writers& writers)
{
    std::shuffle(writers.begin(), writers.end(), m_random);
    KillLast(writers);
    const bool goesOn = Random(1) == 1;
    QStringList faults = goesOn ? WaitForReports(writers, 1 + Random(MostReportsAlone)) : QStringList();
    while (!writers.empty())
        KillLast(writers);
    return faults;
}

void KillRun::KillLast(Writers& writers)
{
    WriterProcess& writer = *writers.back();
    writer.Kill();
    ++m_kills;
    qint32& reported = m_reported[size_t(writer.Number())];
    reported = std::max(reported, writer.LastReported());
    m_reportCount += writer.ReportCount();
    writers.pop_back();
}

void KillRun::PrintFaults(const QStringList& faults) const
{
    for (const QString& fault : faults)
        std::printf("LOST: %s\n", qPrintable(fault));
    if (!faults.isEmpty())
        std::printf("The map is kept: %s\n", qPrintable(m_path));
}

} // namespace Orvane::Testing
