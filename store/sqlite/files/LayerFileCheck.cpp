// SPDX-License-Identifier: MIT
#include "store/sqlite/files/LayerFileCheck.h"

#include "store/StoreTexts.h"
#include "store/sqlite/engine/TimeBound.h"
#include "store/sqlite/files/LayerFileJournals.h"
#include "store/sqlite/files/LayerSchema.h"
#include "store/sqlite/files/PlainTables.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

namespace Orvane {

namespace {

constexpr qint64 HeaderSize = 100;
constexpr auto Magic = "SQLite format 3";
constexpr std::chrono::seconds LongestCheck{60}; // reads some gigabytes

// Offsets of the big-endian numbers in the file header.
enum HeaderOffset {
    PageSize = 16,
    ChangeCounter = 24,
    PageCount = 28,
    Version = 60,
    Application = 68,
    CountIsOf = 92
};

quint32 NumberAt(const QByteArray& header, HeaderOffset offset)
{
    return qFromBigEndian<quint32>(header.constData() + offset);
}

qint64 PageSizeIn(const QByteArray& header)
{
    const auto size = qFromBigEndian<quint16>(header.constData() + PageSize);
    return size == 1 ? 65536 : size;
}

QByteArray ReadHeader(const QString& path, const StoreErrors& errors)
{
    const QFileInfo info(path);
    if (!info.exists())
        throw errors.Failure(StoreTexts::MissingFile);
    if (!info.isFile())
        throw errors.Error(ErrorNumber::NotALayerDatabase, StoreTexts::NotALayerDatabase);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw errors.Failure(StoreTexts::CannotOpen, file.errorString());
    return file.read(HeaderSize);
}

void CheckHeader(const QByteArray& header, const StoreErrors& errors)
{
    const QByteArray magic(Magic, qsizetype(qstrlen(Magic) + 1));
    if (header.size() < HeaderSize || !header.startsWith(magic)
        || NumberAt(header, Application) != LayerSchema::ApplicationID)
        throw errors.Error(ErrorNumber::NotALayerDatabase, StoreTexts::NotALayerDatabase);
    if (NumberAt(header, Version) > quint32(LayerSchema::CurrentVersion))
        throw errors.Error(ErrorNumber::DatabaseTooNew, StoreTexts::TooNew);
}

void CheckLength(const QString& path, const QByteArray& header, const StoreErrors& errors)
{
    const bool countIsKnown = NumberAt(header, ChangeCounter) == NumberAt(header, CountIsOf);
    if (countIsKnown && QFileInfo(path).size() < PageSizeIn(header) * qint64(NumberAt(header, PageCount)))
        throw errors.Error(ErrorNumber::NotALayerDatabase, StoreTexts::Damaged);
}

void CheckContent(const QString& path, const StoreErrors& errors, const StoreOptions& options)
{
    SqliteConnection connection(path, SqliteConnection::Access::Immutable, options);
    const TimeBound bound(connection, LongestCheck);
    if (connection.Text("PRAGMA quick_check(1)") != QLatin1String("ok"))
        throw errors.Error(ErrorNumber::NotALayerDatabase, StoreTexts::Damaged);
    RequirePlainTables(connection);
    if (connection.Number("PRAGMA user_version") > 0)
        LayerSchema::Check(connection);
}

// False for a file without any write permission, even if the process could still write it: users protect maps
// in this way.
bool IsWritable(const QString& path)
{
    constexpr QFile::Permissions writers = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    const QFileInfo info(path);
    return (info.permissions() & writers) && info.isWritable() && QFileInfo(info.path()).isWritable();
}

} // namespace

SqliteConnection::Access CheckLayerFile(const QString& path, OpenMode mode, const StoreOptions& options)
{
    using Access = SqliteConnection::Access;
    const StoreErrors errors(options.shownPath.isEmpty() ? path : options.shownPath);
    const QByteArray header = ReadHeader(path, errors);
    CheckHeader(header, errors);
    // If there is a journal, the file alone cannot be checked: SQLite combines both when it opens the file.
    const bool hasJournal = HasJournal(path);
    if (!hasJournal) {
        CheckLength(path, header, errors);
        CheckContent(path, errors, options);
    }
    const bool writable = IsWritable(path);
    if (mode == OpenMode::ReadOnly)
        return writable ? Access::QueryOnly : hasJournal ? Access::ReadOnly : Access::Immutable;
    if (!writable)
        throw errors.Error(ErrorNumber::DatabaseReadOnly, StoreTexts::ReadOnly);
    return Access::ReadWrite;
}

} // namespace Orvane
