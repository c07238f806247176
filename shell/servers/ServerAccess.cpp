// SPDX-License-Identifier: MIT
#include "shell/servers/ServerAccess.h"

#include "mapkit/postgis/PostgisTables.h"
#include "shell/servers/ServerSettings.h"
#include "store/StorePlace.h"
#include "store/opening/ServerMaps.h"

#include <utility>

namespace Orvane {

MapAccess AccessHere(const QString& place, std::shared_ptr<IServerLogin> login)
{
    if (StorePlace::IsFile(place) || !ServerMaps::AreSupported())
        return {};
    MapAccess access;
    access.tables = std::make_shared<const PostgisTables>(ServerMaps::ServerOf(place), std::move(login));
    access.dataFolder = ServerSettings::DataFolder(ServerMaps::Canonical(place));
    return access;
}

} // namespace Orvane
