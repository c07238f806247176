#!/bin/bash
# SPDX-License-Identifier: MIT
# usage: qgis_try.sh BUILD OUT [SCRIPT]
# Shows the plug-in in the real QGIS on a virtual screen, and takes pictures. BUILD has the plug-in and the component.
# SCRIPT: Python, run inside QGIS when the project is open; by default it opens the dock. A script without user.py ends
# the session by making the file done in the folder ORVANE_OUT.
set -euo pipefail
here=$(dirname "$(realpath "$0")")
. "$here/qgis_desktop.sh"
. "$here/virtual_desktop.sh"
build=$(realpath "$1") out=$(mkdir -p "$2" && realpath "$2")
script=$(realpath "${3:-$qgis_scripts/open_dock.py}")
work=$out/work
rm -rf "$work"
mkdir -p "$work/town"
plugins=$(install_plugin "$build" "$work/installed")
make_profile "$work" true "$plugins"
"$here/qgis_project.py" "$work/town/town.qgz"
start_desktop "$work" 1400x900
code=0
play "$script" "$work/town/town.qgz" "$work" "$out" || code=$?
cp "$work/town/town.qgz" "$out/"
rm -rf "$work"
exit $code
