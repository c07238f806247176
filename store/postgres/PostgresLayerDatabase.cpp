// SPDX-License-Identifier: MIT
#include "store/postgres/PostgresLayerDatabase.h"

#include "store/ChangeRecorder.h"
#include "store/Changeset.h"
#include "store/StoreTexts.h"
#include "store/copying/StoreCopy.h"
#include "store/postgres/ForeignNews.h"
#include "store/postgres/PostgresQueryCursor.h"
#include "store/postgres/PostgresSession.h"
#include "store/postgres/PostgresTableCursor.h"
#include "store/postgres/RowsAhead.h"
#include "store/postgres/ServerChangesetApplying.h"
#include "store/postgres/ServerTableTransfer.h"
#include "store/postgres/link/ServerPipeline.h"
#include "store/postgres/link/StatementText.h"
#include "store/postgres/maps/MapSchema.h"
#include "store/sqlite/SqliteLayerDatabase.h"

#include <OrvaneShellLib/Cancellation.h>
#include <OrvaneShellLib/LayerQueries.h>
#include <OrvaneShellLib/Transaction.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <utility>

namespace Orvane {

namespace {

bool IsSelection(const QString& source)
{
    const QString text = source.trimmed();
    return text.startsWith(QLatin1String("SELECT"), Qt::CaseInsensitive) && text.size() > 6
        && !text[6].isLetterOrNumber() && text[6] != u'_';
}

bool IsSought(const QString& source, const SoughtTable& table)
{
    return source.compare(QLatin1String(table.name), Qt::CaseInsensitive) == 0;
}

// The layer whose row LayerQueries::OneLayer asks for; nothing for another query.
std::optional<qint32> LayerAskedFor(const QString& query)
{
    static const qsizetype numberStart = LayerQueries::OneLayer(0).size() - 1;
    bool isNumber = false;
    const qint32 layerID = query.size() > numberStart ? query.mid(numberStart).toInt(&isNumber) : 0;
    return isNumber && query == LayerQueries::OneLayer(layerID) ? std::optional(layerID) : std::nullopt;
}

// The condition of that query.
bool IsListed(const TableRow& row)
{
    for (int column = 0; column < row.rows.ColumnCount(); ++column) {
        if (row.rows.ColumnName(column) == "code") {
            const Value code = row.rows.At(row.number, column);
            return code.IsNumber() && ToDouble(code) > -2;
        }
    }
    return false;
}

StatementText Statement(const PostgresSession& session, const QString& sql, size_t values)
{
    StatementText statement = StatementText::Of(sql, session.Errors());
    if (size_t(statement.parameters) != values)
        throw session.Errors().Failure(StoreTexts::WrongParameterCount);
    return statement;
}

class ServerRecorder final : public ChangeRecorder
{
public:
    explicit ServerRecorder(PostgresSession& session) : m_session(session)
    {
        session.transactions.Flush();
        using Written = ServerChangeLog::Written;
        m_start
            = session.changes.Begin(session.transactions.HasWritten() ? Written::Perhaps : Written::Nothing);
    }
    ~ServerRecorder() override { m_session.changes.End(m_start); }

    Changeset Changes() const override
    {
        if (m_session.isReadOnly)
            return {};
        m_session.transactions.Flush();
        return m_session.changes.ChangesSince(m_start);
    }

private:
    PostgresSession& m_session;
    int m_start = 0;
};

} // namespace

std::unique_ptr<PostgresLayerDatabase>
PostgresLayerDatabase::Create(const QString& place, const StoreOptions& options)
{
    WorkWatch watch;
    const auto where = ServerPlace::OfMap(place);
    const auto connection = ServerConnection::Connect(where, options, watch);
    ServerPipeline pipeline(*connection);
    for (const QByteArray& statement : MapSchema::Creation(where.schema, where.schema))
        pipeline.AddOnce(statement);
    pipeline.Finish();
    return Open(place, OpenMode::ReadWrite, options);
}

std::unique_ptr<PostgresLayerDatabase>
PostgresLayerDatabase::Open(const QString& place, OpenMode mode, const StoreOptions& options)
{
    return std::unique_ptr<PostgresLayerDatabase>(new PostgresLayerDatabase(
        std::make_unique<PostgresSession>(ServerPlace::OfMap(place), mode, options)));
}

PostgresLayerDatabase::PostgresLayerDatabase(std::unique_ptr<PostgresSession> session)
    : m_session(std::move(session))
{
}

PostgresLayerDatabase::~PostgresLayerDatabase() = default;

std::unique_ptr<IRecordset> PostgresLayerDatabase::ILayerDatabase_OpenRecordset(const QString& source)
{
    m_session->transactions.RequireIntact();
    if (const std::optional<qint32> layerID = LayerAskedFor(source))
        return OpenOneLayer(*layerID);
    if (IsSelection(source))
        return OpenQuery(source);
    for (SoughtRows* rows : {&m_session->layers, &m_session->groups}) {
        if (IsSought(source, rows->Table()))
            return std::make_unique<PostgresTableCursor>(*m_session, *rows);
    }
    throw m_session->Errors().Failure(StoreTexts::UnknownTable, source);
}

// As a query for that layer gives it.
std::unique_ptr<IRecordset> PostgresLayerDatabase::OpenOneLayer(qint32 layerID)
{
    const std::optional<TableRow> row = m_session->layers.Ahead().Find(layerID);
    if (row && IsListed(*row))
        return std::make_unique<PostgresQueryCursor>(*m_session, row->rows, row->number);
    return std::make_unique<PostgresQueryCursor>(*m_session, ServerRows());
}

std::unique_ptr<IRecordset>
PostgresLayerDatabase::OpenQuery(const QString& sql, const std::vector<Value>& values)
{
    m_session->transactions.RequireIntact();
    const StatementText statement = Statement(*m_session, sql, values.size());
    if (!statement.reads)
        throw m_session->Errors().Failure(StoreTexts::NotAQuery);
    const ServerValues sent = ToServerValues(values, m_session->Errors());
    m_session->Tell(sql);
    const ServerRows rows = m_session->transactions.Read(statement.text, sent);
    NoteKeysIn(*m_session, rows);
    return std::make_unique<PostgresQueryCursor>(*m_session, rows);
}

qint64 PostgresLayerDatabase::Execute(const QString& sql, const std::vector<Value>& values)
{
    m_session->transactions.RequireIntact();
    const StatementText statement = Statement(*m_session, sql, values.size());
    const ServerValues sent = ToServerValues(values, m_session->Errors());
    m_session->Tell(sql);
    if (statement.reads) {
        m_session->transactions.Read(statement.text, sent);
        return 0;
    }
    m_session->RequireWritable();
    if (statement.changesTables)
        m_session->ForgetTables();
    return m_session->transactions.Write(statement.text, sent).Changed();
}

void PostgresLayerDatabase::Send(const QString& sql, const std::vector<Value>& values)
{
    m_session->transactions.RequireIntact();
    const StatementText statement = Statement(*m_session, sql, values.size());
    if (statement.reads || statement.changesTables) {
        Execute(sql, values);
        return;
    }
    const ServerValues sent = ToServerValues(values, m_session->Errors());
    m_session->Tell(sql);
    m_session->RequireWritable();
    m_session->transactions.Send(statement.text, sent);
}

std::vector<qint64> PostgresLayerDatabase::CountRows(const std::vector<StoreTable>& tables)
{
    return ServerTableTransfer(*m_session).CountRows(tables);
}

qint64 PostgresLayerDatabase::CountDangling(const StoreTable& table, const StoreColumn& column)
{
    return ServerTableTransfer(*m_session).CountDangling(table, column);
}

void PostgresLayerDatabase::ReadRows(const StoreTable& table, const RowVisitor& visitor)
{
    ServerTableTransfer(*m_session).ReadRows(table, visitor);
}

void PostgresLayerDatabase::RemoveRows(const StoreTable& table)
{
    ServerTableTransfer(*m_session).RemoveRows(table);
}

void PostgresLayerDatabase::AddRows(
    const StoreTable& table, const std::function<void(const RowVisitor& add)>& source)
{
    ServerTableTransfer(*m_session).AddRows(table, source);
}

qsizetype PostgresLayerDatabase::LongestIndexedText() const
{
    return ServerTableTransfer::LongestIndexedText;
}

void PostgresLayerDatabase::FinishRows(const std::vector<StoreTable>& tables)
{
    ServerTableTransfer(*m_session).FinishRows(tables);
}

std::unique_ptr<ChangeRecorder> PostgresLayerDatabase::RecordChanges()
{
    m_session->transactions.RequireIntact();
    return std::make_unique<ServerRecorder>(*m_session);
}

std::optional<Changeset> PostgresLayerDatabase::Apply(const Changeset& changes)
{
    m_session->transactions.RequireIntact();
    m_session->RequireWritable();
    const ServerRecorder recorder(*m_session);
    Transaction transaction(*this);
    bool isDone = false;
    m_session->transactions.WriteTogether(
        [&] { isDone = ApplyChangeset(*m_session->connection, m_session->tables, changes); });
    if (!isDone)
        return std::nullopt;
    std::optional<Changeset> changed = recorder.Changes(); // once it is stored, nothing may fail
    transaction.Commit();
    return changed;
}

qint64 PostgresLayerDatabase::ForeignChanges()
{
    m_session->transactions.RequireIntact();
    return m_session->transactions
        .Read(
            "SELECT coalesce(sum(id), 0) FROM orvane_news"
            " WHERE token IS NULL OR NOT starts_with(token::text, $1)",
            {m_session->OwnTokens()})
        .Number(0, 0);
}

IChangeNews* PostgresLayerDatabase::News()
{
    return &m_session->News();
}

void PostgresLayerDatabase::SetWatcher(StoreWatcher watcher)
{
    if (m_session->watch.IsAsking())
        m_session->connection->RequireUsable();
    m_session->watch.SetWatcher(std::move(watcher));
}

void PostgresLayerDatabase::AskWatcher(double done)
{
    if (m_session->watch.IsAsking())
        m_session->connection->RequireUsable();
    m_session->watch.SetShare(done);
    if (!m_session->watch.Ask())
        throw m_session->Errors().Error(UserCancelled, StoreTexts::Cancelled);
}

bool PostgresLayerDatabase::IsReadOnly() const
{
    return m_session->isReadOnly;
}

QString PostgresLayerDatabase::Path() const
{
    return m_session->place.ToText();
}

void PostgresLayerDatabase::CopyToFile(const QString& path, IfExists ifExists, const StoreFiller& change)
{
    m_session->transactions.RequireIntact();
    SqliteLayerDatabase::Make(path, ifExists, [&](std::unique_ptr<ILayerStore> file) {
        CopyStore(*this, *file);
        if (change)
            change(std::move(file));
    });
}

quint64 PostgresLayerDatabase::RoundTrips() const
{
    return m_session->connection->RoundTrips();
}

void PostgresLayerDatabase::SetQueryListener(std::function<void(const QString&)> listener)
{
    m_session->listener = std::move(listener);
}

void PostgresLayerDatabase::ILayerDatabase_BeginTrans()
{
    m_session->transactions.Begin();
}

void PostgresLayerDatabase::ILayerDatabase_CommitTrans()
{
    m_session->transactions.Commit();
}

void PostgresLayerDatabase::ILayerDatabase_Rollback()
{
    if (m_session->hasNewTables)
        m_session->ForgetTables();
    m_session->transactions.Rollback();
}

} // namespace Orvane
