// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

namespace Orvane {

/// Asks the user for a password that a server wants, and that is in none of the places where PostgreSQL's
/// clients look for it.
class IServerLogin
{
public:
    virtual ~IServerLogin() = default;
    IServerLogin(const IServerLogin&) = delete;
    IServerLogin& operator=(const IServerLogin&) = delete;

    /// The password of that user on that server; nothing if the user gives up. wasWrong: the server has just
    /// refused one. Called on the thread of the store.
    virtual std::optional<QString> AskPassword(const QString& user, const QString& server, bool wasWrong) = 0;
    /// False if no user is asked, so that no answer does not mean that a user gave up: the server's own error
    /// is raised then.
    virtual bool AsksSomebody() const { return true; }

protected:
    IServerLogin() = default;
};

} // namespace Orvane
