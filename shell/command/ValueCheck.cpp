// SPDX-License-Identifier: MIT
#include "shell/command/ValueCheck.h"

#include "hostkit/schemes/SchemeColumns.h"
#include "store/sqlite/SqliteLayerDatabase.h"
#include "store/sqlite/repair/BadValues.h"

#include <QCoreApplication>
#include <QLocale>

namespace Orvane {

namespace {

QString TranslateValueText(const char* text)
{
    return QCoreApplication::translate("MapCheck", text);
}

// A number of other classes is read as the known ones among them, or as a whole scheme: it is named and
// stays.
ValueRule RuleOfHolds(const QString& schemes, const QString& rowName)
{
    ValueRule rule = WholeRule(schemes, QStringLiteral("Holds"), rowName);
    rule.lowest = 1;
    rule.highest = rule.standard = NumberOf(WholeScheme);
    return rule;
}

std::vector<ValueRule> AllRules()
{
    std::vector<ValueRule> rules = LayerValueRules();
    const QString schemes = QStringLiteral("LayerSchemes");
    const QString name = QStringLiteral("Name");
    rules.push_back(WholeRule(schemes, QStringLiteral("SchemeID"), name, true));
    for (const char* column : {"IsCurrent", "Place", "AtOpening"})
        rules.push_back(WholeRule(schemes, QLatin1String(column), name));
    rules.push_back(RuleOfHolds(schemes, name));
    const QString layerName = QStringLiteral("coalesce((SELECT nullif(Name, '') FROM Layers"
                                             " WHERE Layers.LayerID = LayerSchemeValues.LayerID), LayerID)");
    for (const LayerColumn& column : SchemeColumns::All)
        rules.push_back(RuleOf(column, QStringLiteral("LayerSchemeValues"), layerName));
    return rules;
}

QString MoreText(qint64 count)
{
    return TranslateValueText(QT_TRANSLATE_NOOP("MapCheck", "... and %1 more values."))
        .arg(QLocale().toString(count));
}

} // namespace

std::vector<MapProblem> FindValueProblems(SqliteLayerDatabase& database)
{
    const std::vector<ValueRule> rules = AllRules();
    const BadValues found = FindBadValues(database, rules, BadValueKind::All);
    if (found.listed.empty())
        return {};
    const bool repairable = !FindBadValues(database, rules, BadValueKind::Repairable).listed.empty();
    const QString text = TranslateValueText(
        QT_TRANSLATE_NOOP("MapCheck", "\"%1\", row \"%2\": %3 \"%4\" is not a valid value."));
    std::vector<MapProblem> problems;
    for (const BadValue& bad : found.listed) {
        problems.push_back(
            {MapProblem::Kind::BadValue, text.arg(bad.table, bad.row, bad.column, bad.value), repairable});
    }
    if (found.more > 0)
        problems.push_back({MapProblem::Kind::BadValue, MoreText(found.more), repairable});
    return problems;
}

QStringList RepairValues(SqliteLayerDatabase& database)
{
    const std::vector<ValueRule> rules = AllRules();
    const BadValues found = FindBadValues(database, rules, BadValueKind::Repairable);
    const QString text = TranslateValueText(
        QT_TRANSLATE_NOOP("MapCheck", "\"%1\", row \"%2\": %3 \"%4\" was replaced by %5."));
    QStringList done;
    for (const BadValue& bad : found.listed) {
        done << text.arg(bad.table, bad.row, bad.column, bad.value, QString::number(bad.standard, 'g', 17));
    }
    if (found.more > 0)
        done << MoreText(found.more);
    RepairBadValues(database, rules);
    return done;
}

} // namespace Orvane
