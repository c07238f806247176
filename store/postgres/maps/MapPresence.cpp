// SPDX-License-Identifier: MIT
#include "store/postgres/maps/MapPresence.h"

#include "store/postgres/link/ServerRows.h"
#include "store/postgres/maps/NoteFunction.h"

namespace Orvane::MapPresence {

namespace {

constexpr qint64 MapLocks = 0x4F52564E; // the upper half of the locks' numbers: other programs use others

QByteArray Lock(const char* function, quint32 map)
{
    return QByteArray("SELECT ") + function + '(' + QByteArray::number((MapLocks << 32) | qint64(map)) + ')';
}

} // namespace

QByteArray Joining(quint32 map)
{
    return Lock("pg_advisory_lock_shared", map);
}

QByteArray Leaving(quint32 map)
{
    return Lock("pg_advisory_unlock_shared", map);
}

QByteArray Announcing(quint32 map)
{
    return "NOTIFY " + NoteFunction::Channel(map) + ", '" + UsersChanged + '\'';
}

QByteArray UsersQuery()
{
    return "SELECT l.objid, a.usename, a.application_name, a.pid FROM pg_locks AS l"
           " JOIN pg_stat_activity AS a ON a.pid = l.pid"
           " JOIN pg_database AS d ON d.oid = l.database AND d.datname = current_database()"
           " WHERE l.locktype = 'advisory' AND l.objsubid = 1 AND l.granted AND l.mode = 'ShareLock'"
           " AND l.classid = '"
        + QByteArray::number(MapLocks) + "'::oid ORDER BY 2, 4";
}

std::vector<MapUser> UsersIn(const ServerRows& rows)
{
    std::vector<MapUser> users;
    users.reserve(size_t(rows.Count()));
    for (int row = 0; row < rows.Count(); ++row)
        users.push_back(
            {quint32(rows.Number(row, 0)), rows.Text(row, 1), rows.Text(row, 2), int(rows.Number(row, 3))});
    return users;
}

QStringList RolesOf(const std::vector<MapUser>& users, quint32 map, int ownBackend)
{
    QStringList roles;
    for (const MapUser& user : users) {
        if (user.map == map && user.backend != ownBackend && !roles.contains(user.role))
            roles << user.role;
    }
    return roles;
}

QByteArray Excluding(quint32 map)
{
    return Lock("pg_try_advisory_xact_lock", map);
}

} // namespace Orvane::MapPresence
