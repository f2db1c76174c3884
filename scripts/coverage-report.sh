#!/usr/bin/env bash
# coverage-report.sh BUILD: reports the lines and branches that the tests in that build folder reached, on the terminal
# and as BUILD/report/index.html. Fails unless they are all of the core's, and nearly all of the shell's lines.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=$1
core_rooms=$(sed -n 's/ core:.*//p' "$build/rooms.txt" | paste -sd '|')
core="$root/src/($core_rooms)/"
shell="$root/src/(appkit|support)/"
counts="$build/report/counts.json"
mkdir -p "$build/report"

report() { # WHAT FILTER OPTION...
    local what=$1 filter=$2
    shift 2
    printf '\n%s\n' "$what"
    gcovr --root "$root" --add-tracefile "$counts" --filter "$filter" --print-summary "$@"
}

gcovr --root "$root" --object-directory "$build" --filter "$core" --filter "$shell" \
    --exclude-throw-branches --exclude-unreachable-branches --json "$counts"
gcovr --root "$root" --add-tracefile "$counts" --html-details "$build/report/index.html"
status=0
report "The core: every line and branch" "$core" --txt --fail-under-line 100 --fail-under-branch 100 || status=1
# The rest is reached only when the system itself fails.
report "The shell: 95 % of the lines" "$shell" --txt --fail-under-line 95 || status=1
exit $status
