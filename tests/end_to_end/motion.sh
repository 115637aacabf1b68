#!/usr/bin/env bash
# Usage: motion.sh PROGRAM
# Where the desktop's settings portal asks for little motion, or --reduced-motion does, the title stands
# still and fading is not to be had, though the display could and the player has it switched on. A replay asks
# the portal, too.
here=$(dirname "${BASH_SOURCE[0]}")
source "$here/lib.sh"
players Ann Bob

start() {
    calm FadeStatus=True NewUser=NoShow
    start_program "$@"
}

# The title's stars twinkle all the time.
is_still() {
    local i
    look "$title" && mv "$work/look.miff" "$work/first.miff"
    for ((i = 0; i < 20; i++)); do
        look "$title" && cmp "$work/look.miff" "$work/first.miff" || return 1
    done
}
expect_calm() {
    wait_for is_still || fail "the title moves: $*"
    press "$title" space
    shown "$lobby"
    opacity "$lobby" | grep -q 'not found' || fail "the list fades: $*"
    xdotool mousemove --window "$(window "$lobby")" 434 422 click 1 # form fade effects: enabled
    shown '^Skylob$' # says no
    kill "$game"
    wait "$game" || true
}

# start_desktop NAMESPACE KEY VALUE: a session bus and a portal with that setting.
start_desktop() {
    rm -f "$work/bus" "$work/portal" # of the one before, which would be taken for this one's
    dbus-daemon --session --nofork --print-address=3 3>"$work/bus" &
    wait_for test -s "$work/bus" || fail "no session bus"
    export DBUS_SESSION_BUS_ADDRESS=$(<"$work/bus")
    "$here/settings_portal.py" "$@" >"$work/portal" &
    wait_for grep -q ready "$work/portal" || fail "no portal"
}

start_display
start_compositing
start --reduced-motion
expect_calm
for wish in 'org.freedesktop.appearance reduced-motion 1' 'org.gnome.desktop.interface enable-animations false'; do
    start_desktop $wish
    start
    expect_calm "$wish"
done
start_desktop org.freedesktop.appearance reduced-motion 0
start
not is_still || fail "the title stands still"
xprop -id "$(window "$title")" -spy _NET_WM_WINDOW_OPACITY >"$work/opacities" &
wait_for test -s "$work/opacities" || fail "no look at the opacity"
press "$title" space
wait_for grep -q '= [0-9]' "$work/opacities" || fail "the title does not fade"

start_desktop org.freedesktop.appearance reduced-motion 1
"$program" --replay "$here/../battle/golden/sets/storm.txt" 2>"$work/stderr" &
wait_for grep -q asked "$work/portal" || fail "a replay does not ask: $(<"$work/stderr")"
