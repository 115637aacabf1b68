# Shared by the end-to-end tests: the real program on a screen of its own, driven from outside.
# Source it with the program's path in $1. Everything it starts ends with the test.
set -euo pipefail

program=$(realpath "$1")
work=$(mktemp -d)
export HOME=$work XDG_CONFIG_HOME=$work/config XDG_RUNTIME_DIR=$work/runtime SDL_AUDIODRIVER=dummy
export QT_QPA_PLATFORM=xcb QT_SCALE_FACTOR=1
settings=$XDG_CONFIG_HOME/Skylob/Skylob.ini
mkdir -p "$XDG_RUNTIME_DIR" "$(dirname "$settings")" "$work/data"
chmod 700 "$XDG_RUNTIME_DIR"
trap 'kill $(jobs -p) 2>/dev/null || true; rm -rf "$work"' EXIT

fail() {
    echo "FAILED: $*" >&2
    exit 1
}

# How many seconds anything may take on a machine that is busy with other things.
patience=120

# wait_for COMMAND...: waits for the command to succeed.
wait_for() {
    local deadline=$((SECONDS + patience))
    until "$@" >/dev/null 2>&1; do
        ((SECONDS < deadline)) || return 1
        sleep 0.05
    done
}

start_display() {
    start_bare_display
    openbox >/dev/null 2>&1 &
    wait_for xdotool get_desktop || fail "the window manager does not start"
}

# start_bare_display: without a window manager.
start_bare_display() {
    Xvfb -noreset -displayfd 3 -screen 0 1400x900x24 3>"$work/display" >/dev/null 2>&1 &
    wait_for test -s "$work/display" || fail "Xvfb does not start"
    DISPLAY=:$(<"$work/display")
    export DISPLAY
}

# start_compositing: makes windows translucent, behind which all is grey.
start_compositing() {
    ! is_grey || fail "the background is grey already"
    xcompmgr &
    wait_for is_grey || fail "the compositing manager does not start"
}
is_grey() { import -window root -crop 1x1+0+0 -depth 8 txt:- | grep -q '#808080'; }

# start_session_bus: one of our own, over which programs started from now on tell screen readers what is
# on their screens.
start_session_bus() {
    dbus-daemon --session --nofork --nopidfile --print-address=3 3>"$work/bus" >"$work/bus.log" 2>&1 &
    wait_for test -s "$work/bus" || fail "no session bus: $(<"$work/bus.log")"
    DBUS_SESSION_BUS_ADDRESS=$(<"$work/bus")
    export DBUS_SESSION_BUS_ADDRESS QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
}

window() { xdotool search --onlyvisible --name "$1" 2>/dev/null | head -n 1; }
is_shown() { [[ -n $(window "$1") ]]; }
# A search that fails, because some window goes at the moment, says so: that is not "none found".
is_gone() { [[ -z $(xdotool search --onlyvisible --name "$1" 2>&1) ]]; }
is_over() { ! kill -0 "$game" 2>/dev/null; }

lobby="Skylob - Player List"
battle="Skylob - Battlefield"
manual="Skylob - Help Window"
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
    wait_for holds_players "$@" || fail "not these players: $*: $(od -c "$list")"
}
expect_setting() { wait_for grep -qxF "$1" "$settings" || fail "no $1 in: $(<"$settings")"; }

shown() { wait_for is_shown "$1" || fail "no window '$1': $(<"$work/stderr")"; }
gone() { wait_for is_gone "$1" || fail "the window '$1' stays"; }
not() { ! "$@"; }

opacity() { xprop -id "$(window "$1")" _NET_WM_WINDOW_OPACITY; }
# Whether a window is there and has faded in, or does not fade at all. In a fade it takes no input.
is_opaque() { [[ $(opacity "$1") =~ '= 4294967295'|'not found' ]]; }

# Whether keys go to the window, and the window manager agrees. Asks for it where they do not.
has_keyboard() {
    local id
    id=$(window "$1") || return
    [[ $(xdotool getwindowfocus) == "$id" && $(xdotool getactivewindow) == "$id" ]] && return
    xdotool windowactivate "$id"
    return 1
}
takes_keys() { is_opaque "$1" && has_keyboard "$1"; }

# press WINDOW KEY...: presses keys as soon as the window takes them.
press() {
    wait_for takes_keys "$1" || fail "the window '$1' takes no keys: $(<"$work/stderr")"
    xdotool key "${@:2}"
}

title='^ $' # no caption

# start_program OPTION...: starts the program and waits for the title page.
start_program() {
    "$program" --data-dir "$work/data" "$@" 2>"$work/stderr" &
    game=$!
    shown "$title"
}

# calm LINE...: settings without meteors and storms, which come to whoever dawdles. A storm lets
# nobody play for minutes, and both draw random numbers.
calm() { printf '%s\n' '[Defaults]' MeteorsSetting=0 LightningSetting=0 "$@" >"$settings"; }

# start_game OPTION...: the same without a welcome, and goes on to the player list.
start_game() {
    [[ -s $settings ]] || calm
    grep -q NewUser "$settings" || sed -i '1aNewUser=NoShow' "$settings"
    start_program "$@"
    press "$title" space
    shown "$lobby"
}

# look WINDOW: takes the picture in which `pixels_of COLOUR [AREA]` counts the pixels of a colour.
look() {
    local id
    id=$(window "$1") && import -window "$id" "$work/look.miff"
}
pixels_of() {
    convert "$work/look.miff" ${2:+-crop "$2"} -fill black +opaque "$1" -fill white -opaque "$1" \
        -format '%[fx:round(mean*w*h)]' info:
}

# Whether a player may shoot. The button is golden then, unless the pointer is over it.
is_turn() { look "$battle" && (($(pixels_of "$gold") > 0)); }
gold='#F2B92E'
await_turn() { wait_for is_turn || fail "it is nobody's turn: $(<"$work/stderr")"; }

# point_at_gold: moves the pointer to the middle of the golden button.
point_at_gold() {
    local x y
    look "$battle"
    read -r x y < <(convert "$work/look.miff" -fill black +opaque "$gold" -trim \
        -format '%[fx:round(page.x+w/2)] %[fx:round(page.y+h/2)]\n' info:)
    xdotool mousemove --window "$(window "$battle")" "$x" "$y"
}

# expect_flight: a red trail has grown since `before`, its pixels then, and the button is not golden.
red() { pixels_of '#FF0000'; }
trail_grows() { look "$battle" && (($(red) > before)); }
expect_flight() {
    wait_for trail_grows || fail "the trail does not grow in flight: $(red) pixels after $before"
    before=$(red)
    (($(pixels_of "$gold") == 0)) || fail "the controls look usable in flight"
}

# start_battle: lets the first player of the list fight the second.
start_battle() {
    press "$lobby" Home Return Down Return
    await_turn
}

# start_battle_with_computer KEY: lets the first player fight the computer at the level of a key.
start_battle_with_computer() {
    press "$lobby" Home Return alt+c
    press "$skill" "alt+$1"
    await_turn
}

leave_program() {
    press "$lobby" Escape
    press Confirm alt+y
    expect_exit
}

expect_exit() {
    wait_for is_over || fail "the program does not end"
    wait "$game" || fail "exit status $?: $(<"$work/stderr")"
}
