#!/usr/bin/env bash
# Usage: hanging.sh PROGRAM
# Neither a sound system that never answers nor somebody who never lets the settings go keeps the
# player waiting, nor does it stay when the game has gone.
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

export SDL_AUDIODRIVER=disk SDL_DISKAUDIOFILE=$work/sound
hangs() { grep -lxs skylob-sound /proc/[0-9]*/comm | sed 's/comm$/environ/' | xargs grep -qzsx "HOME=$work"; }
ended() { ! hangs; }
mkfifo "$SDL_DISKAUDIOFILE" # opens with its reader: never
start_display
players Ann Bob
start_game
start_battle
press "$battle" Right # clicks
wait_for hangs || fail "the sound has been played"
exec 9>"$settings.lock"
flock 9
press "$battle" Escape # saves five options
leave_program
wait_for ended || fail "the sound still hangs"
