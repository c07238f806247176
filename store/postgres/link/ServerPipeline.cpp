// SPDX-License-Identifier: MIT
#include "store/postgres/link/ServerPipeline.h"

#include "store/postgres/link/ServerConnection.h"

#include <libpq-fe.h>

namespace Orvane {

namespace {

constexpr size_t StatementsAtOnce = 64; // before the network gets a turn

/// Values as libpq takes them.
class ValuePointers
{
public:
    explicit ValuePointers(const ServerValues& values)
    {
        m_texts.reserve(values.size());
        for (const ServerValue& value : values)
            m_texts.push_back(value ? value->constData() : nullptr);
    }

    int Count() const { return int(m_texts.size()); }
    const char* const* Texts() const { return m_texts.data(); }

private:
    std::vector<const char*> m_texts;
};

} // namespace

size_t ServerPipeline::Add(const QByteArray& sql, const ServerValues& values)
{
    m_statements.push_back({sql, values, true});
    return m_statements.size() - 1;
}

size_t ServerPipeline::AddOnce(const QByteArray& sql, const ServerValues& values)
{
    m_statements.push_back({sql, values, false});
    return m_statements.size() - 1;
}

ServerPipeline::~ServerPipeline()
{
    m_connection.Abandon(*this);
}

void ServerPipeline::Finish()
{
    m_connection.BeginExchange();
    OrGiveUp([this] {
        SendAll();
        m_connection.NoteRoundTrip();
        ReadAll();
    });
    m_connection.EndExchange();
    RaiseFirst();
}

void ServerPipeline::Start()
{
    m_connection.BeginExchange();
    OrGiveUp([this] {
        SendAll();
        m_connection.Flush();
    });
    m_connection.SetUnderWay(*this);
}

bool ServerPipeline::IsAnswered()
{
    bool isAnswered = false;
    OrGiveUp([&] {
        if (m_read <= m_expected.size())
            m_connection.Receive();
        isAnswered = ReadReady();
        if (!isAnswered)
            m_connection.RequireSign();
    });
    if (!isAnswered)
        return false;
    m_connection.EndExchange();
    RaiseFirst();
    return true;
}

void ServerPipeline::Await()
{
    OrGiveUp([this] { ReadAll(); });
    m_connection.EndExchange();
}

// What is raised here is of no statement, but of the connection or of memory.
void ServerPipeline::OrGiveUp(const std::function<void()>& act)
{
    try {
        act();
    } catch (...) {
        if (!m_connection.IsLost())
            m_connection.GiveUp();
        throw;
    }
}

void ServerPipeline::RaiseFirst() const
{
    if (m_firstError)
        std::rethrow_exception(m_firstError);
}

// While much is sent, answers are read too: otherwise both sides could wait for each other.
void ServerPipeline::SendAll()
{
    for (size_t number = 0; number < m_statements.size(); ++number) {
        m_statements[number].isKept ? SendKept(number) : SendOnce(number);
        if (number % StatementsAtOnce == StatementsAtOnce - 1) {
            while (m_connection.Flush())
                m_connection.Turn();
        }
    }
    if (PQpipelineSync(m_connection.Handle()) != 1)
        m_connection.RaiseLoss();
}

void ServerPipeline::SendKept(size_t number)
{
    const Statement& statement = m_statements[number];
    PGconn* handle = m_connection.Handle();
    const StatementNames::Use use = m_connection.Names().For(statement.sql);
    if (use.isNew)
        Sent(
            PQsendPrepare(handle, use.name.constData(), statement.sql.constData(), 0, nullptr),
            {number, true, false});
    const ValuePointers values(statement.values);
    Sent(
        PQsendQueryPrepared(
            handle, use.name.constData(), values.Count(), values.Texts(), nullptr, nullptr, 0),
        {number, false, false});
    if (use.dropped.isEmpty())
        return;
    const QByteArray drop = "DEALLOCATE " + use.dropped; // not before: BEGIN must come first
    Sent(
        PQsendQueryParams(handle, drop.constData(), 0, nullptr, nullptr, nullptr, nullptr, 0),
        {number, false, true});
}

void ServerPipeline::SendOnce(size_t number)
{
    const Statement& statement = m_statements[number];
    const ValuePointers values(statement.values);
    Sent(
        PQsendQueryParams(
            m_connection.Handle(), statement.sql.constData(), values.Count(), nullptr, values.Texts(),
            nullptr, nullptr, 0),
        {number, false, false});
}

void ServerPipeline::Sent(int result, const Expected& expected)
{
    if (result != 1)
        m_connection.RaiseLoss();
    m_expected.push_back(expected);
}

void ServerPipeline::ReadAll()
{
    while (!ReadReady())
        m_connection.Turn();
}

// Each answer ends with an empty result, and so does the end of the pipeline. False if more must come first.
bool ServerPipeline::ReadReady()
{
    if (!m_connection.TakeUnread())
        return false;
    PGconn* handle = m_connection.Handle();
    while (m_read <= m_expected.size()) {
        if (PQisBusy(handle))
            return false;
        PGresult* result = PQgetResult(handle);
        if (!result)
            ++m_read;
        else if (m_read < m_expected.size())
            Take(result, m_expected[m_read]);
        else
            TakeEnd(result);
    }
    return true;
}

void ServerPipeline::TakeEnd(pg_result* result)
{
    const ServerRows end(result);
    m_connection.RequireNoCopying(result);
}

void ServerPipeline::Take(pg_result* result, const Expected& expected)
{
    ServerRows rows(result);
    m_connection.RequireNoCopying(result);
    const ExecStatusType status = PQresultStatus(result);
    Statement& statement = m_statements[expected.statement];
    if (status == PGRES_COMMAND_OK || status == PGRES_TUPLES_OK) {
        if (expected.isPreparation || expected.isHelp)
            return;
        statement.rows = rows;
        ++m_succeeded;
        return;
    }
    if (expected.isPreparation)
        m_connection.Names().Forget(statement.sql);
    if (!m_firstError && status != PGRES_PIPELINE_ABORTED)
        m_firstError = std::make_exception_ptr(m_connection.ErrorOf(result));
    if (m_connection.IsLost()) // nothing more will come
        std::rethrow_exception(m_firstError);
}

} // namespace Orvane
