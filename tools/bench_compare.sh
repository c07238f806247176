#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# usage: bench_compare.sh REVISION [--map] [GOOGLE BENCHMARK ARGUMENTS]
# Builds that revision in a tree of its own, and measures it and what is here in turn, so that a change of the machine's
# mood meets both alike. --map: the benchmarks of maps. ROUNDS: how often each is measured (5). The tree is removed
# afterwards.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
. tools/common.sh
[ $# -gt 0 ] || { sed -n '3,6s/^# *//p' tools/bench_compare.sh >&2; exit 2; }
revision=$(git rev-parse --verify --quiet "$1^{commit}") || { echo "bench: no such revision: $1" >&2; exit 2; }
shift
program=orvane_benchmarks
if [ "${1:-}" = --map ]; then
    program=orvane_map_benchmarks
    shift
fi
tree=$PWD/build/compare/tree results=$PWD/build/compare/results

remove_tree() {
    git worktree remove --force "$tree" 2>/dev/null || rm -rf "$tree"
    git worktree prune
}

build_in() { # build_in FOLDER LABEL
    step "Building ($2)"
    (cd "$1" && quietly build/bench-configure.log cmake --preset bench && cmake --build --preset bench --target "$program")
}

measure() { # measure FOLDER LABEL ROUND [ARGUMENT...]
    local folder=$1 file=$results/$2-$3.json
    shift 3
    quietly "${file%.json}.log" "$folder/build/bench/bin/$program" --benchmark_repetitions=1 "$@" \
        --benchmark_out="$file" --benchmark_out_format=json
}

remove_tree
rm -rf "$results"
mkdir -p "$results"
trap remove_tree EXIT
git worktree add --quiet --detach "$tree" "$revision"
build_in "$tree" "$(git log -1 --format=%h "$revision")"
build_in "$PWD" "here"
export QT_QPA_PLATFORM=offscreen
for round in $(seq "${ROUNDS:-5}"); do
    step "Measuring, round $round"
    measure "$tree" before "$round" "$@"
    measure "$PWD" here "$round" "$@"
done
tools/bench_compare.py "$results"
