// SPDX-License-Identifier: MIT
#include "shell/servers/ServerWork.h"

#include "shell/servers/ServerPasswords.h"

#include <OrvaneShellLib/Cancellation.h>

#include <QSignalSpy>
#include <QTest>
#include <QThread>
#include <QWidget>

#include <atomic>
#include <gtest/gtest.h>

namespace Orvane {

namespace {

const QString SomeServer = QStringLiteral("postgresql:///?service=team");

class ServerWorkTest : public testing::Test
{
protected:
    // Work that goes on until it is cancelled, as a server that does not answer.
    ServerWork::Work Endless()
    {
        return [this](const ServerMaps::Access& access) -> ServerWork::Result {
            while (access.watcher(0))
                QThread::yieldCurrentThread();
            m_isCancelled = true;
            throw RunTimeError(int(UserCancelled), "cancelled");
        };
    }
    void WaitForEnd()
    {
        ASSERT_TRUE(QTest::qWaitFor([this] { return !m_work.IsRunning(); }));
    }

    std::atomic<bool> m_isCancelled = false;
    QWidget m_window;
    ServerPasswords m_passwords{m_window};
    ServerWork m_work{m_passwords};
    QSignalSpy m_failures{&m_work, &ServerWork::Failed};
};

} // namespace

TEST_F(ServerWorkTest, RunsBesideTheWindowAndGivesItsResultThere)
{
    const QThread* window = QThread::currentThread();
    const QThread* worked = nullptr;
    const QThread* taken = nullptr;
    m_work.Start(SomeServer, [&](const ServerMaps::Access&) -> ServerWork::Result {
        worked = QThread::currentThread();
        return [&taken] { taken = QThread::currentThread(); };
    });
    EXPECT_TRUE(m_work.IsRunning());
    WaitForEnd();
    EXPECT_NE(worked, window);
    EXPECT_EQ(taken, window);
    EXPECT_EQ(m_failures.count(), 0);
}

TEST_F(ServerWorkTest, AnErrorIsToldOnce)
{
    m_work.Start(SomeServer, [](const ServerMaps::Access&) -> ServerWork::Result {
        throw RunTimeError(1, "The server does not answer.");
    });
    WaitForEnd();
    ASSERT_EQ(m_failures.count(), 1);
    EXPECT_TRUE(m_failures.first().first().toString().contains("The server does not answer."));
}

TEST_F(ServerWorkTest, StoppingEndsItAndTellsNothing)
{
    m_work.Start(SomeServer, Endless());
    m_work.Stop();
    EXPECT_FALSE(m_work.IsRunning());
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_isCancelled.load(); }));
    QCoreApplication::processEvents();
    EXPECT_EQ(m_failures.count(), 0);
}

TEST_F(ServerWorkTest, OtherWorkReplacesTheFirst)
{
    int answer = 0;
    m_work.Start(SomeServer, Endless());
    m_work.Start(
        SomeServer, [&](const ServerMaps::Access&) -> ServerWork::Result { return [&answer] { ++answer; }; });
    WaitForEnd();
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_isCancelled.load(); }));
    EXPECT_EQ(answer, 1);
}

TEST_F(ServerWorkTest, AnAnswerThatComesAfterStoppingIsDropped)
{
    bool isTaken = false;
    m_work.Start(SomeServer, [&](const ServerMaps::Access&) -> ServerWork::Result {
        return [&isTaken] { isTaken = true; };
    });
    m_work.Stop(); // waits, so that the answer is on its way
    QCoreApplication::processEvents();
    EXPECT_FALSE(isTaken);
}

} // namespace Orvane
