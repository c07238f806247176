// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/StandardClient.h"

#include <QPointer>
#include <QWidget>

namespace Orvane {

class LayerStates;

/// Orvane's application object for the component: the standard one, which keeps the editor's window beside
/// the map.
class ShellClient : public StandardClient
{
public:
    /// None is owned; all outlive this object. states: marks the names that are listed.
    ShellClient(
        SqliteLayerDatabase& database, IShellServices& services, const LayerStates& states,
        QWidget& mainWindow);

    /// Brings the editor's window to the front, if there is one.
    void RaiseEditor();

protected:
    /// Puts the window at the main window's right side, within the screen, and shows it.
    void IStyleEditorClient_ShowEditor(QWidget* form) override;
    /// The layer's name with the marker of its state.
    QString IStyleEditorClient_LayerDisplayName(qint32 layerID) override;

    /// Those of the map's painter.
    std::vector<RendererStyle> IStyleEditorClient_RendererStyles() const override;

private:
    const LayerStates& m_states;
    QWidget& m_mainWindow;
    QPointer<QWidget> m_editor;
};

} // namespace Orvane
