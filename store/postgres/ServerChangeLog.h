// SPDX-License-Identifier: MIT
#pragma once

#include "store/ChangeLog.h"
#include "store/StoreTable.h"

#include <QByteArray>
#include <QByteArrayList>
#include <QtGlobal>

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace Orvane {

class KnownTables;
class ServerConnection;
class ServerRows;
struct KnownTable;

/// Which rows a connection changes, between Begin and End. The server keeps those of the present transaction,
/// see NoteFunction; they are fetched just before the transaction is committed, and forgotten when it is
/// rolled back.
///
///     pipeline: ..., CommitQuery(), COMMIT
///     log.TakeCommitted(its rows)
///     log.EndTransaction()
class ServerChangeLog
{
public:
    /// Both outlive this object.
    ServerChangeLog(ServerConnection& connection, KnownTables& tables)
        : m_connection(connection), m_tables(tables)
    {
    }

    /// What a connection that may write runs once, outside of a transaction, so that the server keeps changed
    /// rows. TakePreparation gets the answer to the last statement.
    static QByteArrayList Preparation();
    void TakePreparation(const ServerRows& rows);

    /// What the present transaction of the server has written.
    enum class Written { Nothing, Perhaps };

    /// Starts logging, and returns a number for what starts here. Calls nest. Asks the server, within a
    /// transaction that has perhaps written something.
    int Begin(Written written = Written::Perhaps);
    /// Ends the logging that Begin started.
    void End(int number);
    /// True between Begin and End, if the role may record changes.
    bool IsActive() const { return m_isPossible && !m_starts.empty(); }

    /// The query for what the present transaction changed. While the log is active, it is sent before each
    /// commit.
    static QByteArray CommitQuery();
    /// Adds what it gave, after the commit has succeeded.
    void TakeCommitted(const ServerRows& rows);
    /// A query for how far the present transaction has come, to be sent after each rollback to a savepoint.
    static QByteArray PlaceQuery();
    /// Takes the answer: what was started after that starts there.
    void GoBackTo(const ServerRows& place);
    /// A transaction was committed, or rolled back, as a whole.
    void EndTransaction();
    /// A transaction was, or may have been, committed, but what it changed is not known. EndTransaction
    /// follows.
    void NoteGap();

    /// The changes since that start. Within a transaction the server must have got all of it; it is asked
    /// what changed so far. Raises DatabaseFailure if changes were missed, or if the role may not record any.
    Changeset ChangesSince(int number);

private:
    struct Start {
        size_t place = 0; // in the log
        qint64 statement = 0; // of the present transaction, which comes after it; 0 for all
        bool hasGaps = false;
    };
    // A table with the columns that it had when rows of it were changed.
    struct LoggedTable {
        quint32 number = 0;
        QByteArray columns; // as in the log of the server
        int position = 0; // in the log
        std::vector<StoreType> types;
    };
    using RowValues = std::vector<std::optional<std::string>>;

    bool IsInTransaction() const;
    void RequireComplete(const Start& start) const;
    void Add(const ServerRows& rows, bool placeStarts);
    void PlaceStarts(qint64 statement);
    const LoggedTable* TableOf(const ServerRows& rows, int row);
    const LoggedTable* NewTable(quint32 number, const QByteArray& columns);
    void AddRow(const LoggedTable& table, const ServerRows& rows, int row);
    static bool ReadCoded(
        const LoggedTable& table, const ServerRows& rows, int row, int column, RowValues& values,
        std::vector<std::string>& coded);

    ServerConnection& m_connection;
    KnownTables& m_tables;
    ChangeLog m_log;
    std::vector<LoggedTable> m_logged;
    std::map<int, Start> m_starts;
    RowValues m_values;
    std::vector<std::string> m_before; // the coded values of the row that is added
    std::vector<std::string> m_after;
    int m_lastStart = 0;
    bool m_isPossible = false;
};

} // namespace Orvane
