#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# usage: header_alone.sh BUILD_DIRECTORY HEADER: compiles the header as a file of its own.
set -euo pipefail
build=$1 header=$2
generated=$(find "$build" -type d -path '*_autogen/include' -printf '-I%p ')
flags=$(pkg-config --cflags Qt6Widgets Qt6Test sqlite3 gdal)
output=$(mktemp --suffix=.o)
trap 'rm -f "$output"' EXIT
printf '#include "%s"\n' "$header" |
    ${CXX:-g++} -std=c++20 -fPIC -I. -Itests $generated $flags -Wall -Wextra -Wno-unused-function \
        -x c++ -c - -o "$output" || { echo "does not compile alone: $header" >&2; exit 1; }
