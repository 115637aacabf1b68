#!/usr/bin/env bash
# Usage: fade.sh PROGRAM TESTS
# With fading switched on screens go in steps where a compositing manager makes windows translucent,
# and at once, with their opacity untouched, where there is none.
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

# watch WINDOW: begins to write down its opacities.
watch() {
    rm -f "$work/opacities" # of the window before
    xprop -id "$(window "$1")" -spy _NET_WM_WINDOW_OPACITY >"$work/opacities" &
    wait_for test -s "$work/opacities" || fail "no look at the opacity"
}

# expect_fade STEP: the window watched went to 0. Opacities are whole steps of 255ths, each repeated
# in four bytes. Some may be missed, none made up, and the least distance seen is the step.
expect_fade() {
    local steps step expected last=0 pair=
    wait_for grep -q ' 0$' "$work/opacities" || fail "no end of a fade: $(<"$work/opacities")"
    steps=$(grep -o ' [0-9]\{5,\}$\| 0$' "$work/opacities" |
        while read -r value; do echo $((value / 16843009)); done | uniq | tr '\n' ' ')
    expected=" $(seq -s ' ' 255 "-$1" 0) 0 "
    for step in $steps; do
        [[ $expected == *" $step "* ]] || fail "an opacity of $step: $steps"
        ((last - step != $1)) || pair=yes
        last=$step
    done
    [[ $steps == *" 0 " && -n $pair ]] || fail "not a whole fade: $steps"
}

calm FadeStatus=True
players Ann Bob
start_display

start_game
start_battle
opacity "$battle" | grep -q 'not found' || fail "an opacity without a compositing manager: $(opacity "$battle")"
press "$battle" Escape
gone "$battle"
leave_program

start_compositing
SKYLOB_EXPECT_FADES=1 "$2/screen_screen_tests" QtScreenTest takesNoInputWhileItFadesAndLeavesOnce \
    isRunUntilEscapeWhereItIsModal >"$work/screen" || fail "no fade of a screen: $(<"$work/screen")"
start_program
watch "$title"
press "$title" space
shown "$lobby"
expect_fade 10
start_battle
wait_for is_opaque "$battle" || fail "the battle has not faded in: $(opacity "$battle")"
watch "$battle"
press "$battle" Escape
gone "$battle"
expect_fade 20
leave_program
