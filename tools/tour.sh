#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# usage: tour.sh BUILD_DIRECTORY MAP OUTPUT_DIRECTORY
# Starts a separate desktop, in which tour.py drives the program.
set -euo pipefail
build=$(readlink -f "$1") map=$(readlink -f "$2")
here=$(dirname "$(readlink -f "$0")")
. "$here/virtual_desktop.sh"
rm -rf "$3"
mkdir -p "$3"
output=$(readlink -f "$3")

start_desktop "$output" 1600x1000
on_desktop "$output" /usr/bin/python3 "$here/tour.py" "$build/bin/orvane" "$map" "$output"
