// SPDX-License-Identifier: MIT
#include "store/sqlite/engine/RegularFiles.h"

#include "store/StoreTexts.h"
#include "store/shared/StoreErrors.h"

#include <QDir>
#include <QFileInfo>

namespace Orvane {

void RequireRegularFiles(const QString& path, const StoreErrors& errors)
{
    // SQLite looks for the other files where a link to the database leads.
    const QString real = QFileInfo(path).canonicalFilePath();
    for (const char* suffix : {"", "-journal", "-wal", "-shm"}) {
        const QFileInfo file((real.isEmpty() ? path : real) + QLatin1String(suffix));
        if (file.exists() && !file.isFile())
            throw errors.Failure(StoreTexts::NotARegularFile, QDir::toNativeSeparators(file.filePath()));
    }
}

} // namespace Orvane
