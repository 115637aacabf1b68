#!/usr/bin/env bash
# Usage: replay.sh PROGRAM
# Writes a set down while it is played in a real window, and shows it again.
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

calm GameSpeed=99
players Ann Bob
start_display
start_game --seed 5 --record "$work/set.txt"
start_battle
for keys in "alt+s" "alt+w alt+s"; do
    press "$battle" $keys
    await_turn
done
press "$battle" Escape
shown "$lobby"
leave_program
[[ $(cut -d' ' -f1-2 "$work/set.txt" | tail -n 5 | tr '\n' ,) == "round 1,shot "?",box wind,shot "?",left," ]] ||
    fail "this was written down: $(<"$work/set.txt")"

# replay RECORDING: shows it, and closes the box in which it ends. What the player may not do is tried.
sums() { find "$work/data" "$XDG_CONFIG_HOME" -type f -exec sha256sum {} +; }
end='^Replay$'
replay() {
    "$program" --replay "$1" 2>"$work/stderr" &
    game=$!
    shown "$battle"
    press "$battle" alt+s alt+w F1
    shown "$end"
    press "$end" space
}
before=$(sums)
replay "$work/set.txt"
expect_exit
sed 's/ deserted [0-9]*/ deserted 0/' "$work/set.txt" >"$work/other.txt"
replay "$work/other.txt"
wait_for is_over || fail "the program does not end"
status=0
wait "$game" || status=$?
((status == 1)) && grep -q '^skylob: line 10: recorded' "$work/stderr" || fail "$status: $(<"$work/stderr")"
[[ $(sums) == "$before" ]] || fail "a replay writes: $(sums)"
