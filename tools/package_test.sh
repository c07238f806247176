#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# usage: package_test.sh PACKAGE_DIRECTORY WORK_DIRECTORY
# Installs the packages into a bare Debian 12 and uses them there: as a host author, who builds the installed examples,
# starts them and tests them, and as a user. The bare system and the fetched packages are kept for the next time.
set -euo pipefail
here=$(dirname "$(readlink -f "$0")")
. "$here/common.sh"
packages=$(readlink -f "$1")
mkdir -p "$2"
work=$(readlink -f "$2")
base=$work/base.tar root=$work/root log=$work/log
site=$(apt-get indextargets --format '$(SITE)' 'Created-By: Packages' | head -n 1)
mounts=()

inside() {
    as_root chroot "$root" env DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8 HOME=/root "$@"
}

fail() {
    tail -n 30 "$log" >&2
    echo "package: $*" >&2
    exit 1
}

leave() {
    local place
    for place in "${mounts[@]}"; do as_root umount "$place"; done
    as_root rm -rf --one-file-system "$root"
}

attach() { # attach PLACE MOUNT_ARGUMENT...
    local place=$root/$1
    shift
    as_root mkdir -p "$place"
    as_root mount "$@" "$place"
    mounts=("$place" "${mounts[@]}")
}

make_base() {
    step "Making a bare system"
    as_root rm -rf "$root"
    as_root debootstrap --variant=minbase bookworm "$root" "$site" >"$log" 2>&1 || fail "no bare system was made"
    as_root tar -C "$root" -cf "$base.part" .
    as_root mv "$base.part" "$base"
    as_root rm -rf "$root"
}

enter() {
    mkdir -p "$root" "$work/archives"
    as_root tar -C "$root" -xf "$base"
    as_root cp -a /etc/apt/. "$root/etc/apt/" # what this machine needs to reach its packages
    as_root cp /etc/resolv.conf "$root/etc/resolv.conf"
    echo force-unsafe-io | as_root tee "$root/etc/dpkg/dpkg.cfg.d/quick" >/dev/null
    as_root rm -f "$root/etc/apt/apt.conf.d/docker-clean"
    as_root cp "$packages"/*.deb "$root/tmp/"
    attach proc -t proc proc
    attach var/cache/apt/archives --bind "$work/archives"
    inside apt-get update -q >"$log" 2>&1 || fail "the packages of Debian cannot be reached"
}

install_packages() { # install_packages PACKAGE...
    inside sh -c "apt-get install -y -q --no-install-recommends $*" >>"$log" 2>&1 || fail "cannot be installed: $*"
}

# start_host NAME [ARGUMENT]: it must live until it is ended.
start_host() {
    local code=0
    inside env QT_QPA_PLATFORM=offscreen timeout 5 "/tmp/examples/$@" >>"$log" 2>&1 || code=$?
    [ "$code" -eq 124 ] || fail "$1 has ended with $code"
    echo "$1: shown until it was ended"
}

rm -f "$log"
trap leave EXIT
[ -e "$base" ] || make_base
enter

step "Installing what a host author needs"
install_packages '/tmp/liborvane-dev_*.deb' '/tmp/orvane-layer-control_*.deb' g++ cmake make libgtest-dev
! inside dpkg -s libgdal32 >/dev/null 2>&1 || fail "a host author got GDAL"

step "Building and testing the installed examples"
inside cmake -S /usr/share/doc/liborvane-dev/examples -B /tmp/examples >>"$log" 2>&1 || fail "cmake failed"
inside cmake --build /tmp/examples -j 2 >>"$log" 2>&1 || fail "the examples cannot be built"
inside ctest --test-dir /tmp/examples --output-on-failure 2>&1 | tail -n 20

step "Using the examples"
start_host minimal_host /tmp/map.ovl
start_host vector_host
start_host dock_host /tmp/map.ovl

step "Using Orvane"
install_packages '/tmp/orvane_*.deb'
inside env QT_QPA_PLATFORM=offscreen orvane --version
inside test -s /usr/share/orvane/guide/README.md || fail "the guide is not installed"
inside apt-get purge -y -q orvane orvane-layer-control liborvane-dev >>"$log" 2>&1 || fail "the packages stay"
left=$(cd "$root/usr" && as_root find . -iname '*orvane*' | head -n 5)
[ -z "$left" ] || fail "after the removal there still are: $left"
echo "installed, built, used and removed: all well"
