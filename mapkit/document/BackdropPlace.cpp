// SPDX-License-Identifier: MIT
#include "mapkit/document/BackdropPlace.h"

#include "mapkit/document/SourcePaths.h"
#include "store/SqliteLayerDatabase.h"

#include <OrvaneShellLib/ValueConversions.h>

namespace Orvane {

namespace {

bool HasSettings(SqliteLayerDatabase& database)
{
    return !database.OpenQuery(QStringLiteral("SELECT name FROM pragma_table_info('MapSettings')"))->AtEOF();
}

QString Setting(SqliteLayerDatabase& database, const QString& name)
{
    const auto row
        = database.OpenQuery(QStringLiteral("SELECT Value FROM MapSettings WHERE Name = ?1"), {name});
    const Value value = row->AtEOF() ? Value::Null() : row->Field("Value");
    return ToTextOrNone(value);
}

} // namespace

QString FindBackdrop(SqliteLayerDatabase& database, const QString& mapPath)
{
    if (!HasSettings(database))
        return {};
    const SourcePaths::Place place{
        Setting(database, QStringLiteral("Backdrop")), Setting(database, QStringLiteral("BackdropRelative"))};
    return place.path.isEmpty() ? QString() : SourcePaths(mapPath).Find(place);
}

} // namespace Orvane
