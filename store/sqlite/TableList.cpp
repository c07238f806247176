// SPDX-License-Identifier: MIT
#include "store/sqlite/TableList.h"

#include "store/shared/ConstantDefault.h"
#include "store/sqlite/SqliteSession.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <algorithm>
#include <initializer_list>
#include <map>

namespace Orvane {

namespace {

constexpr auto NamesQuery = "SELECT name FROM sqlite_schema WHERE type = 'table' AND rootpage > 0"
                            " AND substr(name, 1, 7) <> 'sqlite_' ORDER BY rowid";
constexpr auto ColumnsQuery = "SELECT name, type, \"notnull\", dflt_value, pk FROM pragma_table_info(?1)";
// Of one column, whose rows are removed with those that they refer to.
constexpr auto ReferencesQuery
    = "SELECT f.\"from\", p.name,"
      " coalesce(f.\"to\", (SELECT k.name FROM pragma_table_info(p.name) AS k WHERE k.pk = 1))"
      " FROM pragma_foreign_key_list(?1) AS f, sqlite_schema AS p"
      " WHERE f.on_delete = 'CASCADE' AND p.type = 'table' AND p.name = f.\"table\" COLLATE NOCASE"
      " AND NOT EXISTS (SELECT 1 FROM pragma_foreign_key_list(?1) AS g WHERE g.id = f.id AND g.seq > 0)";
// Of one column, and of all rows.
constexpr auto IndexesQuery = "SELECT (SELECT c.name FROM pragma_index_info(i.name) AS c), i.\"unique\""
                              " FROM pragma_index_list(?1) AS i WHERE i.partial = 0 AND i.origin <> 'pk'"
                              " AND (SELECT count(*) FROM pragma_index_info(i.name)) = 1 ORDER BY i.seq DESC";

// As SQLite finds the kind of a column, except that flags are no numbers here.
StoreType TypeDeclared(const QString& declared)
{
    const auto names = [&](std::initializer_list<const char*> words) {
        return std::any_of(words.begin(), words.end(), [&](const char* word) {
            return declared.contains(QLatin1String(word), Qt::CaseInsensitive);
        });
    };
    if (names({"BOOL"}))
        return StoreType::Flag;
    if (names({"INT"}))
        return StoreType::Whole;
    return names({"REAL", "FLOA", "DOUB"}) ? StoreType::Real : StoreType::Text;
}

StoreColumn* FindColumn(StoreTable& table, const QString& name)
{
    const auto found
        = std::find_if(table.columns.begin(), table.columns.end(), [&](const StoreColumn& column) {
              return column.name.compare(name, Qt::CaseInsensitive) == 0;
          });
    return found == table.columns.end() ? nullptr : &*found;
}

StatementLease About(SqliteSession& session, const char* query, const QString& table)
{
    StatementLease rows = session.statements.Lease(QLatin1String(query));
    rows->Bind(1, Value(table));
    return rows;
}

void ReadColumns(SqliteSession& session, StoreTable& table)
{
    std::map<qint32, QString> keys; // by their place in the key
    const StatementLease rows = About(session, ColumnsQuery, table.name);
    while (rows->Step()) {
        StoreColumn column{ToText(rows->Column(0)), TypeDeclared(ToTextOrNone(rows->Column(1)))};
        if (ToInt32(rows->Column(2)) != 0)
            column.nulls = StoreColumn::Nulls::Refused;
        column.defaultValue = ConstantDefault(ToTextOrNone(rows->Column(3)));
        if (const qint32 place = ToInt32(rows->Column(4)); place > 0)
            keys.emplace(place, column.name);
        table.columns.push_back(column);
    }
    for (const auto& [place, name] : keys)
        table.key.push_back(name);
}

void ReadReferences(SqliteSession& session, StoreTable& table)
{
    const StatementLease rows = About(session, ReferencesQuery, table.name);
    while (rows->Step()) {
        StoreColumn* column = FindColumn(table, ToTextOrNone(rows->Column(0)));
        if (!column || rows->Column(2).IsNull())
            continue;
        column->refersTo = ToText(rows->Column(1));
        column->refersToColumn = ToText(rows->Column(2));
    }
}

void ReadIndexes(SqliteSession& session, StoreTable& table)
{
    const StatementLease rows = About(session, IndexesQuery, table.name);
    while (rows->Step()) {
        const QString name = ToTextOrNone(rows->Column(0)); // empty for an expression
        if (!FindColumn(table, name) || table.key == std::vector<QString>{name})
            continue;
        std::vector<QString>& indexed = ToInt32(rows->Column(1)) != 0 ? table.unique : table.indexed;
        if (std::find(indexed.begin(), indexed.end(), name) == indexed.end())
            indexed.push_back(name);
    }
}

} // namespace

std::vector<StoreTable> TablesOf(SqliteSession& session)
{
    session.transactions.RequireIntact();
    std::vector<StoreTable> tables;
    const StatementLease names = session.statements.Lease(QLatin1String(NamesQuery));
    while (names->Step())
        tables.push_back({ToText(names->Column(0)), {}, {}});
    for (StoreTable& table : tables) {
        ReadColumns(session, table);
        ReadReferences(session, table);
        ReadIndexes(session, table);
    }
    return tables;
}

} // namespace Orvane
