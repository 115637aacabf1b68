#!/usr/bin/env bash
# Usage: lobby.sh PROGRAM
# A new player's first quarter of an hour, by keyboard alone: names are entered, changed and
# deleted, two people begin a set and leave it, and everything is on the disk.
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

# enter TITLE TEXT: types into an input box over what it holds.
enter() {
    press "$1" ctrl+a BackSpace
    xdotool type --delay 20 -- "$2"
    xdotool key Return
    gone "$1"
}
add() {
    press "$lobby" alt+a
    enter "Add a New Player" "$1"
}

calm GameSpeed=99 NumRounds=1
start_display
start_game --seed 4
press "Empty Player List" Return
gone "Empty Player List"
expect_players
add "Ada & <b>Bert</b>"
add "  A name of many letters  "
expect_players "Ada & <b>Bert</b>" "A name of many lette"
add "Ada & <b>Bert</b>"
press Error Return
press "$lobby" Down F2
enter "Change the Highlighted" Grace
expect_players "Ada & <b>Bert</b>" Grace
add Eve
press "$lobby" --delay 0 End Delete Delete # in haste: asks only once
press Confirm Return # No
gone Confirm
expect_players "Ada & <b>Bert</b>" Grace Eve

# A set that is left in its second round, after a question, is not recorded. Whoever shoots straight
# up is hit.
start_battle
press "$battle" alt+a End alt+p Home alt+s
press "Round Summary" space
gone "Round Summary"
press "$battle" Escape
press ^Skylob$ alt+y
shown "$lobby"
expect_players "Ada & <b>Bert</b>" Grace Eve
expect_setting ScreenSize=2
expect_setting NumRounds=1

press "$lobby" Home Delete
press Confirm alt+y
gone Confirm
expect_players Grace Eve
leave_program
[[ $(ls "$work/data") == Skylob.Data ]] || fail "left behind: $(ls "$work/data")"
