// SPDX-License-Identifier: MIT
#include "shell/map/ShellClient.h"

#include "hostkit/common/HostNotifications.h"
#include "mapkit/looks/RendererStyles.h"
#include "shell/map/LayerStates.h"

#include <OrvaneShellLib/IStyleEditorForm.h>

#include <QScreen>

namespace Orvane {

namespace {

constexpr int Gap = 8; // pixels
constexpr int Step = 28; // pixels between the windows of two editors

// The size that the window manager adds around a window, as far as it is known. A window that was never shown
// has no frame yet, so the callers pass the main window.
QSize FrameOf(const QWidget& window)
{
    return window.frameGeometry().size() - window.size();
}

// A large font makes the settings higher than a small screen; they scroll then.
void FitToScreen(QWidget& form, const QWidget& mainWindow)
{
    const QSize screen = mainWindow.screen()->availableSize();
    form.resize(form.size().boundedTo(screen - FrameOf(mainWindow)));
}

void PlaceBeside(QWidget& form, const QWidget& mainWindow, int number)
{
    const QRect screen = mainWindow.screen()->availableGeometry();
    const QRect frame = mainWindow.frameGeometry();
    const QSize size = form.size() + FrameOf(mainWindow);
    const int rightmost = screen.right() - size.width() - Gap;
    const int lowest = screen.bottom() - size.height();
    form.move(
        qMax(screen.left(), qMin(frame.right() + Gap, rightmost) - number * Step),
        qMax(screen.top(), qMin(frame.top() + number * Step, lowest)));
}

QString EditorIDOf(QWidget* form)
{
    const auto* editor = dynamic_cast<IStyleEditorForm*>(form);
    return editor ? editor->EditorID() : QString();
}

} // namespace

ShellClient::ShellClient(
    ILayerStore& database, IShellServices& services, const LayerStates& states, QWidget& mainWindow)
    : StandardClient(database, services), m_states(states), m_mainWindow(mainWindow)
{
    SetMainWindow(&mainWindow);
}

void ShellClient::RaiseEditor(const QString& editorID)
{
    const QPointer<QWidget> form = m_editors.value(editorID);
    if (!form)
        return;
    form->raise();
    form->activateWindow();
}

void ShellClient::SetThemeNames(std::function<QString(const QString& editorID)> nameOf)
{
    m_themeNameOf = std::move(nameOf);
}

void ShellClient::SetLayerMaker(std::function<qint32(QWidget* owner)> make)
{
    m_makeLayer = std::move(make);
}

qint32 ShellClient::IStyleEditorClient_CreateLayer()
{
    if (!m_makeLayer)
        return StandardClient::IStyleEditorClient_CreateLayer();
    QWidget* owner = DialogParent();
    const QString editorID = EditorIDOf(owner);
    const qint32 layerID = m_makeLayer(owner);
    if (layerID != 0) {
        InvalidateLayerNames();
        m_creatingEditor = editorID;
        emit Notifications().LayerCreated(layerID);
        m_creatingEditor.clear();
    }
    return layerID;
}

void ShellClient::IStyleEditorClient_ShowEditor(QWidget* form)
{
    const QString editorID = EditorIDOf(form);
    form->setAttribute(Qt::WA_ShowWithoutActivating); // RaiseEditor activates it if asked for
    FitToScreen(*form, m_mainWindow);
    const auto place = m_places.constFind(editorID);
    if (place != m_places.constEnd())
        form->move(*place);
    else
        PlaceBeside(*form, m_mainWindow, int(m_editors.size()));
    m_editors.insert(editorID, form);
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

void ShellClient::IStyleEditorClient_EditorClosed(QWidget* form)
{
    const QString editorID = EditorIDOf(form);
    if (m_editors.remove(editorID))
        m_places.insert(editorID, form->pos());
    StandardClient::IStyleEditorClient_EditorClosed(form);
}

QString ShellClient::IStyleEditorClient_ThemeName(QWidget* form) const
{
    return m_themeNameOf ? m_themeNameOf(EditorIDOf(form)) : QString();
}

} // namespace Orvane
