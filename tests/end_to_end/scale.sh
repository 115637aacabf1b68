#!/usr/bin/env bash
# Usage: scale.sh PROGRAM
# The scale that was chosen holds from the next start on, --scale for one start, both on top of the
# toolkit's own; and on a display that is too small for it everything can be reached.
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

windows=$(dirname "$settings")/Windows.ini
size() { xdotool getwindowgeometry "$(window "$1")" | grep -o '[0-9]*x[0-9]*'; }
has_size() { [[ $(size "$1") == "$2" ]]; }
expect_size() { wait_for has_size "$1" "$2" || fail "'$1' is $(size "$1") large instead of $2"; }
end() {
    kill "$game"
    wait "$game" || true
}
start_with() { # SIZE OPTION...
    start_program "${@:2}"
    expect_size "$title" "$1"
}
more_is_golden() { look "$battle" && (($(pixels_of "$gold") > before)); }

calm NewUser=NoShow
players Ann Bob
start_display

start_with 640x440
press "$title" alt+s Down Down Return
wait_for grep -qx Scale=150 "$windows" || fail "no scale is kept: $(<"$windows")"
has_size "$title" 640x440 || fail "the page has another size at once"
end
QT_SCALE_FACTOR=1.25 start_with 1200x825
end
start_with 800x550 --scale=125
end
grep -qx Scale=150 "$windows" || fail "--scale is kept"
printf '[Windows]\nScale=1500\n' >"$windows"
start_with 640x440
end

# Nothing fits on this display, three times as large.
export QT_SCALE_FACTOR=1.5
start_program --scale=200
press "$title" space
shown "$lobby"
press "$lobby" Home Return Down Return
shown "$battle"
await_turn
look "$battle"
before=$(pixels_of "$gold") # at the edge
press "$battle" Tab Tab
wait_for more_is_golden || fail "the button that has the focus is not in view"
press "$battle" Escape
gone "$battle"
leave_program
