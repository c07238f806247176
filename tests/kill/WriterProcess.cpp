// SPDX-License-Identifier: MIT
#include "kill/WriterProcess.h"

#include <QCoreApplication>
#include <QStringList>

namespace Orvane::Testing {

WriterProcess::WriterProcess(const QString& path, qint32 writer) : m_number(writer)
{
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(
        QCoreApplication::applicationFilePath(), {QStringLiteral("--writer"), QString::number(writer), path});
    m_process.waitForStarted();
}

void WriterProcess::Listen(int longest)
{
    m_process.waitForReadyRead(longest);
    TakeReports();
}

void WriterProcess::Kill()
{
    if (IsRunning()) {
        m_process.kill();
        m_process.waitForFinished(-1);
    }
    TakeReports();
}

void WriterProcess::TakeReports()
{
    while (m_process.canReadLine()) {
        m_lastReported = m_process.readLine().trimmed().toInt();
        ++m_reportCount;
    }
}

} // namespace Orvane::Testing
