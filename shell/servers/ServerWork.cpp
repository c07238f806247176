// SPDX-License-Identifier: MIT
#include "shell/servers/ServerWork.h"

#include "mapkit/common/Guard.h"
#include "shell/servers/ServerPasswords.h"
#include "shell/window/Confirm.h"
#include "shell/window/RunWithProgress.h"
#include "store/IServerLogin.h"

#include <OrvaneShellLib/Cancellation.h>

#include <QCoreApplication>
#include <QThread>
#include <QWidget>

#include <utility>

namespace Orvane {

namespace {

constexpr int LongestWait = 1000; // milliseconds, for a thread whose window is closed

} // namespace

/// What the work has led to.
struct ServerWork::Outcome {
    Result result;
    QString failure;
};

ServerWork::ServerWork(ServerPasswords& passwords) : m_passwords(passwords)
{
}

ServerWork::~ServerWork()
{
    if (m_progress)
        m_progress->Cancel();
    if (m_thread)
        m_thread->wait(LongestWait);
}

void ServerWork::Start(const QString& server, Work work)
{
    Stop();
    m_progress = std::make_shared<Progress>();
    std::shared_ptr<IServerLogin> login = m_passwords.LoginOnThread(server, m_progress);
    const QPointer<ServerWork> self(this); // which the thread may outlive
    m_thread = QThread::create([self, progress = m_progress, login, work = std::move(work)] {
        const UnattendedWork running;
        Outcome outcome;
        try {
            ServerMaps::Access access;
            access.options.login = login.get();
            access.watcher = [&progress](double) { return !progress->IsCancelled(); };
            outcome.result = work(access);
        } catch (const std::exception& error) {
            if (!IsCancellation(error))
                outcome.failure = QString::fromUtf8(error.what());
        }
        const auto tell = [self, progress, outcome] {
            if (self)
                self->End(progress, outcome);
        };
        QMetaObject::invokeMethod(qApp, tell, Qt::QueuedConnection);
    });
    QObject::connect(m_thread, &QThread::finished, m_thread, &QObject::deleteLater);
    m_thread->start();
    emit RunningChanged();
}

void ServerWork::Stop()
{
    if (Cancel())
        emit RunningChanged();
}

bool ServerWork::MayBeLeft(QWidget& dialog) const
{
    if (!IsRunning())
        return true;
    const QString question
        = tr("The server has not answered yet. If you close this now, you will not learn whether it was "
             "done. Close it?");
    return Confirm(dialog, dialog.windowTitle(), question) && IsRunning();
}

// True if work was still running. It ends when the server lets it, and nothing more is heard of it.
bool ServerWork::Cancel()
{
    m_thread = nullptr;
    if (!m_progress)
        return false;
    std::exchange(m_progress, nullptr)->Cancel();
    return true;
}

// Nothing of work that was stopped, whose answer may already be on its way.
void ServerWork::End(const std::shared_ptr<const Progress>& progress, const Outcome& outcome)
{
    if (progress != m_progress)
        return;
    m_progress.reset();
    emit RunningChanged();
    if (outcome.result)
        Guard(nullptr, outcome.result);
    else if (!outcome.failure.isEmpty())
        emit Failed(outcome.failure);
}

} // namespace Orvane
