// SPDX-License-Identifier: MIT
#include "shell/map/ShellClient.h"

#include "hostkit/common/HostNotifications.h"
#include "hostkit/windows/EditorDock.h"
#include "mapkit/looks/RendererStyles.h"
#include "shell/map/LayerStates.h"

#include <OrvaneShellLib/IStyleEditorForm.h>

#include <QScreen>

#include <algorithm>
#include <utility>

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
    if (EditorDock* dock = DockOf(editorID))
        dock->ShowEditor(form); // which may be hidden
    form->raise();
    form->activateWindow();
    if (!form->isWindow())
        form->setFocus();
}

void ShellClient::SetDock(const QString& editorID, EditorDock* dock)
{
    const QPointer<QWidget> form = m_editors.value(editorID);
    if (form && DockOf(editorID))
        TakeOutOfDock(*form);
    m_dock = dock;
    m_dockedID = editorID;
    if (form)
        IStyleEditorClient_ShowEditor(form);
}

EditorDock* ShellClient::DockOf(const QString& editorID) const
{
    return editorID == m_dockedID ? m_dock.data() : nullptr;
}

void ShellClient::TakeOutOfDock(QWidget& form)
{
    m_dock->EditorClosed(&form);
    form.setParent(nullptr, m_windowFlags);
}

void ShellClient::SetThemeNames(std::function<QString(const QString& editorID)> nameOf)
{
    m_themeNameOf = std::move(nameOf);
}

void ShellClient::SetLayerMaker(std::function<qint32(QWidget* owner)> make)
{
    m_makeLayer = std::move(make);
}

void ShellClient::SetMapScale(std::function<double()> scale)
{
    m_mapScale = std::move(scale);
}

void ShellClient::SetLayerSource(std::function<QString(qint32 layerID)> sourceOf)
{
    m_sourceOf = std::move(sourceOf);
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
    if (form->isWindow() && editorID == m_dockedID)
        m_windowFlags = form->windowFlags();
    if (EditorDock* dock = DockOf(editorID))
        dock->ShowEditor(form);
    else
        PlaceWindow(*form, editorID);
    m_editors.insert(editorID, form);
    StandardClient::IStyleEditorClient_ShowEditor(form);
}

void ShellClient::PlaceWindow(QWidget& form, const QString& editorID)
{
    FitToScreen(form, m_mainWindow);
    const auto place = m_places.constFind(editorID);
    if (place != m_places.constEnd())
        form.move(*place);
    else
        PlaceBeside(form, m_mainWindow, int(m_editors.size()));
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
    if (m_editors.remove(editorID) && form->isWindow())
        m_places.insert(editorID, form->pos());
    m_choices.erase(editorID);
    if (editorID == m_choiceOf)
        TakeChoiceOf(m_choices.empty() ? QString() : m_choices.begin()->first);
    if (EditorDock* dock = DockOf(editorID))
        dock->EditorClosed(form);
    StandardClient::IStyleEditorClient_EditorClosed(form);
}

QString ShellClient::IStyleEditorClient_ThemeName(QWidget* form) const
{
    return m_themeNameOf ? m_themeNameOf(EditorIDOf(form)) : QString();
}

double ShellClient::IMapScale_CurrentScale() const
{
    return m_mapScale ? m_mapScale() : 0;
}

QString ShellClient::ILayerSource_Source(qint32 layerID)
{
    return m_sourceOf ? m_sourceOf(layerID) : QString();
}

void ShellClient::AddLayerCommand(LayerCommand command)
{
    m_commands.push_back(std::move(command));
}

const LayerCommand* ShellClient::CommandOf(const QString& id) const
{
    const auto found = std::find_if(
        m_commands.begin(), m_commands.end(), [&](const LayerCommand& command) { return command.id == id; });
    return found == m_commands.end() ? nullptr : &*found;
}

void ShellClient::SetChoiceFollower(std::function<void()> follow)
{
    m_followChoice = std::move(follow);
}

void ShellClient::TakeChoiceOf(const QString& editorID)
{
    m_choiceOf = editorID;
    const auto found = m_choices.find(editorID);
    std::vector<qint32> layerIDs = found == m_choices.end() ? std::vector<qint32>() : found->second;
    if (std::exchange(m_chosen, std::move(layerIDs)) == m_chosen)
        return;
    if (m_followChoice)
        m_followChoice();
}

void ShellClient::IChoiceWatch_LayersChosen(QWidget* form, const std::vector<qint32>& layerIDs)
{
    const QString editorID = EditorIDOf(form);
    m_choices[editorID] = layerIDs;
    TakeChoiceOf(editorID);
}

std::vector<NodeCommand> ShellClient::INodeCommands_Commands(QWidget*)
{
    std::vector<NodeCommand> commands;
    commands.reserve(m_commands.size());
    for (const LayerCommand& command : m_commands)
        commands.push_back({command.id, command.text});
    return commands;
}

QString ShellClient::INodeCommands_WhyNot(const QString& id, const std::vector<qint32>& layerIDs)
{
    const LayerCommand* command = CommandOf(id);
    return command ? command->whyNot(layerIDs) : QString();
}

void ShellClient::INodeCommands_Run(QWidget*, const QString& id, const std::vector<qint32>& layerIDs)
{
    if (const LayerCommand* command = CommandOf(id))
        command->run(layerIDs);
}

} // namespace Orvane
