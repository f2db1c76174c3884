#!/usr/bin/env bash
# icons.sh: makes resources/SorterPane.tiff, the icon in all sizes that hosts show, from resources/SorterPane.svg. Needs
# the Debian packages librsvg2-bin and imagemagick. To be run after the drawing was changed; the result is committed.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/usage.sh"
help_or_refuse "$@"
resources=$(cd "$(dirname "${BASH_SOURCE[0]}")/../resources" && pwd)
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

# The first is the size in points at which hosts draw the icon that scale none.
sizes=(48 16 32 64 128 256 512)
pictures=()
for size in "${sizes[@]}"; do
    rsvg-convert -w "$size" -h "$size" "$resources/SorterPane.svg" -o "$folder/$size.png"
    pictures+=("$folder/$size.png")
done
convert "${pictures[@]}" -strip -units PixelsPerInch -density 72 -compress zip "$resources/SorterPane.tiff"
