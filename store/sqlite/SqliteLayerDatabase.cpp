// SPDX-License-Identifier: MIT
#include "store/sqlite/SqliteLayerDatabase.h"

#include "store/ChangeRecorder.h"
#include "store/StoreTexts.h"
#include "store/sqlite/ChangesetApplying.h"
#include "store/sqlite/QueryCursor.h"
#include "store/sqlite/SqliteSession.h"
#include "store/sqlite/TableCursor.h"
#include "store/sqlite/TableList.h"
#include "store/sqlite/TableMaking.h"
#include "store/sqlite/TableTransfer.h"
#include "store/sqlite/engine/TimeBound.h"
#include "store/sqlite/files/LayerFileCheck.h"
#include "store/sqlite/files/LayerFileJournals.h"
#include "store/sqlite/files/LayerSchema.h"
#include "store/sqlite/files/NewLayerFile.h"
#include "store/sqlite/files/PlainTables.h"

#include <OrvaneShellLib/Cancellation.h>
#include <OrvaneShellLib/RunTimeError.h>
#include <OrvaneShellLib/Transaction.h>

#include <limits>
#include <sqlite3.h>

namespace Orvane {

namespace {

void UseWriteAheadLog(SqliteConnection& connection)
{
    connection.Run("PRAGMA journal_mode = WAL");
    connection.Run("PRAGMA synchronous = FULL");
}

// Lists read rows in a different order from the one in which they are stored. 16 MB hold most of a large map.
void UseCache(SqliteConnection& connection)
{
    connection.Run("PRAGMA cache_size = -16384");
}

bool IsQuery(const QString& source)
{
    const QString text = source.trimmed();
    return text.startsWith(QLatin1String("SELECT"), Qt::CaseInsensitive) && text.size() > 6
        && !text[6].isLetterOrNumber() && text[6] != u'_';
}

bool IsTable(const QString& source, const TableAccess& table)
{
    const std::string_view name = table.Name();
    return source.compare(QLatin1String(name.data(), qsizetype(name.size())), Qt::CaseInsensitive) == 0;
}

class Recorder final : public ChangeRecorder
{
public:
    explicit Recorder(ChangeWatch& watch) : m_watch(watch), m_start(watch.Begin()) { }
    ~Recorder() override { m_watch.End(); }

    Changeset Changes() const override { return m_watch.ChangesSince(m_start); }

private:
    ChangeWatch& m_watch;
    size_t m_start;
};

std::unique_ptr<SqliteSession> NewSession(const QString& path, const StoreOptions& options)
{
    auto session = std::make_unique<SqliteSession>(path, SqliteConnection::Access::ReadWrite, options);
    UseCache(session->connection);
    LayerSchema::Create(session->connection);
    UseWriteAheadLog(session->connection);
    LayerSchema::Check(session->connection); // the file counts as open only after a first read
    return session;
}

} // namespace

std::unique_ptr<SqliteLayerDatabase>
SqliteLayerDatabase::Create(const QString& path, const StoreOptions& options)
{
    LayerFileRemoval removal(path);
    Make(path, IfExists::Refuse, {}, options);
    removal.Arm();
    auto database = Open(path, OpenMode::ReadWrite, options);
    removal.Disarm();
    return database;
}

void SqliteLayerDatabase::Make(
    const QString& path, IfExists ifExists, const StoreFiller& fill, const StoreOptions& options)
{
    NewLayerFile file(path, ifExists, options);
    std::unique_ptr<ILayerStore> store(new SqliteLayerDatabase(NewSession(file.Path(), file.Options())));
    if (fill)
        fill(std::move(store));
    store.reset();
    file.PutInPlace();
}

std::unique_ptr<SqliteLayerDatabase>
SqliteLayerDatabase::Open(const QString& path, OpenMode mode, const StoreOptions& options)
{
    const SqliteConnection::Access access = CheckLayerFile(path, mode, options);
    auto session = std::make_unique<SqliteSession>(path, access, options);
    SqliteConnection& connection = session->connection;
    LayerSchema::CheckVersion(connection);
    RequirePlainTables(connection); // again: a journal may have changed them
    UseCache(connection);
    if (access == SqliteConnection::Access::ReadWrite) {
        LayerSchema::Migrate(connection);
        UseWriteAheadLog(connection);
    }
    LayerSchema::Check(connection);
    return std::unique_ptr<SqliteLayerDatabase>(new SqliteLayerDatabase(std::move(session)));
}

std::unique_ptr<SqliteLayerDatabase> SqliteLayerDatabase::CreateInMemory(const StoreOptions& options)
{
    return std::unique_ptr<SqliteLayerDatabase>(new SqliteLayerDatabase(NewSession(QString(), options)));
}

SqliteLayerDatabase::SqliteLayerDatabase(std::unique_ptr<SqliteSession> session)
    : m_session(std::move(session))
{
}

SqliteLayerDatabase::~SqliteLayerDatabase() = default;

std::unique_ptr<IRecordset> SqliteLayerDatabase::ILayerDatabase_OpenRecordset(const QString& source)
{
    m_session->transactions.Settle();
    if (IsQuery(source))
        return OpenQuery(source);
    if (IsTable(source, m_session->layers))
        return std::make_unique<TableCursor>(*m_session, m_session->layers);
    if (IsTable(source, m_session->groups))
        return std::make_unique<TableCursor>(*m_session, m_session->groups);
    throw m_session->connection.Errors().Failure(StoreTexts::UnknownTable, source);
}

std::unique_ptr<IRecordset>
SqliteLayerDatabase::OpenQuery(const QString& sql, const std::vector<Value>& values)
{
    m_session->transactions.Settle();
    StatementLease statement = m_session->statements.Lease(sql);
    if (!statement->IsReadOnly())
        throw m_session->connection.Errors().Failure(StoreTexts::NotAQuery);
    statement->BindAll(values);
    return std::make_unique<QueryCursor>(*m_session, std::move(statement));
}

qint64 SqliteLayerDatabase::Execute(const QString& sql, const std::vector<Value>& values)
{
    m_session->transactions.RequireIntact();
    const StatementLease statement = m_session->statements.Lease(sql);
    statement->BindAll(values);
    if (statement->IsReadOnly()) {
        while (statement->Step()) { }
        return 0;
    }
    m_session->transactions.RunWrite(*statement);
    return sqlite3_changes64(m_session->connection.Handle());
}

void SqliteLayerDatabase::PrepareTable(const StoreTable& table)
{
    Transaction transaction(*this);
    Orvane::PrepareTable(*m_session, table);
    transaction.Commit();
}

bool SqliteLayerDatabase::HasTable(const QString& table)
{
    return Orvane::HasTable(*m_session, table);
}

bool SqliteLayerDatabase::HasColumn(const QString& table, const QString& column)
{
    return Orvane::HasColumn(*m_session, table, column);
}

std::vector<StoreTable> SqliteLayerDatabase::Tables()
{
    return TablesOf(*m_session);
}

std::vector<qint64> SqliteLayerDatabase::CountRows(const std::vector<StoreTable>& tables)
{
    return Orvane::CountRows(*m_session, tables);
}

qint64 SqliteLayerDatabase::CountDangling(const StoreTable& table, const StoreColumn& column)
{
    return Orvane::CountDangling(*m_session, table, column);
}

void SqliteLayerDatabase::ReadRows(const StoreTable& table, const RowVisitor& visitor)
{
    Orvane::ReadRows(*m_session, table, visitor);
}

void SqliteLayerDatabase::RemoveRows(const StoreTable& table)
{
    Orvane::RemoveRows(*m_session, table);
}

void SqliteLayerDatabase::AddRows(
    const StoreTable& table, const std::function<void(const RowVisitor& add)>& source)
{
    Orvane::AddRows(*m_session, table, source);
}

qsizetype SqliteLayerDatabase::LongestIndexedText() const
{
    return std::numeric_limits<int>::max();
}

void SqliteLayerDatabase::FinishRows(const std::vector<StoreTable>&)
{
}

std::unique_ptr<ChangeRecorder> SqliteLayerDatabase::RecordChanges()
{
    return std::make_unique<Recorder>(m_session->changes);
}

std::optional<Changeset> SqliteLayerDatabase::Apply(const Changeset& changes)
{
    return ApplyChangeset(*m_session, changes);
}

qint64 SqliteLayerDatabase::ForeignChanges()
{
    return m_session->connection.Number("PRAGMA data_version");
}

void SqliteLayerDatabase::SetWatcher(StoreWatcher watcher)
{
    m_session->connection.RequireUsable();
    m_session->connection.Watch().SetWatcher(std::move(watcher));
}

void SqliteLayerDatabase::AskWatcher(double done)
{
    m_session->connection.RequireUsable();
    StatementWatch& watch = m_session->connection.Watch();
    watch.SetShare(done);
    if (!watch.Ask())
        throw m_session->connection.Errors().Error(UserCancelled, StoreTexts::Cancelled);
}

QString SqliteLayerDatabase::Path() const
{
    return m_session->connection.Path();
}

bool SqliteLayerDatabase::IsReadOnly() const
{
    return m_session->connection.IsReadOnly();
}

void SqliteLayerDatabase::CopyToFile(const QString& path, IfExists ifExists, const StoreFiller& change)
{
    NewLayerFile file(path, ifExists, {});
    file.CopyFrom(m_session->connection);
    if (change)
        change(Open(file.Path(), OpenMode::ReadWrite, file.Options()));
    file.PutInPlace();
}

bool SqliteLayerDatabase::RunWithin(std::chrono::milliseconds time, const std::function<void()>& work)
{
    const TimeBound bound(m_session->connection, time);
    try {
        work();
    } catch (const RunTimeError&) {
        if (!bound.HasEnded())
            throw;
        return false;
    }
    return true;
}

void SqliteLayerDatabase::SetQueryListener(std::function<void(const QString&)> listener)
{
    m_session->connection.SetQueryListener(std::move(listener));
}

void SqliteLayerDatabase::ILayerDatabase_BeginTrans()
{
    m_session->transactions.Begin();
}

void SqliteLayerDatabase::ILayerDatabase_CommitTrans()
{
    m_session->transactions.Commit();
}

void SqliteLayerDatabase::ILayerDatabase_Rollback()
{
    m_session->transactions.Rollback();
}

} // namespace Orvane
