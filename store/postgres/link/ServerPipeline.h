// SPDX-License-Identifier: MIT
#pragma once

#include "store/postgres/link/ServerRows.h"
#include "store/postgres/link/ServerValue.h"

#include <QByteArray>

#include <cstddef>
#include <exception>
#include <functional>
#include <optional>
#include <vector>

namespace Orvane {

class ServerConnection;

/// Statements that are sent together and answered together, in one round trip however many they are.
///
///     ServerPipeline pipeline(connection);
///     const size_t layers = pipeline.Add("SELECT * FROM layers WHERE layerid = $1", {"17"});
///     pipeline.Finish();
///     const ServerRows& rows = pipeline.Answer(layers);
///
/// Outside a transaction they are one: all take effect, or none. After the first that fails, the server runs
/// none of the others.
class ServerPipeline
{
public:
    /// The connection outlives the pipeline.
    explicit ServerPipeline(ServerConnection& connection) : m_connection(connection) { }
    ~ServerPipeline();
    ServerPipeline(const ServerPipeline&) = delete;
    ServerPipeline& operator=(const ServerPipeline&) = delete;

    /// Adds a statement that the server is to keep prepared, because it will come again, and returns its
    /// number. sql: one statement, with parameters $1, $2 ...
    size_t Add(const QByteArray& sql, const ServerValues& values = {});
    /// As Add, for a statement that comes once.
    size_t AddOnce(const QByteArray& sql, const ServerValues& values = {});

    /// Sends everything and waits for the answers. Call it once. Raises ServerError for the first statement
    /// that failed, and what ServerConnection raises.
    void Finish();

    /// Instead of Finish: sends everything and returns at once. The answers are read by IsAnswered, or before
    /// the next pipeline is sent. One pipeline at a time can be under way. Destroying it before it is
    /// answered gives the connection up. Raises what ServerConnection raises.
    void Start();
    /// After Start: reads what has come, without waiting; true when everything is answered. Raises as Finish,
    /// and ConnectionLost if the server has been silent for too long.
    bool IsAnswered();

    /// @name For ServerConnection
    /// Waits for the answers after Start. A statement that failed is raised by IsAnswered.
    void Await();

    /// The rows of a statement, once everything is answered; none if it did not run.
    const ServerRows& Answer(size_t statement) const { return m_statements[statement].rows; }
    /// How many statements succeeded, from the first on.
    size_t Succeeded() const { return m_succeeded; }
    size_t Count() const { return m_statements.size(); }

private:
    struct Statement {
        QByteArray sql;
        ServerValues values;
        bool isKept = false;
        ServerRows rows = {};
    };
    /// What an answer will come for.
    struct Expected {
        size_t statement = 0;
        bool isPreparation = false;
        bool isHelp = false; // of no statement
    };

    void SendAll();
    void SendKept(size_t number);
    void SendOnce(size_t number);
    void Sent(int result, const Expected& expected);
    void OrGiveUp(const std::function<void()>& act);
    void RaiseFirst() const;
    void ReadAll();
    bool ReadReady();
    void TakeEnd(pg_result* result);
    void Take(pg_result* result, const Expected& expected);

    ServerConnection& m_connection;
    std::vector<Statement> m_statements;
    std::vector<Expected> m_expected;
    std::exception_ptr m_firstError;
    size_t m_read = 0; // of what is expected
    size_t m_succeeded = 0;
};

} // namespace Orvane
