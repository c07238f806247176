# SPDX-License-Identifier: MIT
# Sourced by the scripts that run QGIS with the plug-in, with settings that are not those of the user.

qgis_command=(qgis)
qgis_scripts=$(realpath "$(dirname "${BASH_SOURCE[0]}")/../tests/qgis/real")

# install_plugin BUILD FOLDER: puts the plug-in there as it is installed; prints the folder for QGIS to search.
install_plugin() {
    local destination
    cmake --install "$1" --component qgis --prefix "$2" >"$2.log"
    destination=$(sed -n 's/^ORVANE_QGIS_DESTINATION:STRING=//p' "$1/CMakeCache.txt")
    echo "$2/$destination"
}

# make_profile FOLDER [SWITCH PLUGIN_FOLDER]: a new user's settings, in English or the language ORVANE_LANGUAGE.
# SWITCH: true or false, whether the plug-in is on; PLUGIN_FOLDER may be empty, if QGIS finds the plug-in by itself.
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

# play SCRIPT PROJECT PROFILE OUTPUT: runs a Python script inside QGIS, on the desktop that was started, for TO seconds at
# most. With tests/qgis/real/user.py it tells whether it has passed; any other ends QGIS by making the file OUTPUT/done.
play() {
    local script=$1 project=$2 profile=$3 output=$4 qgis code=0
    rm -rf "$output/tmp" "$output/passed" "$output/failed" "$output/done"
    mkdir -p "$output"
    mkdir -m 700 "$output/tmp" # at its end QGIS asks about layers in the folder for temporary files
    XDG_RUNTIME_DIR=$output/tmp TMPDIR=$output/tmp LC_ALL=C.UTF-8 ORVANE_OUT=$output ORVANE_SCRIPTS=$qgis_scripts \
        timeout "${TO:-400}" "${qgis_command[@]}" --profiles-path "$profile" --nologo --noversioncheck \
        --code "$script" "$project" >"$output/qgis.log" 2>&1 &
    qgis=$!
    while kill -0 $qgis 2>/dev/null && [ ! -e "$output/failed" ] && [ ! -e "$output/done" ]; do sleep 0.2; done
    if [ -e "$output/failed" ] || [ -e "$output/done" ]; then kill $qgis 2>/dev/null || true; fi
    wait $qgis || code=$?
    rm -rf "$output/tmp"
    [ -e "$output/done" ] || judge "$(basename "$script")" "$output" $code
}

# judge NAME OUTPUT CODE: fails unless all was well.
judge() {
    if [ ! -e "$2/passed" ] || [ "$3" -ne 0 ]; then
        cat "$2/qgis.log" >&2
        echo "qgis: $1 has failed; QGIS has ended with $3; pictures: $2" >&2
        return 1
    fi
    if grep -iE 'Orvane::|traceback|^(Warning: )?Q[A-Z][A-Za-z]*::' "$2/qgis.log" >&2; then
        echo "qgis: $1: these warnings should not be there" >&2
        return 1
    fi
}
