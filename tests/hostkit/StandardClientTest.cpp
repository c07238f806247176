// SPDX-License-Identifier: MIT
#include "hostkit/StandardClient.h"

#include "hostkit/StandardClientFixture.h"
#include "hostkit/common/HostErrors.h"
#include "hostkit/undo/UndoHistory.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QMessageBox>
#include <QSignalSpy>
#include <QTest>

namespace Orvane::Testing {
namespace {

using testing::ElementsAre;

class Client : public StandardClientFixture
{
};

TEST_F(Client, HandsOutItsDatabaseAndServices)
{
    EXPECT_EQ(Host().GetShellServices(), &m_services);
    EXPECT_EQ(&Host().GetDatabase(), &Database());
}

TEST_F(Client, KeepsNotesUnlessItsDatabaseIsNotWhatIsSaved)
{
    IMapNotes& notes = m_client;
    EXPECT_TRUE(notes.KeepsNotes());
    notes.SetNote(QStringLiteral("key"), QStringLiteral("text"));
    EXPECT_EQ(notes.Note(QStringLiteral("key")), QStringLiteral("text"));
    m_client.SetKeepsNotes(false);
    EXPECT_FALSE(notes.KeepsNotes());
}

TEST_F(Client, LetsAMapBeEditedThatCanBeChanged)
{
    const IEditPermission& permission = m_client;
    EXPECT_EQ(permission.WhyNotEdited(), QString());
}

TEST_F(Client, HasNoCommandsOfItsOwn)
{
    INodeCommands& commands = m_client;
    EXPECT_TRUE(commands.Commands(nullptr).empty());
    EXPECT_EQ(commands.WhyNot(QStringLiteral("any"), {1}), QString());
}

/// A host that shows editors in its own window and calls nothing of the base class.
class OwnWindowClient : public StandardClient
{
public:
    using StandardClient::StandardClient;

private:
    void IStyleEditorClient_ShowEditor(QWidget* form) override { form->setParent(&m_window); }
    void IStyleEditorClient_EditorClosed(QWidget* form) override { form->setParent(nullptr); }

    QWidget m_window;
};

TEST_F(Client, KnowsAnEditorThatTheHostShowsItself)
{
    OwnWindowClient client(Database(), m_services);
    QSignalSpy shown(&client.Notifications(), &HostNotifications::EditorShown);
    QSignalSpy closed(&client.Notifications(), &HostNotifications::EditorClosed);
    IStyleEditorClient& host = client;
    auto& watch = dynamic_cast<IEditorWatch&>(host);
    QWidget form;
    host.ShowEditor(&form);
    watch.EditorShown(&form);
    watch.EditorShown(&form);
    EXPECT_EQ(shown.count(), 1);
    host.EditorClosed(&form);
    watch.EditorEnded(&form);
    watch.EditorEnded(&form);
    EXPECT_EQ(closed.count(), 1);
}

TEST_F(Client, TellsOnceOfAnEditorThatItShowsItself)
{
    QSignalSpy shown(&Signals(), &HostNotifications::EditorShown);
    QSignalSpy closed(&Signals(), &HostNotifications::EditorClosed);
    auto& watch = dynamic_cast<IEditorWatch&>(Host());
    QWidget form;
    Host().ShowEditor(&form);
    watch.EditorShown(&form);
    Host().EditorClosed(&form);
    watch.EditorEnded(&form);
    EXPECT_EQ(shown.count(), 1);
    EXPECT_EQ(closed.count(), 1);
}

TEST_F(Client, ShowsAnEditorAndForgetsItOnce)
{
    QSignalSpy shown(&Signals(), &HostNotifications::EditorShown);
    QSignalSpy closed(&Signals(), &HostNotifications::EditorClosed);
    QWidget form;
    Host().ShowEditor(&form);
    EXPECT_TRUE(form.isVisible());
    Host().EditorClosed(&form);
    Host().EditorClosed(&form);
    EXPECT_EQ(shown.count(), 1);
    EXPECT_EQ(closed.count(), 1);
}

TEST_F(Client, KeepsSettings)
{
    Host().WriteSetting(
        nullptr, QStringLiteral("DrawStyleEditor::Main"), QStringLiteral("1:2:LAYERS:EXPANDED"));
    EXPECT_EQ(
        Host().ReadSetting(nullptr, QStringLiteral("DrawStyleEditor::Main")),
        QStringLiteral("1:2:LAYERS:EXPANDED"));
}

TEST_F(Client, SeeksAndEditsLayersThroughItsTable)
{
    AddLayers(2);
    const auto layers = Host().LayersTable();
    layers->Index("LayerIDIDX");
    layers->Seek("=", 2);
    ASSERT_FALSE(layers->NoMatch());
    Host().BeginLayerEdit(*layers);
    layers->SetField("Visible", false);
    layers->Update();
    EXPECT_THAT(Get(2, "Visible"), IsFlag(false));
}

TEST_F(Client, ConvertsScalesThereAndBack)
{
    for (qint32 index = 0; index < 256; ++index)
        EXPECT_EQ(Host().StoredScaleToDialog(Host().DialogScaleToStored(index)), index);
    EXPECT_EQ(Host().StoredScaleToDialog(Host().DialogScaleToStored(256)), 0) << "no limit, as 0 is";
}

TEST_F(Client, TellsAllChangedLayersOnceAtTheRedraw)
{
    QSignalSpy changed(&Signals(), &HostNotifications::LayersChanged);
    Host().LayerChanged(17);
    Host().LayerChanged(4);
    Host().LayerChanged(17);
    EXPECT_EQ(changed.count(), 0);
    Host().RedrawMap();
    ASSERT_EQ(changed.count(), 1);
    EXPECT_EQ(LayersOf(changed), (QSet<qint32>{4, 17}));
}

TEST_F(Client, ARedrawWithoutChangesTellsNothing)
{
    QSignalSpy changed(&Signals(), &HostNotifications::LayersChanged);
    Host().LayerChanged(17);
    Host().RedrawMap();
    Host().RedrawMap();
    EXPECT_EQ(changed.count(), 1);
}

TEST_F(Client, ListsLayersUnderTheirNamesWithOneQuery)
{
    AddLayers(100);
    const QStringList statements = StatementsOf([&] {
        for (qint32 layerID = 1; layerID <= 100; ++layerID)
            EXPECT_EQ(Host().LayerDisplayName(layerID), QStringLiteral("Layer %1").arg(layerID));
    });
    EXPECT_EQ(statements.size(), 1);
}

TEST_F(Client, RenamesALayerInDatabaseAndList)
{
    AddLayers(1);
    Host().LayerDisplayName(1);
    QSignalSpy renamed(&Signals(), &HostNotifications::LayerRenamed);
    const QString name = QString::fromUtf8("O'Neill's \"🛣\"");
    Host().RenameLayer(1, name);
    EXPECT_EQ(Host().LayerDisplayName(1), name);
    EXPECT_THAT(Get(1, "Name"), IsValue(name));
    EXPECT_EQ(renamed.count(), 1);
}

TEST_F(Client, RenamingAMissingLayerOrGroupDoesNothing)
{
    QSignalSpy renamed(&Signals(), &HostNotifications::LayerRenamed);
    QSignalSpy groupRenamed(&Signals(), &HostNotifications::GroupRenamed);
    Host().RenameLayer(99, QStringLiteral("x"));
    Host().RenameGroup(99, QStringLiteral("x"));
    EXPECT_EQ(renamed.count() + groupRenamed.count(), 0);
    EXPECT_TRUE(Host().LayerDisplayName(99).isEmpty());
}

TEST_F(Client, RenamesAGroup)
{
    Database().Execute(QStringLiteral("INSERT INTO LayerGroups (ID, Name) VALUES (3, 'Old')"));
    QSignalSpy renamed(&Signals(), &HostNotifications::GroupRenamed);
    Host().RenameGroup(3, QStringLiteral("It's new"));
    const auto group = Database().OpenQuery(QStringLiteral("SELECT Name FROM LayerGroups WHERE ID = 3"));
    EXPECT_THAT(group->Field("Name"), IsValue(QStringLiteral("It's new")));
    EXPECT_EQ(renamed.count(), 1);
}

TEST_F(Client, CreatesALayerAndTellsIt)
{
    QSignalSpy created(&Signals(), &HostNotifications::LayerCreated);
    const qint32 layerID = Host().CreateLayer();
    ASSERT_EQ(created.count(), 1);
    EXPECT_EQ(created.at(0).at(0).toInt(), layerID);
    EXPECT_EQ(Host().LayerDisplayName(layerID), QStringLiteral("New layer"));
    EXPECT_TRUE(Host().IsCodeAssigned(0));
}

TEST_F(Client, SwitchesSchemesAndTellsWhatChanged)
{
    AddLayers(2);
    Host().CreateScheme(QStringLiteral("Night"));
    Set(2, "Color", 0x123456);
    EXPECT_TRUE(m_client.HasUnsavedSchemeChanges());
    QSignalSpy changed(&Signals(), &HostNotifications::LayersChanged);
    QSignalSpy schemes(&Signals(), &HostNotifications::SchemesChanged);
    Host().LoadScheme(QStringLiteral("Standard"));
    EXPECT_EQ(Host().GetCurrentScheme(), QStringLiteral("Standard"));
    ASSERT_EQ(changed.count(), 1);
    EXPECT_EQ(LayersOf(changed), QSet<qint32>{2});
    EXPECT_EQ(schemes.count(), 1);
    EXPECT_EQ(schemes.at(0).at(0).toString(), QStringLiteral("Standard"));
    EXPECT_FALSE(m_client.HasUnsavedSchemeChanges());
}

TEST_F(Client, TellsEachChangeOfTheSchemes)
{
    QSignalSpy schemes(&Signals(), &HostNotifications::SchemesChanged);
    Host().CreateScheme(QStringLiteral("Night"));
    Host().SaveScheme(QStringLiteral("Night"));
    Host().DeleteScheme(QStringLiteral("Standard"));
    EXPECT_EQ(schemes.count(), 3);
    EXPECT_THAT(Host().GetSchemeNames(), ElementsAre(QStringLiteral("Night")));
}

TEST_F(Client, SavesSchemesToTheStartupDatabaseAndTakesThemFromThere)
{
    m_client.SetStartupFile(PathOf("startup.ovl"));
    Host().CreateScheme(QStringLiteral("Night"));
    const QSignalSpy saved(&Signals(), &HostNotifications::SchemesSavedToStartup);
    Host().SaveSchemesToStartup();
    EXPECT_EQ(saved.count(), 1);
    const auto map = Maker().CreateNameless();
    StandardClient other(*map, m_services);
    other.SetStartupFile(PathOf("startup.ovl"));
    other.LoadSchemesFromStartup();
    EXPECT_TRUE(static_cast<IStyleEditorClient&>(other).GetSchemeNames().contains(QStringLiteral("Night")));
}

TEST_F(Client, WithoutAStartupFileSavingToItIsAClearError)
{
    const QSignalSpy saved(&Signals(), &HostNotifications::SchemesSavedToStartup);
    EXPECT_EQ(ErrorOf([&] { Host().SaveSchemesToStartup(); }), int(HostError::NoStartupDatabase));
    EXPECT_EQ(saved.count(), 0);
}

TEST_F(Client, AsksForATextThroughItsPrompt)
{
    WhenModal([](QWidget& prompt) {
        EXPECT_EQ(prompt.windowTitle(), QStringLiteral("New Scheme"));
        QTest::keyClicks(prompt.findChild<QLineEdit*>(), QStringLiteral("Night"));
        QTest::keyClick(prompt.findChild<QLineEdit*>(), Qt::Key_Return);
    });
    const PromptAnswer answer
        = Host().PromptText({QStringLiteral("New Scheme"), {}, EntryKind::Text, 0, 0, 20});
    EXPECT_TRUE(answer.accepted);
    EXPECT_EQ(answer.text, QStringLiteral("Night"));
}

TEST_F(Client, HasOrdinaryAnswersForWhatAHostMayLeaveAlone)
{
    EXPECT_FALSE(Host().StyleCommandPrefix().isEmpty());
    EXPECT_TRUE(Host().QuickModesAllowed());
    EXPECT_TRUE(Host().RendererStyles().empty());
    EXPECT_TRUE(Host().ThemeName(nullptr).isEmpty());
}

TEST_F(Client, ReadsNamesAnewWhenItIsTold)
{
    AddLayers(1);
    Host().LayerDisplayName(1);
    Set(1, "Name", QStringLiteral("Roads"));
    m_client.InvalidateLayerNames();
    EXPECT_EQ(Host().LayerDisplayName(1), QStringLiteral("Roads"));
}

} // namespace
} // namespace Orvane::Testing
