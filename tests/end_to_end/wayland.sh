#!/usr/bin/env bash
# Usage: wayland.sh PROGRAM
# Under a Wayland compositor and without any X server a shell is seen flying while the program is busy
# with it, boxes come up over their screen, and the program ends well. Over a full screen a new window is not
# given the keyboard there, but may ask for it. Left out (status 77) where the
# packages [wayland] are not installed.
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
source "$(dirname "${BASH_SOURCE[0]}")/lib_wayland.sh"
have_wayland grim wtype jq || exit 77
unset DISPLAY

# What lib.sh asks an X server for.
windows() {
    swaymsg -t get_tree | jq -r --arg name "$1" \
        ".. | objects | select(.pid and (.name // \"\" | test(\$name))) | $2"
}
window() { windows "$1" .id | head -n 1; }
is_gone() { [[ -z $(window "$1") ]]; }
takes_keys() { [[ $(windows "$1" .focused) == *true* ]]; }
look() { grim -t ppm "$work/look.miff"; }
press() {
    local key
    wait_for takes_keys "$1" || fail "the window '$1' takes no keys: $(<"$work/stderr")"
    for key in "${@:2}"; do
        if [[ $key == alt+* ]]; then wtype -M alt -k "${key#alt+}" -m alt; else wtype -k "$key"; fi
    done
}

# expect_over BOX WINDOW: the box is there, and its middle is the window's, give or take its frame.
middle_of() { windows "$1" '.rect | "\(.x + .width / 2 | round) \(.y + .height / 2 | round)"'; }
expect_over() {
    local x y over_x over_y
    wait_for takes_keys "$1" || fail "no box '$1'"
    read -r x y <<<"$(middle_of "$1")"
    read -r over_x over_y <<<"$(middle_of "$2")"
    ((x - over_x < 20 && over_x - x < 20 && y - over_y < 40 && over_y - y < 40)) ||
        fail "the box '$1' is at $x,$y, its screen at $over_x,$over_y"
}

calm GameSpeed=1
players Ann Bob
start_compositor headless
# A keyboard that stays: programs would miss the first keys of one that comes for a moment.
wtype -s 3600000 -k Shift_L &
start_game --seed 1
press "$lobby" Delete
expect_over Confirm "$lobby"
press Confirm Escape
gone Confirm
start_battle

red() { pixels_of '#FF0000'; }
trail_grows() { look && (($(red) > before)); }
look
before=$(red)
press "$battle" alt+s
for glance in 1 2 3; do
    wait_for trail_grows || fail "the trail does not grow in flight: $(red) pixels after $before"
    before=$(red)
    (($(pixels_of "$gold") == 0)) || fail "the controls look usable in flight"
done
await_turn
swaymsg --quiet focus_on_window_activation focus
press "$battle" F11 F1
press "$manual" Escape
gone "$manual"
press "$battle" Escape
gone "$battle"
press "$lobby" Escape
expect_over Confirm "$lobby"
press Confirm alt+y
expect_exit
