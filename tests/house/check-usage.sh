#!/usr/bin/env bash
# check-usage.sh ROOT: checks that each script shows the comment at its head for --help, and refuses an unknown option
# with status 2 and a sentence that names it. Prints those that do not, and exits with 1 if there is one.
set -euo pipefail
root=$1
# A script that does something else instead finds no program to do it with.
programs=$(mktemp -d)
trap 'rm -rf "$programs"' EXIT
for program in bash dirname nproc sed; do ln -s "$(command -v "$program")" "$programs/"; done
status=0

complain() { # SCRIPT WHAT OUTPUT
    printf '%s: %s: %s\n' "${1#"$root"/}" "$2" "$3"
    status=1
}

check_help() { # SCRIPT
    local shown first
    first=$(sed -n '2s/^# //p' "$1")
    if ! shown=$(PATH=$programs "$1" --help 2>&1) || [[ $shown != "$first"* ]]; then
        complain "$1" "--help does not show the comment" "$shown"
    fi
}

check_refusal() { # SCRIPT WORD
    local shown failure=0
    shown=$(PATH=$programs "$1" "$2" 2>&1) || failure=$?
    [[ $failure -eq 2 && $shown == *"'$2'"* ]] || complain "$1" "$2 is not refused" "$shown"
}

for script in "$root"/{run,test,benchmark,tests/appkit/in-session} "$root"/scripts/*.sh; do
    [ -x "$script" ] || continue # it is sourced
    check_help "$script"
    check_refusal "$script" --unknown
done
check_refusal "$root/scripts/setup.sh" unknown
exit "$status"
