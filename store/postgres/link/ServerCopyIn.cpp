// SPDX-License-Identifier: MIT
#include "store/postgres/link/ServerCopyIn.h"

#include "store/postgres/link/ServerConnection.h"

#include <libpq-fe.h>
#include <memory>

namespace Orvane {

namespace {

using OwnedResult = std::unique_ptr<pg_result, decltype(&PQclear)>;

} // namespace

ServerCopyIn::ServerCopyIn(ServerConnection& connection, const QByteArray& sql) : m_connection(connection)
{
    m_connection.BeginExchange();
    m_connection.ReadUnread();
    try {
        Begin(sql);
    } catch (const ServerError&) {
        throw;
    } catch (...) { // of memory: it is not known where the server is
        m_connection.GiveUp();
        throw;
    }
}

ServerCopyIn::~ServerCopyIn()
{
    if (!m_isOpen || m_connection.IsLost())
        return;
    try {
        Put("not completed");
        ReadToEnd();
    } catch (...) { // what led here is the error to report
        if (!m_connection.IsLost())
            m_connection.GiveUp();
    }
}

// Rows cannot be sent in a pipeline.
void ServerCopyIn::Begin(const QByteArray& sql)
{
    pg_conn* handle = m_connection.Handle();
    if (PQexitPipelineMode(handle) != 1 || PQsendQuery(handle, sql.constData()) != 1)
        m_connection.RaiseLoss();
    m_connection.NoteRoundTrip();
    pg_result* result = m_connection.NextResult();
    m_isOpen = PQresultStatus(result) == PGRES_COPY_IN;
    if (m_isOpen) {
        PQclear(result);
        return;
    }
    const ServerError error = m_connection.ErrorOf(result);
    PQclear(result);
    if (!m_connection.IsLost())
        ReadToEnd();
    throw ServerError(error);
}

void ServerCopyIn::Write(const QByteArray& lines)
{
    m_connection.ExpectAnswer();
    int sent = 0;
    while ((sent = PQputCopyData(m_connection.Handle(), lines.constData(), int(lines.size()))) == 0)
        m_connection.Turn();
    if (sent < 0)
        m_connection.RaiseLoss();
    while (m_connection.Flush())
        m_connection.Turn();
}

void ServerCopyIn::End()
{
    m_isOpen = false;
    Put(nullptr);
    m_connection.NoteRoundTrip();
    if (const std::optional<ServerError> error = ReadToEnd())
        throw ServerError(*error);
}

// reason: why there are no rows; nullptr if they are complete.
void ServerCopyIn::Put(const char* reason)
{
    m_connection.ExpectAnswer();
    int sent = 0;
    while ((sent = PQputCopyEnd(m_connection.Handle(), reason)) == 0)
        m_connection.Turn();
    if (sent < 0)
        m_connection.RaiseLoss();
}

// Returns what the server refused.
std::optional<ServerError> ServerCopyIn::ReadToEnd()
{
    std::optional<ServerError> error;
    while (const OwnedResult result{m_connection.NextResult(), &PQclear}) {
        m_connection.RequireNoCopying(result.get());
        if (PQresultStatus(result.get()) != PGRES_COMMAND_OK)
            error = m_connection.ErrorOf(result.get());
        if (m_connection.IsLost())
            return error;
    }
    if (PQenterPipelineMode(m_connection.Handle()) != 1)
        m_connection.RaiseLoss();
    return error;
}

} // namespace Orvane
