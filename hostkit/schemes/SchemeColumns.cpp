// SPDX-License-Identifier: MIT
#include "hostkit/schemes/SchemeColumns.h"

#include "hostkit/common/StoredScale.h"

#include <QStringList>

#include <string_view>

namespace Orvane::SchemeColumns {

namespace {

// Fills in the form for each column; %1 is the name of the column.
QString Joined(const QString& form, const QString& separator, SchemeParts parts = WholeScheme)
{
    QStringList pieces;
    for (const LayerColumn& column : All) {
        if (!parts.testFlag(PartOf(column)))
            continue;
        QString piece = form;
        pieces << piece.replace(QLatin1String("%1"), QLatin1String(column.name));
    }
    return pieces.join(separator);
}

// The expression to compare for a column. Both stored forms of "no limit" count as equal.
QString Compared(const char* table, const LayerColumn& column)
{
    QString value = QLatin1String(table) + u'.' + QLatin1String(column.name);
    if (column.name != std::string_view("MaxVisScale"))
        return value;
    return QStringLiteral("CASE WHEN %1 >= %2 THEN 0 ELSE %1 END")
        .arg(value)
        .arg(qint64(StoredScale::BeyondAllScales));
}

} // namespace

QString List(SchemeParts parts)
{
    return Joined(QStringLiteral("%1"), QStringLiteral(", "), parts);
}

QString SavedList()
{
    return Joined(QStringLiteral("LayerSchemeValues.%1"), QStringLiteral(", "));
}

QString Assignments(SchemeParts parts)
{
    return Joined(QStringLiteral("%1 = LayerSchemeValues.%1"), QStringLiteral(", "), parts);
}

QString Present(SchemeParts parts)
{
    return Joined(QStringLiteral("%1 = Layers.%1"), QStringLiteral(", "), parts);
}

QString Unset(SchemeParts parts)
{
    return Joined(QStringLiteral("%1 = NULL"), QStringLiteral(", "), parts);
}

QString Difference(SchemeParts parts, const char* table, const char* other)
{
    QStringList differences;
    for (const LayerColumn& column : All) {
        if (parts.testFlag(PartOf(column)))
            differences << QStringLiteral("%1 IS DISTINCT FROM %2")
                               .arg(Compared(table, column), Compared(other, column));
    }
    if (differences.isEmpty())
        return QStringLiteral("(FALSE)");
    return u'(' + differences.join(QStringLiteral(" OR ")) + u')';
}

QString Parameters(int first)
{
    QStringList parameters;
    for (std::size_t column = 0; column < Count; ++column)
        parameters << u'?' + QString::number(first + int(column));
    return parameters.join(QStringLiteral(", "));
}

} // namespace Orvane::SchemeColumns
