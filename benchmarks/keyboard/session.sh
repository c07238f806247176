#!/bin/bash
# SPDX-License-Identifier: MIT
# Measures the work of a user without a mouse on a map of 5,000 layers: keys and seconds, on a virtual screen.
#   benchmarks/keyboard/session.sh BUILD OUT
# BUILD: with Orvane and the component. OUT gets the figures and a picture of each step.
set -euo pipefail
[ $# -eq 2 ] || { sed -n '4,5s/^# *//p' "$0"; exit 1; }
here=$(dirname "$(realpath "$0")") build=$(realpath "$1") out=$(mkdir -p "$2" && realpath "$2")
. "$here/../../tools/virtual_desktop.sh"
[ -d "$out/city" ] || "$here/city_data.py" "$out/city"
rm -rf "$out/orvane"
mkdir -p "$out/orvane"

make_map() {
    QT_QPA_PLATFORM=offscreen "$build/bin/orvane" import "$out"/city/*.gpkg --to "$out/orvane/city.orvane"
    sqlite3 "$out/orvane/city.orvane" "UPDATE Layers SET Color = 0, LineThickness = -3 WHERE Name LIKE 'Water pipe%'"
}

session() {
    "$build/bin/orvane" "$out/orvane/city.orvane" &
    local program=$! code=0
    "$here/orvane.py" $program "$out/orvane" || code=$?
    kill $program
    return $code
}

make_map
start_desktop "$out" 1400x900
export -f session
export here build out
on_desktop "$out/orvane" bash -c session
cat "$out/orvane/figures"
