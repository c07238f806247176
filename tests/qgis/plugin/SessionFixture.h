// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/undo/UndoHistory.h"
#include "qgis/LayerColours.h"
#include "qgis/plugin/ProjectSession.h"
#include "qgis/project/StoredRows.h"
#include "store/ILayerStore.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <QSignalSpy>
#include <QTemporaryDir>
#include <qgscategorizedsymbolrenderer.h>
#include <qgsfillsymbol.h>
#include <qgslayertree.h>
#include <qgsmaplayerstylemanager.h>
#include <qgsproject.h>
#include <qgssinglesymbolrenderer.h>
#include <qgsvectorlayer.h>

#include <gmock/gmock.h>
#include <string_view>
#include <utility>
#include <vector>

namespace Orvane::Testing {

/// A project with a session; its first layer is "Roads", red.
class SessionFixture : public testing::Test, protected LayerColours
{
protected:
    SessionFixture() : roads(AddLayer("Roads")), session(project) { session.ReadSchemes(); }

    QgsVectorLayer* AddLayer(const QString& name, const QString& kind = QStringLiteral("Polygon"))
    {
        auto* layer = new QgsVectorLayer(kind + "?crs=EPSG:4326", name, QStringLiteral("memory"));
        if (layer->isSpatial())
            Paint(*layer, Qt::red);
        project.addMapLayer(layer);
        return layer;
    }

    /// A style in which the layer has that colour; the current style stays.
    static void AddStyle(QgsVectorLayer& layer, const QString& name, const QColor& colour)
    {
        QgsMapLayerStyleManager& styles = *layer.styleManager();
        const QString current = styles.currentStyle();
        styles.addStyleFromLayer(name);
        styles.setCurrentStyle(name);
        Paint(layer, colour);
        styles.setCurrentStyle(current);
    }

    static void Classify(QgsVectorLayer& layer, const QStringList& colours)
    {
        QgsCategoryList classes;
        for (const QString& colour : colours) {
            auto* symbol = QgsFillSymbol::createSimple({{"color", colour}});
            classes << QgsRendererCategory(classes.size(), symbol, colour);
        }
        layer.setRenderer(new QgsCategorizedSymbolRenderer("kind", classes));
    }

    static QStringList ClassColours(const QgsVectorLayer& layer)
    {
        QStringList colours;
        if (const auto* renderer = dynamic_cast<const QgsCategorizedSymbolRenderer*>(layer.renderer())) {
            for (const QgsRendererCategory& one : renderer->categories())
                colours << one.symbol()->color().name();
        }
        return colours;
    }

    static void Settle() { QCoreApplication::processEvents(); }

    qint32 IDOf(QgsMapLayer* layer) { return session.Mirror().IDOf(*layer); }

    Value Stored(QgsMapLayer* layer, std::string_view column)
    {
        const auto row = StoredRows::Read(session.Store(), IDOf(layer));
        return row ? ValueOf(*row, column) : Value();
    }

    /// As the component applies an edit of these layers.
    void Apply(const QList<QgsMapLayer*>& layers, std::string_view column, const Value& value)
    {
        const auto rows = Host().LayersTable();
        rows->Index("LayerIDIDX");
        for (QgsMapLayer* layer : layers) {
            rows->Seek("=", IDOf(layer));
            Host().BeginLayerEdit(*rows);
            rows->SetField(column, value);
            Host().LayerChanged(IDOf(layer));
            rows->Update();
        }
        Host().RedrawMap();
    }

    /// As the component applies several edits of a layer.
    void Apply(QgsMapLayer& layer, const std::vector<std::pair<std::string_view, qint32>>& values)
    {
        const auto rows = Host().LayersTable();
        rows->Index("LayerIDIDX");
        rows->Seek("=", IDOf(&layer));
        Host().BeginLayerEdit(*rows);
        for (const auto& [column, value] : values)
            rows->SetField(column, value);
        Host().LayerChanged(IDOf(&layer));
        rows->Update();
        Host().RedrawMap();
    }

    IStyleEditorClient& Host() { return session.Client(); }
    UndoHistory& History() { return session.Client().History(); }

    QgsProject project;
    QgsVectorLayer* roads;
    ProjectSession session;
    QSignalSpy failed{&session, &ProjectSession::Failed};
};

} // namespace Orvane::Testing
