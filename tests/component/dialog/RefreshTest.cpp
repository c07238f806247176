// SPDX-License-Identifier: MIT
#include "component/dialog/EditorFixture.h"

#include <OrvaneShellLib/IStyleEditorForm.h>

#include <QComboBox>
#include <QScrollBar>

namespace Orvane::Testing {

namespace {

using testing::IsEmpty;

class Refreshing : public EditorFixture
{
protected:
    void SetUp() override
    {
        AddTown();
        Open();
        ClickLayer("Roads");
    }

    int Nodes(const char* tree) { return Find<QTreeView>(tree).model()->rowCount(); }
    QString CurrentText(const char* tree) { return Find<QTreeView>(tree).currentIndex().data().toString(); }
};

TEST_F(Refreshing, ShowsTheNewValuesOfTheCurrentLayer)
{
    const auto before = CheckState("chkVisible");
    host.SetLayerColumn(1, "Visible", before == 0);
    EditorForm().Refresh();
    EXPECT_NE(CheckState("chkVisible"), before);
    EXPECT_FALSE(CanApply());
}

TEST_F(Refreshing, KeepsTheSelection)
{
    EditorForm().Refresh();
    EXPECT_EQ(CurrentText("tvLayers2"), "Roads");
}

TEST_F(Refreshing, ListsNewLayersAndGroups)
{
    host.AddLayer({.id = 60, .name = "Sewers", .code = qint32(66)});
    host.AddGroup({.id = 30, .name = QString("New"), .ordering = 3, .members = {1}});
    EditorForm().Refresh();
    EXPECT_EQ(Nodes("tvLayers2"), 5);
    ClickTab(1);
    EXPECT_EQ(Nodes("tvLayers1"), 3);
}

TEST_F(Refreshing, GoesToTheNeighbourOfALayerThatIsGone)
{
    host.RemoveLayerRow(1);
    EditorForm().Refresh();
    EXPECT_EQ(Nodes("tvLayers2"), 3);
    EXPECT_FALSE(CurrentText("tvLayers2").isEmpty());
    EXPECT_NE(CurrentText("tvLayers2"), "Roads");
}

TEST_F(Refreshing, ListsTheHostsSchemes)
{
    host.schemeNames << "Night";
    host.currentScheme = "Night";
    EditorForm().Refresh();
    EXPECT_EQ(Find<QComboBox>("cmbScheme").count(), 2);
    EXPECT_EQ(Find<QComboBox>("cmbScheme").currentText(), "Night");
}

TEST_F(Refreshing, KeepsEditsThatWereNotApplied)
{
    EXPECT_FALSE(EditorForm().HasPendingEdits());
    Click("chkVisible");
    EXPECT_TRUE(EditorForm().HasPendingEdits());
    const auto edited = CheckState("chkVisible");
    host.AddLayer({.id = 60, .name = "Sewers", .code = qint32(66)});
    MessageBoxRobot nobody{};
    EditorForm().Refresh();
    EXPECT_EQ(CheckState("chkVisible"), edited);
    EXPECT_TRUE(EditorForm().HasPendingEdits());
    EXPECT_EQ(Nodes("tvLayers2"), 5);
}

TEST_F(Refreshing, ControlsThatWereNotEditedFollowWhatIsStored)
{
    Click("chkVisible");
    const auto edited = CheckState("chkVisible");
    host.SetLayerColumn(1, "Priority", qint32(7));
    host.SetLayerColumn(1, "Code", qint32(77));
    host.SetLayerColumn(1, "OverrideMode", qint32(2));
    EditorForm().Refresh();
    EXPECT_EQ(CheckState("chkVisible"), edited);
    EXPECT_TRUE(IsUnderlined("chkVisible"));
    EXPECT_EQ(TextOf("lblPriority"), "7");
    EXPECT_EQ(TextOf("lblCode"), "77");
    EXPECT_EQ(PressedModes(), 4);
}

TEST_F(Refreshing, AClickOnTheCurrentNodeShowsWhatIsStored)
{
    host.SetLayerColumn(1, "Priority", qint32(7));
    ClickLayer("Roads");
    QCoreApplication::processEvents();
    EXPECT_EQ(TextOf("lblPriority"), "7");
    EXPECT_FALSE(CanApply());
}

TEST_F(Refreshing, AClickOnTheCurrentNodeAsksNothingAndKeepsEdits)
{
    const MessageBoxRobot nobody{};
    Click("chkVisible");
    const auto edited = CheckState("chkVisible");
    ChooseScale("cmdEditMinScale", 8);
    Click("Hidden");
    host.SetLayerColumn(1, "Priority", qint32(7));
    host.SetLayerColumn(1, "Color", qint32(0x00FF00));
    ClickLayer("Roads");
    QCoreApplication::processEvents();
    EXPECT_EQ(CheckState("chkVisible"), edited);
    EXPECT_EQ(PressedModes(), 4);
    EXPECT_EQ(TextOf("lblPriority"), "7");
    Click("cmdApply");
    EXPECT_EQ(Stored(1, "MinVisScale"), 8000);
    EXPECT_EQ(Stored(1, "Color"), 0x00FF00);
    EXPECT_EQ(Stored(1, "OverrideMode"), 2);
}

TEST_F(Refreshing, AChoiceOfAnotherNodeReadsItOnce)
{
    host.ClearLog();
    ClickLayer("Rivers");
    QCoreApplication::processEvents();
    EXPECT_EQ(host.Log().CallsTo("Seek").size(), 2); // the record, and whether its code may be edited
}

TEST_F(Refreshing, AnEditorThatWasNotShownReadsNothing)
{
    Close();
    Create();
    host.ClearLog();
    EditorForm().Refresh();
    EXPECT_THAT(host.Calls(), IsEmpty());
    EXPECT_FALSE(EditorForm().HasPendingEdits());
}

} // namespace

} // namespace Orvane::Testing
