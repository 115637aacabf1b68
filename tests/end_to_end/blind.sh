#!/usr/bin/env bash
# Usage: blind.sh PROGRAM [TESTS [SEED [ROUNDS]]]
# Whoever sees nothing and has a screen reader wins most rounds against the computer at level Poor in the
# real program. Left out (status 77) where the tools of a screen reader are not installed.
set -euo pipefail
python=/usr/bin/python3 # the one that Debian's tools are for
"$python" -c 'import gi; gi.require_version("Atspi", "2.0")' 2>/dev/null &&
    [[ -e /usr/share/dbus-1/services/org.a11y.Bus.service ]] && command -v dbus-daemon >/dev/null ||
    { echo "no AT-SPI" && exit 77; }
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

calm NewUser=NoShow GameSpeed=99 NumRounds=1
players Ann
start_display
start_session_bus
start_program --seed "${3-5}"
"$python" "$(dirname "${BASH_SOURCE[0]}")/blind.py" "${4-4}" ||
    fail "the blind player does not win: $(<"$work/stderr")"
expect_exit
