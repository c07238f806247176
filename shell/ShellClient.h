// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/StandardClient.h"

#include <QPointer>
#include <QWidget>

namespace Orvane {

/// Orvane's application object for the component: the standard one, which keeps the editor's window beside
/// the map.
class ShellClient : public StandardClient
{
public:
    /// None is owned; all outlive this object.
    ShellClient(SqliteLayerDatabase& database, IShellServices& services, QWidget& mainWindow);

    /// Brings the editor's window to the front, if there is one.
    void RaiseEditor();

protected:
    /// Puts the window at the main window's right side, within the screen, and shows it.
    void IStyleEditorClient_ShowEditor(QWidget* form) override;

private:
    QWidget& m_mainWindow;
    QPointer<QWidget> m_editor;
};

} // namespace Orvane
