#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# usage: tour.sh BUILD_DIRECTORY MAP OUTPUT_DIRECTORY
# A display, a window manager and an accessibility bus of its own; then tour.py drives the program in them.
set -euo pipefail
build=$(readlink -f "$1") map=$(readlink -f "$2")
here=$(dirname "$(readlink -f "$0")")
rm -rf "$3"
mkdir -p "$3"
output=$(readlink -f "$3")

own=()
finish() {
    local pid
    for pid in "${own[@]}"; do kill "$pid" 2>/dev/null || true; done
}
trap finish EXIT

display_file=$(mktemp)
Xvfb -displayfd 8 -screen 0 1600x1000x24 -nolisten tcp 8>"$display_file" 2>"$output/xvfb.log" &
own+=($!)
for _ in $(seq 100); do
    [ ! -s "$display_file" ] || break
    sleep 0.1
done
DISPLAY=:$(cat "$display_file")
rm -f "$display_file"
export DISPLAY
openbox >"$output/openbox.log" 2>&1 &
own+=($!)

runtime=$(mktemp -d)
chmod 700 "$runtime"
export XDG_RUNTIME_DIR=$runtime XDG_CONFIG_HOME=$output/config XDG_DATA_HOME=$output/data
export QT_QPA_PLATFORM=xcb QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 NO_AT_BRIDGE=0
export LC_ALL=C.UTF-8 LANGUAGE=en
unset WAYLAND_DISPLAY QT_STYLE_OVERRIDE QT_SCALE_FACTOR
dbus-run-session -- /usr/bin/python3 "$here/tour.py" "$build/bin/orvane" "$map" "$output"
rm -rf "$runtime"
