// SPDX-License-Identifier: MIT
#include "store/StorePlace.h"
#include "store/StoreTexts.h"
#include "store/opening/ServerMaps.h"
#include "store/shared/StoreErrors.h"

namespace Orvane::ServerMaps {

namespace {

[[noreturn]] void RefuseServer(const QString& place)
{
    throw StoreErrors(StoreErrors::Named{StorePlace::NameOf(place)}).Failure(StoreTexts::NoServers);
}

} // namespace

bool AreSupported()
{
    return false;
}

QString ServerIn(const QString& typed)
{
    RefuseServer(typed);
}

QString Canonical(const QString& place)
{
    return place;
}

QString ServerOf(const QString& place)
{
    RefuseServer(place);
}

QString PlaceOf(const QString&, const QString& map)
{
    RefuseServer(map);
}

QString NameOf(const QString& server)
{
    return server;
}

void Reach(const QString& server, const Access&)
{
    RefuseServer(server);
}

std::vector<ListedMap> List(const QString& server, const Access&)
{
    RefuseServer(server);
}

void Remove(const QString& place, const Access&)
{
    RefuseServer(place);
}

std::vector<MapHolder> Holders(const QString& place, const Access&)
{
    RefuseServer(place);
}

QStringList Roles(const QString& server, const Access&)
{
    RefuseServer(server);
}

void SetHolders(const QString& place, const std::vector<MapHolder>&, const Access&)
{
    RefuseServer(place);
}

} // namespace Orvane::ServerMaps
