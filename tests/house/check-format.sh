#!/bin/sh
# check-format.sh ROOT: names every source that is not formatted as .clang-format says.
cd "$1" || exit 1
find src standins tests \( -name '*.h' -o -name '*.cpp' -o -name '*.m' -o -name '*.mm' \) -print0 |
    xargs -0 clang-format --dry-run --Werror
