#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""usage: city_data.py FOLDER

Makes the data of a city: 100 GeoPackages, one for each district, with 50 layers each. In the first 37 districts, one of
the layers is a water pipe; all others are plots of ground.
"""
import os
import sys

from osgeo import ogr, osr

DISTRICTS, LAYERS, PIPES = 100, 50, 37
COLUMNS = 10  # of districts, and of plots in one
WIDTH, HEIGHT = 180.0, 110.0  # metres, of a district


def corner(district):
    return 500000 + district % COLUMNS * WIDTH, 5300000 + district // COLUMNS * HEIGHT


def plot(district, number):
    width, height = WIDTH / COLUMNS, HEIGHT * COLUMNS / LAYERS
    x, y = corner(district)
    x, y = x + number % COLUMNS * width, y + number // COLUMNS * height
    places = [(x, y), (x + width, y), (x + width, y + height), (x, y + height), (x, y)]
    return "POLYGON((%s))" % ",".join("%f %f" % place for place in places)


def pipe(district):
    x, y = corner(district)
    return "LINESTRING(%f %f,%f %f)" % (x, y + HEIGHT / 2, x + WIDTH, y + HEIGHT / 2)


def add(data, system, name, text):
    geometry = ogr.CreateGeometryFromWkt(text)
    layer = data.CreateLayer(name, system, geometry.GetGeometryType(), options=["SPATIAL_INDEX=NO"])
    feature = ogr.Feature(layer.GetLayerDefn())
    feature.SetGeometry(geometry)
    layer.CreateFeature(feature)


def main():
    ogr.UseExceptions()
    system = osr.SpatialReference()
    system.ImportFromEPSG(32632)
    os.makedirs(sys.argv[1])
    for district in range(DISTRICTS):
        path = os.path.join(sys.argv[1], "District %d.gpkg" % (district + 1))
        data = ogr.GetDriverByName("GPKG").CreateDataSource(path)
        data.StartTransaction()
        for number in range(LAYERS):
            if number == LAYERS - 1 and district < PIPES:
                add(data, system, "Water pipe %d" % (district + 1), pipe(district))
            else:
                add(data, system, "Plot %d-%d" % (district + 1, number + 1), plot(district, number))
        data.CommitTransaction()


main()
