// SPDX-License-Identifier: MIT
#include "shell/servers/ServerMapDialog.h"

#include "shell/servers/ServerTest.h"
#include "store/postgres/RawLink.h"
#include "support/MessageBoxRobot.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeView>

namespace Orvane {

using namespace Testing;

namespace {

using Purpose = ServerMapDialog::Purpose;

class ServerMapDialogTest : public ServerTest
{
protected:
    void Open(Purpose purpose, const QString& name = {})
    {
        m_dialog = std::make_unique<ServerMapDialog>(purpose, name, m_passwords, nullptr);
        m_dialog->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(m_dialog.get()));
    }
    void OpenAndList(Purpose purpose, const QString& name = {})
    {
        Open(purpose, name);
        WaitForList();
    }
    void WaitForList()
    {
        ASSERT_TRUE(QTest::qWaitFor([this] { return Button("cmdRefresh")->isEnabled(); }));
    }
    template <typename Widget> Widget* Find(const char* name) const
    {
        return m_dialog->findChild<Widget*>(QLatin1String(name));
    }
    QPushButton* Button(const char* name) const { return Find<QPushButton>(name); }
    QPushButton* Ok() const { return Find<QDialogButtonBox>("buttons")->button(QDialogButtonBox::Ok); }
    QTreeView* List() const { return Find<QTreeView>("lstMaps"); }
    int Count() const { return List()->model()->rowCount(); }
    QString State() const { return Find<QLabel>("lblState")->text(); }

    std::unique_ptr<ServerMapDialog> m_dialog;
};

} // namespace

TEST_F(ServerMapDialogTest, ListsTheMapsOfTheLastServerAndEnterOpensTheFirst)
{
    OpenAndList(Purpose::Open);
    ASSERT_EQ(Count(), 1);
    QTest::keyClick(List(), Qt::Key_Return);
    EXPECT_EQ(m_dialog->result(), QDialog::Accepted);
    EXPECT_EQ(m_dialog->Place(), PlaceOf("Town"));
}

TEST_F(ServerMapDialogTest, AMapIsChosenWithTheArrowKeys)
{
    MakeMap("Harbour");
    OpenAndList(Purpose::Open);
    ASSERT_EQ(Count(), 2);
    EXPECT_EQ(m_dialog->Place(), PlaceOf("Harbour"));
    QTest::keyClick(List(), Qt::Key_Down);
    EXPECT_EQ(m_dialog->Place(), PlaceOf("Town"));
}

TEST_F(ServerMapDialogTest, AServerThatCannotBeReachedIsToldInTheDialog)
{
    ServerSettings::SetLastServer("postgresql:///nowhere?host=/nowhere");
    ServerSettings::AddServer("postgresql:///nowhere?host=/nowhere");
    OpenAndList(Purpose::Open);
    EXPECT_TRUE(State().contains("cannot be reached")) << State().toStdString();
    EXPECT_FALSE(Ok()->isEnabled());
    EXPECT_TRUE(m_dialog->isVisible());
}

TEST_F(ServerMapDialogTest, TheDialogClosesWhileTheServerIsAsked)
{
    Open(Purpose::Open);
    QTest::keyClick(List(), Qt::Key_Escape);
    EXPECT_EQ(m_dialog->result(), QDialog::Rejected);
    m_dialog.reset();
}

TEST_F(ServerMapDialogTest, WithoutAServerItSaysHowToGetOne)
{
    ServerSettings::RemoveServer(m_server);
    Open(Purpose::Open);
    EXPECT_TRUE(State().startsWith("Add the server"));
    EXPECT_TRUE(Button("cmdAdd")->hasFocus());
    EXPECT_FALSE(Ok()->isEnabled());
    EXPECT_EQ(m_dialog->Place(), "");
}

TEST_F(ServerMapDialogTest, AServerIsForgottenAndItsMapsStay)
{
    OpenAndList(Purpose::Open);
    QTest::mouseClick(Button("cmdForget"), Qt::LeftButton);
    EXPECT_TRUE(ServerSettings::Servers().isEmpty());
    EXPECT_EQ(Count(), 0);
    EXPECT_EQ(ServerMaps::List(m_server, {}).size(), 1U);
}

TEST_F(ServerMapDialogTest, AnOwnMapIsRemovedAfterAQuestion)
{
    OpenAndList(Purpose::Open);
    {
        const MessageBoxRobot user{BoxKey::No};
        QTest::mouseClick(Button("cmdRemove"), Qt::LeftButton);
        EXPECT_TRUE(user.Only().text.contains("Town"));
    }
    EXPECT_EQ(Count(), 1);
    const MessageBoxRobot user{BoxKey::Yes};
    QTest::mouseClick(Button("cmdRemove"), Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([this] { return State().startsWith("There are no maps"); }));
    EXPECT_EQ(Count(), 0);
}

TEST_F(ServerMapDialogTest, WhileAMapIsRemovedNothingIsChosenAndClosingAsks)
{
    OpenAndList(Purpose::Open);
    RawLink reader(SharedServer().Connection()); // the removal waits for it
    reader.Run("BEGIN");
    reader.Run("LOCK TABLE \"Town\".layers IN ACCESS SHARE MODE");
    {
        const MessageBoxRobot user{BoxKey::Yes};
        QTest::mouseClick(Button("cmdRemove"), Qt::LeftButton);
    }
    m_dialog->accept();
    EXPECT_TRUE(m_dialog->isVisible());
    {
        const MessageBoxRobot user{BoxKey::No};
        QTest::keyClick(List(), Qt::Key_Escape);
        EXPECT_TRUE(user.Only().text.contains("has not answered yet"));
    }
    EXPECT_TRUE(m_dialog->isVisible());
    reader.Run("COMMIT");
    EXPECT_TRUE(QTest::qWaitFor([this] { return State().startsWith("There are no maps"); }));
    QTest::keyClick(List(), Qt::Key_Escape);
    EXPECT_FALSE(m_dialog->isVisible());
}

TEST_F(ServerMapDialogTest, AnotherNameIsTakenForSavingWithoutAQuestion)
{
    OpenAndList(Purpose::Save, "Lake");
    QTest::keyClick(Find<QLineEdit>("edtName"), Qt::Key_Return);
    EXPECT_EQ(m_dialog->result(), QDialog::Accepted);
    EXPECT_EQ(m_dialog->Place(), PlaceOf("Lake"));
    EXPECT_EQ(m_dialog->WhatIfExists(), IfExists::Refuse); // somebody may be storing one just now
}

TEST_F(ServerMapDialogTest, AMapIsReplacedOnlyAfterAQuestion)
{
    OpenAndList(Purpose::Save, "Town");
    {
        const MessageBoxRobot user{BoxKey::No};
        QTest::keyClick(Find<QLineEdit>("edtName"), Qt::Key_Return);
        EXPECT_TRUE(m_dialog->isVisible());
    }
    EXPECT_EQ(m_dialog->WhatIfExists(), IfExists::Refuse);
    const MessageBoxRobot user{BoxKey::Yes};
    QTest::keyClick(Find<QLineEdit>("edtName"), Qt::Key_Return);
    EXPECT_EQ(m_dialog->result(), QDialog::Accepted);
    EXPECT_EQ(m_dialog->WhatIfExists(), IfExists::Replace);
}

TEST_F(ServerMapDialogTest, NothingIsSavedBeforeItIsKnownWhatIsThere)
{
    Open(Purpose::Save, "Town");
    EXPECT_FALSE(Ok()->isEnabled());
    WaitForList();
    EXPECT_TRUE(Ok()->isEnabled());
    Find<QLineEdit>("edtName")->clear();
    EXPECT_FALSE(Ok()->isEnabled());
}

} // namespace Orvane
