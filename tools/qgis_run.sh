#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# usage: qgis_run.sh BUILD FOLDER [QGIS ARGUMENTS]
# Opens QGIS with the plug-in on a small project. Settings and project are in FOLDER, and are kept for the next time.
set -euo pipefail
here=$(dirname "$(realpath "$0")")
. "$here/qgis_desktop.sh"
build=$(realpath "$1") folder=$(mkdir -p "$2" && realpath "$2")
shift 2
plugins=$(install_plugin "$build" "$folder/installed")
[ -e "$folder/profiles" ] || ORVANE_LANGUAGE=system make_profile "$folder" true "$plugins"
if [ $# -eq 0 ]; then
    [ -e "$folder/town/town.qgz" ] || { mkdir -p "$folder/town" && "$here/qgis_project.py" "$folder/town/town.qgz"; }
    set -- "$folder/town/town.qgz"
fi
exec qgis --profiles-path "$folder" --noversioncheck "$@"
