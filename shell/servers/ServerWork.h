// SPDX-License-Identifier: MIT
#pragma once

#include "store/opening/ServerMaps.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QThread>

#include <functional>
#include <memory>

class QWidget;

namespace Orvane {

class Progress;
class ServerPasswords;

/// Asks a server in the background, one thing at a time, so that a window can be used meanwhile.
///
///     ServerWork work(passwords);
///     work.Start(server, [=, this](const ServerMaps::Access& access) -> ServerWork::Result {
///         return [this, maps = ServerMaps::List(server, access)] { Show(maps); };
///     });
class ServerWork : public QObject
{
    Q_OBJECT
public:
    /// What is done with the answer of a server, on the thread of the window.
    using Result = std::function<void()>;
    /// Runs on a thread of its own, so it owns what it uses; may raise. Returns nothing for no result.
    using Work = std::function<Result(const ServerMaps::Access& access)>;

    /// passwords: outlives this object.
    explicit ServerWork(ServerPasswords& passwords);
    /// As Stop, but emits nothing, and waits for the end of the work for a second at most.
    ~ServerWork() override;

    /// Begins work, and cancels other work that still runs, of which nothing more is heard.
    void Start(const QString& server, Work work);
    /// Cancels the work, and does not wait for its end.
    void Stop();
    bool IsRunning() const { return bool(m_progress); }
    /// Whether a dialog that started work which changes something on the server may close now: asks the user
    /// while it runs, because nobody would learn whether it was done. False too if it ended meanwhile.
    bool MayBeLeft(QWidget& dialog) const;

signals:
    /// Work has begun or ended: IsRunning.
    void RunningChanged();
    /// The work could not be done; not emitted if the user cancelled.
    void Failed(const QString& reason);

private:
    struct Outcome;

    bool Cancel();
    void End(const std::shared_ptr<const Progress>& progress, const Outcome& outcome);

    ServerPasswords& m_passwords;
    QPointer<QThread> m_thread; // deletes itself
    std::shared_ptr<Progress> m_progress; // of the work that runs
};

} // namespace Orvane
