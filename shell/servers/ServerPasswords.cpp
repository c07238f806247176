// SPDX-License-Identifier: MIT
#include "shell/servers/ServerPasswords.h"

#include "mapkit/common/Guard.h"
#include "shell/servers/PasswordDialog.h"

#include <chrono>
#include <future>
#include <mutex>
#include <utility>

namespace Orvane {

/// By server, whose text contains the user if that is chosen. For any thread.
class KeptPasswords
{
public:
    std::optional<QString> Find(const QString& server)
    {
        const std::lock_guard lock(m_mutex);
        const auto found = m_passwords.find(server);
        return found == m_passwords.end() ? std::nullopt : std::optional(found->second);
    }
    void Keep(const QString& server, const QString& password)
    {
        const std::lock_guard lock(m_mutex);
        m_passwords.insert_or_assign(server, password);
    }
    void Forget(const QString& server)
    {
        const std::lock_guard lock(m_mutex);
        m_passwords.erase(server);
    }

private:
    std::mutex m_mutex;
    std::map<QString, QString> m_passwords;
};

namespace {

using namespace std::chrono_literals;

constexpr auto LookAtProgress = 30ms;

using Answer = std::optional<QString>;

class WindowLogin final : public IServerLogin
{
public:
    WindowLogin(ServerPasswords& passwords, QString server)
        : m_passwords(passwords), m_server(std::move(server))
    {
    }

    Answer AskPassword(const QString& user, const QString& server, bool wasWrong) override
    {
        return m_passwords.Password(m_server, user, server, wasWrong);
    }

private:
    ServerPasswords& m_passwords;
    QString m_server;
};

class KeptLoginOnly final : public IServerLogin
{
public:
    KeptLoginOnly(std::shared_ptr<KeptPasswords> kept, QString server)
        : m_kept(std::move(kept)), m_server(std::move(server))
    {
    }

    Answer AskPassword(const QString&, const QString&, bool wasWrong) override
    {
        return wasWrong ? std::nullopt : m_kept->Find(m_server);
    }
    bool AsksSomebody() const override { return false; }

private:
    std::shared_ptr<KeptPasswords> m_kept;
    QString m_server;
};

class ThreadLogin final : public IServerLogin
{
public:
    ThreadLogin(ServerPasswords& passwords, QString server, std::shared_ptr<const Progress> progress)
        : m_passwords(passwords), m_server(std::move(server)), m_progress(std::move(progress))
    {
    }

    Answer AskPassword(const QString& user, const QString& server, bool wasWrong) override
    {
        if (m_progress->IsCancelled()) // perhaps nobody is there any more
            return std::nullopt;
        auto question = std::make_shared<std::promise<Answer>>();
        std::future<Answer> answer = question->get_future();
        const auto ask = [&passwords = m_passwords, place = m_server, progress = m_progress,
                          question = std::move(question), user, server, wasWrong] {
            Answer typed;
            if (!progress->IsCancelled())
                Guard(nullptr, [&] { typed = passwords.Password(place, user, server, wasWrong); });
            question->set_value(typed);
        };
        QMetaObject::invokeMethod(&m_passwords, ask, Qt::QueuedConnection);
        while (answer.wait_for(LookAtProgress) != std::future_status::ready) {
            if (m_progress->IsCancelled())
                return std::nullopt;
        }
        return answer.get();
    }

private:
    ServerPasswords& m_passwords;
    QString m_server;
    std::shared_ptr<const Progress> m_progress;
};

} // namespace

ServerPasswords::ServerPasswords(QWidget& window)
    : m_window(window), m_kept(std::make_shared<KeptPasswords>())
{
}

ServerPasswords::~ServerPasswords() = default;

IServerLogin& ServerPasswords::LoginFor(const QString& server)
{
    std::unique_ptr<IServerLogin>& login = m_logins[server];
    if (!login)
        login = std::make_unique<WindowLogin>(*this, server);
    return *login;
}

std::unique_ptr<IServerLogin>
ServerPasswords::LoginOnThread(const QString& server, std::shared_ptr<const Progress> progress)
{
    return std::make_unique<ThreadLogin>(*this, server, std::move(progress));
}

std::shared_ptr<IServerLogin> ServerPasswords::KeptLogin(const QString& server) const
{
    return std::make_shared<KeptLoginOnly>(m_kept, server);
}

std::optional<QString> ServerPasswords::Password(
    const QString& server, const QString& user, const QString& serverName, bool wasWrong)
{
    if (!wasWrong) {
        if (std::optional<QString> known = m_kept->Find(server))
            return known;
    }
    m_kept->Forget(server);
    std::optional<QString> typed = PasswordDialog::Ask({user, serverName, wasWrong}, &m_window);
    if (typed && !typed->isEmpty())
        m_kept->Keep(server, *typed);
    return typed;
}

} // namespace Orvane
