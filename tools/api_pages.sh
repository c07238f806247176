#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# usage: api_pages.sh OUTPUT_DIRECTORY: makes the pages of the installed headers. A public member without a
# comment, and a link that leads nowhere, is an error.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
output=$1
rm -rf "$output"
mkdir -p "$output"
headers=$(sed -n 's/^| `\([A-Za-z/]*\.h\)`.*/\1/p' docs/public_headers.md)
{
    cat tools/Doxyfile
    echo "PROJECT_NUMBER = $(cat VERSION)"
    echo "OUTPUT_DIRECTORY = $output"
    echo "STRIP_FROM_PATH = $PWD"
    echo "INPUT =" docs/host_guide.md docs/public_headers.md docs/host_tests.md docs/promises.md $headers
} | doxygen -
