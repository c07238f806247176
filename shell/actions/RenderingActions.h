// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QAction;
class QMenu;
class QString;
class QWidget;

namespace Orvane {

class MapSession;

/// The commands "Layer Rendering...": which attributes label and colour a layer's features; and "Map
/// Background...": the colour under all layers.
class RenderingActions : public QObject
{
    Q_OBJECT
public:
    /// window: the parent of the dialog. menu: gets the commands at its end. Both outlive this object.
    RenderingActions(QWidget& window, QMenu& menu);

    /// The commands work on the layers of this map from now on; not owned.
    void Use(MapSession& session) { m_session = &session; }

private:
    QAction*
    Add(QMenu& menu, const char* name, const QString& text, const QString& tip,
        void (RenderingActions::*command)());
    void AskForRenderings();
    void AskForBackground();

    QWidget& m_window;
    MapSession* m_session = nullptr;
};

} // namespace Orvane
