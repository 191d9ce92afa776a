#!/bin/sh
# SPDX-FileCopyrightText: 2026 Quellfern
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Renders the button images and the logo from image/svg into image/:
#   tools/render-images.sh
# Needs rsvg-convert (Debian package librsvg2-bin). Run it after a change to a drawing or to the
# table, and keep the PNG files with the sources: the build does not need the renderer.
set -eu

# The glyphs, one a line: drawing, name of the images, shown size in pixels, ground, states.
#
# One unit of a drawing is one shown pixel, so that all strokes have the same weight and straight
# ones lie on whole pixels. The shown size cuts a centred window out of the drawing's plane, larger
# or smaller than its 24 x 24 grid. The ground "disc" lays a faint round button under the glyph,
# "ring" outlines it as well.
glyphs='
setup          setup          24  none  normal hover pressed disabled
min            min            24  none  normal hover pressed
max            max            24  none  normal hover pressed
restore        restore        24  none  normal hover pressed
close          close          24  none  normal hover pressed
openfile       openfile       32  disc  normal hover pressed
screenshot     screenshot     32  disc  normal hover pressed disabled
play           play           32  ring  normal hover pressed
pause          pause          32  ring  normal hover pressed
stop           stop           32  disc  normal hover pressed disabled
previous       previous       24  none  normal hover pressed
next           next           24  none  normal hover pressed
speedup        speedup        16  none  normal hover pressed disabled
speeddown      speeddown      16  none  normal hover pressed disabled
volume         volume         20  none  normal hover pressed
mute           mute           20  none  normal hover pressed
slider_handle  slider_handle  12  none  normal hover pressed
'
logo_size=72 # twice the size in the title bar
scale=2 # image pixels to one shown pixel, for dense screens

images="$(dirname "$0")/../image"

fail() {
    echo "render-images: $*" >&2
    exit 1
}

colour_of() { # STATE
    case $1 in
    normal) echo "rgb(190,190,198)" ;;
    hover) echo "rgb(38,153,238)" ;;
    pressed) echo "rgb(28,116,182)" ;;
    disabled) echo "rgb(86,86,94)" ;;
    *) fail "no colour for the state $1" ;;
    esac
}

ground_of() { # GROUND SHOWN_SIZE
    case $1 in
    none) ;;
    disc) echo "<circle cx=\"12\" cy=\"12\" r=\"$(($2 / 2))\" fill=\"currentColor\"" \
        "fill-opacity=\"0.1\" stroke=\"none\"/>" ;;
    ring) echo "<circle cx=\"12\" cy=\"12\" r=\"$(($2 / 2 - 1))\" fill=\"currentColor\"" \
        "fill-opacity=\"0.1\"/>" ;;
    *) fail "no such ground: $1" ;;
    esac
}

# Fails for an image that the resource collection lacks: the program would not find it.
require_resource() { # FILE
    grep -q ">$1<" "$images/velmora.qrc" || fail "image/velmora.qrc does not list $1"
}

render() { # FILE SIZE: reads the drawing from standard input
    rsvg-convert --width "$2" --height "$2" --output "$images/$1" || fail "cannot render $1"
    require_resource "$1"
}

render_glyph() { # DRAWING NAME SHOWN_SIZE GROUND STATE...
    drawing="$images/svg/$1.svg"
    name=$2
    shown=$3
    origin=$((12 - shown / 2))
    ground=$(ground_of "$4" "$shown")
    shift 4
    [ -r "$drawing" ] || fail "no drawing $drawing"
    for state in "$@"; do
        colour=$(colour_of "$state")
        sed -e "s|viewBox=\"0 0 24 24\"|viewBox=\"$origin $origin $shown $shown\"|" \
            -e "s|stroke-linejoin=\"round\">|&$ground|" \
            -e "s|currentColor|$colour|g" "$drawing" |
            render "${name}_$state.png" $((shown * scale))
    done
}

command -v rsvg-convert >/dev/null ||
    fail "rsvg-convert is not installed; on Debian: apt-get install librsvg2-bin"

echo "$glyphs" | while read -r drawing name shown ground states; do
    # shellcheck disable=SC2086 # one word a state
    [ -z "$drawing" ] || render_glyph "$drawing" "$name" "$shown" "$ground" $states
done
render logo.png $logo_size <"$images/svg/logo.svg"
