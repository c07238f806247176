// SPDX-License-Identifier: MIT
#pragma once

#include "store/ILayerStore.h"
#include "store/StoreOptions.h"
#include "store/shared/ITableTransfer.h"

#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace Orvane {

struct KnownTable;
struct PostgresSession;

/// A layer store in a PostgreSQL server: a map is a schema of its own in a database.
///
///     auto database = PostgresLayerDatabase::Open(place);
///
/// A place is what ServerPlace reads. A call is at most a few round trips to the server; many are none,
/// because rows are read before they are sought, and updates wait for the commit. Query cursors hold all
/// their rows. Errors: besides those of ServerErrors.h, NotALayerDatabase and DatabaseTooNew.
class PostgresLayerDatabase final : public ILayerStore, public ITableTransfer
{
public:
    /// Creates a map with empty tables, and opens it. Raises DatabaseFailure if there is a schema of that
    /// name; nothing is left behind then.
    static std::unique_ptr<PostgresLayerDatabase>
    Create(const QString& place, const StoreOptions& options = {});

    /// Opens a map. Raises ConnectionLost if the server cannot be reached, DatabaseFailure if it refuses the
    /// user, NotALayerDatabase if there is no map of that name or the user may not see it, and
    /// DatabaseTooNew. A map of an older version is migrated, except in ReadOnly mode. A map that the user
    /// may only read is opened for reading.
    static std::unique_ptr<PostgresLayerDatabase>
    Open(const QString& place, OpenMode mode = OpenMode::ReadWrite, const StoreOptions& options = {});

    /// Uncommitted changes are undone.
    ~PostgresLayerDatabase() override;

    qint64 Execute(const QString& sql, const std::vector<Value>& values = {}) override;
    void Send(const QString& sql, const std::vector<Value>& values = {}) override;
    std::unique_ptr<IRecordset> OpenQuery(const QString& sql, const std::vector<Value>& values = {}) override;
    void PrepareTable(const StoreTable& table) override;
    bool HasTable(const QString& table) override;
    bool HasColumn(const QString& table, const QString& column) override;
    std::vector<StoreTable> Tables() override;
    std::unique_ptr<ChangeRecorder> RecordChanges() override;
    std::optional<Changeset> Apply(const Changeset& changes) override;
    qint64 ForeignChanges() override;
    IChangeNews* News() override;
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
    qsizetype LongestIndexedText() const override;
    void FinishRows(const std::vector<StoreTable>& tables) override;
    /// How often it has waited for the server.
    quint64 RoundTrips() const;

private:
    explicit PostgresLayerDatabase(std::unique_ptr<PostgresSession> session);

    std::unique_ptr<IRecordset> OpenOneLayer(qint32 layerID);
    std::unique_ptr<IRecordset> ILayerDatabase_OpenRecordset(const QString& source) override;
    void ILayerDatabase_BeginTrans() override;
    void ILayerDatabase_CommitTrans() override;
    void ILayerDatabase_Rollback() override;

    void MakeTable(const StoreTable& table);
    const KnownTable* TableNow(const QString& table, const QString& column = {});

    std::unique_ptr<PostgresSession> m_session;
};

} // namespace Orvane
