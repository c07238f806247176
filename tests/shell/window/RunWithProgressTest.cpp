// SPDX-License-Identifier: MIT
#include "shell/window/RunWithProgress.h"

#include "mapkit/data/ReadingFailure.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QApplication>
#include <QProgressDialog>
#include <QPushButton>
#include <QThread>
#include <QTimer>

#include <future>
#include <gtest/gtest.h>
#include <thread>

namespace Orvane {

namespace {

// Presses Cancel as soon as there is a dialog.
class ImpatientUser
{
public:
    ImpatientUser()
    {
        QObject::connect(&m_timer, &QTimer::timeout, [] {
            for (QWidget* window : QApplication::topLevelWidgets()) {
                auto* dialog = qobject_cast<QProgressDialog*>(window);
                if (dialog && dialog->isVisible())
                    dialog->findChild<QPushButton*>()->click();
            }
        });
        m_timer.start(1);
    }

private:
    QTimer m_timer;
};

} // namespace

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
    const ImpatientUser user;
    const auto work = [](Progress& progress) {
        progress.Report(0.01);
        while (true)
            progress.StopIfCancelled();
    };
    EXPECT_THROW(RunWithProgress(nullptr, "Work", work), Cancelled);
}

TEST(RunOrGiveUp, WorkThatDoesNotEndIsGivenUpByName)
{
    const ImpatientUser user;
    std::promise<void> end;
    const auto work = [released = end.get_future().share()](Progress& progress) {
        progress.SetSubject("/data/endless.gpkg");
        progress.Report(0.01);
        released.wait();
    };
    QString text;
    try {
        RunOrGiveUp(nullptr, "Work", work, std::chrono::milliseconds(1));
    } catch (const ReadingGivenUp& error) {
        text = error.Description();
    }
    EXPECT_TRUE(text.contains("endless.gpkg")) << qPrintable(text);
    EXPECT_TRUE(IsGivenUpWorkRunning());
    end.set_value();
    while (IsGivenUpWorkRunning())
        std::this_thread::yield();
}

TEST(RunOrGiveUp, CancelledWorkThatEndsIsOnlyCancelled)
{
    const ImpatientUser user;
    const auto work = [](Progress& progress) {
        progress.Report(0.01);
        while (true)
            progress.StopIfCancelled();
    };
    EXPECT_THROW(RunOrGiveUp(nullptr, "Work", work, std::chrono::hours(1)), Cancelled);
    EXPECT_FALSE(IsGivenUpWorkRunning());
}

TEST(RunOrGiveUp, ResultsAndErrorsAreHandedOn)
{
    EXPECT_EQ(ReadOrGiveUp(nullptr, "Work", [](Progress&) { return 7; }), 7);
    const auto fails = [](Progress&) -> int { throw RunTimeError(77, "no luck"); };
    EXPECT_THROW(ReadOrGiveUp(nullptr, "Work", fails), RunTimeError);
}

TEST(RunWithProgress, TheBusyPointerIsTakenBack)
{
    RunWithProgress(nullptr, "Work", [](Progress&) {});
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

} // namespace Orvane
