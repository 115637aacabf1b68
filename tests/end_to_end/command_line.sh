#!/usr/bin/env bash
# Usage: command_line.sh PROGRAM
# What the program does with its arguments, without any display.
set -euo pipefail
program=$(realpath "$1")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM
cd "$work"

fail() {
    echo "FAILED: $*" >&2
    exit 1
}

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
DISPLAY=:9999 XDG_RUNTIME_DIR=$work expect 1
XDG_DATA_HOME=$work/own expect 1 --user-data
[[ -d own/Skylob ]] || fail "--user-data makes no folder"
