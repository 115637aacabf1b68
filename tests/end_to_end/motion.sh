#!/usr/bin/env bash
# Usage: motion.sh PROGRAM
# Where the desktop's settings portal asks for little motion, or --reduced-motion does, the title stands
# still and fading is not to be had, though the display could and the player has it switched on.
here=$(dirname "${BASH_SOURCE[0]}")
source "$here/lib.sh"
unset DBUS_SESSION_BUS_ADDRESS

# The title's stars twinkle all the time.
is_still() {
    local i
    look "$title" && mv "$work/look.miff" "$work/first.miff"
    for ((i = 0; i < 20; i++)); do
        look "$title" && cmp "$work/look.miff" "$work/first.miff" || return 1
    done
}

# start_desktop NAMESPACE KEY VALUE: a session bus and a portal of that setting.
start_desktop() {
    dbus-daemon --session --nofork --print-address=3 3>"$work/bus" &
    wait_for test -s "$work/bus" || fail "no session bus"
    DBUS_SESSION_BUS_ADDRESS=$(<"$work/bus")
    export DBUS_SESSION_BUS_ADDRESS
    "$here/settings_portal.py" "$@" >"$work/portal" &
    wait_for grep -q ready "$work/portal" || fail "no portal"
}

# expect_calm OPTION...
expect_calm() {
    start_program "$@"
    wait_for is_still || fail "the title moves: $*"
    press "$title" space
    shown "$lobby"
    opacity "$lobby" | grep -q 'not found' || fail "the list fades: $*"
    xdotool mousemove --window "$(window "$lobby")" 434 422 click 1 # form fade effects: enabled
    shown '^Skylob$'
    press '^Skylob$' Return
    expect_setting FadeStatus=False
    leave_program
}

start_display
start_compositing
for request in 'org.freedesktop.appearance reduced-motion 1' \
    'org.gnome.desktop.interface enable-animations false' --reduced-motion; do
    calm FadeStatus=True NewUser=NoShow
    if [[ $request == --* ]]; then
        expect_calm "$request"
    else
        start_desktop $request
        expect_calm
    fi
    unset DBUS_SESSION_BUS_ADDRESS
done

# With a bus, but without such a wish, all is as ever.
calm FadeStatus=True NewUser=NoShow
start_desktop org.freedesktop.appearance reduced-motion 0
start_program
not is_still || fail "the title stands still"
press "$title" space
shown "$lobby"
opacity "$lobby" | grep -q '=' || fail "the list does not fade"
leave_program
