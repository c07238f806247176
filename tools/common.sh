# SPDX-License-Identifier: MIT
# Shared by ./dev and the scripts beside this file: packages, steps, counts.

packages_build=(build-essential cmake ninja-build python3-minimal ccache lld pkg-config git
    qt6-base-dev qt6-svg-dev qt6-tools-dev libgdal-dev libproj-dev libsqlite3-dev libpq-dev)
packages_run=(libqt6gui6 qt6-translations-l10n fonts-dejavu-core)
packages_clang=(clang libclang-rt-14-dev)
packages_qt5=(qtbase5-dev)
packages_qgis=(libqgis-dev qgis python3-qgis qtbase5-dev)
packages_abi=(abigail-tools binutils python3)
packages_test=("${packages_clang[@]}" libgtest-dev libgmock-dev libqt6opengl6-dev qt6-translations-l10n fonts-dejavu-core
    postgresql postgresql-postgis openssl libbenchmark-dev python3)
packages_tour=(xvfb xauth x11-utils openbox xdotool imagemagick dbus at-spi2-core
    python3-gi gir1.2-atspi-2.0)
packages_guide=(gdal-bin)
packages_data=(gdal-bin python3)
packages_package=(debootstrap lintian)
packages_bench=(libbenchmark-dev libgtest-dev libgmock-dev postgresql python3)
packages_check=(clang-format clang-tidy libbenchmark-dev python3 doxygen graphviz)

export CCACHE_DIR="${CCACHE_DIR:-${XDG_CACHE_HOME:-$HOME/.cache}/ccache}"
export CCACHE_BASEDIR="$PWD" CCACHE_NOHASHDIR=1
export CCACHE_DEPEND=1 # uses the compiler's dependency lists, so that a first build preprocesses nothing twice
export CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime

duration() { printf '%d:%02d min' $(($1 / 60)) $(($1 % 60)); }

step() { printf '\n== %s\n' "$*"; }

# quietly LOG COMMAND...: shows the log only when the command fails.
quietly() {
    local log=$1
    shift
    mkdir -p "$(dirname "$log")"
    "$@" >"$log" 2>&1 || { cat "$log" >&2; return 1; }
}

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

installed() {
    [ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

# need PACKAGE...: installs those that are missing, with progress.
need() {
    local missing=() package
    for package in "$@"; do
        installed "$package" || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    step "Installing: ${missing[*]}"
    as_root env DEBIAN_FRONTEND=noninteractive apt-get update -q
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "${missing[@]}"
}

# Tests make many small files, so they go to memory where there is plenty: a busy machine's disk may be slow.
keep_small_files_in_memory() {
    local free
    [ -z "${TMPDIR:-}" ] && [ -w /dev/shm ] || return 0
    free=$(df -Pk /dev/shm | awk 'NR == 2 { print $4 }')
    [ "$free" -lt 4000000 ] || export TMPDIR=/dev/shm
}

sources() {
    git ls-files --cached --others --exclude-standard '*.h' '*.cpp'
}

# sum_attribute DIRECTORY NAME: the sum of one attribute over the root elements of the GoogleTest reports.
sum_attribute() {
    grep -hoE "<testsuites [^>]*" "$1"/*.xml 2>/dev/null | grep -oE " $2=\"[0-9]+\"" |
        tr -dc '0-9\n' | awk '{ n += $1 } END { print n + 0 }'
}

report_counts() { # report_counts DIRECTORY LABEL
    local tests failed
    tests=$(sum_attribute "$1" tests)
    failed=$(sum_attribute "$1" failures)
    echo "$2: $((tests - failed)) passed, $failed failed"
}

total_counts() {
    local tests=0 failed=0 directory
    for directory in "$@"; do
        tests=$((tests + $(sum_attribute "$directory" tests)))
        failed=$((failed + $(sum_attribute "$directory" failures)))
    done
    printf '\n%d passed, %d failed\n' $((tests - failed)) "$failed"
    [ "$tests" -gt 0 ] && [ "$failed" -eq 0 ]
}
