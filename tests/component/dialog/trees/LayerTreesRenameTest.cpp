// SPDX-License-Identifier: MIT
#include "component/dialog/trees/LayerTreesFixture.h"
#include "hosts/FailingClient.h"
#include "support/MessageBoxRobot.h"

#include <OrvaneShellLib/ForwardingClient.h>
#include <OrvaneShellLib/RunTimeError.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QtTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

namespace Orvane {

namespace {

using Testing::BoxKey;
using Testing::FailingClient;
using Testing::LayerTreesTest;
using Testing::MessageBoxRobot;

class LayerTreesRenameTest : public LayerTreesTest
{
protected:
    QStringList Renames() { return host.Calls().filter(QStringLiteral("Rename")); }
    void DoubleClick(QTreeView& view, const QModelIndex& node, Qt::KeyboardModifiers keys = Qt::NoModifier)
    {
        const QPoint place = view.visualRect(node).center();
        QTest::mouseClick(view.viewport(), Qt::LeftButton, keys, place);
        QTest::mouseDClick(view.viewport(), Qt::LeftButton, keys, place);
        Settle();
    }
    QString StoredName(qint32 layerID) { return ToText(host.LayerColumn(layerID, "Name")); }
};

/// A host that rejects new names.
class NoRenames : public ForwardingClient
{
public:
    using ForwardingClient::ForwardingClient;

protected:
    void IStyleEditorClient_RenameLayer(qint32, const QString&) override { throw RunTimeError(5, "taken"); }
    void IStyleEditorClient_RenameGroup(qint32, const QString&) override { throw RunTimeError(5, "taken"); }
};

} // namespace

TEST_F(LayerTreesRenameTest, TellsTheHostAndShowsTheNewName)
{
    Open(List::Layers);
    Click(layers, "Rails");
    Rename(layers, "Tracks");
    EXPECT_THAT(Renames(), ElementsAre("RenameLayer(12, Tracks)"));
    EXPECT_EQ(trees.CurrentText(), "Tracks");
    EXPECT_EQ(StoredName(12), "Tracks");
    EXPECT_FALSE(NameEditor(layers));
}

TEST_F(LayerTreesRenameTest, ChangesAllNodesOfTheLayerInBothTrees)
{
    host.AddGroup({.id = 3, .name = QString("More"), .ordering = 3, .members = {11}});
    Open(List::Groups);
    Click(groups, "Roads", "Water");
    Rename(groups, "Streets");
    EXPECT_THAT(Renames(), ElementsAre("RenameLayer(11, Streets)"));
    for (const char* group : {"Transport", "Water", "More"})
        EXPECT_TRUE(Node(groups, "Streets", group).isValid());
    EXPECT_TRUE(Node(layers, "Streets").isValid());
}

TEST_F(LayerTreesRenameTest, RenamesAGroup)
{
    Open(List::Groups);
    Click(groups, "Transport");
    Rename(groups, "Traffic");
    EXPECT_THAT(Renames(), ElementsAre("RenameGroup(1, Traffic)"));
    EXPECT_THAT(Lines(groups), Contains("Traffic"));
    trees.LoadGroups();
    EXPECT_THAT(Lines(groups), Contains("Traffic"));
}

TEST_F(LayerTreesRenameTest, RefusesAnEmptyName)
{
    Open(List::Layers);
    Click(layers, "Rails");
    MessageBoxRobot user{BoxKey::Enter};
    Rename(layers, "");
    EXPECT_EQ(user.Only().text, "Invalid Name");
    EXPECT_EQ(user.Only().icon, QMessageBox::Warning);
    EXPECT_THAT(user.Only().buttons, ElementsAre("OK"));
    EXPECT_THAT(Renames(), IsEmpty());
    EXPECT_EQ(trees.CurrentText(), "Rails");
}

TEST_F(LayerTreesRenameTest, RefusesAnEmptyNameOnceAlsoWhenTheEditorLosesTheFocus)
{
    Open(List::Layers);
    Click(layers, "Rails");
    Press(layers, Qt::Key_F2);
    NameEditor(layers)->clear();
    MessageBoxRobot user{BoxKey::Enter};
    groups.setFocus();
    Settle();
    EXPECT_EQ(user.Boxes().size(), 1u);
    EXPECT_EQ(trees.CurrentText(), "Rails");
    EXPECT_FALSE(NameEditor(layers));
}

TEST_F(LayerTreesRenameTest, MakesNoOtherCheckOfAName)
{
    Open(List::Layers);
    Click(layers, "Rails");
    Rename(layers, "  '^1' <b>\"");
    EXPECT_EQ(StoredName(12), "  '^1' <b>\"");
}

TEST_F(LayerTreesRenameTest, StoresTheNameWhenTheEditorLosesTheFocus)
{
    Open(List::Layers);
    Click(layers, "Rails");
    Press(layers, Qt::Key_F2);
    QTest::keyClicks(NameEditor(layers), "Tracks");
    groups.setFocus();
    Settle();
    EXPECT_EQ(StoredName(12), "Tracks");
}

TEST_F(LayerTreesRenameTest, EndsTheEditWithTabWithoutGoingToAnotherNode)
{
    Open(List::Layers);
    Click(layers, "Rails");
    Press(layers, Qt::Key_F2);
    QTest::keyClicks(NameEditor(layers), "Tracks");
    QTest::keyClick(NameEditor(layers), Qt::Key_Tab);
    Settle();
    EXPECT_EQ(StoredName(12), "Tracks");
    EXPECT_EQ(trees.CurrentText(), "Tracks");
    EXPECT_FALSE(NameEditor(layers));
    EXPECT_EQ(asked, 0);
}

TEST_F(LayerTreesRenameTest, DropsTheEditOnEscape)
{
    Open(List::Layers);
    Click(layers, "Rails");
    Press(layers, Qt::Key_F2);
    QTest::keyClicks(NameEditor(layers), "Tracks");
    QTest::keyClick(NameEditor(layers), Qt::Key_Escape);
    Settle();
    EXPECT_THAT(Renames(), IsEmpty());
    EXPECT_EQ(trees.CurrentText(), "Rails");
    EXPECT_FALSE(NameEditor(layers));
}

TEST_F(LayerTreesRenameTest, TellsTheHostNothingWhenTheNameIsTheSame)
{
    Open(List::Layers);
    Click(layers, "Rails");
    Rename(layers, "Rails");
    EXPECT_THAT(Renames(), IsEmpty());
}

TEST_F(LayerTreesRenameTest, BeginsWithTheStoredNameAndShowsTheDecoratedOne)
{
    host.displayNames[12] = "Rails (Obscured)";
    Open(List::Layers);
    Click(layers, "(OBS)Rails ");
    Press(layers, Qt::Key_F2);
    EXPECT_EQ(NameEditor(layers)->text(), "Rails");
    EXPECT_EQ(NameEditor(layers)->selectedText(), "Rails");
    host.displayNames[12] = "Tracks (Obscured)";
    QTest::keyClicks(NameEditor(layers), "Tracks");
    QTest::keyClick(NameEditor(layers), Qt::Key_Return);
    Settle();
    EXPECT_EQ(StoredName(12), "Tracks");
    EXPECT_EQ(trees.CurrentText(), "(OBS)Tracks ");
}

TEST_F(LayerTreesRenameTest, BeginsEmptyForAGroupWithoutNameAndAsksNothingWhenItStaysSo)
{
    host.AddGroup({.id = 3, .name = QString(), .ordering = 3, .members = {31}});
    Open(List::Groups);
    Click(groups, "<No Name>");
    Press(groups, Qt::Key_F2);
    ASSERT_TRUE(NameEditor(groups));
    EXPECT_EQ(NameEditor(groups)->text(), "");
    MessageBoxRobot nobody{};
    QTest::keyClick(NameEditor(groups), Qt::Key_Return);
    Settle();
    EXPECT_THAT(Renames(), IsEmpty());
}

TEST_F(LayerTreesRenameTest, ProtectsASystemLayer)
{
    Open(List::Layers);
    Click(layers, "Base");
    Press(layers, Qt::Key_F2);
    EXPECT_FALSE(NameEditor(layers));
    trees.EditCurrentName();
    EXPECT_FALSE(NameEditor(layers));
    EXPECT_FALSE(trees.CanEditNode(*trees.CurrentNode()));
}

TEST_F(LayerTreesRenameTest, ProtectsAGroupThatIsMissing)
{
    Open(List::Groups);
    Click(groups, "Transport");
    host.RemoveGroupRow(1);
    Press(groups, Qt::Key_F2);
    EXPECT_FALSE(NameEditor(groups));
}

TEST_F(LayerTreesRenameTest, DoesNotOpenOnClicks)
{
    const int interval = QApplication::doubleClickInterval();
    QApplication::setDoubleClickInterval(0); // an editor could open until this time after a click
    Open(List::Layers);
    Click(layers, "Rails");
    Click(layers, "Rails");
    Settle();
    EXPECT_FALSE(NameEditor(layers));
    QApplication::setDoubleClickInterval(interval);
}

TEST_F(LayerTreesRenameTest, OpensOnADoubleClickOfALayer)
{
    Open(List::Groups);
    DoubleClick(groups, Node(groups, "Roads", "Water"));
    ASSERT_TRUE(NameEditor(groups));
    QTest::keyClicks(NameEditor(groups), "Streets");
    QTest::keyClick(NameEditor(groups), Qt::Key_Return);
    Settle();
    EXPECT_EQ(trees.CurrentText(), "Streets");
}

TEST_F(LayerTreesRenameTest, LeavesADoubleClickOfAGroupToItsExpansion)
{
    Open(List::Groups);
    const bool before = groups.isExpanded(Node(groups, "Water"));
    DoubleClick(groups, Node(groups, "Water"));
    EXPECT_FALSE(NameEditor(groups));
    EXPECT_NE(groups.isExpanded(Node(groups, "Water")), before);
}

TEST_F(LayerTreesRenameTest, DoesNotOpenOnADoubleClickOfASystemLayerOrWithAKey)
{
    Open(List::Layers);
    DoubleClick(layers, Node(layers, "Base"));
    EXPECT_FALSE(NameEditor(layers));
    DoubleClick(layers, Node(layers, "Rails"), Qt::ControlModifier);
    EXPECT_FALSE(NameEditor(layers));
}

TEST_F(LayerTreesRenameTest, KeepsTheOldTextWhenTheHostRefuses)
{
    Open(List::Groups);
    NoRenames client(host);
    UseClient(client);
    Click(groups, "Roads", "Water");
    {
        MessageBoxRobot user{BoxKey::Enter};
        Rename(groups, "Streets");
        EXPECT_EQ(user.Only().text, "taken");
    }
    Click(groups, "Water");
    MessageBoxRobot user{BoxKey::Enter};
    Rename(groups, "Wet");
    EXPECT_THAT(Lines(groups), ElementsAre("Transport", "Water", "  Rivers", "  Roads"));
}

TEST_F(LayerTreesRenameTest, ReportsADatabaseThatCannotSayWhetherANameMayChange)
{
    Open(List::Layers);
    Click(layers, "Rails");
    FailingClient client(host, {"LayersTable", 1, RunTimeError(ErrorNumber::DatabaseLocked, "locked")});
    UseClient(client);
    MessageBoxRobot user{BoxKey::Enter};
    Press(layers, Qt::Key_F2);
    EXPECT_EQ(user.Only().text, "locked");
    EXPECT_FALSE(NameEditor(layers));
}

TEST_F(LayerTreesRenameTest, KeepsWhatWasTypedWhenTheNodeChangesBehindTheEditor)
{
    Open(List::Layers);
    Click(layers, "Rails");
    Press(layers, Qt::Key_F2);
    QTest::keyClicks(NameEditor(layers), "Tra");
    trees.SetLayerImage(12, 4);
    EXPECT_EQ(NameEditor(layers)->text(), "Tra");
    QTest::keyClick(NameEditor(layers), Qt::Key_Escape);
}

TEST_F(LayerTreesRenameTest, RenamesALayerForTheHost)
{
    Open(List::Layers);
    trees.SetLayerName(12, "Tracks");
    EXPECT_THAT(Renames(), ElementsAre("RenameLayer(12, Tracks)"));
    EXPECT_TRUE(Node(layers, "Tracks").isValid());
    EXPECT_TRUE(Node(groups, "Tracks", "Transport").isValid());
}

TEST_F(LayerTreesRenameTest, PassesTheHostsErrorOnWhenTheHostAskedForTheName)
{
    Open(List::Layers);
    NoRenames client(host);
    UseClient(client);
    EXPECT_THROW(trees.SetLayerName(12, "Tracks"), RunTimeError);
    EXPECT_TRUE(Node(layers, "Rails").isValid());
}

TEST_F(LayerTreesRenameTest, OpensOnTheCurrentNodeWhenItIsAskedTo)
{
    Open(List::Layers);
    trees.EditCurrentName();
    EXPECT_FALSE(NameEditor(layers));
    Click(layers, "Rails");
    trees.EditCurrentName();
    ASSERT_TRUE(NameEditor(layers));
    trees.EditCurrentName();
    EXPECT_EQ(NameEditor(layers)->accessibleName(), "Edit Name");
    QTest::keyClick(NameEditor(layers), Qt::Key_Escape);
}

} // namespace Orvane
