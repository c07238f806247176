// SPDX-License-Identifier: MIT
// Several chosen nodes while the user finds nodes.
#include "component/dialog/trees/LayerTreesLoadFixture.h"
#include "component/dialog/trees/NodeSelection.h"
#include "support/MenuByKeys.h"
#include "support/MessageBoxRobot.h"

#include <QAbstractItemModelTester>
#include <QtTest>

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace Orvane {

namespace {

/// The flat list shows Base, Rails, Rivers, Roads.
class LayerTreesFindChosenTest : public LayerTreesLoadTest
{
protected:
    QStringList Chosen() const
    {
        QStringList keys;
        for (const NodeReference& node : trees.ChosenNodes().Nodes())
            keys.append(MakeNodeKey(node));
        return keys;
    }

    QString SortedSelection(QTreeView& view) const
    {
        QStringList texts = Selected(view).split(',');
        texts.sort();
        return texts.join(',');
    }

    void Choose(QTreeView& view, const QStringList& texts, const QString& group = {})
    {
        Click(view, texts.front(), group);
        for (const QString& text : texts.mid(1)) {
            const QPoint place = view.visualRect(Node(view, text, group)).center();
            QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::ControlModifier, place);
        }
    }

    void PressSelectAll(QTreeView& view) { QTest::keyClick(&view, Qt::Key_A, Qt::ControlModifier); }

    void ChooseInMenu(QTreeView& view, const QString& item)
    {
        QMenu* menu = Testing::OpenMenuByKey(view);
        ASSERT_TRUE(menu);
        EXPECT_TRUE(Testing::PickByKeys(*menu, item)) << item.toStdString();
        Settle();
    }

    /// The chosen nodes have edits from now on; the question about them raises, or drops them.
    void Edit(bool raises)
    {
        hasEdits = true;
        asked = 0;
        trees.SetPendingChangesQuestion(
            [this, raises] {
                ++asked;
                if (raises && hasEdits)
                    throw RunTimeError(7, "not applied");
                hasEdits = false;
            },
            [this] { return hasEdits; });
    }

    bool hasEdits = false;
};

const char* const baseLayer = "L00000000000031";
const char* const railsLayer = "L00000000000012";
const char* const riversLayer = "L00000000000021";
const char* const roadsLayer = "L00000000000011";

} // namespace

TEST_F(LayerTreesFindChosenTest, CtrlAChoosesOnlyTheLayersShown)
{
    Open(List::Layers);
    Click(layers, "Base");
    trees.Find(List::Layers, "ai");
    PressSelectAll(layers);
    EXPECT_THAT(Chosen(), ElementsAre(railsLayer));
    trees.Find(List::Layers, "r");
    PressSelectAll(layers);
    EXPECT_THAT(Chosen(), ElementsAre(roadsLayer, railsLayer, riversLayer));
}

TEST_F(LayerTreesFindChosenTest, CtrlAInTheGroupsChoosesTheLayersShownAndNoGroup)
{
    Open(List::Groups);
    trees.Find(List::Groups, "roads");
    PressSelectAll(groups);
    EXPECT_THAT(Chosen(), ElementsAre("L00000010000011", "L00000020000011"));
    EXPECT_EQ(moved, 1);
}

TEST_F(LayerTreesFindChosenTest, TheMenuChoosesTheLayersShownOfTheGroup)
{
    Open(List::Groups);
    trees.Find(List::Groups, "ro");
    Click(groups, "Water");
    ChooseInMenu(groups, "Select All in Group");
    EXPECT_THAT(Chosen(), ElementsAre("L00000020000011"));
}

TEST_F(LayerTreesFindChosenTest, TheMenuInvertsAmongTheLayersShown)
{
    Open(List::Layers);
    trees.Find(List::Layers, "r");
    Click(layers, "Rails");
    ChooseInMenu(layers, "Invert Selection");
    EXPECT_THAT(Chosen(), ElementsAre(roadsLayer, riversLayer));
}

TEST_F(LayerTreesFindChosenTest, InvertingInTheGroupsChoosesNoGroup)
{
    Open(List::Groups);
    trees.Find(List::Groups, "r");
    Click(groups, "Rails", "Transport");
    ChooseInMenu(groups, "Invert Selection");
    EXPECT_THAT(Chosen(), ElementsAre("L00000010000011", "L00000020000011", "L00000020000021"));
}

TEST_F(LayerTreesFindChosenTest, InvertingTakesAwayTheHiddenLayersOfAChosenGroup)
{
    host.AddGroup({.id = 3, .name = QString("Airport"), .ordering = 3, .members = {11, 21}});
    Open(List::Groups);
    trees.Find(List::Groups, "ai");
    ASSERT_EQ(Lines(groups), QStringList({"Transport", "  Rails", "Airport", "  Roads", "  Rivers"}));
    Click(groups, "Transport");
    ChooseInMenu(groups, "Invert Selection");
    EXPECT_THAT(Chosen(), ElementsAre("L00000030000021"));
}

TEST_F(LayerTreesFindChosenTest, HiddenNodesAreNotChosenAndComeBack)
{
    Open(List::Layers);
    Choose(layers, {"Base", "Rails", "Roads"});
    moved = 0;
    trees.Find(List::Layers, "r");
    EXPECT_THAT(Chosen(), ElementsAre(roadsLayer, railsLayer));
    EXPECT_EQ(moved, 1);
    trees.Find(List::Layers, "rivers");
    EXPECT_THAT(Chosen(), IsEmpty());
    EXPECT_FALSE(trees.CurrentNode());
    EXPECT_EQ(moved, 2);
    trees.Find(List::Layers, "");
    EXPECT_THAT(Chosen(), ElementsAre(roadsLayer, railsLayer, baseLayer));
    EXPECT_EQ(SortedSelection(layers), "Base,Rails,Roads");
    EXPECT_EQ(trees.CurrentText(), "Roads");
    EXPECT_EQ(moved, 3);
}

TEST_F(LayerTreesFindChosenTest, NodesChosenMeanwhileStayChosenAlone)
{
    Open(List::Layers);
    Choose(layers, {"Base", "Roads"});
    trees.Find(List::Layers, "ai");
    PressSelectAll(layers);
    trees.Find(List::Layers, "");
    EXPECT_THAT(Chosen(), ElementsAre(railsLayer));
    EXPECT_EQ(Selected(layers), "Rails");
}

TEST_F(LayerTreesFindChosenTest, OneMoreChosenMeanwhileLeavesTheHiddenOnesOut)
{
    Open(List::Layers);
    Choose(layers, {"Base", "Roads"});
    trees.Find(List::Layers, "r");
    QTest::mouseClick(
        layers.viewport(), Qt::LeftButton, Qt::ControlModifier,
        layers.visualRect(Node(layers, "Rails")).center());
    trees.Find(List::Layers, "");
    EXPECT_THAT(Chosen(), ElementsAre(roadsLayer, railsLayer));
}

TEST_F(LayerTreesFindChosenTest, ARefreshKeepsWhatIsHidden)
{
    Open(List::Layers);
    Choose(layers, {"Base", "Rails", "Roads"});
    trees.Find(List::Layers, "ro");
    moved = 0;
    trees.LoadLayers();
    EXPECT_TRUE(trees.RefreshLayers({11, 31}));
    EXPECT_THAT(Chosen(), ElementsAre(roadsLayer));
    EXPECT_EQ(moved, 0);
    trees.Find(List::Layers, "");
    EXPECT_EQ(SortedSelection(layers), "Base,Rails,Roads");
}

TEST_F(LayerTreesFindChosenTest, AHiddenNodeThatHasGoneLeavesTheOthersToComeBack)
{
    Open(List::Layers);
    Choose(layers, {"Base", "Roads", "Rails"});
    trees.Find(List::Layers, "rivers");
    host.RemoveLayerRow(12);
    moved = 0;
    trees.LoadLayers();
    EXPECT_THAT(Chosen(), IsEmpty());
    EXPECT_EQ(moved, 0);
    trees.Find(List::Layers, "");
    EXPECT_EQ(SortedSelection(layers), "Base,Roads");
}

TEST_F(LayerTreesFindChosenTest, TheShownNodeThatHasGoneLeavesTheHiddenOnesToComeBack)
{
    Open(List::Layers);
    Choose(layers, {"Base", "Rivers", "Rails"});
    trees.Find(List::Layers, "ra");
    host.RemoveLayerRow(12);
    trees.LoadLayers();
    EXPECT_THAT(Chosen(), IsEmpty());
    trees.Find(List::Layers, "");
    EXPECT_EQ(SortedSelection(layers), "Base,Rivers");
}

TEST_F(LayerTreesFindChosenTest, EditsOfNodesThatAreNotAllFoundAreAskedAboutOnce)
{
    Open(List::Layers);
    Choose(layers, {"Base", "Rails", "Roads"});
    Edit(false);
    moved = 0;
    trees.Find(List::Layers, "r");
    trees.Find(List::Layers, "ri");
    trees.LoadLayers();
    EXPECT_EQ(asked, 0);
    EXPECT_EQ(Chosen().size(), 3);
    EXPECT_EQ(Lines(layers), QStringList({"Base", "Rails", "Rivers", "Roads"}));
    trees.LeaveUnfound(List::Layers);
    Settle();
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(moved, 1);
    EXPECT_THAT(Chosen(), IsEmpty());
    EXPECT_EQ(Lines(layers), QStringList({"Rivers"}));
    trees.Find(List::Layers, "");
    EXPECT_EQ(SortedSelection(layers), "Base,Rails,Roads");
    EXPECT_EQ(asked, 1);
}

TEST_F(LayerTreesFindChosenTest, NodesWhoseEditsStayAreListedTogether)
{
    Testing::MessageBoxRobot user({Testing::BoxKey::Enter, Testing::BoxKey::Enter});
    Open(List::Groups);
    Click(groups, "Transport");
    QTest::mouseClick(
        groups.viewport(), Qt::LeftButton, Qt::ControlModifier,
        groups.visualRect(Node(groups, "Rivers", "Water")).center());
    Edit(true);
    trees.Find(List::Groups, "nothing");
    trees.LeaveUnfound(List::Groups);
    Settle();
    trees.Find(List::Groups, "rails");
    Settle();
    trees.LoadGroups();
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(Lines(groups), QStringList({"Transport", "  Rails", "Water", "  Rivers"}));
    EXPECT_THAT(Chosen(), ElementsAre("L00000020000021", "G00000010000000"));
    PressSelectAll(groups);
    Settle();
    EXPECT_EQ(asked, 2);
    EXPECT_EQ(Chosen().size(), 2) << "the choice was refused";
}

TEST_F(LayerTreesFindChosenTest, ARenamedLayerGoesToItsPlaceAmongThoseShown)
{
    Open(List::Layers);
    const QAbstractItemModelTester tester(
        layers.model(), QAbstractItemModelTester::FailureReportingMode::Warning);
    Choose(layers, {"Rails", "Roads"});
    trees.Find(List::Layers, "r");
    host.SetLayerColumn(12, "Name", Value(QString("Runways")));
    ASSERT_TRUE(trees.RefreshLayers({12}));
    EXPECT_EQ(Lines(layers), QStringList({"Rivers", "Roads", "Runways"}));
    EXPECT_THAT(Chosen(), ElementsAre(roadsLayer, railsLayer));
    EXPECT_EQ(SortedSelection(layers), "Roads,Runways");
    host.SetLayerColumn(31, "Name", Value(QString("Sea")));
    ASSERT_TRUE(trees.RefreshLayers({31}));
    EXPECT_EQ(Lines(layers), QStringList({"Rivers", "Roads", "Runways"}));
    trees.Find(List::Layers, "");
    EXPECT_EQ(Lines(layers), QStringList({"Rivers", "Roads", "Runways", "Sea"}));
    EXPECT_EQ(SortedSelection(layers), "Roads,Runways");
}

} // namespace Orvane
