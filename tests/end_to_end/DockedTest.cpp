// SPDX-License-Identifier: MIT
#include "end_to_end/TownWindow.h"
#include "mapkit/canvas/MapCanvas.h"

#include <QDockWidget>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>

namespace Orvane::Testing {

namespace {

/// The town's map, and a user who moves the layer control in and out of the main window.
class Docked : public TownWindow
{
protected:
    void SetUp() override
    {
        TownWindow::SetUp();
        m_window->resize(1000, 700);
    }

    void TearDown() override
    {
        if (m_window)
            m_window->close();
        QSettings().clear();
    }

    QDockWidget& Dock() { return *m_window->findChild<QDockWidget*>("EditorDock.Main"); }
    QAction& Switch() { return *Dock().toggleViewAction(); }
    /// Returns its new width.
    int WidenDock()
    {
        QCoreApplication::processEvents();
        const int width = Dock().width() + 57;
        m_window->resizeDocks({&Dock()}, {width}, Qt::Horizontal);
        QCoreApplication::processEvents();
        return width;
    }

    QWidget* DockedForm()
    {
        return Dock().isVisible() ? Dock().findChild<QWidget*>("frmLayerStyles") : nullptr;
    }

    void Activate()
    {
        m_window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(m_window.get()));
    }

    // Alt+V, D: the command of the View menu.
    void PressDock()
    {
        Activate();
        QTest::keyClick(m_window.get(), Qt::Key_V, Qt::AltModifier);
        QWidget* menu = nullptr;
        ASSERT_TRUE(QTest::qWaitFor([&] { return (menu = QApplication::activePopupWidget()) != nullptr; }));
        QTest::keyClick(menu, Qt::Key_D);
    }

    void PressF4() { QTest::keyClick(m_window->focusWidget(), Qt::Key_F4); }

    QToolButton* ButtonOnToolBar()
    {
        const auto* bar = m_window->findChild<QToolBar*>("toolBar");
        for (QToolButton* button : bar->findChildren<QToolButton*>()) {
            const QAction* command = button->isVisible() ? button->defaultAction() : nullptr;
            if (command && command->text().remove('&') == "Layer Control")
                return button;
        }
        return nullptr;
    }

    void StartAgain()
    {
        m_window->close();
        m_window = std::make_unique<MainWindow>();
        m_window->show();
        m_window->OpenMap(MapPath());
        m_window->ShowLayerControlAgain();
        QCoreApplication::processEvents();
    }
};

TEST_F(Docked, ItIsOpenInTheDockInTheFirstRun)
{
    m_window->ShowLayerControlAgain();
    ASSERT_TRUE(DockedForm());
    EXPECT_EQ(m_window->dockWidgetArea(&Dock()), Qt::RightDockWidgetArea);
}

TEST_F(Docked, ItStaysOpenWhenAnotherMapIsOpened)
{
    OpenLayerControl();
    const QString other = m_folder.filePath("other.orvane");
    QFile::copy(MapPath(), other);
    m_window->OpenMap(other);
    EXPECT_TRUE(DockedForm());
    Dock().close();
    m_window->OpenMap(MapPath());
    EXPECT_FALSE(DockedForm()) << "nor does it open by itself";
}

TEST_F(Docked, TheMapHasMoreThanHalfOfTheWindowAtFirst)
{
    OpenLayerControl();
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_window->Canvas().width() > m_window->width() / 2; }));
    EXPECT_TRUE(Find(DockedForm(), "picLayerStyle").isVisible());
}

TEST_F(Docked, WhoeverHasChosenAWindowGetsAWindow)
{
    m_window->close();
    QSettings().setValue("LayerControl/Docked", false);
    StartAgain();
    EXPECT_FALSE(Form()) << "it opens by itself only in its dock";
    OpenLayerControl();
    ASSERT_TRUE(Form());
    EXPECT_TRUE(Form()->isWindow());
    EXPECT_FALSE(Switch().isVisible()) << "no entry in the menus";
    EXPECT_TRUE(ButtonOnToolBar());
}

TEST_F(Docked, TheCommandMakesItAWindowWithItsEdits)
{
    OpenLayerControl();
    QWidget* form = Form();
    ClickLayer(form, "Fields");
    ClickVisible(form);
    ASSERT_TRUE(Find(form, "cmdApply").isEnabled());
    PressDock();
    ASSERT_EQ(Form(), form);
    EXPECT_TRUE(form->isWindow());
    EXPECT_FALSE(Dock().isVisible());
    Press(form, "cmdApply");
    EXPECT_FALSE(ToBoolean(Stored("Fields", "Visible")));
}

TEST_F(Docked, TheCommandTakesAnOpenWindowIntoTheDock)
{
    PressDock();
    OpenLayerControl();
    QWidget* form = Form();
    ASSERT_TRUE(form->isWindow());
    PressDock();
    EXPECT_EQ(DockedForm(), form);
}

TEST_F(Docked, ItOpensWithTheKeys)
{
    Activate();
    OpenLayerControl();
    ASSERT_TRUE(DockedForm());
    EXPECT_TRUE(DockedForm()->isAncestorOf(QApplication::focusWidget()));
}

TEST_F(Docked, ItsKeyOpensItGoesToItAndClosesIt)
{
    Activate();
    m_window->Canvas().setFocus();
    PressF4();
    ASSERT_TRUE(DockedForm());
    m_window->Canvas().setFocus();
    PressF4();
    ASSERT_TRUE(DockedForm());
    EXPECT_TRUE(DockedForm()->isAncestorOf(QApplication::focusWidget()));
    PressF4();
    EXPECT_FALSE(DockedForm());
}

TEST_F(Docked, TheToolBarClosesAndOpensIt)
{
    OpenLayerControl();
    ASSERT_TRUE(ButtonOnToolBar());
    EXPECT_TRUE(ButtonOnToolBar()->isChecked());
    QTest::mouseClick(ButtonOnToolBar(), Qt::LeftButton);
    EXPECT_FALSE(DockedForm());
    EXPECT_FALSE(ButtonOnToolBar()->isChecked());
    QTest::mouseClick(ButtonOnToolBar(), Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([&] { return DockedForm() != nullptr; }));
}

TEST_F(Docked, TheViewMenuClosesIt)
{
    OpenLayerControl();
    Choose("menuView", "Layer Control");
    EXPECT_FALSE(DockedForm());
}

TEST_F(Docked, TheToolBarShowsThatItStayedOpenForItsEdits)
{
    OpenLayerControl();
    ClickLayer(Form(), "Fields");
    ClickVisible(Form());
    Database().Execute("UPDATE Layers SET Visible = NULL WHERE Name = 'Fields'", {});
    // To apply, but not over the other value.
    MessageBoxRobot user{BoxKey::Yes, BoxKey::Escape, BoxKey::Enter};
    QTest::mouseClick(ButtonOnToolBar(), Qt::LeftButton);
    EXPECT_TRUE(DockedForm());
    EXPECT_TRUE(QTest::qWaitFor([&] { return ButtonOnToolBar()->isChecked(); }));
    Press(Form(), "cmdCancel");
}

TEST_F(Docked, ClosingTheDockClosesTheLayerControl)
{
    OpenLayerControl();
    Dock().close();
    EXPECT_FALSE(Dock().isVisible());
    OpenLayerControl();
    EXPECT_TRUE(DockedForm());
}

TEST_F(Docked, TheNextRunHasItWhereItWas)
{
    OpenLayerControl();
    m_window->addDockWidget(Qt::LeftDockWidgetArea, &Dock());
    StartAgain();
    EXPECT_TRUE(DockedForm());
    EXPECT_EQ(m_window->dockWidgetArea(&Dock()), Qt::LeftDockWidgetArea);
}

TEST_F(Docked, TheNextRunHasItInTheSameSize)
{
    OpenLayerControl();
    const int width = WidenDock();
    ASSERT_EQ(Dock().width(), width);
    StartAgain();
    EXPECT_EQ(Dock().width(), width);
}

TEST_F(Docked, ItHasTheSameSizeWhenItIsOpenedAgain)
{
    OpenLayerControl();
    const int width = WidenDock();
    Dock().close();
    QCoreApplication::processEvents();
    OpenLayerControl();
    QCoreApplication::processEvents();
    EXPECT_EQ(Dock().width(), width);
    Dock().close();
    StartAgain();
    OpenLayerControl();
    QCoreApplication::processEvents();
    EXPECT_EQ(Dock().width(), width) << "also in the next run, which does not open it";
}

TEST_F(Docked, ItHasTheSameSizeWhenItWasClosedForAMoment)
{
    OpenLayerControl();
    const int width = WidenDock();
    m_window->OpenMap(MapPath());
    OpenLayerControl();
    EXPECT_TRUE(QTest::qWaitFor([&] { return Dock().width() == width; })) << Dock().width();
}

TEST_F(Docked, TheNextRunHasItFloatingIfItWas)
{
    OpenLayerControl();
    Dock().setFloating(true);
    StartAgain();
    EXPECT_TRUE(DockedForm());
    EXPECT_TRUE(Dock().isFloating());
}

TEST_F(Docked, TheNextRunHasItClosedIfItWas)
{
    OpenLayerControl();
    Dock().close();
    StartAgain();
    EXPECT_FALSE(DockedForm());
    OpenLayerControl();
    EXPECT_TRUE(DockedForm());
}

TEST_F(Docked, AnotherMapHasItInTheSameDock)
{
    OpenLayerControl();
    m_window->OpenMap(MapPath());
    OpenLayerControl();
    EXPECT_TRUE(DockedForm());
}

} // namespace

} // namespace Orvane::Testing
