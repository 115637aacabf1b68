#!/usr/bin/env bash
# Usage: monkey.sh PROGRAM SEED ACTIONS|SECONDSs KEEP [usual|scaled|plain|compositing|wayland]
# Lets a monkey (monkey.py) play with the program for so many actions, or seconds, on a display of its own:
# as usual, half as large again, without light, with a compositing manager that comes and goes, or under a
# Wayland compositor (left out with status 77 where there is none). Nothing that it opens or prints leaves
# its home. The program may be built with sanitizers. Of a finding the folder KEEP tells more.
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
source "$(dirname "${BASH_SOURCE[0]}")/lib_wayland.sh"
options=()
case ${5-usual} in
usual) ;;
scaled) options=(--scale 150) ;;
plain) options=(--plain) ;;
compositing) export MONKEY_COMPOSITING=1 ;;
wayland) have_wayland || exit 77 ;;
*) sed -n '2s/^# //p' "$0" >&2 && exit 2 ;;
esac

# Links are followed nowhere.
mkdir -p "$work/bin" "$XDG_CONFIG_HOME/openbox"
ln -s /bin/true "$work/bin/xdg-open"
export PATH=$work/bin:$PATH CUPS_SERVER=/nonexistent
unset DBUS_SESSION_BUS_ADDRESS

# A window manager without menus, whose keys are the monkey's.
cat >"$XDG_CONFIG_HOME/openbox/rc.xml" <<'END'
<openbox_config xmlns="http://openbox.org/3.4/rc">
  <theme><name>Clearlooks</name></theme>
  <keyboard>
    <keybind key="A-F4"><action name="Close"/></keybind>
    <keybind key="A-F10"><action name="ToggleMaximize"/></keybind>
  </keyboard>
  <mouse>
    <context name="Client">
      <mousebind button="Left" action="Press"><action name="Focus"/><action name="Raise"/></mousebind>
    </context>
  </mouse>
</openbox_config>
END

# A sound library keeps something to the end. Under Wayland so do others, some of which are gone by then.
echo leak:libSDL2 >"$work/kept"
export LSAN_OPTIONS=suppressions=$work/kept:print_suppressions=0 UBSAN_OPTIONS=print_stacktrace=1
export ASAN_OPTIONS=handle_abort=1:exitcode=99:detect_leaks=1

players Ann:3:1:40:2 Bob:4:3:68:1 Computer "Ada & <b>Bert</b>"
if [[ ${5-} == wayland ]]; then
    start_bare_display
    start_compositor x11
    ASAN_OPTIONS+=:detect_leaks=0
else
    start_display
fi
/usr/bin/python3 -B "$(dirname "${BASH_SOURCE[0]}")/monkey.py" "$program" "$2" "$3" "$4" "${options[@]}" &
wait $!
