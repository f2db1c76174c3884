#!/usr/bin/env bash
# tidy.sh BUILD: runs clang-tidy over the product's sources as that build folder is configured to compile them. Those
# that were clean and have not changed since, nor any header, are passed over.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=$1
stamps="$build/clean"
mkdir -p "$stamps"
headers=$(find "$root/src" "$root/standins" -name '*.h' -print0 | sort -z | xargs -0 cat "$root/.clang-tidy" | sha256sum)
# g++, which compiles Objective-C here, has these headers to itself.
objc_headers=$(dirname "$(gcc -print-file-name=include/objc/objc.h)")/..
# Objective-C's truth values are numbers, its objects hold by bare pointer what they make and delete, and it logs and
# formats by functions of C.
objc_checks=-readability-implicit-bool-conversion,-modernize-use-nullptr,-cppcoreguidelines-owning-memory,-cppcoreguidelines-pro-type-vararg

check() {
    local source=$1 stamp options=()
    stamp="$stamps/$(cat "$source" <(echo "$source $headers") | sha256sum | cut -d' ' -f1)"
    [ -e "$stamp" ] && return
    echo "${source#"$root"/}"
    [[ $source == *.mm ]] && options=("--checks=$objc_checks")
    clang-tidy -p "$build" --quiet --extra-arg=-idirafter"$objc_headers" "${options[@]}" "$source" 2>/dev/null &&
        touch "$stamp"
}
export -f check
export root build stamps headers objc_headers objc_checks
# What is built on macOS only cannot be compiled as it is here. The stand-ins' Objective-C++ is left out: command lines
# and C's streams are its trade.
{
    find "$root/src" \( -name '*.cpp' -o -name '*.mm' \) -not -path '*/cocoa/*' -print0
    find "$root/standins" -name '*.cpp' -print0
} |
    xargs -0 -P "$(nproc)" -n 1 bash -c 'check "$1"' check
