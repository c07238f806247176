// SPDX-License-Identifier: MIT
#include "hostkit/windows/EditorDock.h"

#include "hosts/ValueMatchers.h"

#include <QAction>
#include <QLineEdit>
#include <QMainWindow>
#include <QSignalSpy>
#include <QtTest>

namespace Orvane::Testing {
namespace {

const QString DockedEditor = QStringLiteral("Main");

/// A main window with an empty dock, and a form.
class Dock : public testing::Test
{
protected:
    Dock()
    {
        m_form->setWindowTitle(QStringLiteral("Layer Control"));
        m_window.setCentralWidget(new QLineEdit);
        m_window.addDockWidget(Qt::RightDockWidgetArea, m_dock);
        m_window.show();
    }

    ~Dock() override { delete m_form; }

    QMainWindow m_window;
    EditorDock* m_dock = new EditorDock(DockedEditor, &m_window);
    QPointer<QWidget> m_form = new QWidget;
};

TEST_F(Dock, IsHiddenUntilItHasAnEditor)
{
    EXPECT_FALSE(m_dock->isVisible());
    m_dock->ShowEditor(m_form);
    EXPECT_TRUE(m_dock->isVisible());
    EXPECT_TRUE(m_form->isVisible());
    EXPECT_EQ(m_form->window(), &m_window);
}

TEST_F(Dock, HasTheTitleOfTheForm)
{
    m_dock->ShowEditor(m_form);
    EXPECT_EQ(m_dock->windowTitle(), QStringLiteral("Layer Control"));
    m_form->setWindowTitle(QStringLiteral("Theme Control: Night"));
    EXPECT_EQ(m_dock->windowTitle(), QStringLiteral("Theme Control: Night"));
}

TEST_F(Dock, LetsTheFormGoWhenTheEditorIsClosed)
{
    m_dock->ShowEditor(m_form);
    m_dock->EditorClosed(&m_window);
    EXPECT_EQ(m_dock->widget(), m_form) << "it is another form";
    m_dock->EditorClosed(m_form);
    m_dock->EditorClosed(m_form);
    EXPECT_FALSE(m_dock->isVisible());
    EXPECT_EQ(m_dock->widget(), nullptr);
    EXPECT_TRUE(m_form) << "it belongs to the component";
}

TEST_F(Dock, TakesTheNextForm)
{
    QSignalSpy wanted(m_dock, &EditorDock::EditorWanted);
    m_dock->ShowEditor(m_form);
    delete m_form;
    auto* next = new QWidget;
    m_dock->ShowEditor(next);
    EXPECT_EQ(m_dock->widget(), next);
    EXPECT_TRUE(next->isVisible());
    QCoreApplication::processEvents();
    EXPECT_EQ(wanted.count(), 0);
}

TEST_F(Dock, AsksForAnEditorWhenTheUserOpensIt)
{
    QSignalSpy wanted(m_dock, &EditorDock::EditorWanted);
    m_dock->toggleViewAction()->trigger();
    ASSERT_TRUE(wanted.count() == 1 || wanted.wait());
    EXPECT_EQ(wanted[0][0].toString(), DockedEditor);
}

TEST_F(Dock, IsFoundAgainWhereItWasLeft)
{
    m_dock->ShowEditor(m_form);
    m_window.addDockWidget(Qt::LeftDockWidgetArea, m_dock);
    const QByteArray state = m_window.saveState();
    QMainWindow later;
    auto* dock = new EditorDock(DockedEditor, &later);
    later.addDockWidget(Qt::RightDockWidgetArea, dock);
    QSignalSpy wanted(dock, &EditorDock::EditorWanted);
    ASSERT_TRUE(later.restoreState(state));
    later.show();
    EXPECT_EQ(later.dockWidgetArea(dock), Qt::LeftDockWidgetArea);
    EXPECT_TRUE(wanted.count() == 1 || wanted.wait()) << "it was open";
}

TEST_F(Dock, GivesTheFormTheFocusUnlessItDoesNotWantIt)
{
    m_form->setFocusPolicy(Qt::StrongFocus);
    m_window.centralWidget()->setFocus();
    m_form->setAttribute(Qt::WA_ShowWithoutActivating);
    m_dock->ShowEditor(m_form);
    EXPECT_EQ(m_window.focusWidget(), m_window.centralWidget());
    m_form->setAttribute(Qt::WA_ShowWithoutActivating, false);
    m_dock->ShowEditor(m_form);
    EXPECT_EQ(m_window.focusWidget(), m_form);
}

} // namespace
} // namespace Orvane::Testing
