#!/usr/bin/env bash
# Usage: command_line.sh PROGRAM
# What the program does with its arguments, without any display.
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM
cd "$work"

# expect STATUS ARGUMENT...: the status, and one line on standard error unless it is 0.
expect() {
    local wanted=$1 status=0
    shift
    "$program" "$@" >out 2>err || status=$?
    ((status == wanted)) || fail "status $status instead of $wanted for: $*"
    if ((wanted == 0)); then
        [[ -s out && ! -s err ]] || fail "no answer to: $*"
    else
        [[ ! -s out && $(wc -l <err) == 1 ]] || fail "not one line for: $*: $(<err)"
    fi
}

expect 0 --help
expect 0 --version
grep -qx 'Skylob [0-9.]*' out || fail "--version says: $(<out)"
expect 2 --fast
touch file
expect 2 --data-dir file
expect 2 --data-dir file/below
expect 1 --data-dir new/folder # nothing to show it on, but the folder is made
[[ -d new/folder ]] || fail "--data-dir makes no folder"
DISPLAY=:9999 expect 1
XDG_DATA_HOME=$work/own expect 1 --user-data
[[ -d own/Skylob ]] || fail "--user-data makes no folder"
expect 2 --data-dir $'bad\xff' # the toolkit would make another folder of it
! compgen -G 'bad*' || fail "--data-dir makes another folder"
for option in --help --version; do
    status=0
    "$program" $option >/dev/full 2>err || status=$?
    ((status == 1)) && [[ $(wc -l <err) == 1 ]] || fail "status $status with a full disk: $(<err)"
done

# Recordings: neither is anything else replayed, nor another file overwritten.
printf 'skylob battle 1\nseed 1\n' >cut
for file in nowhere . file cut /dev/full; do expect 2 --replay $file; done
echo mine >precious
expect 2 --record precious
grep -qx mine precious || fail "--record overwrites: $(<precious)"
expect 2 --record nowhere/set
expect 1 --record set # nothing to play on, but it could be written

holds_lock() { ls -l "/proc/$game/fd" | grep -q Skylob.lock; }

# The standard descriptors that are closed are not taken by other files.
export QT_QPA_PLATFORM=offscreen
for closed in 0 1 2 "0 1" "0 2" "1 2" "0 1 2"; do
    (
        for descriptor in $closed; do eval "exec $descriptor>&-"; done
        exec "$program"
    ) </dev/zero >out 2>err &
    game=$!
    wait_for holds_lock || fail "without $closed it does not start"
    for descriptor in $closed; do
        held=$(readlink "/proc/$game/fd/$descriptor") || true
        [[ $held == /dev/null ]] || fail "without $closed, $descriptor is '$held'"
    done
    kill $game
    wait $game || true
done
