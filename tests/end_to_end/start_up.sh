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

"$program" --data-dir "$work/data" &
second=$!
shown Terminating
sleep 0.5 # a title page would come now
[[ $(xdotool search --onlyvisible --name "$title" | wc -l) == 1 ]] || fail "two title pages"
press Terminating Return
! wait "$second" || fail "a second copy ends well"
shown "$title" # the first copy is still there

press "$title" space
shown "New User Overview"
press "New User Overview" space
shown "$lobby"
kill -9 "$game"
wait "$game" || true
gone "$lobby"
start_program
press "$title" space
shown "New User Overview"
press "New User Overview" alt+d alt+F4
shown "$lobby"
! grep -qs NewUser "$settings" || fail "the welcome saves without a tick and Continue: $(<"$settings")"
leave_program

start_program
press "$title" alt+F4
expect_exit 10
