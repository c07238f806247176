#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# usage: qgis_package_test.sh PACKAGE OUT
# Installs the package for QGIS, opens the layer control in QGIS, and removes the package again. What is written goes to a
# layer above this machine's system, in memory: QGIS is there already, and in a bare system would take a gigabyte.
set -euo pipefail
here=$(dirname "$(readlink -f "$0")")
. "$here/common.sh"
. "$here/qgis_desktop.sh"
. "$here/virtual_desktop.sh"
package=$(readlink -f "$1") repository=$(dirname "$here")
as_root rm -rf --one-file-system "$2"
out=$(mkdir -p "$2" && readlink -f "$2")
memory=$out/memory root=$out/memory/root
mounts=()

fail() {
    echo "package: $*" >&2
    exit 1
}

attach() { # attach PLACE MOUNT_ARGUMENT...
    as_root mkdir -p "$1"
    as_root mount "${@:2}" "$1"
    mounts=("$1" "${mounts[@]}")
}

leave() {
    local place
    finish_desktop
    for place in "${mounts[@]}"; do as_root umount "$place"; done
    rmdir "$memory"
}

inside() { as_root chroot "$root" env DEBIAN_FRONTEND=noninteractive "$@"; }

# QGIS of that system, in place of this one's
qgis_command=(chroot "$root" env HOME="$out" qgis)
[ "$(id -u)" -eq 0 ] || qgis_command=(sudo -E "${qgis_command[@]}")

mkdir "$out/town"
"$here/qgis_project.py" "$out/town/town.qgz"
make_profile "$out/user" true
start_desktop "$out" 1400x900
trap leave EXIT
attach "$memory" -t tmpfs tmpfs
as_root mkdir "$memory/written" "$memory/work"
attach "$root" -t overlay overlay -o "lowerdir=/,upperdir=$memory/written,workdir=$memory/work"
attach "$root/proc" -t proc proc
attach "$root/dev" --bind /dev
attach "$root$repository" --bind "$repository"
attach "$root$out" --bind "$out"

step "Installing the package"
as_root cp "$package" "$root/var/orvane-qgis.deb"
inside dpkg -i /var/orvane-qgis.deb >"$out/dpkg.log" 2>&1 || fail "cannot be installed: $(cat "$out/dpkg.log")"

step "Opening the layer control"
play "$qgis_scripts/open_dock.py" "$out/town/town.qgz" "$out/user" "$out/open_dock"

step "Removing the package"
inside dpkg --purge orvane-qgis >>"$out/dpkg.log" 2>&1 || fail "cannot be removed: $(cat "$out/dpkg.log")"
as_root rm "$root/var/orvane-qgis.deb"
# What was there before is not in this layer, or as a device, which tells that it was removed.
left=$(cd "$memory/written" && as_root find . -iregex './\(usr\|etc\|var\)/.*orvane[^/]*' ! -type c | head -n 5)
[ -z "$left" ] || fail "after the removal there still are: $left"
echo "installed, used and removed: all well"
