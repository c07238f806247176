// SPDX-License-Identifier: MIT
#include "store/sqlite/files/LayerFileJournals.h"

#include "store/StoreTexts.h"
#include "store/sqlite/engine/SqliteConnection.h"

#include <QFile>
#include <QFileInfo>

namespace Orvane {

namespace {

constexpr auto Log = "-wal";
constexpr auto LogIndex = "-shm";
constexpr auto RollbackJournal = "-journal";

void RemoveBeside(const QString& path)
{
    for (const char* suffix : {Log, LogIndex, RollbackJournal})
        QFile::remove(path + QLatin1String(suffix));
}

void Absorb(const QString& path)
{
    SqliteConnection connection(path, SqliteConnection::Access::ReadWrite, {});
    connection.Number("PRAGMA user_version"); // reading takes back a transaction that a crash has cut off
    if (connection.Text("PRAGMA journal_mode = DELETE") != QLatin1String("delete"))
        throw connection.Errors().Error(ErrorNumber::DatabaseLocked, StoreTexts::Locked);
    connection.Close();
}

} // namespace

bool HasJournal(const QString& path)
{
    const QString real = QFileInfo(path).canonicalFilePath(); // journals are where a link leads
    const auto hasContent
        = [&real](const char* suffix) { return QFileInfo(real + QLatin1String(suffix)).size() > 0; };
    return hasContent(Log) || hasContent(RollbackJournal);
}

void SettleJournals(const QString& path)
{
    try {
        if (QFile::exists(path) && HasJournal(path))
            Absorb(path);
    } catch (const RunTimeError& error) {
        if (error.Number() != int(ErrorNumber::NotALayerDatabase))
            throw;
    }
    RemoveBeside(path);
}

void RemoveLayerFile(const QString& path)
{
    QFile::remove(path);
    RemoveBeside(path);
}

LayerFileRemoval::LayerFileRemoval(const QString& path)
{
    size_t next = 0;
    for (const char* suffix : {"", Log, LogIndex, RollbackJournal})
        m_files[next++] = (path + QLatin1String(suffix)).toStdU16String();
}

LayerFileRemoval::~LayerFileRemoval()
{
    std::error_code ignored;
    for (const auto& file : m_files) {
        if (m_isArmed)
            std::filesystem::remove(file, ignored);
    }
}

} // namespace Orvane
