// SPDX-License-Identifier: MIT
#pragma once

#include "store/StoreOptions.h"
#include "store/postgres/link/ServerConnecting.h"
#include "store/postgres/link/ServerErrors.h"
#include "store/postgres/link/ServerRows.h"
#include "store/postgres/link/ServerValue.h"
#include "store/postgres/link/StatementNames.h"
#include "store/shared/StoreErrors.h"

#include <QString>
#include <QtGlobal>

#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace Orvane {

class ServerPipeline;
class WorkWatch;

/// What others told through the server.
struct ServerNotice {
    QByteArray channel;
    QByteArray payload;
    int backend = 0; ///< of the connection that sent it
};

/// A connection to a PostgreSQL server, used on one thread.
///
///     const auto connection = ServerConnection::Connect(place, options, watch);
///     const ServerRows rows = connection->Run("SELECT count(*) FROM pg_namespace");
///
/// It never blocks for longer than its options allow. All waiting happens in Turn, which asks the watcher. A
/// connection that broke stays broken: everything raises ConnectionLost then. So does one whose server was
/// silent for too long; what it did at that time is cancelled if it can still be reached.
///
/// At first statements know only what the server itself brings along, see SafePath, whatever the role or the
/// database say.
class ServerConnection
{
    using Clock = std::chrono::steady_clock;

public:
    /// Connects; see ConnectToServer for what it raises. Errors name the place, or what the options say.
    /// Raises DatabaseFailure for a server that is too old. The watch outlives the connection.
    static std::unique_ptr<ServerConnection>
    Connect(const ServerPlace& place, const StoreOptions& options, WorkWatch& watch);
    ~ServerConnection();
    ServerConnection(const ServerConnection&) = delete;
    ServerConnection& operator=(const ServerConnection&) = delete;

    /// The search path under which no schema of a user takes part in what a statement means.
    static constexpr const char* SafePath = "pg_catalog, pg_temp";

    const StoreErrors& Errors() const { return m_errors; }
    /// The schema that the place names; may be empty.
    const QString& Schema() const { return m_place.schema; }
    WorkWatch& Watch() const { return m_watch; }
    pg_conn* Handle() const { return m_handle.get(); }
    StatementNames& Names() { return m_names; }

    /// The number of the server's process for this connection, also when it is lost.
    int Backend() const { return m_backend; }
    /// The server's version, such as 150004 for 15.4.
    int Version() const;
    /// The role as which the user is logged in.
    QString User() const;
    bool IsLost() const { return m_loss.has_value(); }

    /// Where the server is with its transaction, as of the last answer.
    enum class State { Idle, InTransaction, Failed, Unknown };
    State TransactionState() const;

    /// Raises DatabaseFailure while the watcher runs, and ConnectionLost if the connection is lost.
    void RequireUsable() const;

    /// For work that sends nothing yet. Raises UserCancelled if the watcher says so.
    void AskWatcher() const;

    /// While it lives, the server has less time for its answers and for a new connection: for what happens
    /// while nobody expects to wait.
    class Haste
    {
    public:
        explicit Haste(ServerConnection& connection);
        ~Haste();
        Haste(const Haste&) = delete;
        Haste& operator=(const Haste&) = delete;

    private:
        ServerConnection& m_connection;
        const StoreOptions m_usual;
    };

    /// Connects again after the connection was lost; raises what Connect raises. The new one knows nothing of
    /// the old one: no settings, no transaction, no temporary tables.
    void ConnectAgain();
    /// The same in the background: starts it, unless it is started, with the password that is known.
    void StartConnecting();
    /// True once the new connection is there. Raises what Connect raises, once; StartConnecting begins again.
    bool FinishConnecting();
    /// A number that grows with each new connection.
    quint64 Number() const { return m_number; }

    /// Runs one statement and waits for its rows: a pipeline of one.
    ServerRows Run(const QByteArray& sql, const ServerValues& values = {});
    /// Sends a statement that ends the transaction of the server, and does not wait for the answer: for one
    /// that nobody can do anything about. The watcher does not end it. If it fails, the connection is lost.
    void EndTransactionLater(const char* statement);
    /// Makes the server forget prepared statements, because tables have changed.
    void ForgetStatements();

    /// What came from other connections, and has not been taken yet. Never waits.
    std::vector<ServerNotice> TakeNotices();
    /// The listener is called when notices came together with an answer, when the connection was lost, and
    /// when there is a new one. It must not use the connection, and raises nothing. Empty for none.
    void SetListener(std::function<void()> listener) { m_listener = std::move(listener); }
    /// For a notifier that tells when there is something to read. -1 when the connection is lost; the next
    /// one may have the number of the old one.
    int Socket() const;
    /// How often it has waited for answers.
    quint64 RoundTrips() const { return m_roundTrips; }

    /// @name For ServerPipeline
    /// To be called before anything is sent: waits for what is under way. Raises UserCancelled if the work is
    /// cancelled already.
    void BeginExchange();
    /// To be called when everything was answered.
    void EndExchange();
    /// The pipeline was sent, and its answers are not read yet.
    void SetUnderWay(ServerPipeline& pipeline) { m_underWay = &pipeline; }
    /// The pipeline ends: if it is under way, the connection is given up.
    void Abandon(const ServerPipeline& pipeline) noexcept;
    /// Reads what has come, without waiting. Raises ConnectionLost.
    void Receive();
    /// Raises ConnectionLost if nothing has come for too long.
    void RequireSign();
    /// Waits for a moment until something can be sent or read, and does it. Cancels what the server does if
    /// the watcher says so. Raises ConnectionLost.
    void Turn();
    /// Sends as much as the network takes at once. True if something remains.
    bool Flush();
    /// Asks the server to end what it does, without waiting: its answer is an error, if it still does it.
    void Cancel();
    /// The server has had nothing to answer until now, so its silence counts from now on.
    void ExpectAnswer() { m_lastSign = Clock::now(); }
    /// Waits for the next result; none at the end of an answer. Whoever calls it frees the result.
    pg_result* NextResult();
    /// Raises ConnectionLost if the server begins to take or send rows as COPY does, and nobody has asked for
    /// that: libpq would give such a result for ever.
    void RequireNoCopying(const pg_result* result);
    /// Reads the answers that nobody has waited for, as far as they have come. False if more will come.
    bool TakeUnread();
    /// As TakeUnread, and waits for them.
    void ReadUnread();
    /// Counts a round trip.
    void NoteRoundTrip() { ++m_roundTrips; }
    /// The error of a result, UserCancelled if the user has ended it. A result that tells of the end of the
    /// connection loses it.
    ServerError ErrorOf(const pg_result* result);
    /// Gives the connection up, because it is not known what it will send next. It is closed, so that the
    /// server keeps no locks for it.
    void GiveUp();
    /// As GiveUp; everything raises that error from now on.
    void GiveUp(const RunTimeError& why);
    /// As GiveUp, and raises ConnectionLost.
    [[noreturn]] void RaiseLoss();

private:
    ServerConnection(const ServerPlace& place, const StoreOptions& options, WorkWatch& watch);

    void RequireVersion() const;
    void Use(ConnectionHandle handle);
    void UsePipelines();
    void PrepareSession();
    void SetLoss(const ServerError& loss);
    void GatherNotices();
    void Tell() const;
    void Look();
    void LookAfterCancel();
    bool IsSilentFor(std::chrono::milliseconds time) const;
    void AwaitUnderWay();
    bool TakeUnreadResult();
    void CountReceived();
    void AwaitCancel();
    [[noreturn]] void RaiseSilence();

    ServerPlace m_place;
    StoreOptions m_options;
    WorkWatch& m_watch;
    StoreErrors m_errors;
    QString m_password; // as the user typed it
    ConnectionHandle m_handle;
    std::unique_ptr<ConnectionAttempt> m_attempt; // in the background
    quint64 m_number = 0;
    int m_backend = 0;
    ServerPipeline* m_underWay = nullptr;
    std::vector<ServerNotice> m_notices; // that are not taken yet
    std::function<void()> m_listener;
    StatementNames m_names;
    Clock::time_point m_lastSign; // when the server was last heard, or asked
    std::optional<Clock::time_point> m_lastCancel; // when it was last asked to cancel what it does
    std::future<void> m_cancelling;
    qint64 m_received = 0; // bytes since the last result
    quint64 m_roundTrips = 0;
    int m_unread = 0; // answers to EndTransactionLater
    std::optional<ServerError> m_loss; // why nothing works any more
};

} // namespace Orvane
