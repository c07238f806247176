// SPDX-License-Identifier: MIT
#include "store/sqlite/files/NewLayerFile.h"

#include "files/DiskSync.h"
#include "files/FileReplacement.h"
#include "store/StoreTexts.h"
#include "store/sqlite/engine/SqliteErrors.h"
#include "store/sqlite/engine/SqliteStatement.h"
#include "store/sqlite/files/LayerFileCheck.h"
#include "store/sqlite/files/LayerFileUse.h"

#include <QFile>
#include <QFileInfo>

#include <filesystem>
#include <sqlite3.h>

namespace Orvane {

namespace {

QString PartPath(const QString& place)
{
    return place + QLatin1String(".part");
}

QString AbsolutePlace(const QString& place, const StoreErrors& errors)
{
    if (place.isEmpty())
        throw errors.Failure(StoreTexts::CannotCreate);
    return QFileInfo(place).absoluteFilePath();
}

StoreOptions OptionsNaming(const QString& place, StoreOptions options)
{
    if (options.shownPath.isEmpty())
        options.shownPath = place;
    return options;
}

// Never takes a file that exists for the new one.
void MakeEmptyFile(const QString& path, const StoreErrors& errors)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        throw errors.Failure(StoreTexts::CannotCreate, WhyNotWritten(path, file.errorString()));
}

/// SQLite treats a copy as a write, although it does not change the original: lets a connection copy that
/// refuses writes, as long as it exists.
class CopyPermit
{
public:
    explicit CopyPermit(SqliteConnection& original)
        : m_original(original), m_refuses(original.Number("PRAGMA query_only") == 1)
    {
        if (m_refuses)
            m_original.Run("PRAGMA query_only = OFF");
    }
    ~CopyPermit()
    {
        if (m_refuses)
            sqlite3_exec(m_original.Handle(), "PRAGMA query_only = ON", nullptr, nullptr, nullptr);
    }
    CopyPermit(const CopyPermit&) = delete;
    CopyPermit& operator=(const CopyPermit&) = delete;

private:
    SqliteConnection& m_original;
    bool m_refuses;
};

// Closing a connection writes the log too, but does not say whether it could.
void WriteLogIntoFile(SqliteConnection& connection)
{
    int inLog = 0;
    int written = 0;
    const int result = sqlite3_wal_checkpoint_v2(
        connection.Handle(), "main", SQLITE_CHECKPOINT_TRUNCATE, &inLog, &written);
    if (result != SQLITE_OK)
        connection.Raise(result);
    if (inLog != written)
        throw connection.Errors().Error(ErrorNumber::DatabaseLocked, StoreTexts::Locked);
}

void FinishFile(const QString& path, const StoreOptions& options, const StoreErrors& errors)
{
    SqliteConnection connection(path, SqliteConnection::Access::ReadWrite, options);
    connection.Number("PRAGMA user_version"); // opens the log
    WriteLogIntoFile(connection);
    if (connection.Text("PRAGMA journal_mode = DELETE") != QLatin1String("delete"))
        throw errors.Error(ErrorNumber::DatabaseLocked, StoreTexts::Locked);
    connection.Close();
    if (const std::error_code error = SyncFile(path))
        throw errors.Failure(StoreTexts::CannotStore, WhyNotWritten(path, qt_error_string(error.value())));
}

void CheckFile(const QString& path, const StoreOptions& options, const StoreErrors& errors)
{
    if (HasJournal(path))
        throw errors.Error(ErrorNumber::DatabaseLocked, StoreTexts::Locked);
    CheckLayerFile(path, OpenMode::ReadOnly, options);
}

bool IsAboutOriginal(int resultCode)
{
    const int kind = resultCode & 0xFF;
    return kind != SQLITE_FULL && kind != SQLITE_CANTOPEN
        && (kind != SQLITE_IOERR || resultCode == SQLITE_IOERR_READ || resultCode == SQLITE_IOERR_SHORT_READ);
}

} // namespace

NewLayerFile::NewLayerFile(const QString& place, IfExists ifExists, const StoreOptions& options)
    : m_ifExists(ifExists), m_options(OptionsNaming(place, options)), m_errors(m_options.shownPath),
      m_place(AbsolutePlace(place, m_errors)), m_path(PartPath(m_place)), m_removal(m_path)
{
    CheckPlace();
    if (IsLayerFileInUse(m_path))
        throw m_errors.Error(ErrorNumber::DatabaseLocked, StoreTexts::InUse);
    RemoveLayerFile(m_path);
    MakeEmptyFile(m_path, m_errors);
    m_removal.Arm();
}

void NewLayerFile::CopyFrom(SqliteConnection& original) const
{
    const CopyPermit permit(original);
    SqliteStatement copy(original, QStringLiteral("VACUUM INTO ?1"));
    copy.BindAll({m_path});
    int result = SQLITE_ROW;
    while (result == SQLITE_ROW)
        result = copy.TryStep();
    if (result == SQLITE_DONE)
        return;
    const StoreErrors& errors = IsAboutOriginal(result) ? original.Errors() : m_errors;
    throw SqliteError(errors, result, sqlite3_errmsg(original.Handle()));
}

void NewLayerFile::PutInPlace()
{
    FinishFile(m_path, m_options, m_errors);
    CheckFile(m_path, m_options, m_errors);
    SettleJournals(m_path); // an empty log that SQLite could not remove
    CheckPlace();
    // What a crash has left beside the old file belongs to it: it must not be lost if the new file cannot be
    // moved, and never be applied to the new file.
    SettleJournals(m_place);
    const QString folder = QFileInfo(m_place).path(); // once it is moved, nothing may fail
    Move();
    m_removal.Disarm(); // what is there from now on may be another program's
    SyncFolder(folder);
}

// A program that has the old file open would continue to write into a file that no longer exists.
void NewLayerFile::CheckPlace() const
{
    if (m_ifExists == IfExists::Refuse && QFile::exists(m_place))
        throw m_errors.Failure(StoreTexts::FileExists);
    if (IsLayerFileInUse(m_place))
        throw m_errors.Error(ErrorNumber::DatabaseLocked, StoreTexts::InUse);
}

void NewLayerFile::Move() const
{
    const std::filesystem::path from(m_path.toStdU16String());
    const std::filesystem::path place(m_place.toStdU16String());
    if (m_ifExists == IfExists::Refuse)
        MakeEmptyFile(m_place, m_errors); // takes the name
    std::error_code error;
    std::filesystem::rename(from, place, error);
    if (!error)
        return;
    std::error_code ignored;
    if (m_ifExists == IfExists::Refuse)
        std::filesystem::remove(place, ignored);
    throw m_errors.Failure(StoreTexts::CannotStore, WhyNotWritten(m_place, qt_error_string(error.value())));
}

} // namespace Orvane
