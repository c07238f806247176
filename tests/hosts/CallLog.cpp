// SPDX-License-Identifier: MIT
#include "hosts/CallLog.h"

#include <OrvaneShellLib/ValueConversions.h>

namespace Orvane::Testing {

namespace {

QString Readable(const Value& value)
{
    if (value.IsNull())
        return QStringLiteral("Null");
    return value.IsEmpty() ? QStringLiteral("Empty") : ToText(value);
}

} // namespace

void CallLog::Add(CallKind kind, const char* member, const std::vector<Value>& arguments)
{
    QStringList texts;
    for (const Value& argument : arguments)
        texts.append(Readable(argument));
    const QString text = QString::fromLatin1(member) + '(' + texts.join(QStringLiteral(", ")) + ')';
    m_calls.push_back({kind, text, arguments});
}

QStringList CallLog::Of(CallKind kind) const
{
    QStringList texts;
    for (const Call& call : m_calls) {
        if (call.kind == kind)
            texts.append(call.text);
    }
    return texts;
}

QStringList CallLog::Trace() const
{
    QStringList texts;
    for (const Call& call : m_calls) {
        if (call.kind != CallKind::Read)
            texts.append(call.text);
    }
    return texts;
}

QStringList CallLog::CallsTo(const QString& member) const
{
    QStringList texts;
    for (const Call& call : m_calls) {
        if (call.text.startsWith(member + '('))
            texts.append(call.text);
    }
    return texts;
}

Value CallLog::LastWritten(const QString& columnName) const
{
    Value written;
    for (const Call& call : m_calls) {
        if (call.text.startsWith(QStringLiteral("SetField(%1, ").arg(columnName)))
            written = call.arguments.back();
    }
    return written;
}

} // namespace Orvane::Testing
