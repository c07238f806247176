// SPDX-License-Identifier: MIT
#include "store/sqlite/repair/DanglingRows.h"

#include "store/shared/SqlName.h"
#include "store/sqlite/SqliteLayerDatabase.h"

#include <OrvaneShellLib/ValueConversions.h>

namespace Orvane {

namespace {

constexpr int MostRounds = 20;

// References that consist of one column.
constexpr auto DeclaredReferences
    = "SELECT m.name AS Child, f.\"from\" AS ChildColumn, p.name AS Parent,"
      " coalesce(f.\"to\", (SELECT k.name FROM pragma_table_info(p.name) AS k WHERE k.pk = 1)) AS "
      "ParentColumn"
      " FROM sqlite_schema AS m, pragma_foreign_key_list(m.name) AS f, sqlite_schema AS p"
      " WHERE m.type = 'table' AND p.type = 'table' AND p.name = f.\"table\" COLLATE NOCASE"
      " AND NOT EXISTS (SELECT 1 FROM pragma_foreign_key_list(m.name) AS g WHERE g.id = f.id AND g.seq > 0)";

// The part FROM ... WHERE ... of a statement that selects the dangling rows.
QString DanglingIn(const DanglingRows& rows)
{
    return QStringLiteral(" FROM %1 WHERE %2 IS NOT NULL AND %2 NOT IN (SELECT %4 FROM %3)")
        .arg(SqlName(rows.table), SqlName(rows.column), SqlName(rows.parent), SqlName(rows.parentColumn));
}

std::vector<DanglingRows>
AllReferences(SqliteLayerDatabase& database, const std::vector<UndeclaredReference>& undeclared)
{
    std::vector<DanglingRows> references;
    const auto found = database.OpenQuery(QLatin1String(DeclaredReferences));
    for (; !found->AtEOF(); found->MoveNext()) {
        references.push_back(
            {ToText(found->Field("Child")), ToText(found->Field("ChildColumn")),
             ToText(found->Field("Parent")), ToText(found->Field("ParentColumn"))});
    }
    for (const UndeclaredReference& reference : undeclared) {
        const QString table = QString::fromLatin1(reference.table);
        const QString parent = QString::fromLatin1(reference.parent);
        if (database.HasTable(table) && database.HasTable(parent)) {
            references.push_back(
                {table, QString::fromLatin1(reference.column), parent,
                 QString::fromLatin1(reference.parentColumn)});
        }
    }
    return references;
}

} // namespace

std::vector<DanglingRows>
FindDanglingRows(SqliteLayerDatabase& database, const std::vector<UndeclaredReference>& undeclared)
{
    std::vector<DanglingRows> dangling;
    for (DanglingRows& reference : AllReferences(database, undeclared)) {
        const auto rows
            = database.OpenQuery(QStringLiteral("SELECT count(*) AS Number") + DanglingIn(reference));
        reference.count = ToInt32(rows->Field("Number"));
        if (reference.count > 0)
            dangling.push_back(reference);
    }
    return dangling;
}

void RemoveDanglingRows(SqliteLayerDatabase& database, const std::vector<UndeclaredReference>& undeclared)
{
    database.Execute(QStringLiteral("PRAGMA defer_foreign_keys = ON")); // until the transaction ends
    // Each round may create new dangling rows. The number of rounds is limited, because a file of
    // unknown source may refer in circles.
    for (int round = 0; round < MostRounds; ++round) {
        const std::vector<DanglingRows> dangling = FindDanglingRows(database, undeclared);
        if (dangling.empty())
            return;
        for (const DanglingRows& rows : dangling)
            database.Execute(QStringLiteral("DELETE") + DanglingIn(rows));
    }
}

} // namespace Orvane
