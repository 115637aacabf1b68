#!/bin/sh
# Renders the PNG pictures from the SVG drawings beside them:
#
#   pictures/svg/icon*.svg  ->  pictures/icon-16.png, icon-32.png, icon-64.png, icon-256.png
#                           ->  ../desktop/icons/icon-24.png, icon-48.png, icon-128.png
#   look/svg/*.svg          ->  look/*.png, *@2x.png and *@3x.png, for the style sheet
#
# Run it, from anywhere, after a change to an SVG file; it needs rsvg-convert (Debian package
# librsvg2-bin). The build does not run it: the PNG files are committed. The same drawings and the
# same version of rsvg-convert always give the same bytes.
set -eu

resources=$(cd "$(dirname "$0")/.." && pwd)

# render SVG PIXELS PNG: a square picture of PIXELS x PIXELS.
render() {
    rsvg-convert --format=png --width="$2" --height="$2" --output="$3" "$1"
}

# The icon has a simpler drawing of its own where the full one would blur.
icons=$resources/pictures
render "$icons/svg/icon-16.svg" 16 "$icons/icon-16.png"
render "$icons/svg/icon-32.svg" 32 "$icons/icon-32.png"
render "$icons/svg/icon.svg" 64 "$icons/icon-64.png"
render "$icons/svg/icon.svg" 256 "$icons/icon-256.png"
# The program does without these; menus and docks want them.
desktop=$resources/../desktop/icons
render "$icons/svg/icon-32.svg" 24 "$desktop/icon-24.png"
render "$icons/svg/icon.svg" 48 "$desktop/icon-48.png"
render "$icons/svg/icon.svg" 128 "$desktop/icon-128.png"

for drawing in "$resources"/look/svg/*.svg; do
    name=$(basename "$drawing" .svg)
    # The size of a drawing stands in its first tag: <svg ... width="8" height="8" ...>.
    size=$(sed -n 's/.*<svg .*[ ]width="\([0-9]*\)".*/\1/p' "$drawing")
    render "$drawing" "$size" "$resources/look/$name.png"
    render "$drawing" $((size * 2)) "$resources/look/$name@2x.png"
    render "$drawing" $((size * 3)) "$resources/look/$name@3x.png"
done
