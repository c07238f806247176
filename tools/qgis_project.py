#!/usr/bin/python3
# SPDX-License-Identifier: MIT
# usage: qgis_project.py FILE [LAYERS]
# Makes a QGIS project with a small town, and groups of a hundred layers with a square each.
import json
import os
import sys

os.environ.setdefault("QT_QPA_PLATFORM", "offscreen")
from qgis.core import (  # noqa: E402
    QgsApplication, QgsCategorizedSymbolRenderer, QgsCoordinateReferenceSystem, QgsFeature, QgsFillSymbol, QgsGeometry,
    QgsLineSymbol, QgsProject, QgsRectangle, QgsRendererCategory, QgsSingleSymbolRenderer,
    QgsVectorFileWriter, QgsVectorLayer)
from qgis.gui import QgsMapCanvas  # noqa: E402

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


def saved_square(folder, number):
    """A layer with a square, in rows of fifty below the town."""
    row, column = divmod(number, 50)
    west, south = column * 20, -40 - row * 20
    corners = [(west, south), (west + 16, south), (west + 16, south + 16), (west, south + 16), (west, south)]
    path = os.path.join(folder, "layer%d.geojson" % number)
    with open(path, "w", encoding="utf-8") as file:
        json.dump({"type": "FeatureCollection",
                   "crs": {"type": "name", "properties": {"name": "EPSG:3857"}},
                   "features": [{"type": "Feature", "properties": {},
                                 "geometry": {"type": "Polygon", "coordinates": [corners]}}]}, file)
    return QgsVectorLayer(path, "Layer %d" % number, "ogr")


def add_blocks(folder, count):
    many = QgsProject.instance().layerTreeRoot().addGroup("Many")
    for number in range(count):
        if number % 100 == 0:
            block = many.addGroup("Block %d" % (number // 100))
        add(block, saved_square(folder, number), fill("#80c0c0"))


def main():
    path = os.path.abspath(sys.argv[1])
    application = QgsApplication([], True)
    application.initQgis()
    QgsProject.instance().setCrs(QgsCoordinateReferenceSystem("EPSG:3857"))
    add_town(os.path.dirname(path))
    if sys.argv[2:]:
        add_blocks(os.path.dirname(path), int(sys.argv[2]))
    canvas = QgsMapCanvas()  # QGIS opens the project with the view of a canvas of that name
    canvas.setObjectName("theMapCanvas")
    canvas.setDestinationCrs(QgsProject.instance().crs())
    canvas.setExtent(QgsRectangle(-20, -20, 1000, 700))
    if not QgsProject.instance().write(path):
        sys.exit("The project could not be written: " + path)
    os._exit(0)  # many layers take long to be removed one by one


main()
