// SPDX-License-Identifier: MIT
#include "shell/window/RunWithProgress.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QApplication>
#include <QProgressDialog>
#include <QPushButton>
#include <QThread>
#include <QTimer>

#include <gtest/gtest.h>

namespace Orvane {

TEST(RunWithProgress, WorksInAnotherThreadAndReturnsWhenItIsDone)
{
    bool done = false;
    RunWithProgress(nullptr, "Work", [&](Progress&) {
        EXPECT_NE(QThread::currentThread(), QApplication::instance()->thread());
        done = true;
    });
    EXPECT_TRUE(done);
}

TEST(RunWithProgress, HandsOnWhatTheWorkRaises)
{
    EXPECT_THROW(
        RunWithProgress(nullptr, "Work", [](Progress&) { throw RunTimeError(77, "no luck"); }), RunTimeError);
}

TEST(RunWithProgress, TheDialogsButtonCancels)
{
    QTimer user;
    QObject::connect(&user, &QTimer::timeout, [] {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            auto* dialog = qobject_cast<QProgressDialog*>(window);
            if (dialog && dialog->isVisible())
                dialog->findChild<QPushButton*>()->click();
        }
    });
    user.start(1);
    const auto work = [](Progress& progress) {
        progress.Report(0.01);
        while (true)
            progress.StopIfCancelled();
    };
    EXPECT_THROW(RunWithProgress(nullptr, "Work", work), Cancelled);
}

TEST(RunWithProgress, TheBusyPointerIsTakenBack)
{
    RunWithProgress(nullptr, "Work", [](Progress&) {});
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

} // namespace Orvane
