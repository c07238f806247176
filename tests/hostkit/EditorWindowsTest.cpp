// SPDX-License-Identifier: MIT
#include "hostkit/EditorWindows.h"

#include <QWindow>

#include <gmock/gmock.h>

namespace Orvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(EditorWindows, ShowAFormAsAWindow)
{
    EditorWindows windows;
    QWidget form;
    windows.Show(&form);
    EXPECT_TRUE(form.isVisible());
    EXPECT_TRUE(form.isWindow());
    EXPECT_THAT(windows.Shown(), ElementsAre(&form));
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

TEST(EditorWindows, DoNotListAFormThatIsGone)
{
    EditorWindows windows;
    {
        QWidget form;
        windows.Show(&form);
    }
    EXPECT_THAT(windows.Shown(), IsEmpty());
}

} // namespace
} // namespace Orvane
