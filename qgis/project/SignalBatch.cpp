// SPDX-License-Identifier: MIT
#include "qgis/project/SignalBatch.h"

#include "qgis/layers/LayerSilence.h"

#include <QSet>
#include <qgslayertree.h>
#include <qgslayertreemodel.h>
#include <qgslayoutitemlegend.h>
#include <qgslayoutmanager.h>
#include <qgsprintlayout.h>
#include <qgsproject.h>
#include <qgsrenderer.h>
#include <qgsvectorlayer.h>

#include <utility>

namespace Orvane {

namespace {

void RefreshEntries(QgsLayerTreeModel& model, const QSet<QgsMapLayer*>& layers)
{
    for (QgsLayerTreeLayer* node : model.rootGroup()->findLayers()) {
        if (layers.contains(node->layer()))
            model.refreshLayerLegend(node);
    }
}

void RefreshLayoutLegends(const QgsProject& project, const QSet<QgsMapLayer*>& layers)
{
    for (const QgsPrintLayout* layout : project.layoutManager()->printLayouts()) {
        QList<QgsLayoutItemLegend*> legends;
        layout->layoutItems(legends);
        for (QgsLayoutItemLegend* legend : std::as_const(legends)) {
            RefreshEntries(*legend->model(), layers);
            legend->refresh();
        }
    }
}

} // namespace

void SignalBatch::SetRenderer(QgsVectorLayer& layer, std::unique_ptr<QgsFeatureRenderer> renderer)
{
    Restyle(layer, [&] { layer.setRenderer(renderer.release()); });
}

void SignalBatch::Restyle(QgsMapLayer& layer, const std::function<void()>& change)
{
    const LayerSilence silence(&layer);
    change();
    Note(m_restyled, layer);
    Note(m_repainted, layer);
}

// A layer is changed once in a batch, and often added right after its renderer.
void SignalBatch::Note(Layers& layers, QgsMapLayer& layer)
{
    if (layers.isEmpty() || layers.constLast() != &layer)
        layers.append(&layer);
}

void SignalBatch::Finish()
{
    if (m_repainted.isEmpty())
        return;
    for (const QPointer<QgsMapLayer>& layer : std::as_const(m_restyled)) {
        if (layer)
            layer->emitStyleChanged();
    }
    RefreshLegends();
    for (const QPointer<QgsMapLayer>& layer : std::as_const(m_repainted)) {
        if (layer)
            layer->triggerRepaint();
    }
    m_restyled.clear();
    m_repainted.clear();
    m_project.setDirty(true);
}

void SignalBatch::RefreshLegends() const
{
    if (m_restyled.isEmpty())
        return;
    QSet<QgsMapLayer*> layers;
    for (const QPointer<QgsMapLayer>& layer : m_restyled)
        layers.insert(layer.data());
    if (m_panel)
        RefreshEntries(*m_panel, layers);
    RefreshLayoutLegends(m_project, layers);
}

} // namespace Orvane
