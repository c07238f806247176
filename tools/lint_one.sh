#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# usage: lint_one.sh BUILD_DIRECTORY SOURCE: clang-tidy, skipped when nothing the file reads has changed since it passed.
set -euo pipefail
build=$1 source=$2
command=$(/usr/bin/python3 - "$build" "$source" <<'PY'
import json, os, shlex, sys
build, source = sys.argv[1:3]
for entry in json.load(open(os.path.join(build, "compile_commands.json"))):
    if os.path.realpath(entry["file"]) == os.path.realpath(source):
        words = shlex.split(entry["command"])
        skip = {"-fpch-preprocess", "-Winvalid-pch"}
        out, i = [], next(n for n, w in enumerate(words) if w.endswith(("c++", "g++")))+1
        while i < len(words):
            word = words[i]
            if word in ("-o", "-MF", "-MT", "-include") : i += 2; continue
            if word in ("-c", "-MD") or word in skip or word == entry["file"]: i += 1; continue
            if word.startswith("-I") and word.endswith("_autogen/include"):  # made from forms: not ours to lint
                out += ["-isystem", word[2:]]; i += 1; continue
            out.append(word); i += 1
        print(shlex.join(out)); break
PY
)
[ -n "$command" ] || { echo "not built, not linted: $source"; exit 0; }
eval "flags=($command)"
case "$command" in
*QT_WIDGETS_LIB*) pch=(-include cmake/WidgetsPch.h) ;;
*) pch=(-include cmake/CorePch.h) ;;
esac
stamps="$build/lint"
mkdir -p "$stamps"
read_text=$(g++ "${flags[@]}" "${pch[@]}" -E -P "$source" | sha256sum)
key=$({ cat .clang-tidy; echo "$read_text"; } | sha256sum | cut -d' ' -f1)
[ ! -e "$stamps/$key" ] || exit 0
clang-tidy --quiet "$source" -- "${flags[@]}" "${pch[@]}" 2>/dev/null && touch "$stamps/$key"
