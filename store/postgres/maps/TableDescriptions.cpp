// SPDX-License-Identifier: MIT
#include "store/postgres/maps/TableDescriptions.h"

#include "store/postgres/link/ServerRows.h"
#include "store/postgres/maps/KnownTables.h"
#include "store/shared/ConstantDefault.h"

#include <algorithm>

namespace Orvane::TableDescriptions {

namespace {

constexpr const char* FactsQuery = R"sql(
SELECT a.attrelid, a.attnum, a.attnotnull, pg_get_expr(d.adbin, d.adrelid),
    EXISTS (SELECT FROM pg_constraint AS u
        WHERE u.conrelid = a.attrelid AND u.contype = 'u' AND u.conkey = ARRAY[a.attnum]),
    EXISTS (SELECT FROM pg_index AS i
        WHERE i.indrelid = a.attrelid AND NOT i.indisunique AND i.indnatts = 1 AND i.indkey[0] = a.attnum),
    coalesce(f.confrelid, 0), coalesce(f.confkey[1], 0)
FROM pg_class AS c
JOIN pg_attribute AS a ON a.attrelid = c.oid AND a.attnum > 0 AND NOT a.attisdropped
LEFT JOIN pg_attrdef AS d ON d.adrelid = c.oid AND d.adnum = a.attnum
LEFT JOIN pg_constraint AS f ON f.conrelid = c.oid AND f.contype = 'f' AND f.confdeltype = 'c'
    AND f.conkey = ARRAY[a.attnum]
WHERE c.relnamespace = (SELECT oid FROM pg_namespace WHERE nspname = current_schema()) AND c.relkind = 'r')sql";

enum FactsField { OfTable, OfColumn, NotNull, Default, IsUnique, IsIndexed, RefersTo, RefersToColumn };

const KnownColumn* ColumnNumbered(const KnownTable& table, int number)
{
    const auto found
        = std::find_if(table.columns.begin(), table.columns.end(), [&](const KnownColumn& column) {
              return column.number == number;
          });
    return found == table.columns.end() ? nullptr : &*found;
}

StoreTable AsPrepared(const KnownTable& known)
{
    StoreTable table{known.spelled, {}, {}};
    table.columns.reserve(known.columns.size());
    for (const KnownColumn& column : known.columns)
        table.columns.push_back({column.spelled, column.type});
    table.key.reserve(known.keys.size());
    for (const int key : known.keys)
        table.key.push_back(known.columns[size_t(key)].spelled);
    return table;
}

void AddReference(StoreColumn& column, KnownTables& tables, const ServerRows& facts, int row)
{
    const KnownTable* parent = tables.FindNumber(quint32(facts.Number(row, RefersTo)));
    const KnownColumn* there
        = parent ? ColumnNumbered(*parent, int(facts.Number(row, RefersToColumn))) : nullptr;
    if (!there)
        return;
    column.refersTo = parent->spelled;
    column.refersToColumn = there->spelled;
}

void AddFacts(StoreTable& table, StoreColumn& column, KnownTables& tables, const ServerRows& facts, int row)
{
    const bool isNumbered = column.type == StoreType::Whole && table.key == std::vector{column.name};
    if (facts.Flag(row, NotNull) && !isNumbered)
        column.nulls = StoreColumn::Nulls::Refused;
    column.defaultValue = ConstantDefault(facts.Text(row, Default));
    if (facts.Flag(row, IsUnique))
        table.unique.push_back(column.name);
    if (facts.Flag(row, IsIndexed))
        table.indexed.push_back(column.name);
    AddReference(column, tables, facts, row);
}

} // namespace

QByteArray Query()
{
    return FactsQuery;
}

std::vector<StoreTable> Read(KnownTables& tables, const ServerRows& answer)
{
    const std::vector<KnownTable>& known = tables.All();
    std::vector<StoreTable> described;
    described.reserve(known.size());
    for (const KnownTable& table : known)
        described.push_back(AsPrepared(table));
    for (int row = 0; row < answer.Count(); ++row) {
        const KnownTable* table = tables.FindNumber(quint32(answer.Number(row, OfTable)));
        const KnownColumn* column
            = table ? ColumnNumbered(*table, int(answer.Number(row, OfColumn))) : nullptr;
        if (!column)
            continue;
        StoreTable& own = described[size_t(table - known.data())];
        AddFacts(own, own.columns[size_t(column - table->columns.data())], tables, answer, row);
    }
    return described;
}

} // namespace Orvane::TableDescriptions
