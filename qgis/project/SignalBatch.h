// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QVector>
#include <qgsmaplayer.h>

#include <functional>
#include <memory>

class QgsFeatureRenderer;
class QgsLayerTreeModel;
class QgsProject;
class QgsVectorLayer;

namespace Orvane {

/// Changes the looks of many layers, and tells QGIS once for each at the end. Without it every new renderer
/// makes QGIS's panel look for its layer among all others and measure all its rows.
///
///     SignalBatch batch(project, view->layerTreeModel());
///     for (...)
///         batch.SetRenderer(*layer, std::move(renderer));
///     batch.Finish();
class SignalBatch
{
public:
    /// Neither is owned; both outlive this object. panel: the model of QGIS's panel of layers, or nullptr.
    SignalBatch(QgsProject& project, QgsLayerTreeModel* panel) : m_project(project), m_panel(panel) { }
    /// Calls Finish.
    ~SignalBatch() { Finish(); }
    SignalBatch(const SignalBatch&) = delete;
    SignalBatch& operator=(const SignalBatch&) = delete;

    /// Gives the layer the renderer while it emits nothing.
    void SetRenderer(QgsVectorLayer& layer, std::unique_ptr<QgsFeatureRenderer> renderer);

    /// Makes a change of the layer's style while it emits nothing.
    void Restyle(QgsMapLayer& layer, const std::function<void()>& change);

    /// Repaints the layer at the end.
    void Add(QgsMapLayer& layer) { Note(m_repainted, layer); }

    /// Tells of the new styles, refreshes their entries in the panel and in the legends of layouts, repaints
    /// the layers, and marks the project as changed. Layers that are gone by then are left out. Raises
    /// nothing.
    void Finish();

private:
    using Layers = QVector<QPointer<QgsMapLayer>>; // whoever is told may remove a layer

    static void Note(Layers& layers, QgsMapLayer& layer);
    void RefreshLegends() const;

    QgsProject& m_project;
    QgsLayerTreeModel* m_panel;
    Layers m_restyled;
    Layers m_repainted; // those with new styles too
};

} // namespace Orvane
