// SPDX-License-Identifier: MIT
#include "store/opening/ServerMaps.h"

#include "store/StorePlace.h"
#include "store/StoreTexts.h"
#include "store/postgres/link/ServerConnection.h"
#include "store/postgres/link/ServerPipeline.h"
#include "store/postgres/link/ServerPlace.h"
#include "store/shared/StoreErrors.h"
#include "store/shared/WorkWatch.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QUrl>

#include <algorithm>
#include <utility>

namespace Orvane::ServerMaps {

namespace {

constexpr auto RolesQuery = "SELECT rolname FROM pg_catalog.pg_roles WHERE NOT starts_with(rolname::text, "
                            "'pg_') ORDER BY 1 LIMIT 10000";

/// A connection for one call. Only the server's own functions and operators are found by it.
class Link
{
public:
    Link(const QString& place, const Access& access) : Link(ServerPlace::FromText(place), access) { }
    Link(ServerPlace place, const Access& access) : m_place(std::move(place))
    {
        m_watch.SetWatcher(access.watcher);
        m_connection = ServerConnection::Connect(m_place, access.options, m_watch);
    }

    ServerConnection& Connection() const { return *m_connection; }
    const QString& Map() const { return m_place.schema; }

private:
    ServerPlace m_place;
    WorkWatch m_watch;
    std::unique_ptr<ServerConnection> m_connection;
};

bool IsServiceName(const QString& typed)
{
    constexpr auto InNoService = "/:@?=& ";
    return !typed.isEmpty() && std::none_of(typed.begin(), typed.end(), [&](QChar letter) {
        return QLatin1String(InNoService).contains(letter) || !letter.isPrint();
    });
}

ServerPlace WithoutMap(const QString& place)
{
    ServerPlace server = ServerPlace::FromText(place);
    server.schema.clear();
    return server;
}

bool IsAmong(const std::vector<MapHolder>& holders, const QString& role)
{
    return std::any_of(
        holders.begin(), holders.end(), [&](const MapHolder& holder) { return holder.role == role; });
}

struct MapOwner {
    QString role;
    bool isUser = false; // the user has its rights
};

MapOwner OwnerOf(const Link& link)
{
    const ServerRows rows = link.Connection().Run(MapRights::OwnerQuery(), {link.Map().toUtf8()});
    if (rows.Count() == 0)
        throw link.Connection().Errors().Failure(StoreTexts::MissingFile);
    return {rows.Text(0, 0), rows.Flag(0, 1)};
}

// The server itself only warns, and changes nothing.
MapOwner RequireOwner(const Link& link)
{
    MapOwner owner = OwnerOf(link);
    if (owner.isUser)
        return owner;
    throw link.Connection().Errors().Error(ErrorNumber::DatabaseReadOnly, StoreTexts::NotOwner, owner.role);
}

std::vector<MapHolder> ReadHolders(const Link& link)
{
    const ServerRows rows = link.Connection().Run(MapRights::HoldersQuery(), {link.Map().toUtf8()});
    return MapRights::HoldersIn(rows);
}

} // namespace

bool AreSupported()
{
    return true;
}

QString ServerIn(const QString& typed)
{
    const QString text = typed.trimmed();
    if (!IsServiceName(text))
        return WithoutMap(text).ToText();
    const QString service = QString::fromUtf8(QUrl::toPercentEncoding(text));
    return ServerPlace::FromText(QStringLiteral("postgresql:///?service=") + service).ToText();
}

QString Canonical(const QString& place)
{
    return StorePlace::IsFile(place) ? place : ServerPlace::FromText(place).ToText();
}

QString ServerOf(const QString& place)
{
    return WithoutMap(place).ToText();
}

QString PlaceOf(const QString& server, const QString& map)
{
    ServerPlace place = ServerPlace::FromText(server);
    place.schema = map;
    return place.ToText();
}

QString NameOf(const QString& server)
{
    try {
        return ServerPlace::FromText(server).ServerName();
    } catch (const RunTimeError&) {
        return server;
    }
}

void Reach(const QString& server, const Access& access)
{
    const Link link(server, access);
}

std::vector<ListedMap> List(const QString& server, const Access& access)
{
    return MapCatalogue::Maps(Link(server, access).Connection());
}

void Remove(const QString& place, const Access& access)
{
    const Link link(ServerPlace::OfMap(place), access);
    MapCatalogue::Remove(link.Connection(), link.Map());
}

std::vector<MapHolder> Holders(const QString& place, const Access& access)
{
    const Link link(ServerPlace::OfMap(place), access);
    OwnerOf(link);
    return ReadHolders(link);
}

QStringList Roles(const QString& server, const Access& access)
{
    const ServerRows rows = Link(server, access).Connection().Run(RolesQuery);
    QStringList roles;
    roles.reserve(rows.Count());
    for (int row = 0; row < rows.Count(); ++row)
        roles << rows.Text(row, 0);
    return roles;
}

void SetHolders(const QString& place, const std::vector<MapHolder>& holders, const Access& access)
{
    const Link link(ServerPlace::OfMap(place), access);
    const MapOwner owner = RequireOwner(link);
    QByteArrayList statements;
    for (const MapHolder& holder : ReadHolders(link)) {
        if (!IsAmong(holders, holder.role))
            statements << MapRights::Revoking(link.Map(), holder.role);
    }
    for (const MapHolder& holder : holders) {
        if (holder.role != owner.role)
            statements << MapRights::Granting(link.Map(), holder.role, holder.right);
    }
    ServerPipeline pipeline(link.Connection());
    for (const QByteArray& statement : statements)
        pipeline.AddOnce(statement);
    pipeline.Finish();
}

} // namespace Orvane::ServerMaps
