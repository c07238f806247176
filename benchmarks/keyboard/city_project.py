#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""usage: city_project.py CITY PROJECT

Makes a QGIS project of the city's data: a group for each file, as Orvane does, and the groups folded. The pipes are thick
black lines above the plots. The map theme "Standard" is how it looks.
"""
import os
import sys

from qgis.core import (
    QgsApplication, QgsCoordinateReferenceSystem, QgsLineSymbol, QgsMapThemeCollection, QgsProject, QgsProviderRegistry,
    QgsSingleSymbolRenderer, QgsVectorLayer)

DISTRICTS, LAYERS, PIPES = 100, 50, 37


def names(district):
    plots = LAYERS - (district <= PIPES)
    return ["Water pipe %d" % district] * (district <= PIPES) + ["Plot %d-%d" % (district, plot + 1) for plot in range(plots)]


def main():
    city, path = sys.argv[1:3]
    application = QgsApplication([], False)
    application.initQgis()
    project = QgsProject.instance()
    project.setCrs(QgsCoordinateReferenceSystem("EPSG:32632"))
    for district in range(1, DISTRICTS + 1):
        group = project.layerTreeRoot().addGroup("District %d" % district)
        group.setExpanded(False)
        for name in names(district):
            file = os.path.join(city, "District %d.gpkg" % district)
            layer = QgsVectorLayer("%s|layername=%s" % (file, name), name, "ogr")
            if name.startswith("Water"):
                layer.setRenderer(QgsSingleSymbolRenderer(QgsLineSymbol.createSimple({"line_color": "black", "line_width": "0.8"})))
            project.addMapLayer(layer, False)
            group.addLayer(layer).setExpanded(False)
    if not project.write(path):
        sys.exit(project.error())
    del project
    application.exitQgis()


main()
