// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/StandardClient.h"

#include <QHash>
#include <QPoint>
#include <QPointer>
#include <QWidget>

#include <functional>

namespace Orvane {

class LayerStates;

/// Orvane's application object for the component: the standard client, which also keeps the editors' windows
/// beside the map.
class ShellClient : public StandardClient
{
public:
    /// None is owned; all outlive this object. states: marks the names that are listed.
    ShellClient(
        ILayerStore& database, IShellServices& services, const LayerStates& states, QWidget& mainWindow);

    /// Brings the window of the editor to the front, if it is shown.
    void RaiseEditor(const QString& editorID);

    /// Sets the function that returns the name of the theme that the editor with an ID edits; empty for none.
    /// Call before the first editor is opened.
    void SetThemeNames(std::function<QString(const QString& editorID)> nameOf);

    /// Sets the function that makes new layers instead of the standard client; it returns the new layer's ID,
    /// 0 for none.
    void SetLayerMaker(std::function<qint32(QWidget* owner)> make);
    /// The ID of the editor that asked for a new layer, during the notification LayerCreated; empty for none.
    const QString& CreatingEditor() const { return m_creatingEditor; }

protected:
    /// Calls the layer maker, if there is one; 0 when the user cancels.
    qint32 IStyleEditorClient_CreateLayer() override;
    /// Shows the window where it was last, else at the main window's right side, within the screen.
    void IStyleEditorClient_ShowEditor(QWidget* form) override;
    /// The layer's name with the marker of its state.
    QString IStyleEditorClient_LayerDisplayName(qint32 layerID) override;
    /// The renderer styles of the map's painter.
    std::vector<RendererStyle> IStyleEditorClient_RendererStyles() const override;
    void IStyleEditorClient_EditorClosed(QWidget* form) override;
    QString IStyleEditorClient_ThemeName(QWidget* form) const override;

private:
    const LayerStates& m_states;
    QWidget& m_mainWindow;
    QHash<QString, QPointer<QWidget>> m_editors; // by ID
    QHash<QString, QPoint> m_places; // of closed editors' frames, by ID
    std::function<QString(const QString&)> m_themeNameOf;
    std::function<qint32(QWidget*)> m_makeLayer;
    QString m_creatingEditor;
};

} // namespace Orvane
