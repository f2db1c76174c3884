#!/usr/bin/env bash
# coverage-report.sh BUILD: reports the lines and branches of the core's rooms that the tests in that build folder
# reached, on the terminal and as BUILD/report/index.html. Fails when any was missed.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=$1
mkdir -p "$build/report"
core_rooms=$(sed -n 's/ core:.*//p' "$build/rooms.txt" | paste -sd '|')
gcovr --root "$root" --object-directory "$build" \
    --filter "$root/src/($core_rooms)/" \
    --exclude-throw-branches --exclude-unreachable-branches \
    --print-summary --txt --html-details "$build/report/index.html" \
    --fail-under-line 100 --fail-under-branch 100
