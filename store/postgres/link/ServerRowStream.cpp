// SPDX-License-Identifier: MIT
#include "store/postgres/link/ServerRowStream.h"

#include "store/postgres/link/ServerConnection.h"

#include <libpq-fe.h>
#include <memory>

namespace Orvane {

ServerRowStream::ServerRowStream(ServerConnection& connection, const QByteArray& sql)
    : m_connection(connection)
{
    m_connection.BeginExchange();
    m_connection.ReadUnread();
    pg_conn* handle = m_connection.Handle();
    const bool isSent
        = PQsendQueryParams(handle, sql.constData(), 0, nullptr, nullptr, nullptr, nullptr, 0) == 1
        && PQsetSingleRowMode(handle) == 1 && PQpipelineSync(handle) == 1;
    if (!isSent)
        m_connection.RaiseLoss();
    m_connection.NoteRoundTrip();
}

ServerRowStream::~ServerRowStream()
{
    if (m_isOver)
        return;
    try {
        m_connection.Cancel(); // the rest may be a large table
        ReadToEnd();
    } catch (...) { // what ended the reading is the error to report
        GiveUp();
    }
}

bool ServerRowStream::Next()
{
    if (m_isOver)
        return false;
    pg_result* result = nullptr;
    try {
        result = NextResult();
        m_row = ServerRows(result);
        const ExecStatusType status = PQresultStatus(result);
        if (status == PGRES_SINGLE_TUPLE)
            return true;
        if (status == PGRES_TUPLES_OK || status == PGRES_COMMAND_OK) {
            ReadToEnd();
            return false;
        }
    } catch (...) { // of the connection or of memory
        m_isOver = true;
        GiveUp();
        throw;
    }
    RaiseRefusal(result);
}

void ServerRowStream::RaiseRefusal(const pg_result* result)
{
    const ServerError error = m_connection.ErrorOf(result);
    if (m_connection.IsLost())
        m_isOver = true; // nothing more will come
    else
        ReadToEnd();
    throw ServerError(error);
}

// Whoever takes the rows may be slow.
pg_result* ServerRowStream::NextResult()
{
    m_connection.ExpectAnswer();
    return m_connection.NextResult();
}

// What nobody wants: rows, an empty result behind the last one, and the end of the pipeline.
void ServerRowStream::ReadToEnd()
{
    m_isOver = true;
    bool isSynced = false;
    bool isAfterResult = true;
    while (true) {
        const std::unique_ptr<pg_result, decltype(&PQclear)> result(NextResult(), &PQclear);
        if (!result && isSynced)
            return;
        m_connection.RequireNoCopying(result.get());
        const bool isAnswerless = !result && !isAfterResult; // the server has answered something else
        if (isAnswerless || PQstatus(m_connection.Handle()) == CONNECTION_BAD)
            m_connection.RaiseLoss();
        isSynced = isSynced || PQresultStatus(result.get()) == PGRES_PIPELINE_SYNC;
        isAfterResult = result != nullptr;
    }
}

void ServerRowStream::GiveUp()
{
    if (!m_connection.IsLost())
        m_connection.GiveUp();
}

} // namespace Orvane
