#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# usage: guide.sh BUILD_DIRECTORY WORK_DIRECTORY PICTURE_DIRECTORY
# Makes the pictures of the user guide again: guide.py performs the steps of the guide on a separate desktop.
set -euo pipefail
build=$(readlink -f "$1")
here=$(dirname "$(readlink -f "$0")")
. "$here/virtual_desktop.sh"
rm -rf "$2"
mkdir -p "$2/town" "$2/pictures" "$3"
work=$(readlink -f "$2") pictures=$(readlink -f "$2/pictures")

# A folder of data like that of a user: one file for each of some layers of the sample town.
QT_QPA_PLATFORM=offscreen "$build/bin/make_sample_map" "$work/sample.orvane"
for layer in fields forest lake river "main roads" streets "public buildings" "bus stops"; do
    ogr2ogr -f GPKG "$work/town/$layer.gpkg" "$work/sample.gpkg" "$layer"
done

ogr2ogr -f GPKG "$work/town/houses.gpkg" "$work/sample.gpkg" -nln houses -dialect SQLITE \
    -sql "SELECT *, row_number() OVER () AS number, round(ST_Area(geom), 1) AS area FROM houses"
ogr2ogr -f CSV -t_srs EPSG:4326 -lco GEOMETRY=AS_XY "$work/town/shops.csv" "$work/sample.gpkg" "bus stops"

start_desktop "$work" 1440x880
on_desktop "$work" /usr/bin/python3 "$here/guide.py" "$build/bin/orvane" "$work" "$pictures"
mogrify -strip +dither -colors 96 -define png:compression-level=9 "$pictures"/*.png
cp "$pictures"/*.png "$3"
du -ch "$pictures"/*.png | tail -1
