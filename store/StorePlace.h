// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Orvane {

/// Where a store is: the path of a file, or a map on a server:
///
///     town.orvane
///     postgresql:///?service=team&schema=Town
///
/// Nothing here asks a file system or a server, and nothing raises.
namespace StorePlace {

/// False for a place on a server; true for everything else.
bool IsFile(const QString& place);
/// The absolute path of a file; a place on a server as it is.
QString Canonical(const QString& place);
/// What the user calls the store: the name of the file without its last extension, or the name of the map on
/// the server.
QString NameOf(const QString& place);

/// The same with the extension of a file, as messages and lists show it.
QString FileNameOf(const QString& place);
/// The same with the server of a map on one: "Town (team)".
QString TitleOf(const QString& place);

} // namespace StorePlace

} // namespace Orvane
