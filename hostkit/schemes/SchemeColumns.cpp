// SPDX-License-Identifier: MIT
#include "hostkit/schemes/SchemeColumns.h"

#include "hostkit/common/StoredScale.h"

#include <QStringList>

#include <array>
#include <string_view>

namespace Orvane::SchemeColumns {

namespace {

struct Column {
    const char* name;
    const char* type;
};

constexpr std::array<Column, Count> Columns{{
    {"Visible", "INTEGER"},
    {"Selectable", "INTEGER"},
    {"locked", "INTEGER"},
    {"Hitable", "INTEGER"},
    {"SnapRequired", "INTEGER"},
    {"Enquirable", "INTEGER"},
    {"Color", "INTEGER"},
    {"FillForeColor", "INTEGER"},
    {"FillBackColor", "INTEGER"},
    {"OutlineStyle", "INTEGER"},
    {"FillStyle", "INTEGER"},
    {"LineThickness", "INTEGER"},
    {"MinVisScale", "REAL"},
    {"MaxVisScale", "REAL"},
    {"Priority", "INTEGER"},
    {"Style", "INTEGER"},
    {"OverrideMode", "INTEGER"},
}};

// Each column through the form, in which %1 is its name and %2 its type.
QString Joined(const QString& form, const QString& separator)
{
    QStringList pieces;
    for (const Column& column : Columns) {
        QString piece = form;
        piece.replace(QLatin1String("%1"), QLatin1String(column.name));
        pieces << piece.replace(QLatin1String("%2"), QLatin1String(column.type));
    }
    return pieces.join(separator);
}

// What is compared of a column: both stored forms of "no limit" are one, as applying turns one into the
// other.
QString Compared(const char* table, const Column& column)
{
    QString value = QLatin1String(table) + QLatin1String(column.name);
    if (column.name != std::string_view("MaxVisScale"))
        return value;
    return QStringLiteral("CASE WHEN %1 >= %2 THEN 0 ELSE %1 END")
        .arg(value)
        .arg(qint64(StoredScale::NoMaximum));
}

} // namespace

QString List()
{
    return Joined(QStringLiteral("%1"), QStringLiteral(", "));
}

QString SavedList()
{
    return Joined(QStringLiteral("LayerSchemeValues.%1"), QStringLiteral(", "));
}

QString Assignments()
{
    return Joined(QStringLiteral("%1 = LayerSchemeValues.%1"), QStringLiteral(", "));
}

QString Difference()
{
    QStringList differences;
    for (const Column& column : Columns) {
        differences << QStringLiteral("%1 IS DISTINCT FROM %2")
                           .arg(Compared("Layers.", column), Compared("LayerSchemeValues.", column));
    }
    return u'(' + differences.join(QStringLiteral(" OR ")) + u')';
}

QString Parameters(int first)
{
    QStringList parameters;
    for (int column = 0; column < Count; ++column)
        parameters << u'?' + QString::number(first + column);
    return parameters.join(QStringLiteral(", "));
}

QString Definitions()
{
    return Joined(QStringLiteral("%1 %2"), QStringLiteral(", "));
}

const char* Name(int column)
{
    return Columns.at(std::size_t(column)).name;
}

bool IsWhole(int column)
{
    return Columns.at(std::size_t(column)).type == std::string_view("INTEGER");
}

} // namespace Orvane::SchemeColumns
