#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# usage: package_test.sh PACKAGE_DIRECTORY ROOT_DIRECTORY
# Installs the packages into a bare Debian 12 and uses them there: as a user, and as a host author who builds the
# installed examples. The bare system is kept as ROOT_DIRECTORY/base.tar for the next time.
set -euo pipefail
here=$(dirname "$(readlink -f "$0")")
. "$here/common.sh"
packages=$(readlink -f "$1")
mkdir -p "$2"
base=$(readlink -f "$2")/base.tar
root=$(readlink -f "$2")/root
site=$(apt-get indextargets --format '$(SITE)' 'Created-By: Packages' | head -n 1)

inside() { as_root chroot "$root" env DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8 QT_QPA_PLATFORM=offscreen "$@"; }

leave() {
    mountpoint -q "$root/proc" && as_root umount "$root/proc"
    as_root rm -rf "$root"
}

make_base() {
    step "Making a bare system"
    as_root debootstrap --variant=minbase bookworm "$root" "$site" >"$base.log"
    as_root tar -C "$root" -cf "$base.part" .
    as_root mv "$base.part" "$base"
    as_root rm -rf "$root"
}

trap leave EXIT
[ -e "$base" ] || make_base
mkdir -p "$root"
as_root tar -C "$root" -xf "$base"
as_root cp -a /etc/apt/. "$root/etc/apt/" # what this machine needs to reach its packages
as_root cp /etc/resolv.conf "$root/etc/resolv.conf"
as_root mount -t proc proc "$root/proc"
as_root cp "$packages"/*.deb "$root/tmp/"

step "Installing the packages into it"
inside apt-get update -q >"$base.log" 2>&1
inside sh -c 'apt-get install -y -q --no-install-recommends /tmp/liborvane-dev_*.deb /tmp/orvane-layer-control_*.deb \
    g++ cmake ninja-build' >>"$base.log" 2>&1 || { tail -n 30 "$base.log" >&2; exit 1; }
! inside dpkg -s libgdal32 >/dev/null 2>&1 || { echo "package_test: a host author got GDAL" >&2; exit 1; }

step "Building the installed examples there"
inside cmake -G Ninja -S /usr/share/doc/liborvane-dev/examples -B /tmp/examples >>"$base.log" 2>&1 ||
    { tail -n 30 "$base.log" >&2; exit 1; }
inside cmake --build /tmp/examples
inside ctest --test-dir /tmp/examples --output-on-failure

step "Using Orvane there"
inside sh -c 'apt-get install -y -q --no-install-recommends /tmp/orvane_*.deb' >>"$base.log" 2>&1
inside orvane --version
inside apt-get purge -y -q orvane orvane-layer-control liborvane-dev >>"$base.log" 2>&1
left=$(cd "$root/usr" && as_root find . -iname '*orvane*' | head -n 5)
[ -z "$left" ] || { echo "package_test: after the removal there still are: $left" >&2; exit 1; }
echo "installed, built, used and removed: all well"
