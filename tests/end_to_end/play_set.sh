#!/usr/bin/env bash
# Usage: play_set.sh PROGRAM
# Plays a whole set of five rounds against the computer in a real window, by keyboard alone, and
# finds it recorded for both.
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

calm GameSpeed=99 NumRounds=1
players Ann Computer
start_display
start_game --seed 5 # a short set
start_battle_with_computer g

# answer WINDOW: presses space in a window that has not been answered yet.
answer() {
    local id
    id=$(window "$1") && [[ $answered != *" $id "* ]] || return
    answered+=" $id "
    press "$1" space
}

summaries=0
answered=
deadline=$((SECONDS + 400))
until is_shown "$lobby"; do
    ((SECONDS < deadline)) || fail "the set does not end; $summaries summaries so far"
    if answer "Players Update" || answer "loses this round"; then
        :
    elif answer Summary; then
        summaries=$((summaries + 1))
    elif takes_keys "$battle" && is_turn; then
        xdotool key alt+s
    fi
    sleep 0.1
done 2>/dev/null
((summaries == 6)) || fail "$summaries summaries instead of 5 and 1"
expect_players Computer:1:1:169:1 Ann:1:0:1:2
leave_program
