#!/usr/bin/env bash
# coverage-report.sh BUILD: reports the lines and branches that the tests in that build folder reached, on the terminal
# and as BUILD/report/index.html. Fails unless they are all of the core's, and nearly all of the shell's lines.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$root/scripts/usage.sh"
help_or_refuse "$@"
[ $# -eq 1 ] || refuse "takes a build folder"
build=$1
core_rooms=$(sed -n 's/ core:.*//p' "$build/rooms.txt" | paste -sd '|')
branches=(--exclude-throw-branches --exclude-unreachable-branches)
mkdir -p "$build/report"

count() { # NAME FILTER OPTION...
    local counts="$build/report/$1.json" filter=$2
    shift 2
    gcovr --root "$root" --object-directory "$build" --filter "$filter" "${branches[@]}" --json "$counts" "$@"
}

report() { # NAME OPTION...
    local counts="$build/report/$1.json"
    printf '\nThe %s\n' "$1"
    shift
    gcovr --root "$root" --add-tracefile "$counts" "${branches[@]}" --txt --print-summary "$@"
}

# Sources that have gone leave objects and notes behind, and notes of what is not there cannot be reported.
ninja -C "$build" -t cleandead >/dev/null
find "$build" -name '*.gcno' | while read -r notes; do
    [ -e "${notes%.gcno}.o" ] || rm "$notes"
done

# Some programs compile pieces of the core once more, with branches that are numbered in another way. What property lists
# have of the core's headers is only run by such programs.
count core "$root/src/($core_rooms)/" --exclude-directories '.*/(tests/(appkit|propertylists|walks)|src/propertylists)'
count shell "$root/src/(appkit|propertylists|support)/"
gcovr --root "$root" --add-tracefile "$build/report/core.json" --add-tracefile "$build/report/shell.json" \
    "${branches[@]}" --html-details "$build/report/index.html"

status=0
report core --fail-under-line 100 --fail-under-branch 100 || status=1
# The rest is reached only when the system itself fails.
report shell --fail-under-line 95 || status=1
exit $status
