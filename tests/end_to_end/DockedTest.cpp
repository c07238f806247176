// SPDX-License-Identifier: MIT
#include "end_to_end/TownWindow.h"

#include <QDockWidget>
#include <QMenuBar>

namespace Orvane::Testing {

namespace {

/// The town's map, with the layer control in the main window when its user wants that.
class Docked : public TownWindow
{
protected:
    void TearDown() override
    {
        if (m_window)
            m_window->close();
        QSettings().remove("LayerControl/Docked");
        QSettings().remove("MainWindow/State");
    }

    QDockWidget& Dock() { return *m_window->findChild<QDockWidget*>("EditorDock.Main"); }
    QWidget* DockedForm()
    {
        return Dock().isVisible() ? Dock().findChild<QWidget*>("frmLayerStyles") : nullptr;
    }

    // Alt+V, D: the command of the View menu.
    void PressDock()
    {
        m_window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(m_window.get()));
        QTest::keyClick(m_window.get(), Qt::Key_V, Qt::AltModifier);
        QWidget* menu = nullptr;
        ASSERT_TRUE(QTest::qWaitFor([&] { return (menu = QApplication::activePopupWidget()) != nullptr; }));
        QTest::keyClick(menu, Qt::Key_D);
    }

    void StartAgain()
    {
        m_window->close();
        m_window = std::make_unique<MainWindow>();
        m_window->show();
        m_window->OpenMap(MapPath());
        m_window->ShowLayerControlAgain();
    }
};

TEST_F(Docked, WithoutTheCommandItIsAWindow)
{
    OpenLayerControl();
    EXPECT_TRUE(Form());
    EXPECT_FALSE(DockedForm());
    EXPECT_FALSE(Dock().toggleViewAction()->isVisible()) << "no entry in the menu of tool bars";
}

TEST_F(Docked, TheCommandTakesTheOpenOneIntoTheWindowWithItsEdits)
{
    OpenLayerControl();
    QWidget* form = Form();
    ClickLayer(form, "Fields");
    QTest::mouseClick(Find(form, "chkVisible").findChild<QCheckBox*>(), Qt::LeftButton);
    ASSERT_TRUE(Find(form, "cmdApply").isEnabled());
    PressDock();
    ASSERT_EQ(DockedForm(), form);
    EXPECT_EQ(m_window->dockWidgetArea(&Dock()), Qt::RightDockWidgetArea);
    QTest::mouseClick(&Find(form, "cmdApply"), Qt::LeftButton);
    EXPECT_FALSE(ToBoolean(Stored("Fields", "Visible")));
}

TEST_F(Docked, TheCommandMakesItAWindowAgain)
{
    OpenLayerControl();
    QWidget* form = Form();
    PressDock();
    PressDock();
    EXPECT_EQ(Form(), form);
    EXPECT_FALSE(Dock().isVisible());
}

TEST_F(Docked, ItOpensInTheDockWithTheKeys)
{
    PressDock();
    EXPECT_FALSE(Dock().isVisible());
    OpenLayerControl();
    ASSERT_TRUE(DockedForm());
    EXPECT_TRUE(DockedForm()->isAncestorOf(QApplication::focusWidget()));
}

TEST_F(Docked, AHiddenDockIsShownAgainByTheCommandOfTheLayerControl)
{
    PressDock();
    OpenLayerControl();
    Dock().toggleViewAction()->trigger();
    ASSERT_FALSE(DockedForm());
    OpenLayerControl();
    EXPECT_TRUE(DockedForm());
}

TEST_F(Docked, ClosingTheDockClosesTheLayerControl)
{
    PressDock();
    OpenLayerControl();
    Dock().close();
    EXPECT_FALSE(Dock().isVisible());
    OpenLayerControl();
    EXPECT_TRUE(DockedForm());
}

TEST_F(Docked, TheNextRunHasItWhereItWas)
{
    PressDock();
    OpenLayerControl();
    m_window->addDockWidget(Qt::LeftDockWidgetArea, &Dock());
    StartAgain();
    EXPECT_TRUE(DockedForm());
    EXPECT_EQ(m_window->dockWidgetArea(&Dock()), Qt::LeftDockWidgetArea);
}

TEST_F(Docked, TheNextRunHasItFloatingIfItWas)
{
    PressDock();
    OpenLayerControl();
    Dock().setFloating(true);
    StartAgain();
    EXPECT_TRUE(DockedForm());
    EXPECT_TRUE(Dock().isFloating());
}

TEST_F(Docked, TheNextRunHasItClosedIfItWas)
{
    PressDock();
    OpenLayerControl();
    Dock().close();
    StartAgain();
    EXPECT_FALSE(DockedForm());
    OpenLayerControl();
    EXPECT_TRUE(DockedForm());
}

TEST_F(Docked, AnotherMapHasItInTheSameDock)
{
    PressDock();
    OpenLayerControl();
    m_window->OpenMap(MapPath());
    OpenLayerControl();
    EXPECT_TRUE(DockedForm());
}

} // namespace

} // namespace Orvane::Testing
