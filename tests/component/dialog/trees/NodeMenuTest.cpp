// SPDX-License-Identifier: MIT
// The nodes' menu while the dialog holds edits: the press of the button chooses another node, and the window
// system asks for the menu at once.
#include "component/dialog/trees/NodeMenuFixture.h"
#include "hosts/FailingClient.h"

#include <OrvaneShellLib/RunTimeError.h>

namespace Orvane::Testing {

namespace {

using testing::ElementsAre;

class NodeMenuWithEdits : public NodeMenuFixture
{
protected:
    void SetUp() override
    {
        NodeMenuFixture::SetUp();
        Choose({"Parcels"});
        Click("chkLocked");
    }

    void ClickRight(const QString& text)
    {
        QWidget* view = Tree().viewport();
        const QPoint place = Tree().visualRect(Node(text)).center();
        QTest::mousePress(view, Qt::RightButton, {}, place);
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, view->mapToGlobal(place));
        QApplication::sendEvent(view, &event);
        QTest::mouseRelease(view, Qt::RightButton, {}, place);
        for (int round = 0; round < 3; ++round) // the question, then the error or the menu
            QCoreApplication::processEvents();
    }

    static QMenu* Shown() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }
};

class NodeMenuWithEditsThatFail : public NodeMenuWithEdits
{
protected:
    void SetUp() override
    {
        UseClient(client);
        NodeMenuWithEdits::SetUp();
    }

    FailingClient client{host, {"Update", 1, RunTimeError(ErrorNumber::DatabaseLocked, "locked")}};
};

TEST_F(NodeMenuWithEdits, OpensAfterTheQuestionForTheNodeThatWasClicked)
{
    MessageBoxRobot user{BoxKey::No};
    user.BeforeAnswer([](const QMessageBox&) { EXPECT_FALSE(Shown()); });
    ClickRight("Roads");
    EXPECT_EQ(user.Boxes().size(), 1U);
    EXPECT_EQ(Tree().currentIndex(), Node("Roads"));
    QMenu* menu = Shown();
    ASSERT_TRUE(menu);
    menu->setActiveAction(Entry(*menu, "Hide"));
    QTest::keyClick(menu, Qt::Key_Return);
    QCoreApplication::processEvents();
    EXPECT_THAT(Modes(), ElementsAre(2, 1, 0, 0));
}

TEST_F(NodeMenuWithEditsThatFail, DoesNotOpenIfTheNodeIsNotLeft)
{
    MessageBoxRobot user{BoxKey::Yes, BoxKey::Enter};
    ClickRight("Roads");
    EXPECT_EQ(user.Boxes().size(), 2U);
    EXPECT_EQ(Tree().currentIndex(), Node("Parcels"));
    EXPECT_FALSE(Shown());
    EXPECT_TRUE(CanApply());
}

TEST_F(NodeMenuWithEdits, OpensAtOnceForTheirNode)
{
    MessageBoxRobot nobody{};
    ClickRight("Parcels");
    ASSERT_TRUE(Shown());
    EXPECT_TRUE(CanApply());
}

} // namespace

} // namespace Orvane::Testing
