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

lobby="Skylob - Player List"
battle="Skylob - Battlefield"
skill="Select a Skill Level"

# The player file, in which `players RECORD...` puts records of NAME:PLAYED:WON:AVERAGE:RANKING and
# `expect_players RECORD...` compares it with them.
list=$work/data/Skylob.Data
two_bytes() { printf '\\x%02x\\x%02x' $(($1 & 255)) $(($1 >> 8 & 255)); }
records() {
    local record name figures figure
    for record in "$@"; do
        IFS=: read -r name figures <<<"$record:0:0:0:0"
        printf '%-20s' "$name"
        for figure in $(cut -d: -f1-4 <<<"$figures" | tr : ' '); do
            printf "$(two_bytes "$figure")"
        done
        printf '\0'
    done
}
players() { records "$@" >"$list"; }
holds_players() { records "$@" | cmp - "$list"; }
expect_players() {
    until_true 5 holds_players "$@" || fail "not these players: $*: $(od -c "$list")"
}
expect_setting() { until_true 5 grep -qxF "$1" "$settings" || fail "no $1 in: $(<"$settings")"; }

shown() { until_true "${2:-20}" is_shown "$1" || fail "no window '$1': $(<"$work/stderr")"; }
gone() { until_true "${2:-20}" not is_shown "$1" || fail "the window '$1' stays"; }
not() { ! "$@"; }

title='^ $' # no caption

# start_program OPTION...: starts the program and waits for the title page.
start_program() {
    "$program" --data-dir "$work/data" "$@" 2>"$work/stderr" &
    game=$!
    shown "$title"
}

# start_game OPTION...: the same without a welcome, and goes on to the player list.
start_game() {
    [[ -s $settings ]] || echo '[Defaults]' >"$settings"
    grep -q NewUser "$settings" || sed -i '1aNewUser=NoShow' "$settings"
    start_program "$@"
    press "$title" space
    shown "$lobby"
    sleep 0.5 # the list is filled
}

# start_battle: lets the first player of the list fight the second.
start_battle() {
    press "$lobby" Home Return Down Return
    shown "$battle"
    sleep 0.5 # the first picture
}

# start_battle_with_computer KEY: lets the first player fight the computer at the level of a key.
start_battle_with_computer() {
    press "$lobby" Home Return alt+c
    shown "$skill"
    press "$skill" "alt+$1"
    shown "$battle"
    sleep 0.5
}

leave_program() {
    shown "$lobby"
    sleep 0.5 # it may be fading in
    press "$lobby" Escape
    shown Confirm
    press Confirm alt+y
    expect_exit 10
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
