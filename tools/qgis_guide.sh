#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# usage: qgis_guide.sh BUILD WORK_DIRECTORY PICTURE_DIRECTORY
# Makes the pictures of the guide's page about QGIS again, by doing what it describes.
set -euo pipefail
here=$(dirname "$(realpath "$0")")
. "$here/qgis_desktop.sh"
. "$here/virtual_desktop.sh"
build=$(realpath "$1") pictures=$(realpath "$3")
rm -rf "$2"
work=$(mkdir -p "$2/town" && realpath "$2")
plugins=$(install_plugin "$build" "$work/installed")
make_profile "$work/user" "" "$plugins"
"$here/qgis_project.py" "$work/town/town.qgz"
start_desktop "$work" 1440x880
play "$qgis_scripts/guide.py" "$work/town/town.qgz" "$work/user" "$work/pictures"
cp "$work"/pictures/qgis-*.png "$pictures/"
mogrify -strip +dither -colors 96 -define png:compression-level=9 "$pictures"/qgis-*.png
