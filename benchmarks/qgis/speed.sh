#!/bin/bash
# SPDX-License-Identifier: MIT
# Measures the layer control inside QGIS against what QGIS has for the same work.
#   benchmarks/qgis/speed.sh BUILD OUT [LAYERS...]
# BUILD: optimised, with the plug-in and the component. OUT gets the figures and QGIS's messages. LAYERS: 1000 10000.
# LIMIT: seconds that one piece of QGIS's own work may take (120). PARTS: some of "control paste theme project".
set -euo pipefail
[ $# -ge 2 ] || { sed -n '4,7s/^# *//p' "$0"; exit 1; }
here=$(dirname "$(realpath "$0")") build=$1 out=$(mkdir -p "$2" && realpath "$2")
shift 2
[ $# -gt 0 ] || set -- 1000 10000
export ORVANE_LIMIT=${LIMIT:-120} ORVANE_PART ORVANE_TREE ORVANE_LAYERS

for ORVANE_LAYERS in "$@"; do
    for ORVANE_TREE in collapsed expanded; do
        for ORVANE_PART in ${PARTS:-control paste theme project}; do
            run=$out/$ORVANE_LAYERS-$ORVANE_TREE-$ORVANE_PART
            rm -rf "$run"
            echo "$ORVANE_LAYERS layers, tree $ORVANE_TREE: $ORVANE_PART" >&2
            TO=1800 "$here/../../tools/qgis_try.sh" "$build" "$run" "$here/measure.py" >"$run.log" 2>&1 || true
            [ -e "$run/figures" ] || { echo "QGIS has measured nothing: see $run" >&2; exit 1; }
            ! grep -A20 Traceback "$run/qgis.log" >&2
        done
    done
done
"$here/table.py" "$out" "$@"
