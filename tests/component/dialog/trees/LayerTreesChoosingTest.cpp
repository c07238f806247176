// SPDX-License-Identifier: MIT
#include "component/dialog/trees/LayerTreesFixture.h"
#include "component/dialog/trees/NodeSelection.h"
#include "support/MenuByKeys.h"
#include "support/MessageBoxRobot.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QtTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace Orvane {

namespace {

/// Several nodes chosen at once. The flat list shows Base, Rails, Rivers, Roads.
class LayerTreesChoosingTest : public Testing::LayerTreesTest
{
protected:
    /// The keys of the chosen nodes, layers first.
    QStringList Chosen() const
    {
        QStringList keys;
        for (const NodeReference& node : trees.ChosenNodes().Nodes())
            keys.append(MakeNodeKey(node));
        return keys;
    }

    QPoint Place(QTreeView& view, const QString& text, const QString& group = {})
    {
        return view.visualRect(Node(view, text, group)).center();
    }

    void ClickWith(Qt::KeyboardModifier key, QTreeView& view, const QString& text, const QString& group = {})
    {
        QTest::mouseClick(view.viewport(), Qt::LeftButton, key, Place(view, text, group));
    }

    void PressWith(Qt::KeyboardModifier modifier, QTreeView& view, Qt::Key key)
    {
        QTest::keyClick(&view, key, modifier);
    }

    /// With Qt 5, QTest moves the mouse as if no button were pressed.
    static void MovePressed(QWidget& over, QPoint to)
    {
        QMouseEvent move(
            QEvent::MouseMove, QPointF(to), QPointF(over.mapToGlobal(to)), Qt::NoButton, Qt::LeftButton,
            Qt::NoModifier);
        QCoreApplication::sendEvent(&over, &move);
    }

    void Draw(QTreeView& view, QPoint from, QPoint to)
    {
        QTest::mousePress(view.viewport(), Qt::LeftButton, {}, from);
        for (int step = 1; step <= 4; ++step)
            MovePressed(*view.viewport(), from + (to - from) * step / 4);
        QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, to);
    }

    /// The question waits, as with pending edits.
    void LetEditsWait()
    {
        trees.SetPendingChangesQuestion([this] { ++asked; }, [] { return true; });
    }

    void ChooseInMenu(QTreeView& view, const QString& item)
    {
        QMenu* menu = Testing::OpenMenuByKey(view);
        ASSERT_TRUE(menu);
        EXPECT_TRUE(Testing::PickByKeys(*menu, item)) << item.toStdString();
        Settle();
    }
};

const char* const baseKey = "L00000000000031";
const char* const railsKey = "L00000000000012";
const char* const riversKey = "L00000000000021";
const char* const roadsKey = "L00000000000011";

} // namespace

TEST_F(LayerTreesChoosingTest, CtrlAndClickAddsANodeAndTakesItAway)
{
    Open(List::Layers);
    Click(layers, "Rails");
    ClickWith(Qt::ControlModifier, layers, "Roads");
    EXPECT_THAT(Chosen(), ElementsAre(roadsKey, railsKey));
    EXPECT_EQ(trees.CurrentText(), "Roads");
    ClickWith(Qt::ControlModifier, layers, "Roads");
    EXPECT_THAT(Chosen(), ElementsAre(railsKey));
    EXPECT_EQ(trees.CurrentText(), "Rails");
    EXPECT_EQ(moved, 3);
}

TEST_F(LayerTreesChoosingTest, TheLastChosenNodeCannotBeTakenAway)
{
    Open(List::Layers);
    Click(layers, "Rails");
    ClickWith(Qt::ControlModifier, layers, "Rails");
    EXPECT_THAT(Chosen(), ElementsAre(railsKey));
    EXPECT_EQ(Selected(layers), "Rails");
    EXPECT_EQ(moved, 1);
}

TEST_F(LayerTreesChoosingTest, ShiftAndClickChoosesAllBetweenAtOnce)
{
    Open(List::Layers);
    Click(layers, "Base");
    ClickWith(Qt::ShiftModifier, layers, "Rivers");
    EXPECT_THAT(Chosen(), ElementsAre(railsKey, riversKey, baseKey));
    EXPECT_EQ(moved, 2);
}

TEST_F(LayerTreesChoosingTest, ShiftAndArrowsChooseMoreAndFewer)
{
    Open(List::Layers);
    Click(layers, "Base");
    PressWith(Qt::ShiftModifier, layers, Qt::Key_Down);
    PressWith(Qt::ShiftModifier, layers, Qt::Key_Down);
    EXPECT_THAT(Chosen(), ElementsAre(railsKey, riversKey, baseKey));
    PressWith(Qt::ShiftModifier, layers, Qt::Key_Up);
    EXPECT_THAT(Chosen(), ElementsAre(railsKey, baseKey));
    EXPECT_EQ(moved, 4);
}

TEST_F(LayerTreesChoosingTest, CtrlArrowsAndSpaceChooseWithTheKeyboardAlone)
{
    Open(List::Layers);
    Click(layers, "Base");
    PressWith(Qt::ControlModifier, layers, Qt::Key_Down);
    PressWith(Qt::ControlModifier, layers, Qt::Key_Down);
    EXPECT_THAT(Chosen(), ElementsAre(baseKey));
    PressWith(Qt::ControlModifier, layers, Qt::Key_Space);
    EXPECT_THAT(Chosen(), ElementsAre(riversKey, baseKey));
}

TEST_F(LayerTreesChoosingTest, CtrlAChoosesAll)
{
    Open(List::Layers);
    Click(layers, "Base");
    PressWith(Qt::ControlModifier, layers, Qt::Key_A);
    EXPECT_EQ(Chosen().size(), 4);
    EXPECT_EQ(trees.CurrentText(), "Base");
    EXPECT_EQ(moved, 2);
}

TEST_F(LayerTreesChoosingTest, AClickOnOneOfThemChoosesItAlone)
{
    Open(List::Layers);
    Click(layers, "Base");
    PressWith(Qt::ControlModifier, layers, Qt::Key_A);
    Click(layers, "Rivers");
    EXPECT_THAT(Chosen(), ElementsAre(riversKey));
    EXPECT_EQ(moved, 3);
}

TEST_F(LayerTreesChoosingTest, ANodeDrawnOverIsToldWhenTheMouseIsReleased)
{
    Open(List::Layers);
    QTest::mousePress(layers.viewport(), Qt::LeftButton, {}, Place(layers, "Base"));
    EXPECT_EQ(moved, 1);
    MovePressed(*layers.viewport(), Place(layers, "Rails"));
    MovePressed(*layers.viewport(), Place(layers, "Rivers"));
    Settle();
    EXPECT_EQ(moved, 1);
    QTest::mouseRelease(layers.viewport(), Qt::LeftButton, {}, Place(layers, "Rivers"));
    Settle();
    EXPECT_EQ(moved, 2);
    EXPECT_THAT(Chosen(), ElementsAre(railsKey, riversKey, baseKey));
}

TEST_F(LayerTreesChoosingTest, ABandFromEmptySpaceChoosesWhatItTouches)
{
    Open(List::Layers);
    Click(layers, "Base");
    const QRect last = layers.visualRect(Node(layers, "Roads"));
    Draw(layers, last.center() + QPoint(0, 3 * last.height()), Place(layers, "Rivers"));
    Settle();
    EXPECT_THAT(Chosen(), ElementsAre(roadsKey, riversKey));
    EXPECT_EQ(moved, 2);
}

TEST_F(LayerTreesChoosingTest, AClickOnEmptySpaceLeavesThemChosen)
{
    Open(List::Layers);
    Click(layers, "Base");
    ClickWith(Qt::ShiftModifier, layers, "Rivers");
    const QRect last = layers.visualRect(Node(layers, "Roads"));
    QTest::mouseClick(layers.viewport(), Qt::LeftButton, {}, last.center() + QPoint(0, 3 * last.height()));
    Settle();
    EXPECT_EQ(Chosen().size(), 3);
    EXPECT_EQ(layers.selectionModel()->selectedIndexes().size(), 3);
    EXPECT_EQ(moved, 2);
}

TEST_F(LayerTreesChoosingTest, GroupsAndLayersMix)
{
    Open(List::Groups);
    Click(groups, "Transport");
    ClickWith(Qt::ControlModifier, groups, "Rivers", "Water");
    EXPECT_THAT(Chosen(), ElementsAre("L00000020000021", "G00000010000000"));
}

TEST_F(LayerTreesChoosingTest, TheQuestionComesOnceAfterTheBandAndBeforeTheChoice)
{
    Open(List::Layers);
    Click(layers, "Base");
    LetEditsWait();
    const QRect last = layers.visualRect(Node(layers, "Roads"));
    asked = 0;
    QStringList chosenThen;
    trees.SetPendingChangesQuestion(
        [&] {
            ++asked;
            chosenThen = Chosen();
        },
        [] { return true; });
    Draw(layers, last.center() + QPoint(0, 3 * last.height()), Place(layers, "Rails"));
    EXPECT_EQ(asked, 0);
    Settle();
    EXPECT_EQ(asked, 1);
    EXPECT_THAT(chosenThen, ElementsAre(baseKey));
    EXPECT_EQ(Chosen().size(), 3);
}

TEST_F(LayerTreesChoosingTest, TheQuestionComesForOneMoreAndForOneLess)
{
    Open(List::Layers);
    Click(layers, "Base");
    LetEditsWait();
    asked = 0;
    ClickWith(Qt::ShiftModifier, layers, "Rivers");
    EXPECT_EQ(asked, 0);
    Settle();
    EXPECT_EQ(asked, 1);
    ClickWith(Qt::ControlModifier, layers, "Rivers");
    Settle();
    EXPECT_EQ(asked, 2);
    EXPECT_EQ(Chosen().size(), 2);
}

TEST_F(LayerTreesChoosingTest, TheOldNodesStayChosenWhenTheQuestionRaises)
{
    Open(List::Layers);
    Click(layers, "Base");
    ClickWith(Qt::ShiftModifier, layers, "Rivers");
    Testing::MessageBoxRobot robot({Testing::BoxKey::Enter});
    trees.SetPendingChangesQuestion([] { throw RunTimeError(10042, "disk full", "store"); });
    Click(layers, "Roads");
    Settle();
    EXPECT_EQ(Chosen().size(), 3);
    EXPECT_EQ(layers.selectionModel()->selectedIndexes().size(), 3);
    EXPECT_FALSE(layers.selectionModel()->isSelected(Node(layers, "Roads")));
}

TEST_F(LayerTreesChoosingTest, AllStayChosenWhenTheListsAreReadAgain)
{
    Open(List::Groups);
    Click(groups, "Transport");
    ClickWith(Qt::ControlModifier, groups, "Rivers", "Water");
    host.AddLayer({.id = 5, .name = "Canals"});
    host.AddGroup({.id = 9, .name = QString("First"), .ordering = 0, .members = {5}});
    moved = 0;
    trees.LoadGroups();
    EXPECT_THAT(Chosen(), ElementsAre("L00000020000021", "G00000010000000"));
    EXPECT_EQ(groups.selectionModel()->selectedIndexes().size(), 2);
    EXPECT_EQ(trees.CurrentText(), "Rivers");
    EXPECT_EQ(moved, 0);
}

TEST_F(LayerTreesChoosingTest, ANodeThatHasGoneLeavesTheSelection)
{
    Open(List::Layers);
    Click(layers, "Base");
    PressWith(Qt::ControlModifier, layers, Qt::Key_A);
    host.RemoveLayerRow(31);
    moved = 0;
    int gone = 0;
    QObject::connect(&trees, &LayerTrees::ChosenNodesGone, &window, [&] { ++gone; });
    trees.LoadLayers();
    EXPECT_THAT(Chosen(), ElementsAre(roadsKey, railsKey, riversKey));
    EXPECT_TRUE(trees.CurrentNode());
    EXPECT_TRUE(layers.currentIndex().isValid()); // the keys go on from there
    EXPECT_EQ(gone, 1);
    EXPECT_EQ(moved, 0);
    EXPECT_EQ(asked, 1); // before the first click there was no node
}

TEST_F(LayerTreesChoosingTest, ShiftStartsFromALayerThatTheHostHasShown)
{
    Open(List::Layers);
    Click(layers, "Base");
    trees.ShowLayer(21);
    PressWith(Qt::ShiftModifier, layers, Qt::Key_Down);
    EXPECT_THAT(Chosen(), ElementsAre(roadsKey, riversKey));
}

TEST_F(LayerTreesChoosingTest, TheNameOfSeveralCannotBeEdited)
{
    Open(List::Layers);
    Click(layers, "Rails");
    ClickWith(Qt::ControlModifier, layers, "Roads");
    Press(layers, Qt::Key_F2);
    EXPECT_FALSE(NameEditor(layers));
    trees.EditCurrentName();
    EXPECT_FALSE(NameEditor(layers));
}

TEST_F(LayerTreesChoosingTest, TheNameOfANodeThatOnlyHasTheFocusCannotBeEdited)
{
    Open(List::Layers);
    Click(layers, "Rails");
    PressWith(Qt::ControlModifier, layers, Qt::Key_Down);
    Press(layers, Qt::Key_F2);
    EXPECT_FALSE(NameEditor(layers));
}

TEST_F(LayerTreesChoosingTest, TheMenuChoosesAllLayersOfTheGroup)
{
    Open(List::Groups);
    Click(groups, "Transport");
    ChooseInMenu(groups, "Select All in Group");
    EXPECT_THAT(Chosen(), ElementsAre("L00000010000011", "L00000010000012"));
    EXPECT_TRUE(groups.isExpanded(Node(groups, "Transport")));
}

TEST_F(LayerTreesChoosingTest, TheMenuChoosesAll)
{
    Open(List::Groups);
    Click(groups, "Transport");
    ChooseInMenu(groups, "Select All");
    EXPECT_THAT(Chosen(), ElementsAre("G00000010000000", "G00000020000000"));
}

TEST_F(LayerTreesChoosingTest, TheMenuInvertsTheFlatList)
{
    Open(List::Layers);
    Click(layers, "Rails");
    ChooseInMenu(layers, "Invert Selection");
    EXPECT_THAT(Chosen(), ElementsAre(roadsKey, riversKey, baseKey));
    ChooseInMenu(layers, "Invert Selection");
    EXPECT_THAT(Chosen(), ElementsAre(railsKey));
}

TEST_F(LayerTreesChoosingTest, TheMenuInvertsTheLayersOfTheGroups)
{
    Open(List::Groups);
    Click(groups, "Rivers", "Water");
    ChooseInMenu(groups, "Invert Selection");
    EXPECT_THAT(Chosen(), ElementsAre("L00000020000011", "G00000010000000"));
}

TEST_F(LayerTreesChoosingTest, InvertingAllLeavesAllChosen)
{
    Open(List::Layers);
    Click(layers, "Base");
    PressWith(Qt::ControlModifier, layers, Qt::Key_A);
    ChooseInMenu(layers, "Invert Selection");
    EXPECT_EQ(Chosen().size(), 4);
    EXPECT_EQ(layers.selectionModel()->selectedIndexes().size(), 4);
}

TEST_F(LayerTreesChoosingTest, ALayerIsTakenAwayFromBothItsGroups)
{
    Open(List::Groups);
    Click(groups, "Roads", "Water");
    ChooseInMenu(groups, "Invert Selection");
    EXPECT_THAT(Chosen(), ElementsAre("L00000010000012", "L00000020000021"));
}

} // namespace Orvane
