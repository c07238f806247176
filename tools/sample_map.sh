#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# usage: sample_map.sh BUILD_DIRECTORY SAMPLE_DIRECTORY
# Makes SAMPLE_DIRECTORY/world.orvane once: from real world data if a package with them can be fetched, else as a
# generated town.
set -euo pipefail
build=$1 sample=$2
map="$sample/world.orvane"
[ ! -e "$map" ] || exit 0
mkdir -p "$sample/fetch"

fetch() { # fetch PACKAGE: downloads and unpacks, without installing it and its dependencies
    echo "Fetching map data: $1"
    (cd "$sample/fetch" && timeout 300 apt-get download -q "$1") >"$sample/fetch/$1.log" 2>&1 &&
        dpkg -x "$sample"/fetch/"$1"_*.deb "$sample/fetch/unpacked"
}

fetch qgis-common || echo "The world data cannot be had here; a town is generated instead."
fetch python3-geopandas || true
mkdir -p "$sample/data"
find "$sample/fetch" \( -name 'world_map.gpkg' -o -name 'naturalearth_*.*' -o -name 'ne_110m_*.*' \) -type f \
    -exec cp -t "$sample/data" {} + 2>/dev/null || true
rm -rf "$sample/fetch"
QT_QPA_PLATFORM=offscreen "$build/bin/make_sample_map" "$map" "$sample/data"
