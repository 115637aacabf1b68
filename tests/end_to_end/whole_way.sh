#!/usr/bin/env bash
# Usage: whole_way.sh PROGRAM mouse|keyboard
# From the title page to the end of the program by way of every screen, with one hand only: as a
# new user without fading, and then with it under a compositing manager.
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
hand=$2

# point WINDOW X,Y: brings the pointer there; below 0 they count from the right and from the bottom.
# Fails where another window is in front.
point() {
    local WIDTH=0 HEIGHT=0 WINDOW=0 id x=${2%,*} y=${2#*,}
    id=$(window "$1")
    eval "$(xdotool getwindowgeometry --shell "$id" | grep -E 'WIDTH|HEIGHT')"
    xdotool mousemove --window "$id" $((x < 0 ? WIDTH + x : x)) $((y < 0 ? HEIGHT + y : y))
    eval "$(xdotool getmouselocation --shell | grep WINDOW)"
    xwininfo -children -id "$WINDOW" | grep -q "$(printf ' 0x%x ' "$id")" # the frame is what it reports
}
takes_clicks() { is_opaque "$1" && point "$1" "$2"; }
click() {
    wait_for takes_clicks "$1" "$2" || fail "the window '$1' takes no clicks: $(<"$work/stderr")"
    xdotool click --repeat "$3" --delay 30 1
}

# act WINDOW X,Y TIMES KEY...: clicks at the place, or presses the keys.
act() {
    if [[ $hand == mouse ]]; then click "${@:1:3}"; else press "$1" "${@:4}"; fi
}

yes=-138,-24 ok=-50,-24 # in message boxes

# Whoever shoots straight up is hit, loses, and opens the next round: five shots make a set.
play_set() {
    act "$lobby" 100,63 2 Home Return
    act "$lobby" 636,326 1 alt+c
    act "$skill" 86,110 1 alt+p
    for round in 1 2 3 4 5; do
        await_turn
        act "$battle" 271,631 15 alt+a End
        act "$battle" 141,603 21 alt+p Home
        act "$battle" 456,636 1 alt+s
        act "Round Summary" 300,402 1 Return
        gone "Round Summary"
    done
    act "Set Summary" 300,402 1 Escape
    act "Players Update" $ok 1 Return
}

# choose_rules: in the manual's menu, which is seen when something is in front of the manual.
choose_rules() {
    [[ $hand == mouse ]] || { press "$manual" r && return; }
    wait_for not point "$manual" 80,424 || fail "no menu"
    xdotool click 1
}

read_manual() {
    act "$lobby" 688,248 1 F1
    act "$manual" 104,498 1 F1
    choose_rules
    act "$manual" 632,498 1 Escape
    gone "$manual"
    act "$lobby" 688,248 1 alt+h
    shown "$manual"
}

leave() {
    act "$lobby" 780,250 1 Home # brings it before the manual
    act "$lobby" 688,464 1 alt+q
    act Confirm $yes 1 alt+y
    expect_exit
}

calm GameSpeed=99 NumRounds=1
players Ann Computer
start_display
start_program
act "$title" 536,392 1 alt+c
act "New User Overview" 34,410 1 alt+d
act "New User Overview" 504,410 1 Return
expect_setting NewUser=NoShow
play_set
# Five rounds and 500 enemies make 35 + 166, and a first average is one too high.
expect_players Computer:1:1:202:1 Ann:1:0:1:2
read_manual
leave # with the manual open

# The same with fading, which is switched on before and takes effect at the next start.
start_compositing
sed -i '1aFadeStatus=True' "$settings"
players Ann Computer
start_program
act "$title" 536,392 1 Return
play_set
expect_players Computer:1:1:202:1 Ann:1:0:1:2
read_manual
leave
