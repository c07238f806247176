# SPDX-License-Identifier: MIT
# Sourced by the scripts that drive the program: a display, a window manager and an accessibility bus of their own.

own_processes=()
finish_desktop() {
    local pid
    for pid in "${own_processes[@]}"; do
        kill "$pid" 2>/dev/null || true
        wait "$pid" 2>/dev/null || true
    done
}

# start_desktop OUTPUT_DIRECTORY SCREEN_SIZE: exports DISPLAY; the processes started end with the shell.
start_desktop() {
    local output=$1 size=$2 display_file
    trap finish_desktop EXIT
    display_file=$(mktemp)
    Xvfb -displayfd 8 -screen 0 "${size}x24" -nolisten tcp 8>"$display_file" 2>"$output/xvfb.log" &
    own_processes=($!)
    for _ in $(seq 100); do
        [ ! -s "$display_file" ] || break
        sleep 0.1
    done
    DISPLAY=:$(cat "$display_file")
    rm -f "$display_file"
    export DISPLAY
    openbox >"$output/openbox.log" 2>&1 &
    own_processes=($! "${own_processes[@]}") # ended before the display
}

# on_desktop OUTPUT_DIRECTORY COMMAND...: runs it there, in English, with settings of its own.
on_desktop() {
    local output=$1 runtime code=0
    shift
    runtime=$(mktemp -d)
    chmod 700 "$runtime"
    unset WAYLAND_DISPLAY QT_STYLE_OVERRIDE QT_SCALE_FACTOR
    XDG_RUNTIME_DIR=$runtime XDG_CONFIG_HOME=$output/config XDG_DATA_HOME=$output/data \
        QT_QPA_PLATFORM=xcb QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 NO_AT_BRIDGE=0 LC_ALL=C.UTF-8 LANGUAGE=en \
        dbus-run-session -- "$@" 2>"$output/session.log" || code=$?
    rm -rf "$runtime"
    [ "$code" -eq 0 ] || cat "$output/session.log" >&2
    return "$code"
}
