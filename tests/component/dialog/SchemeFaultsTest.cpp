// SPDX-License-Identifier: MIT
#include "component/dialog/EditorFixture.h"

#include <OrvaneShellLib/ForwardingClient.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QGuiApplication>
#include <QtTest>

namespace Orvane::Testing {

namespace {

using testing::ElementsAre;

const QString Fault = QStringLiteral("The host is out of order.");

// Raises an error in the named scheme call, before the call is passed on.
class FaultySchemes : public ForwardingClient
{
public:
    using ForwardingClient::ForwardingClient;
    QString faulty;

private:
    void Enter(const char* member) const
    {
        if (faulty == QLatin1String(member))
            throw RunTimeError(10001, Fault);
    }

    QString IStyleEditorClient_GetCurrentScheme() override
    {
        Enter("GetCurrentScheme");
        return ForwardingClient::IStyleEditorClient_GetCurrentScheme();
    }
    void IStyleEditorClient_LoadScheme(const QString& name) override
    {
        Enter("LoadScheme");
        ForwardingClient::IStyleEditorClient_LoadScheme(name);
    }
    void IStyleEditorClient_CreateScheme(const QString& name) override
    {
        Enter("CreateScheme");
        ForwardingClient::IStyleEditorClient_CreateScheme(name);
    }
    void IStyleEditorClient_DeleteScheme(const QString& name) override
    {
        Enter("DeleteScheme");
        ForwardingClient::IStyleEditorClient_DeleteScheme(name);
    }
    void IStyleEditorClient_SaveSchemesToStartup() override
    {
        Enter("SaveSchemesToStartup");
        ForwardingClient::IStyleEditorClient_SaveSchemesToStartup();
    }
};

class SchemeFaults : public EditorFixture
{
protected:
    void SetUp() override
    {
        AddTown();
        host.schemeNames = QStringList{"Day", "Night", "Print"};
        host.currentScheme = "Night";
        UseClient(m_client);
        Open();
        ClickTab(3);
    }

    QComboBox& List() { return Find<QComboBox>("cmbScheme"); }

    FaultySchemes m_client{host};
};

TEST_F(SchemeFaults, ASwitchThatFailsShowsTheHostsSchemeAndRestoresThePointer)
{
    m_client.faulty = "LoadScheme";
    MessageBoxRobot user{BoxKey::Yes, BoxKey::Enter};
    PickScheme("Print");
    ASSERT_EQ(user.Boxes().size(), 2u);
    EXPECT_TRUE(user.Boxes()[1].text.contains(Fault));
    EXPECT_EQ(List().currentText(), "Night");
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(SchemeFaults, ASwitchFromASchemeThatCannotBeAskedForShowsItAgain)
{
    m_client.faulty = "GetCurrentScheme";
    MessageBoxRobot user{BoxKey::Enter};
    PickScheme("Print");
    EXPECT_TRUE(user.Only().text.contains(Fault));
    EXPECT_EQ(List().currentText(), "Night");
    EXPECT_EQ(host.currentScheme, "Night");
}

TEST_F(SchemeFaults, ARevertThatFailsRestoresThePointer)
{
    m_client.faulty = "LoadScheme";
    MessageBoxRobot user{BoxKey::Yes, BoxKey::Enter};
    Click("cmdRevert");
    EXPECT_EQ(user.Boxes().size(), 2u);
    EXPECT_EQ(List().currentText(), "Night");
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(SchemeFaults, ADeletionThatFailsHalfWayShowsTheHostsScheme)
{
    m_client.faulty = "DeleteScheme";
    MessageBoxRobot user{BoxKey::Yes, BoxKey::Enter};
    Click("cmdDelete");
    EXPECT_TRUE(user.Boxes().back().text.contains(Fault));
    EXPECT_EQ(host.currentScheme, "Print");
    EXPECT_EQ(List().currentText(), "Print");
    EXPECT_EQ(List().count(), 3);
}

TEST_F(SchemeFaults, ALayerChangedByADeletionThatFailsIsReadAgain)
{
    host.OnLoadScheme = [&](const QString&) { host.SetLayerColumn(1, "OverrideMode", qint32(2)); };
    m_client.faulty = "DeleteScheme";
    MessageBoxRobot user{BoxKey::Yes, BoxKey::Enter};
    Click("cmdDelete");
    ClickTab(2);
    ClickLayer("Roads");
    EXPECT_EQ(PressedModes(), 4);
}

TEST_F(SchemeFaults, ASchemeThatCannotBeCreatedIsNotListed)
{
    m_client.faulty = "CreateScheme";
    host.promptAnswers = {{true, "Winter"}};
    MessageBoxRobot user{BoxKey::Enter};
    Click("cmdNew");
    EXPECT_EQ(List().findText("Winter"), -1);
    EXPECT_EQ(List().currentText(), "Night");
}

TEST_F(SchemeFaults, AStartupDatabaseThatCannotBeWrittenIsTold)
{
    m_client.faulty = "SaveSchemesToStartup";
    MessageBoxRobot user{BoxKey::Yes, BoxKey::Enter};
    Click("cmdSaveStartup");
    EXPECT_TRUE(user.Boxes().back().text.contains(Fault));
}

} // namespace

} // namespace Orvane::Testing
