// SPDX-License-Identifier: MIT
#pragma once

#include "qgis/LayerColours.h"
#include "qgis/project/ProjectMirror.h"
#include "qgis/project/StoredRows.h"
#include "store/ILayerStore.h"
#include "store/opening/LayerStores.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <QTemporaryDir>
#include <qgsfillsymbol.h>
#include <qgslayertree.h>
#include <qgsproject.h>
#include <qgssinglesymbolrenderer.h>
#include <qgsvectorlayer.h>

#include <gmock/gmock.h>
#include <memory>

namespace Orvane::Testing {

/// A project with layers in memory, and a store that is to be alike.
class ProjectFixture : public testing::Test, protected LayerColours
{
protected:
    QgsVectorLayer* AddLayer(const QString& name, const QString& kind = QStringLiteral("Polygon"))
    {
        auto* layer = new QgsVectorLayer(kind + "?crs=EPSG:4326", name, QStringLiteral("memory"));
        project.addMapLayer(layer);
        return layer;
    }

    /// Layers by name, in this order of the tree: QGIS adds each at the top.
    QList<QgsVectorLayer*> AddLayers(const QStringList& names)
    {
        QList<QgsVectorLayer*> layers;
        for (auto name = names.rbegin(); name != names.rend(); ++name)
            layers.prepend(AddLayer(*name));
        return layers;
    }

    QStringList OrderOfDrawing() const
    {
        QStringList names;
        for (const QgsMapLayer* layer : project.layerTreeRoot()->layerOrder())
            names << layer->name();
        return names;
    }

    Value Stored(QgsMapLayer& layer, std::string_view column)
    {
        const auto row = StoredRows::Read(*store, mirror.IDOf(layer));
        return row ? ValueOf(*row, column) : Value();
    }

    /// As an editor stores it.
    void StoreValue(QgsMapLayer& layer, const QString& column, const Value& value)
    {
        store->Execute(
            QStringLiteral("UPDATE Layers SET %1 = ?2 WHERE LayerID = ?1").arg(column),
            {mirror.IDOf(layer), value});
    }

    QgsProject project;
    std::unique_ptr<ILayerStore> store = LayerStores::CreateInMemory();
    ProjectMirror mirror{project, *store};
};

} // namespace Orvane::Testing
