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
/// The file is an ordinary SQLite database with a write-ahead log; a committed change is on the disk. The
/// host may keep tables of its own in it. All calls are made on one thread. Errors are RunTimeErrors that
/// name the file: DatabaseLocked when another program held it longer than StoreOptions allow,
/// NotALayerDatabase also when damage shows only while reading, DatabaseReadOnly, and DatabaseFailure for all
/// else.
///
/// Cursors: destroy them before the database. A query cursor shows the rows as they were when it was opened
/// or as they are when it comes to them; to be sure, read inside a transaction. A table cursor stays valid
/// through other cursors' changes, through commits and rollbacks; it reads its row anew after its Update, and
/// raises when the row is gone. Query cursors that are open while rows are changed may be read into memory,
/// so close long ones first.
class SqliteLayerDatabase final : public ILayerDatabase
{
public:
    /// Makes a new file with empty tables. Raises DatabaseFailure when a file of that name exists or none can
    /// be made there; nothing is left behind then.
    static std::unique_ptr<SqliteLayerDatabase> Create(const QString& path, const StoreOptions& options = {});

    /// Opens a file. Raises NotALayerDatabase for a foreign or damaged file, DatabaseTooNew for one of a
    /// newer version, DatabaseReadOnly when it is to be written and cannot, DatabaseFailure when it is
    /// missing; the file is not touched then. An older version is migrated, except in ReadOnly mode.
    static std::unique_ptr<SqliteLayerDatabase>
    Open(const QString& path, OpenMode mode = OpenMode::ReadWrite, const StoreOptions& options = {});

    /// Makes empty tables that live as long as the object.
    static std::unique_ptr<SqliteLayerDatabase> CreateInMemory(const StoreOptions& options = {});

    /// Rolls back what was not committed, and closes the file.
    ~SqliteLayerDatabase() override;

    /// Runs one statement; values are bound to its parameters ?1, ?2 ... in their order, booleans as 0 and 1.
    /// Rows that it answers are dropped.
    void Execute(const QString& sql, const std::vector<Value>& values = {});

    /// A cursor over a query with parameters. The caller owns it and destroys it before the database.
    std::unique_ptr<IRecordset> OpenQuery(const QString& sql, const std::vector<Value>& values = {});

    /// Notes what changes from now on; the caller owns the recorder and destroys it before the database.
    std::unique_ptr<ChangeRecorder> RecordChanges();
    /// Makes changes that were recorded in this database, in one transaction, and answers what changed by it:
    /// more than was asked for where rows went with others that they refer to. Answers nothing, and changes
    /// nothing, when a row is not as the changes expect it, or another row stands in its place. A row that is
    /// to go may be gone already.
    std::optional<Changeset> Apply(const Changeset& changes);

    /// The file as it was given; empty in memory.
    QString Path() const;
    /// True when rows cannot be changed.
    bool IsReadOnly() const;
    /// The key of the row that was inserted last, 0 before the first.
    qint64 LastInsertedID() const;
    /// How many rows the last Execute or Update changed.
    int ChangedRows() const;

    /// The listener is called with the text of each statement as it begins to run, parameters as "?1"; an
    /// empty function ends that. It must not use the database.
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
