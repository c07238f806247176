// SPDX-License-Identifier: MIT
#include "store/SqliteLayerDatabase.h"

#include "store/ChangeRecorder.h"
#include "store/ChangesetApplying.h"
#include "store/LayerFileCheck.h"
#include "store/LayerSchema.h"
#include "store/QueryCursor.h"
#include "store/SqliteSession.h"
#include "store/StoreTexts.h"
#include "store/TableCursor.h"

#include <QFile>

#include <sqlite3.h>

namespace Orvane {

namespace {

void UseWriteAheadLog(SqliteConnection& connection)
{
    connection.Run("PRAGMA journal_mode = WAL");
    connection.Run("PRAGMA synchronous = FULL");
}

// Lists go through rows in another order than they are stored in: 16 MB hold most of a large map.
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

// Claims the name, so that an existing file can never be taken for the new one.
void MakeEmptyFile(const QString& path)
{
    const StoreErrors errors(path);
    if (QFile::exists(path))
        throw errors.Failure(StoreTexts::FileExists);
    QFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        throw errors.Failure(StoreTexts::CannotCreate, file.errorString());
}

std::unique_ptr<SqliteSession> NewSession(const QString& path, const StoreOptions& options)
{
    auto session = std::make_unique<SqliteSession>(path, SqliteConnection::Access::ReadWrite, options);
    UseCache(session->connection);
    LayerSchema::Create(session->connection);
    UseWriteAheadLog(session->connection);
    LayerSchema::Check(session->connection); // with a first read the file counts as open
    return session;
}

} // namespace

std::unique_ptr<SqliteLayerDatabase>
SqliteLayerDatabase::Create(const QString& path, const StoreOptions& options)
{
    MakeEmptyFile(path);
    try {
        return std::unique_ptr<SqliteLayerDatabase>(new SqliteLayerDatabase(NewSession(path, options)));
    } catch (const RunTimeError&) {
        QFile::remove(path);
        throw;
    }
}

std::unique_ptr<SqliteLayerDatabase>
SqliteLayerDatabase::Open(const QString& path, OpenMode mode, const StoreOptions& options)
{
    const SqliteConnection::Access access = CheckLayerFile(path, mode, options);
    auto session = std::make_unique<SqliteSession>(path, access, options);
    SqliteConnection& connection = session->connection;
    LayerSchema::CheckVersion(connection);
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
    StatementLease statement = m_session->statements.Lease(sql);
    if (!statement->IsReadOnly())
        throw m_session->connection.Errors().Failure(StoreTexts::NotAQuery);
    statement->BindAll(values);
    return std::make_unique<QueryCursor>(*m_session, std::move(statement));
}

void SqliteLayerDatabase::Execute(const QString& sql, const std::vector<Value>& values)
{
    const StatementLease statement = m_session->statements.Lease(sql);
    statement->BindAll(values);
    if (statement->IsReadOnly()) {
        while (statement->Step()) { }
        return;
    }
    m_session->transactions.RunWrite(*statement);
}

std::unique_ptr<ChangeRecorder> SqliteLayerDatabase::RecordChanges()
{
    return std::make_unique<ChangeRecorder>(m_session->connection);
}

std::optional<Changeset> SqliteLayerDatabase::Apply(const Changeset& changes)
{
    return ApplyChangeset(*m_session, changes);
}

QString SqliteLayerDatabase::Path() const
{
    return m_session->connection.Path();
}

bool SqliteLayerDatabase::IsReadOnly() const
{
    return m_session->connection.IsReadOnly();
}

qint64 SqliteLayerDatabase::LastInsertedID() const
{
    return sqlite3_last_insert_rowid(m_session->connection.Handle());
}

int SqliteLayerDatabase::ChangedRows() const
{
    return sqlite3_changes(m_session->connection.Handle());
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
