#!/usr/bin/python3
# SPDX-License-Identifier: MIT
# Makes a QGIS project with a small town: qgis_project.py FILE [LAYERS]
import os
import sys

os.environ.setdefault("QT_QPA_PLATFORM", "offscreen")
from qgis.core import (  # noqa: E402
    QgsApplication, QgsCategorizedSymbolRenderer, QgsFeature, QgsFillSymbol, QgsGeometry, QgsLayerTreeLayer,
    QgsLineSymbol, QgsProject, QgsRendererCategory, QgsSingleSymbolRenderer, QgsVectorFileWriter, QgsVectorLayer)

SQUARE = "POLYGON(({0} {1}, {2} {1}, {2} {3}, {0} {3}, {0} {1}))"


def saved_layer(folder, name, kind, texts):
    """A layer with these geometries, in a file of its own."""
    layer = QgsVectorLayer(kind + "?crs=EPSG:3857&field=kind:integer", name, "memory")
    features = []
    for number, text in enumerate(texts):
        feature = QgsFeature(layer.fields())
        feature.setAttributes([number % 3])
        feature.setGeometry(QgsGeometry.fromWkt(text))
        features.append(feature)
    layer.dataProvider().addFeatures(features)
    path = os.path.join(folder, name + ".gpkg")
    options = QgsVectorFileWriter.SaveVectorOptions()
    QgsVectorFileWriter.writeAsVectorFormatV3(layer, path, QgsProject.instance().transformContext(), options)
    return QgsVectorLayer(path, name, "ogr")


def squares(row, count):
    return [SQUARE.format(at * 120, row * 120, at * 120 + 100, row * 120 + 100) for at in range(count)]


def fill(colour):
    return QgsSingleSymbolRenderer(QgsFillSymbol.createSimple({"color": colour, "outline_color": "#404040"}))


def classified():
    categories = [
        QgsRendererCategory(value, QgsFillSymbol.createSimple({"color": colour}), "Class %d" % value)
        for value, colour in enumerate(["#fdd49e", "#fc8d59", "#b30000"])]
    return QgsCategorizedSymbolRenderer("kind", categories)


def add(group, layer, renderer=None):
    if renderer:
        layer.setRenderer(renderer)
    QgsProject.instance().addMapLayer(layer, False)
    group.addLayer(layer)


def add_town(folder):
    root = QgsProject.instance().layerTreeRoot()
    town = root.addGroup("Town")
    streets = QgsLineSymbol.createSimple({"line_color": "#d00000", "line_width": "0.6"})
    lines = ["LINESTRING(0 %d, 960 %d)" % (110 + 120 * at, 110 + 120 * at) for at in range(6)]
    add(town, saved_layer(folder, "Streets", "LineString", lines), QgsSingleSymbolRenderer(streets))
    buildings = town.addGroup("Buildings")
    add(buildings, saved_layer(folder, "Houses", "Polygon", squares(0, 8)), fill("#c8a070"))
    add(buildings, saved_layer(folder, "Schools", "Polygon", squares(1, 8)), fill("#e0c040"))
    nature = root.addGroup("Nature")
    add(nature, saved_layer(folder, "Lakes", "Polygon", squares(2, 8)), fill("#4080e0"))
    add(nature, saved_layer(folder, "Woods", "Polygon", squares(3, 8)), fill("#50a050"))
    add(nature, saved_layer(folder, "Soil", "Polygon", squares(4, 8)), classified())


def add_many(folder, count):
    group = QgsProject.instance().layerTreeRoot().addGroup("Many")
    layers = [QgsVectorLayer("Polygon?crs=EPSG:3857", "Layer %d" % number, "memory") for number in range(count)]
    for layer in layers:
        layer.setRenderer(fill("#80c0c0"))
    QgsProject.instance().addMapLayers(layers, False)
    group.insertChildNodes(-1, [QgsLayerTreeLayer(layer) for layer in layers])  # each alone would look through all


def main():
    path = os.path.abspath(sys.argv[1])
    application = QgsApplication([], False)
    application.initQgis()
    add_town(os.path.dirname(path))
    add_many(os.path.dirname(path), int(sys.argv[2]) if len(sys.argv) > 2 else 0)
    if not QgsProject.instance().write(path):
        sys.exit("The project could not be written: " + path)
    os._exit(0)  # ten thousand layers take minutes to be removed one by one


main()
