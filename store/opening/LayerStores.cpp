// SPDX-License-Identifier: MIT
#include "store/opening/LayerStores.h"

#include "store/StorePlace.h"
#include "store/opening/ServerStores.h"
#include "store/sqlite/SqliteLayerDatabase.h"
#include "store/sqlite/files/LayerFileJournals.h"
#include "store/sqlite/files/LayerFileUse.h"

#include <QFileInfo>

namespace Orvane {

std::unique_ptr<ILayerStore> LayerStores::Create(const QString& place, const StoreOptions& options)
{
    if (!StorePlace::IsFile(place))
        return ServerStores::Create(place, options);
    return SqliteLayerDatabase::Create(place, options);
}

void LayerStores::Make(
    const QString& place, IfExists ifExists, const StoreFiller& fill, const StoreOptions& options)
{
    if (StorePlace::IsFile(place))
        SqliteLayerDatabase::Make(place, ifExists, fill, options);
    else
        ServerStores::Make(place, ifExists, fill, options);
}

void LayerStores::Remove(const QString& place)
{
    if (StorePlace::IsFile(place))
        RemoveLayerFile(place);
    else
        ServerStores::Remove(place);
}

std::unique_ptr<ILayerStore>
LayerStores::Open(const QString& place, OpenMode mode, const StoreOptions& options)
{
    if (!StorePlace::IsFile(place))
        return ServerStores::Open(place, mode, options);
    return SqliteLayerDatabase::Open(place, mode, options);
}

bool LayerStores::Exists(const QString& place, const StoreOptions& options)
{
    return StorePlace::IsFile(place) ? QFileInfo::exists(place) : ServerStores::Exists(place, options);
}

std::unique_ptr<ILayerStore> LayerStores::CreateInMemory(const StoreOptions& options)
{
    return SqliteLayerDatabase::CreateInMemory(options);
}

bool LayerStores::IsInUse(const QString& place)
{
    return StorePlace::IsFile(place) ? IsLayerFileInUse(place) : ServerStores::IsInUse(place);
}

} // namespace Orvane
