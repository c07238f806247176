// SPDX-License-Identifier: MIT
#include "hostkit/tracing/CallTrace.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QFileDevice>

namespace Orvane {

void CallTrace::Write(const QString& line)
{
    m_device.write(line.toUtf8() + '\n');
    // Flushes each line, because a trace is most useful after a crash.
    if (auto* file = qobject_cast<QFileDevice*>(&m_device))
        file->flush();
}

QString CallTrace::Call(const char* member, const QStringList& arguments)
{
    return QString::fromLatin1(member) + u'(' + arguments.join(QStringLiteral(", ")) + u')';
}

void CallTrace::WriteError(const QString& call, const std::exception& error)
{
    const auto* runTimeError = dynamic_cast<const RunTimeError*>(&error);
    const QString number = runTimeError ? QString::number(runTimeError->Number()) + u' ' : QString();
    Write(
        call + Arrow() + QStringLiteral("error ") + number + TraceText::Of(QString::fromUtf8(error.what())));
}

} // namespace Orvane
