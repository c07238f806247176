// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <vector>

namespace Orvane {

class ServerRows;

/// Somebody who has a map open.
struct MapUser {
    quint32 map = 0; ///< the OID of the map's schema
    QString role; ///< as which role of the server
    QString program; ///< what the program calls itself, may be empty
    int backend = 0; ///< the server's process for the connection
};

/// Who has which map open. Each open store holds a lock of the server that others can see, and that ends with
/// its connection, however that ends. Every role may ask.
namespace MapPresence {

/// Takes the lock for the map in the schema with that OID, for as long as the connection lasts.
QByteArray Joining(quint32 map);
/// Gives it back.
QByteArray Leaving(quint32 map);

/// Tells all who listen to that map that somebody came or left: they get the notice UsersChanged.
QByteArray Announcing(quint32 map);
inline constexpr const char* UsersChanged = "users";

/// The query for all who have maps of this database open, in the order of their roles; UsersIn reads the
/// answer.
QByteArray UsersQuery();
std::vector<MapUser> UsersIn(const ServerRows& rows);
/// Their roles, each once, with those of other connections only. ownBackend: as MapUser::backend.
QStringList RolesOf(const std::vector<MapUser>& users, quint32 map, int ownBackend);

/// The query that keeps others from opening the map with that OID until the transaction ends: true if nobody
/// else has it open.
QByteArray Excluding(quint32 map);

} // namespace MapPresence

} // namespace Orvane
