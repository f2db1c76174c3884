#!/usr/bin/env bash
# fuzz.sh SECONDS: builds the fuzzers and lets each look for inputs that break its rules for so many seconds, as many at
# a time as there are processors. Each begins with the inputs in fuzz/corpora. Prints what each did; an input that was
# found is kept in build/fuzz/found, and the last lines of its log are printed.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$root/scripts/usage.sh"
help_or_refuse "$@"
[ $# -eq 1 ] || refuse "takes the number of seconds for each fuzzer"
. "$root/scripts/build.sh"
seconds=$1
build_preset fuzz
found="$root/build/fuzz/found"
rm -rf "$found"
mkdir -p "$found"

fuzz() { # NAME
    local name=$1 words="$root/fuzz/words/$1" options=() log="$found/$1.log" inputs
    inputs=$(mktemp -d)
    [ -e "$words" ] && options+=("-dict=$words")
    if "$root/build/fuzz/fuzz/$name" "${options[@]}" "-max_total_time=$seconds" -max_len=4000 -timeout=10 \
        -artifact_prefix="$found/$name-" "$inputs" "$root/fuzz/corpora/$name" >"$log" 2>&1; then
        rm -rf "$inputs"
        printf '%s: %s, %s\n' "$name" "$(sed -n 's/^Done //p' "$log")" \
            "$(sed -n 's/.*DONE *cov: \([0-9]*\).*/\1 edges reached/p' "$log")"
    else
        rm -rf "$inputs"
        tail -n 40 "$log"
        echo "$name: failed; the whole log is $log"
        return 1
    fi
}
export -f fuzz
export root found seconds
find "$root/fuzz" -maxdepth 1 -name '*.cpp' -printf '%f\n' | sed 's/\.cpp$//' | sort |
    xargs -P "$(nproc)" -n 1 bash -c 'set -uo pipefail; fuzz "$1"' fuzz
