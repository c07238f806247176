// SPDX-License-Identifier: MIT
#include "shell/MainWindow.h"
#include "shell/servers/ServerMapDialog.h"
#include "shell/servers/ServerTest.h"
#include "shell/window/RecentMaps.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QPushButton>
#include <QTimer>

namespace Orvane {

using namespace Testing;

namespace {

/// Orvane's window and a server.
class MapOnServerInWindowTest : public ServerTest
{
protected:
    void SetUp() override
    {
        ServerTest::SetUp();
        if (IsSkipped())
            return;
        m_main = std::make_unique<MainWindow>();
        m_main->show();
    }
    void TearDown() override
    {
        m_main.reset();
        ServerTest::TearDown();
    }

    // The commands belong to objects that are not the window's children.
    void Choose(const char* command)
    {
        for (QAction* action : m_main->findChild<QMenu*>("menuFile")->actions()) {
            if (action->objectName() == QLatin1String(command))
                return action->trigger();
        }
        FAIL() << "no command " << command;
    }
    // Presses Enter in the dialog of maps, once its list is there.
    void EnterInDialog()
    {
        QTimer::singleShot(0, m_main.get(), [this] {
            auto* dialog = qobject_cast<ServerMapDialog*>(QApplication::activeModalWidget());
            const bool isReady = dialog && dialog->findChild<QPushButton*>("cmdRefresh")->isEnabled();
            if (isReady)
                QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
            else
                EnterInDialog();
        });
    }

    std::unique_ptr<MainWindow> m_main;
};

} // namespace

TEST_F(MapOnServerInWindowTest, AMapIsOpenedFromTheMenu)
{
    EnterInDialog();
    Choose("actOpenFromServer");
    EXPECT_EQ(m_main->Document().Path(), PlaceOf("Town"));
    EXPECT_TRUE(m_main->windowTitle().startsWith("Town (")) << m_main->windowTitle().toStdString();
    EXPECT_EQ(RecentMaps::Latest(), PlaceOf("Town"));
}

TEST_F(MapOnServerInWindowTest, APlaceThatIsWrittenDifferentlyIsTheSameMap)
{
    m_main->OpenMap(PlaceOf("Town"));
    m_main->OpenMap(QString(PlaceOf("Town")).replace("postgresql://", "postgres://"));
    EXPECT_EQ(m_main->Document().Path(), PlaceOf("Town"));
    EXPECT_EQ(RecentMaps::All().size(), 1);
}

TEST_F(MapOnServerInWindowTest, TheMapStaysOpenWhenAServerCannotBeReached)
{
    m_main->OpenMap(PlaceOf("Town"));
    EXPECT_THROW(m_main->OpenMap("postgresql:///nowhere?host=/nowhere&schema=Town"), std::exception);
    EXPECT_EQ(m_main->Document().Path(), PlaceOf("Town"));
}

} // namespace Orvane
