#!/usr/bin/env bash
# Usage: fade.sh PROGRAM SCREEN_FADE_TEST
# With fading switched on the battle screen goes in steps where a compositing manager makes windows
# translucent, and at once, with its opacity untouched, where there is none.
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

opacity() { xprop -id "$(window "$battle")" _NET_WM_WINDOW_OPACITY; }
is_opaque() { opacity | grep -qx '.*= 4294967295'; }

printf '[Defaults]\nFadeStatus=True\n' >"$settings"
players Ann Bob
start_display

start_game
start_battle
opacity | grep -q 'not found' || fail "an opacity without a compositing manager: $(opacity)"
press "$battle" Escape
gone "$battle"
leave_program

xcompmgr &
sleep 1
SKYLOB_EXPECT_FADES=1 "$2" >"$work/screen" || fail "no fade of a screen: $(<"$work/screen")"
start_game
start_battle
until_true 5 is_opaque || fail "the battle has not faded in: $(opacity)"
xprop -id "$(window "$battle")" -spy _NET_WM_WINDOW_OPACITY >"$work/opacities" &
until_true 5 test -s "$work/opacities" || fail "no look at the opacity"
press "$battle" Escape
gone "$battle"
leave_program
# Opacities are whole steps of 255ths, each repeated in four bytes. One may be missed, none made up.
steps=$(grep -o '[0-9]*$' "$work/opacities" | while read -r value; do echo $((value / 16843009)); done |
    uniq | tr '\n' ' ')
expected=" 255 235 215 195 175 155 135 115 95 75 55 35 15 0 "
for step in $steps; do
    [[ $expected == *" $step "* ]] || fail "an opacity of $step: $steps"
done
[[ $steps == "255 "*" 0 " && $(wc -w <<<"$steps") -ge 10 ]] || fail "not a whole fade: $steps"
