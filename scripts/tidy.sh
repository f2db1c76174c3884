#!/usr/bin/env bash
# tidy.sh BUILD: runs clang-tidy over the C++ core as compiled in that build folder. Sources that were clean and
# have not changed since, nor any header, are passed over.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=$1
stamps="$build/tidy"
mkdir -p "$stamps"
headers=$(cat "$root/.clang-tidy" "$root"/src/*/*.h | sha256sum | cut -d' ' -f1)

check() {
    local source=$1 stamp
    stamp="$stamps/$(cat "$source" <(echo "$source $headers") | sha256sum | cut -d' ' -f1)"
    [ -e "$stamp" ] && return
    echo "${source#"$root"/}"
    clang-tidy -p "$build" --quiet "$source" 2>/dev/null && touch "$stamp"
}
export -f check
export root build stamps headers
printf '%s\0' "$root"/src/{platform,pane,settings,sorter,hotkeys,hidelist,simulated}/*.cpp |
    xargs -0 -P "$(nproc)" -n 1 bash -c 'check "$1"' check
