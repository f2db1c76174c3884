#!/usr/bin/env bash
# tidy.sh BUILD: runs clang-tidy over the product's and the stand-ins' sources as that build folder is configured to
# compile them. Those that were clean and have not changed since, nor any header, are passed over.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$root/scripts/usage.sh"
help_or_refuse "$@"
[ $# -eq 1 ] || refuse "takes a build folder"
build=$1
stamps="$build/clean"
mkdir -p "$stamps"
command -v clang-tidy >/dev/null || {
    echo "clang-tidy is missing" >&2
    exit 1
}
headers=$(find "$root/src" "$root/standins" -name '*.h' -print0 | sort -z | xargs -0 cat "$root/.clang-tidy" | sha256sum)

# Off in Objective-C, whose truth values are numbers, whose nil is no nullptr, whose objects are owned by retain and
# release, whose selectors are pointers, and which logs and formats by functions of C.
objc=-readability-implicit-bool-conversion,-modernize-use-nullptr,-cppcoreguidelines-owning-memory
objc+=,-misc-misplaced-const,-cppcoreguidelines-pro-type-vararg
# Off in the stand-ins' Objective-C as well. Programs have their command line as C's array and hand it on to AppKit; an
# exception ends them.
standins=-cppcoreguidelines-pro-bounds-pointer-arithmetic,-cppcoreguidelines-pro-type-const-cast
standins+=,-readability-non-const-parameter,-bugprone-exception-escape
# They print to C's streams, between what AppKit prints there, and in English.
standins+=,-cert-err33-c,-clang-analyzer-optin.osx.cocoa.localizability.NonLocalizedStringChecker
# What a signal's handler or the end of the program needs is global, and a store is asked as an object.
standins+=,-cppcoreguidelines-avoid-non-const-global-variables,-readability-convert-member-functions-to-static

# How far the analyzer follows the paths of a function. By itself it follows four times as many steps, which doubles the
# time for some sources, and has found nothing more.
steps=50000

check() {
    local source=$1 stamp
    local options=(--extra-arg=-Xclang --extra-arg=-analyzer-config --extra-arg=-Xclang "--extra-arg=max-nodes=$steps")
    stamp="$stamps/$(cat "$source" <(echo "$source $headers $objc $standins $steps") | sha256sum | cut -d' ' -f1)"
    [ -e "$stamp" ] && return
    case $source in
    */standins/*.m | */standins/*.mm) options+=("--checks=$objc,$standins") ;;
    *.m | *.mm) options+=("--checks=$objc") ;;
    esac
    echo "${source#"$root"/}"
    clang-tidy -p "$build" --quiet "${options[@]}" "$source" 2>/dev/null && touch "$stamp"
}
export -f check
export root build stamps headers objc standins steps
# What is built on macOS alone has no flags to be compiled with here; its syntax is checked by a test.
find "$root/src" "$root/standins" \( -name '*.cpp' -o -name '*.m' -o -name '*.mm' \) -not -path '*/cocoa/*' -print0 |
    xargs -0 -P "$(nproc)" -n 1 bash -c 'check "$1"' check
