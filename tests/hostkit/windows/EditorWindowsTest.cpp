// SPDX-License-Identifier: MIT
#include "hostkit/windows/EditorWindows.h"

#include "hosts/EmptyEditorForm.h"

#include <OrvaneShellLib/IStyleEditorRefresh.h>
#include <OrvaneShellLib/RunTimeError.h>

#include <QApplication>
#include <QDialog>
#include <QTest>
#include <QWindow>

#include <gmock/gmock.h>

namespace Orvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// A form of an editor that counts how often it was refreshed.
class Form : public QWidget, public Testing::EmptyEditorForm
{
public:
    bool pending = false;
    bool fails = false;
    int refreshed = 0;

private:
    bool IStyleEditorForm_HasPendingEdits() const override { return pending; }
    void IStyleEditorForm_Refresh() override
    {
        ++refreshed;
        if (fails)
            throw RunTimeError(7, QStringLiteral("no"));
    }
};

// One of a component that can read a few layers.
class FinerForm : public Form, public IStyleEditorRefresh
{
public:
    QSet<qint32> layers;

private:
    void IStyleEditorRefresh_RefreshLayers(const QSet<qint32>& layerIDs) override { layers += layerIDs; }
};

TEST(EditorWindows, ShowAFormAsAWindow)
{
    EditorWindows windows;
    QWidget form;
    windows.Show(&form);
    EXPECT_TRUE(form.isVisible());
    EXPECT_TRUE(form.isWindow());
    EXPECT_THAT(windows.Shown(), ElementsAre(&form));
}

TEST(EditorWindows, TheEditorShownLastIsInFrontWhileNoWindowIsActive)
{
    QWidget mainWindow;
    EditorWindows windows;
    windows.SetMainWindow(&mainWindow);
    EXPECT_EQ(windows.FrontWindow(), &mainWindow);
    QWidget first;
    QWidget last;
    for (QWidget* form : {&first, &last}) {
        form->setAttribute(Qt::WA_ShowWithoutActivating);
        windows.Show(form);
    }
    QApplication::setActiveWindow(nullptr);
    EXPECT_EQ(windows.FrontWindow(), &last);
    last.hide();
    EXPECT_EQ(windows.FrontWindow(), &first);
}

TEST(EditorWindows, TheActiveWindowIsInFront)
{
    QWidget mainWindow;
    EditorWindows windows;
    windows.SetMainWindow(&mainWindow);
    QWidget form;
    windows.Show(&form);
    QDialog dialog(&mainWindow);
    dialog.show();
    dialog.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    EXPECT_EQ(windows.FrontWindow(), &dialog);
}

TEST(EditorWindows, StandBeforeTheMainWindowAndStayTheirOwners)
{
    QWidget mainWindow;
    mainWindow.show();
    EditorWindows windows;
    windows.SetMainWindow(&mainWindow);
    QWidget form;
    windows.Show(&form);
    EXPECT_EQ(form.windowHandle()->transientParent(), mainWindow.windowHandle());
    EXPECT_EQ(form.parent(), nullptr);
}

TEST(EditorWindows, WorkBeforeTheMainWindowIsShownAndAfterItIsGone)
{
    auto mainWindow = std::make_unique<QWidget>();
    EditorWindows windows;
    windows.SetMainWindow(mainWindow.get());
    QWidget form;
    windows.Show(&form);
    EXPECT_TRUE(form.isVisible());
    mainWindow.reset();
    windows.Show(&form);
    EXPECT_EQ(windows.MainWindow(), nullptr);
    EXPECT_TRUE(form.isVisible());
}

TEST(EditorWindows, ForgetAFormOnceAndAgain)
{
    EditorWindows windows;
    QWidget form;
    windows.Show(&form);
    EXPECT_TRUE(windows.Forget(&form));
    EXPECT_FALSE(windows.Forget(&form));
    EXPECT_THAT(windows.Shown(), IsEmpty());
}

TEST(EditorWindows, ListAFormOnceHoweverOftenItIsShown)
{
    EditorWindows windows;
    QWidget form;
    windows.Show(&form);
    windows.Show(&form);
    EXPECT_THAT(windows.Shown(), ElementsAre(&form));
}

TEST(EditorWindows, NoteAFormThatTheHostShowsAndLeaveItWhereItIs)
{
    QWidget mainWindow;
    QWidget form(&mainWindow);
    mainWindow.show();
    EditorWindows windows;
    windows.SetMainWindow(&mainWindow);
    EXPECT_TRUE(windows.Adopt(&form));
    EXPECT_FALSE(windows.Adopt(&form));
    windows.Show(&form);
    EXPECT_THAT(windows.Shown(), ElementsAre(&form));
    EXPECT_EQ(form.parentWidget(), &mainWindow);
    EXPECT_FALSE(form.windowHandle()) << "a widget within a window needs no handle of its own";
}

TEST(EditorWindows, DoNotListAFormThatIsGone)
{
    EditorWindows windows;
    {
        QWidget form;
        windows.Show(&form);
    }
    EXPECT_THAT(windows.Shown(), IsEmpty());
}

TEST(EditorWindows, KnowWhetherAnEditorHoldsEdits)
{
    EditorWindows windows;
    QWidget plain;
    Form first;
    Form second;
    for (QWidget* form : std::initializer_list<QWidget*>{&plain, &first, &second})
        windows.Show(form);
    EXPECT_FALSE(windows.HavePendingEdits());
    second.pending = true;
    EXPECT_TRUE(windows.HavePendingEdits());
    windows.Forget(&second);
    EXPECT_FALSE(windows.HavePendingEdits());
}

TEST(EditorWindows, RefreshEveryEditorAndRaiseTheFirstError)
{
    EditorWindows windows;
    QWidget plain;
    Form first;
    Form second;
    for (QWidget* form : std::initializer_list<QWidget*>{&plain, &first, &second})
        windows.Show(form);
    first.fails = true;
    EXPECT_THROW(windows.RefreshEditors(), RunTimeError);
    EXPECT_EQ(first.refreshed, 1);
    EXPECT_EQ(second.refreshed, 1);
}

TEST(EditorWindows, RefreshAFewLayersWhereTheEditorCanAndElseEverything)
{
    EditorWindows windows;
    Form earlier;
    FinerForm finer;
    for (QWidget* form : std::initializer_list<QWidget*>{&earlier, &finer})
        windows.Show(form);
    windows.RefreshEditors({3, 4});
    EXPECT_EQ(earlier.refreshed, 1);
    EXPECT_EQ(finer.refreshed, 0);
    EXPECT_EQ(finer.layers, (QSet<qint32>{3, 4}));
}

} // namespace
} // namespace Orvane
