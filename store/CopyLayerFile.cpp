// SPDX-License-Identifier: MIT
#include "store/CopyLayerFile.h"

#include "store/LayerFileCheck.h"
#include "store/LayerSchema.h"
#include "store/SqliteStatement.h"

namespace Orvane {

void CopyLayerFile(const QString& from, const QString& to)
{
    const StoreOptions options;
    SqliteConnection connection(from, CheckLayerFile(from, OpenMode::ReadOnly, options), options);
    LayerSchema::CheckVersion(connection);
    LayerSchema::Check(connection);
    // SQLite counts a copy among the writes, though it leaves this file alone.
    connection.Run("PRAGMA query_only = OFF");
    SqliteStatement copy(connection, QStringLiteral("VACUUM INTO ?1"));
    copy.BindAll({to});
    while (copy.Step()) { }
}

} // namespace Orvane
