#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# usage: install_test.sh BUILD_DIRECTORY SOURCE_DIRECTORY
# Installs into a prefix, moves it, and uses the installed files as a user, a desktop and a host author would.
set -euo pipefail
build=$1 source=$2
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
export QT_QPA_PLATFORM=offscreen XDG_CONFIG_HOME=$folder/config LC_ALL=C.UTF-8 LANGUAGE=en

fail() {
    echo "install_test: $*" >&2
    exit 1
}

expect() { # expect CODE COMMAND...
    local wanted=$1 code=0
    shift
    "$@" >"$folder/out" 2>&1 || code=$?
    [ "$code" -eq "$wanted" ] || { cat "$folder/out" >&2; fail "$* ended with $code, not $wanted"; }
}

cmake --install "$build" --prefix "$folder/first" >"$folder/install.log"
mv "$folder/first" "$folder/prefix"
prefix=$folder/prefix
orvane=$prefix/bin/orvane

for file in lib/orvane/libOrvaneLayerControlQt6.so lib/orvane/de/POBEX.LRT share/applications/orvane.desktop \
    share/mime/packages/orvane.xml share/icons/hicolor/scalable/apps/orvane.svg share/man/man1/orvane.1.gz \
    include/orvane/OrvaneShellLib/IStyleEditorClient.h include/orvane/hostkit/StandardClient.h; do
    [ -e "$prefix/$file" ] || fail "$file is not installed"
done
diff <(cd "$prefix/include/orvane" && find . -name '*.h' -printf '%P\n' | sort) \
    <(sed -n 's/^| `\([A-Za-z/]*\.h\)`.*/\1/p' "$source/docs/public_headers.md" | sort) ||
    fail "other headers are installed than docs/public_headers.md lists"
designer=libOrvaneDesignerQt6.so
[ ! -e "$build/lib/designer/$designer" ] ||
    find "$prefix" -path "*/qt6/plugins/designer/$designer" | grep -q . || fail "$designer is not where Qt Designer looks"
! grep -rlI "$source" "$prefix/lib" "$prefix/share" || fail "the source folder is named in what is installed"

expect 0 "$orvane" --version
grep -q "$(cat "$source/VERSION")" "$folder/out" || fail "another version: $(cat "$folder/out")"
square='{"type":"Polygon","coordinates":[[[0,0],[9,0],[9,9],[0,9],[0,0]]]}'
printf '{"type":"FeatureCollection","features":[{"type":"Feature","properties":{},"geometry":%s}]}' "$square" \
    >"$folder/square.geojson"
expect 0 "$orvane" import "$folder/square.geojson" --to "$folder/map.orvane"
expect 0 "$orvane" check "$folder/map.orvane"
expect 0 "$orvane" "$folder/map.orvane" --export "$folder/map.pdf"
expect 0 "$orvane" "$folder/map.orvane" --export "$folder/map.svg" --title "Our town"
grep -q 'Our town' "$folder/map.svg" || fail "the title is not on the page"
expect 1 "$orvane" check "$folder/none.orvane"
expect 2 "$orvane" check
expect 0 env LC_ALL= LANG=de_DE.UTF-8 LANGUAGE=de "$orvane" --help
grep -q 'Karte' "$folder/out" || fail "the installed texts were not found"

expect 0 cmake -S "$source/tests/packaging/consumer" -B "$folder/consumer" -DCMAKE_PREFIX_PATH="$prefix" \
    -DCMAKE_BUILD_TYPE=Debug
expect 0 cmake --build "$folder/consumer"
expect 0 "$folder/consumer/consumer"
grep -q "was shown" "$folder/out" || fail "the consumer saw no layer control"
expect 0 "$folder/consumer/linked_consumer"
expect 0 cmake -S "$prefix/share/doc/liborvane-dev/examples" -B "$folder/examples" -DCMAKE_PREFIX_PATH="$prefix"
expect 0 cmake --build "$folder/examples"
expect 0 env XDG_DATA_DIRS="$prefix/share" "$folder/examples/host_tests"
for host in File Dock Vector; do
    grep -q "${host}Host_Dialog.ItListsAndShowsAllLayers" "$folder/out" || fail "the tests for hosts did not run: $host"
done
expect 1 cmake -S "$source/tests/packaging/consumer" -B "$folder/unknown" -DCMAKE_PREFIX_PATH="$prefix" \
    -DCONSUMER_COMPONENT=Nonsense
grep -q 'there is no component "Nonsense"' "$folder/out" || fail "an unknown component is not named"

# As a part of another project: neither GDAL nor GoogleTest is needed, and nothing is installed unasked.
expect 0 cmake -S "$source/tests/packaging/subproject" -B "$folder/parent" -DORVANE_SOURCE="$source" \
    -DCMAKE_DISABLE_FIND_PACKAGE_GDAL=ON -DCMAKE_DISABLE_FIND_PACKAGE_GTest=ON
! grep -q 'file(INSTALL' -r "$folder/parent/orvane" --include=cmake_install.cmake ||
    fail "a part of another project is installed with it"
echo "installed, moved and used: all well"
