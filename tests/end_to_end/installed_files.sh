#!/usr/bin/env bash
# Usage: installed_files.sh PROGRAM BUILD_DIR
# What `cmake --install` gives a desktop is valid, and of one mind with the program.
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

cmake --install "$2" --prefix "$work/usr" >"$work/installed" || fail "$(<"$work/installed")"
cd "$work/usr"
desktop-file-validate share/applications/skylob.desktop || fail "the desktop entry"
appstreamcli validate --no-net --no-color share/metainfo/*.xml || fail "the metainfo"
installed=$(find "$PWD" -name skylob -type f -perm -u+x) # in bin, or where a package wants it
PATH=${installed%/*}:$PATH $(sed -n 's/^Exec=//p' share/applications/skylob.desktop) --version

# It finds the program that plays its sounds.
here=$(cd "${BASH_SOURCE[0]%/*}" && pwd)
export QT_QPA_PLATFORM=offscreen SDL_AUDIODRIVER=disk SDL_DISKAUDIOFILE=$work/heard
"$installed" --replay "$here"/../battle/golden/sets/good_calm.txt &
game=$!
wait_for test -s "$work/heard" || fail "no sounds"
kill "$game"

for size in 16 24 32 48 64 128 256; do
    icon=share/icons/hicolor/${size}x$size/apps/skylob.png
    [[ $(identify -format '%w %h' "$icon") == "$size $size" ]] || fail "$icon has another size"
done
[[ -s share/icons/hicolor/scalable/apps/skylob.svg ]] || fail "no scalable icon"

options() { grep -oE -- '--[a-z][a-z-]+' | sort -u; }
"$installed" --help | options >told
sed 's/\\-/-/g' share/man/man6/skylob.6 | options | diff told - || fail "the man page's options"
installed=$installed bash -c 'source /usr/share/bash-completion/bash_completion
    source share/bash-completion/completions/skylob
    COMP_WORDS=("$installed" --) COMP_CWORD=1 COMP_LINE="$installed --" COMP_POINT=$((${#installed} + 3))
    _skylob "$installed" -- "$installed"
    printf "%s\n" "${COMPREPLY[@]}"' | options | diff told - || fail "the completion's options"
