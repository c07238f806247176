// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/LayerColumns.h>

#include <QString>
#include <QtGlobal>

#include <vector>

namespace Orvane {

class SqliteLayerDatabase;

/// Which numbers a column may hold. NULL is always allowed: a property may be unknown.
struct ValueRule {
    QString table;
    QString column;
    QString rowName; ///< SQL for the name of a row, to show to the user
    bool isKey = false; ///< a key is never changed by a repair
    double lowest = 0; ///< of the values that mean something
    double highest = 0;
    double lowestStored = 0; ///< what is outside can only be wrong
    double highestStored = 0;
    double standard = 0; ///< what a repair sets
};

/// The rule for a column of Layers, or of another table that keeps its values. Not for texts.
ValueRule RuleOf(const LayerColumn& column, const QString& table, const QString& rowName);
/// A rule for a number of 32 bits. isKey: as in ValueRule.
ValueRule WholeRule(const QString& table, const QString& column, const QString& rowName, bool isKey = false);
/// The rules for the store's own tables: Layers, LayerGroups and LayerGroupMembers.
std::vector<ValueRule> LayerValueRules();

/// A value that breaks a rule.
struct BadValue {
    QString table;
    QString row; ///< the row's name, shortened
    QString column;
    QString value; ///< as text, shortened; a blob in hexadecimal digits
    double standard = 0; ///< what a repair sets
};

/// What a search found.
struct BadValues {
    std::vector<BadValue> listed; ///< the first MostListed
    qint64 more = 0; ///< how many others there are

    static constexpr qint64 MostListed = 24;
};

/// Whether a search is for all values that break a rule, or for those that RepairBadValues sets: texts and
/// blobs in place of numbers, and numbers that cannot be stored there, except in keys.
enum class BadValueKind { All, Repairable };

/// The values that break the rules; rules for missing tables and columns are skipped. Raises database errors.
BadValues
FindBadValues(SqliteLayerDatabase& database, const std::vector<ValueRule>& rules, BadValueKind kind);

/// Sets the repairable values to their standard. Raises database errors. Call it in a transaction.
void RepairBadValues(SqliteLayerDatabase& database, const std::vector<ValueRule>& rules);

} // namespace Orvane
