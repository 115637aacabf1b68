# Shared by what drives the program under a Wayland compositor; source it after lib.sh.

# have_wayland: whether all that it takes is installed; says what is not.
have_wayland() {
    local tool
    for tool in sway swaymsg "$@"; do
        command -v "$tool" >/dev/null || { echo "no $tool" && return 1; }
    done
    compgen -G "/usr/lib/*/qt6/plugins/platforms/libqwayland-generic.so" >/dev/null ||
        { echo "no plugin for Wayland" && return 1; }
}

# start_compositor headless|x11: the display, in memory or in a window of an X server. It refuses to be root's.
start_compositor() {
    local as_nobody=() sockets=$work/sockets
    mkdir -m 700 "$sockets"
    if ((EUID == 0)); then
        chmod 711 "$work"
        chown nobody "$sockets"
        as_nobody=(setpriv --reuid=nobody --regid=nogroup --clear-groups)
    fi
    printf '%s\n' 'xwayland disable' 'output * resolution 1400x900' 'output * bg #808080 solid_color' \
        'for_window [app_id=".*"] floating enable' >"$work/sway"
    chmod 644 "$work/sway"
    XDG_RUNTIME_DIR=$sockets WLR_BACKENDS=$1 WLR_RENDERER=pixman WLR_LIBINPUT_NO_DEVICES=1 \
        "${as_nobody[@]}" sway --config "$work/sway" >"$work/sway.log" 2>&1 &
    wait_for compgen -G "$sockets/sway-ipc.*.sock" || fail "sway does not start: $(<"$work/sway.log")"
    SWAYSOCK=$(compgen -G "$sockets/sway-ipc.*.sock")
    wait_for test -S "$sockets/wayland-1" || fail "no display"
    export SWAYSOCK WAYLAND_DISPLAY=$sockets/wayland-1 QT_QPA_PLATFORM=wayland
}
