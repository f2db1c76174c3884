#!/usr/bin/env bash
# pictures.sh [FOLDER]: makes the pictures of the pane in docs/pictures, or in that folder, with what was built last by
# ./test. Each is made by the stand-in host on a virtual display, in a home of its own; the sheet beside other panes by
# an independent host.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
. "$root/scripts/usage.sh"
help_or_refuse "$@"
. "$root/scripts/session.sh"
. "$root/scripts/colors.sh"

pictures=$(realpath "${1:-$root/docs/pictures}")
quarrybook="$root/build/bin/Quarrybook.app/Quarrybook"
home=$(mktemp -d /tmp/qb-home.XXXXXX)

options=("${light_colors[@]}")

picture() { # NAME FONT-SIZE WIDTH HEIGHT LINE...
    local name=$1 font=$2 width=$3 height=$4
    shift 4
    printf '%s\n' "resize $width $height" select "$@" "wait 0.4" "picture \"$pictures/$name.png\"" unselect >"$home/scenario"
    session_run "$quarrybook" -NSFontSize "$font" "${options[@]}" --play "$home/scenario" >/dev/null
}

"$root/scripts/setup.sh" application tests pictures
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
for language in Arabic Dutch French German Italian Japanese pt_BR SimplifiedChinese Spanish; do
    options=("${light_colors[@]}" -NSLanguages "($language, English)")
    picture "language-$language" 12 620 680
done
options=("${light_colors[@]}" -Sorter.NoteHotKeyCode 8 -Sorter.NoteHotKeyModifiers 4096
    -Sorter.ClipHotKeyCode 8 -Sorter.ClipHotKeyModifiers 4096)
picture equal-hot-keys 12 620 680
options=("${dark_colors[@]}")
picture dark-colours 12 620 680 "edit 1 3 0"

options=("${light_colors[@]}")
{
    printf '<?xml version="1.0" encoding="UTF-8"?>\n<plist version="1.0"><dict>'
    printf '<key>UserSpecifiedFullScreenApplications</key><dict>'
    printf '<key>%s</key><false/>' Atlas 日本語 简体中文 한국어 Ελληνικά Русский \
        "An application whose name is so long that there is no room for all of it in the list"
    printf '</dict></dict></plist>\n'
} >"$home/GNUstep/Defaults/com.quarrybook.Sorter.plist"
picture names-of-every-script 12 620 680

"$root/scripts/sheet-of-panes.py" "$pictures/beside-other-panes.png" "${light_colors[@]}"
