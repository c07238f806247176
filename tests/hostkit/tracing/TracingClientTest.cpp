// SPDX-License-Identifier: MIT
#include "hostkit/tracing/TracingClient.h"

#include "hostkit/tracing/TracingTest.h"

#include <OrvaneShellLib/IShellServices.h>

#include <QLineEdit>

namespace Orvane::Testing {
namespace {

using testing::ElementsAre;

class ClientTrace : public TracingTest
{
protected:
    IStyleEditorClient& Client() { return m_client; }

    TracingClient m_client{m_host, m_trace};
};

TEST_F(ClientTrace, ShowsSettingsAsTheyAreReadAndWritten)
{
    m_host.settings[QStringLiteral("DrawStyleEditor::Main")] = QStringLiteral("9000:7000:LAYERS:EXPANDED");
    EXPECT_EQ(
        Client().ReadSetting(nullptr, QStringLiteral("DrawStyleEditor::Main")),
        QStringLiteral("9000:7000:LAYERS:EXPANDED"));
    Client().WriteSetting(nullptr, QStringLiteral("key"), QStringLiteral("value"));
    EXPECT_THAT(
        Lines(),
        ElementsAre(
            QStringLiteral("client.ReadSetting(\"DrawStyleEditor::Main\") -> \"9000:7000:LAYERS:EXPANDED\""),
            QStringLiteral("client.WriteSetting(\"key\", \"value\")")));
}

TEST_F(ClientTrace, ShowsTheWholeEditOfALayer)
{
    m_host.AddLayer({.id = 17, .name = QStringLiteral("Roads")});
    const auto layers = Client().LayersTable();
    layers->Index("LayerIDIDX");
    layers->Seek("=", 17);
    layers->NoMatch();
    Client().BeginLayerEdit(*layers);
    layers->SetField("Visible", false);
    Client().LayerChanged(17);
    layers->Update();
    layers->Close();
    Client().RedrawMap();
    EXPECT_THAT(
        Lines(),
        ElementsAre(
            QStringLiteral("client.LayersTable()"), QStringLiteral("recordset.Index(\"LayerIDIDX\")"),
            QStringLiteral("recordset.Seek(\"=\", 17) -> found"),
            QStringLiteral("recordset.NoMatch() -> false"),
            QStringLiteral("client.BeginLayerEdit(recordset)"), QStringLiteral("recordset.Edit()"),
            QStringLiteral("recordset.SetField(\"Visible\", False)"),
            QStringLiteral("client.LayerChanged(17)"), QStringLiteral("recordset.Update()"),
            QStringLiteral("recordset.Close()"), QStringLiteral("client.RedrawMap()")));
    EXPECT_THAT(m_host.LayerColumn(17, "Visible"), IsFlag(false));
}

TEST_F(ClientTrace, ShowsQueryTextsAndTheRowsRead)
{
    m_host.AddLayer({.id = 17, .name = QStringLiteral("Roads")});
    const QString query = QStringLiteral("SELECT Layers.* FROM Layers WHERE Code > -2 ORDER BY Name");
    const auto rows = Client().GetDatabase().OpenRecordset(query);
    EXPECT_THAT(rows->Field("Name"), IsValue(QStringLiteral("Roads")));
    rows->MoveNext();
    EXPECT_TRUE(rows->AtEOF());
    EXPECT_THAT(
        Lines(),
        ElementsAre(
            QStringLiteral("client.GetDatabase()"),
            QStringLiteral("database.OpenRecordset(\"%1\")").arg(query),
            QStringLiteral("recordset.Field(\"Name\") -> \"Roads\""), QStringLiteral("recordset.MoveNext()"),
            QStringLiteral("recordset.AtEOF() -> true")));
}

TEST_F(ClientTrace, ShowsASeekThatFindsNothing)
{
    const auto layers = Client().LayersTable();
    layers->Index("LayerIDIDX");
    layers->Seek("=", 5);
    EXPECT_EQ(Lines().constLast(), QStringLiteral("recordset.Seek(\"=\", 5) -> no match"));
}

TEST_F(ClientTrace, ShowsTransactions)
{
    Client().GetDatabase().BeginTrans();
    Client().GetDatabase().CommitTrans();
    Client().GetDatabase().Rollback();
    const QStringList lines = Lines();
    EXPECT_EQ(
        lines.filter(QStringLiteral("database.")),
        (QStringList{
            QStringLiteral("database.BeginTrans()"), QStringLiteral("database.CommitTrans()"),
            QStringLiteral("database.Rollback()")}));
}

TEST_F(ClientTrace, ShowsTheUsersAnswers)
{
    m_host.promptAnswers = {{true, QStringLiteral("12")}, {}};
    const PromptRequest request{
        QStringLiteral("Edit code"), QStringLiteral("7"), EntryKind::Integer, -5, 5, 0};
    Client().PromptText(request);
    Client().PromptText(request);
    EXPECT_THAT(
        Lines(),
        ElementsAre(
            QStringLiteral("client.PromptText(\"Edit code\", \"7\", integer, -5, 5, 0) -> \"12\""),
            QStringLiteral("client.PromptText(\"Edit code\", \"7\", integer, -5, 5, 0) -> cancelled")));
}

TEST_F(ClientTrace, ShowsWhatBecomesOfConflicts)
{
    auto& question = dynamic_cast<IConflictQuestion&>(Client());
    EXPECT_EQ(
        question.AskAboutConflicts(nullptr, QStringLiteral("Roads"), {{"Priority", "17", "9", 1}}),
        ConflictChoice::Overwrite)
        << "the host does not ask";
    const char* line = R"(client.AskAboutConflicts(form, "Roads", ["Priority" "17" "9" 1]) -> overwrite)";
    EXPECT_EQ(Lines().constLast(), QLatin1String(line));
}

TEST_F(ClientTrace, ShowsTheShellServicesAndAlwaysTheSameOnes)
{
    IShellServices* services = Client().GetShellServices();
    EXPECT_EQ(services, Client().GetShellServices());
    Lines();
    QLineEdit control;
    services->FillPattern(7, 3);
    services->ShowModal(&control);
    services->CloseModal(&control);
    services->EnterValue(&control, EntryKind::Integer, 0, 100, QStringLiteral("Enter Line Width"));
    const QStringList lines = Lines();
    ASSERT_EQ(lines.size(), 4);
    EXPECT_TRUE(lines[0].startsWith(QStringLiteral("shell.FillPattern(7, 3) -> bitmap ")));
    EXPECT_EQ(lines[1], QStringLiteral("shell.ShowModal(form)"));
    EXPECT_EQ(lines[2], QStringLiteral("shell.CloseModal(form)"));
    EXPECT_EQ(lines[3], QStringLiteral("shell.EnterValue(control, integer, 0, 100, \"Enter Line Width\")"));
}

TEST_F(ClientTrace, ShowsScalesAndColours)
{
    IShellServices* services = Client().GetShellServices();
    Lines();
    services->IndexFromScale(services->ScaleFromIndex(5));
    services->ListBackColour();
    Client().StoredScaleToDialog(Client().DialogScaleToStored(5));
    const QStringList lines = Lines();
    ASSERT_EQ(lines.size(), 5);
    EXPECT_TRUE(lines[0].startsWith(QStringLiteral("shell.ScaleFromIndex(5) -> ")));
    EXPECT_TRUE(lines[1].endsWith(QStringLiteral(" -> 5")));
    EXPECT_TRUE(lines[2].startsWith(QStringLiteral("shell.ListBackColour() -> ")));
    EXPECT_TRUE(lines[3].startsWith(QStringLiteral("client.DialogScaleToStored(5) -> ")));
    EXPECT_TRUE(lines[4].endsWith(QStringLiteral(" -> 5")));
}

TEST_F(ClientTrace, ShowsSeveralDeletedLayersAndTheCallsOfAHostWithoutThat)
{
    dynamic_cast<IManyLayers&>(Client()).DeleteLayers({17, 18});
    EXPECT_THAT(Lines(), ElementsAre(QStringLiteral("client.DeleteLayers([17, 18])")));
    EXPECT_EQ(m_host.Log().CallsTo("DeleteLayer").size(), 2);
}

TEST_F(ClientTrace, ShowsTheScaleOfTheMap)
{
    dynamic_cast<IMapScale&>(Client()).CurrentScale();
    EXPECT_THAT(Lines(), ElementsAre(QStringLiteral("client.CurrentScale() -> 0")));
}

TEST_F(ClientTrace, ShowsTheSourceOfALayer)
{
    dynamic_cast<ILayerSource&>(Client()).Source(17);
    EXPECT_THAT(Lines(), ElementsAre(QStringLiteral("client.Source(17) -> \"\"")));
}

TEST_F(ClientTrace, ShowsTheChosenLayers)
{
    dynamic_cast<IChoiceWatch&>(Client()).LayersChosen(nullptr, {17, 18});
    EXPECT_THAT(Lines(), ElementsAre(QStringLiteral("client.LayersChosen(form, [17, 18])")));
}

TEST_F(ClientTrace, ShowsTheWindowForSchemes)
{
    dynamic_cast<ISchemeManager&>(Client()).ManageSchemes(nullptr);
    EXPECT_THAT(Lines(), ElementsAre(QStringLiteral("client.ManageSchemes(form)")));
}

TEST_F(ClientTrace, ShowsNotesAndCommandsAlsoOfAHostWithoutThem)
{
    auto& notes = dynamic_cast<IMapNotes&>(Client());
    notes.KeepsNotes();
    notes.SetNote(QStringLiteral("key"), QStringLiteral("text"));
    notes.Note(QStringLiteral("key"));
    auto& commands = dynamic_cast<INodeCommands&>(Client());
    commands.Commands(nullptr);
    commands.WhyNot(QStringLiteral("zoom"), {17});
    commands.Run(nullptr, QStringLiteral("zoom"), {17});
    EXPECT_THAT(
        Lines(),
        ElementsAre(
            QStringLiteral("client.KeepsNotes() -> false"),
            QStringLiteral("client.SetNote(\"key\", \"text\")"),
            QStringLiteral("client.Note(\"key\") -> \"\""), QStringLiteral("client.Commands(form)"),
            QStringLiteral("client.WhyNot(\"zoom\", [17]) -> \"\""),
            QStringLiteral("client.Run(form, \"zoom\", [17])")));
}

TEST_F(ClientTrace, ShowsEveryOtherMemberOfTheClient)
{
    m_host.AddLayer({.id = 17, .name = QStringLiteral("Roads")});
    m_host.AddGroup({.id = 3, .name = QStringLiteral("Transport"), .members = {17}});
    const QString scheme = QStringLiteral("Night");
    Client().ShowEditor(nullptr);
    Client().ThemeName(nullptr);
    Client().LayerDisplayName(17);
    Client().RenameLayer(17, QStringLiteral("Streets"));
    Client().RenameGroup(3, QStringLiteral("Traffic"));
    Client().GetSchemeNames();
    Client().GetCurrentScheme();
    Client().CreateScheme(scheme);
    Client().LoadScheme(scheme);
    Client().SaveScheme(scheme);
    Client().DeleteScheme(scheme);
    Client().SaveSchemesToStartup();
    const qint32 created = Client().CreateLayer();
    Client().DeleteLayer(created);
    Client().IsCodeAssigned(99);
    Client().StyleCommandPrefix();
    Client().QuickModesAllowed();
    Client().RendererStyles();
    Client().EditorClosed(nullptr);
    EXPECT_THAT(
        Lines(),
        ElementsAre(
            QStringLiteral("client.ShowEditor(form)"), QStringLiteral("client.ThemeName(form) -> \"\""),
            QStringLiteral("client.LayerDisplayName(17) -> \"Roads\""),
            QStringLiteral("client.RenameLayer(17, \"Streets\")"),
            QStringLiteral("client.RenameGroup(3, \"Traffic\")"),
            QStringLiteral("client.GetSchemeNames() -> [\"Standard\"]"),
            QStringLiteral("client.GetCurrentScheme() -> \"Standard\""),
            QStringLiteral("client.CreateScheme(\"Night\")"), QStringLiteral("client.LoadScheme(\"Night\")"),
            QStringLiteral("client.SaveScheme(\"Night\")"), QStringLiteral("client.DeleteScheme(\"Night\")"),
            QStringLiteral("client.SaveSchemesToStartup()"),
            QStringLiteral("client.CreateLayer() -> %1").arg(created),
            QStringLiteral("client.DeleteLayer(%1)").arg(created),
            QStringLiteral("client.IsCodeAssigned(99) -> false"),
            QStringLiteral("client.StyleCommandPrefix() -> \"%1\"").arg(m_host.styleCommandPrefix),
            QStringLiteral("client.QuickModesAllowed() -> true"),
            QStringLiteral("client.RendererStyles() -> []"), QStringLiteral("client.EditorClosed(form)")));
}

} // namespace
} // namespace Orvane::Testing
