#!/usr/bin/env bash
# Usage: play_set.sh PROGRAM
# Plays a whole set of five rounds against the computer in a real window, by keyboard alone.
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

cat >"$settings" <<'INI'
[Defaults]
GameSpeed=99
NumRounds=1
INI
start_display
start_game --seed 9667 # a short set: the computer fires nine times

summaries=0
deadline=$((SECONDS + 200))
until is_over; do
    ((SECONDS < deadline)) || fail "the set does not end; $summaries summaries so far"
    if is_shown "Summary"; then
        [[ -n ${reported-} ]] || summaries=$((summaries + 1))
        reported=yes
        press "Summary" space
    elif is_shown "loses this round"; then
        press "loses this round" space
    else
        reported=
        press "Skylob - Battlefield" alt+s
    fi
    sleep 0.1
done
expect_exit 1
# The last round's summary and the set's are more than a second apart.
((summaries == 6)) || fail "$summaries summaries instead of 5 and 1"
