// SPDX-License-Identifier: MIT
#pragma once

#include "store/IServerLogin.h"

#include <QObject>
#include <QString>

#include <map>
#include <memory>
#include <optional>

class QWidget;

namespace Orvane {

class KeptPasswords;
class Progress;

/// Asks the user for the passwords of servers, and keeps those that were typed until the program ends: in
/// memory, one for each server and user. They are written nowhere.
class ServerPasswords : public QObject
{
    Q_OBJECT
public:
    /// window: dialogs are shown over it; outlives this object.
    explicit ServerPasswords(QWidget& window);
    ~ServerPasswords() override;

    /// Asks on the thread of the window. Owned by this object, and the same for each call.
    IServerLogin& LoginFor(const QString& server);
    /// For work on another thread, which waits until the user has answered, or until the progress is
    /// cancelled. This object outlives it.
    std::unique_ptr<IServerLogin>
    LoginOnThread(const QString& server, std::shared_ptr<const Progress> progress);

    /// Asks nobody: gives what was typed earlier, at the moment when it is wanted. For any thread; may
    /// outlive this object.
    std::shared_ptr<IServerLogin> KeptLogin(const QString& server) const;

    /// What was typed earlier, or what the user types now; nothing if the user gives up. Call it on the
    /// thread of the window. wasWrong: as in IServerLogin.
    std::optional<QString>
    Password(const QString& server, const QString& user, const QString& serverName, bool wasWrong);

private:
    QWidget& m_window;
    std::shared_ptr<KeptPasswords> m_kept;
    std::map<QString, std::unique_ptr<IServerLogin>> m_logins; // by server
};

} // namespace Orvane
