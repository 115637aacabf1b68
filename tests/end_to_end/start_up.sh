#!/usr/bin/env bash
# Usage: start_up.sh PROGRAM
# A second copy is refused and a killed one forgotten; a list of an earlier version is taken over;
# the title page's frame ends the program, the welcome's does not.
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

start_display
players Ann
mv "$list" "$work/data/Skylob.Dat"
start_program
expect_players Ann
[[ $(ls "$work/data") == Skylob.Data ]] || fail "left behind: $(ls "$work/data")"

first=$game
"$program" --data-dir "$work/data" &
game=$!
wait_for takes_keys Terminating || fail "a second copy is not refused"
is_alone() { [[ $(xdotool search --onlyvisible --name "$title" | wc -l) == 1 ]]; }
wait_for is_alone || fail "two title pages"
press Terminating Return
wait_for is_over || fail "a second copy stays"
! wait "$game" || fail "a second copy ends well"
game=$first
wait_for is_alone || fail "the first copy is gone"

press "$title" space
press "New User Overview" space
shown "$lobby"
kill -9 "$game"
wait "$game" || true
gone "$lobby"
start_program
press "$title" space
press "New User Overview" alt+d alt+F4
shown "$lobby"
! grep -qs NewUser "$settings" || fail "the welcome saves without a tick and Continue: $(<"$settings")"
leave_program

start_program
press "$title" alt+F4
expect_exit
