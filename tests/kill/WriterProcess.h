// SPDX-License-Identifier: MIT
#pragma once

#include <QProcess>
#include <QString>
#include <QtGlobal>

namespace Orvane::Testing {

/// This program, started again as a writer. It is killed at the latest when this object is destroyed.
class WriterProcess
{
public:
    WriterProcess(const QString& path, qint32 writer);
    ~WriterProcess() { Kill(); }
    WriterProcess(const WriterProcess&) = delete;
    WriterProcess& operator=(const WriterProcess&) = delete;

    /// Waits for reports, but not longer than that, in milliseconds.
    void Listen(int longest);
    /// Kills the process (SIGKILL), and takes the reports that it has made until then.
    void Kill();

    /// The number of the writer.
    qint32 Number() const { return m_number; }
    bool IsRunning() const { return m_process.state() != QProcess::NotRunning; }
    /// The last number that it reported as stored, 0 if there is none.
    qint32 LastReported() const { return m_lastReported; }
    /// How many numbers it has reported.
    int ReportCount() const { return m_reportCount; }

private:
    void TakeReports();

    QProcess m_process;
    qint32 m_number;
    qint32 m_lastReported = 0;
    int m_reportCount = 0;
};

} // namespace Orvane::Testing
