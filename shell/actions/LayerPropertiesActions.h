// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <vector>

class QMenu;
class QWidget;

namespace Orvane {

class MapSession;
class SystemCatalogue;

/// The command "Layer Properties...": where a layer's data are, what they are, and their coordinate system.
/// It is also in the menus of layers, and begins with the chosen layer.
class LayerPropertiesActions : public QObject
{
    Q_OBJECT
public:
    /// window: the parent of the dialog. menu: gets the command at its end. catalogue: of the systems to
    /// choose from. All outlive this object.
    LayerPropertiesActions(QWidget& window, QMenu& menu, SystemCatalogue& catalogue);

    /// The command works on the layers of this map from now on; not owned.
    void Use(MapSession& session);

signals:
    /// The user has chosen other systems, which are stored; the map is to be read again.
    void SystemsChosen();

private:
    void Ask(const std::vector<qint32>& chosen);

    QWidget& m_window;
    SystemCatalogue& m_catalogue;
    MapSession* m_session = nullptr;
    qint32 m_last = 0; // the layer that was shown last
};

} // namespace Orvane
