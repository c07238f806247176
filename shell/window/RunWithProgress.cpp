// SPDX-License-Identifier: MIT
#include "shell/window/RunWithProgress.h"

#include "mapkit/data/ReadingFailure.h"
#include "ovctrls/BusyPointer.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QProgressDialog>

#include <atomic>
#include <chrono>
#include <future>
#include <thread>

namespace Orvane {

namespace {

constexpr std::chrono::milliseconds LookAgainAfter{30};
constexpr int DialogAfter = 500; // milliseconds
constexpr int Steps = 1000;

// Blocks input until the dialog is shown, so that the user cannot close the window during the work.
void HandleEvents(const QProgressDialog& dialog)
{
    const bool shown = dialog.isVisible();
    QCoreApplication::processEvents(shown ? QEventLoop::AllEvents : QEventLoop::ExcludeUserInputEvents);
}

std::atomic<int> givenUpWorks = 0;

// All that a thread uses that may outlive the call.
struct Task {
    std::function<void(Progress&)> work;
    Progress progress;
    std::promise<void> end;
    std::atomic<bool> isLeft = false; // by the thread or by the user, whoever is first
};

void RunTask(Task& task)
{
    try {
        task.work(task.progress);
        task.end.set_value();
    } catch (...) {
        task.end.set_exception(std::current_exception());
    }
    if (task.isLeft.exchange(true))
        --givenUpWorks;
}

// Shows the progress until the work has ended. Returns false if that takes longer than patience after the
// user cancelled; without patience it waits.
bool WaitFor(
    const std::future<void>& result, Progress& progress, QWidget* parent, const QString& what,
    std::optional<std::chrono::milliseconds> patience)
{
    const BusyPointer busy;
    QProgressDialog dialog(what, QCoreApplication::translate("RunWithProgress", "Cancel"), 0, Steps, parent);
    dialog.setObjectName(QStringLiteral("dlgProgress"));
    dialog.setWindowModality(Qt::ApplicationModal);
    dialog.setMinimumDuration(DialogAfter);
    dialog.setAutoReset(false);
    QElapsedTimer sinceCancelled;
    QObject::connect(&dialog, &QProgressDialog::canceled, [&] {
        progress.Cancel();
        sinceCancelled.start();
    });
    while (result.wait_for(LookAgainAfter) != std::future_status::ready) {
        if (patience && sinceCancelled.isValid() && sinceCancelled.hasExpired(patience->count()))
            return false;
        if (!progress.IsCancelled())
            dialog.setValue(int(progress.Done() * (Steps - 1)));
        HandleEvents(dialog);
    }
    dialog.reset();
    return true;
}

} // namespace

void RunWithProgress(QWidget* parent, const QString& what, const std::function<void(Progress&)>& work)
{
    Progress progress;
    std::future<void> result = std::async(std::launch::async, [&] { work(progress); });
    WaitFor(result, progress, parent, what, std::nullopt);
    result.get();
}

void RunOrGiveUp(
    QWidget* parent, const QString& what, std::function<void(Progress&)> work,
    std::chrono::milliseconds patience)
{
    const auto task = std::make_shared<Task>();
    task->work = std::move(work);
    std::future<void> result = task->end.get_future();
    std::thread thread([task] { RunTask(*task); });
    if (WaitFor(result, task->progress, parent, what, patience)) {
        thread.join();
        return result.get();
    }
    ++givenUpWorks;
    if (task->isLeft.exchange(true))
        --givenUpWorks; // it ended just now
    thread.detach();
    const QString subject = task->progress.Subject();
    throw ReadingGivenUp(subject.isEmpty() ? what : subject);
}

UnattendedWork::UnattendedWork()
{
    ++givenUpWorks;
}

UnattendedWork::~UnattendedWork()
{
    --givenUpWorks;
}

bool IsGivenUpWorkRunning()
{
    return givenUpWorks > 0;
}

} // namespace Orvane
