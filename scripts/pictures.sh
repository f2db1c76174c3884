#!/usr/bin/env bash
# pictures.sh [FOLDER]: makes the pictures of the pane in docs/pictures, or in that folder, with what was built last by
# ./run or ./test. Each is made by the stand-in host on a virtual display, in a home of its own.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$root/scripts/session.sh"

pictures=$(realpath "${1:-$root/docs/pictures}")
quarrybook="$root/build/bin/Quarrybook.app/Quarrybook"
home=$(mktemp -d /tmp/qb-home.XXXXXX)

# System colours of a dark desktop, as AppKit's defaults have them.
dark=(-windowBackgroundColor "0.16 0.16 0.18" -controlBackgroundColor "0.16 0.16 0.18" -controlColor "0.27 0.27 0.29"
    -controlTextColor "0.92 0.92 0.92" -textColor "0.92 0.92 0.92" -textBackgroundColor "0.10 0.10 0.11"
    -controlHighlightColor "0.33 0.33 0.35" -controlLightHighlightColor "0.45 0.45 0.47" -controlShadowColor "0.45 0.45 0.47"
    -controlDarkShadowColor "0.08 0.08 0.08" -disabledControlTextColor "0.62 0.62 0.62" -windowFrameTextColor "0.92 0.92 0.92"
    -keyboardFocusIndicatorColor "0.40 0.65 1.0" -alternateSelectedControlColor "0.10 0.35 0.75"
    -alternateSelectedControlTextColor "1.0 1.0 1.0" -secondarySelectedControlColor "0.30 0.30 0.33"
    -selectedControlColor "0.27 0.27 0.29" -selectedControlTextColor "0.92 0.92 0.92" -headerColor "0.22 0.22 0.24"
    -headerTextColor "0.92 0.92 0.92" -scrollBarColor "0.22 0.22 0.24" -knobColor "0.33 0.33 0.35")
colors=()

picture() { # NAME FONT-SIZE WIDTH HEIGHT LINE...
    local name=$1 font=$2 width=$3 height=$4
    shift 4
    printf '%s\n' "resize $width $height" select "$@" "wait 0.4" "picture \"$pictures/$name.png\"" unselect >"$home/scenario"
    session_run "$quarrybook" -NSFontSize "$font" "${colors[@]}" --play "$home/scenario" >/dev/null
}

session_start "$home"
trap 'session_end; rm -rf "$home"' EXIT
session_display
cp "$root/resources/sample/HideList.plist" "$home/GNUstep/Defaults/com.quarrybook.Sorter.plist"
hot_keys=("change note 45 0x100000" "change clip 8 0x120000")

picture pane 12 620 680 "${hot_keys[@]}" "edit 1 3 0"
picture refused 12 620 680 "change note 8 0x120000"
picture smallest-window 12 480 440
for font in 9 12 15 18 21 24; do
    picture "type-$font" "$font" 620 680
done
colors=("${dark[@]}")
picture dark-colours 12 620 680 "edit 1 3 0"

colors=()
{
    printf '<?xml version="1.0" encoding="UTF-8"?>\n<plist version="1.0"><dict>'
    printf '<key>UserSpecifiedFullScreenApplications</key><dict>'
    printf '<key>%s</key><false/>' Atlas 日本語 简体中文 한국어 Ελληνικά Русский \
        "An application whose name is so long that there is no room for all of it in the list"
    printf '</dict></dict></plist>\n'
} >"$home/GNUstep/Defaults/com.quarrybook.Sorter.plist"
picture names-of-every-script 12 620 680
