// SPDX-License-Identifier: MIT
#include "component/model/ColumnError.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <utility>

namespace Orvane {

struct ColumnError::Parts {
    QString rowName;
    QString columnName;
    QString valueText;
    const char* sentence;
};

namespace {

bool HasText(const Value& value)
{
    return !value.IsNull() && !value.IsEmpty();
}

const char* SentenceFor(const RunTimeError& cause, const Value& value)
{
    if (!HasText(value))
        return QT_TR_NOOP("^1 has no value.");
    if (cause.Number() == int(ErrorNumber::TypeMismatch))
        return QT_TR_NOOP("^1 '^2' is not a number.");
    if (cause.Number() != int(ErrorNumber::Overflow))
        return QT_TR_NOOP("^1 ^2 cannot be used.");
    return ToText(value).startsWith(u'-') ? QT_TR_NOOP("^1 ^2 is too small.")
                                          : QT_TR_NOOP("^1 ^2 is too large.");
}

QString
Described(const QString& rowName, const char* sentence, const QString& columnName, const QString& valueText)
{
    QString text = QString::fromLatin1(sentence);
    text.replace(QStringLiteral("^1"), columnName).replace(QStringLiteral("^2"), valueText);
    return rowName.isEmpty() ? text : rowName + QStringLiteral(": ") + text;
}

} // namespace

ColumnError::ColumnError(
    const RunTimeError& cause, const QString& rowName, const QString& columnName, const Value& value)
    : ColumnError(
        cause,
        Parts{rowName, columnName, HasText(value) ? ToText(value) : QString(), SentenceFor(cause, value)})
{
}

ColumnError::ColumnError(const RunTimeError& cause, Parts parts)
    : RunTimeError(
        cause.Number(), Described(parts.rowName, parts.sentence, parts.columnName, parts.valueText),
        cause.Source()),
      m_rowName(std::move(parts.rowName)), m_columnName(std::move(parts.columnName)),
      m_valueText(std::move(parts.valueText)), m_sentence(parts.sentence)
{
}

} // namespace Orvane
