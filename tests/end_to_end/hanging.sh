#!/usr/bin/env bash
# Usage: hanging.sh PROGRAM
# Neither a sound system that never answers nor somebody who never lets the settings go keeps the
# player waiting.
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

export SDL_AUDIODRIVER=disk SDL_DISKAUDIOFILE=$work/sound
mkfifo "$SDL_DISKAUDIOFILE" # opens with its reader: never
start_display
players Ann Bob
start_game
start_battle
press "$battle" Right # clicks
exec 9>"$settings.lock"
flock 9
press "$battle" Escape # saves five options
leave_program
