// SPDX-License-Identifier: MIT
#include "component/dialog/EditorFixture.h"
#include "support/Without.h"

#include <OrvaneShellLib/IStyleEditor.h>

namespace Orvane::Testing {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr char FlatList[] = "OpenRecordset(SELECT Layers.* FROM Layers WHERE Code > -2 ORDER BY Name)";

class TypicalSession : public EditorFixture
{
protected:
    void SetUp() override
    {
        AddTown();
        StoreViewState("9000:7000:LAYERS:EXPANDED");
    }

    /// All calls since the last call of this, without the names, the columns and the pictures of fill styles.
    QStringList NewTrace()
    {
        const QStringList calls = Without(host.Log().Trace(), [](const QString& call) {
            return call.startsWith("LayerDisplayName") || call.startsWith("SetField")
                || call.contains("Scale") || call.startsWith("FillPattern");
        });
        host.ClearLog();
        return calls;
    }
};

TEST_F(TypicalSession, MakesTheCallsOfEachStepInTheirOrder)
{
    Create();
    EXPECT_THAT(NewTrace(), ElementsAre("GetShellServices()"));

    Editor().Visible(true);
    EXPECT_THAT(
        NewTrace(),
        ElementsAre(
            "StyleCommandPrefix()", "QuickModesAllowed()", "GetSchemeNames()", "GetCurrentScheme()",
            "RendererStyles()", "ReadSetting(DrawStyleEditor::Main)", FlatList, "ThemeName()",
            "ShowEditor()"));

    ClickLayer("Roads");
    EXPECT_THAT(
        NewTrace(),
        ElementsAre(
            "LayersTable()", "Index(LayerIDIDX)", "Seek(=, 1)", // the record
            "LayersTable()", "Index(LayerIDIDX)", "Seek(=, 1)")); // whether its code may be edited

    Click("chkVisible");
    EXPECT_THAT(NewTrace(), IsEmpty());

    Click("cmdApply");
    EXPECT_THAT(
        NewTrace(),
        ElementsAre(
            "LayersTable()", "Index(LayerIDIDX)", "Seek(=, 1)", "BeginLayerEdit()", "Edit()",
            "LayerChanged(1)", "Update()", // the properties
            "LayersTable()", "Index(LayerIDIDX)", "Seek(=, 1)", "BeginLayerEdit()", "Edit()",
            "Update()", // the code
            "RedrawMap()", "LayersTable()", "Index(LayerIDIDX)", "Seek(=, 1)", "LayersTable()",
            "Index(LayerIDIDX)", "Seek(=, 1)"));
    EXPECT_EQ(Stored(1, "Visible"), 0);

    Form()->close();
    EXPECT_THAT(
        NewTrace(),
        ElementsAre("EditorClosed()", "WriteSetting(DrawStyleEditor::Main, 9000:7000:LAYERS:EXPANDED)"));
    EXPECT_EQ(Library().GetStyleEditor("Main"), nullptr);
}

TEST_F(TypicalSession, AHostThatHidesTheEditorIsToldTwice)
{
    Open();
    host.ClearLog();
    Editor().Visible(false);
    EXPECT_THAT(
        NewTrace(),
        ElementsAre(
            "EditorClosed()", "EditorClosed()",
            "WriteSetting(DrawStyleEditor::Main, 9000:7000:LAYERS:EXPANDED)"));
}

} // namespace

} // namespace Orvane::Testing
