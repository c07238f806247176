#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# usage: check.sh --quick | check.sh BUILD_DIRECTORY
# --quick: what needs no build. With a configured build directory also headers alone and lint.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
. tools/common.sh
jobs=$(nproc)
failures=0

fail() {
    echo "check: $*" >&2
    failures=$((failures + 1))
}

check_format() {
    step "Format"
    sources | xargs -P "$jobs" -n 20 clang-format --dry-run --Werror || fail "format: run ./dev format"
}

check_lengths() {
    step "Function and file length"
    sources | xargs awk -f tools/lengths.awk || fail "a function or a file is too long"
}

check_habits() {
    step "Habits"
    local hits
    hits=$(grep -nE 'QTest::qSleep|QThread::m?sleep|std::this_thread::sleep' $(git ls-files 'tests/*.cpp' 'tests/*.h') || true)
    [ -z "$hits" ] || fail "fixed sleeps in tests:"$'\n'"$hits"
    hits=$(grep -nE 'blockSignals|QSignalBlocker' $(sources) || true)
    [ -z "$hits" ] || fail "signals are blocked:"$'\n'"$hits"
    hits=$(sources | xargs grep -L 'SPDX-License-Identifier' || true)
    [ -z "$hits" ] || fail "no licence line:"$'\n'"$hits"
}

# check_headers BUILD: each header compiles alone; the build supplies the headers generated from forms.
check_headers() {
    step "Headers alone"
    sources | grep '\.h$' | xargs -P "$jobs" -n 1 tools/header_alone.sh "$1" || fail "a header does not compile alone"
}

check_lint() {
    step "Lint"
    sources | grep '\.cpp$' | grep -vE '^(tests|benchmarks)/' |
        xargs tools/lint.py "$1" || fail "lint"
}

check_format
check_lengths
check_habits
if [ "${1:-}" != --quick ]; then
    check_headers "$1"
    check_lint "$1"
fi
[ "$failures" -eq 0 ] && echo "check: all clean"
