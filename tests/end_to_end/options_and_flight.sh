#!/usr/bin/env bash
# Usage: options_and_flight.sh PROGRAM
# A shell is seen flying while the program is busy with it; options are saved by quitting and
# read at the next start; the window's frame and Esc leave the set. A box that is put aside takes its screen
# along, and either brings the other one back.
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

battle() { press "$battle" "$@"; }

calm GameSpeed=1 SoundSetting=maybe
players Ann Bob
start_display
start_game --seed 1
start_battle

battle F1
shown "$manual"
behind=$(window "$battle")
xdotool windowminimize "$(window "$manual")"
gone "$battle"
xdotool windowactivate "$behind"
press "$manual" Escape
gone "$manual"

look "$battle"
before=$(red)
battle alt+s
expect_flight
xdotool key Escape alt+s # neither leaves the set nor fires again
expect_flight
expect_flight
await_turn
# A ticked box is full of the accent colour.
ticked() { look "$battle" && (($(pixels_of '#6FE0EC' "24x24+$1+692") > 100)); }
trajectory=436 wind=756
ticked $trajectory || fail "no trajectory"
battle alt+t alt+w
wait_for not ticked $trajectory || fail "the trajectory stays"
wait_for ticked $wind || fail "no wind"
is_turn || fail "a key pressed in flight was obeyed"
battle Escape
gone "$battle"
leave_program
expect_setting TrajectorySetting=0
expect_setting WindSetting=1
expect_setting SoundSetting=1
expect_setting GameSpeed=1

start_game
start_battle
battle alt+F4
gone "$battle"
expect_setting TrajectorySetting=0
expect_setting WindSetting=1
leave_program
