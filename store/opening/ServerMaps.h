// SPDX-License-Identifier: MIT
#pragma once

#include "store/StoreOptions.h"
#include "store/StoreWatcher.h"
#include "store/postgres/maps/MapCatalogue.h"
#include "store/postgres/maps/MapRights.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace Orvane {

/// The maps on PostgreSQL servers, for programs that list and manage them. A server is named by its place, as
/// ServerPlace has it, without a map; a map by its place.
///
///     const QString server = ServerMaps::ServerIn("team");
///     for (const ListedMap& map : ServerMaps::List(server, access))
///         ... ServerMaps::PlaceOf(server, map.name) ...
///
/// Each function that has an Access makes a connection of its own and ends it, so any thread may call it. It
/// raises ConnectionLost if the server cannot be reached, DatabaseFailure if it refuses the user, and
/// UserCancelled. In a program that was built without PostgreSQL, all functions that raise something raise
/// DatabaseFailure.
namespace ServerMaps {

/// How a server is reached. The watcher is asked while the caller waits; false ends the call.
struct Access {
    StoreOptions options = {};
    StoreWatcher watcher = {};
};

/// False in a program that was built without PostgreSQL.
bool AreSupported();

/// The server that a user typed: the name of a service in PostgreSQL's service file, or a connection URI.
/// Raises DatabaseFailure if it is neither, or holds a password or a setting that only the user's own files
/// may hold.
QString ServerIn(const QString& typed);
/// A place as text, so that equal places have equal texts. Raises as ServerIn; a file stays as it is.
QString Canonical(const QString& place);
/// The server of a map. Raises as ServerIn.
QString ServerOf(const QString& place);
/// The map of that name on a server. Raises as ServerIn.
QString PlaceOf(const QString& server, const QString& map);
/// How the user reads a server; the text itself if it is not one.
QString NameOf(const QString& server);

/// Connects, and does nothing else: whether the server can be reached and takes the user.
void Reach(const QString& server, const Access& access);

/// All maps that the user may read, by name.
std::vector<ListedMap> List(const QString& server, const Access& access);
/// Removes a map with everything in it. Raises DatabaseLocked if somebody else has it open, and
/// DatabaseReadOnly if the user may not.
void Remove(const QString& place, const Access& access);

/// Who may do what with a map, apart from its owner, by role. Raises DatabaseFailure if there is no such map.
std::vector<MapHolder> Holders(const QString& place, const Access& access);
/// The roles of the server that a right can be given to, by name.
QStringList Roles(const QString& server, const Access& access);
/// Gives roles their rights, and takes back those of others who have some: all or nothing. The
/// owner keeps all rights. Raises as Holders, and DatabaseReadOnly if the user does not own the map.
void SetHolders(const QString& place, const std::vector<MapHolder>& holders, const Access& access);

} // namespace ServerMaps

} // namespace Orvane
