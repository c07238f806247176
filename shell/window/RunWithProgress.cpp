// SPDX-License-Identifier: MIT
#include "shell/window/RunWithProgress.h"

#include "ovctrls/BusyPointer.h"

#include <QApplication>
#include <QEventLoop>
#include <QProgressDialog>
#include <QTimer>

#include <chrono>
#include <future>

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

} // namespace

void RunWithProgress(QWidget* parent, const QString& what, const std::function<void(Progress&)>& work)
{
    Progress progress;
    std::future<void> result = std::async(std::launch::async, [&] { work(progress); });
    const BusyPointer busy;
    QProgressDialog dialog(what, QCoreApplication::translate("RunWithProgress", "Cancel"), 0, Steps, parent);
    dialog.setObjectName(QStringLiteral("dlgProgress"));
    dialog.setWindowModality(Qt::ApplicationModal);
    dialog.setMinimumDuration(DialogAfter);
    dialog.setAutoReset(false);
    QObject::connect(&dialog, &QProgressDialog::canceled, [&] { progress.Cancel(); });
    while (result.wait_for(LookAgainAfter) != std::future_status::ready) {
        if (!progress.IsCancelled())
            dialog.setValue(int(progress.Done() * (Steps - 1)));
        HandleEvents(dialog);
    }
    dialog.reset();
    result.get();
}

} // namespace Orvane
