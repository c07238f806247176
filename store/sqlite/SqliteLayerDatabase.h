// SPDX-License-Identifier: MIT
#pragma once

#include "store/ILayerStore.h"
#include "store/StoreOptions.h"
#include "store/shared/ITableTransfer.h"

#include <QString>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace Orvane {

struct SqliteSession;

/// A layer store in an SQLite file, or in memory.
///
///     auto database = SqliteLayerDatabase::Open(path);
///     auto layers = database->OpenRecordset("Layers");
///     layers->Index("LayerIDIDX");
///     layers->Seek("=", 17);
///
/// The file is an ordinary SQLite database with a write-ahead log; a committed change is written to disk. The
/// host may keep its own tables in it, and run any statement that SQLite understands, except that triggers
/// and views work only as temporary ones. Errors: DatabaseLocked when another program kept the file locked
/// for longer than StoreOptions allows, NotALayerDatabase also when damage is found only while reading,
/// DatabaseReadOnly, and DatabaseFailure for everything else.
class SqliteLayerDatabase final : public ILayerStore, public ITableTransfer
{
public:
    /// Creates a new file with empty tables. Raises DatabaseFailure if a file of that name exists or cannot
    /// be created; no incomplete file remains then.
    static std::unique_ptr<SqliteLayerDatabase> Create(const QString& path, const StoreOptions& options = {});

    /// Makes a file with empty tables, which fill may change, and puts it at that path when it is complete. A
    /// file that is replaced stays as it was if anything fails, on a full disk too. Raises DatabaseFailure if
    /// the file exists and is to stay, or cannot be written, DatabaseLocked if the file to be replaced is
    /// open anywhere, and what fill raises.
    static void Make(
        const QString& path, IfExists ifExists, const StoreFiller& fill = {},
        const StoreOptions& options = {});

    /// Opens a file. Raises NotALayerDatabase for a foreign or damaged file and for one whose layer tables
    /// are views, virtual or computed or have triggers, DatabaseTooNew for a file of a newer version,
    /// DatabaseReadOnly if it is opened for writing and cannot be written, DatabaseFailure if it is missing;
    /// the file is not changed then. A file of an older version is migrated, except in ReadOnly mode.
    static std::unique_ptr<SqliteLayerDatabase>
    Open(const QString& path, OpenMode mode = OpenMode::ReadWrite, const StoreOptions& options = {});

    /// Creates empty tables in memory, which exist as long as the object.
    static std::unique_ptr<SqliteLayerDatabase> CreateInMemory(const StoreOptions& options = {});

    /// Rolls back uncommitted changes and closes the file.
    ~SqliteLayerDatabase() override;

    qint64 Execute(const QString& sql, const std::vector<Value>& values = {}) override;
    std::unique_ptr<IRecordset> OpenQuery(const QString& sql, const std::vector<Value>& values = {}) override;
    void PrepareTable(const StoreTable& table) override;
    bool HasTable(const QString& table) override;
    bool HasColumn(const QString& table, const QString& column) override;
    std::vector<StoreTable> Tables() override;
    std::unique_ptr<ChangeRecorder> RecordChanges() override;
    std::optional<Changeset> Apply(const Changeset& changes) override;
    qint64 ForeignChanges() override;
    void SetWatcher(StoreWatcher watcher) override;
    void AskWatcher(double done = UnknownShare) override;
    bool IsReadOnly() const override;
    QString Path() const override;
    void CopyToFile(
        const QString& path, IfExists ifExists = IfExists::Refuse, const StoreFiller& change = {}) override;
    void SetQueryListener(std::function<void(const QString& sql)> listener) override;

    std::vector<qint64> CountRows(const std::vector<StoreTable>& tables) override;
    qint64 CountDangling(const StoreTable& table, const StoreColumn& column) override;
    void ReadRows(const StoreTable& table, const RowVisitor& visitor) override;
    void RemoveRows(const StoreTable& table) override;
    void AddRows(const StoreTable& table, const std::function<void(const RowVisitor& add)>& source) override;
    /// As long as a text may be anywhere.
    qsizetype LongestIndexedText() const override;
    /// Nothing is left to do in SQLite.
    void FinishRows(const std::vector<StoreTable>& tables) override;

    /// Runs work, whose statements end with an error once the time is over. Returns false if one was ended;
    /// raises what work raises otherwise. Not to be nested.
    bool RunWithin(std::chrono::milliseconds time, const std::function<void()>& work);

private:
    explicit SqliteLayerDatabase(std::unique_ptr<SqliteSession> session);

    std::unique_ptr<IRecordset> ILayerDatabase_OpenRecordset(const QString& source) override;
    void ILayerDatabase_BeginTrans() override;
    void ILayerDatabase_CommitTrans() override;
    void ILayerDatabase_Rollback() override;

    std::unique_ptr<SqliteSession> m_session;
};

} // namespace Orvane
