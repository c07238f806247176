// SPDX-License-Identifier: MIT
#include "hosts/MemoryHost.h"
#include "hosts/ValueMatchers.h"

#include <OrvaneShellLib/ForwardingClient.h>
#include <OrvaneShellLib/ForwardingDatabase.h>
#include <OrvaneShellLib/ForwardingRecordset.h>
#include <OrvaneShellLib/ForwardingShellServices.h>

#include <gtest/gtest.h>

using namespace Orvane;
using namespace Orvane::Testing;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// A host whose members all return a result.
class BusyHost : public MemoryHost
{
public:
    BusyHost()
    {
        AddLayer({.id = 17, .name = "Roads", .code = 5});
        AddGroup({.id = 3, .name = "Transport"});
        settings["key"] = QStringLiteral("stored");
        themeName = QStringLiteral("Night");
        styleCommandPrefix = QStringLiteral("P;");
        quickModesAllowed = false;
        rendererStyles = {{1, QStringLiteral("Dashed")}};
        promptAnswers = {{true, QStringLiteral("typed")}};
        layersToCreate = {{.id = 18}};
    }
};

void TellEverything(IStyleEditorClient& client)
{
    client.ShowEditor(nullptr);
    client.EditorClosed(nullptr);
    client.WriteSetting(nullptr, QStringLiteral("other"), QStringLiteral("value"));
    client.LayerChanged(17);
    client.RenameLayer(17, QStringLiteral("Streets"));
    client.RenameGroup(3, QStringLiteral("Traffic"));
    client.LoadScheme(QStringLiteral("a"));
    client.CreateScheme(QStringLiteral("b"));
    client.SaveScheme(QStringLiteral("c"));
    client.DeleteScheme(QStringLiteral("d"));
    client.SaveSchemesToStartup();
    client.DeleteLayer(17);
    client.RedrawMap();
}

const QStringList toldEverything{"ShowEditor()",     "EditorClosed()",           "WriteSetting(other, value)",
                                 "LayerChanged(17)", "RenameLayer(17, Streets)", "RenameGroup(3, Traffic)",
                                 "LoadScheme(a)",    "CreateScheme(b)",          "SaveScheme(c)",
                                 "DeleteScheme(d)",  "SaveSchemesToStartup()",   "DeleteLayer(17)",
                                 "RedrawMap()"};

class Forwarding : public testing::Test
{
protected:
    BusyHost host;
    ForwardingClient client{host};
};

} // namespace

TEST_F(Forwarding, TheClientPassesOnWhatItIsTold)
{
    TellEverything(client);
    EXPECT_EQ(host.Calls(), toldEverything);
}

TEST_F(Forwarding, SeveralLayersAreDeletedOneByOneIfTheOtherClientCannotDoItAtOnce)
{
    client.DeleteLayers({17, 18});
    EXPECT_THAT(host.Calls(), ElementsAre("DeleteLayer(17)", "DeleteLayer(18)"));
}

TEST_F(Forwarding, SeveralLayersAreDeletedAtOnceByAClientThatCan)
{
    class ManyClient : public ForwardingClient
    {
    public:
        using ForwardingClient::ForwardingClient;
        std::vector<qint32> deleted;

    private:
        void IManyLayers_DeleteLayers(const std::vector<qint32>& layerIDs) override { deleted = layerIDs; }
    };
    ManyClient many(host);
    ForwardingClient outer(static_cast<IStyleEditorClient&>(many));
    outer.DeleteLayers({17, 18});
    EXPECT_THAT(many.deleted, ElementsAre(17, 18));
}

TEST_F(Forwarding, TheMapsScaleIsThatOfTheOtherClient)
{
    class MapClient : public ForwardingClient
    {
        using ForwardingClient::ForwardingClient;
        double IMapScale_CurrentScale() const override { return 25000; }
    };
    EXPECT_EQ(client.CurrentScale(), 0) << "it does not know it";
    MapClient map(host);
    const ForwardingClient outer(static_cast<IStyleEditorClient&>(map));
    EXPECT_EQ(outer.CurrentScale(), 25000);
}

TEST_F(Forwarding, TheSourceOfALayerIsThatOfTheOtherClient)
{
    class FileClient : public ForwardingClient
    {
        using ForwardingClient::ForwardingClient;
        QString ILayerSource_Source(qint32 layerID) override { return QStringLiteral("%1.shp").arg(layerID); }
    };
    EXPECT_EQ(client.Source(17), "") << "it does not know it";
    FileClient files(host);
    ForwardingClient outer(static_cast<IStyleEditorClient&>(files));
    EXPECT_EQ(outer.Source(17), "17.shp");
}

TEST_F(Forwarding, TheOtherClientLearnsWhichLayersAreChosen)
{
    class WatchingClient : public ForwardingClient
    {
    public:
        using ForwardingClient::ForwardingClient;
        std::vector<qint32> chosen;

    private:
        void IChoiceWatch_LayersChosen(QWidget*, const std::vector<qint32>& layerIDs) override
        {
            chosen = layerIDs;
        }
    };
    client.LayersChosen(nullptr, {17});
    EXPECT_THAT(host.Calls(), IsEmpty()) << "it does not want to know it";
    WatchingClient watching(host);
    ForwardingClient outer(static_cast<IStyleEditorClient&>(watching));
    outer.LayersChosen(nullptr, {17, 18});
    EXPECT_THAT(watching.chosen, ElementsAre(17, 18));
}

TEST_F(Forwarding, AClientWithoutAWindowForSchemesHasNone)
{
    EXPECT_FALSE(client.CanManageSchemes());
    client.ManageSchemes(nullptr);
    EXPECT_THAT(host.Calls(), IsEmpty());
}

TEST_F(Forwarding, TheWindowForSchemesIsThatOfTheOtherClient)
{
    class ManagingClient : public ForwardingClient
    {
    public:
        using ForwardingClient::ForwardingClient;
        int shown = 0;

    private:
        bool ISchemeManager_CanManageSchemes() const override { return true; }
        void ISchemeManager_ManageSchemes(QWidget*) override { ++shown; }
    };
    ManagingClient managing(host);
    ForwardingClient outer(static_cast<IStyleEditorClient&>(managing));
    EXPECT_TRUE(outer.CanManageSchemes());
    outer.ManageSchemes(nullptr);
    EXPECT_EQ(managing.shown, 1);
}

TEST_F(Forwarding, NotesAreKeptOnlyByAClientThatKeepsThem)
{
    EXPECT_FALSE(client.KeepsNotes());
    client.SetNote(QStringLiteral("key"), QStringLiteral("text"));
    EXPECT_EQ(client.Note(QStringLiteral("key")), QString());
    class KeepingClient : public ForwardingClient
    {
    public:
        using ForwardingClient::ForwardingClient;
        QString stored;

    private:
        bool IMapNotes_KeepsNotes() const override { return true; }
        QString IMapNotes_Note(const QString& key) override { return key + stored; }
        void IMapNotes_SetNote(const QString& key, const QString& text) override { stored = key + text; }
    };
    KeepingClient keeping(host);
    ForwardingClient outer(static_cast<IStyleEditorClient&>(keeping));
    EXPECT_TRUE(outer.KeepsNotes());
    outer.SetNote(QStringLiteral("k"), QStringLiteral("text"));
    EXPECT_EQ(outer.Note(QStringLiteral("k")), QStringLiteral("kktext"));
}

TEST_F(Forwarding, ThePermissionIsThatOfTheOtherClient)
{
    EXPECT_EQ(client.WhyNotEdited(), QString());
    class ForbiddingClient : public ForwardingClient
    {
    public:
        using ForwardingClient::ForwardingClient;

    private:
        QString IEditPermission_WhyNotEdited() const override { return QStringLiteral("no"); }
    };
    ForbiddingClient forbidding(host);
    const ForwardingClient outer(static_cast<IStyleEditorClient&>(forbidding));
    EXPECT_EQ(outer.WhyNotEdited(), QStringLiteral("no"));
}

TEST_F(Forwarding, CommandsAreThoseOfTheOtherClient)
{
    EXPECT_TRUE(client.Commands(nullptr).empty());
    client.Run(nullptr, QStringLiteral("zoom"), {17});
    class CommandingClient : public ForwardingClient
    {
    public:
        using ForwardingClient::ForwardingClient;
        std::vector<qint32> ran;

    private:
        std::vector<NodeCommand> INodeCommands_Commands(QWidget*) override
        {
            return {{QStringLiteral("zoom"), QStringLiteral("Zoom")}};
        }
        QString INodeCommands_WhyNot(const QString& id, const std::vector<qint32>&) override { return id; }
        void INodeCommands_Run(QWidget*, const QString&, const std::vector<qint32>& layerIDs) override
        {
            ran = layerIDs;
        }
    };
    CommandingClient commanding(host);
    ForwardingClient outer(static_cast<IStyleEditorClient&>(commanding));
    ASSERT_EQ(outer.Commands(nullptr).size(), 1U);
    EXPECT_EQ(outer.WhyNot(QStringLiteral("zoom"), {17}), QStringLiteral("zoom"));
    outer.Run(nullptr, QStringLiteral("zoom"), {17});
    EXPECT_THAT(commanding.ran, ElementsAre(17));
}

TEST_F(Forwarding, TheClientGivesTheOthersAnswers)
{
    EXPECT_EQ(client.GetShellServices(), &host.Shell());
    EXPECT_EQ(&client.GetDatabase(), &host.GetDatabase());
    EXPECT_EQ(client.ReadSetting(nullptr, QStringLiteral("key")), "stored");
    EXPECT_EQ(client.StoredScaleToDialog(5000), 5);
    EXPECT_EQ(client.DialogScaleToStored(5), 5000);
    EXPECT_EQ(client.LayerDisplayName(17), "Roads");
    EXPECT_EQ(client.StyleCommandPrefix(), "P;");
    EXPECT_FALSE(client.QuickModesAllowed());
    EXPECT_EQ(client.RendererStyles().front().name, "Dashed");
    EXPECT_EQ(client.ThemeName(nullptr), "Night");
    EXPECT_THAT(client.GetSchemeNames(), ElementsAre("Standard"));
    EXPECT_EQ(client.GetCurrentScheme(), "Standard");
    EXPECT_EQ(client.PromptText({}).text, "typed");
    EXPECT_EQ(client.CreateLayer(), 18);
    EXPECT_TRUE(client.IsCodeAssigned(5));
}

TEST_F(Forwarding, TheClientHandsOutTheOthersCursorForAnEdit)
{
    const auto layers = client.LayersTable();
    layers->Index("LayerIDIDX");
    layers->Seek("=", 17);
    client.BeginLayerEdit(*layers);
    layers->SetField("Visible", false);
    layers->Update();
    EXPECT_THAT(host.LayerColumn(17, "Visible"), IsFlag(false));
}

TEST_F(Forwarding, TheDatabasePassesEverythingOn)
{
    ForwardingDatabase database(host.GetDatabase());
    database.BeginTrans();
    database.CommitTrans();
    database.Rollback();
    database.OpenRecordset(QStringLiteral("Layers"));
    EXPECT_THAT(
        host.Log().Trace(),
        ElementsAre("BeginTrans()", "CommitTrans()", "Rollback()", "OpenRecordset(Layers)"));
}

TEST_F(Forwarding, TheCursorPassesEverythingOn)
{
    ForwardingRecordset cursor(host.LayersTable());
    IRecordset& layers = cursor;
    layers.Index("LayerIDIDX");
    layers.Seek("=", 99);
    EXPECT_TRUE(layers.NoMatch());
    EXPECT_TRUE(layers.AtEOF());
    layers.Seek("=", 17);
    EXPECT_FALSE(layers.NoMatch());
    layers.Edit();
    layers.SetField("Name", QStringLiteral("Streets"));
    layers.Update();
    EXPECT_THAT(layers.Field("Name"), IsValue(QStringLiteral("Streets")));
    layers.MoveNext();
    EXPECT_TRUE(layers.AtEOF());
    layers.Close();
    EXPECT_THAT(host.LayerColumn(17, "Name"), IsValue(QStringLiteral("Streets")));
}

TEST_F(Forwarding, TheShellServicesPassEverythingOn)
{
    ForwardingShellServices services(host.Shell());
    EXPECT_EQ(services.ScaleFromIndex(5), 5000);
    EXPECT_EQ(services.IndexFromScale(5000), 5);
    EXPECT_EQ(services.FillPattern(7, 3).rows.at(0), 3);
    EXPECT_EQ(services.ListBackColour(), 0xFFFFFF);
    services.ShowModal(nullptr);
    services.CloseModal(nullptr);
    services.EnterValue(nullptr, EntryKind::Integer, 1, 9, QStringLiteral("Width"));
    EXPECT_THAT(
        host.Log().Of(CallKind::Shell),
        ElementsAre(
            "ScaleFromIndex(5)", "IndexFromScale(5000)", "FillPattern(7, 3)", "ListBackColour()",
            "ShowModal()", "CloseModal()", "EnterValue(Integer, 1, 9, Width)"));
}
