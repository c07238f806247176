// SPDX-License-Identifier: MIT
#include "store/sqlite/repair/BadValues.h"

#include "store/sqlite/SqliteLayerDatabase.h"

#include <OrvaneShellLib/LayerValues.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <limits>
#include <string_view>

namespace Orvane {

namespace {

constexpr double Lowest32 = std::numeric_limits<qint32>::min();
constexpr double Highest32 = std::numeric_limits<qint32>::max();
constexpr double HighestUnsigned = std::numeric_limits<quint32>::max();
constexpr double AnyNumber = 1e308; // an infinity is none
constexpr double HighestPriority = 255; // 1 is the lowest, and 0 stands for none

// A range for some columns, inside that of their kind.
struct Meaning {
    std::string_view column;
    double lowest;
    double highest;
};

constexpr Meaning Meanings[] = {
    {"OutlineStyle", std::numeric_limits<qint16>::min(), std::numeric_limits<qint16>::max()},
    {"LineThickness", std::numeric_limits<qint16>::min(), std::numeric_limits<qint16>::max()},
    {"FillStyle", SolidFill, LastFillStyle},
    {"Priority", 0, HighestPriority},
    {"OverrideMode", 0, 2},
};

bool HoldsColour(std::string_view column)
{
    return column == "Color" || column == "FillForeColor" || column == "FillBackColor";
}

void SetStoredRange(ValueRule& rule, double lowest, double highest)
{
    rule.lowest = rule.lowestStored = lowest;
    rule.highest = rule.highestStored = highest;
}

// The start of a text, so that one value cannot fill the screen.
QString Start(const QString& expression)
{
    return QStringLiteral("substr(CAST(%1 AS TEXT), 1, 60)").arg(expression);
}

QString NameOr(const char* key)
{
    return QStringLiteral("coalesce(nullif(Name, ''), %1)").arg(QLatin1String(key));
}

// A text that holds a number is read as that number.
QString IsOutside(const ValueRule& rule, double lowest, double highest)
{
    return QStringLiteral("(%1 IS NOT NULL AND ((typeof(%1) NOT IN ('integer', 'real')"
                          " AND (typeof(%1) = 'blob' OR trim(%1) <> CAST(CAST(%1 AS NUMERIC) AS TEXT)))"
                          " OR CAST(%1 AS NUMERIC) NOT BETWEEN %2 AND %3))")
        .arg(rule.column, QString::number(lowest, 'g', 17), QString::number(highest, 'g', 17));
}

QString Condition(const ValueRule& rule, BadValueKind kind)
{
    return kind == BadValueKind::All ? IsOutside(rule, rule.lowest, rule.highest)
                                     : IsOutside(rule, rule.lowestStored, rule.highestStored);
}

bool Applies(SqliteLayerDatabase& database, const ValueRule& rule, BadValueKind kind)
{
    return (kind == BadValueKind::All || !rule.isKey) && database.HasColumn(rule.table, rule.column);
}

qint64 CountOf(SqliteLayerDatabase& database, const ValueRule& rule, BadValueKind kind)
{
    const auto rows = database.OpenQuery(
        QStringLiteral("SELECT count(*) AS Number FROM %1 WHERE %2").arg(rule.table, Condition(rule, kind)));
    return qint64(ToDouble(rows->Field("Number")));
}

void List(BadValues& found, SqliteLayerDatabase& database, const ValueRule& rule, BadValueKind kind)
{
    const qint64 room = BadValues::MostListed - qint64(found.listed.size());
    const QString value
        = QStringLiteral("CASE typeof(%1) WHEN 'blob' THEN hex(substr(%1, 1, 16)) ELSE %2 END")
              .arg(rule.column, Start(rule.column));
    const auto rows = database.OpenQuery(
        QStringLiteral("SELECT %1 AS RowName, %2 AS BadValue FROM %3 WHERE %4 LIMIT %5")
            .arg(Start(rule.rowName), value, rule.table, Condition(rule, kind), QString::number(room)));
    for (; !rows->AtEOF(); rows->MoveNext()) {
        found.listed.push_back(
            {rule.table, ToTextOrNone(rows->Field("RowName")), rule.column,
             ToTextOrNone(rows->Field("BadValue")), rule.standard});
    }
}

} // namespace

ValueRule RuleOf(const LayerColumn& column, const QString& table, const QString& rowName)
{
    ValueRule rule
        = WholeRule(table, QString::fromLatin1(column.name), rowName, column.kind == ColumnKind::Key);
    rule.standard = column.defaultValue;
    if (column.kind == ColumnKind::Flag || column.kind == ColumnKind::Real)
        SetStoredRange(rule, -AnyNumber, AnyNumber);
    else if (HoldsColour(column.name))
        SetStoredRange(rule, Lowest32, HighestUnsigned);
    for (const Meaning& meaning : Meanings) {
        if (meaning.column == column.name) {
            rule.lowest = meaning.lowest;
            rule.highest = meaning.highest;
        }
    }
    return rule;
}

ValueRule WholeRule(const QString& table, const QString& column, const QString& rowName, bool isKey)
{
    ValueRule rule;
    rule.table = table;
    rule.column = column;
    rule.rowName = rowName;
    rule.isKey = isKey;
    SetStoredRange(rule, Lowest32, Highest32);
    return rule;
}

std::vector<ValueRule> LayerValueRules()
{
    std::vector<ValueRule> rules;
    for (const LayerColumn& column : LayerColumns) {
        if (column.kind != ColumnKind::Text)
            rules.push_back(RuleOf(column, QStringLiteral("Layers"), NameOr("LayerID")));
    }
    const QString groups = QStringLiteral("LayerGroups");
    rules.push_back(WholeRule(groups, QStringLiteral("ID"), NameOr("ID"), true));
    for (const char* column : {"GroupOrdering", "Pseudo", "Expanded"})
        rules.push_back(WholeRule(groups, QLatin1String(column), NameOr("ID")));
    rules.push_back(WholeRule(
        QStringLiteral("LayerGroupMembers"), QStringLiteral("Ordering"), QStringLiteral("LayerID")));
    return rules;
}

BadValues FindBadValues(SqliteLayerDatabase& database, const std::vector<ValueRule>& rules, BadValueKind kind)
{
    BadValues found;
    qint64 count = 0;
    for (const ValueRule& rule : rules) {
        const qint64 bad = Applies(database, rule, kind) ? CountOf(database, rule, kind) : 0;
        count += bad;
        if (bad > 0 && qint64(found.listed.size()) < BadValues::MostListed)
            List(found, database, rule, kind);
    }
    found.more = count - qint64(found.listed.size());
    return found;
}

void RepairBadValues(SqliteLayerDatabase& database, const std::vector<ValueRule>& rules)
{
    for (const ValueRule& rule : rules) {
        if (!Applies(database, rule, BadValueKind::Repairable))
            continue;
        database.Execute(QStringLiteral("UPDATE %1 SET %2 = %3 WHERE %4")
                             .arg(
                                 rule.table, rule.column, QString::number(rule.standard, 'g', 17),
                                 Condition(rule, BadValueKind::Repairable)));
    }
}

} // namespace Orvane
