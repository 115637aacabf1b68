#!/usr/bin/env bash
# Usage: hover.sh PROGRAM TESTS
# A button knows that the pointer has come and gone, also where it rests and a window comes between.
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

is_hovered() { not is_turn; }

calm
players Ann Bob
start_display
"$2/controls_screen_tests" GlintButtonTest hoversUntilThePointerLeaves >"$work/tested" || fail "$(<"$work/tested")"
start_game
start_battle
point_at_gold
wait_for is_hovered || fail "the button does not know that the pointer is over it"

display -size 40x20 -title Between xc:black &
shown Between
eval "$(xdotool getmouselocation --shell)" # X and Y
xdotool windowmove "$(window Between)" "$((X - 20))" "$((Y - 10))"
wait_for is_turn || fail "the button does not know that a window has come between"
kill $!
gone Between
xdotool mousemove_relative 5 0
wait_for is_hovered || fail "the button does not know that the pointer has come back"
xdotool mousemove 0 0
wait_for is_turn || fail "the button does not know that the pointer has gone"
