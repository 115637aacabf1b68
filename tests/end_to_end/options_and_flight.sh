#!/usr/bin/env bash
# Usage: options_and_flight.sh PROGRAM
# A shell is seen flying while the program is busy with it; options are saved by quitting and
# read at the next start; the window's frame and Esc leave the set.
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"


battle() { press "$battle" "$@"; }

printf '[Defaults]\nGameSpeed=20\nSoundSetting=maybe\n' >"$settings"
players Ann Bob
start_display
start_game --seed 1
start_battle
# look: takes a picture of the battle. The trail is red, the shoot button golden while it can be used.
look() { import -window "$(window "$battle")" "$work/battle.png"; }
red() { pixels_of "$work/battle.png" '#FF0000'; }
gold() { pixels_of "$work/battle.png" '#F2B92E'; }
trail_grows() { look && (($(red) > before)); }

look
(($(gold) > 0)) || fail "the shoot button is not golden"
before=$(red)
battle alt+s
for i in 1 2 3; do
    until_true 5 trail_grows || fail "the trail does not grow in flight: $(red) pixels after $before"
    before=$(red)
    (($(gold) == 0)) || fail "the controls look usable in flight"
done
# Pressed in flight: neither leaves the set nor fires again.
battle Escape alt+s
sleep 6
is_shown "$battle" || fail "a key pressed in flight was obeyed"
battle alt+t alt+w
sleep 0.5 # a box shows for a moment that it is pressed
battle Escape
gone "$battle"
leave_program
expect_setting TrajectorySetting=0
expect_setting WindSetting=1
expect_setting SoundSetting=1
expect_setting GameSpeed=20

start_game
start_battle
battle alt+F4
gone "$battle"
expect_setting TrajectorySetting=0
expect_setting WindSetting=1
leave_program
