// SPDX-License-Identifier: MIT
#include "store/postgres/link/ServerConnecting.h"

#include "store/IServerLogin.h"
#include "store/StoreOptions.h"
#include "store/StoreTexts.h"
#include "store/postgres/link/ServerAddresses.h"
#include "store/postgres/link/ServerErrors.h"
#include "store/shared/StoreErrors.h"
#include "store/shared/WorkWatch.h"

#include <OrvaneShellLib/Cancellation.h>

#include <atomic>
#include <chrono>
#include <future>
#include <libpq-fe.h>
#include <new>
#include <optional>
#include <poll.h>
#include <thread>
#include <vector>

namespace Orvane {

namespace {

using namespace std::chrono_literals;

constexpr int PasswordQuestions = 3;
constexpr auto ConnectingTurn = 20ms; // between two looks at the watcher

short EventsFor(PostgresPollingStatusType status)
{
    return status == PGRES_POLLING_READING ? POLLIN : POLLOUT;
}

using Clock = std::chrono::steady_clock;

// A connection that is not established or whose handle is null has failed, or took until the end.
ConnectionHandle ConnectedAt(
    const std::vector<ServerPlace::Option>& settings, Clock::time_point end,
    const std::atomic_bool& isGivenUp)
{
    std::vector<const char*> keywords;
    std::vector<const char*> values;
    for (const auto& [keyword, value] : settings) {
        keywords.push_back(keyword.constData());
        values.push_back(value.constData());
    }
    keywords.push_back(nullptr);
    values.push_back(nullptr);
    ConnectionHandle handle(PQconnectStartParams(keywords.data(), values.data(), 0));
    if (!handle || PQstatus(handle.get()) == CONNECTION_BAD)
        return handle;
    PQsetErrorVerbosity(handle.get(), PQERRORS_VERBOSE);
    PostgresPollingStatusType status = PGRES_POLLING_WRITING;
    while (!isGivenUp && status != PGRES_POLLING_OK && status != PGRES_POLLING_FAILED && Clock::now() < end) {
        pollfd socket{PQsocket(handle.get()), EventsFor(status), 0};
        if (poll(&socket, 1, int(ConnectingTurn.count())) != 0)
            status = PQconnectPoll(handle.get());
    }
    return handle;
}

bool IsWorthAnother(const ConnectionHandle& handle)
{
    return handle && PQstatus(handle.get()) != CONNECTION_OK && !IsRefusedByServer(handle.get());
}

// Each address has its share of the time, so that one that is silent does not hide the others. The last one
// has as long as somebody waits for it.
ConnectionHandle Connected(
    const std::vector<ServerPlace::Option>& settings, Clock::time_point end,
    const std::atomic_bool& isGivenUp)
{
    const std::vector<std::vector<ServerPlace::Option>> addresses = AddressesOf(settings);
    for (size_t number = 0; number + 1 < addresses.size() && !isGivenUp; ++number) {
        const Clock::time_point now = Clock::now();
        const auto share = (end - now) / int(addresses.size() - number);
        ConnectionHandle handle = ConnectedAt(addresses[number], now + share, isGivenUp);
        if (!IsWorthAnother(handle))
            return handle;
    }
    return ConnectedAt(addresses.back(), Clock::time_point::max(), isGivenUp);
}

std::vector<ServerPlace::Option> SettingsFor(const ServerPlace& place, const QString& password)
{
    std::vector<ServerPlace::Option> settings = place.options;
    settings.emplace_back("client_encoding", "UTF8");
    settings.emplace_back("fallback_application_name", "Orvane");
    settings.emplace_back("keepalives_idle", "5"); // seconds
    settings.emplace_back("keepalives_interval", "2"); // seconds
    settings.emplace_back("keepalives_count", "3");
    settings.emplace_back("tcp_user_timeout", "10000"); // milliseconds
    if (!password.isEmpty())
        settings.emplace_back("password", password.toUtf8());
    return settings;
}

void RaiseSilence(const StoreErrors& errors)
{
    throw ServerError(errors.Error(ErrorNumber::ConnectionLost, StoreTexts::ServerSilent), {});
}

ConnectionHandle ConnectOnce(ConnectionAttempt& attempt, WorkWatch& watch, const StoreErrors& errors)
{
    while (!attempt.IsOver(ConnectingTurn)) {
        if (!watch.Ask())
            throw errors.Error(UserCancelled, StoreTexts::Cancelled);
    }
    return attempt.Take(errors);
}

QString UserOf(const ServerPlace& place)
{
    const QByteArray user = place.Find("user");
    return QString::fromUtf8(user.isEmpty() ? qgetenv("USER") : user);
}

} // namespace

/// What the thread works on.
struct ConnectionAttempt::Work {
    std::vector<ServerPlace::Option> settings;
    std::promise<ConnectionHandle> connected;
    std::atomic_bool isGivenUp = false;
};

ConnectionAttempt::ConnectionAttempt(
    const ServerPlace& place, const QString& password, std::chrono::milliseconds time)
    : m_work(std::make_shared<Work>()), m_end(std::chrono::steady_clock::now() + time)
{
    m_work->settings = SettingsFor(place, password);
    m_connected = m_work->connected.get_future();
    std::thread([work = m_work, end = m_end] {
        work->connected.set_value(Connected(work->settings, end, work->isGivenUp));
    }).detach();
}

ConnectionAttempt::~ConnectionAttempt()
{
    m_work->isGivenUp = true;
}

bool ConnectionAttempt::IsOver(std::chrono::milliseconds wait) const
{
    return m_connected.wait_for(wait) == std::future_status::ready
        || std::chrono::steady_clock::now() >= m_end;
}

ConnectionHandle ConnectionAttempt::Take(const StoreErrors& errors)
{
    if (m_connected.wait_for(0ms) != std::future_status::ready)
        RaiseSilence(errors);
    ConnectionHandle handle = m_connected.get();
    if (!handle)
        throw std::bad_alloc();
    if (PQstatus(handle.get()) != CONNECTION_OK)
        throw ErrorOfConnecting(errors, handle.get());
    return handle;
}

void ConnectionCloser::operator()(pg_conn* connection) const
{
    PQfinish(connection);
}

ConnectionHandle ConnectToServer(
    const ServerPlace& place, const StoreOptions& options, WorkWatch& watch, const StoreErrors& errors,
    QString& password)
{
    for (int question = 0;; ++question) {
        std::optional<QString> answer;
        try {
            ConnectionAttempt attempt(place, password, options.connectTimeout);
            return ConnectOnce(attempt, watch, errors);
        } catch (const ServerError& error) {
            if (!error.IsAboutPassword() || !options.login || question == PasswordQuestions)
                throw;
            answer = options.login->AskPassword(UserOf(place), place.ServerName(), !password.isEmpty());
            if (!answer && !options.login->AsksSomebody())
                throw;
        }
        if (!answer)
            throw errors.Error(UserCancelled, StoreTexts::Cancelled);
        password = *answer;
    }
}

} // namespace Orvane
