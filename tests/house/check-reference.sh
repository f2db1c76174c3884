#!/bin/sh
# check-reference.sh ROOT FOLDER: has Doxygen build the reference of the rooms' headers in that folder; fails on a warning.
cd "$1" || exit 1
{
    cat docs/Doxyfile
    echo "OUTPUT_DIRECTORY = $2"
} | doxygen -
