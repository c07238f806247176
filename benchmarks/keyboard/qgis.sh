#!/bin/bash
# SPDX-License-Identifier: MIT
# Measures in QGIS, without a mouse, how 37 of 5,000 layers get one look and are shown alone: keys and seconds.
#   benchmarks/keyboard/qgis.sh OUT
# OUT gets the figures and a picture of each step. QGIS needs minutes to make the project and to open it.
set -euo pipefail
[ $# -eq 1 ] || { sed -n '4,5s/^# *//p' "$0"; exit 1; }
here=$(dirname "$(realpath "$0")") out=$(mkdir -p "$1/qgis" && realpath "$1")
. "$here/../../tools/virtual_desktop.sh"
. "$here/../../tools/qgis_desktop.sh"
[ -d "$out/city" ] || "$here/city_data.py" "$out/city"
[ -e "$out/city.qgs" ] || QT_QPA_PLATFORM=offscreen "$here/city_project.py" "$out/city" "$out/city.qgs"
[ -d "$out/qgis/profiles" ] || make_profile "$out/qgis"

session() {
    local began=$SECONDS program code=0
    qgis --profiles-path "$out/qgis" --nologo --noversioncheck "$out/city.qgs" &
    program=$!
    until xdotool search --name '^city — QGIS' >"$out/qgis/window"; do
        kill -0 $program || return 1
        sleep 1
    done
    echo "open the project;0;$((SECONDS - began));" >"$out/qgis/opening"
    "$here/qgis.py" $program "$out/qgis" || code=$?
    kill $program
    return $code
}

start_desktop "$out/qgis" 1400x900
export -f session
export here out
on_desktop "$out/qgis" bash -c session
cat "$out/qgis/opening" "$out/qgis/figures"
