// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <vector>

class QAction;
class QMenu;
class QWidget;

namespace Orvane {

class MapSession;
struct MapLayer;

/// The commands "Layer Rendering...": which attributes label and colour a layer's features, also in the menus
/// of layers, which begins with the chosen layer; and "Map Background...": the colour under all layers.
class RenderingActions : public QObject
{
    Q_OBJECT
public:
    /// window: the parent of the dialog. menu: gets the commands at its end. Both outlive this object.
    RenderingActions(QWidget& window, QMenu& menu);

    /// The commands work on the layers of this map from now on; not owned.
    void Use(MapSession& session);

private:
    QAction*
    Add(QMenu& menu, const char* name, const QString& text, const QString& tip,
        std::function<void()> command);
    // Without rasters.
    std::vector<MapLayer> LayersToRender() const;
    // Empty if there is something to choose for one of the layers.
    QString WhyNoRendering(const std::vector<qint32>& layerIDs) const;
    void AskForRenderings(const std::vector<qint32>& chosen);
    void AskForBackground();

    QWidget& m_window;
    MapSession* m_session = nullptr;
};

} // namespace Orvane
