// SPDX-License-Identifier: MIT
// What encloses the form is closed.
#include "component/dialog/window/Enclosure.h"

#include "component/dialog/DockedFixture.h"

#include <OrvaneShellLib/IStyleEditor.h>
#include <OrvaneShellLib/IStyleEditorForm.h>

#include <QDialog>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScrollArea>
#include <QTabWidget>
#include <QVBoxLayout>

namespace Orvane::Testing {

namespace {

using testing::ElementsAre;

TEST_F(Docked, ClosingTheDockAsksAboutEditsAndYesAppliesThem)
{
    OpenWithEdits();
    MessageBoxRobot user{BoxKey::Yes};
    PressCloseButtonOfDock();
    EXPECT_EQ(user.Only().text, "Do you wish to apply the changes to the 'Roads' layer?");
    EXPECT_EQ(user.Only().owner, &window);
    EXPECT_EQ(Stored(1, "Visible"), 0);
    EXPECT_EQ(Form(), nullptr);
    EXPECT_FALSE(dock->isVisible());
}

TEST_F(Docked, ClosingTheDockAsksAboutEditsAndNoDropsThem)
{
    OpenWithEdits();
    MessageBoxRobot user{BoxKey::No};
    PressCloseButtonOfDock();
    EXPECT_EQ(user.Boxes().size(), 1u);
    EXPECT_EQ(Stored(1, "Visible"), 1);
    EXPECT_EQ(Form(), nullptr);
}

TEST_F(Docked, TheDockStaysOpenWithTheEditsWhenTheyCannotBeApplied)
{
    OpenWithEdits();
    CauseConflict();
    MessageBoxRobot user{BoxKey::Yes, BoxKey::Enter};
    PressCloseButtonOfDock();
    ASSERT_NE(Form(), nullptr);
    EXPECT_TRUE(dock->isVisible());
    EXPECT_TRUE(Form()->isVisible());
    EXPECT_TRUE(CanApply());
    EditorForm().UnloadWithoutApply();
}

TEST_F(Docked, ClosingTheDockEndsTheEditorInTheSameOrderAsAWindow)
{
    Open();
    host.ClearLog();
    PressCloseButtonOfDock();
    const QStringList calls = NewCalls();
    ASSERT_EQ(calls.size(), 2);
    EXPECT_TRUE(calls[0].startsWith("EditorClosed(")) << qPrintable(calls[0]);
    EXPECT_TRUE(calls[1].startsWith("WriteSetting(")) << qPrintable(calls[1]);
    EXPECT_EQ(Library().GetStyleEditor("Main"), nullptr);
}

TEST_F(Docked, ClosingTheMainWindowAsks)
{
    OpenWithEdits();
    MessageBoxRobot user{BoxKey::Yes};
    EXPECT_TRUE(window.close());
    EXPECT_EQ(Stored(1, "Visible"), 0);
    EXPECT_EQ(Form(), nullptr);
}

TEST_F(Docked, AMainWindowThatRefusesToCloseKeepsTheEditorAndItsEdits)
{
    OpenWithEdits();
    window.refuses = true;
    MessageBoxRobot user{BoxKey::No};
    EXPECT_FALSE(window.close());
    ASSERT_NE(Form(), nullptr);
    EXPECT_TRUE(Form()->isVisible());
    EXPECT_TRUE(CanApply());
    EditorForm().UnloadWithoutApply();
}

TEST_F(Docked, AFloatingDockAsksToo)
{
    OpenWithEdits();
    dock->setFloating(true);
    MessageBoxRobot user{BoxKey::No};
    PressCloseButtonOfDock();
    EXPECT_EQ(user.Only().owner, dock);
    EXPECT_EQ(Form(), nullptr);
}

TEST_F(Docked, TheMainWindowAsksForAFloatingDock)
{
    OpenWithEdits();
    dock->setFloating(true);
    MessageBoxRobot user{BoxKey::Yes};
    EXPECT_TRUE(window.close());
    EXPECT_EQ(Stored(1, "Visible"), 0);
}

TEST_F(Docked, OneOfTwoEditorsCanKeepTheMainWindowOpen)
{
    auto* second = new QDockWidget(&window);
    window.addDockWidget(Qt::LeftDockWidgetArea, second);
    OpenWithEdits();
    CauseConflict();
    host.OnShowEditor = [&](QWidget* form) { Put(*second, form); };
    Library().NewStyleEditor("Second")->Visible(true);
    MessageBoxRobot user{BoxKey::Yes, BoxKey::Enter};
    EXPECT_FALSE(window.close());
    EXPECT_NE(Form(), nullptr);
    EXPECT_NE(Library().GetStyleEditor("Second"), nullptr);
    EditorForm().UnloadWithoutApply();
    EXPECT_TRUE(window.close());
    EXPECT_EQ(Library().GetStyleEditor("Second"), nullptr);
}

TEST_F(Docked, AFormThatIsMovedElsewhereIsAskedThere)
{
    OpenWithEdits();
    QScrollArea other;
    Put(other, Form());
    other.show();
    PressCloseButtonOfDock();
    ASSERT_NE(Form(), nullptr) << "it is no longer in the dock";
    MessageBoxRobot user{BoxKey::No};
    EXPECT_TRUE(other.close());
    EXPECT_EQ(Form(), nullptr);
}

TEST_F(Docked, AHostMayDestroyTheDockWhenTheEditorCloses)
{
    Open();
    host.OnEditorClosed = [this](QWidget*) { delete dock; };
    Close();
    EXPECT_FALSE(StoredViewState().isEmpty());
    EXPECT_EQ(Form(), nullptr);
}

TEST_F(Docked, AHostMayCloseTheDockWhenTheEditorCloses)
{
    OpenWithEdits();
    host.OnEditorClosed = [this](QWidget*) { dock->close(); };
    MessageBoxRobot user{BoxKey::No};
    Close();
    EXPECT_EQ(user.Boxes().size(), 1u);
    EXPECT_EQ(Form(), nullptr);
}

TEST_F(Docked, TheHostMayDestroyTheMainWindowWhileTheQuestionWaits)
{
    auto* other = new QMainWindow;
    auto* otherDock = new QDockWidget(other);
    other->addDockWidget(Qt::LeftDockWidgetArea, otherDock);
    other->show();
    host.OnShowEditor = [&](QWidget* form) { Put(*otherDock, form); };
    OpenWithEdits();
    MessageBoxRobot user(std::initializer_list<BoxKey>{});
    user.BeforeAnswer([&](QMessageBox&) { delete other; });
    QCoreApplication::postEvent(otherDock, new QCloseEvent);
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(Form(), nullptr);
}

TEST_F(Docked, TheFormsOwnAttributesMayDeleteIt)
{
    Open();
    Form()->setAttribute(Qt::WA_DeleteOnClose);
    dock->setAttribute(Qt::WA_DeleteOnClose);
    PressCloseButtonOfDock();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(Form(), nullptr);
    EXPECT_TRUE(dock.isNull());
    EXPECT_FALSE(StoredViewState().isEmpty());
}

TEST_F(Docked, TheHostLearnsOfTheEditorBesidesShowingIt)
{
    Open();
    EXPECT_THAT(client.seen, ElementsAre(QString("shown")));
    PressCloseButtonOfDock();
    EXPECT_THAT(client.seen, ElementsAre(QString("shown"), QString("ended")));
}

TEST_F(Docked, ATabIsClosedByClosingTheForm)
{
    QTabWidget tabs;
    tabs.addTab(new QWidget, "Map");
    tabs.resize(800, 600);
    tabs.show();
    host.OnShowEditor = [&](QWidget* form) { tabs.setCurrentIndex(tabs.addTab(form, form->windowTitle())); };
    OpenWithEdits();
    tabs.setTabsClosable(true);
    QObject::connect(&tabs, &QTabWidget::tabCloseRequested, [&](int tab) { tabs.widget(tab)->close(); });
    MessageBoxRobot user{BoxKey::Yes};
    QTest::mouseClick(tabs.tabBar()->tabButton(1, QTabBar::RightSide), Qt::LeftButton);
    EXPECT_EQ(Stored(1, "Visible"), 0);
    EXPECT_EQ(Form(), nullptr);
}

TEST_F(Docked, AnEditorBehindAnotherTabIsOpenAndCanBeClosed)
{
    QTabWidget tabs;
    tabs.addTab(new QWidget, "Map");
    tabs.resize(800, 600);
    tabs.show();
    host.OnShowEditor = [&](QWidget* form) {
        if (tabs.indexOf(form) < 0)
            tabs.addTab(form, "Layers");
        tabs.setCurrentWidget(form);
    };
    OpenWithEdits();
    tabs.setCurrentIndex(0);
    Editor().Visible(true);
    EXPECT_TRUE(Form()->isVisible());
    EXPECT_TRUE(CanApply()) << "showing it again drops nothing";
    tabs.setCurrentIndex(0);
    MessageBoxRobot user{BoxKey::No};
    Close();
    EXPECT_EQ(Form(), nullptr);
}

TEST_F(Docked, AnMdiWindowAsksOnce)
{
    QMdiArea area;
    area.resize(900, 700);
    area.show();
    QPointer<QMdiSubWindow> sub;
    host.OnShowEditor = [&](QWidget* form) {
        sub = area.addSubWindow(form);
        sub->show();
    };
    OpenWithEdits();
    MessageBoxRobot user{BoxKey::No};
    sub->close();
    EXPECT_EQ(user.Boxes().size(), 1u);
    EXPECT_EQ(Form(), nullptr);
}

/// The form in a dialog of the host.
class InDialog : public Docked
{
protected:
    InDialog()
    {
        auto* layout = new QVBoxLayout(&dialog);
        host.OnShowEditor = [this, layout](QWidget* form) {
            layout->addWidget(form);
            form->show();
            dialog.show();
        };
    }

    QDialog dialog;
};

TEST_F(InDialog, EscapeDropsEditsFirstAndThenClosesTheDialogWithTheEditor)
{
    OpenWithEdits();
    Key(Qt::Key_Escape);
    ASSERT_NE(Form(), nullptr);
    EXPECT_FALSE(CanApply());
    EXPECT_TRUE(dialog.isVisible());
    Key(Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(Form(), nullptr);
    EXPECT_FALSE(StoredViewState().isEmpty());
}

TEST_F(InDialog, AcceptingTheDialogAsks)
{
    OpenWithEdits();
    MessageBoxRobot user{BoxKey::Yes};
    dialog.accept();
    EXPECT_EQ(Stored(1, "Visible"), 0);
    EXPECT_EQ(Form(), nullptr);
}

TEST_F(InDialog, TheDialogComesBackWhenTheEditsCannotBeApplied)
{
    OpenWithEdits();
    CauseConflict();
    MessageBoxRobot user{BoxKey::Yes, BoxKey::Enter};
    dialog.reject();
    ASSERT_NE(Form(), nullptr);
    EXPECT_TRUE(Form()->isVisible());
    EXPECT_TRUE(CanApply());
    EditorForm().UnloadWithoutApply();
}

TEST_F(InDialog, ItsCloseButtonAsksOnce)
{
    OpenWithEdits();
    MessageBoxRobot user{BoxKey::No};
    EXPECT_TRUE(dialog.close());
    EXPECT_EQ(user.Boxes().size(), 1u);
    EXPECT_EQ(Form(), nullptr);
}

} // namespace

} // namespace Orvane::Testing
