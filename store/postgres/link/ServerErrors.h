// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/RunTimeError.h>

#include <QByteArray>
#include <QString>

struct pg_conn;
struct pg_result;

namespace Orvane {

class StoreErrors;

/// What a server refused, or how a connection failed.
class ServerError : public RunTimeError
{
public:
    ServerError(const RunTimeError& error, const QByteArray& state) : RunTimeError(error), m_state(state) { }

    /// PostgreSQL's code of five letters, such as "23505"; empty if it was not the server that failed.
    const QByteArray& State() const { return m_state; }
    /// The server wants a password, or another one.
    bool IsAboutPassword() const { return m_state == "28P01"; }
    /// Another transaction was in the way: this one, begun again, may succeed.
    bool IsConflict() const { return m_state == "40001" || m_state == "40P01"; }
    /// A row refers to one that is missing, or would be there twice, or the like.
    bool IsConstraint() const { return m_state.startsWith("23"); }
    /// A table or column of that name is there already, perhaps since this moment.
    bool IsAboutDuplicate() const
    {
        return m_state == "42P07" || m_state == "42701" || m_state == "42710" || m_state == "23505";
    }
    /// A table has changed since the statement was prepared: prepared again, it may succeed.
    bool IsStale() const { return m_isStale; }
    void SetStale() { m_isStale = true; }

private:
    QByteArray m_state;
    bool m_isStale = false;
};

/// The error for a result that says that a statement failed. Only the server's own sentence is repeated,
/// never the details, which may contain values of others' rows.
ServerError ErrorOfResult(const StoreErrors& errors, const pg_result* result);
/// The error for a connection that could not be made. libpq was asked for PQERRORS_VERBOSE.
ServerError ErrorOfConnecting(const StoreErrors& errors, pg_conn* connection);
/// Whether a server refused the connection itself, so that another one would be no better.
bool IsRefusedByServer(pg_conn* connection);
/// The error for a connection that broke.
ServerError ErrorOfLoss(const StoreErrors& errors, pg_conn* connection);

} // namespace Orvane
