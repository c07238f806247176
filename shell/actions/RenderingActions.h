// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <vector>

class QMenu;
class QWidget;

namespace Orvane {

class MapSession;

/// The command "Layer Rendering...": which attributes label and colour a layer's features. It is also in the
/// menus of layers, and begins with the chosen layer.
class RenderingActions : public QObject
{
    Q_OBJECT
public:
    /// window: the parent of the dialog. menu: gets the command at its end. Both outlive this object.
    RenderingActions(QWidget& window, QMenu& menu);

    /// The command works on the layers of this map from now on; not owned.
    void Use(MapSession& session);

private:
    void Ask(const std::vector<qint32>& chosen);

    QWidget& m_window;
    MapSession* m_session = nullptr;
};

} // namespace Orvane
