#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# usage: check.sh HEADERS_BUILD RELEASE_BUILD
# Checks the sources without running them. HEADERS_BUILD: configured with ORVANE_CHECK_HEADERS; RELEASE_BUILD:
# configured, with CMAKE_UNITY_BUILD. Both are built here as far as needed.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
. tools/common.sh
headers=$1 release=$2
jobs=$(nproc)
failures=0

fail() {
    echo "check: $*" >&2
    failures=$((failures + 1))
}

check_format() {
    sources | xargs -P "$jobs" -n 20 clang-format --dry-run --Werror || fail "format: run ./dev format"
}

check_lengths() {
    sources | xargs awk -f tools/lengths.awk || fail "a function or a file is too long"
}

check_habits() {
    local hits
    hits=$(grep -nE 'QTest::qSleep|QTest::qWait\(|QThread::m?sleep|std::this_thread::sleep' \
        $(git ls-files 'tests/*.cpp' 'tests/*.h') || true)
    [ -z "$hits" ] || fail "fixed sleeps in tests:"$'\n'"$hits"
    # QGIS looks through all layers at each signal of one.
    hits=$(grep -nE 'blockSignals|QSignalBlocker' $(sources | grep -v '^qgis/layers/LayerSilence.h$') || true)
    [ -z "$hits" ] || fail "signals are blocked:"$'\n'"$hits"
    hits=$(sources | xargs grep -L 'SPDX-License-Identifier' || true)
    [ -z "$hits" ] || fail "no licence line:"$'\n'"$hits"
}

check_order() {
    tools/include_order.py || fail "a folder uses one that it may not use"
}

check_samples() {
    tools/host_guide.py || fail "a sample in the guide for host authors is in no example"
}

check_pages() {
    tools/api_pages.sh build/docs || fail "a public member has no comment, or a link leads nowhere"
}

check_headers() {
    cmake --build "$headers" --target header_checks || fail "a header does not compile alone"
}

# An optimised build with the other compiler and many sources compiled as one: their names must not clash.
check_release() {
    cmake --build "$release" || fail "the release build"
}

check_lint() {
    sources | grep '\.cpp$' | grep -vE '^(tests|benchmarks)/' | xargs tools/lint.py "$release" || fail "lint"
}

for check in format lengths habits order samples pages headers release lint; do
    step "Checking: $check"
    started=$SECONDS
    "check_$check"
    echo "$check: $(duration $((SECONDS - started)))"
done
[ "$failures" -eq 0 ] && echo "check: all clean"
