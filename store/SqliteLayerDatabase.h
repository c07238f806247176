// SPDX-License-Identifier: MIT
#pragma once

#include "store/StoreOptions.h"

#include <OrvaneShellLib/ILayerDatabase.h>
#include <OrvaneShellLib/Value.h>

#include <QString>
#include <QtGlobal>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace Orvane {

class ChangeRecorder;
class Changeset;
struct SqliteSession;

/// A layer database in an SQLite file, or in memory.
///
///     auto database = SqliteLayerDatabase::Open(path);
///     auto layers = database->OpenRecordset("Layers");
///     layers->Index("LayerIDIDX");
///     layers->Seek("=", 17);
///
/// The file is an ordinary SQLite database with a write-ahead log; a committed change is on disk. The host
/// may keep its own tables in it. All calls are made on one thread. Errors are RunTimeErrors that name the
/// file: DatabaseLocked when another program kept it locked for longer than StoreOptions allow,
/// NotALayerDatabase also when damage is found only while reading, DatabaseReadOnly, and DatabaseFailure for
/// everything else.
///
/// Cursors: destroy them before the database. A query cursor may return rows as they were when it was opened
/// or as they are when it reaches them; read inside a transaction to get one consistent state. A table cursor
/// survives changes made by other cursors, commits and rollbacks; it reads its row again after its Update,
/// and raises if the row is gone. Query cursors that are open while rows are changed may be read into memory,
/// so close long ones first.
class SqliteLayerDatabase final : public ILayerDatabase
{
public:
    /// Creates a new file with empty tables. Raises DatabaseFailure if a file of that name exists or cannot
    /// be created; nothing is left behind then.
    static std::unique_ptr<SqliteLayerDatabase> Create(const QString& path, const StoreOptions& options = {});

    /// Opens a file. Raises NotALayerDatabase for a foreign or damaged file, DatabaseTooNew for one of a
    /// newer version, DatabaseReadOnly if it is opened for writing and cannot be written, DatabaseFailure if
    /// it is missing; the file is not touched then. A file of an older version is migrated, except in
    /// ReadOnly mode.
    static std::unique_ptr<SqliteLayerDatabase>
    Open(const QString& path, OpenMode mode = OpenMode::ReadWrite, const StoreOptions& options = {});

    /// Creates empty tables in memory that exist as long as the object.
    static std::unique_ptr<SqliteLayerDatabase> CreateInMemory(const StoreOptions& options = {});

    /// Rolls back uncommitted changes and closes the file.
    ~SqliteLayerDatabase() override;

    /// Runs one statement; values are bound to its parameters ?1, ?2 ... in order, booleans as 0 and 1.
    /// Result rows are discarded.
    void Execute(const QString& sql, const std::vector<Value>& values = {});

    /// A cursor over a query with parameters. The caller owns it and destroys it before the database.
    std::unique_ptr<IRecordset> OpenQuery(const QString& sql, const std::vector<Value>& values = {});

    /// Records changes from now on; the caller owns the recorder and destroys it before the database.
    std::unique_ptr<ChangeRecorder> RecordChanges();
    /// Applies changes that were recorded in this database, in one transaction, and returns what actually
    /// changed: more than requested if rows were deleted together with others that they refer to. Returns
    /// nothing, and changes nothing, if a row is not as the changes expect it or another row is in its place.
    /// A row to be deleted may already be gone.
    std::optional<Changeset> Apply(const Changeset& changes);

    /// The path as it was given; empty for a database in memory.
    QString Path() const;
    /// True when rows cannot be changed.
    bool IsReadOnly() const;
    /// The key of the row that was inserted last, 0 before the first.
    qint64 LastInsertedID() const;
    /// How many rows the last Execute or Update changed.
    int ChangedRows() const;

    /// The listener is called with the text of each statement as it starts to run, with parameters as "?1";
    /// an empty function removes it. It must not use the database.
    void SetQueryListener(std::function<void(const QString& sql)> listener);

private:
    explicit SqliteLayerDatabase(std::unique_ptr<SqliteSession> session);

    std::unique_ptr<IRecordset> ILayerDatabase_OpenRecordset(const QString& source) override;
    void ILayerDatabase_BeginTrans() override;
    void ILayerDatabase_CommitTrans() override;
    void ILayerDatabase_Rollback() override;

    std::unique_ptr<SqliteSession> m_session;
};

} // namespace Orvane
