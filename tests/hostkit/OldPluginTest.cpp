// SPDX-License-Identifier: MIT
// The host kit with a component that was built with the headers of contract 1.0.
#include "hostkit/StyleEditorPlugin.h"
#include "hosts/MemoryHost.h"

#include <OrvaneShellLib/IStyleEditor.h>
#include <OrvaneShellLib/IStyleEditorForm.h>
#include <OrvaneShellLib/IStyleEditorLibrary.h>
#include <OrvaneShellLib/IStyleFilter.h>
#include <OrvaneShellLib/RunTimeError.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <gmock/gmock.h>

namespace Orvane::Testing {

namespace {

class EvenLayers : public IStyleFilter
{
    bool IStyleFilter_ShowsGroups() const override { return true; }
    bool IStyleFilter_IsLayerShown(qint32 layerID, bool pseudo) const override
    {
        return layerID % 2 == 0 && !pseudo;
    }
};

class OldPlugin : public testing::Test
{
protected:
    OldPlugin()
    {
        host.AddLayer({.id = 1, .name = "Roads", .code = qint32(11)});
        host.AddGroup({.id = 10, .name = QString("Transport"), .members = {1}});
        plugin.Library().Initialise(&host);
        editor = plugin.Library().NewStyleEditor(QStringLiteral("Main"));
    }

    IStyleEditorForm& Form() { return dynamic_cast<IStyleEditorForm&>(*editor); }

    MemoryHost host;
    StyleEditorPlugin plugin{QStringLiteral(OLD_PLUGIN)};
    IStyleEditor* editor = nullptr;
};

TEST_F(OldPlugin, IsLoadedWithItsVersion)
{
    EXPECT_EQ(plugin.Version().major, 1);
    EXPECT_EQ(plugin.Version().minor, 0);
}

TEST_F(OldPlugin, ShowsAndClosesItsEditorThroughTheHost)
{
    editor->Visible(true);
    EXPECT_TRUE(editor->Visible());
    editor->Visible(false);
    EXPECT_FALSE(editor->Visible());
    EXPECT_THAT(host.Calls(), testing::ElementsAre("ShowEditor()", "EditorClosed()"));
    EXPECT_EQ(plugin.Library().GetStyleEditor(QStringLiteral("Main")), editor);
}

TEST_F(OldPlugin, ChangesALayerThroughTheHost)
{
    Form().Popup();
    EXPECT_EQ(ToInt32(host.LayerColumn(1, "Visible")), 0);
}

TEST_F(OldPlugin, ReadsAQueryThroughAFilterOfTheHost)
{
    host.AddLayer({.id = 2, .name = "Rivers", .code = qint32(12)});
    host.AddLayer({.id = 3, .name = "Lakes", .code = qint32(13)});
    host.AddLayer({.id = 4, .name = "Fields", .code = qint32(14)});
    const EvenLayers filter;
    editor->StyleFilter(&filter);
    EXPECT_EQ(Form().Filter(), &filter);
    Form().AddNewLayer(4);
    EXPECT_EQ(host.settings[QStringLiteral("groups")], QStringLiteral("Fields,Rivers"));
}

// Members of an interface that changed their places would be called under each other's names.
TEST_F(OldPlugin, CallsEveryMemberOfTheClientInItsPlace)
{
    host.ClearLog();
    Form().Popup();
    EXPECT_EQ(
        host.Calls().join(QLatin1Char('\n')).toStdString(),
        "LayersTable()\nBeginLayerEdit()\nLayerChanged(1)\nGetShellServices()\nDialogScaleToStored(5)\n"
        "StoredScaleToDialog(5000)\nLayerDisplayName(1)\nRenameLayer(1, Streets)\nRenameGroup(10, Traffic)\n"
        "StyleCommandPrefix()\nQuickModesAllowed()\nRendererStyles()\nGetSchemeNames()\nGetCurrentScheme()\n"
        "LoadScheme(a)\nCreateScheme(b)\nSaveScheme(c)\nDeleteScheme(d)\nSaveSchemesToStartup()\n"
        "PromptText(Code, )\nCreateLayer()\nDeleteLayer(2)\nIsCodeAssigned(0)\nThemeName()\n"
        "ReadSetting(key)\nWriteSetting(key, value)\nRedrawMap()");
}

TEST_F(OldPlugin, CallsEveryMemberOfTheServicesAndTheDatabaseInItsPlace)
{
    host.ClearLog();
    Form().Popup();
    EXPECT_THAT(
        host.Log().Of(CallKind::Shell),
        testing::ElementsAre(
            "IndexFromScale(7000)", "ScaleFromIndex(7)", "FillPattern(7, 3)", "ShowModal()", "CloseModal()",
            "EnterValue(Integer, 1, 2, title)", "ListBackColour()"));
    EXPECT_THAT(
        host.Log().Of(CallKind::Database),
        testing::ElementsAre(
            "Index(LayerIDIDX)", "Seek(=, 1)", "Edit()", "SetField(Visible, False)", "Update()",
            "BeginTrans()", "OpenRecordset(Layers)", "Rollback()", "BeginTrans()", "CommitTrans()"));
}

TEST_F(OldPlugin, OffersTheMembersOfItsForm)
{
    EXPECT_EQ(Form().EditorID(), QStringLiteral("Main"));
    EXPECT_TRUE(Form().HasPendingEdits());
    host.ClearLog();
    Form().Refresh();
    EXPECT_THAT(host.Calls(), testing::ElementsAre("RedrawMap()"));
}

TEST_F(OldPlugin, RaisesErrorsThatTheHostCatches)
{
    try {
        Form().SetLayerCode(4);
        FAIL() << "nothing was raised";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Number(), int(ErrorNumber::Overflow));
        EXPECT_EQ(error.Description(), QStringLiteral("old error"));
        EXPECT_EQ(error.Source(), QStringLiteral("4"));
    }
}

} // namespace

} // namespace Orvane::Testing
