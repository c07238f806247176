#!/bin/bash
# SPDX-License-Identifier: MIT
# Shows the plug-in in the real QGIS on a virtual screen, and takes pictures.
#   tools/qgis_try.sh BUILD OUT [SCRIPT] [LAYERS]
# BUILD has the plug-in and the component. SCRIPT: Python, run inside QGIS when the project is open; by default
# it opens the dock. The file OUT/done ends the session by force.
set -euo pipefail
build=$(realpath "$1") out=$(mkdir -p "$2" && realpath "$2") here=$(dirname "$(realpath "$0")")
script=${3:-$here/qgis_open_dock.py} layers=${4:-0}
work=$(mktemp -d)

settings="$work/profiles/default/QGIS"
mkdir -p "$settings"
cat > "$settings/QGIS3.ini" <<END
[plugins]
searchPathsForPlugins=$build/lib/qgis-plugins
[Plugins]
liborvanelayercontrol=true
[locale]
overrideFlag=true
userLocale=${ORVANE_LANGUAGE:-en_US}
[qgis]
checkVersion=false
showTips343=false
[app]
projectOpenAtLaunch=0
END

"$here/qgis_project.py" "$work/town.qgz" "$layers"
export ORVANE_OUT=$out ORVANE_PROJECT=$work/town.qgz
mkdir "$work/component" # with its texts beside it
(cd "$build/lib" && cp --parents libOrvaneLayerControlQt5.so */POBEX.LRT "$work/component")
cp -r "$build/bin/translations" "$work/component/"
export ORVANE_COMPONENT=${ORVANE_COMPONENT:-$work/component/libOrvaneLayerControlQt5.so}
. "$here/virtual_desktop.sh"
start_desktop "$work" 1400x900
rm -f "$out/done"
timeout "${TO:-240}" qgis --profiles-path "$work" --nologo --code "$script" "$ORVANE_PROJECT" >"$out/qgis.log" 2>&1 &
qgis=$!
while kill -0 $qgis 2>/dev/null && [ ! -e "$out/done" ]; do sleep 0.2; done
cp "$work/town.qgz" "$out/" 2>/dev/null || true
kill $qgis 2>/dev/null || true
code=0
wait $qgis || code=$?
echo "QGIS has ended with $code."
rm -rf "$work"
