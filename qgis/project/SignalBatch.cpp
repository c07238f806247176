// SPDX-License-Identifier: MIT
#include "qgis/project/SignalBatch.h"

#include <QSignalBlocker>
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
    const QSignalBlocker silence(&layer);
    change();
    m_restyled.insert(&layer);
    m_repainted.insert(&layer);
}

void SignalBatch::Finish()
{
    if (m_repainted.isEmpty())
        return;
    for (QgsMapLayer* layer : std::as_const(m_restyled))
        layer->emitStyleChanged();
    RefreshLegends();
    for (QgsMapLayer* layer : std::as_const(m_repainted))
        layer->triggerRepaint();
    m_restyled.clear();
    m_repainted.clear();
    m_project.setDirty(true);
}

void SignalBatch::RefreshLegends() const
{
    if (m_restyled.isEmpty())
        return;
    if (m_panel)
        RefreshEntries(*m_panel, m_restyled);
    RefreshLayoutLegends(m_project, m_restyled);
}

} // namespace Orvane
