// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayList>
#include <QString>

#include <vector>

namespace Orvane {

class ServerRows;

/// What a role may do with a map on a server. The owner of its schema may do everything besides: migrate,
/// rename and remove it, make tables, and grant.
enum class MapRight {
    Read, ///< see everything
    Edit, ///< change all rows of layers, groups and the host
};

/// A role that has a right on a map.
struct MapHolder {
    QString role; ///< of one user, of a group of them, or "public" for everybody
    MapRight right = MapRight::Read;
};

/// Statements by which the owner of a map says what others may do, run in one transaction. Nobody else gets
/// the right to create anything in the schema: such a map would not be sound.
namespace MapRights {

/// Gives a role that right, and takes back any other. It holds also for the tables that the same owner makes
/// later. role: one role, a group of roles, or "public" for everybody.
QByteArrayList Granting(const QString& schema, const QString& role, MapRight right);
/// Takes all rights back.
QByteArrayList Revoking(const QString& schema, const QString& role);

/// The query for the owner of the map in a schema and whether the user has its rights; no row without such a
/// map. The schema's name is its parameter.
QByteArray OwnerQuery();
/// The query for all roles that have a right on the map in a schema, except its owner, by name. The
/// schema's name is its parameter; HoldersIn reads the answer.
QByteArray HoldersQuery();
std::vector<MapHolder> HoldersIn(const ServerRows& rows);

} // namespace MapRights

} // namespace Orvane
