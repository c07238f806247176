#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# usage: data_check.sh BUILD_DIRECTORY FOLDER
# Fetches packages with real data into FOLDER, and checks that Orvane opens, draws and places them as GDAL does.
set -euo pipefail
build=$1 folder=$2
rm -rf "$folder/maps"
mkdir -p "$folder/maps" "$folder/fetch" "$folder/unpacked"

fetch() { # fetch PACKAGE: downloads and unpacks it once, without installing it and its dependencies
    [ ! -e "$folder/unpacked/$1" ] || return 0
    echo "Fetching $1"
    (cd "$folder/fetch" && timeout 300 apt-get download -q "$1") >"$folder/fetch/$1.log" 2>&1
    dpkg -x "$folder"/fetch/"$1"_*.deb "$folder/unpacked/$1"
}

for package in r-cran-spdata r-cran-sf r-cran-maptools r-cran-stars python3-cartopy python3-geopandas; do
    fetch "$package"
done
QT_QPA_PLATFORM=offscreen python3 tools/data_check.py "$build/bin/orvane" "$folder/maps" "$folder/unpacked"
