// SPDX-License-Identifier: MIT
#include "store/opening/ServerStores.h"

#include "store/opening/LayerStores.h"
#include "store/postgres/PostgresLayerDatabase.h"
#include "store/postgres/link/QuotedName.h"
#include "store/postgres/link/ServerConnection.h"
#include "store/postgres/link/ServerPlace.h"
#include "store/postgres/maps/MapCatalogue.h"
#include "store/shared/WorkWatch.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QUuid>

#include <functional>

namespace Orvane {

namespace {

void WithServer(
    const ServerPlace& place, const StoreOptions& options,
    const std::function<void(ServerConnection& connection)>& act)
{
    WorkWatch watch;
    act(*ServerConnection::Connect(place, options, watch));
}

// The name under which a map is filled before it gets its own.
QString NewPartName()
{
    return QLatin1String(MapCatalogue::PartBeginning) + QUuid::createUuid().toString(QUuid::WithoutBraces);
}

// Nobody else knows the map.
void TakeBack(const ServerPlace& part, const StoreOptions& options)
{
    try {
        WithServer(part, options, [&](ServerConnection& connection) {
            connection.Run("DROP SCHEMA " + QuotedName(part.schema) + " CASCADE");
        });
    } catch (const RunTimeError&) { // what stopped the filling is told
    }
}

} // namespace

std::unique_ptr<ILayerStore> ServerStores::Create(const QString& place, const StoreOptions& options)
{
    return PostgresLayerDatabase::Create(place, options);
}

// The map is filled under another name, so that nobody sees half of it.
void ServerStores::Make(
    const QString& place, IfExists ifExists, const StoreFiller& fill, const StoreOptions& options)
{
    const auto where = ServerPlace::OfMap(place);
    StoreOptions shown = options;
    if (shown.shownPath.isEmpty())
        shown.shownPath = where.Name();
    WorkWatch watch;
    const auto connection = ServerConnection::Connect(where, shown, watch);
    if (ifExists == IfExists::Refuse)
        MapCatalogue::RequireFree(*connection, where.schema);
    else
        MapCatalogue::RequireReplaceable(*connection, where.schema);
    ServerPlace part = where;
    part.schema = NewPartName();
    StoreOptions patient = shown;
    patient.answerTimeout = LayerStores::WholeMapTimeout;
    std::unique_ptr<ILayerStore> store = PostgresLayerDatabase::Create(part.ToText(), patient);
    try {
        if (fill)
            fill(std::move(store));
        store.reset();
        if (connection->IsLost())
            connection->ConnectAgain();
        MapCatalogue::PutInPlace(*connection, part.schema, where.schema, ifExists);
    } catch (...) {
        store.reset();
        TakeBack(part, shown);
        throw;
    }
}

void ServerStores::Remove(const QString& place)
{
    try {
        const auto where = ServerPlace::OfMap(place);
        WithServer(
            where, {}, [&](ServerConnection& connection) { MapCatalogue::Remove(connection, where.schema); });
    } catch (const RunTimeError&) { // it stays
    }
}

std::unique_ptr<ILayerStore>
ServerStores::Open(const QString& place, OpenMode mode, const StoreOptions& options)
{
    return PostgresLayerDatabase::Open(place, mode, options);
}

bool ServerStores::IsInUse(const QString& place)
{
    bool isOpen = false;
    try {
        const auto where = ServerPlace::OfMap(place);
        WithServer(where, {}, [&](ServerConnection& connection) {
            isOpen = MapCatalogue::IsOpen(connection, where.schema);
        });
    } catch (const RunTimeError&) { // nobody can be asked
    }
    return isOpen;
}

bool ServerStores::Exists(const QString& place, const StoreOptions& options)
{
    WorkWatch watch;
    const auto where = ServerPlace::OfMap(place);
    return ServerConnection::Connect(where, options, watch)
        ->Run(
            "SELECT EXISTS (SELECT FROM pg_catalog.pg_namespace WHERE nspname OPERATOR(pg_catalog.=) $1)",
            {where.schema.toUtf8()})
        .Flag(0, 0);
}

} // namespace Orvane
