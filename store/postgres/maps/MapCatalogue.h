// SPDX-License-Identifier: MIT
#pragma once

#include "store/StoreOptions.h"

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <vector>

namespace Orvane {

class ServerConnection;

/// A map on a server, as a list shows it.
struct ListedMap {
    quint32 number = 0; ///< the OID of its schema
    QString name; ///< of its schema, by which it is opened
    QString title; ///< what its users call it
    QString owner; ///< the role that may migrate, rename and remove it
    bool isOwn = false; ///< the user has the owner's rights
    bool mayEdit = false; ///< the user may change it, not only read it
    qint32 version = 0; ///< as MapSchema::CurrentVersion
    QDateTime changed; ///< when it was changed last, in UTC; invalid if nothing is known
    QStringList users; ///< the roles of others that have it open
};

/// The maps in one database of a server. All functions raise database errors, and change nothing then. They
/// must not be called in a transaction.
namespace MapCatalogue {

/// What the names of maps begin with that are being filled, or whose filling was broken off.
inline constexpr const char* PartBeginning = "orvane.part-";

/// All maps that the user may read, by name; parts of maps only for their owners, who may remove them.
/// Nothing that somebody put into a schema is run. A map that cannot be read at this moment, such as one that
/// is being migrated, is left out.
std::vector<ListedMap> Maps(ServerConnection& connection);

/// True if somebody else has the map open; false if there is no such map.
bool IsOpen(ServerConnection& connection, const QString& name);

/// Raises DatabaseFailure if there is a schema of that name, whatever it holds.
void RequireFree(ServerConnection& connection, const QString& name);

/// Raises DatabaseFailure if there is a schema of that name that is no map, or has more than a map.
void RequireReplaceable(ServerConnection& connection, const QString& name);

/// Removes a map with everything in it. Raises DatabaseLocked if somebody else has it open, DatabaseReadOnly
/// if the user may not, and DatabaseFailure if its schema has relations that are not the map's, or others
/// depend on it.
void Remove(ServerConnection& connection, const QString& name);
/// Gives a map another name, which is also its title. Raises as Remove, and DatabaseFailure if the name is
/// taken, and NotALayerDatabase if the map is not sound.
void Rename(ServerConnection& connection, const QString& name, const QString& newName);
/// As Rename, for a map that was made just now, and that nobody else knows. A map that has the name already
/// is removed in the same moment if it may be replaced; raises as Remove then, and both stay. Nobody's
/// rights on the old map hold for the new one.
void PutInPlace(ServerConnection& connection, const QString& made, const QString& name, IfExists ifExists);

/// Brings a map of an older version to the current one. The search path is the map's. Raises as Remove.
void Migrate(ServerConnection& connection, const QString& name);

} // namespace MapCatalogue

} // namespace Orvane
