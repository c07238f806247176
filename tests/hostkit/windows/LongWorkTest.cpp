// SPDX-License-Identifier: MIT
#include "hostkit/windows/LongWork.h"

#include "hostkit/HostKitTest.h"
#include "hostkit/Impatience.h"

#include <OrvaneShellLib/Cancellation.h>

#include <QPointer>
#include <QTimer>
#include <QWidget>

namespace Orvane::Testing {

namespace {

const QString What = QStringLiteral("Load Scheme \"Night\"");

class LongWorks : public HostKitTest
{
protected:
    LongWorks() { AddLayers(500); }

    // Takes several looks.
    void ChangeAll() { Database().Execute(QStringLiteral("UPDATE Layers SET Color = Color + 1")); }
    void Work(QWidget* parent = nullptr)
    {
        const LongWork work(Database(), What, parent);
        ChangeAll();
    }
};

TEST_F(LongWorks, ThatAreShortShowNoDialog)
{
    LongWork::SetPatience(std::chrono::hours(1));
    const AtEachLook looks([](QProgressDialog&, int) {});
    bool handled = false;
    QObject context;
    QMetaObject::invokeMethod(
        &context, [&] { handled = true; }, Qt::QueuedConnection);
    Work();
    LongWork::SetPatience(LongWork::UsualPatience);
    EXPECT_EQ(looks.Looks(), 0);
    EXPECT_FALSE(handled);
}

TEST_F(LongWorks, ShowADialogThatEndsWithThem)
{
    const Impatience now;
    QWidget window;
    window.show();
    QPointer<QProgressDialog> shown;
    const AtEachLook looks([&](QProgressDialog& dialog, int) {
        shown = &dialog;
        EXPECT_EQ(dialog.labelText(), What);
        EXPECT_TRUE(LongWork::IsUnderWay());
    });
    Work(&window);
    EXPECT_GT(looks.Looks(), 1);
    EXPECT_FALSE(shown);
    EXPECT_FALSE(LongWork::IsUnderWay());
}

TEST_F(LongWorks, RaiseWhenTheUserCancels)
{
    const Impatience now;
    const AtEachLook cancel([](QProgressDialog& dialog, int look) {
        if (look == 1)
            PressCancel(dialog);
    });
    EXPECT_EQ(ErrorOf([&] { Work(); }), int(UserCancelled));
    EXPECT_THAT(Get(1, "Color"), IsValue(0));
    EXPECT_NO_THROW(ChangeAll());
}

TEST_F(LongWorks, EndWhenTheirDialogIsClosed)
{
    const Impatience now;
    const AtEachLook close([](QProgressDialog& dialog, int) { dialog.close(); });
    EXPECT_EQ(ErrorOf([&] { Work(); }), int(UserCancelled));
}

TEST_F(LongWorks, WithoutCancelGoOnWhenTheirDialogIsClosed)
{
    const Impatience now;
    const AtEachLook close([](QProgressDialog& dialog, int) {
        EXPECT_EQ(dialog.findChild<QPushButton*>(), nullptr);
        dialog.close();
    });
    const LongWork work(Database(), What, nullptr, LongWork::Cancel::Impossible);
    EXPECT_NO_THROW(ChangeAll());
    EXPECT_GT(close.Looks(), 0);
    EXPECT_THAT(Get(1, "Color"), IsValue(1));
}

TEST_F(LongWorks, LetNobodyElseUseTheStore)
{
    const Impatience now;
    int refused = 0;
    const AtEachLook looks([&](QProgressDialog&, int) {
        refused += ErrorOf([&] { ChangeAll(); }) == int(ErrorNumber::DatabaseFailure) ? 1 : 0;
    });
    Work();
    EXPECT_GT(refused, 0);
    EXPECT_EQ(refused, looks.Looks());
    EXPECT_THAT(Get(1, "Color"), IsValue(1));
}

TEST_F(LongWorks, LetTimersFireAfterwards)
{
    const Impatience now;
    int fired = 0;
    QTimer timer;
    timer.setSingleShot(true);
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] { ++fired; });
    timer.start(0);
    const AtEachLook looks([&](QProgressDialog&, int) { EXPECT_EQ(fired, 0); });
    Work();
    EXPECT_GT(looks.Looks(), 1);
    EXPECT_EQ(fired, 0);
    while (fired == 0)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    EXPECT_EQ(fired, 1);
}

TEST_F(LongWorks, LetCallsWaitThatUseTheStore)
{
    const Impatience now;
    int ran = 0;
    QObject context;
    const auto call = [&] {
        ChangeAll();
        ++ran;
    };
    const AtEachLook looks([&](QProgressDialog&, int look) {
        if (look == 0)
            LongWork::RunAfter(&context, call);
        EXPECT_EQ(ran, 0);
    });
    Work();
    EXPECT_GT(looks.Looks(), 1);
    while (ran == 0)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    EXPECT_EQ(ran, 1);
    LongWork::RunAfter(&context, call);
    EXPECT_EQ(ran, 2);
}

TEST_F(LongWorks, LetNoWindowBeClosed)
{
    const Impatience now;
    QWidget window;
    window.show();
    const AtEachLook close([&](QProgressDialog&, int) { EXPECT_FALSE(window.close()); });
    Work(&window);
    EXPECT_GT(close.Looks(), 0);
    EXPECT_TRUE(window.isVisible());
    EXPECT_TRUE(window.close());
}

TEST_F(LongWorks, InsideOthersBelongToThem)
{
    const Impatience now;
    QPointer<QProgressDialog> first;
    const AtEachLook looks([&](QProgressDialog& dialog, int) {
        if (!first)
            first = &dialog;
        EXPECT_EQ(first, &dialog);
    });
    const LongWork outer(Database(), What, nullptr);
    ChangeAll();
    const int looksBefore = looks.Looks();
    Work();
    EXPECT_TRUE(LongWork::IsUnderWay());
    ChangeAll();
    EXPECT_GT(looks.Looks(), looksBefore + 1);
}

TEST_F(LongWorks, ShowHowMuchIsDone)
{
    const Impatience now;
    std::vector<int> shown;
    const AtEachLook looks([&](QProgressDialog& dialog, int) { shown.push_back(dialog.value()); });
    const LongWork work(Database(), What, nullptr);
    for (const double done : {0.25, 0.5, 0.75})
        Database().AskWatcher(done);
    EXPECT_TRUE(std::is_sorted(shown.begin(), shown.end()));
    EXPECT_GE(shown.back(), 700);
}

} // namespace

} // namespace Orvane::Testing
