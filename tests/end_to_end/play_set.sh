#!/usr/bin/env bash
# Usage: play_set.sh PROGRAM
# Plays a whole set of five rounds against the computer in a real window, by keyboard alone, and
# finds it recorded for both.
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

cat >"$settings" <<'INI'
[Defaults]
GameSpeed=99
NumRounds=1
INI
players Ann Computer
start_display
start_game --seed 5 # a short set
start_battle_with_computer g

summaries=0
deadline=$((SECONDS + 200))
until is_shown "$lobby"; do
    ((SECONDS < deadline)) || fail "the set does not end; $summaries summaries so far"
    if is_shown "Players Update"; then
        press "Players Update" space
    elif is_shown "Summary"; then
        [[ -n ${reported-} ]] || summaries=$((summaries + 1))
        reported=yes
        press "Summary" space
    elif is_shown "loses this round"; then
        press "loses this round" space
    else
        reported=
        press "$battle" alt+s
    fi
    sleep 0.1
done
# The last round's summary and the set's are more than a second apart.
((summaries == 6)) || fail "$summaries summaries instead of 5 and 1"
expect_players Computer:1:1:169:1 Ann:1:0:1:2
leave_program
