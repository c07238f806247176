// SPDX-License-Identifier: MIT
#include "shell/servers/ServerSettings.h"

#include <QSettings>
#include <QVariantMap>

namespace Orvane::ServerSettings {

namespace {

const QString ServersKey = QStringLiteral("Servers/All");
const QString LastKey = QStringLiteral("Servers/Last");
const QString FoldersKey = QStringLiteral("Servers/DataFolders"); // by place: a place would be a path of keys

} // namespace

QStringList Servers()
{
    return QSettings().value(ServersKey).toStringList();
}

void AddServer(const QString& server)
{
    QStringList servers = Servers();
    if (servers.contains(server))
        return;
    servers << server;
    QSettings().setValue(ServersKey, servers);
}

void RemoveServer(const QString& server)
{
    QStringList servers = Servers();
    servers.removeAll(server);
    QSettings().setValue(ServersKey, servers);
}

QString LastServer()
{
    return QSettings().value(LastKey).toString();
}

void SetLastServer(const QString& server)
{
    QSettings().setValue(LastKey, server);
}

QString DataFolder(const QString& place)
{
    return QSettings().value(FoldersKey).toMap().value(place).toString();
}

void SetDataFolder(const QString& place, const QString& folder)
{
    QVariantMap folders = QSettings().value(FoldersKey).toMap();
    if (folder.isEmpty())
        folders.remove(place);
    else
        folders.insert(place, folder);
    QSettings().setValue(FoldersKey, folders);
}

} // namespace Orvane::ServerSettings
