// SPDX-License-Identifier: MIT
#include "shell/ShellClient.h"

#include "shell/LayerStates.h"
#include "shell/drawing/RendererStyles.h"

#include <QScreen>

namespace Orvane {

namespace {

constexpr int Gap = 8; // pixels

// A window that was never shown has no frame yet; its frame will be like the main window's.
void PlaceBeside(QWidget& form, const QWidget& mainWindow)
{
    const QRect screen = mainWindow.screen()->availableGeometry();
    const QRect frame = mainWindow.frameGeometry();
    const QSize size = form.size() + frame.size() - mainWindow.size();
    const int rightmost = screen.right() - size.width() - Gap;
    const int lowest = screen.bottom() - size.height();
    form.move(
        qMax(screen.left(), qMin(frame.right() + Gap, rightmost)),
        qMax(screen.top(), qMin(frame.top(), lowest)));
}

} // namespace

ShellClient::ShellClient(
    SqliteLayerDatabase& database, IShellServices& services, const LayerStates& states, QWidget& mainWindow)
    : StandardClient(database, services), m_states(states), m_mainWindow(mainWindow)
{
    SetMainWindow(&mainWindow);
}

void ShellClient::RaiseEditor()
{
    if (!m_editor)
        return;
    m_editor->raise();
    m_editor->activateWindow();
}

void ShellClient::IStyleEditorClient_ShowEditor(QWidget* form)
{
    m_editor = form;
    PlaceBeside(*form, m_mainWindow);
    StandardClient::IStyleEditorClient_ShowEditor(form);
}

QString ShellClient::IStyleEditorClient_LayerDisplayName(qint32 layerID)
{
    return m_states.Marked(layerID, StandardClient::IStyleEditorClient_LayerDisplayName(layerID));
}

std::vector<RendererStyle> ShellClient::IStyleEditorClient_RendererStyles() const
{
    return RendererStyles::Offered();
}

} // namespace Orvane
