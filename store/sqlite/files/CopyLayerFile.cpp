// SPDX-License-Identifier: MIT
#include "store/sqlite/files/CopyLayerFile.h"

#include "store/sqlite/engine/SqliteConnection.h"
#include "store/sqlite/files/LayerFileCheck.h"
#include "store/sqlite/files/LayerSchema.h"
#include "store/sqlite/files/NewLayerFile.h"
#include "store/sqlite/files/PlainTables.h"

namespace Orvane {

void CopyLayerFile(const QString& from, const QString& to)
{
    const StoreOptions options;
    SqliteConnection connection(from, CheckLayerFile(from, OpenMode::ReadOnly, options), options);
    LayerSchema::CheckVersion(connection);
    RequirePlainTables(connection);
    LayerSchema::Check(connection);
    NewLayerFile copy(to, IfExists::Refuse, {});
    copy.CopyFrom(connection);
    copy.PutInPlace();
}

} // namespace Orvane
