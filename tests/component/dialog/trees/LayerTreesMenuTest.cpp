// SPDX-License-Identifier: MIT
#include "component/dialog/trees/LayerTreesFixture.h"
#include "hosts/FailingClient.h"
#include "support/MenuByKeys.h"
#include "support/MessageBoxRobot.h"

#include <OrvaneShellLib/RunTimeError.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QMenu>
#include <QSignalSpy>
#include <QStyleHints>
#include <QTimer>
#include <QtTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace Orvane {

namespace {

using Testing::BoxKey;
using Testing::FailingClient;
using Testing::LayerTreesTest;
using Testing::MessageBoxRobot;

class LayerTreesMenuTest : public LayerTreesTest
{
protected:
    void TearDown() override
    {
        if (QWidget* menu = QApplication::activePopupWidget())
            menu->close();
        Settle();
    }

    QMenu* MenuByMouse(QTreeView& view, const QString& text, const QString& group = {})
    {
        const QPoint place = view.visualRect(Node(view, text, group)).center();
        QTest::mousePress(view.viewport(), Qt::RightButton, {}, place);
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, view.viewport()->mapToGlobal(place));
        QApplication::sendEvent(view.viewport(), &event);
        QTest::mouseRelease(view.viewport(), Qt::RightButton, {}, place);
        return OpenMenu();
    }

    QMenu* MenuByKey(QTreeView& view)
    {
        Testing::PressMenuKey(view);
        return OpenMenu();
    }

    QMenu* OpenMenu()
    {
        Settle();
        QMenu* menu = Testing::OpenedMenu();
        EXPECT_TRUE(menu) << "no menu opened";
        return menu;
    }

    QStringList Items(QMenu& menu) const
    {
        QStringList items;
        for (const QAction* action : menu.actions())
            items.append(action->isSeparator() ? QStringLiteral("-") : action->text());
        return items;
    }

    void Choose(QMenu& menu, const QString& text)
    {
        EXPECT_TRUE(Testing::PickByKeys(menu, text)) << text.toStdString();
        Settle();
    }

    /// Until the view has scrolled to the node of the last press, which it does after that time.
    void WaitForScrolling()
    {
        const int interval = QGuiApplication::styleHints()->mouseDoubleClickInterval();
        QTimer scrolled;
        scrolled.setSingleShot(true);
        QSignalSpy spy(&scrolled, &QTimer::timeout);
        scrolled.start(interval + 150);
        spy.wait();
    }

    bool IsStoredExpanded(qint32 groupID) { return ToBoolean(host.GroupColumn(groupID, "Expanded")); }
};

} // namespace

TEST_F(LayerTreesMenuTest, OffersRenamingExpandingAndChoosingInTheGroupsTree)
{
    Open(List::Groups);
    QMenu* menu = MenuByMouse(groups, "Transport");
    ASSERT_TRUE(menu);
    EXPECT_THAT(
        Items(*menu),
        ElementsAre(
            "Edit Name", "-", "Expand All", "Collapse All", "-", "Select All in Group", "Select All",
            "Invert Selection", "-", "Show Line and Fill"));
    EXPECT_EQ(trees.CurrentText(), "Transport");
}

TEST_F(LayerTreesMenuTest, OffersRenamingAndChoosingInTheFlatList)
{
    Open(List::Layers);
    QMenu* menu = MenuByMouse(layers, "Rails");
    ASSERT_TRUE(menu);
    EXPECT_THAT(
        Items(*menu),
        ElementsAre("Edit Name", "-", "Select All", "Invert Selection", "-", "Show Line and Fill"));
}

TEST_F(LayerTreesMenuTest, OpensTheNameEditor)
{
    Open(List::Layers);
    QMenu* menu = MenuByMouse(layers, "Rails");
    ASSERT_TRUE(menu);
    Choose(*menu, "Edit Name");
    ASSERT_TRUE(NameEditor(layers));
    QTest::keyClicks(NameEditor(layers), "Tracks");
    QTest::keyClick(NameEditor(layers), Qt::Key_Return);
    Settle();
    EXPECT_EQ(trees.CurrentText(), "Tracks");
}

TEST_F(LayerTreesMenuTest, OffersNoRenamingForASystemLayer)
{
    Open(List::Layers);
    QMenu* menu = MenuByMouse(layers, "Base");
    ASSERT_TRUE(menu);
    EXPECT_FALSE(menu->actions().first()->isEnabled());
}

TEST_F(LayerTreesMenuTest, OffersNoRenamingWithoutACurrentNode)
{
    Open(List::Layers);
    QMenu* menu = MenuByKey(layers);
    ASSERT_TRUE(menu);
    EXPECT_FALSE(menu->actions().first()->isEnabled());
}

TEST_F(LayerTreesMenuTest, OpensByKeyAtTheCurrentNode)
{
    Open(List::Layers);
    Click(layers, "Rails");
    QMenu* menu = MenuByKey(layers);
    ASSERT_TRUE(menu);
    const QRect node = layers.visualRect(layers.currentIndex());
    EXPECT_TRUE(node.adjusted(0, -2, 0, 2).contains(layers.viewport()->mapFromGlobal(menu->pos())));
}

TEST_F(LayerTreesMenuTest, ExpandsAllGroupsAndStoresThemTogether)
{
    Open(List::Groups);
    QMenu* menu = MenuByMouse(groups, "Transport");
    ASSERT_TRUE(menu);
    Choose(*menu, "Expand All");
    EXPECT_THAT(
        Lines(groups), ElementsAre("Transport", "  Roads", "  Rails", "Water", "  Rivers", "  Roads"));
    EXPECT_TRUE(IsStoredExpanded(1));
    EXPECT_TRUE(IsStoredExpanded(2));
    EXPECT_EQ(host.Log().CallsTo("BeginTrans").size(), 1);
    EXPECT_EQ(host.Log().CallsTo("Update").size(), 1); // the other one was expanded already
}

TEST_F(LayerTreesMenuTest, StoresNoExpansionDuringAFind)
{
    Open(List::Groups);
    trees.Find(List::Groups, "roads");
    QMenu* menu = MenuByMouse(groups, "Transport");
    ASSERT_TRUE(menu);
    Choose(*menu, "Collapse All");
    EXPECT_THAT(Lines(groups), ElementsAre("Transport", "Water"));
    EXPECT_TRUE(IsStoredExpanded(2));
    EXPECT_EQ(host.Log().CallsTo("Update").size(), 0);
}

TEST_F(LayerTreesMenuTest, CollapsesAllGroupsAndKeepsTheCurrentLayer)
{
    Open(List::Groups);
    Click(groups, "Rivers", "Water");
    QMenu* menu = MenuByMouse(groups, "Rivers", "Water");
    ASSERT_TRUE(menu);
    Choose(*menu, "Collapse All");
    EXPECT_THAT(Lines(groups), ElementsAre("Transport", "Water"));
    EXPECT_FALSE(IsStoredExpanded(2));
    EXPECT_EQ(trees.CurrentText(), "Rivers");
}

TEST_F(LayerTreesMenuTest, KeepsTheGroupCollapsedWhoseLayerWasClickedJustBefore)
{
    Open(List::Groups);
    Click(groups, "Rivers", "Water");
    QMenu* menu = MenuByKey(groups);
    ASSERT_TRUE(menu);
    Choose(*menu, "Collapse All");
    WaitForScrolling();
    EXPECT_THAT(Lines(groups), ElementsAre("Transport", "Water"));
    EXPECT_FALSE(IsStoredExpanded(2));
}

TEST_F(LayerTreesMenuTest, LeavesTheGroupsAsTheyAreWhenTheyCannotBeStored)
{
    Open(List::Groups);
    FailingClient client(host, {"Update", 1, RunTimeError(ErrorNumber::DatabaseLocked, "locked")});
    UseClient(client);
    QMenu* menu = MenuByMouse(groups, "Transport");
    ASSERT_TRUE(menu);
    MessageBoxRobot user{BoxKey::Enter};
    Choose(*menu, "Expand All");
    EXPECT_EQ(user.Only().text, "locked");
    EXPECT_FALSE(groups.isExpanded(Node(groups, "Transport")));
}

TEST_F(LayerTreesMenuTest, ReportsADatabaseThatCannotSayWhetherANameMayChange)
{
    Open(List::Layers);
    Click(layers, "Rails");
    FailingClient client(host, {"LayersTable", 1, RunTimeError(ErrorNumber::DatabaseLocked, "locked")});
    UseClient(client);
    MessageBoxRobot user{BoxKey::Enter};
    Testing::PressMenuKey(layers);
    EXPECT_EQ(user.Only().text, "locked");
    EXPECT_FALSE(QApplication::activePopupWidget());
    EXPECT_THAT(layers.findChildren<QMenu*>(), IsEmpty());
}

TEST_F(LayerTreesMenuTest, AsksToDeleteOnTheDeleteKeyOnly)
{
    Open(List::Layers);
    QSignalSpy requests(&trees, &LayerTrees::DeleteRequested);
    Click(layers, "Rails");
    Press(layers, Qt::Key_Delete);
    EXPECT_EQ(requests.count(), 1);
    QTest::keyClick(&layers, Qt::Key_Delete, Qt::ShiftModifier);
    Press(layers, Qt::Key_Backspace);
    EXPECT_EQ(requests.count(), 1);
}

TEST_F(LayerTreesMenuTest, LeavesTheDeleteKeyToAnOpenNameEditor)
{
    Open(List::Layers);
    QSignalSpy requests(&trees, &LayerTrees::DeleteRequested);
    Click(layers, "Rails");
    Press(layers, Qt::Key_F2);
    QTest::keyClick(NameEditor(layers), Qt::Key_Home);
    QTest::keyClick(NameEditor(layers), Qt::Key_Delete);
    EXPECT_EQ(NameEditor(layers)->text(), "ails");
    EXPECT_EQ(requests.count(), 0);
    QTest::keyClick(NameEditor(layers), Qt::Key_Escape);
}

} // namespace Orvane
