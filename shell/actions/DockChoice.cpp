// SPDX-License-Identifier: MIT
#include "shell/actions/DockChoice.h"

#include "hostkit/windows/EditorDock.h"
#include "shell/map/MapSession.h"

#include <QAction>
#include <QApplication>
#include <QMainWindow>
#include <QMenu>
#include <QSettings>
#include <QTimer>
#include <QToolBar>

namespace Orvane {

namespace {

constexpr auto DockedKey = "LayerControl/Docked";
constexpr auto DockedEditorID = "Main";
constexpr int MostOfWindow = 40; // per cent of its width that the dock takes by itself

} // namespace

DockChoice::DockChoice(QAction& command, QMainWindow& window)
    : m_command(command), m_window(window), m_dock(new EditorDock(QLatin1String(DockedEditorID), &window))
{
    window.addDockWidget(Qt::RightDockWidgetArea, m_dock);
    m_dock->setWindowTitle(tr("Layer Control")); // in the menus, until there is an editor
    m_dock->hide();
    m_command.setCheckable(true);
    m_command.setChecked(QSettings().value(QLatin1String(DockedKey), true).toBool());
    connect(&m_command, &QAction::toggled, this, &DockChoice::OnToggled);
    connect(m_dock, &EditorDock::EditorWanted, this, &DockChoice::EditorWanted);
    connect(m_dock, &QDockWidget::visibilityChanged, this, &DockChoice::OnVisible);
}

DockChoice::~DockChoice() = default;

void DockChoice::AddSwitchTo(QMenu& menu, QToolBar& bar, QAction& opener)
{
    m_bar = &bar;
    m_opener = &opener;
    QAction* shows = m_dock->toggleViewAction();
    shows->setIcon(opener.icon());
    shows->setStatusTip(opener.statusTip());
    menu.addAction(shows);
    bar.insertAction(&opener, shows);
    // The user may have kept it open when asked about edits.
    connect(
        shows, &QAction::triggered, this, [this, shows] { shows->setChecked(!m_dock->isHidden()); },
        Qt::QueuedConnection);
    ShowSwitch();
}

// Until a map is open there is nothing to show.
void DockChoice::NoteRestored()
{
    const bool isFirstRun = !QSettings().contains(QLatin1String(DockedKey));
    m_hasSize = !m_dock->isHidden();
    m_wasOpen = IsChosen() && (isFirstRun || !m_dock->isHidden());
    m_dock->hide();
}

bool DockChoice::IsChosen() const
{
    return m_command.isChecked();
}

bool DockChoice::HasFocus() const
{
    return m_dock->isVisible() && m_dock->isAncestorOf(QApplication::focusWidget());
}

void DockChoice::Store() const
{
    QSettings().setValue(QLatin1String(DockedKey), m_command.isChecked());
}

void DockChoice::Use(MapSession& session)
{
    m_session = &session;
    Apply();
}

void DockChoice::OnToggled()
{
    Store();
    Apply();
}

void DockChoice::Apply()
{
    ShowSwitch();
    if (m_session)
        m_session->Shell().SetDock(QLatin1String(DockedEditorID), IsChosen() ? m_dock : nullptr);
}

void DockChoice::ShowSwitch()
{
    const bool docked = IsChosen();
    m_dock->toggleViewAction()->setVisible(docked);
    if (!m_bar || !m_opener)
        return;
    if (docked)
        m_bar->removeAction(m_opener);
    else
        m_bar->addAction(m_opener);
}

void DockChoice::OnVisible(bool visible)
{
    if (visible)
        QTimer::singleShot(0, this, &DockChoice::GiveSize); // before that, the window takes none
    else if (!m_dock->isFloating())
        m_before = {m_dock->size(), m_window.dockWidgetArea(m_dock)};
}

// The window itself forgets the size if the dock is opened again at once.
void DockChoice::GiveSize()
{
    if (!m_dock->isVisible() || m_dock->isFloating())
        return;
    const Qt::DockWidgetArea area = m_window.dockWidgetArea(m_dock);
    if (m_before.area == area && (area == Qt::LeftDockWidgetArea || area == Qt::RightDockWidgetArea))
        m_window.resizeDocks({m_dock}, {m_before.size.width()}, Qt::Horizontal);
    else if (m_before.area == area)
        m_window.resizeDocks({m_dock}, {m_before.size.height()}, Qt::Vertical);
    else if (!m_hasSize)
        m_window.resizeDocks({m_dock}, {FirstWidth()}, Qt::Horizontal);
    m_hasSize = true;
}

int DockChoice::FirstWidth() const
{
    const int sideBySide = m_dock->sizeHint().width();
    const bool hasRoom = sideBySide <= m_window.width() * MostOfWindow / 100;
    return hasRoom ? sideBySide : m_dock->minimumSizeHint().width();
}

} // namespace Orvane
