// SPDX-License-Identifier: MIT
#include "qgis/session/SampleLayers.h"

#include <QFile>
#include <QImage>
#include <qgsannotationlayer.h>
#include <qgscategorizedsymbolrenderer.h>
#include <qgsfillsymbol.h>
#include <qgslayertree.h>
#include <qgslinesymbol.h>
#include <qgslinesymbollayer.h>
#include <qgsmarkersymbol.h>
#include <qgsmarkersymbollayer.h>
#include <qgsmeshlayer.h>
#include <qgspallabeling.h>
#include <qgsproject.h>
#include <qgsproperty.h>
#include <qgsrasterlayer.h>
#include <qgsrulebasedrenderer.h>
#include <qgssinglesymbolrenderer.h>
#include <qgssymbollayer.h>
#include <qgsvectorlayer.h>
#include <qgsvectorlayerjoininfo.h>
#include <qgsvectorlayerlabeling.h>

namespace Orvane::Testing {

namespace {

const QStringList Colours{"#ff0000", "#00ff00", "#0000ff"};

QgsSymbol* SymbolFor(const QgsVectorLayer& layer, const QColor& colour)
{
    switch (layer.geometryType()) {
    case QgsWkbTypes::PolygonGeometry:
        return QgsFillSymbol::createSimple({{"color", colour.name()}, {"outline_color", "#000000"}});
    case QgsWkbTypes::LineGeometry:
        return QgsLineSymbol::createSimple({{"color", colour.name()}});
    default:
        return QgsMarkerSymbol::createSimple({{"color", colour.name()}, {"outline_color", "#000000"}});
    }
}

void MakeRules(QgsVectorLayer& layer)
{
    auto* root = new QgsRuleBasedRenderer::Rule(nullptr);
    for (int rule = 0; rule < Colours.size(); ++rule)
        root->appendChild(new QgsRuleBasedRenderer::Rule(
            SymbolFor(layer, Colours.at(rule)), 0, 0, QStringLiteral("people > %1").arg(rule)));
    layer.setRenderer(new QgsRuleBasedRenderer(root));
}

void AddLabels(QgsVectorLayer& layer)
{
    QgsPalLayerSettings labels;
    labels.fieldName = QStringLiteral("people");
    layer.setLabeling(new QgsVectorLayerSimpleLabeling(labels));
    layer.setLabelsEnabled(true);
}

void LetDataDefine(QgsVectorLayer& layer, QgsSymbolLayer::Property property, const QString& expression)
{
    auto& renderer = dynamic_cast<QgsSingleSymbolRenderer&>(*layer.renderer());
    renderer.symbol()->symbolLayer(0)->setDataDefinedProperty(
        property, QgsProperty::fromExpression(expression));
}

void Join(QgsVectorLayer& layer, QgsVectorLayer& table)
{
    QgsVectorLayerJoinInfo join;
    join.setJoinLayer(&table);
    join.setJoinFieldName(QStringLiteral("people"));
    join.setTargetFieldName(QStringLiteral("people"));
    layer.addJoin(join);
}

void MakeCasing(QgsVectorLayer& layer)
{
    auto* symbol = new QgsLineSymbol(
        {new QgsSimpleLineSymbolLayer(Qt::black, 2), new QgsSimpleLineSymbolLayer(Qt::yellow, 1)});
    layer.setRenderer(new QgsSingleSymbolRenderer(symbol));
}

QgsMapLayer* NewPicture(const QTemporaryDir& folder, const QString& name)
{
    QImage picture(4, 4, QImage::Format_RGB32);
    picture.fill(Qt::darkGreen);
    const QString path = folder.filePath(name + ".png");
    picture.save(path);
    QFile place(folder.filePath(name + ".pgw"));
    if (place.open(QIODevice::WriteOnly))
        place.write("10\n0\n0\n-10\n5\n35\n");
    return new QgsRasterLayer(path, name, QStringLiteral("gdal"));
}

QgsMapLayer* NewMesh()
{
    return new QgsMeshLayer(
        QStringLiteral("0, 0 \n 10, 0 \n 0, 10 \n---0, 1, 2\n"), QStringLiteral("Mesh"),
        QStringLiteral("mesh_memory"));
}

QgsMapLayer* NewAnnotations(const QgsProject& project)
{
    return new QgsAnnotationLayer(
        QStringLiteral("Notes"), QgsAnnotationLayer::LayerOptions(project.transformContext()));
}

QgsMapLayer* NewLostLayer(const QTemporaryDir& folder, const QString& name)
{
    return new QgsVectorLayer(folder.filePath(name + ".shp"), name, QStringLiteral("ogr"));
}

/// Adds layers to a group.
class Filling
{
public:
    Filling(QgsProject& project, QgsLayerTreeGroup& group) : m_project(project), m_group(group) { }

    template <typename Layer> Layer& Add(Layer* layer)
    {
        m_project.addMapLayer(layer, false);
        m_group.addLayer(layer);
        return *layer;
    }
    QgsVectorLayer& Add(const char* kind, const char* name) { return *Added(NewSampleLayer(kind, name)); }

private:
    QgsVectorLayer* Added(QgsVectorLayer* layer) { return &Add(layer); }

    QgsProject& m_project;
    QgsLayerTreeGroup& m_group;
};

void AddAreas(Filling areas)
{
    for (const char* name : {"Parcels", "Lakes", "Woods", "Parks"})
        areas.Add("Polygon", name);
    ClassifySample(areas.Add("Polygon", "Soil"));
    ClassifySample(areas.Add("Polygon", "Use"));
    MakeRules(areas.Add("Polygon", "Density"));
    AddLabels(areas.Add("Polygon", "Districts"));
    LetDataDefine(
        areas.Add("Polygon", "Blocks"), QgsSymbolLayer::PropertyStrokeWidth, QStringLiteral("people / 10"));
}

void AddLines(Filling lines)
{
    for (const char* name : {"Roads", "Paths", "Rivers"})
        lines.Add("LineString", name);
    MakeCasing(lines.Add("LineString", "Motorways"));
    ClassifySample(lines.Add("LineString", "Pipes"));
    LetDataDefine(
        lines.Add("LineString", "Flows"), QgsSymbolLayer::PropertyStrokeColor, QStringLiteral("'red'"));
}

void AddPoints(Filling points)
{
    for (const char* name : {"Wells", "Trees", "Stops"})
        points.Add("Point", name);
    ClassifySample(points.Add("Point", "Shops"));
    MakeRules(points.Add("Point", "Towers"));
    auto* picture = new QgsMarkerSymbol({new QgsSvgMarkerSymbolLayer(QString())});
    points.Add("Point", "Signs").setRenderer(new QgsSingleSymbolRenderer(picture));
}

} // namespace

QgsVectorLayer* NewSampleLayer(const QString& kind, const QString& name)
{
    auto* layer
        = new QgsVectorLayer(kind + "?crs=EPSG:3857&field=people:integer", name, QStringLiteral("memory"));
    if (layer->isSpatial())
        PaintSample(*layer, Qt::gray);
    return layer;
}

void ClassifySample(QgsVectorLayer& layer)
{
    QgsCategoryList classes;
    for (const QString& colour : Colours)
        classes << QgsRendererCategory(classes.size(), SymbolFor(layer, colour), colour);
    layer.setRenderer(new QgsCategorizedSymbolRenderer(QStringLiteral("people"), classes));
}

void PaintSample(QgsVectorLayer& layer, const QColor& colour)
{
    layer.setRenderer(new QgsSingleSymbolRenderer(SymbolFor(layer, colour)));
}

void AddSampleLayers(QgsProject& project, const QTemporaryDir& folder)
{
    QgsLayerTree& root = *project.layerTreeRoot();
    QgsLayerTreeGroup& town = *root.addGroup(QStringLiteral("Town"));
    AddPoints({project, town});
    AddLines({project, *town.addGroup(QStringLiteral("Lines"))});
    AddAreas({project, *root.addGroup(QStringLiteral("Land"))});
    Filling rest(project, root);
    QgsVectorLayer& table = rest.Add("None", "People");
    Join(*qobject_cast<QgsVectorLayer*>(project.mapLayersByName(QStringLiteral("Parks")).first()), table);
    for (const char* name : {"Air", "Relief"})
        rest.Add(NewPicture(folder, name));
    rest.Add(NewMesh());
    rest.Add(NewAnnotations(project));
    for (const char* name : {"Lost", "Gone"})
        rest.Add(NewLostLayer(folder, name));
}

} // namespace Orvane::Testing
