// SPDX-License-Identifier: MIT
#include "store/sqlite/files/LayerFileUse.h"

#include "store/sqlite/engine/SqliteConnection.h"
#include "store/sqlite/files/LayerSchema.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QFileInfo>

namespace Orvane {

namespace {

constexpr StoreOptions NoWaiting{std::chrono::milliseconds(0)};

} // namespace

// Opens the file only through SQLite: closing it otherwise would end the locks that this program has on it.
bool IsLayerFileInUse(const QString& path)
{
    try {
        if (!QFileInfo(path).isFile())
            return false;
        SqliteConnection connection(path, SqliteConnection::Access::ReadWrite, NoWaiting);
        if (quint32(connection.Number("PRAGMA application_id")) == LayerSchema::ApplicationID)
            connection.Run("PRAGMA journal_mode = DELETE"); // possible only if the file is not open elsewhere
        return false;
    } catch (const RunTimeError& error) {
        return error.Number() == int(ErrorNumber::DatabaseLocked);
    }
}

} // namespace Orvane
