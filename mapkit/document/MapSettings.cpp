// SPDX-License-Identifier: MIT
#include "mapkit/document/MapSettings.h"

#include "store/ILayerStore.h"
#include "store/StoreTable.h"

#include <OrvaneShellLib/ValueConversions.h>

namespace Orvane::MapSettings {

namespace {

const QString SettingsName = QStringLiteral("MapSettings");

StoreTable SettingsTable()
{
    return {
        SettingsName,
        {{QStringLiteral("Name")}, {QStringLiteral("Value"), StoreType::Text, StoreColumn::Nulls::Refused}},
        {QStringLiteral("Name")}};
}

} // namespace

void Prepare(ILayerStore& database)
{
    database.PrepareTable(SettingsTable());
}

QString Read(ILayerStore& database, const QString& name)
{
    if (!database.HasTable(SettingsName)) // a plain layer database has no settings
        return {};
    const auto row
        = database.OpenQuery(QStringLiteral("SELECT Value FROM MapSettings WHERE Name = ?1"), {name});
    return row->AtEOF() ? QString() : ToTextOrNone(row->Field("Value"));
}

void Write(ILayerStore& database, const QString& name, const QString& value)
{
    database.Execute(
        QStringLiteral("INSERT INTO MapSettings (Name, Value) VALUES (?1, ?2)"
                       " ON CONFLICT (Name) DO UPDATE SET Value = excluded.Value"),
        {name, value.isNull() ? QStringLiteral("") : value});
}

} // namespace Orvane::MapSettings
