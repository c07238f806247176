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
