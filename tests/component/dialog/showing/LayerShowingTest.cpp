// SPDX-License-Identifier: MIT
#include "component/dialog/trees/LayerTreeModel.h"
#include "component/dialog/trees/NodeMenuFixture.h"
#include "hosts/CorrectingClient.h"
#include "hosts/FailingClient.h"

#include <OrvaneShellLib/ForwardingClient.h>
#include <OrvaneShellLib/RunTimeError.h>

namespace Orvane::Testing {

namespace {

using testing::ElementsAre;

class LayerShowingTest : public NodeMenuFixture
{
protected:
    int ImageOf(const QString& text) { return Node(text).data(LayerTreeModel::QuickModeRole).toInt(); }
};

class ShowingWithAFailingHost : public LayerShowingTest
{
protected:
    void SetUp() override
    {
        UseClient(client);
        LayerShowingTest::SetUp();
    }

    FailingClient client{host, {"Update", 2, RunTimeError(ErrorNumber::DatabaseLocked, "locked")}};
};

class ShowingWithACorrectingHost : public LayerShowingTest
{
protected:
    void SetUp() override
    {
        UseClient(client);
        LayerShowingTest::SetUp();
        Choose({"Roads"});
        client.corrected = &host;
    }

    CorrectingClient client{host};
};

TEST_F(ShowingWithACorrectingHost, ShowsWhatTheHostHasTakenAndCanBeTriedAgain)
{
    Pick("Hide");
    EXPECT_EQ(ImageOf("Roads"), 1);
    EXPECT_EQ(PressedModes(), 1);
    client.corrected = nullptr;
    Pick("Hide");
    EXPECT_EQ(Mode(1), 2);
    EXPECT_EQ(ImageOf("Roads"), 4);
}

TEST_F(ShowingWithACorrectingHost, ShowsWhatIsStoredWhenTheRedrawRaises)
{
    client.raises = true;
    MessageBoxRobot user{BoxKey::Enter};
    Pick("Hide");
    EXPECT_EQ(user.Only().text, "not taken");
    EXPECT_EQ(ImageOf("Roads"), 1);
    EXPECT_EQ(PressedModes(), 1);
}

TEST_F(LayerShowingTest, AnEntryThatWasRightForAnOldImageShowsTheStoredOne)
{
    Choose({"Parcels"});
    Pick("Hide");
    host.SetLayerColumn(3, "OverrideMode", qint32(0));
    Pick("Show");
    EXPECT_EQ(ImageOf("Parcels"), 1);
    Pick("Hide");
    EXPECT_EQ(Mode(3), 2);
}

TEST_F(LayerShowingTest, HidesAllChosenLayersAtOnceWithOneRedraw)
{
    Choose({"Parcels", "Rivers", "Roads"});
    host.ClearLog();
    Pick("Hide");
    EXPECT_THAT(Modes(), ElementsAre(2, 2, 2, 0));
    EXPECT_EQ(Calls("RedrawMap"), 1);
    EXPECT_EQ(Calls("LayerChanged"), 3);
    EXPECT_EQ(ImageOf("Roads"), 4);
    EXPECT_EQ(PressedModes(), 4);
    EXPECT_FALSE(CanApply());
}

TEST_F(LayerShowingTest, ShowsHiddenLayersAsNormalAndLeavesABackdropAsItIs)
{
    Choose({"Parcels"});
    Pick("Hide");
    Choose({"Parcels", "Rivers"});
    host.ClearLog();
    Pick("Show");
    EXPECT_THAT(Modes(), ElementsAre(0, 1, 0, 0));
    EXPECT_EQ(Calls("LayerChanged"), 1);
}

TEST_F(LayerShowingTest, HidesAllLayersOfAGroup)
{
    ClickTab(1);
    ClickGroup("Transport");
    Pick("Hide");
    EXPECT_THAT(Modes(), ElementsAre(2, 2, 0, 0));
    EXPECT_EQ(ImageOf("Transport"), 4);
    EXPECT_EQ(WhyNot("Hide"), "All of these layers are hidden already.");
    Pick("Show");
    EXPECT_THAT(Modes(), ElementsAre(0, 0, 0, 0));
    EXPECT_EQ(WhyNot("Show"), "All of these layers are shown already.");
}

TEST_F(LayerShowingTest, KeepsTheEditsOfOtherProperties)
{
    Choose({"Roads"});
    Click("chkLocked");
    const qint16 edited = CheckState("chkLocked");
    MessageBoxRobot nobody{};
    Pick("Hide");
    EXPECT_TRUE(CanApply());
    EXPECT_EQ(CheckState("chkLocked"), edited);
    EXPECT_EQ(PressedModes(), 4);
    EXPECT_EQ(Stored(1, "locked"), 0);
    Click("cmdApply");
    EXPECT_NE(Stored(1, "locked"), 0);
    EXPECT_EQ(Mode(1), 2);
}

TEST_F(LayerShowingTest, DropsAQuickModeThatIsNotAppliedYet)
{
    Choose({"Roads"});
    Click("Backdrop");
    Pick("Hide");
    EXPECT_EQ(PressedModes(), 4);
    EXPECT_FALSE(CanApply());
}

TEST_F(ShowingWithAFailingHost, LeavesEverythingAsItIs)
{
    Choose({"Roads", "Rivers"});
    MessageBoxRobot user{BoxKey::Enter};
    Pick("Hide");
    EXPECT_EQ(user.Only().text, "locked");
    EXPECT_THAT(Modes(), ElementsAre(0, 1, 0, 0));
    EXPECT_EQ(ImageOf("Roads"), 1);
}

TEST_F(LayerShowingTest, DeletesFromTheMenuWhatIsNoSystemLayer)
{
    Choose({"Parcels"});
    Pick("Delete");
    EXPECT_FALSE(Node("Parcels").isValid());
    Choose({"Boundary"});
    EXPECT_EQ(WhyNot("Delete"), "You may not delete a 'system layer'");
    ClickTab(1);
    ClickGroup("Transport");
    EXPECT_EQ(WhyNot("Delete"), "Layers are deleted in the list of layers.");
}

TEST_F(LayerShowingTest, IsReachedWithShiftF10)
{
    Choose({"Roads"});
    QTest::keyClick(&Tree(), Qt::Key_F10, Qt::ShiftModifier);
    QCoreApplication::processEvents();
    const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_TRUE(menu);
    EXPECT_TRUE(Entry(*menu, "Hide"));
}

TEST_F(LayerShowingTest, SaysWhyAnEntryIsDisabled)
{
    EXPECT_EQ(WhyNot("Show"), "Select a layer or a group first.");
    Choose({"Roads", "Parcels"});
    EXPECT_EQ(WhyNot("Edit Name"), "One layer or group at a time can be renamed, but no system layer.");
}

TEST_F(LayerShowingTest, StandsInOneMenuWithAllOtherCommands)
{
    ClickTab(1);
    ClickGroup("Transport");
    QStringList entries;
    for (const QAction* action : Menu().actions())
        entries.append(action->isSeparator() ? QStringLiteral("-") : action->text());
    EXPECT_THAT(
        entries,
        ElementsAre(
            "Edit Name", "-", "Expand All", "Collapse All", "-", "Select All in Group", "Select All",
            "Invert Selection", "-", "Show Line and Fill", "-", "Show", "Hide", "Show Only These",
            "Show All Again", "-", "Copy Settings", "Paste Settings...", "-", "Delete"));
}

TEST_F(LayerShowingTest, HasAReasonForEachDisabledEntryThatScreenReadersTellToo)
{
    for (const int tab : {1, 2}) {
        ClickTab(tab);
        QMenu& menu = Menu();
        for (const QAction* action : menu.actions()) {
            if (action->isEnabled())
                continue;
            EXPECT_TRUE(action->toolTip().endsWith('.')) << qPrintable(action->text());
            EXPECT_EQ(action->whatsThis(), action->toolTip()) << qPrintable(action->text());
        }
        menu.close();
        QCoreApplication::processEvents();
    }
}

class WithoutQuickModes : public LayerShowingTest
{
protected:
    void SetUp() override
    {
        host.quickModesAllowed = false;
        LayerShowingTest::SetUp();
    }
};

TEST_F(WithoutQuickModes, TheMenuDoesNotOfferThem)
{
    Choose({"Roads"});
    EXPECT_FALSE(HasEntry("Show"));
    EXPECT_FALSE(HasEntry("Hide"));
    EXPECT_TRUE(HasEntry("Delete"));
}

} // namespace

} // namespace Orvane::Testing
