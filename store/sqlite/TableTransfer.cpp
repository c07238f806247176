// SPDX-License-Identifier: MIT
#include "store/sqlite/TableTransfer.h"

#include "store/shared/SqlName.h"
#include "store/sqlite/SqliteSession.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <QStringList>

namespace Orvane {

namespace {

QString NamesOf(const std::vector<StoreColumn>& columns)
{
    QStringList names;
    for (const StoreColumn& column : columns)
        names << SqlName(column.name);
    return names.join(QLatin1String(", "));
}

QString InOrderOfKey(const StoreTable& table)
{
    QStringList names;
    for (const QString& name : table.key)
        names << SqlName(name);
    return names.isEmpty() ? QString() : QLatin1String(" ORDER BY ") + names.join(QLatin1String(", "));
}

QString InsertionInto(const StoreTable& table)
{
    QStringList parameters;
    for (size_t number = 1; number <= table.columns.size(); ++number)
        parameters << u'?' + QString::number(number);
    return QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
        .arg(SqlName(table.name), NamesOf(table.columns), parameters.join(QLatin1String(", ")));
}

// rows: what follows FROM.
qint64 CountIn(SqliteSession& session, const QString& rows)
{
    SqliteStatement count(session.connection, QStringLiteral("SELECT count(*) FROM ") + rows);
    count.Step();
    return qint64(ToDouble(count.Column(0)));
}

} // namespace

std::vector<qint64> CountRows(SqliteSession& session, const std::vector<StoreTable>& tables)
{
    session.transactions.RequireIntact();
    std::vector<qint64> counts;
    counts.reserve(tables.size());
    for (const StoreTable& table : tables)
        counts.push_back(CountIn(session, SqlName(table.name)));
    return counts;
}

qint64 CountDangling(SqliteSession& session, const StoreTable& table, const StoreColumn& column)
{
    session.transactions.RequireIntact();
    return CountIn(
        session,
        QStringLiteral("%1 WHERE %2 IS NOT NULL AND %2 NOT IN (SELECT %3 FROM %4)")
            .arg(
                SqlName(table.name), SqlName(column.name), SqlName(column.refersToColumn),
                SqlName(column.refersTo)));
}

void ReadRows(SqliteSession& session, const StoreTable& table, const RowVisitor& visitor)
{
    session.transactions.RequireIntact();
    SqliteStatement rows(
        session.connection,
        QStringLiteral("SELECT %1 FROM %2").arg(NamesOf(table.columns), SqlName(table.name))
            + InOrderOfKey(table));
    StoreRow row(table.columns.size());
    while (rows.Step()) {
        for (size_t column = 0; column < row.size(); ++column)
            row[column] = rows.ExactColumn(int(column));
        visitor(row);
    }
}

void RemoveRows(SqliteSession& session, const StoreTable& table)
{
    session.transactions.RequireIntact();
    SqliteStatement removal(session.connection, QStringLiteral("DELETE FROM ") + SqlName(table.name));
    session.transactions.RunWrite(removal);
}

void AddRows(
    SqliteSession& session, const StoreTable& table, const std::function<void(const RowVisitor& add)>& source)
{
    session.transactions.PrepareWrite();
    session.connection.Run("PRAGMA defer_foreign_keys = ON"); // rows may refer to later ones
    const StatementLease insertion = session.statements.Lease(InsertionInto(table));
    source([&](const StoreRow& row) {
        insertion->BindAll(row);
        session.transactions.RunWrite(*insertion);
    });
}

} // namespace Orvane
