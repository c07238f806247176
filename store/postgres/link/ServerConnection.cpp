// SPDX-License-Identifier: MIT
#include "store/postgres/link/ServerConnection.h"

#include "store/StoreTexts.h"
#include "store/postgres/link/ServerPipeline.h"
#include "store/shared/WorkWatch.h"

#include <OrvaneShellLib/Cancellation.h>

#include <algorithm>
#include <libpq-fe.h>
#include <utility>

namespace Orvane {

namespace {

using namespace std::chrono_literals;

constexpr auto ClosingTime = 1s; // for a request to cancel that is under way
constexpr int OldestVersion = 130000;
constexpr int VersionLetters = 20; // of what the server calls its version

StoreErrors ErrorsFor(const ServerPlace& place, const StoreOptions& options)
{
    return StoreErrors(StoreErrors::Named{options.shownPath.isEmpty() ? place.Name() : options.shownPath});
}

} // namespace

std::unique_ptr<ServerConnection>
ServerConnection::Connect(const ServerPlace& place, const StoreOptions& options, WorkWatch& watch)
{
    std::unique_ptr<ServerConnection> connection(new ServerConnection(place, options, watch));
    connection->ConnectAgain();
    return connection;
}

ServerConnection::ServerConnection(const ServerPlace& place, const StoreOptions& options, WorkWatch& watch)
    : m_place(place), m_options(options), m_watch(watch), m_errors(ErrorsFor(place, options))
{
}

ServerConnection::~ServerConnection()
{
    m_password.fill(u'\0');
    if (m_cancelling.valid())
        m_cancelling.wait_for(ClosingTime);
}

void ServerConnection::ConnectAgain()
{
    m_attempt.reset();
    Use(ConnectToServer(m_place, m_options, m_watch, m_errors, m_password));
}

void ServerConnection::StartConnecting()
{
    if (!m_attempt)
        m_attempt = std::make_unique<ConnectionAttempt>(m_place, m_password, m_options.connectTimeout);
}

bool ServerConnection::FinishConnecting()
{
    if (!m_attempt || !m_attempt->IsOver())
        return false;
    const auto attempt = std::move(m_attempt);
    Use(attempt->Take(m_errors));
    return true;
}

void ServerConnection::Use(ConnectionHandle handle)
{
    m_underWay = nullptr;
    m_notices.clear();
    m_handle = std::move(handle);
    ++m_number;
    m_backend = PQbackendPID(Handle());
    m_loss.reset();
    m_unread = 0;
    m_names.ForgetAll();
    m_lastCancel.reset();
    m_cancelling = {}; // of the connection before
    try {
        RequireVersion();
        UsePipelines();
        PrepareSession();
    } catch (...) {
        if (!IsLost())
            GiveUp();
        throw;
    }
    Tell();
}

// The search path of the role may name schemas of others. A program between may tell another process.
void ServerConnection::PrepareSession()
{
    const ServerRows rows = Run(
        "SELECT pg_catalog.set_config('search_path', $1, FALSE), pg_catalog.pg_backend_pid()",
        {QByteArray(SafePath)});
    m_backend = int(rows.Number(0, 1));
}

void ServerConnection::UsePipelines()
{
    PQsetErrorVerbosity(Handle(), PQERRORS_TERSE);
    PQsetNoticeProcessor(
        Handle(), [](void*, const char*) {}, nullptr); // not on the standard error stream
    if (PQsetnonblocking(Handle(), 1) != 0 || PQenterPipelineMode(Handle()) != 1)
        RaiseLoss();
}

void ServerConnection::RequireVersion() const
{
    if (Version() >= OldestVersion)
        return;
    const QString version
        = QString::fromUtf8(PQparameterStatus(Handle(), "server_version")).left(VersionLetters);
    throw m_errors.Failure(StoreTexts::ServerTooOld, version);
}

int ServerConnection::Version() const
{
    return PQserverVersion(Handle());
}

QString ServerConnection::User() const
{
    return QString::fromUtf8(PQuser(Handle()));
}

int ServerConnection::Socket() const
{
    return PQsocket(Handle());
}

ServerConnection::State ServerConnection::TransactionState() const
{
    if (m_unread > 0)
        return State::Idle; // as soon as the server gets to it
    switch (PQtransactionStatus(Handle())) {
    case PQTRANS_IDLE:
        return State::Idle;
    case PQTRANS_INTRANS:
        return State::InTransaction;
    case PQTRANS_INERROR:
        return State::Failed;
    default:
        return State::Unknown;
    }
}

void ServerConnection::RequireUsable() const
{
    if (m_watch.IsAsking())
        throw m_errors.Failure(StoreTexts::Working);
    if (m_loss)
        throw ServerError(*m_loss);
}

void ServerConnection::AskWatcher() const
{
    if (!m_watch.IsPaused() && !m_watch.Ask())
        throw m_errors.Error(UserCancelled, StoreTexts::Cancelled);
}

ServerRows ServerConnection::Run(const QByteArray& sql, const ServerValues& values)
{
    ServerPipeline pipeline(*this);
    pipeline.AddOnce(sql, values);
    pipeline.Finish();
    return pipeline.Answer(0);
}

void ServerConnection::EndTransactionLater(const char* statement)
{
    RequireUsable();
    AwaitCancel();
    AwaitUnderWay();
    const int isSent = PQsendQueryParams(Handle(), statement, 0, nullptr, nullptr, nullptr, nullptr, 0);
    if (isSent != 1 || PQpipelineSync(Handle()) != 1)
        RaiseLoss();
    ++m_unread;
    Flush();
}

void ServerConnection::ReadUnread()
{
    while (!TakeUnread())
        Turn();
}

bool ServerConnection::TakeUnread()
{
    bool isAfterResult = true;
    while (m_unread > 0) {
        if (PQisBusy(Handle()))
            return false;
        const bool isResult = TakeUnreadResult();
        if (!isResult && !isAfterResult) // the server has answered something else
            RaiseLoss();
        isAfterResult = isResult;
    }
    return true;
}

// Each answer ends with that of the end of its pipeline. False behind a result.
bool ServerConnection::TakeUnreadResult()
{
    const std::unique_ptr<pg_result, decltype(&PQclear)> result(PQgetResult(Handle()), &PQclear);
    if (!result) {
        if (PQstatus(Handle()) == CONNECTION_BAD)
            RaiseLoss();
        return false;
    }
    m_received = 0;
    const ExecStatusType status = PQresultStatus(result.get());
    if (status == PGRES_PIPELINE_SYNC)
        --m_unread;
    else if (status != PGRES_COMMAND_OK)
        RaiseLoss();
    return true;
}

pg_result* ServerConnection::NextResult()
{
    while (PQisBusy(Handle()))
        Turn();
    m_received = 0;
    return PQgetResult(Handle());
}

void ServerConnection::RequireNoCopying(const pg_result* result)
{
    const ExecStatusType status = PQresultStatus(result);
    if (status == PGRES_COPY_IN || status == PGRES_COPY_OUT || status == PGRES_COPY_BOTH)
        RaiseLoss();
}

void ServerConnection::ForgetStatements()
{
    m_names.ForgetAll();
    Run("DEALLOCATE ALL");
}

std::vector<ServerNotice> ServerConnection::TakeNotices()
{
    RequireUsable();
    Receive();
    TakeUnread(); // it stands before the notices
    GatherNotices();
    return std::exchange(m_notices, {});
}

void ServerConnection::GatherNotices()
{
    while (PGnotify* notice = PQnotifies(Handle())) {
        const std::unique_ptr<PGnotify, decltype(&PQfreemem)> owned(notice, &PQfreemem);
        m_notices.push_back({notice->relname, notice->extra, notice->be_pid});
    }
}

void ServerConnection::Receive()
{
    if (PQconsumeInput(Handle()) != 1)
        RaiseLoss();
}

void ServerConnection::Tell() const
{
    if (m_listener)
        m_listener();
}

ServerError ServerConnection::ErrorOf(const pg_result* result)
{
    ServerError error = ErrorOfResult(m_errors, result);
    if (error.Number() == int(ErrorNumber::ConnectionLost))
        SetLoss(error);
    else if (PQstatus(Handle()) == CONNECTION_BAD)
        RaiseLoss();
    if (error.State() == "57014" && m_watch.IsCancelled())
        return {m_errors.Error(UserCancelled, StoreTexts::Cancelled), error.State()};
    return error;
}

void ServerConnection::GiveUp()
{
    SetLoss(ErrorOfLoss(m_errors, Handle()));
}

void ServerConnection::GiveUp(const RunTimeError& why)
{
    SetLoss(ServerError(why, {}));
}

void ServerConnection::SetLoss(const ServerError& loss)
{
    m_loss = loss;
    m_underWay = nullptr;
    m_handle.reset();
    Tell();
}

void ServerConnection::RaiseLoss()
{
    GiveUp();
    throw ServerError(*m_loss);
}

} // namespace Orvane
