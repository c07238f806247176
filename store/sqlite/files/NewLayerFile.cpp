// SPDX-License-Identifier: MIT
#include "store/sqlite/files/NewLayerFile.h"

#include "store/StoreTexts.h"
#include "store/sqlite/engine/StoreErrors.h"

#include <QFile>

namespace Orvane {

namespace {

// Creates the file first, so that an existing file can never be mistaken for the new one.
void MakeEmptyFile(const QString& path)
{
    const StoreErrors errors(path);
    if (QFile::exists(path))
        throw errors.Failure(StoreTexts::FileExists);
    QFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        throw errors.Failure(StoreTexts::CannotCreate, file.errorString());
}

} // namespace

void MakeLayerFile(const QString& path, const std::function<void()>& fill)
{
    MakeEmptyFile(path);
    try {
        fill();
    } catch (...) {
        for (const char* companion : {"", "-journal", "-wal", "-shm"})
            QFile::remove(path + QLatin1String(companion));
        throw;
    }
}

} // namespace Orvane
