// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace Orvane {

/// What this user has set about servers, kept in the application's settings: places, never passwords.
namespace ServerSettings {

/// The servers that the user has added, in that order, as ServerMaps names them.
QStringList Servers();
/// Adds a server at the end, unless it is there.
void AddServer(const QString& server);
void RemoveServer(const QString& server);

/// The server that was chosen last; empty for none.
QString LastServer();
void SetLastServer(const QString& server);

/// Where the relative paths of the data of a map on a server start on this computer; empty if it is not set.
QString DataFolder(const QString& place);
/// folder: absolute; empty for none.
void SetDataFolder(const QString& place, const QString& folder);

} // namespace ServerSettings

} // namespace Orvane
