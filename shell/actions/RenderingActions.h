// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <functional>

class QMenu;
class QWidget;

namespace Orvane {

class MapSession;

/// The command "Layer Rendering...": which attributes label and colour a layer's features.
class RenderingActions : public QObject
{
    Q_OBJECT
public:
    /// window: the parent of the dialog. menu: gets the command at its end. session: the map that is open.
    /// All outlive this object.
    RenderingActions(QWidget& window, QMenu& menu, std::function<MapSession&()> session);

private:
    void Ask();

    QWidget& m_window;
    const std::function<MapSession&()> m_session;
};

} // namespace Orvane
