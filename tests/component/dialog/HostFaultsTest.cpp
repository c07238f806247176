// SPDX-License-Identifier: MIT
#include "component/dialog/EditorFixture.h"
#include "hosts/FailingClient.h"

#include <OrvaneShellLib/ForwardingClient.h>
#include <OrvaneShellLib/IStyleEditor.h>
#include <OrvaneShellLib/IStyleEditorForm.h>

namespace Orvane::Testing {

namespace {

const QString Fault = QStringLiteral("The host is out of order.");

/// Raises an error in the named member only.
class FaultyClient : public ForwardingClient
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

    void IStyleEditorClient_ShowEditor(QWidget* form) override
    {
        Enter("ShowEditor");
        ForwardingClient::IStyleEditorClient_ShowEditor(form);
    }
    void IStyleEditorClient_EditorClosed(QWidget* form) override
    {
        Enter("EditorClosed");
        ForwardingClient::IStyleEditorClient_EditorClosed(form);
    }
    QString IStyleEditorClient_ReadSetting(QWidget* form, const QString& key) override
    {
        Enter("ReadSetting");
        return ForwardingClient::IStyleEditorClient_ReadSetting(form, key);
    }
    void IStyleEditorClient_WriteSetting(QWidget* form, const QString& key, const QString& value) override
    {
        Enter("WriteSetting");
        ForwardingClient::IStyleEditorClient_WriteSetting(form, key, value);
    }
    ILayerDatabase& IStyleEditorClient_Database() override
    {
        Enter("Database");
        return ForwardingClient::IStyleEditorClient_Database();
    }
    std::unique_ptr<IRecordset> IStyleEditorClient_LayersTable() override
    {
        Enter("LayersTable");
        return ForwardingClient::IStyleEditorClient_LayersTable();
    }
    void IStyleEditorClient_BeginLayerEdit(IRecordset& layers) override
    {
        Enter("BeginLayerEdit");
        ForwardingClient::IStyleEditorClient_BeginLayerEdit(layers);
    }
    void IStyleEditorClient_LayerChanged(qint32 layerID) override
    {
        Enter("LayerChanged");
        ForwardingClient::IStyleEditorClient_LayerChanged(layerID);
    }
    QStringList IStyleEditorClient_GetSchemeNames() override
    {
        Enter("GetSchemeNames");
        return ForwardingClient::IStyleEditorClient_GetSchemeNames();
    }
    QString IStyleEditorClient_GetCurrentScheme() override
    {
        Enter("GetCurrentScheme");
        return ForwardingClient::IStyleEditorClient_GetCurrentScheme();
    }
    void IStyleEditorClient_SaveScheme(const QString& name) override
    {
        Enter("SaveScheme");
        ForwardingClient::IStyleEditorClient_SaveScheme(name);
    }
    qint32 IStyleEditorClient_CreateLayer() override
    {
        Enter("CreateLayer");
        return ForwardingClient::IStyleEditorClient_CreateLayer();
    }
    void IStyleEditorClient_DeleteLayer(qint32 layerID) override
    {
        Enter("DeleteLayer");
        ForwardingClient::IStyleEditorClient_DeleteLayer(layerID);
    }
    bool IStyleEditorClient_IsCodeAssigned(qint16 code) override
    {
        Enter("IsCodeAssigned");
        return ForwardingClient::IStyleEditorClient_IsCodeAssigned(code);
    }
    PromptAnswer IStyleEditorClient_PromptText(const PromptRequest& request) override
    {
        Enter("PromptText");
        return ForwardingClient::IStyleEditorClient_PromptText(request);
    }
    QString IStyleEditorClient_StyleCommandPrefix() const override
    {
        Enter("StyleCommandPrefix");
        return ForwardingClient::IStyleEditorClient_StyleCommandPrefix();
    }
    bool IStyleEditorClient_QuickModesAllowed() const override
    {
        Enter("QuickModesAllowed");
        return ForwardingClient::IStyleEditorClient_QuickModesAllowed();
    }
    std::vector<RendererStyle> IStyleEditorClient_RendererStyles() const override
    {
        Enter("RendererStyles");
        return ForwardingClient::IStyleEditorClient_RendererStyles();
    }
    QString IStyleEditorClient_ThemeName(QWidget* form) const override
    {
        Enter("ThemeName");
        return ForwardingClient::IStyleEditorClient_ThemeName(form);
    }
    void IStyleEditorClient_RedrawMap() override
    {
        Enter("RedrawMap");
        ForwardingClient::IStyleEditorClient_RedrawMap();
    }
};

class HostFaults : public EditorFixture
{
protected:
    void SetUp() override
    {
        AddTown();
        UseClient(client);
    }

    void OpenWithEdits()
    {
        Open();
        ClickLayer("Roads");
        Click("chkVisible");
    }

    FaultyClient client{host};
};

TEST_F(HostFaults, AFaultWhileShowingReachesTheHostAndTheNextTryWorks)
{
    for (const char* member :
         {"StyleCommandPrefix", "QuickModesAllowed", "GetSchemeNames", "GetCurrentScheme", "RendererStyles",
          "ReadSetting", "Database", "ThemeName", "ShowEditor"}) {
        Create();
        client.faulty = member;
        EXPECT_THROW(Editor().Visible(true), RunTimeError) << member;
        EXPECT_FALSE(Editor().Visible()) << member;
        client.faulty.clear();
        Open();
        EXPECT_TRUE(Editor().Visible()) << member;
        ClickLayer("Roads");
        EXPECT_EQ(TextOf("lblCode"), "11") << member;
        Close();
    }
}

TEST_F(HostFaults, AFaultWhileApplyingIsToldOnceAndLosesNothing)
{
    OpenWithEdits();
    for (const char* member : {"LayersTable", "BeginLayerEdit", "LayerChanged"}) {
        client.faulty = member;
        MessageBoxRobot user{BoxKey::Enter};
        Click("cmdApply");
        EXPECT_EQ(user.Only().text, Fault) << member;
        EXPECT_TRUE(CanApply()) << member;
        EXPECT_TRUE(IsUnderlined("chkVisible")) << member;
        EXPECT_EQ(Stored(1, "Visible"), 1) << member;
    }
    client.faulty.clear();
    Click("cmdApply");
    EXPECT_EQ(Stored(1, "Visible"), 0);
}

TEST_F(HostFaults, AFaultWhileRedrawingIsToldOnceAndApplyingAgainWorks)
{
    OpenWithEdits();
    client.faulty = "RedrawMap";
    {
        MessageBoxRobot user{BoxKey::Enter};
        Click("cmdApply");
    }
    EXPECT_TRUE(CanApply());
    client.faulty.clear();
    Click("cmdApply");
    EXPECT_FALSE(CanApply());
    EXPECT_EQ(Stored(1, "Visible"), 0);
}

TEST_F(HostFaults, ACodeThatIsRefusedStillShowsTheStoredProperties)
{
    FailingClient failing(host, {"BeginLayerEdit", 2, RunTimeError(10001, Fault)});
    UseClient(failing);
    OpenWithEdits();
    host.ClearLog();
    MessageBoxRobot user{BoxKey::Enter};
    Click("cmdApply");
    EXPECT_EQ(Stored(1, "Visible"), 0);
    EXPECT_EQ(host.Log().CallsTo("RedrawMap").size(), 1);
    EXPECT_TRUE(CanApply());
    EditorForm().UnloadWithoutApply();
    TearDown();
}

TEST_F(HostFaults, AGroupIsWrittenWholeOrNotAtAll)
{
    Open();
    ClickTab(1);
    ClickGroup("Transport");
    Click("chkLocked");
    Click("chkLocked");
    client.faulty = "LayerChanged";
    MessageBoxRobot user{BoxKey::Enter};
    Click("cmdApply");
    EXPECT_EQ(Stored(1, "locked"), 0);
    EXPECT_EQ(Stored(2, "locked"), 1);
    EXPECT_TRUE(CanApply());
    EditorForm().UnloadWithoutApply();
}

TEST_F(HostFaults, ANodeThatCannotBeReadShowsNothing)
{
    Open();
    ClickLayer("Roads");
    client.faulty = "LayersTable";
    MessageBoxRobot user{BoxKey::Enter};
    ClickLayer("Rivers");
    QCoreApplication::processEvents();
    EXPECT_EQ(user.Only().text, Fault);
    EXPECT_FALSE(Find("chkVisible").isVisible());
    EXPECT_FALSE(CanApply());
}

TEST_F(HostFaults, CancelThatCannotReadKeepsTheEdits)
{
    OpenWithEdits();
    client.faulty = "LayersTable";
    {
        MessageBoxRobot user{BoxKey::Enter};
        Click("cmdCancel");
    }
    EXPECT_TRUE(CanApply());
    EXPECT_EQ(CheckState("chkVisible"), 0);
    client.faulty.clear();
    Click("cmdCancel");
    EXPECT_EQ(CheckState("chkVisible"), 1);
}

TEST_F(HostFaults, ATabWhoseListCannotBeReadStaysEmptyAndCanBeTriedAgain)
{
    Open();
    client.faulty = "Database";
    {
        MessageBoxRobot user{BoxKey::Enter};
        ClickTab(1);
    }
    EXPECT_EQ(CurrentTab(), 1);
    client.faulty.clear();
    ClickTab(1);
    ClickGroup("Transport");
    EXPECT_EQ(TextOf("lblPriority"), "100");
}

TEST_F(HostFaults, AFailedApplyKeepsTheTabThatWasToBeLeft)
{
    OpenWithEdits();
    client.faulty = "BeginLayerEdit";
    MessageBoxRobot user{BoxKey::Yes, BoxKey::Enter};
    ClickTab(1);
    EXPECT_EQ(CurrentTab(), 2);
    EXPECT_TRUE(CanApply());
    EditorForm().UnloadWithoutApply();
}

TEST_F(HostFaults, AFailedApplyKeepsTheEditorOpen)
{
    OpenWithEdits();
    client.faulty = "BeginLayerEdit";
    {
        MessageBoxRobot user{BoxKey::Yes, BoxKey::Enter};
        Form()->close();
    }
    ASSERT_NE(Form(), nullptr);
    EXPECT_TRUE(Form()->isVisible() && CanApply());
    {
        MessageBoxRobot user{BoxKey::Yes};
        host.ClearLog();
        EXPECT_THROW(Close(), RunTimeError);
        EXPECT_THAT(host.Log().CallsTo("EditorClosed"), testing::IsEmpty());
    }
    ASSERT_NE(Form(), nullptr);
    EXPECT_TRUE(Form()->isVisible() && CanApply());
    EditorForm().UnloadWithoutApply();
}

TEST_F(HostFaults, AnUnloadThatBeganAlwaysEnds)
{
    for (const char* member : {"EditorClosed", "WriteSetting"}) {
        Open();
        client.faulty = member;
        EXPECT_THROW(Close(), RunTimeError) << member;
        EXPECT_EQ(Form(), nullptr) << member;
        client.faulty.clear();
        Open();
        client.faulty = member;
        MessageBoxRobot user{BoxKey::Enter};
        Form()->close();
        EXPECT_EQ(Form(), nullptr) << member;
        client.faulty.clear();
    }
}

TEST_F(HostFaults, FailingCommandsAreToldAndChangeNothing)
{
    Open();
    ClickLayer("Roads");
    host.promptAnswers = {{true, "77"}};
    const std::vector<std::pair<const char*, const char*>> commands{
        {"CreateLayer", "cmdNewLayer"}, {"DeleteLayer", "cmdDeleteLayer"}};
    for (const auto& [member, button] : commands) {
        client.faulty = member;
        MessageBoxRobot user{BoxKey::Enter};
        Click(button);
        EXPECT_EQ(user.Only().text, Fault) << member;
        EXPECT_EQ(TextOf("lblCode"), "11") << member;
        EXPECT_FALSE(CanApply()) << member;
    }
}

TEST_F(HostFaults, ACancelThatFailsHalfWayKeepsTheEditsOrShowsNothing)
{
    for (const int call : {1, 2}) {
        FailingClient failing(host, {"none", 1, RunTimeError(10001, Fault)});
        UseClient(failing);
        OpenWithEdits();
        failing.Plan({"LayersTable", call, RunTimeError(10001, Fault)});
        {
            MessageBoxRobot user{BoxKey::Enter};
            Click("cmdCancel");
        }
        EXPECT_TRUE(CanApply()) << call;
        EXPECT_TRUE(IsUnderlined("chkVisible")) << call;
        EXPECT_EQ(CheckState("chkVisible"), 0) << call;
        EditorForm().UnloadWithoutApply();
        TearDown();
    }
}

TEST_F(HostFaults, AValueThatCannotBeShownIsNamedAndHidesNoOther)
{
    OpenWithEdits();
    host.SetLayerColumn(1, "OutlineStyle", qint32(70000));
    MessageBoxRobot user{BoxKey::Enter};
    Click("cmdCancel");
    EXPECT_EQ(user.Only().text, "Roads: OutlineStyle 70000 is too large.");
    EXPECT_TRUE(Find("chkVisible").isVisible());
    EXPECT_EQ(CheckState("chkVisible"), 1);
    EXPECT_FALSE(CanApply());
}

} // namespace

} // namespace Orvane::Testing
