#!/usr/bin/env bash
# Usage: scale.sh PROGRAM
# The scale that was chosen holds from the next start on, --scale for one start, both on top of the
# toolkit's own; and on a display that is too small for it everything can be reached.
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

windows=$(dirname "$settings")/Windows.ini
size() { xdotool getwindowgeometry "$(window "$title")" | grep -o '[0-9]*x[0-9]*'; }
has_size() { [[ $(size) == "$1" ]]; }
# expect SIZE OPTION...: the size of the title page.
expect() {
    start_program "${@:2}"
    wait_for has_size "$1" || fail "$(size) instead of $1 with: ${*:2}"
    kill "$game"
    wait "$game" || true
}
more_is_golden() { look "$battle" && (($(pixels_of "$gold") > before)); }

calm NewUser=NoShow
players Ann Bob
start_display
start_program
press "$title" alt+s Down Down Return
wait_for grep -qx Scale=150 "$windows" || fail "no scale is kept: $(<"$windows")"
has_size 640x440 || fail "the page has another size at once"
kill "$game"
QT_SCALE_FACTOR=1.25 expect 1200x825
expect 800x550 --scale=125
expect 960x660 # --scale has kept nothing
printf '[Windows]\nScale=1500\n' >"$windows"
expect 640x440

QT_SCALE_FACTOR=1.5 start_game --scale=200 # nothing fits
press "$lobby" Home Return Down Return
await_turn
before=$(pixels_of "$gold") # at the edge
press "$battle" Tab Tab
wait_for more_is_golden || fail "the button that has the focus is not in view"
