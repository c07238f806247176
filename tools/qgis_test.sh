#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# usage: qgis_test.sh BUILD OUT [LAYERS]
# Tests the plug-in in the real QGIS on a virtual screen: as it is installed, in a project with many layers, and the same
# project in a QGIS without the plug-in. The pictures are in OUT.
set -euo pipefail
here=$(dirname "$(realpath "$0")")
. "$here/common.sh"
. "$here/qgis_desktop.sh"
. "$here/virtual_desktop.sh"
build=$(realpath "$1")
rm -rf "$2"
out=$(mkdir -p "$2" && realpath "$2") layers=${3:-1000}
plugins=$(install_plugin "$build" "$out/installed")
make_profile "$out/with" true "$plugins"
make_profile "$out/without" false
ORVANE_LANGUAGE=de make_profile "$out/german" true "$plugins"

# scene NAME PROJECT PROFILE
scene() {
    local started=$SECONDS
    play "$qgis_scripts/$1.py" "$2" "$out/$3" "$out/$1"
    echo "$1: passed ($(duration $((SECONDS - started))))"
}

start_desktop "$out" 1920x1080
mkdir "$out/town" "$out/many"
"$here/qgis_project.py" "$out/town/town.qgz"
"$here/qgis_project.py" "$out/many/many.qgz" "$layers"
scene open_dock "$out/town/town.qgz" with
scene in_german "$out/town/town.qgz" german
scene town "$out/town/town.qgz" with
scene many_layers "$out/many/many.qgz" with
scene without_the_plugin "$out/many/many.qgz" without
scene opened_again "$out/many/many.qgz" with
