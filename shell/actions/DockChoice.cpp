// SPDX-License-Identifier: MIT
#include "shell/actions/DockChoice.h"

#include "hostkit/windows/EditorDock.h"
#include "shell/map/MapSession.h"

#include <QAction>
#include <QMainWindow>
#include <QSettings>

namespace Orvane {

namespace {

constexpr auto DockedKey = "LayerControl/Docked";
constexpr auto DockedEditorID = "Main";

} // namespace

DockChoice::DockChoice(QAction& command, QMainWindow& window)
    : m_command(command), m_dock(new EditorDock(QLatin1String(DockedEditorID), &window))
{
    window.addDockWidget(Qt::RightDockWidgetArea, m_dock);
    m_dock->setWindowTitle(tr("Layer Control")); // in the menu of tool bars, until there is an editor
    m_dock->hide();
    m_command.setCheckable(true);
    m_command.setChecked(QSettings().value(QLatin1String(DockedKey), false).toBool());
    connect(&m_command, &QAction::toggled, this, &DockChoice::OnToggled);
    connect(m_dock, &EditorDock::EditorWanted, this, &DockChoice::EditorWanted);
}

DockChoice::~DockChoice() = default;

// Until a map is open there is nothing to show.
void DockChoice::NoteRestored()
{
    m_wasOpen = m_command.isChecked() && !m_dock->isHidden();
    m_dock->hide();
}

void DockChoice::Use(MapSession& session)
{
    m_session = &session;
    Apply();
}

void DockChoice::OnToggled(bool docked)
{
    QSettings().setValue(QLatin1String(DockedKey), docked);
    Apply();
}

void DockChoice::Apply()
{
    m_dock->toggleViewAction()->setVisible(m_command.isChecked());
    if (m_session)
        m_session->Shell().SetDock(QLatin1String(DockedEditorID), m_command.isChecked() ? m_dock : nullptr);
}

} // namespace Orvane
