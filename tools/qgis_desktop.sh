# SPDX-License-Identifier: MIT
# Sourced by the scripts that run QGIS with the plug-in, with settings that are not those of the user.

qgis_command=(qgis)

# install_plugin BUILD FOLDER: puts the plug-in there as it is installed; prints the folder for QGIS to search.
install_plugin() {
    local destination
    cmake --install "$1" --component qgis --prefix "$2" >"$2.log"
    destination=$(sed -n 's/^ORVANE_QGIS_DESTINATION:STRING=//p' "$1/CMakeCache.txt")
    echo "$2/$destination"
}

# make_profile FOLDER [SWITCH PLUGIN_FOLDER]: a new user's settings, in English or the language ORVANE_LANGUAGE. SWITCH: true or false, whether the plug-in is on;
# PLUGIN_FOLDER may be empty, if QGIS finds the plug-in by itself.
make_profile() {
    local settings=$1/profiles/default/QGIS
    mkdir -p "$settings"
    {
        printf '[app]\nprojectOpenAtLaunch=0\n'
        printf '[qgis]\ncheckVersion=false\nshowTips343=false\n'
        [ "${ORVANE_LANGUAGE:-}" = system ] ||
            printf '[locale]\noverrideFlag=true\nuserLocale=%s\n' "${ORVANE_LANGUAGE:-en_US}"
        [ -z "${2:-}" ] || printf '[Plugins]\nliborvanelayercontrol=%s\n' "$2"
        [ -z "${3:-}" ] || printf '[plugins]\nsearchPathsForPlugins=%s\n' "$3"
    } >"$settings/QGIS3.ini"
}

# play SCRIPT PROJECT PROFILE OUTPUT: runs a script of tests/qgis/real inside QGIS, on the desktop that was started. It
# must say that it has passed, and QGIS must end well. Layers in the folder for temporary files make QGIS ask at its end.
play() {
    local script=$1 project=$2 profile=$3 output=$4 qgis code=0
    mkdir -p "$output/tmp"
    rm -f "$output/passed" "$output/failed"
    TMPDIR=$output/tmp ORVANE_OUT=$output ORVANE_SCRIPTS=$(dirname "$script") LC_ALL=C.UTF-8 timeout "${TO:-240}" \
        "${qgis_command[@]}" --profiles-path "$profile" --nologo --noversioncheck --code "$script" "$project" >"$output/qgis.log" 2>&1 &
    qgis=$!
    while kill -0 $qgis 2>/dev/null && [ ! -e "$output/failed" ]; do sleep 0.2; done
    [ ! -e "$output/failed" ] || kill $qgis 2>/dev/null || true
    wait $qgis || code=$?
    rm -rf "$output/tmp"
    if [ ! -e "$output/passed" ]; then
        cat "$output/qgis.log" >&2
        [ ! -e "$output/failed" ] || cat "$output/failed" >&2
        echo "qgis: $(basename "$script") has failed; QGIS has ended with $code; pictures: $output" >&2
        return 1
    fi
    if grep -iE 'orvane|traceback|^(Warning: )?Q[A-Z][A-Za-z]*::' "$output/qgis.log"; then
        echo "qgis: these warnings should not be there; see $output/qgis.log" >&2
        return 1
    fi
    [ $code -eq 0 ] || { cat "$output/qgis.log" >&2; echo "qgis: QGIS has ended with $code" >&2; return 1; }
}
