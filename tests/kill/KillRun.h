// SPDX-License-Identifier: MIT
#pragma once

#include "kill/KillMap.h"
#include "kill/WriterProcess.h"

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>
#include <random>
#include <vector>

namespace Orvane::Testing {

/// Starts writers on one map, kills them at random moments, and checks the map after that.
class KillRun
{
public:
    /// Goes on until that many writers were killed, or a fault is found. Prints what was found; returns the
    /// exit code of the program, which is 1 after a fault. The map is kept then.
    int Run(int kills);

private:
    using Writers = std::vector<std::unique_ptr<WriterProcess>>;

    QStringList RunRound();
    Writers Started() const;
    QStringList WaitForReports(Writers& writers, int count);
    void WaitForRandomMoment(Writers& writers);
    QStringList KillInTurn(Writers& writers);
    void KillLast(Writers& writers);
    int Random(int highest) { return std::uniform_int_distribution<int>(0, highest)(m_random); }
    void PrintFaults(const QStringList& faults) const;

    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath(QStringLiteral("map.orvane"));
    std::mt19937 m_random{std::random_device()()};
    ReportedNumbers m_reported{};
    int m_reportCount = 0;
    int m_kills = 0;
    int m_rounds = 0;
};

} // namespace Orvane::Testing
