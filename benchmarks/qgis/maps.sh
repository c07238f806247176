#!/bin/bash
# SPDX-License-Identifier: MIT
# Measures QGIS and Orvane with the same maps: opened, drawn, and drawn again after a change of one layer.
#   benchmarks/qgis/maps.sh BUILD BENCH OUT [LAYERS...]
# BUILD: with the plug-in and the component for QGIS. BENCH: with orvane_map_benchmarks; both optimised. OUT gets the
# figures and QGIS's messages. LAYERS: 200 1000. LIMIT: seconds that one piece of QGIS's work may take (600).
set -euo pipefail
[ $# -ge 3 ] || { sed -n '4,6s/^# *//p' "$0"; exit 1; }
here=$(dirname "$(realpath "$0")") build=$1 bench=$2/bin/orvane_map_benchmarks out=$(mkdir -p "$3" && realpath "$3")
shift 3
[ $# -gt 0 ] || set -- 200 1000
export ORVANE_LIMIT=${LIMIT:-600} ORVANE_PART=map ORVANE_TREE=collapsed ORVANE_LAYERS ORVANE_DATA

for ORVANE_LAYERS in "$@"; do
    run=$out/$ORVANE_LAYERS ORVANE_DATA=$out/$ORVANE_LAYERS.gpkg
    rm -rf "$run" "$ORVANE_DATA"
    "$bench" --make "$ORVANE_DATA" "$ORVANE_LAYERS"
    echo "$ORVANE_LAYERS layers in QGIS" >&2
    TO=1800 "$here/../../tools/qgis_try.sh" "$build" "$run" "$here/measure.py" >"$run.log" 2>&1 || true
    [ -e "$run/figures" ] || { echo "QGIS has measured nothing: see $run" >&2; exit 1; }
    ! grep -A20 Traceback "$run/qgis.log" >&2
    rm -f "$ORVANE_DATA"
    echo "$ORVANE_LAYERS layers in Orvane" >&2
    QT_QPA_PLATFORM=offscreen "$bench" --benchmark_filter="^(Open and draw map|Redraw one layer)/(bare|window)/$ORVANE_LAYERS/" \
        --benchmark_out="$run/orvane.json" --benchmark_out_format=json >"$run/orvane.log" 2>&1
done
"$here/maps_table.py" "$out" "$@"
