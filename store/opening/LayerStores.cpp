// SPDX-License-Identifier: MIT
#include "store/opening/LayerStores.h"

#include "store/sqlite/SqliteLayerDatabase.h"
#include "store/sqlite/files/LayerFileJournals.h"
#include "store/sqlite/files/LayerFileUse.h"

namespace Orvane {

std::unique_ptr<ILayerStore> LayerStores::Create(const QString& place, const StoreOptions& options)
{
    return SqliteLayerDatabase::Create(place, options);
}

void LayerStores::Make(
    const QString& place, IfExists ifExists, const StoreFiller& fill, const StoreOptions& options)
{
    SqliteLayerDatabase::Make(place, ifExists, fill, options);
}

void LayerStores::Remove(const QString& place)
{
    RemoveLayerFile(place);
}

std::unique_ptr<ILayerStore>
LayerStores::Open(const QString& place, OpenMode mode, const StoreOptions& options)
{
    return SqliteLayerDatabase::Open(place, mode, options);
}

std::unique_ptr<ILayerStore> LayerStores::CreateInMemory(const StoreOptions& options)
{
    return SqliteLayerDatabase::CreateInMemory(options);
}

bool LayerStores::IsInUse(const QString& place)
{
    return IsLayerFileInUse(place);
}

} // namespace Orvane
