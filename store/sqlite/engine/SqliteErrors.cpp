// SPDX-License-Identifier: MIT
#include "store/sqlite/engine/SqliteErrors.h"

#include "store/StoreTexts.h"
#include "store/shared/StoreErrors.h"

#include <sqlite3.h>

namespace Orvane {

RunTimeError SqliteError(const StoreErrors& errors, int resultCode, const char* message)
{
    switch (resultCode & 0xFF) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return errors.Error(ErrorNumber::DatabaseLocked, StoreTexts::Locked);
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
        return errors.Error(ErrorNumber::NotALayerDatabase, StoreTexts::Damaged);
    case SQLITE_READONLY:
        return errors.Error(ErrorNumber::DatabaseReadOnly, StoreTexts::ReadOnly);
    case SQLITE_INTERRUPT: // by TimeBound; the connection knows when the user cancelled
        return errors.Failure(StoreTexts::TooLong);
    case SQLITE_FULL:
        return errors.Failure(StoreTexts::DiskFull);
    case SQLITE_CANTOPEN:
        return errors.Failure(StoreTexts::CannotOpen, QString::fromUtf8(message));
    default:
        return errors.Failure(StoreTexts::Refused, QString::fromUtf8(message));
    }
}

} // namespace Orvane
