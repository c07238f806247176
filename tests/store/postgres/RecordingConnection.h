// SPDX-License-Identifier: MIT
#pragma once

#include "store/postgres/ServerChangeLog.h"
#include "store/postgres/link/ServerConnection.h"
#include "store/postgres/link/ServerPipeline.h"
#include "store/postgres/maps/KnownTables.h"

#include <memory>
#include <utility>

namespace Orvane::Testing {

/// A connection that records what it changes.
class RecordingConnection
{
public:
    explicit RecordingConnection(std::unique_ptr<ServerConnection> connection)
        : m_connection(std::move(connection))
    {
        ServerRows answer;
        for (const QByteArray& statement : ServerChangeLog::Preparation())
            answer = m_connection->Run(statement);
        log.TakePreparation(answer);
    }

    ServerConnection& Connection() { return *m_connection; }
    void Run(const char* sql) { m_connection->Run(sql); }
    void Commit()
    {
        ServerPipeline pipeline(*m_connection);
        const size_t changes = pipeline.Add(ServerChangeLog::CommitQuery());
        pipeline.Add("COMMIT");
        pipeline.Finish();
        if (log.IsActive())
            log.TakeCommitted(pipeline.Answer(changes));
        log.EndTransaction();
    }
    void Rollback()
    {
        Run("ROLLBACK");
        log.EndTransaction();
    }
    // In a transaction of its own.
    void Change(const char* sql)
    {
        Run("BEGIN");
        Run(sql);
        Commit();
    }

private:
    std::unique_ptr<ServerConnection> m_connection;

public:
    KnownTables tables{*m_connection};
    ServerChangeLog log{*m_connection, tables};
};

} // namespace Orvane::Testing
