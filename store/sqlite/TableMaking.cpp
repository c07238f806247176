// SPDX-License-Identifier: MIT
#include "store/sqlite/TableMaking.h"

#include "store/StoreTable.h"
#include "store/shared/SqlName.h"
#include "store/sqlite/SqliteSession.h"

#include <QStringList>

namespace Orvane {

namespace {

QLatin1String TypeName(StoreType type)
{
    switch (type) {
    case StoreType::Real:
        return QLatin1String("REAL");
    case StoreType::Text:
        return QLatin1String("TEXT");
    case StoreType::Flag:
        return QLatin1String("BOOLEAN"); // stored as whole numbers are, but known as a flag
    default:
        return QLatin1String("INTEGER");
    }
}

QString Definition(const StoreColumn& column)
{
    QString text = SqlName(column.name) + u' ' + TypeName(column.type);
    if (column.nulls == StoreColumn::Nulls::Refused)
        text += QLatin1String(" NOT NULL");
    if (!column.defaultValue.isEmpty())
        text += QLatin1String(" DEFAULT ") + column.defaultValue;
    if (!column.refersTo.isEmpty()) {
        text += QLatin1String(" REFERENCES ") + SqlName(column.refersTo) + QLatin1String(" (")
            + SqlName(column.refersToColumn) + QLatin1String(") ON DELETE CASCADE");
    }
    return text;
}

QString Listed(const std::vector<QString>& names)
{
    QStringList parts;
    for (const QString& name : names)
        parts << SqlName(name);
    return parts.join(QLatin1String(", "));
}

QString Creation(const StoreTable& table)
{
    QStringList parts;
    for (const StoreColumn& column : table.columns) {
        const bool isKey = table.key.size() == 1 && table.key.front() == column.name;
        parts << Definition(column) + QLatin1String(isKey ? " PRIMARY KEY" : "");
    }
    const bool joins = table.key.size() > 1;
    if (joins)
        parts << QStringLiteral("PRIMARY KEY (%1)").arg(Listed(table.key));
    for (const QString& column : table.unique)
        parts << QStringLiteral("UNIQUE (%1)").arg(SqlName(column));
    return QStringLiteral("CREATE TABLE %1 (%2)%3")
        .arg(
            SqlName(table.name), parts.join(QLatin1String(", ")),
            QLatin1String(joins ? " WITHOUT ROWID" : ""));
}

void Run(SqliteSession& session, const QString& sql)
{
    session.transactions.PrepareWrite();
    session.connection.Run(sql.toUtf8());
}

void AddMissingColumns(SqliteSession& session, const StoreTable& table)
{
    for (const StoreColumn& column : table.columns) {
        if (!HasColumn(session, table.name, column.name))
            Run(session,
                QStringLiteral("ALTER TABLE %1 ADD COLUMN %2").arg(SqlName(table.name), Definition(column)));
    }
}

void MakeIndexes(SqliteSession& session, const StoreTable& table)
{
    for (const QString& column : table.indexed) {
        const QString name = SqlName(table.name + column + QLatin1String("IDX"));
        Run(session,
            QStringLiteral("CREATE INDEX %1 ON %2 (%3)").arg(name, SqlName(table.name), SqlName(column)));
    }
}

} // namespace

void PrepareTable(SqliteSession& session, const StoreTable& table)
{
    if (HasTable(session, table.name))
        return AddMissingColumns(session, table);
    Run(session, Creation(table));
    MakeIndexes(session, table);
}

bool HasTable(SqliteSession& session, const QString& table)
{
    const StatementLease found = session.statements.Lease(
        QStringLiteral("SELECT 1 FROM sqlite_schema WHERE type = 'table' AND name = ?1 COLLATE NOCASE"));
    found->Bind(1, Value(table));
    return found->Step();
}

bool HasColumn(SqliteSession& session, const QString& table, const QString& column)
{
    const StatementLease found = session.statements.Lease(
        QStringLiteral("SELECT 1 FROM pragma_table_info(?1) WHERE name = ?2 COLLATE NOCASE"));
    found->Bind(1, Value(table));
    found->Bind(2, Value(column));
    return found->Step();
}

} // namespace Orvane
