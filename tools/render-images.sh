#!/bin/sh
# SPDX-FileCopyrightText: 2026 Quellfern
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Renders the button images, the faces of the gauges, the logo and the program's icons from image/svg
# into image/:
#   tools/render-images.sh
# Needs rsvg-convert (Debian package librsvg2-bin) and the Liberation fonts (fonts-liberation). Run
# it after a change to a drawing or to a table, and keep the PNG files with the sources: the build
# does not need the renderer.
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
# The dials, one a line: drawing, direction of the first mark, degrees to the last, steps between
# them, steps from one label to the next, font size of the labels, labels.
#
# Directions are in degrees clockwise from straight up. The gauges turn their needles by the same
# scales. The plane of a drawing is 512 x 512 around the origin.
dials='
speed      -135  270  22  2  45  0 20 40 60 80 100 120 140 160 180 200 220
direction     0  360  24  6  68  N E S W
'
dial_font="Liberation Sans Narrow"
dial_size=512
logo_size=72 # twice the size in the title bar
icon_sizes="16 22 24 32 48 64 128 256 512" # of the desktop's menus, docks and windows
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

# Puts marks and labels in the place of the drawing's empty scale. The marks begin where the needle
# of the speed gauge ends, the labels lie between them and the rim.
draw_scale() { # DRAWING FIRST_ANGLE SWEEP STEPS STEPS_PER_LABEL LABEL_SIZE LABELS
    LC_ALL=C awk -v first="$2" -v sweep="$3" -v steps="$4" -v label_steps="$5" -v size="$6" \
        -v labels="$7" -v font="$dial_font" '
        function mark(angle, outer, width, colour) {
            printf "<path d=\"M0-156V-%d\" stroke=\"%s\" stroke-width=\"%d\"", outer, colour, width
            printf " transform=\"rotate(%.3f)\"/>\n", angle
        }
        function label(angle, text) {
            radians = angle * atan2(0, -1) / 180
            middle = 0.36 * size # half the height of a capital
            printf "<text x=\"%.1f\" y=\"%.1f\"", 213 * sin(radians), middle - 213 * cos(radians)
            printf " text-anchor=\"middle\" font-family=\"%s\" font-weight=\"bold\"", font
            printf " font-size=\"%d\" fill=\"rgb(210,210,210)\">%s</text>\n", size, text
        }
        !/<g id="scale"\/>/ { print; next }
        {
            count = split(labels, texts, " ")
            for (i = 0; i < steps; ++i)
                mark(first + i * sweep / steps, 168, 5, "rgb(130,130,140)")
            for (i = 0; i < count; ++i) {
                angle = first + i * label_steps * sweep / steps
                mark(angle, 175, 8, "rgb(210,210,210)")
                label(angle, texts[i + 1])
            }
        }' "$1"
}

render_dial() { # DRAWING FIRST_ANGLE SWEEP STEPS STEPS_PER_LABEL LABEL_SIZE LABELS
    name=$1
    drawing="$images/svg/$name.svg"
    shift
    grep -q '<g id="scale"/>' "$drawing" || fail "no drawing with a place for a scale: $drawing"
    draw_scale "$drawing" "$@" | render "$name.png" $dial_size
}

command -v rsvg-convert >/dev/null ||
    fail "rsvg-convert is not installed; on Debian: apt-get install librsvg2-bin"
fc-list "$dial_font" | grep -q . ||
    fail "the font $dial_font is not installed; on Debian: apt-get install fonts-liberation"

echo "$glyphs" | while read -r drawing name shown ground states; do
    # shellcheck disable=SC2086 # one word a state
    [ -z "$drawing" ] || render_glyph "$drawing" "$name" "$shown" "$ground" $states
done
echo "$dials" | while read -r drawing first sweep steps label_steps label_size labels; do
    [ -z "$drawing" ] ||
        render_dial "$drawing" "$first" "$sweep" "$steps" "$label_steps" "$label_size" "$labels"
done
render logo.png $logo_size <"$images/svg/logo.svg"
mkdir -p "$images/icons"
for size in $icon_sizes; do
    rsvg-convert --width "$size" --height "$size" --output "$images/icons/$size.png" \
        "$images/svg/logo.svg" || fail "cannot render the icon of $size pixels"
done
