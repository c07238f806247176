// SPDX-License-Identifier: MIT
// How a connection waits for answers, and cancels what it no longer waits for.
#include "store/StoreTexts.h"
#include "store/postgres/link/ServerConnection.h"
#include "store/postgres/link/ServerPipeline.h"
#include "store/shared/WorkWatch.h"

#include <OrvaneShellLib/Cancellation.h>

#include <algorithm>
#include <libpq-fe.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <thread>
#include <utility>

namespace Orvane {

namespace {

using namespace std::chrono_literals;

constexpr auto WaitingTurn = 20ms; // between two looks at the watcher
constexpr auto CancelTime = 1s; // between two requests to cancel the same
constexpr std::chrono::minutes LongestSilence{5};
constexpr std::chrono::milliseconds PatienceInHaste{3000};
constexpr auto CancelPatience = 5s; // with a server that was asked to cancel

struct CancelFreer {
    void operator()(PGcancel* cancel) const { PQfreeCancel(cancel); }
};

} // namespace

ServerConnection::Haste::Haste(ServerConnection& connection)
    : m_connection(connection), m_usual(connection.m_options)
{
    StoreOptions& options = connection.m_options;
    options.answerTimeout = std::min(options.answerTimeout, PatienceInHaste);
    options.connectTimeout = std::min(options.connectTimeout, PatienceInHaste);
}

ServerConnection::Haste::~Haste()
{
    m_connection.m_options.answerTimeout = m_usual.answerTimeout;
    m_connection.m_options.connectTimeout = m_usual.connectTimeout;
}

void ServerConnection::RequireSign()
{
    Flush();
    if (Clock::now() - m_lastSign > m_options.answerTimeout)
        RaiseSilence();
}

void ServerConnection::BeginExchange()
{
    RequireUsable();
    m_received = 0;
    AwaitCancel();
    m_lastSign = Clock::now();
    AwaitUnderWay();
    AskWatcher();
}

// A question in the background comes first.
void ServerConnection::AwaitUnderWay()
{
    if (!m_underWay)
        return;
    const WorkWatch::Pause whole(m_watch); // it is nobody's work that could be cancelled
    m_underWay->Await();
    AwaitCancel();
    m_lastSign = Clock::now();
}

void ServerConnection::EndExchange()
{
    m_underWay = nullptr;
    GatherNotices();
    if (!m_notices.empty())
        Tell();
}

void ServerConnection::Abandon(const ServerPipeline& pipeline) noexcept
{
    if (m_underWay != &pipeline)
        return;
    m_underWay = nullptr;
    try {
        GiveUp();
    } catch (...) { // no memory for the reason: the next exchange will find out
    }
}

bool ServerConnection::Flush()
{
    const int result = PQflush(Handle());
    if (result < 0)
        RaiseLoss();
    return result == 1;
}

void ServerConnection::Turn()
{
    const bool hasMore = Flush();
    pollfd socket{Socket(), short(hasMore ? POLLIN | POLLOUT : POLLIN), 0};
    if (poll(&socket, 1, int(WaitingTurn.count())) > 0) {
        m_lastSign = Clock::now();
        CountReceived();
    }
    if (PQconsumeInput(Handle()) != 1) // also of what was decrypted before, which poll does not see
        RaiseLoss();
    Look();
}

// libpq keeps an answer until its end, and everything that comes between.
void ServerConnection::CountReceived()
{
    int waiting = 0;
    if (ioctl(Socket(), FIONREAD, &waiting) == 0)
        m_received += waiting;
    if (m_received <= m_options.longestAnswer)
        return;
    GiveUp(m_errors.Error(ErrorNumber::ConnectionLost, StoreTexts::AnswerTooLong));
    throw ServerError(*m_loss);
}

void ServerConnection::Look()
{
    if (m_lastCancel) {
        LookAfterCancel();
        return;
    }
    if (m_watch.HasWatcher() && !m_watch.IsPaused()) {
        if (!m_watch.Ask()) {
            m_lastSign = Clock::now();
            Cancel();
        } else if (IsSilentFor(LongestSilence)) { // perhaps the user has no way to cancel
            RaiseSilence();
        }
    } else if (IsSilentFor(m_options.answerTimeout)) {
        RaiseSilence();
    }
}

// A request that comes between two statements ends neither.
void ServerConnection::LookAfterCancel()
{
    if (IsSilentFor(std::min<std::chrono::milliseconds>(m_options.answerTimeout, CancelPatience)))
        RaiseSilence();
    if (Clock::now() - *m_lastCancel > CancelTime && m_cancelling.wait_for(0s) == std::future_status::ready)
        Cancel();
}

bool ServerConnection::IsSilentFor(std::chrono::milliseconds time) const
{
    return Clock::now() - m_lastSign > time;
}

// Asking for it takes a connection of its own, which may block.
void ServerConnection::Cancel()
{
    std::shared_ptr<PGcancel> cancel(PQgetCancel(Handle()), CancelFreer());
    std::promise<void> done;
    m_cancelling = done.get_future();
    m_lastCancel = Clock::now();
    std::thread([cancel, done = std::move(done)]() mutable {
        char message[256];
        if (cancel)
            PQcancel(cancel.get(), message, int(sizeof message));
        done.set_value();
    }).detach();
}

// Whatever runs next would be cancelled if the server were asked that late.
void ServerConnection::AwaitCancel()
{
    m_lastCancel.reset();
    if (!m_cancelling.valid())
        return;
    if (m_cancelling.wait_for(CancelTime) != std::future_status::ready)
        RaiseSilence();
    m_cancelling = {};
}

// A server that is only slow must not store later what was told as lost, and not keep its locks.
void ServerConnection::RaiseSilence()
{
    Cancel();
    GiveUp(m_errors.Error(ErrorNumber::ConnectionLost, StoreTexts::ServerSilent));
    throw ServerError(*m_loss);
}

} // namespace Orvane
