// SPDX-License-Identifier: MIT
#include "store/sqlite/files/LayerFileUse.h"

#include "store/sqlite/engine/NoMemoryError.h"
#include "store/sqlite/engine/SqliteConnection.h"

#include <QFileInfo>

#include <sqlite3.h>

namespace Orvane {

namespace {

// Asks for the lock that nobody gets while another connection has the file open with a write-ahead log.
bool CanBeLocked(sqlite3* handle)
{
    sqlite3_file* file = nullptr;
    sqlite3_file_control(handle, "main", SQLITE_FCNTL_FILE_POINTER, &file);
    if (!file || !file->pMethods)
        return true;
    int result = file->pMethods->xLock(file, SQLITE_LOCK_SHARED);
    if (result == SQLITE_OK)
        result = file->pMethods->xLock(file, SQLITE_LOCK_EXCLUSIVE);
    file->pMethods->xUnlock(file, SQLITE_LOCK_NONE);
    return (result & 0xFF) != SQLITE_BUSY;
}

} // namespace

// Opens the file only through SQLite: closing it otherwise would end the locks that this program has on it.
bool IsLayerFileInUse(const QString& path)
{
    try {
        if (!QFileInfo(path).isFile())
            return false;
        const SqliteConnection connection(path, SqliteConnection::Access::ReadWrite, {});
        return !CanBeLocked(connection.Handle());
    } catch (const NoMemoryError&) { // who takes this for "no" may replace a file that is open
        throw;
    } catch (const RunTimeError&) {
        return false;
    }
}

} // namespace Orvane
