#!/bin/sh
# check-format.sh ROOT: names every source that is not formatted as .clang-format says. Another release of clang-format
# lays out the same style differently: with one, exits with 77.
cd "$1" || exit 1
version=14
if ! command -v clang-format >/dev/null; then
    echo "clang-format is missing; release $version checks the format"
    exit 1
fi
if ! clang-format --version | grep -q "version $version\."; then
    echo "skipped: the format is that of clang-format $version, and this is $(clang-format --version)"
    exit 77
fi
find src standins tests fuzz \( -name '*.h' -o -name '*.cpp' -o -name '*.m' -o -name '*.mm' \) -print0 |
    xargs -0 clang-format --dry-run --Werror
