// SPDX-License-Identifier: MIT
#include "shell/servers/ServerPasswords.h"

#include "mapkit/common/Progress.h"
#include "shell/servers/PasswordDialog.h"

#include <QApplication>
#include <QLineEdit>
#include <QSettings>
#include <QTest>
#include <QTimer>

#include <future>
#include <gtest/gtest.h>

namespace Orvane {

namespace {

const QString TeamServer = QStringLiteral("postgresql:///?service=team");

class ServerPasswordsTest : public testing::Test
{
protected:
    ServerPasswordsTest() { QSettings().clear(); }

    // Types into the next password dialog, and presses a key there.
    void Answer(const QString& password, Qt::Key key = Qt::Key_Return)
    {
        QTimer::singleShot(0, &m_window, [this, password, key] {
            auto* dialog = qobject_cast<PasswordDialog*>(QApplication::activeModalWidget());
            if (!dialog)
                return Answer(password, key);
            ++m_questions;
            auto* field = dialog->findChild<QLineEdit*>("edtPassword");
            QTest::keyClicks(field, password);
            QTest::keyClick(field, key);
        });
    }
    std::optional<QString> Ask(bool wasWrong = false)
    {
        return m_passwords.LoginFor(TeamServer).AskPassword("anna", "team", wasWrong);
    }

    QWidget m_window;
    ServerPasswords m_passwords{m_window};
    int m_questions = 0;
};

} // namespace

TEST_F(ServerPasswordsTest, APasswordIsAskedForOnce)
{
    Answer("secret");
    EXPECT_EQ(Ask(), "secret");
    EXPECT_EQ(Ask(), "secret");
    EXPECT_EQ(m_questions, 1);
}

TEST_F(ServerPasswordsTest, OneThatWasWrongIsAskedForAgain)
{
    Answer("secret");
    Ask();
    Answer("changed");
    EXPECT_EQ(Ask(true), "changed");
    EXPECT_EQ(Ask(), "changed");
}

TEST_F(ServerPasswordsTest, AnotherServerGetsNone)
{
    Answer("secret");
    Ask();
    Answer("", Qt::Key_Escape);
    const QString other = QStringLiteral("postgresql://maps.org:5433/maps");
    EXPECT_EQ(m_passwords.LoginFor(other).AskPassword("anna", "maps.org", false), std::nullopt);
    EXPECT_EQ(m_questions, 2);
}

TEST_F(ServerPasswordsTest, NothingIsWrittenIntoTheSettings)
{
    Answer("secret");
    Ask();
    for (const QString& key : QSettings().allKeys())
        EXPECT_FALSE(QSettings().value(key).toString().contains("secret")) << key.toStdString();
}

TEST_F(ServerPasswordsTest, WorkOnAnotherThreadWaitsForTheAnswer)
{
    const auto progress = std::make_shared<Progress>();
    const auto login = m_passwords.LoginOnThread(TeamServer, progress);
    auto answer = std::async(std::launch::async, [&] { return login->AskPassword("anna", "team", false); });
    Answer("secret");
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return answer.wait_for(std::chrono::seconds(0)) == std::future_status::ready; }));
    EXPECT_EQ(answer.get(), "secret");
}

TEST_F(ServerPasswordsTest, WorkThatIsCancelledWaitsNoLongerAndNobodyIsAsked)
{
    const auto progress = std::make_shared<Progress>();
    const auto login = m_passwords.LoginOnThread(TeamServer, progress);
    auto answer = std::async(std::launch::async, [&] { return login->AskPassword("anna", "team", false); });
    progress->Cancel();
    EXPECT_EQ(answer.get(), std::nullopt); // without events: the window may be waiting for the work
    QApplication::processEvents();
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(ServerPasswordsTest, TablesAreReadWithWhatWasTypedAndAskNobody)
{
    const std::shared_ptr<IServerLogin> login = m_passwords.KeptLogin(TeamServer);
    EXPECT_EQ(login->AskPassword("anna", "team", false), std::nullopt);
    EXPECT_FALSE(login->AsksSomebody());
    Answer("secret");
    Ask();
    EXPECT_EQ(login->AskPassword("anna", "team", false), "secret");
    EXPECT_EQ(login->AskPassword("anna", "team", true), std::nullopt);
}

} // namespace Orvane
