# Shared by the end-to-end tests: the real program on a screen of its own, driven from outside.
# Source it with the program's path in $1. Everything it starts ends with the test.
set -euo pipefail

program=$(realpath "$1")
work=$(mktemp -d)
export XDG_CONFIG_HOME=$work/config XDG_RUNTIME_DIR=$work/runtime SDL_AUDIODRIVER=dummy
export QT_QPA_PLATFORM=xcb QT_SCALE_FACTOR=1
settings=$XDG_CONFIG_HOME/Skylob/Skylob.ini
mkdir -p "$XDG_RUNTIME_DIR" "$(dirname "$settings")" "$work/data"
chmod 700 "$XDG_RUNTIME_DIR"
trap 'kill $(jobs -p) 2>/dev/null || true; rm -rf "$work"' EXIT

fail() {
    echo "FAILED: $*" >&2
    exit 1
}

# until_true SECONDS COMMAND...: waits for the command to succeed.
until_true() {
    local deadline=$((SECONDS + $1))
    shift
    until "$@" >/dev/null 2>&1; do
        ((SECONDS < deadline)) || return 1
        sleep 0.05
    done
}

start_display() {
    Xvfb -displayfd 3 -screen 0 1400x900x24 3>"$work/display" >/dev/null 2>&1 &
    until_true 10 test -s "$work/display" || fail "Xvfb does not start"
    DISPLAY=:$(<"$work/display")
    export DISPLAY
    openbox >/dev/null 2>&1 &
    until_true 20 xdotool get_desktop || fail "the window manager does not start"
}

window() { xdotool search --onlyvisible --name "$1" 2>/dev/null | head -n 1; }
is_shown() { [[ -n $(window "$1") ]]; }
is_over() { ! kill -0 "$game" 2>/dev/null; }

# start_game OPTION...: starts the program and waits for the battle.
start_game() {
    "$program" --data-dir "$work/data" "$@" 2>"$work/stderr" &
    game=$!
    until_true 20 is_shown "Skylob - Battlefield" || fail "no battle: $(<"$work/stderr")"
    sleep 0.5 # the first picture
}

# press WINDOW KEY...: gives the window the focus and presses keys.
press() {
    local id
    id=$(window "$1")
    shift
    [[ -z $id ]] || { xdotool windowfocus --sync "$id" key "$@" 2>/dev/null || true; }
}

expect_exit() {
    until_true "$1" is_over || fail "the program does not end"
    wait "$game" || fail "exit status $?: $(<"$work/stderr")"
}

# pixels_of FILE COLOUR: how many pixels of a picture have that colour.
pixels_of() { convert "$1" -fill black +opaque "$2" -fill white -opaque "$2" -format '%[fx:round(mean*w*h)]' info:; }
