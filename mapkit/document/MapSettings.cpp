// SPDX-License-Identifier: MIT
#include "mapkit/document/MapSettings.h"

#include "store/SqliteLayerDatabase.h"

#include <OrvaneShellLib/ValueConversions.h>

namespace Orvane::MapSettings {

namespace {

// A plain layer database has none.
bool HaveTable(SqliteLayerDatabase& database)
{
    return !database.OpenQuery(QStringLiteral("SELECT name FROM pragma_table_info('MapSettings')"))->AtEOF();
}

} // namespace

void Prepare(SqliteLayerDatabase& database)
{
    database.Execute(QStringLiteral(
        "CREATE TABLE IF NOT EXISTS MapSettings (Name TEXT PRIMARY KEY, Value TEXT NOT NULL)"));
}

QString Read(SqliteLayerDatabase& database, const QString& name)
{
    if (!HaveTable(database))
        return {};
    const auto row
        = database.OpenQuery(QStringLiteral("SELECT Value FROM MapSettings WHERE Name = ?1"), {name});
    return row->AtEOF() ? QString() : ToTextOrNone(row->Field("Value"));
}

void Write(SqliteLayerDatabase& database, const QString& name, const QString& value)
{
    database.Execute(
        QStringLiteral("INSERT OR REPLACE INTO MapSettings VALUES (?1, ?2)"),
        {name, value.isNull() ? QStringLiteral("") : value});
}

} // namespace Orvane::MapSettings
