// SPDX-License-Identifier: MIT
#include "qgis/project/ProjectWatcher.h"

#include <qgslayertree.h>
#include <qgsmaplayerstylemanager.h>
#include <qgsproject.h>
#include <qgsvectorlayer.h>

#include <utility>

namespace Orvane {

ProjectWatcher::ProjectWatcher(QgsProject& project) : m_project(project)
{
    m_soon.setSingleShot(true);
    m_soon.setInterval(0);
    connect(&m_soon, &QTimer::timeout, this, &ProjectWatcher::TellNow);
    ListenToProject();
    ListenToTree();
    for (QgsMapLayer* layer : project.mapLayers())
        ListenToLayer(*layer);
}

void ProjectWatcher::TellNow()
{
    m_soon.stop();
    const bool isReplaced = std::exchange(m_isReplaced, false);
    const bool isTree = std::exchange(m_isTree, false);
    const QSet<QString> layers = std::exchange(m_layers, {});
    if (isReplaced)
        emit ProjectReplaced();
    else if (isTree || !layers.isEmpty())
        emit Changed(layers, isTree);
}

void ProjectWatcher::ListenToProject()
{
    connect(&m_project, &QgsProject::readProject, this, [this] { NoteProject(); });
    connect(&m_project, &QgsProject::cleared, this, [this] { NoteProject(); });
    connect(&m_project, &QgsProject::snappingConfigChanged, this, [this] { NoteTree(); });
    connect(&m_project, &QgsProject::layersAdded, this, [this](const QList<QgsMapLayer*>& layers) {
        for (QgsMapLayer* layer : layers) {
            ListenToLayer(*layer);
            m_layers.insert(layer->id());
        }
        NoteLayers();
    });
    connect(
        &m_project, qOverload<const QStringList&>(&QgsProject::layersRemoved), this,
        [this](const QStringList& layerIDs) {
            for (const QString& layerID : layerIDs)
                m_layers.insert(layerID);
            NoteLayers();
        });
}

void ProjectWatcher::ListenToTree()
{
    const QgsLayerTree* tree = m_project.layerTreeRoot();
    const auto note = [this] { NoteTree(); };
    connect(tree, &QgsLayerTree::addedChildren, this, note);
    connect(tree, &QgsLayerTree::removedChildren, this, note);
    connect(tree, &QgsLayerTree::nameChanged, this, [this](QgsLayerTreeNode* node) {
        if (QgsLayerTree::isGroup(node)) // a layer tells it itself
            NoteTree();
    });
    connect(tree, &QgsLayerTree::visibilityChanged, this, [this](const QgsLayerTreeNode* node) {
        if (const auto* layer = qobject_cast<const QgsLayerTreeLayer*>(node))
            NoteLayer(layer->layerId());
    });
    connect(tree, &QgsLayerTree::layerOrderChanged, this, note);
    connect(tree, &QgsLayerTree::customLayerOrderChanged, this, note);
    connect(tree, &QgsLayerTree::hasCustomLayerOrderChanged, this, note);
}

void ProjectWatcher::ListenToLayer(QgsMapLayer& layer)
{
    const auto note = [this, id = layer.id()] { NoteLayer(id); };
    connect(&layer, &QgsMapLayer::nameChanged, this, note);
    connect(&layer, &QgsMapLayer::rendererChanged, this, note);
    connect(&layer, &QgsMapLayer::styleChanged, this, note);
    connect(&layer, &QgsMapLayer::opacityChanged, this, note);
    connect(&layer, &QgsMapLayer::flagsChanged, this, note);
    connect(&layer, &QgsMapLayer::isValidChanged, this, note);
    connect(&layer, &QgsMapLayer::customPropertyChanged, this, note);
    connect(&layer, &QgsMapLayer::repaintRequested, this, note); // the only one for scales
    if (const auto* vector = qobject_cast<QgsVectorLayer*>(&layer)) {
        connect(vector, &QgsVectorLayer::readOnlyChanged, this, note);
        connect(vector, &QgsVectorLayer::editingStarted, this, note);
        connect(vector, &QgsVectorLayer::editingStopped, this, note);
    }
    ListenToStyles(layer);
}

void ProjectWatcher::ListenToStyles(QgsMapLayer& layer)
{
    const auto note = [this, id = layer.id()] { NoteLayer(id); };
    const QgsMapLayerStyleManager* styles = layer.styleManager();
    connect(styles, &QgsMapLayerStyleManager::currentStyleChanged, this, note);
    connect(styles, &QgsMapLayerStyleManager::styleAdded, this, note);
    connect(styles, &QgsMapLayerStyleManager::styleRemoved, this, note);
    connect(styles, &QgsMapLayerStyleManager::styleRenamed, this, note);
    connect(styles, &QgsMapLayerStyleManager::styleRenamed, this, &ProjectWatcher::StyleRenamed);
    connect(styles, &QgsMapLayerStyleManager::styleAdded, this, &ProjectWatcher::StylesChanged);
    connect(styles, &QgsMapLayerStyleManager::styleRemoved, this, &ProjectWatcher::StylesChanged);
    connect(styles, &QgsMapLayerStyleManager::styleRenamed, this, &ProjectWatcher::StylesChanged);
}

void ProjectWatcher::NoteLayer(const QString& layerID)
{
    if (m_silences > 0)
        return;
    m_layers.insert(layerID);
    m_soon.start();
}

void ProjectWatcher::NoteTree()
{
    if (m_silences > 0)
        return;
    m_isTree = true;
    m_soon.start();
}

void ProjectWatcher::NoteLayers()
{
    m_isTree = true;
    m_soon.start();
}

void ProjectWatcher::NoteProject()
{
    m_isReplaced = true;
    m_soon.start();
}

} // namespace Orvane
